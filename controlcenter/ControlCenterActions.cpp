#include "ControlCenterActions.h"

#include "LanguageFollower.h"
#include "TypedField.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace zel {

namespace {

enum CommandNumber { Help, PutBack, Discard, Restore };

/// The first ones in the order of their numbers.
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
    , m_typed(new TypedField(drawer, this))
    , m_apply(add("apply", new ButtonAction(apply)))
{
    column->installEventFilter(this);
    drawer->installEventFilter(this);
    add("reset", new ButtonAction(reset));
    // The focus may stay in a field; Escape must not restore what it showed before the command.
    connect(apply, SIGNAL(clicked()), m_typed, SLOT(remember()));
    connect(reset, SIGNAL(clicked()), m_typed, SLOT(remember()));
    for (const Command& command : Commands) {
        QAction* action = add(command.name, new QAction(nullptr));
        action->setData(command.scrolling);
        connect(action, SIGNAL(triggered()), this, command.receiver);
        m_commands << action;
    }
    for (QAction* action : {m_commands[Discard], m_commands[Restore]}) {
        action->setAutoRepeat(false); // A held Ctrl+Z undoes what is typed, and no more.
        connect(action, SIGNAL(triggered()), m_typed, SLOT(remember()));
    }
    m_commands[PutBack]->setEnabled(false);
    connect(m_typed, SIGNAL(changed(bool)), m_commands[PutBack], SLOT(setEnabled(bool)));
    setTexts();
    new LanguageFollower(column, [this] { setTexts(); });
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
    m_commands[Discard]->setEnabled(discard);
    m_commands[Restore]->setEnabled(restore);
}

void ControlCenterActions::setTexts()
{
    for (int index = 0; index < m_commands.size(); ++index)
        m_commands[index]->setText(translated(Commands[index].text));
}

bool ControlCenterActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (watched == m_typed->field())
        return event->type() == QEvent::ShortcutOverride && leavesToCommand(*key);
    if (event->type() == QEvent::KeyPress)
        return press(*key, watched == m_column);
    // Reads a half-typed number before Qt looks up the shortcut: only an edit enables "Apply". Other keys,
    // such as those that copy and undo, leave what is being typed alone.
    const QKeySequence keys(key->key() | static_cast<int>(key->modifiers()));
    if (m_typed->field() && triggersCommand(keys))
        m_typed->take(appliesEdits(keys));
    return false;
}

bool ControlCenterActions::leavesToCommand(QKeyEvent& event) const
{
    const QKeySequence keys(event.key() | static_cast<int>(event.modifiers()));
    const auto triggers = [&](CommandNumber command) {
        return m_commands[command]->shortcuts().contains(keys);
    };
    const bool leaves = !m_typed->hasHistory() && (triggers(Discard) || triggers(Restore));
    if (leaves)
        event.ignore();
    return leaves;
}

bool ControlCenterActions::appliesEdits(const QKeySequence& keys) const
{
    return m_apply->shortcuts().contains(keys) ||
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

bool ControlCenterActions::press(const QKeyEvent& event, bool inColumn)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers != Qt::NoModifier)
        return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        m_typed->remember(); // QAbstractSpinBox takes the typed value and passes the key on.
    if (event.key() == Qt::Key_Escape && m_typed->isTyped()) {
        m_commands[PutBack]->trigger();
        return true;
    }
    for (int index = 0; index < m_commands.size(); ++index) {
        if (inColumn && Commands[index].columnKey == event.key()) {
            m_commands[index]->trigger();
            return true;
        }
    }
    return false;
}

void ControlCenterActions::putBack()
{
    m_typed->putBack();
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
