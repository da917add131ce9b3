#ifndef ZEL_ZELSETTINGSFIELD_H
#define ZEL_ZELSETTINGSFIELD_H

#include "ZelPageHelp.h"
#include "zelDoubleSpinBox.h"
#include "zelSpinBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace zel {

/// Converts one kind of value between Settings.ini, the registered default text and the model of a page.
template <class T>
struct ZelFieldConversion
{
    /// Reads a stored value; an invalid variant for a missing key.
    std::function<T(const QVariant& stored)> fromStored;
    /// Reads a registered default; a null text for an unregistered key.
    std::function<T(const QString& defaultText)> fromDefault;
    /// Makes the variant to write.
    std::function<QVariant(const T& value)> toStored;
};

/// Stores a text, an int, a quint64, a double or a bool as it is. A default that is no number is 0; every
/// default except "true" is false.
template <class T>
ZelFieldConversion<T> plainConversion()
{
    const auto fromDefault = [](const QString& text) {
        if constexpr (std::is_same<T, bool>::value)
            return text == QLatin1String("true");
        else if constexpr (std::is_same<T, int>::value)
            return text.toInt();
        else if constexpr (std::is_same<T, quint64>::value)
            return text.toULongLong();
        else if constexpr (std::is_same<T, double>::value)
            return text.toDouble();
        else
            return text;
    };
    return {[](const QVariant& stored) { return stored.value<T>(); }, fromDefault,
            [](const T& value) { return QVariant::fromValue(value); }};
}

/// The widgets that show a value of the type T. The usual kinds are known; others set the members. The
/// widgets must outlive it.
template <class T>
struct ZelFieldWidgets
{
    ZelFieldWidgets() = default;

    /// A check box: on or off.
    ZelFieldWidgets(QCheckBox* box)
        : widgets{box}
        , read([box] { return box->isChecked(); })
        , show([box](bool on) { box->setChecked(on); })
        , text(&ZelPageHelp::flagText)
        , range(ZelPageHelp::flagRange())
    {
    }

    /// Two radio buttons, of which one is checked: the first for false. A further widget, if any, is enabled
    /// for true.
    ZelFieldWidgets(QRadioButton* off, QRadioButton* on, QWidget* enabledByOn = nullptr)
        : widgets{off, on}
        , read([off] { return !off->isChecked(); })
        , show([=](bool value) {
            on->setChecked(value);
            off->setChecked(!value);
            if (enabledByOn)
                enabledByOn->setEnabled(value);
        })
        , text([off, on](bool value) { return (value ? on : off)->text(); })
        , range(ZelPageHelp::choiceText(widgets))
    {
    }

    /// The index of an item.
    ZelFieldWidgets(QComboBox* box)
        : widgets{box}
        , read([box] { return box->currentIndex(); })
        , show([box](int index) { box->setCurrentIndex(index); })
        , text([box](int index) { return box->itemText(index); })
        , range(ZelPageHelp::rangeText(box->itemText(0), box->itemText(box->count() - 1)))
    {
    }

    /// A slider, with the text of each of its values.
    ZelFieldWidgets(QSlider* slider, const std::function<QString(int value)>& textOf)
        : widgets{slider}
        , read([slider] { return slider->value(); })
        , show([slider](int value) { slider->setValue(value); })
        , text(textOf)
        , range(ZelPageHelp::rangeText(textOf(slider->minimum()), textOf(slider->maximum())))
    {
    }

    /// An integer; without the last bits, which the box does not show, when it shows a larger unit.
    ZelFieldWidgets(zelSpinBox* box, int hiddenBits = 0)
        : widgets{box}
        , read([=] { return static_cast<T>(box->value()) << hiddenBits; })
        // std::min before the conversion, because a number that exceeds an int would wrap.
        , show([=](T number) {
            box->setValue(
                static_cast<int>(std::min<T>(number >> hiddenBits, std::numeric_limits<int>::max())));
        })
        , text([=](T number) { return box->shownText(static_cast<double>(number >> hiddenBits)); })
        , range(ZelPageHelp::rangeText(box))
    {
    }

    /// A button that chooses a folder, which is its tool tip.
    ZelFieldWidgets(QPushButton* folder)
        : widgets{folder}
        , read([folder] { return folder->toolTip(); })
        , show([folder](const QString& path) { folder->setToolTip(path); })
        , text([](const QString& path) { return path; })
        , tipIsValue(true)
    {
    }

    /// A floating-point number.
    ZelFieldWidgets(zelDoubleSpinBox* box)
        : widgets{box}
        , read([box] { return box->value(); })
        , show([box](double number) { box->setValue(number); })
        , text([box](double number) { return box->shownText(number); })
        , range(ZelPageHelp::rangeText(box))
    {
    }

    QList<QWidget*> widgets;                     ///< The widgets; the first one names the setting.
    std::function<T()> read;                     ///< The value that they show.
    std::function<void(const T& value)> show;    ///< Shows a value, as near as they can.
    std::function<QString(const T& value)> text; ///< The text that they show for a value.
    QString range;                               ///< Empty without one.
    bool tipIsValue = false;                     ///< The tool tips are the value, so help must not use them.
};

