#include "PointerRest.h"

#include <QCursor>
#include <QLabel>
#include <QTimer>

namespace zel {

namespace {

const int RestTime = 400; // ms

bool isOver(const QWidget& field, const QPoint& globalPosition)
{
    const QWidget* window = field.window();
    const QWidget* widget = window->childAt(window->mapFromGlobal(globalPosition));
    const auto* label = qobject_cast<const QLabel*>(widget);
    return widget == &field || field.isAncestorOf(widget) || (label && label->buddy() == &field);
}

} // namespace

PointerRest::PointerRest(QObject* parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
{
    m_timer->setObjectName("rest");
    m_timer->setSingleShot(true);
    m_timer->setInterval(RestTime);
    connect(m_timer, SIGNAL(timeout()), this, SLOT(onTimeout()));
}

void PointerRest::stop()
{
    m_timer->stop();
}

void PointerRest::onReached(QWidget* field)
{
    m_field = field;
    m_pointer = QCursor::pos();
    m_timer->start();
}

void PointerRest::onTimeout()
{
    const QPoint pointer = QCursor::pos();
    if (!m_field || !isOver(*m_field, pointer))
        return;
    if (pointer == m_pointer)
        Q_EMIT rested(m_field);
    else
        onReached(m_field); // Still moving.
}

} // namespace zel
