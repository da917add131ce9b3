#include "Accessibility.h"

#include "base/AccessibleCompat.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QSlider>

namespace {

// Dynamic properties of the widgets that this file serves; all other widgets keep Qt's own interface.
const char* const ValueProperty = "announcedValue";
const char* const ChosenProperty = "announcedAsChosen";
const char* const RoleProperty = "announcedRole";
const char* const SilentProperty = "silent";

bool concerns(const QWidget& widget)
{
    for (const char* property : {ValueProperty, ChosenProperty, RoleProperty, SilentProperty})
        if (widget.property(property).isValid())
            return true;
    return false;
}

zel::AccessibleTraits traitsOf(const QWidget& widget)
{
    const QVariant value = widget.property(ValueProperty), chosen = widget.property(ChosenProperty),
                   role = widget.property(RoleProperty);
    zel::AccessibleTraits traits{QAccessible::StaticText, value.toString(), chosen,
                                 widget.property(SilentProperty).toBool()};
    if (role.isValid())
        traits.role = static_cast<QAccessible::Role>(role.toInt());
    else if (value.isValid())
        traits.role = QAccessible::Slider;
    else if (chosen.isValid())
        traits.role = QAccessible::RadioButton;
    return traits;
}

void announce(QWidget& widget, const char* property, const QVariant& value)
{
    // Static, so that it goes when the library is unloaded.
    static const zel::AccessibleFactory factory(&concerns, &traitsOf);
    if (!widget.property(property).isValid())
        zel::forgetAccessible(widget);
    widget.setProperty(property, value);
}

/// Shows the focused link of a label as a notice, which has no text to see. The label owns it.
class LinkNotice : public QLabel
{
public:
    explicit LinkNotice(QLabel* label)
        : QLabel(label)
        , m_label(label)
    {
        setFixedSize(1, 1);
        hide();
        label->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        // Later, when the key has moved the focus.
        const QEvent::Type type = event->type();
        if (type == QEvent::KeyPress || type == QEvent::FocusIn || type == QEvent::FocusOut)
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        return false;
    }

protected:
    void customEvent(QEvent*) override
    {
        const QString link = m_label->hasFocus() ? m_label->selectedText() : QString();
        if (link == accessibleName())
            return;
        setAccessibleName(link);
        link.isEmpty() ? hide() : zel::showNotice(*this);
    }

private:
    QLabel* const m_label;
};

} // namespace

void zel::announceValue(QSlider& slider, const QString& text)
{
    announce(slider, ValueProperty, text);
    tellAccessibleValue(slider);
}

void zel::announceChoice(QLabel& label, bool chosen)
{
    announce(label, ChosenProperty, chosen);
    tellAccessibleState(label);
}

void zel::announceWindow(QWidget& window)
{
    announce(window, RoleProperty, static_cast<int>(QAccessible::Window));
}

void zel::showNotice(QLabel& label)
{
    // A notice is read when it appears, so one that is there already has to appear again.
    label.hide();
    announce(label, RoleProperty, static_cast<int>(NoticeRole));
    label.show();
    tellAccessibleAlert(label);
}

void zel::announceLinks(QLabel& label)
{
    new LinkNotice(&label);
}

void zel::keepSilent(QWidget& widget)
{
    announce(widget, SilentProperty, true);
}
