#include "ControlCenterActions.h"

#include "LanguageFollower.h"
#include "ZelPageHelp.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace zel {

namespace {

const char* const ValueProperty = "value";

const struct Command
{
    const char* name;
    const char* text;
    const char* receiver; ///< A slot or a signal.
    int columnKey;        ///< The key that triggers it while the focus is in the column; 0 for none.
    QAbstractSlider::SliderAction scrolling;
} Commands[] = {
    {"help", QT_TRANSLATE_NOOP("ZelControlCenter", "Help on this setting"), SLOT(requestHelp()), 0,
     QAbstractSlider::SliderNoAction},
    {"putBack", QT_TRANSLATE_NOOP("ZelControlCenter", "Put back what was typed"), SLOT(putBack()), 0,
     QAbstractSlider::SliderNoAction},
    {"discard", QT_TRANSLATE_NOOP("ZelControlCenter", "Discard changes"), SIGNAL(discardRequested()), 0,
     QAbstractSlider::SliderNoAction},
    {"restore", QT_TRANSLATE_NOOP("ZelControlCenter", "Restore discarded changes"),
     SIGNAL(restoreRequested()), 0, QAbstractSlider::SliderNoAction},
    {"pageUp", QT_TRANSLATE_NOOP("ZelControlCenter", "Scroll up"), SLOT(scroll()), Qt::Key_PageUp,
     QAbstractSlider::SliderPageStepSub},
    {"pageDown", QT_TRANSLATE_NOOP("ZelControlCenter", "Scroll down"), SLOT(scroll()), Qt::Key_PageDown,
     QAbstractSlider::SliderPageStepAdd},
    {"top", QT_TRANSLATE_NOOP("ZelControlCenter", "Scroll to the top"), SLOT(scroll()), Qt::Key_Home,
     QAbstractSlider::SliderToMinimum},
    {"bottom", QT_TRANSLATE_NOOP("ZelControlCenter", "Scroll to the bottom"), SLOT(scroll()), Qt::Key_End,
     QAbstractSlider::SliderToMaximum},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("ZelControlCenter", text);
}

/// Clicks a button and is enabled whenever the button is.
class ButtonAction : public QAction
{
public:
    explicit ButtonAction(QPushButton* button)
        : QAction(nullptr)
    {
        setTexts(*button);
        setEnabled(button->isEnabled());
        button->installEventFilter(this);
        connect(this, SIGNAL(triggered()), button, SLOT(click()));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A button that is being destroyed sends other events, and is no QPushButton any more.
        if (event->type() == QEvent::EnabledChange)
            setEnabled(static_cast<QPushButton*>(watched)->isEnabled());
        if (event->type() == QEvent::LanguageChange)
            setTexts(*static_cast<QPushButton*>(watched));
        return false;
    }

private:
    void setTexts(const QPushButton& button)
    {
        setText(button.text());
        setToolTip(button.toolTip());
    }
};

} // namespace

ControlCenterActions::ControlCenterActions(QWidget* column, QScrollArea* drawer, QPushButton* apply,
                                           QPushButton* reset)
    : QObject(column)
    , m_column(column)
    , m_drawer(drawer)
{
    column->installEventFilter(this);
    drawer->installEventFilter(this);
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));

    add("apply", new ButtonAction(apply));
    add("reset", new ButtonAction(reset));
    // The focus may stay in a field; Escape must not restore what it showed before the command.
    connect(apply, SIGNAL(clicked()), this, SLOT(rememberField()));
    connect(reset, SIGNAL(clicked()), this, SLOT(rememberField()));
    for (const Command& command : Commands) {
        QAction* action = add(command.name, new QAction(nullptr));
        action->setData(command.scrolling);
        connect(action, SIGNAL(triggered()), this, command.receiver);
    }
    for (const char* name : {"discard", "restore"}) {
        auto* action = findChild<QAction*>(name);
        action->setAutoRepeat(false); // A held Ctrl+Z undoes what is typed, and no more.
        connect(action, SIGNAL(triggered()), this, SLOT(rememberField()));
    }
    setTexts();
    new LanguageFollower(column, [this] { setTexts(); });
    m_putBack = findChild<QAction*>("putBack");
    m_putBack->setEnabled(false);
}

QAction* ControlCenterActions::add(const char* name, QAction* action)
{
    action->setParent(this);
    action->setObjectName(name);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_column->addAction(action);
    m_drawer->addAction(action);
    return action;
}

void ControlCenterActions::enable(bool discard, bool restore)
{
    findChild<QAction*>("discard")->setEnabled(discard);
    findChild<QAction*>("restore")->setEnabled(restore);
}

