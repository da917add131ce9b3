#include "FrameResizer.h"

#include "base/WindowCompat.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QMouseEvent>
#include <QWidget>

namespace zel {

namespace {
const int EdgeWidth = 5;   // pixels
const int CornerSize = 14; // pixels
} // namespace

FrameResizer::FrameResizer(QWidget* window)
    : QObject(window)
    , m_window(window)
    , m_cursorEdges(NoEdge)
    , m_draggedEdges(NoEdge)
{
    // On the application, because the mouse events at the edges go to the child widgets there.
    qApp->installEventFilter(this);
}

bool FrameResizer::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != m_window)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::Leave:
        if (widget == m_window && m_draggedEdges == NoEdge)
            setCursor(NoEdge);
        return false;
    default:
        return false;
    }
}

bool FrameResizer::press(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    m_draggedEdges = edgesAt(event.globalPos());
    m_pressPosition = event.globalPos();
    m_pressGeometry = m_window->geometry();
    if (m_draggedEdges == NoEdge)
        return false;
    if (startSystemResize(*m_window, m_draggedEdges))
        m_draggedEdges = NoEdge;
    return true;
}

bool FrameResizer::move(const QMouseEvent& event)
{
    // The window gets no release event when another window grabs the mouse.
    if (!(event.buttons() & Qt::LeftButton))
        m_draggedEdges = NoEdge;
    if (m_draggedEdges != NoEdge)
        resizeBy(event.globalPos() - m_pressPosition);
    else if (event.buttons() == Qt::NoButton)
        setCursor(edgesAt(event.globalPos()));
    return m_draggedEdges != NoEdge;
}

bool FrameResizer::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || m_draggedEdges == NoEdge)
        return false;
    m_draggedEdges = NoEdge;
    return true;
}

int FrameResizer::edgesAt(const QPoint& globalPosition) const
{
    const bool frameless = m_window->windowFlags() & Qt::FramelessWindowHint;
    const QPoint position = m_window->mapFromGlobal(globalPosition);
    if (!frameless || m_window->isMaximized() || m_window->isFullScreen() ||
        !m_window->rect().contains(position))
        return NoEdge;
    const int right = m_window->width() - 1 - position.x();
    const int bottom = m_window->height() - 1 - position.y();
    if (qMin(qMin(position.x(), position.y()), qMin(right, bottom)) >= EdgeWidth)
        return NoEdge;
    // Near a corner each of its two edges counts as both.
    const bool atCorner = qMin(position.x(), right) < CornerSize && qMin(position.y(), bottom) < CornerSize;
    const int reach = atCorner ? CornerSize : EdgeWidth;
    int edges = NoEdge;
    if (position.x() < reach)
        edges |= Left;
    else if (right < reach)
        edges |= Right;
    if (position.y() < reach)
        edges |= Top;
    else if (bottom < reach)
        edges |= Bottom;
    return edges;
}

void FrameResizer::setCursor(int edges)
{
    if (edges == m_cursorEdges)
        return;
    m_cursorEdges = edges;
    if (edges == NoEdge)
        m_window->unsetCursor();
    else if (edges == Left || edges == Right)
        m_window->setCursor(Qt::SizeHorCursor);
    else if (edges == Top || edges == Bottom)
        m_window->setCursor(Qt::SizeVerCursor);
    else if (edges == (Left | Top) || edges == (Right | Bottom))
        m_window->setCursor(Qt::SizeFDiagCursor);
    else
        m_window->setCursor(Qt::SizeBDiagCursor);
}

void FrameResizer::resizeBy(const QPoint& distance)
{
    QSize size = m_pressGeometry.size();
    if (m_draggedEdges & Left)
        size.rwidth() -= distance.x();
    if (m_draggedEdges & Right)
        size.rwidth() += distance.x();
    if (m_draggedEdges & Top)
        size.rheight() -= distance.y();
    if (m_draggedEdges & Bottom)
        size.rheight() += distance.y();
    const QSize available = QApplication::desktop()->availableGeometry(m_window).size();
    QRect geometry(m_pressGeometry.topLeft(), size.boundedTo(available).expandedTo(m_window->minimumSize()));
    // The opposite edge stays where it is.
    if (m_draggedEdges & Left)
        geometry.moveRight(m_pressGeometry.right());
    if (m_draggedEdges & Top)
        geometry.moveBottom(m_pressGeometry.bottom());
    m_window->setGeometry(geometry);
}

} // namespace zel
