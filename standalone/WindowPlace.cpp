#include "WindowPlace.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QSettings>
#include <QWidget>

namespace zel {

namespace {
const char* const DesktopKey = "desktop"; // All screens together, as they were when the place was stored.
const char* const GeometryKey = "geometry";
const char* const MaximizedKey = "maximized";
} // namespace

WindowPlace::WindowPlace(QWidget* window, const QSize& leastSize, const QString& file)
    : QObject(window)
    , m_window(window)
    , m_leastSize(leastSize)
    , m_file(file)
{
    connect(QApplication::desktop(), SIGNAL(resized(int)), this, SLOT(fitScreen()));
    connect(QApplication::desktop(), SIGNAL(workAreaResized(int)), this, SLOT(fitScreen()));
}

void WindowPlace::restore()
{
    fitScreen();
    const QSettings file(m_file, QSettings::IniFormat);
    const QRect place = file.value(GeometryKey).toRect();
    if (!place.isValid() || file.value(DesktopKey).toRect() != QApplication::desktop()->geometry())
        return;
    m_window->setGeometry(place);
    fitScreen();
    if (file.value(MaximizedKey).toBool())
        m_window->setWindowState(m_window->windowState() | Qt::WindowMaximized);
}

void WindowPlace::store() const
{
    QSettings file(m_file, QSettings::IniFormat);
    file.setValue(DesktopKey, QApplication::desktop()->geometry());
    file.setValue(GeometryKey, m_window->normalGeometry());
    file.setValue(MaximizedKey, m_window->isMaximized());
}

void WindowPlace::fitScreen()
{
    const QRect area = QApplication::desktop()->availableGeometry(m_window);
    m_window->setMinimumSize(m_leastSize.boundedTo(area.size()));
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const QSize size = m_window->size().boundedTo(area.size());
    m_window->resize(size);
    // A window that has not been given a place before it is shown is given one by the system.
    if (m_window->isVisible() || m_window->testAttribute(Qt::WA_Moved))
        m_window->move(qBound(area.left(), m_window->x(), area.right() - size.width() + 1),
                       qBound(area.top(), m_window->y(), area.bottom() - size.height() + 1));
}

} // namespace zel
