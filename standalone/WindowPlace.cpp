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
    m_window->resize(m_window->size().boundedTo(area.size()));
    // A window that has not been given a place yet is given one by the system.
    if (!m_window->testAttribute(Qt::WA_Moved))
        return;
    const QRect place = m_window->geometry();
    m_window->move(qBound(area.left(), place.x(), area.right() - place.width() + 1),
                   qBound(area.top(), place.y(), area.bottom() - place.height() + 1));
}

} // namespace zel
