#ifndef ZEL_VERTICALAREA_H
#define ZEL_VERTICALAREA_H

#include <QEvent>
#include <QScrollArea>

namespace zel {

/// Scrolls its content up and down where there is no room for all of it. Shows nothing of its own but the
/// scroll bar, and asks for the height of its content.
class VerticalArea : public QScrollArea
{
public:
    /// Owns the content.
    /// @param minimumHeight  in pixels, for a content that is higher
    VerticalArea(QWidget* content, int minimumHeight, QWidget* parent)
        : QScrollArea(parent)
        , m_minimumHeight(minimumHeight)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidget(content);
        for (QWidget* clear : {content, viewport()})
            clear->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }
    QSize minimumSizeHint() const override { return QSize(0, qMin(m_minimumHeight, sizeHint().height())); }

protected:
    /// Asks for another height when the content does.
    bool viewportEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::viewportEvent(event);
    }

private:
    const int m_minimumHeight;
};

} // namespace zel

#endif
