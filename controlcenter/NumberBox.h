#ifndef ZEL_NUMBERBOX_H
#define ZEL_NUMBERBOX_H

#include "WheelGuard.h"

#include <QEvent>
#include <QLocale>
#include <QString>
#include <QValidator>

#include <type_traits>
#include <utility>

namespace zel {

/// The common base of the pages' spin boxes: a WheelGuard in which the user can type a number outside the
/// range, which becomes the nearest number of the range when the typing ends.
template <class Box>
class NumberBox : public WheelGuard<Box>
{
public:
    /// The type of the box's value.
    using Number = decltype(std::declval<Box>().value());

    using WheelGuard<Box>::WheelGuard;

    /// The text that the box shows for a number: the nearest of its range, with prefix and suffix.
    QString shownText(double number) const { return this->prefix() + nearestText(number) + this->suffix(); }

    /// True while the text is not that of the value, because the user is typing a number.
    bool isTyping() const
    {
        double number = 0;
        return !parse(this->text(), number) || number != this->value();
    }

protected:
    /// Shows the number as the new locale does.
    void changeEvent(QEvent* event) override
    {
        WheelGuard<Box>::changeEvent(event);
        if (event->type() == QEvent::LocaleChange)
            this->setValue(this->value());
    }

    /// Lets numbers outside the range be typed.
    QValidator::State validate(QString& input, int& position) const override
    {
        const QValidator::State state = Box::validate(input, position);
        double number = 0;
        const bool outside = parse(input, number) && (number < this->minimum() || number > this->maximum());
        return state == QValidator::Invalid && outside ? QValidator::Intermediate : state;
    }

    /// Replaces a number outside the range by the nearest one inside.
    void fixup(QString& input) const override
    {
        double number = 0;
        if (parse(input, number))
            input = nearestText(number);
    }

private:
    QString nearestText(double number) const
    {
        const double nearest = qBound<double>(this->minimum(), number, this->maximum());
        return this->textFromValue(static_cast<Number>(nearest));
    }

    bool parse(QString text, double& number) const
    {
        const QLocale locale = this->locale();
        if (text.startsWith(this->prefix()))
            text.remove(0, this->prefix().size());
        if (text.endsWith(this->suffix()))
            text.chop(this->suffix().size());
        if (std::is_integral<Number>::value && text.contains(locale.decimalPoint()))
            return false;
        bool ok = false;
        number = locale.toDouble(text.remove(locale.groupSeparator()).trimmed(), &ok);
        return ok;
    }
};

} // namespace zel

#endif
