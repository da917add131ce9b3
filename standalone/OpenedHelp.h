#ifndef ZEL_OPENEDHELP_H
#define ZEL_OPENEDHELP_H

#include <QFrame>

namespace zel {

class ZelPageHelp;

/// A popup with the help on one field, beside that field. It is deleted when it closes.
class OpenedHelp : public QFrame
{
public:
    /// Follows the edits of the page, unless that is null. The parent owns the popup.
    OpenedHelp(QWidget& field, const ZelPageHelp* page, QWidget* parent);

private:
    /// Below the field, or above it where there is no room, and always on its screen.
    void moveBeside(const QWidget& field);
};

} // namespace zel

#endif
