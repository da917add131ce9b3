#include "platform/kqMovableObject.h"

#include "base/WindowCompat.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

kqMovableObject::kqMovableObject(QObject* parent)
    : QObject(parent)
    , m_dragging(false)
    , m_moving(false)
    , m_expandOnDoubleClick(false)
{
}

kqMovableObject::~kqMovableObject() = default;

void kqMovableObject::setExpandOnDlbClick(bool expand)
{
    m_expandOnDoubleClick = expand;
}

void kqMovableObject::setAnchorObject(QObject* anchor, QWidget* target)
{
    if (m_anchor)
        m_anchor->removeEventFilter(this);
    m_anchor = anchor;
    m_target = target;
    m_dragging = false;
    if (m_anchor)
        m_anchor->installEventFilter(this);
}

bool kqMovableObject::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_anchor && m_target) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return press(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonDblClick:
            return expand(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseMove:
            return drag(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            m_dragging = m_dragging && static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton;
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

bool kqMovableObject::press(const QMouseEvent& event)
{
    m_dragging = isHandle(event);
    if (!m_dragging)
        return false;
    m_moving = false;
    m_pressed = event.globalPos();
    m_grip = m_pressed - m_target->pos();
    return true;
}

bool kqMovableObject::expand(const QMouseEvent& event)
{
    if (!m_expandOnDoubleClick)
        return press(event);
    if (!isHandle(event))
        return false;
    m_dragging = false;
    if (m_target->isMaximized())
        m_target->showNormal();
    else
        m_target->showMaximized();
    return true;
}

bool kqMovableObject::drag(const QMouseEvent& event)
{
    // The window gets no release event when another window grabs the mouse.
    m_dragging = m_dragging && (event.buttons() & Qt::LeftButton);
    if (!m_dragging)
        return false;
    // A small movement during a click is not a drag, and must not keep a double click from coming.
    if (!m_moving && (event.globalPos() - m_pressed).manhattanLength() < QApplication::startDragDistance())
        return true;
    // Window managers of X11 move a window from where it was before it was restored.
    const bool restore = m_target->isMaximized() && !zel::placesItsWindows();
    if (restore)
        restoreUnderGrip();
    m_dragging = m_moving || restore || !zel::startSystemMove(*m_target);
    m_moving = true;
    if (m_dragging)
        m_target->move(event.globalPos() - m_grip);
    return true;
}

bool kqMovableObject::isHandle(const QMouseEvent& event) const
{
    if (event.button() != Qt::LeftButton)
        return false;
    // QCheckBox ignores a press beside its text, which then comes here.
    const QWidget* anchor = qobject_cast<QWidget*>(m_anchor);
    const QWidget* widget = anchor ? anchor->childAt(event.pos()) : nullptr;
    while (widget && widget != anchor && !qobject_cast<const QAbstractButton*>(widget))
        widget = widget->parentWidget();
    return !widget || widget == anchor;
}

void kqMovableObject::restoreUnderGrip()
{
    const QSize maximized = m_target->size();
    const QSize restored = m_target->normalGeometry().size();
    m_target->showNormal();
    // The window manager restores the size only later.
    m_target->resize(restored);
    m_grip.setX(m_grip.x() * restored.width() / qMax(1, maximized.width()));
}
