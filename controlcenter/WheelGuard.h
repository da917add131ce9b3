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
    explicit WheelGuard(QWidget* parent)
        : Field(parent)
    {
        this->setFocusPolicy(Qt::StrongFocus);
        this->installEventFilter(this);
    }

    ~WheelGuard() override { this->removeEventFilter(this); }

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
    void focusInEvent(QFocusEvent* event) override
    {
        this->setFocusPolicy(Qt::WheelFocus);
        Field::focusInEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        this->setFocusPolicy(Qt::StrongFocus);
        Field::focusOutEvent(event);
    }

    void showEvent(QShowEvent* event) override
    {
        // A form may have set a policy by which the wheel itself would give the focus.
        if (!this->hasFocus())
            this->setFocusPolicy(Qt::StrongFocus);
        Field::showEvent(event);
    }
};

} // namespace zel

#endif
