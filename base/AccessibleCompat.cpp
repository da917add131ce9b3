#include "AccessibleCompat.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QSlider>

namespace zel {

namespace {

bool (*Concerns)(const QWidget&) = nullptr;
AccessibleTraits (*TraitsOf)(const QWidget&) = nullptr;

void press(QWidget& button)
{
    button.setFocus();
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &space);
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

class Interface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit Interface(QWidget* widget)
        : QAccessibleWidget(widget, TraitsOf(*widget).role)
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
        const QString value = TraitsOf(*widget()).value;
        if (kind == QAccessible::Value)
            return value;
        const QString own = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Description && m_slider && accessibleValuesAreNumbers())
            return value + ". " + own;
        return own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const AccessibleTraits traits = TraitsOf(*widget());
        state.checkable = traits.chosen.isValid();
        state.checked = traits.chosen.toBool();
        state.invisible = state.invisible || traits.isSilent;
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
        press(*widget());
    }

    QVariant currentValue() const override { return m_slider->value(); }
    void setCurrentValue(const QVariant& value) override { m_slider->setValue(value.toInt()); }
    QVariant maximumValue() const override { return m_slider->maximum(); }
    QVariant minimumValue() const override { return m_slider->minimum(); }
    QVariant minimumStepSize() const override { return m_slider->singleStep(); }

private:
    QSlider* const m_slider;
};

const QAccessible::Event ValueTextChanged = QAccessible::DescriptionChanged;

void notify(QWidget& widget, QAccessible::Event type)
{
    QAccessibleEvent event(&widget, type);
    QAccessible::updateAccessibility(&event);
}

#else

class Interface : public QAccessibleWidget
{
public:
    explicit Interface(QWidget* widget)
        : QAccessibleWidget(widget, TraitsOf(*widget).role)
    {
    }

    QString text(Text kind, int child) const
    {
        return kind == Value ? TraitsOf(*widget()).value : QAccessibleWidget::text(kind, child);
    }

    State state(int child) const
    {
        State state = QAccessibleWidget::state(child);
        const AccessibleTraits traits = TraitsOf(*widget());
        if (traits.chosen.toBool())
            state |= Checked;
        if (traits.isSilent)
            state |= Invisible;
        return state;
    }

    bool doAction(int action, int child, const QVariantList& parameters)
    {
        if ((action != Press && action != DefaultAction) || TraitsOf(*widget()).chosen.isNull())
            return QAccessibleWidget::doAction(action, child, parameters);
        press(*widget());
        return true;
    }
};

const QAccessible::Event ValueTextChanged = QAccessible::ValueChanged;

void notify(QWidget& widget, QAccessible::Event type)
{
    QAccessible::updateAccessibility(&widget, 0, type);
}

#endif

QAccessibleInterface* createInterface(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    return widget && Concerns(*widget) ? new Interface(widget) : nullptr;
}

} // namespace

AccessibleFactory::AccessibleFactory(bool (*concerns)(const QWidget&),
                                     AccessibleTraits (*traits)(const QWidget&))
{
    Concerns = concerns;
    TraitsOf = traits;
    QAccessible::installFactory(&createInterface);
}

AccessibleFactory::~AccessibleFactory()
{
    QAccessible::removeFactory(&createInterface);
}

bool accessibleValuesAreNumbers()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0) && !defined(Q_OS_WIN)
    return true; // AT-SPI.
#else
    return false;
#endif
}

void tellAccessibleValue(QWidget& widget)
{
    notify(widget, ValueTextChanged);
}

void tellAccessibleAlert(QWidget& widget)
{
    notify(widget, QAccessible::Alert);
}

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

void forgetAccessible(QWidget& widget)
{
    QAccessibleInterface* cached = QAccessible::queryAccessibleInterface(&widget);
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(cached));
}

void tellAccessibleState(QWidget& widget)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&widget, changed);
    QAccessible::updateAccessibility(&event);
}

void tellAccessibleItem(QComboBox& box)
{
    // Over AT-SPI, a reader is silent about the value of a combo box. It reads an item that gets the focus.
    if (!accessibleValuesAreNumbers() || !QAccessible::isActive())
        return;
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(box.view());
    QAccessibleInterface* item = list ? list->child(box.currentIndex()) : nullptr;
    if (!item)
        return;
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

#else

void forgetAccessible(QWidget&)
{
}

void tellAccessibleState(QWidget& widget)
{
    notify(widget, QAccessible::StateChanged);
}

void tellAccessibleItem(QComboBox& box)
{
    notify(box, QAccessible::ValueChanged);
}

#endif

} // namespace zel
