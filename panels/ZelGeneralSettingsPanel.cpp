#include "ZelGeneralSettingsPanel.h"

#include "ui_ZelGeneralSettingsPanel.h"

#include "SettingsKeys.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMManager.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QIcon>
#include <QKeySequence>

namespace zel {

namespace {

const int ButtonTextMargin = 12; // pixels: border and padding, left and right

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ZelGeneralSettingsPanel)
};

} // namespace

ZelGeneralSettingsPanel::ZelGeneralSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                                 QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<GeneralModel>(application, settings, parent, flags)
    , m_ui(new Ui::ZelGeneralSettingsPanel)
    , m_initialCacheDirectory(settings.value(keys::CacheDirectory).toString())
{
    m_ui->setupUi(this);
    setNamedStyleSheet("ZelGeneralSettingsPanel");
    setPanelCategory(ApplicationCategory);
    followLanguage(*m_ui, [this] { describeSettings(); });
}

ZelGeneralSettingsPanel::~ZelGeneralSettingsPanel() = default;

void ZelGeneralSettingsPanel::describeSettings()
{
    setPanelName(Text::tr("Folders"));
    setRows({
        row(keys::CacheDirectory, &GeneralModel::cacheDirectory, m_ui->databaseButton, EffectAfterRestart,
            Text::tr("Where parts of loaded models are kept on the disk. Choose a fast disk with "
                     "enough free space. A click chooses a folder.")),
        row(keys::CacheSize, &GeneralModel::cacheSize, m_ui->databaseSpinBox, EffectAtOnce,
            Text::tr("How large the cache may grow on the disk. With a larger one, models that you "
                     "have opened before load faster.")),
        row(keys::ScreenshotFolder, &GeneralModel::screenshotFolder, m_ui->screenshotFolderButton,
            EffectAtOnce, Text::tr("Where your screenshots are saved. A click chooses a folder.")),
    });
}

void ZelGeneralSettingsPanel::on_databaseButton_clicked()
{
    chooseFolder(m_ui->databaseButton, Text::tr("Please set your database cache folder"));
}

void ZelGeneralSettingsPanel::on_screenshotFolderButton_clicked()
{
    chooseFolder(m_ui->screenshotFolderButton, Text::tr("Please set your screenshot folder"));
}

void ZelGeneralSettingsPanel::showEvent(QShowEvent* event)
{
    elideText();
    QWidget::showEvent(event);
}

void ZelGeneralSettingsPanel::resizeEvent(QResizeEvent* event)
{
    elideText();
    QWidget::resizeEvent(event);
}

void ZelGeneralSettingsPanel::onFilled(const GeneralModel&)
{
    elideText();
}

void ZelGeneralSettingsPanel::saveSettingsInternal()
{
    ZelEditablePanel<GeneralModel>::saveSettingsInternal();
    setScreenshotFolder();
}

void ZelGeneralSettingsPanel::pushToApplication(const GeneralModel& model)
{
    setMaxCacheSize(model);
    setScreenshotFolder(model);
}

bool ZelGeneralSettingsPanel::shouldRestart() const
{
    const QString current = m_ui->databaseButton->toolTip();
    return current != settings().value(keys::CacheDirectory).toString() && current != m_initialCacheDirectory;
}

void ZelGeneralSettingsPanel::elideText()
{
    for (QPushButton* button : {m_ui->databaseButton, m_ui->screenshotFolderButton}) {
        button->setText(button->fontMetrics().elidedText(button->toolTip(), Qt::ElideLeft,
                                                         button->width() - ButtonTextMargin));
        button->setShortcut(QKeySequence()); // An "&" in a path is no shortcut.
        // Without a folder the button shows an icon instead.
        const bool unset = button->toolTip().isEmpty();
        button->setIcon(unset ? QIcon(":/controlCenter/controlCenter/folder.png") : QIcon());
        button->setAccessibleDescription((unset ? Text::tr("No folder is set.") : button->toolTip()) + ' ' +
                                         button->statusTip());
    }
}

void ZelGeneralSettingsPanel::setScreenshotFolder(const GeneralModel& model)
{
    if (application())
        application()->setScreenshotImageFolder(model.screenshotFolder);
}

void ZelGeneralSettingsPanel::setMaxCacheSize(const GeneralModel& model)
{
    kqDMManager* manager = application() ? application()->getDMManager() : nullptr;
    if (manager)
        manager->setMaxCacheSize(static_cast<unsigned int>(model.cacheSize));
}

void ZelGeneralSettingsPanel::chooseFolder(QPushButton* button, const QString& title)
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, title, button->toolTip(), QFileDialog::ShowDirsOnly);
    if (folder.isEmpty())
        return;
    button->setToolTip(folder);
    elideText();
    onEdited();
}

} // namespace zel
