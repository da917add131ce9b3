#ifndef ZEL_OPENEDHELP_H
#define ZEL_OPENEDHELP_H

#include <QFrame>

namespace zel {

/// A popup with the help on one field, beside that field. It is deleted when it closes.
class OpenedHelp : public QFrame
{
public:
    /// Follows the edits of the field's page, which may be null. The parent owns the popup.
    OpenedHelp(QWidget& field, const QObject* page, QWidget* parent);

private:
    /// Below the field, or above it where there is no room, and always on its screen.
    void moveBeside(const QWidget& field);
};

} // namespace zel

#endif