/// As an argument: it takes a widget too, because the compiler does not deduce T from it.
template <class T>
using ZelFieldWidgetsOf = typename std::common_type<ZelFieldWidgets<T>>::type;

/// A number of bytes, in a box that shows mebibytes.
inline ZelFieldWidgets<quint64> inMebibytes(zelSpinBox* box)
{
    return {box, 20};
}

/// Lets only the checked radio button of a choice take the focus, as QAbstractButton does after a click, but
/// not when the choice is filled.
inline void letCheckedTakeFocus(const QList<QWidget*>& choice)
{
    QWidget* checked = nullptr;
    bool hasFocus = false;
    for (QWidget* widget : choice) {
        const auto* button = qobject_cast<QRadioButton*>(widget);
        if (!button)
            continue;
        widget->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        checked = button->isChecked() ? widget : checked;
        hasFocus = hasFocus || button->hasFocus();
    }
    if (hasFocus && checked)
        checked->setFocus();
}

/// One value of a page: the functions that move it between Settings.ini, the model and the widgets.
template <class Model>
struct ZelSettingsField
{
    /// @param place  returns what the widgets show of the member: a reference into a model, which can be
    /// assigned unless the model is const
    template <class T, class Part, class Place>
    ZelSettingsField(const char* settingsKey, T Model::*member, const ZelFieldWidgets<Part>& in,
                     const ZelFieldConversion<T>& conversion, const Place& place)
        : key(QLatin1String(settingsKey))
        , widgets(in.widgets)
        , readStored([=](Model& to, const QVariant& value) { to.*member = conversion.fromStored(value); })
        , readDefault([=](Model& to, const QString& value) { to.*member = conversion.fromDefault(value); })
        , stored([=](const Model& model) { return conversion.toStored(model.*member); })
        , read([=](Model& to) { place(to) = in.read(); })
        , show([=](const Model& model) { in.show(place(model)); })
        , text([=](const Model& model) { return in.text(place(model)); })
        , isSame([=](const Model& left, const Model& right) { return place(left) == place(right); })
        , copy([=](Model& to, const Model& from) { place(to) = place(from); })
    {
    }

    /// False when the other values of the model leave this one without effect.
    bool counts(const Model& model) const
    {
        return std::all_of(conditions.begin(), conditions.end(),
                           [&](const auto& condition) { return model.*condition.first == condition.second; });
    }

    QString key;             ///< As in Settings.ini.
    QList<QWidget*> widgets; ///< That show it.
    /// Sets the member of a model from a stored value.
    std::function<void(Model& to, const QVariant& stored)> readStored;
    /// Sets the member of a model from a default.
    std::function<void(Model& to, const QString& defaultText)> readDefault;
    std::function<QVariant(const Model&)> stored; ///< The variant to write.
    std::function<void(Model& to)> read;          ///< Reads the widgets.
    std::function<void(const Model&)> show;       ///< Fills the widgets.
    std::function<QString(const Model&)> text;    ///< As the widgets show it.
    /// True when two models have the same value.
    std::function<bool(const Model& left, const Model& right)> isSame;
    /// Copies the value from one model to another.
    std::function<void(Model& to, const Model& from)> copy;
    std::vector<std::pair<bool Model::*, bool>> conditions; ///< Flags of the model, and what they must be.
};

/// One setting of a page, with all that the page does with it: a row of the page's table.
template <class Model>
struct ZelSettingsRow
{
    /// A further value that belongs to the setting.
    template <class T>
    ZelSettingsRow& with(const char* key, T Model::*member, const ZelFieldWidgetsOf<T>& widgets)
    {
        fields.push_back({key, member, widgets, plainConversion<T>(), std::mem_fn(member)});
        help.fields += widgets.widgets;
        return *this;
    }

    /// The value added last counts only while a flag of the model has this value: two models with different
    /// values are equal otherwise.
    ZelSettingsRow& onlyWhile(bool Model::*flag, bool value = true)
    {
        fields.back().conditions.emplace_back(flag, value);
        return *this;
    }

    /// Names the setting, where no label, group or button on the page does.
    ZelSettingsRow& named(const QString& settingName)
    {
        help.name = settingName;
        return *this;
    }

    /// Replaces the text and the range that follow from the widgets of the first value.
    ZelSettingsRow& shownAs(const std::function<QString(const Model&)>& textOf, const QString& range)
    {
        text = textOf;
        help.range = range;
        return *this;
    }

    /// True when a value that counts in the first model differs.
    bool differs(const Model& current, const Model& other) const
    {
        return std::any_of(fields.begin(), fields.end(), [&](const auto& field) {
            return field.counts(current) && !field.isSame(current, other);
        });
    }

    std::vector<ZelSettingsField<Model>> fields; ///< One for each key.
    ZelSettingHelp help;                         ///< Its texts; the page adds the functions.
    std::function<QString(const Model&)> text;   ///< As the widgets show the setting.
    /// What follows when the setting alone has got its default or its stored value; null for onEdited().
    std::function<void()> finish;
    bool fixed = false; ///< It never changes, so the help offers neither default nor stored value.
};

} // namespace zel

#endif
