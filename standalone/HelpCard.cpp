#include "HelpCard.h"

#include "ui_HelpCard.h"

#include "EnableButton.h"
#include "LanguageFollower.h"
#include "ZelPageHelp.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVariant>

namespace zel {

namespace {

/// Lets paths wrap at every character, because one may be wider than the card. A character beyond 16 bits is
/// two QChars, which stay together.
QString breakable(const QString& text)
{
    QStringList words = text.split(' ');
    for (QString& word : words) {
        if (word.size() < 2 || !word.contains('/'))
            continue;
        for (int end = word.size() - 1; end > 0; --end)
            if (!word.at(end).isLowSurrogate())
                word.insert(end, QChar(0x200B));
    }
    return words.join(" ");
}

const int Margin = 12;   // pixels
const int LineSlack = 8; // pixels; Japanese and Chinese lines are higher than those of a path
const char* const CompactProperty = "compact"; // A selector of the style sheet.

QString stateText(const ZelSettingHelp& help)
{
    QStringList parts;
    if (help.differs(StoredValue))
        parts << QCoreApplication::translate("HelpCard", "Changed, and not applied yet.");
    if (help.differs(DefaultValue))
        parts << QCoreApplication::translate("HelpCard", "Not the default.");
    return parts.join(" ");
}

/// False for what no user can ever edit.
bool isEditable(const ZelSettingHelp& help)
{
    return !help.text(DefaultValue).isEmpty() || help.fields.first()->isEnabled();
}

} // namespace

HelpCard::HelpCard(QWidget* parent)
    : QFrame(parent)
    , m_ui(new Ui::HelpCard)
{
    m_ui->setupUi(this);
    setObjectName("helpFrame");
    refresh();
    new LanguageFollower(this, [this] { m_ui->retranslateUi(this); }); // The help area refreshes it.
}

HelpCard::~HelpCard() = default;

void HelpCard::setField(QWidget* field)
{
    m_field = field;
    refresh();
}

void HelpCard::setCompact(bool compact)
{
    if (isCompact() == compact)
        return;
    setProperty(CompactProperty, compact);
    setStyleSheet(styleSheet());
    showName();
}

bool HelpCard::isCompact() const
{
    return property(CompactProperty).toBool();
}

int HelpCard::heightOf(const ZelSettingHelp& help, int width)
{
    showHelp(help);
    m_ui->factsFrame->show();
    m_ui->actionsFrame->show();
    return neededHeight(width);
}

int HelpCard::neededHeight(int width) const
{
    for (QWidget* child : findChildren<QWidget*>())
        child->ensurePolished();
    return layout()->totalHeightForWidth(width);
}

int HelpCard::textHeight(const QString& text, int width) const
{
    m_ui->descriptionLabel->ensurePolished();
    const QRect room(0, 0, width, 0);
    return m_ui->descriptionLabel->fontMetrics()
        .boundingRect(room, Qt::TextWordWrap, breakable(text))
        .height();
}

int HelpCard::heightOfLongest(const QList<QPointer<ZelPageHelp>>& pages, int width) const
{
    // One card with the longest of all texts, because a screen reader is told of each text that is set.
    HelpCard card(parentWidget());
    card.setCompact(isCompact());
    ZelSettingHelp longest = ZelSettingHelp();
    QString byDefault, stored;
    const auto keepLonger = [&](QString& kept, const QString& text, int room) {
        if (kept.isEmpty() || card.textHeight(text, room) > card.textHeight(kept, room))
            kept = text;
    };
    for (const QPointer<ZelPageHelp>& page : pages) {
        for (QWidget* field : page ? page->parent()->findChildren<QWidget*>() : QList<QWidget*>()) {
            const ZelSettingHelp* help = page->setting(field);
            if (!help)
                continue;
            keepLonger(longest.description, help->description, width - 2 * Margin);
            keepLonger(longest.range, help->range, width / 2);
            keepLonger(longest.effect, help->effect, width / 2);
            keepLonger(byDefault, help->text(DefaultValue), width / 2);
            keepLonger(stored, help->text(StoredValue), width / 2);
        }
    }
    longest.text = [&](ZelSettingSource source) { return source == DefaultValue ? byDefault : stored; };
    longest.differs = [](ZelSettingSource) { return true; };
    return card.heightOf(longest, width) + LineSlack;
}

void HelpCard::refresh()
{
    const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field);
    m_ui->factsFrame->setVisible(help);
    m_ui->actionsFrame->setVisible(help && isEditable(*help));
    if (help) {
        showHelp(*help);
        return;
    }
    m_name = QCoreApplication::translate("HelpCard", "Help");
    showName();
    m_ui->descriptionLabel->setText(
        QCoreApplication::translate("HelpCard", "Point at a setting, or move to it with the Tab key, "
                                                "to read here what it does."));
}

void HelpCard::showHelp(const ZelSettingHelp& help)
{
    m_name = help.name;
    showName();
    m_ui->descriptionLabel->setText(help.description);
    const struct
    {
        QLabel* title;
        QLabel* fact;
        QString text;
    } facts[] = {
        {m_ui->rangeTitle, m_ui->rangeLabel, help.range},
        {m_ui->defaultTitle, m_ui->defaultLabel, help.text(DefaultValue)},
        {m_ui->storedTitle, m_ui->storedLabel, help.text(StoredValue)},
        {m_ui->effectTitle, m_ui->effectLabel, help.effect},
    };
    for (const auto& each : facts) {
        each.fact->setText(breakable(each.text));
        each.fact->setAccessibleName(each.text);
        each.title->setVisible(!each.text.isEmpty());
        each.fact->setVisible(!each.text.isEmpty());
    }
    const QString state = stateText(help);
    m_ui->stateLabel->setText(state);
    m_ui->stateLabel->setVisible(!state.isEmpty());
    enableButton(*m_ui->putBackButton, help.differs(StoredValue));
    enableButton(*m_ui->defaultButton, help.differs(DefaultValue));
}

void HelpCard::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    showName();
}

void HelpCard::on_putBackButton_clicked()
{
    if (const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field))
        help->take(StoredValue);
}

void HelpCard::on_defaultButton_clicked()
{
    if (const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field))
        help->take(DefaultValue);
}

void HelpCard::showName()
{
    // In one line, so that the buttons below stand still.
    QLabel& label = *m_ui->nameLabel;
    label.ensurePolished();
    const QString shown =
        label.fontMetrics().elidedText(m_name, Qt::ElideRight, contentsRect().width() - 2 * Margin);
    label.setText(shown);
    label.setAccessibleName(m_name);
    label.setToolTip(shown == m_name ? QString() : m_name);
}

} // namespace zel
