#ifndef ZEL_WINDOWPLACE_H
#define ZEL_WINDOWPLACE_H

#include <QObject>
#include <QSize>
#include <QString>

class QWidget;

namespace zel {

/// Where a frameless window is and how large. It is never larger than the free area of its screen, and opens
/// where it was when that was stored, unless the screens have changed since. Belongs to the window.
class WindowPlace : public QObject
{
    Q_OBJECT

public:
    /// @param leastSize  the window's minimum size, on screens that have room for it
    /// @param file       keeps the place between two starts, and nothing else
    WindowPlace(QWidget* window, const QSize& leastSize, const QString& file);

    /// To be called before the window is shown. Whatever is wrong with the file leaves the window as it is.
    void restore();

    /// A place that cannot be stored is no loss that a user must be told of.
    void store() const;

private Q_SLOTS:
    void fitScreen();

private:
    QWidget* const m_window;
    const QSize m_leastSize;
    const QString m_file;
};

} // namespace zel

#endif
