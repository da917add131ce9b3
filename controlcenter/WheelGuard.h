#ifndef ZEL_WHEELGUARD_H
#define ZEL_WHEELGUARD_H

#include <QEvent>
#include <QFocusEvent>
#include <QShowEvent>

namespace zel {

/// Makes a field use the mouse wheel only while it has the focus, so that scrolling the page does not change
/// it. The focus policy holds the state: Qt::WheelFocus while the field uses the wheel.
template <class Field>
class WheelGuard : public Field
{
public:
    /// The field ignores the wheel at first. The parent, if any, owns it.
    explicit WheelGuard(QWidget* parent)
        : Field(parent)
    {
        this->setFocusPolicy(Qt::StrongFocus);
        this->installEventFilter(this);
    }

    ~WheelGuard() override { this->removeEventFilter(this); }

    /// Passes the wheel on to the page while the field has no focus.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Without the focus the field does not track the mouse either.
        if (event->type() != QEvent::Wheel && event->type() != QEvent::MouseMove)
            return Field::eventFilter(watched, event);
        const bool guarded = this->focusPolicy() != Qt::WheelFocus;
        event->setAccepted(!guarded);
        return guarded;
    }

protected:
    /// Uses the wheel from now on.
    void focusInEvent(QFocusEvent* event) override
    {
        this->setFocusPolicy(Qt::WheelFocus);
        Field::focusInEvent(event);
    }

    /// Leaves the wheel to the page from now on.
    void focusOutEvent(QFocusEvent* event) override
    {
        this->setFocusPolicy(Qt::StrongFocus);
        Field::focusOutEvent(event);
    }

    /// Overrides a focus policy from the form by which the wheel would give the field the focus.
    void showEvent(QShowEvent* event) override
    {
        if (!this->hasFocus())
            this->setFocusPolicy(Qt::StrongFocus);
        Field::showEvent(event);
    }
};

} // namespace zel

#endif
