#include "WindowGeometry.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QSettings>
#include <QWidget>

namespace zel {

namespace {
const char* const DesktopKey = "desktop"; // The bounding rectangle of all screens.
const char* const GeometryKey = "geometry";
const char* const MaximizedKey = "maximized";
} // namespace

WindowGeometry::WindowGeometry(QWidget* window, const QSize& minimumSize, const QString& file)
    : QObject(window)
    , m_window(window)
    , m_minimumSize(minimumSize)
    , m_file(file)
{
    connect(QApplication::desktop(), SIGNAL(resized(int)), this, SLOT(fitToScreen()));
    connect(QApplication::desktop(), SIGNAL(workAreaResized(int)), this, SLOT(fitToScreen()));
}

void WindowGeometry::restore()
{
    fitToScreen();
    const QSettings file(m_file, QSettings::IniFormat);
    const QRect geometry = file.value(GeometryKey).toRect();
    if (!geometry.isValid() || file.value(DesktopKey).toRect() != QApplication::desktop()->geometry())
        return;
    m_window->setGeometry(geometry);
    fitToScreen();
    if (file.value(MaximizedKey).toBool())
        m_window->setWindowState(m_window->windowState() | Qt::WindowMaximized);
}

void WindowGeometry::save() const
{
    QSettings file(m_file, QSettings::IniFormat);
    file.setValue(DesktopKey, QApplication::desktop()->geometry());
    file.setValue(GeometryKey, m_window->normalGeometry());
    file.setValue(MaximizedKey, m_window->isMaximized());
}

void WindowGeometry::fitToScreen()
{
    const QRect area = QApplication::desktop()->availableGeometry(m_window);
    m_window->setMinimumSize(m_minimumSize.boundedTo(area.size()));
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const QSize size = m_window->size().boundedTo(area.size());
    m_window->resize(size);
    // Before a window without a position is shown, the window manager chooses one.
    if (m_window->isVisible() || m_window->testAttribute(Qt::WA_Moved))
        m_window->move(qBound(area.left(), m_window->x(), area.right() - size.width() + 1),
                       qBound(area.top(), m_window->y(), area.bottom() - size.height() + 1));
}

} // namespace zel
