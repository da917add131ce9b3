#ifndef ZEL_FRAMERESIZER_H
#define ZEL_FRAMERESIZER_H

#include <QObject>
#include <QPoint>
#include <QRect>

class QMouseEvent;
class QWidget;

namespace zel {

/// Lets the user resize a frameless window by its edges and corners, down to its minimum size and up to the
/// free area of its screen. The mouse pointer shows where. Belongs to the window.
class FrameResizer : public QObject
{
public:
    explicit FrameResizer(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Edge { NoEdge = 0, Left = 1, Top = 2, Right = 4, Bottom = 8 };

    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);
    /// The edge or, as two edges, the corner at a position.
    int edgesAt(const QPoint& globalPosition) const;
    void showCursor(int edges);
    void resizeBy(const QPoint& distance);

    QWidget* const m_window;
    int m_shownEdges;   ///< What the mouse pointer tells.
    int m_draggedEdges; ///< None unless a mouse button is held down on them.
    QPoint m_pressed;
    QRect m_former; ///< Where the window was at the press.
};

} // namespace zel

#endif
