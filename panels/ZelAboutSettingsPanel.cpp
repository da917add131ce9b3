#include "ZelAboutSettingsPanel.h"

#include "ui_ZelAboutSettingsPanel.h"

#include "Accessibility.h"
#include "LabelImage.h"
#include "SettingsKeys.h"
#include "base/QtCompat.h"
#include "base/VersionNumbers.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMPlugin.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QHeaderView>
#include <QSettings>
#include <QStringList>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QUrl>

#include <vector>

namespace zel {

namespace {

const struct
{
    const char* name;
    const char* purpose;
    const char* address;
} Components[] = {
    {"Qt", QT_TRANSLATE_NOOP("ZelAboutSettingsPanel", "application toolkit"), "https://www.qt.io"},
    {"Qt Solutions, QtSingleApplication",
     QT_TRANSLATE_NOOP("ZelAboutSettingsPanel", "single running instance"),
     "https://github.com/qtproject/qt-solutions"},
    {"Open Sans", QT_TRANSLATE_NOOP("ZelAboutSettingsPanel", "fonts"),
     "https://fonts.google.com/specimen/Open+Sans"},
};

const int LogoSize = 96;         // pixels
const int PluginNameWidth = 260; // pixels; the versions get the rest of the table

QString componentsText()
{
    QString text;
    for (const auto& component : Components)
        text += QString("<p style=\"margin:3px 0px;\"><a style=\"color:white;\" href=\"%1\">%2</a>, %3</p>")
                    .arg(component.address, component.name,
                         QCoreApplication::translate("ZelAboutSettingsPanel", component.purpose));
    return text;
}

QTableWidgetItem* newItem(const QString& text)
{
    auto* item = new QTableWidgetItem(text);
    item->setToolTip(text);
    return item;
}

// The table does not take the focus, so it must not need to scroll; the drawer scrolls instead.
void showAllRows(QTableWidget& table)
{
    table.setColumnWidth(0, PluginNameWidth);
    table.resizeRowsToContents();
    table.setFixedHeight(table.horizontalHeader()->sizeHint().height() + table.verticalHeader()->length() +
                         2 * table.frameWidth());
}

} // namespace

ZelAboutSettingsPanel::ZelAboutSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                             QWidget* parent, Qt::WindowFlags flags)
    : ZelSettingsPanel(application, settings, parent, flags)
    , m_ui(new Ui::ZelAboutSettingsPanel)
    , m_initialized(false)
{
    m_ui->setupUi(this);
    showImage(*m_ui->applicationIcon, ":/controlCenter/controlCenter/logo-torvane.png", LogoSize);
    setNamedStyleSheet("ZelAboutSettingsPanel");
    m_ui->platform->setText("X64");
    m_ui->pluginsFrame->hide();
    announceLinks(*m_ui->libUseLabel_2);
    connect(m_ui->libUseLabel_2, SIGNAL(linkActivated(const QString&)), this,
            SLOT(onLinkActivated(const QString&)));
    setPanelCategory(ApplicationCategory);
    followLanguage(*m_ui, [this] {
        setTexts();
        fitHeights();
    });
}

ZelAboutSettingsPanel::~ZelAboutSettingsPanel() = default;

void ZelAboutSettingsPanel::setTexts()
{
    setPanelName(QCoreApplication::translate("ZelAboutSettingsPanel", "About"));
    m_ui->noticeLabel->setText(m_ui->noticeLabel->text().arg(ZEL_YEAR, 0, 10, QChar(' ')));
    m_ui->libUseLabel_2->setText(componentsText());
    m_ui->libUseLabel_2->setAccessibleName(QTextDocumentFragment::fromHtml(componentsText()).toPlainText());
}

void ZelAboutSettingsPanel::initializeWidget()
{
    if (m_initialized)
        return;
    m_ui->applicationVersion->setText(kqDMIApplication::GetKernelVersion());
    m_ui->settingsFileEdit->setText(QDir::toNativeSeparators(settings().fileName()));
    m_ui->logFileEdit->setText(QDir::toNativeSeparators(settings().value(keys::LogFile).toString()));
    fillPlugins();
    m_initialized = true;
}

void ZelAboutSettingsPanel::resizeEvent(QResizeEvent* event)
{
    fitHeights();
    QWidget::resizeEvent(event);
}

void ZelAboutSettingsPanel::fitHeights()
{
    if (!testAttribute(Qt::WA_WState_Polished))
        return; // The page gets its size, and a resize event, before it is first seen.
    // The texts wrap, so their height depends on the width.
    showAllRows(*m_ui->tableWidget);
    m_ui->scrollArea->setFixedHeight(
        m_ui->scrollAreaWidgetContents->heightForWidth(m_ui->scrollArea->viewport()->width()));
}

void ZelAboutSettingsPanel::onLinkActivated(const QString& link)
{
    kqDMIApplication::OpenUrl(QUrl(link));
}

void ZelAboutSettingsPanel::on_copyButton_clicked()
{
    // In English, for those who read the report.
    QStringList lines;
    lines << QString("%1 %2 (%3)")
                 .arg(m_ui->applicationLabel->text(), m_ui->applicationVersion->text(),
                      m_ui->platform->text())
          << QString("Qt %1, %2").arg(qVersion(), systemName())
          << "Settings: " + m_ui->settingsFileEdit->text() << "Log: " + m_ui->logFileEdit->text();
    const QTableWidget& plugins = *m_ui->tableWidget;
    for (int row = 0; row < plugins.rowCount(); ++row)
        lines << "Plug-in: " + plugins.item(row, 0)->text() + ' ' + plugins.item(row, 1)->text();
    QApplication::clipboard()->setText(lines.join("\n"));
}

void ZelAboutSettingsPanel::fillPlugins()
{
    std::vector<kqDMPlugin*> plugins;
    if (application()) {
        plugins = application()->getPluginsList();
        m_ui->tableWidget->setRowCount(static_cast<int>(plugins.size()));
    }
    int row = 0;
    for (const kqDMPlugin* plugin : plugins) {
        m_ui->tableWidget->setItem(row, 0, newItem(plugin->getName()));
        m_ui->tableWidget->setItem(row, 1, newItem("v. " + plugin->getVersion()));
        ++row;
    }
    m_ui->pluginsFrame->setVisible(!plugins.empty());
    fitHeights();
}

} // namespace zel
