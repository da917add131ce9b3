#include "ClickOutside.h"

#include "base/QtCompat.h"

#include "platform/kqDMGuiPlugin.h"
#include "platform/kqDMIApplication.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTimer>

namespace zel {

namespace {

const int ClickGuard = 500; // ms

} // namespace

ClickOutside::ClickOutside(kqDMIApplication* application, QObject* parent)
    : QObject(parent)
    , m_application(application)
{
    m_timer.start();
}

bool ClickOutside::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        m_timer.restart();
    // A press in a modal dialog answers it and is not a click outside. Qt delivers a press to the native
    // window first, and then to the widget.
    if (event->type() != QEvent::MouseButtonPress || m_pressHandled || QApplication::activeModalWidget() ||
        isNativeWindow(watched) || m_timer.elapsed() < ClickGuard)
        return false;
    m_timer.restart();
    if (!isOutside(watched, static_cast<QMouseEvent*>(event)->globalPos()))
        return false;
    const QPointer<ClickOutside> self(this);
    Q_EMIT clicked();
    if (!self)
        return false;
    // Qt delivers a press that no widget accepts to one parent after the other.
    m_pressHandled = true;
    QTimer::singleShot(0, this, SLOT(onPressDelivered()));
    return false;
}

void ClickOutside::onPressDelivered()
{
    m_pressHandled = false;
}

bool ClickOutside::isOutside(QObject* watched, const QPoint& globalPosition) const
{
    const kqDMGuiPlugin* plugin = m_application->getGuiPlugin();
    const QWidget* view = plugin ? plugin->getMainViewWidget() : nullptr;
    if (!view || !QRect(view->mapToGlobal(QPoint(0, 0)), view->size()).contains(globalPosition))
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    return !m_handler || !widget || m_handler->isAncestorOf(widget);
}

} // namespace zel
