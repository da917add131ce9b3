#include "ZelGeneralSettingsPanel.h"

#include "ui_ZelGeneralSettingsPanel.h"

#include "SettingsKeys.h"
#include "SignalBlock.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMManager.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QIcon>
#include <QKeySequence>

namespace zel {

namespace {

const int ButtonTextMargin = 12; // pixels: border and padding, left and right

ZelEditablePanel<GeneralModel>::Fields generalFields()
{
    return {
        {keys::CacheDirectory, &GeneralModel::cacheDirectory, textConversion()},
        {keys::CacheSize, &GeneralModel::cacheSize, integerConversion()},
        {keys::ScreenshotFolder, &GeneralModel::screenshotFolder, textConversion()},
    };
}

} // namespace

bool operator==(const GeneralModel& left, const GeneralModel& right)
{
    return left.cacheDirectory == right.cacheDirectory && left.screenshotFolder == right.screenshotFolder &&
           left.cacheSize == right.cacheSize;
}

ZelGeneralSettingsPanel::ZelGeneralSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                                 QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<GeneralModel>(application, settings, parent, flags, generalFields())
    , m_ui(new Ui::ZelGeneralSettingsPanel)
    , m_initialCacheDirectory(settings.value(keys::CacheDirectory).toString())
{
    m_ui->setupUi(this);
    setNamedStyleSheet("ZelGeneralSettingsPanel");
    setPanelName(QCoreApplication::translate("ZelGeneralSettingsPanel", "Folders"));
    setPanelCategory(ApplicationCategory);
    describe(
        "ZelGeneralSettingsPanel",
        {folderHelp(m_ui->screenshotFolderButton, &GeneralModel::screenshotFolder, keys::ScreenshotFolder,
                    EffectAtOnce,
                    QT_TRANSLATE_NOOP("ZelGeneralSettingsPanel",
                                      "Where your screenshots are saved. A click chooses a folder.")),
         folderHelp(
             m_ui->databaseButton, &GeneralModel::cacheDirectory, keys::CacheDirectory, EffectAfterRestart,
             QT_TRANSLATE_NOOP("ZelGeneralSettingsPanel",
                               "Where parts of loaded models are kept on the disk. Choose a fast disk with "
                               "enough free space. A click chooses a folder.")),
         {{m_ui->databaseSpinBox},
          nullptr,
          QT_TRANSLATE_NOOP("ZelGeneralSettingsPanel",
                            "How large the cache may grow on the disk. With a larger one, models that you "
                            "have opened before load faster."),
          ZelPageHelp::rangeText(m_ui->databaseSpinBox),
          EffectAtOnce,
          {keys::CacheSize},
          [this](const GeneralModel& model) { return m_ui->databaseSpinBox->shownText(model.cacheSize); }}});
}

ZelGeneralSettingsPanel::~ZelGeneralSettingsPanel() = default;

void ZelGeneralSettingsPanel::on_databaseButton_clicked()
{
    chooseFolder(m_ui->databaseButton, QCoreApplication::translate("ZelGeneralSettingsPanel",
                                                                   "Please set your database cache folder"));
}

void ZelGeneralSettingsPanel::on_screenshotFolderButton_clicked()
{
    chooseFolder(m_ui->screenshotFolderButton,
                 QCoreApplication::translate("ZelGeneralSettingsPanel", "Please set your screenshot folder"));
}

void ZelGeneralSettingsPanel::on_databaseSpinBox_valueChanged(int)
{
    onEdited();
}

void ZelGeneralSettingsPanel::on_resetButton_clicked()
{
    resetContent();
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

void ZelGeneralSettingsPanel::getCurrentModel(GeneralModel& model) const
{
    model.cacheDirectory = m_ui->databaseButton->toolTip();
    model.cacheSize = m_ui->databaseSpinBox->value();
    model.screenshotFolder = m_ui->screenshotFolderButton->toolTip();
}

void ZelGeneralSettingsPanel::applyModel(const GeneralModel& model)
{
    const SignalBlock block{m_ui->databaseSpinBox};
    m_ui->databaseButton->setToolTip(model.cacheDirectory);
    m_ui->screenshotFolderButton->setToolTip(model.screenshotFolder);
    m_ui->databaseSpinBox->setValue(model.cacheSize);
    elideText();
}

void ZelGeneralSettingsPanel::saveSettingsInternal()
{
    ZelEditablePanel<GeneralModel>::saveSettingsInternal();
    setScreenshotFolder();
}

void ZelGeneralSettingsPanel::pushToApplication()
{
    setMaxCacheSize();
    setScreenshotFolder();
}

bool ZelGeneralSettingsPanel::shouldRestart() const
{
    const QString current = m_ui->databaseButton->toolTip();
    return current != settings().value(keys::CacheDirectory).toString() && current != m_initialCacheDirectory;
}

void ZelGeneralSettingsPanel::notifyStateChanged()
{
    Q_EMIT stateChanged();
}

ZelGeneralSettingsPanel::Help ZelGeneralSettingsPanel::folderHelp(QPushButton* button,
                                                                  QString GeneralModel::*folder,
                                                                  const char* key, ZelSettingEffect effect,
                                                                  const char* description)
{
    Help help;
    help.fields << button;
    help.name = nullptr;
    help.description = description;
    help.effect = effect;
    help.keys << key;
    help.shown = [folder](const GeneralModel& model) { return model.*folder; };
    help.tipIsValue = true;
    return help;
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
        const QString folder =
            unset ? QCoreApplication::translate("ZelGeneralSettingsPanel", "No folder is set.")
                  : button->toolTip();
        button->setAccessibleDescription(folder + ' ' + button->statusTip());
    }
}

void ZelGeneralSettingsPanel::setScreenshotFolder()
{
    if (application())
        application()->setScreenshotImageFolder(m_ui->screenshotFolderButton->toolTip());
}

void ZelGeneralSettingsPanel::setMaxCacheSize()
{
    kqDMManager* manager = application() ? application()->getDMManager() : nullptr;
    if (manager)
        manager->setMaxCacheSize(static_cast<unsigned int>(m_ui->databaseSpinBox->value()));
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
