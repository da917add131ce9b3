#include "ZelPageHelp.h"

#include "ZelSettingsPanel.h"
#include "base/AccessibleCompat.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointer>
#include <QTextDocument>
#include <QWhatsThis>

#include <algorithm>

namespace zel {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ZelPageHelp", text);
}

QString withoutColon(const QString& label)
{
    QString text = label.trimmed();
    while (text.endsWith(':') || text.endsWith(QChar(0xFF1A))) // The second is the fullwidth colon.
        text = text.left(text.size() - 1).trimmed();
    return text.simplified();
}

/// On a field: the values of ZelSettingSource, in their order, and WhatIsThis.
const struct
{
    const char* text;
    int key;
} Commands[] = {
    {QT_TRANSLATE_NOOP("ZelPageHelp", "Put back"), Qt::ALT + Qt::Key_Backspace},
    {QT_TRANSLATE_NOOP("ZelPageHelp", "Default"), Qt::ALT + Qt::Key_Delete},
    {QT_TRANSLATE_NOOP("ZelPageHelp", "What is this?"), Qt::SHIFT + Qt::Key_F1},
};
const int WhatIsThis = 2;

/// Makes a number that is being typed the value of its field, so that it counts as an edit.
void takeTypedText(QWidget* field)
{
    if (auto* box = qobject_cast<QAbstractSpinBox*>(field))
        box->interpretText();
}

} // namespace

QString ZelSettingHelp::summary() const
{
    QStringList parts(description);
    if (!range.isEmpty())
        parts << translated(QT_TRANSLATE_NOOP("ZelPageHelp", "Range: %1.")).arg(range);
    if (!text(DefaultValue).isEmpty())
        parts << translated(QT_TRANSLATE_NOOP("ZelPageHelp", "Default: %1.")).arg(text(DefaultValue));
    parts << translated(QT_TRANSLATE_NOOP("ZelPageHelp", "Takes effect: %1.")).arg(effect);
    return parts.join(" ");
}

ZelPageHelp::ZelPageHelp(QWidget* page)
    : QObject(page)
{
}

void ZelPageHelp::add(const ZelSettingHelp& setting)
{
    QWidget* first = setting.fields.first();
    const auto former =
        std::find_if(m_settings.begin(), m_settings.end(),
                     [first](const ZelSettingHelp& each) { return each.fields.first() == first; });
    const bool isNew = former == m_settings.end();
    if (isNew)
        m_settings.push_back(setting);
    else
        *former = setting;
    ZelSettingHelp& added = isNew ? m_settings.back() : *former;
    added.take = [this, fields = setting.fields, take = setting.take](ZelSettingSource source) {
        const QPointer<ZelPageHelp> self(this); // The page may be deleted.
        take(source);
        if (self && fields.contains(QApplication::focusWidget()))
            Q_EMIT self->taken();
    };
    if (added.name.isEmpty())
        added.name = nameOf(*added.fields.first());
    const QString text = added.summary();
    for (QWidget* field : added.fields) {
        field->setAccessibleDescription(text);
        if (added.tipIsValue)
            field->setStatusTip(text);
        else // Rich text, because QToolTip wraps only that.
            field->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    }
    if (!isNew)
        return;
    for (QWidget* field : added.fields)
        watch(field, field);
    for (QLabel* label : static_cast<QWidget*>(parent())->findChildren<QLabel*>())
        if (added.fields.contains(label->buddy()))
            watch(label, label->buddy());
}

const ZelSettingHelp* ZelPageHelp::setting(const QWidget* field) const
{
    const auto found =
        std::find_if(m_settings.begin(), m_settings.end(), [field](const ZelSettingHelp& each) {
            return each.fields.contains(const_cast<QWidget*>(field));
        });
    return found == m_settings.end() ? nullptr : &*found;
}

const ZelSettingHelp* ZelPageHelp::HelpOn(const QWidget* field)
{
    for (const QWidget* widget = field; widget; widget = widget->parentWidget()) {
        if (!qobject_cast<const ZelSettingsPanel*>(widget))
            continue;
        const auto* page = widget->findChild<ZelPageHelp*>();
        return page ? page->setting(field) : nullptr;
    }
    return nullptr;
}

QString ZelPageHelp::effectText(ZelSettingEffect effect)
{
    const char* const texts[] = {QT_TRANSLATE_NOOP("ZelPageHelp", "at once"),
                                 QT_TRANSLATE_NOOP("ZelPageHelp", "with the next import"),
                                 QT_TRANSLATE_NOOP("ZelPageHelp", "after a restart")};
    return translated(texts[effect]);
}

QString ZelPageHelp::rangeText(const QString& minimum, const QString& maximum)
{
    return translated(QT_TRANSLATE_NOOP("ZelPageHelp", "%1 to %2")).arg(minimum, maximum);
}

QString ZelPageHelp::flagText(bool on)
{
    return on ? translated(QT_TRANSLATE_NOOP("ZelPageHelp", "on"))
              : translated(QT_TRANSLATE_NOOP("ZelPageHelp", "off"));
}

