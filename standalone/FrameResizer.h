#ifndef ZEL_FRAMERESIZER_H
#define ZEL_FRAMERESIZER_H

#include <QObject>
#include <QPoint>
#include <QRect>

class QMouseEvent;
class QWidget;

namespace zel {

/// Lets the user resize a frameless window by dragging its edges and corners, from its minimum size up to the
/// available area of its screen. The cursor shows where. The window owns this object.
class FrameResizer : public QObject
{
public:
    explicit FrameResizer(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Edge { NoEdge = 0, Top = 1, Left = 2, Right = 4, Bottom = 8 }; // The values of Qt::Edge.

    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    /// The edge at a position, or the two edges of a corner.
    int edgesAt(const QPoint& globalPosition) const;
    void setCursor(int edges);
    void resizeBy(const QPoint& distance);

    QWidget* const m_window;
    int m_cursorEdges;  ///< The edges for which the cursor is set.
    int m_draggedEdges; ///< NoEdge while nothing is dragged.
    QPoint m_pressPosition;
    QRect m_pressGeometry;
};

} // namespace zel

#endif
