#include "Accessibility.h"

#include "base/AccessibleCompat.h"

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

void zel::keepSilent(QWidget& widget)
{
    announce(widget, SilentProperty, true);
}
