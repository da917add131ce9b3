#ifndef ZEL_KQMOVABLEOBJECT_H
#define ZEL_KQMOVABLEOBJECT_H

#include "../base/ZelExport.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QMouseEvent;

/// Lets the user move a frameless window by dragging one of its widgets, the anchor, except by the buttons in
/// it. Dragging a maximised window restores it first.
class KQ_GL_VIEW_EXPORT kqMovableObject : public QObject
{
    Q_OBJECT

public:
    /// The parent owns this object.
    explicit kqMovableObject(QObject* parent);
    ~kqMovableObject() override;

    /// A double click on the anchor maximises the window, another one restores it. Off by default.
    void setExpandOnDlbClick(bool expand);

    /// Dragging the anchor moves the target. Replaces a previous anchor. Owns neither.
    void setAnchorObject(QObject* anchor, QWidget* target);

    /// Watches the anchor; consumes the mouse events of a drag.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(const QMouseEvent& event);
    bool expand(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);
    bool isHandle(const QMouseEvent& event) const;
    void restoreUnderGrip();

    QPointer<QObject> m_anchor;
    QPointer<QWidget> m_target;
    QPoint m_pressed;
    QPoint m_grip;
    bool m_dragging;
    bool m_moving; ///< The drag has begun to move the target.
    bool m_expandOnDoubleClick;
};

#endif
