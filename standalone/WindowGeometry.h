#ifndef ZEL_WINDOWGEOMETRY_H
#define ZEL_WINDOWGEOMETRY_H

#include <QObject>
#include <QSize>
#include <QString>

class QWidget;

namespace zel {

/// Saves the position and size of a frameless window and restores them, unless the screens have changed.
/// Opens it maximised on a screen that is too small for it. Also keeps the window within the available area
/// of its screen, and brings it back when its screen goes away. The window owns this object.
class WindowGeometry : public QObject
{
    Q_OBJECT

public:
    /// @param minimumSize  the minimum size of the window, where the screen is large enough
    /// @param file         the file that holds position and size, and nothing else
    WindowGeometry(QWidget* window, const QSize& minimumSize, const QString& file);

    /// Call it before the window is shown. Changes nothing unless the file is a plain one that save() has
    /// made.
    void restore();

    /// Ignores failures: the user loses nothing of value.
    void save() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void fitToScreen();

private:
    QWidget* const m_window;
    const QSize m_minimumSize;
    const QString m_file;
    bool m_isBeingPlaced = false; ///< It has been shown, but not painted yet.
};

} // namespace zel

#endif
