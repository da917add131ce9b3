#include "ZelAccessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QSlider>
#include <QVariant>

namespace {

// Dynamic properties of the widgets that this file serves; all other widgets keep Qt's own interface.
const char* const ValueProperty = "announcedValue";
const char* const ChosenProperty = "announcedAsChosen";
const char* const UnannouncedProperty = "unannounced";
const char* const WindowProperty = "announcedAsWindow";

QAccessible::Role roleOf(const QWidget& widget)
{
    if (widget.property(ValueProperty).isValid())
        return QAccessible::Slider;
    if (widget.property(WindowProperty).isValid())
        return QAccessible::Window;
    return widget.property(ChosenProperty).isValid() ? QAccessible::RadioButton : QAccessible::StaticText;
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

class Interface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit Interface(QWidget* widget)
        : QAccessibleWidget(widget, roleOf(*widget))
        , m_slider(qobject_cast<QSlider*>(widget))
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && m_slider)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString value = widget()->property(ValueProperty).toString();
        if (kind == QAccessible::Value)
            return value;
        const QString own = QAccessibleWidget::text(kind);
        // AT-SPI carries values as numbers only, so the text goes into the description.
        if (kind == QAccessible::Description && m_slider && ValuesAreNumbersOnly)
            return value + ". " + own;
        return own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant chosen = widget()->property(ChosenProperty);
        state.checkable = chosen.isValid();
        state.checked = chosen.toBool();
        state.invisible = state.invisible || widget()->property(UnannouncedProperty).toBool();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::RadioButton)
            names << pressAction();
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        widget()->setFocus();
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &space);
    }

    QVariant currentValue() const override { return m_slider->value(); }
    void setCurrentValue(const QVariant& value) override { m_slider->setValue(value.toInt()); }
    QVariant maximumValue() const override { return m_slider->maximum(); }
    QVariant minimumValue() const override { return m_slider->minimum(); }
    QVariant minimumStepSize() const override { return m_slider->singleStep(); }

private:
#    if defined(Q_OS_WIN)
    static const bool ValuesAreNumbersOnly = false;
#    else
    static const bool ValuesAreNumbersOnly = true;
#    endif

    QSlider* const m_slider;
};

/// Setting up a form already creates interfaces, and Qt caches them.
void dropCachedInterface(QWidget& widget)
{
    QAccessibleInterface* cached = QAccessible::queryAccessibleInterface(&widget);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(cached));
}

const QAccessible::Event ValueTextChanged = QAccessible::DescriptionChanged;

void notify(QWidget& widget, QAccessible::Event type)
{
    QAccessibleEvent event(&widget, type);
    QAccessible::updateAccessibility(&event);
}

void notifyStateChanged(QWidget& widget)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&widget, changed);
    QAccessible::updateAccessibility(&event);
}

#else

class Interface : public QAccessibleWidget
{
public:
    explicit Interface(QWidget* widget)
        : QAccessibleWidget(widget, roleOf(*widget))
    {
    }

    QString text(Text kind, int child) const
    {
        return kind == Value ? widget()->property(ValueProperty).toString()
                             : QAccessibleWidget::text(kind, child);
    }

    State state(int child) const
    {
        State state = QAccessibleWidget::state(child);
        if (widget()->property(ChosenProperty).toBool())
            state |= Checked;
        if (widget()->property(UnannouncedProperty).toBool())
            state |= Invisible;
        return state;
    }
};

void dropCachedInterface(QWidget&)
{
}

const QAccessible::Event ValueTextChanged = QAccessible::ValueChanged;

void notify(QWidget& widget, QAccessible::Event type)
{
    QAccessible::updateAccessibility(&widget, 0, type);
}

void notifyStateChanged(QWidget& widget)
{
    notify(widget, QAccessible::StateChanged);
}

#endif

QAccessibleInterface* createInterface(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    for (const char* property : {ValueProperty, ChosenProperty, UnannouncedProperty, WindowProperty})
        if (widget && widget->property(property).isValid())
            return new Interface(widget);
    return nullptr;
}

/// Removes the factory when the library is unloaded.
struct Factory
{
    Factory() { QAccessible::installFactory(&createInterface); }
    ~Factory() { QAccessible::removeFactory(&createInterface); }
};

void announce(QWidget& widget, const char* property, const QVariant& value)
{
    static const Factory factory;
    if (!widget.property(property).isValid())
        dropCachedInterface(widget);
    widget.setProperty(property, value);
}

} // namespace

void zel::announceValue(QSlider& slider, const QString& text)
{
    announce(slider, ValueProperty, text);
    notify(slider, ValueTextChanged);
}

void zel::announceChoice(QLabel& label, bool chosen)
{
    announce(label, ChosenProperty, chosen);
    notifyStateChanged(label);
}

void zel::announceWindow(QWidget& window)
{
    announce(window, WindowProperty, true);
}

void zel::leaveUnannounced(QWidget& widget)
{
    announce(widget, UnannouncedProperty, true);
}

void zel::alertAbout(QWidget& widget)
{
    notify(widget, QAccessible::Alert);
}
