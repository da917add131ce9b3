#ifndef ZEL_DRAWERSHADOW_H
#define ZEL_DRAWERSHADOW_H

#include <QEvent>
#include <QWidget>

namespace zel {

/// The shadow on the right of the drawer, which it follows. It is painted below the frame that has the
/// drawer, and above what lies beside that frame. The parent of the frame owns it.
class DrawerShadow : public QWidget
{
public:
    DrawerShadow(QWidget* drawer, QWidget* frame)
        : QWidget(frame->parentWidget())
        , m_frame(*frame)
    {
        setObjectName("drawerShadow");
        setAttribute(Qt::WA_StyledBackground);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        frame->raise();
        stackUnder(frame);
        hide();
        drawer->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::Move && type != QEvent::Resize && type != QEvent::Show && type != QEvent::Hide)
            return false;
        const auto& drawer = *static_cast<const QWidget*>(watched);
        setGeometry(m_frame.x() + drawer.geometry().right() + 1, m_frame.y(), Width, m_frame.height());
        setVisible(drawer.isVisible());
        return false;
    }

private:
    static const int Width = 12; // pixels, of its image

    const QWidget& m_frame;
};

} // namespace zel

#endif
