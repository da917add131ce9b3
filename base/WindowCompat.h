#ifndef ZEL_WINDOWCOMPAT_H
#define ZEL_WINDOWCOMPAT_H

// The differences between Qt versions, and between window systems, that concern windows.

#include <QApplication>
#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
#    include <QWindow>
#endif

namespace zel {

/// Makes the interface follow the screen's scale: by whole factors from Qt 5.6 on, by any from Qt 5.14 on,
/// not at all before. Call it before the application object exists.
inline void followScreenScale()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
}

/// Lets the window system move a window with the pressed mouse button, with all that the desktop has for it,
/// such as tiling at the edges of the screen. False where it cannot, and before Qt 5.15: move it yourself.
inline bool startSystemMove(QWidget& window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    return window.windowHandle() && window.windowHandle()->startSystemMove();
#else
    Q_UNUSED(window)
    return false;
#endif
}

/// The same for the size. The edges are those of Qt::Edge: top 1, left 2, right 4, bottom 8.
inline bool startSystemResize(QWidget& window, int edges)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    return window.windowHandle() && window.windowHandle()->startSystemResize(Qt::Edges(edges));
#else
    Q_UNUSED(window)
    Q_UNUSED(edges)
    return false;
#endif
}

/// True where only the window system can place a window: on Wayland.
inline bool placesItsWindows()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QGuiApplication::platformName().startsWith("wayland");
#else
    return false;
#endif
}

} // namespace zel

#endif