void ControlCenterActions::setTexts()
{
    for (const Command& command : Commands)
        findChild<QAction*>(command.name)->setText(translated(command.text));
}

bool ControlCenterActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (watched == m_field)
        return event->type() == QEvent::ShortcutOverride && leavesToCommand(*key);
    if (event->type() == QEvent::KeyPress)
        return press(*key, watched == m_column);
    // Reads a half-typed number before Qt looks up the shortcut: only an edit enables "Apply". Other keys,
    // such as those that copy and undo, leave what is being typed alone.
    const QKeySequence keys(key->key() | static_cast<int>(key->modifiers()));
    if (field() && triggersCommand(keys)) {
        field()->interpretText();
        // Some pages wait for the end of an edit, such as the levels, which stay in order.
        if (appliesEdits(keys) && field()->text() != m_text)
            QMetaObject::invokeMethod(m_field, "editingFinished");
    }
    return false;
}

bool ControlCenterActions::leavesToCommand(QKeyEvent& event) const
{
    const QKeySequence keys(event.key() | static_cast<int>(event.modifiers()));
    const auto* editor = m_field->findChild<QLineEdit*>();
    const bool typing = field()->text() != m_text && (editor->isUndoAvailable() || editor->isRedoAvailable());
    const auto triggers = [&](const char* name) {
        return findChild<QAction*>(name)->shortcuts().contains(keys);
    };
    const bool leaves = !typing && (triggers("discard") || triggers("restore"));
    if (leaves)
        event.ignore();
    return leaves;
}

bool ControlCenterActions::appliesEdits(const QKeySequence& keys) const
{
    return findChild<QAction*>("apply")->shortcuts().contains(keys) ||
           m_column->findChild<QPushButton*>("applyButton")->shortcut() == keys;
}

bool ControlCenterActions::triggersCommand(const QKeySequence& keys) const
{
    const QList<QAction*> actions = m_column->actions() + m_column->window()->actions();
    const QList<QPushButton*> buttons = m_column->findChildren<QPushButton*>();
    return std::any_of(actions.begin(), actions.end(),
                       [&](const QAction* action) { return action->shortcuts().contains(keys); }) ||
           std::any_of(buttons.begin(), buttons.end(),
                       [&](const QPushButton* button) { return button->shortcut() == keys; });
}

QAbstractSpinBox* ControlCenterActions::field() const
{
    return qobject_cast<QAbstractSpinBox*>(m_field.data());
}

bool ControlCenterActions::press(const QKeyEvent& event, bool inColumn)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier)
        return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        rememberField(); // QAbstractSpinBox takes the typed value and passes the key on.
    if (event.key() == Qt::Key_Escape && field() && field()->text() != m_text) {
        m_putBack->trigger();
        return true;
    }
    for (const Command& command : Commands) {
        if (inColumn && command.columnKey == event.key()) {
            findChild<QAction*>(command.name)->trigger();
            return true;
        }
    }
    return false;
}

void ControlCenterActions::onFocusChanged(QWidget*, QWidget* current)
{
    if (m_field)
        m_field->removeEventFilter(this);
    m_field =
        m_drawer && m_drawer->isAncestorOf(current) ? qobject_cast<QAbstractSpinBox*>(current) : nullptr;
    m_putBack->setEnabled(m_field);
    if (m_field)
        m_field->installEventFilter(this);
    rememberField();
}

void ControlCenterActions::rememberField()
{
    if (!field())
        return;
    const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field);
    m_value = help && !help->differs(StoredValue) ? QVariant() : m_field->property(ValueProperty);
    m_text = field()->text();
}

void ControlCenterActions::putBack()
{
    if (!field())
        return;
    const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field);
    if (help && !m_value.isValid())
        help->take(StoredValue);
    else
        m_field->setProperty(ValueProperty, m_value);
    if (field()) // The page may be deleted meanwhile.
        field()->selectAll();
}

void ControlCenterActions::requestHelp()
{
    QWidget* focused = QApplication::focusWidget();
    Q_EMIT helpRequested(m_drawer && m_drawer->isAncestorOf(focused) ? focused : nullptr);
}

void ControlCenterActions::scroll()
{
    const auto* action = qobject_cast<QAction*>(sender());
    auto* area = qobject_cast<QScrollArea*>(m_drawer.data());
    if (action && area)
        area->verticalScrollBar()->triggerAction(
            static_cast<QAbstractSlider::SliderAction>(action->data().toInt()));
}

} // namespace zel
