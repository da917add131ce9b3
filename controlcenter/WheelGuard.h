#ifndef ZEL_WHEELGUARD_H
#define ZEL_WHEELGUARD_H

#include <QEvent>
#include <QFocusEvent>
#include <QShowEvent>

namespace zel {

/// Makes a field take the mouse wheel only while it has the focus, so that scrolling a page over it
/// changes nothing. The focus policy tells which of the two states it is in.
template <class Field>
class WheelGuard : public Field
{
public:
    /// Guarded at first. The parent, if any, owns the field.
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
        // Mouse moves too: an unfocused field does not track the pointer.
        if (event->type() != QEvent::Wheel && event->type() != QEvent::MouseMove)
            return Field::eventFilter(watched, event);
        const bool guarded = this->focusPolicy() != Qt::WheelFocus;
        event->setAccepted(!guarded);
        return guarded;
    }

protected:
    /// Takes the wheel from now on.
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

    /// Undoes a focus policy of the form by which the wheel itself would give the focus.
    void showEvent(QShowEvent* event) override
    {
        if (!this->hasFocus())
            this->setFocusPolicy(Qt::StrongFocus);
        Field::showEvent(event);
    }
};

} // namespace zel

#endif
