#include "FrameResizer.h"

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
    , m_shownEdges(NoEdge)
    , m_draggedEdges(NoEdge)
{
    // Only the application sees the mouse wherever it is in the window, whatever is there.
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
            showCursor(NoEdge);
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
    m_pressed = event.globalPos();
    m_former = m_window->geometry();
    return m_draggedEdges != NoEdge;
}

bool FrameResizer::move(const QMouseEvent& event)
{
    // The release goes elsewhere when another window takes the mouse meanwhile.
    if (!(event.buttons() & Qt::LeftButton))
        m_draggedEdges = NoEdge;
    if (m_draggedEdges != NoEdge)
        resizeBy(event.globalPos() - m_pressed);
    else if (event.buttons() == Qt::NoButton)
        showCursor(edgesAt(event.globalPos()));
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
    // Near a corner either of its edges stands for both.
    const bool atCorner = qMin(position.x(), right) < CornerSize && qMin(position.y(), bottom) < CornerSize;
    const int reach = atCorner ? CornerSize : EdgeWidth;
    return (position.x() < reach ? Left
            : right < reach      ? Right
                                 : NoEdge) |
           (position.y() < reach ? Top
            : bottom < reach     ? Bottom
                                 : NoEdge);
}

void FrameResizer::showCursor(int edges)
{
    if (edges == m_shownEdges)
        return;
    m_shownEdges = edges;
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
    const QSize least = m_window->minimumSize();
    const QSize most = QApplication::desktop()->availableGeometry(m_window).size().expandedTo(least);
    const auto along = [](int former, int change, int smallest, int largest) {
        return qBound(smallest, former + change, largest);
    };
    const int width = along(m_former.width(),
                            m_draggedEdges & Left    ? -distance.x()
                            : m_draggedEdges & Right ? distance.x()
                                                     : 0,
                            least.width(), most.width());
    const int height = along(m_former.height(),
                             m_draggedEdges & Top      ? -distance.y()
                             : m_draggedEdges & Bottom ? distance.y()
                                                       : 0,
                             least.height(), most.height());
    QRect place(m_former.topLeft(), QSize(width, height));
    // The edge on the other side stands still.
    if (m_draggedEdges & Left)
        place.moveRight(m_former.right());
    if (m_draggedEdges & Top)
        place.moveBottom(m_former.bottom());
    m_window->setGeometry(place);
}

} // namespace zel
