#ifndef ZEL_WRITENOTICE_H
#define ZEL_WRITENOTICE_H

#include <QObject>

class QLabel;

namespace zel {

/// The label below the Apply button that tells why the settings file cannot be written. The label owns this
/// object.
class WriteNotice : public QObject
{
    Q_OBJECT

public:
    /// Hides the label.
    explicit WriteNotice(QLabel* label);

    /// Shows the reason, and brings it into view; an empty text hides the label.
    void show(const QString& reason);

private Q_SLOTS:
    void bringIntoView();

private:
    QLabel* const m_label;
};

} // namespace zel

#endif