QString ZelPageHelp::flagRange()
{
    return translated(QT_TRANSLATE_NOOP("ZelPageHelp", "%1 or %2")).arg(flagText(true), flagText(false));
}

QString ZelPageHelp::choiceText(const QList<QWidget*>& buttons)
{
    QStringList texts;
    for (QWidget* button : buttons)
        if (const auto* choice = qobject_cast<QAbstractButton*>(button))
            texts << choice->text();
    return texts.join(" / ");
}

void ZelPageHelp::run(int command, QWidget* field)
{
    const ZelSettingHelp& help = *setting(field);
    takeTypedText(field);
    if (command != WhatIsThis) {
        const auto source = static_cast<ZelSettingSource>(command);
        if (help.differs(source))
            help.take(source);
    } else if (receivers(SIGNAL(helpRequested(QWidget*))) > 0) {
        Q_EMIT helpRequested(field);
    } else {
        QWhatsThis::showText(field->mapToGlobal(field->rect().bottomLeft()), help.summary(), field);
    }
}

void ZelPageHelp::showMenu(QWidget* field, const QPoint& position)
{
    takeTypedText(field);
    auto* editor = field->findChild<QLineEdit*>();
    const QPointer<QMenu> menu = editor ? editor->createStandardContextMenu() : new QMenu(field);
    if (!menu->isEmpty())
        menu->addSeparator();
    for (int command = 0; command <= WhatIsThis; ++command) {
        // Not a shortcut, which could clash with those of the application: the text after the tabulator.
        const QKeySequence keys(Commands[command].key);
        QAction* action = menu->addAction(translated(Commands[command].text) + '\t' +
                                          keys.toString(QKeySequence::NativeText));
        action->setData(command);
        action->setEnabled(command == WhatIsThis ||
                           setting(field)->differs(static_cast<ZelSettingSource>(command)));
    }
    const QPointer<QWidget> guarded = field;
    const QAction* chosen = menu->exec(position);
    if (chosen && guarded && chosen->data().isValid())
        run(chosen->data().toInt(), field);
    delete menu;
}

bool ZelPageHelp::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    QWidget* field = m_fields.value(watched);
    if (type == QEvent::ContextMenu) {
        showMenu(field, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (type == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        for (int command = 0; command <= WhatIsThis; ++command) {
            if (static_cast<int>(key->key() | (key->modifiers() & ~Qt::KeypadModifier)) ==
                Commands[command].key) {
                run(command, field);
                return true;
            }
        }
    }
    if (type == QEvent::FocusIn)
        describeItemOf(field);
    // A field that scrolls under a resting pointer gets no Enter event, but one for its tool tip.
    if (type == QEvent::Enter || type == QEvent::FocusIn || type == QEvent::ToolTip)
        Q_EMIT reached(field);
    return type == QEvent::ToolTip && m_helpAreaVisible && !setting(field)->tipIsValue;
}

QString ZelPageHelp::nameOf(const QWidget& field) const
{
    if (!field.accessibleName().isEmpty())
        return field.accessibleName();
    for (const QWidget* around = field.parentWidget(); around && around != parent();
         around = around->parentWidget())
        if (const auto* group = qobject_cast<const QGroupBox*>(around))
            return group->title();
    for (const QLabel* label : static_cast<QWidget*>(parent())->findChildren<QLabel*>())
        if (label->buddy() == &field)
            return withoutColon(label->text());
    const auto* button = qobject_cast<const QAbstractButton*>(&field);
    return button ? button->text().trimmed() : QString();
}

void ZelPageHelp::watch(QWidget* widget, QWidget* field)
{
    m_fields.insert(widget, field);
    widget->installEventFilter(this);
    // The user property of a class, such as QSpinBox::value, is what the user edits.
    QMetaProperty edits = widget->metaObject()->userProperty();
    if (!edits.hasNotifySignal()) // Qt 4.8 does not tell of the text of a list.
        edits = widget->metaObject()->property(widget->metaObject()->indexOfProperty("currentIndex"));
    if (widget == field && edits.hasNotifySignal())
        connect(widget, edits.notifySignal(), this,
                metaObject()->method(metaObject()->indexOfSignal("edited()")));
    if (qobject_cast<QComboBox*>(widget))
        connect(widget, SIGNAL(currentIndexChanged(int)), this, SLOT(describeItem()));
}

void ZelPageHelp::describeItem()
{
    auto* box = static_cast<QComboBox*>(sender());
    if (box->hasFocus())
        tellAccessibleItem(*box);
    describeItemOf(box);
}

void ZelPageHelp::describeItemOf(QWidget* field)
{
    const auto* box = qobject_cast<const QComboBox*>(field);
    if (box && accessibleValuesAreNumbers())
        field->setAccessibleDescription(box->currentText() + ". " + setting(field)->summary());
}

} // namespace zel
