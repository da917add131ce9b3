#include "ZelHelpArea.h"

#include "ui_ZelHelpArea.h"

#include "EnableButton.h"
#include "ZelPageHelp.h"
#include "ZelSettingsPanel.h"

#include <QApplication>
#include <QCoreApplication>
#include <QStringList>
#include <QWhatsThis>

namespace zel {

namespace {

// In pixels.
const int MinimumWidth = 310; // fits the longest words of all languages
const int ScrollBarRoom = 20; // else the help and the scroll bar that it needs could hide each other in turns

/// Lets paths wrap at every character, because one may be wider than the area.
QString breakable(const QString& text)
{
    QStringList words = text.split(' ');
    for (QString& word : words)
        if (word.size() > 1 && word.contains('/'))
            word = word.split(QString()).join(QString(QChar(0x200B)));
    return words.join(" ");
}

QString stateText(const ZelSettingHelp& help)
{
    QStringList parts;
    if (help.differsFromStored())
        parts << QCoreApplication::translate("ZelHelpArea", "Changed, and not applied yet.");
    if (help.differsFromDefault())
        parts << QCoreApplication::translate("ZelHelpArea", "Not the default.");
    return parts.join(" ");
}

} // namespace

ZelHelpArea::ZelHelpArea(QWidget* parent)
    : QWidget(parent)
    , m_ui(new Ui::ZelHelpArea)
{
    m_ui->setupUi(this);
    refresh();
}

ZelHelpArea::~ZelHelpArea() = default;

void ZelHelpArea::watchPages(QWidget* tree)
{
    const QList<ZelPageHelp*> pages = tree->findChildren<ZelPageHelp*>();
    for (ZelPageHelp* page : pages) {
        connect(page, SIGNAL(reached(QWidget*)), this, SLOT(showField(QWidget*)));
        connect(page, SIGNAL(edited()), this, SLOT(refresh()));
        page->setHelpAreaVisible(!m_ui->helpFrame->isHidden());
        m_pages << page;
        // Buttons such as Reset change a page without an edit in a field.
        connect(page->parent(), SIGNAL(stateChanged()), this, SLOT(refresh()));
    }
}

void ZelHelpArea::showHelpOfFocusedField()
{
    QWidget* field = QApplication::focusWidget();
    showField(field);
    if (!field || m_ui->helpFrame->isVisible())
        return;
    const ZelSettingHelp* help = helpOf(field);
    QWhatsThis::showText(field->mapToGlobal(field->rect().bottomLeft()),
                         help ? help->summary() : m_ui->descriptionLabel->text(), field);
}

void ZelHelpArea::refresh()
{
    const ZelSettingHelp* help = helpOf(m_field);
    m_ui->nameLabel->setText(help ? help->name : QCoreApplication::translate("ZelHelpArea", "Help"));
    m_ui->descriptionLabel->setText(
        help ? help->description
             : QCoreApplication::translate("ZelHelpArea",
                                           "Point at a setting, or move to it with the Tab key, "
                                           "to read here what it does."));
    m_ui->factsFrame->setVisible(help);
    if (!help)
        return;

    const struct
    {
        QLabel* title;
        QLabel* fact;
        QString text;
    } facts[] = {
        {m_ui->rangeTitle, m_ui->rangeLabel, help->range},
        {m_ui->defaultTitle, m_ui->defaultLabel, help->byDefault()},
        {m_ui->storedTitle, m_ui->storedLabel, help->stored()},
        {m_ui->effectTitle, m_ui->effectLabel, help->effect},
    };
    for (const auto& each : facts) {
        each.fact->setText(breakable(each.text));
        each.title->setVisible(!each.text.isEmpty());
        each.fact->setVisible(!each.text.isEmpty());
    }
    m_ui->stateLabel->setText(stateText(*help));
    enableButton(*m_ui->putBackButton, help->differsFromStored());
    enableButton(*m_ui->defaultButton, help->differsFromDefault());
}

void ZelHelpArea::resizeEvent(QResizeEvent* event)
{
    const bool fits = width() >= MinimumWidth + (m_ui->helpFrame->isHidden() ? ScrollBarRoom : 0);
    m_ui->helpFrame->setVisible(fits);
    for (const QPointer<ZelPageHelp>& page : m_pages)
        if (page)
            page->setHelpAreaVisible(fits);
    QWidget::resizeEvent(event);
}

void ZelHelpArea::showField(QWidget* field)
{
    m_field = field;
    refresh();
}

void ZelHelpArea::on_putBackButton_clicked()
{
    if (const ZelSettingHelp* help = helpOf(m_field))
        help->putBack();
}

void ZelHelpArea::on_defaultButton_clicked()
{
    if (const ZelSettingHelp* help = helpOf(m_field))
        help->useDefault();
}

const ZelSettingHelp* ZelHelpArea::helpOf(const QWidget* field)
{
    for (const QWidget* widget = field; widget; widget = widget->parentWidget()) {
        if (!qobject_cast<const ZelSettingsPanel*>(widget))
            continue;
        const auto* page = widget->findChild<ZelPageHelp*>();
        return page ? page->setting(field) : nullptr;
    }
    return nullptr;
}

} // namespace zel
