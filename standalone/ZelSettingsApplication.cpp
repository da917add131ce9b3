#include "ZelSettingsApplication.h"

#include "ZelSettingsFile.h"

namespace zel {

ZelSettingsApplication::ZelSettingsApplication(const QString& applicationFolder)
    : m_selection(nullptr)
    , m_settings(applicationFolder + "/Settings.ini", QSettings::IniFormat)
    , m_applicationFolder(applicationFolder)
{
    ZelSettingsFile::UseFileEncoding(m_settings);
}

ZelSettingsApplication::~ZelSettingsApplication() = default;

void ZelSettingsApplication::clearViewerApp()
{
}

kqDMManager* ZelSettingsApplication::getDMManager() const
{
    return nullptr;
}

kqDMRenderer* ZelSettingsApplication::getDMRenderer() const
{
    return nullptr;
}

QDeclarativeEngine* ZelSettingsApplication::getDeclarativeEngine() const
{
    return nullptr;
}

zelMaterialManagerInterface* ZelSettingsApplication::getMaterialManager() const
{
    return nullptr;
}

void ZelSettingsApplication::setMaterialManager(zelMaterialManagerInterface*)
{
}

zelNavigationManager* ZelSettingsApplication::getNavigationManager() const
{
    return nullptr;
}

QSettings& ZelSettingsApplication::getSettings()
{
    return m_settings;
}

kqDMProject* ZelSettingsApplication::editProject()
{
    return nullptr;
}

const std::vector<kqDMPlugin*>& ZelSettingsApplication::getPluginsList() const
{
    return m_plugins;
}

kqDMGuiPlugin* ZelSettingsApplication::getGuiPlugin() const
{
    return nullptr;
}

const kqDMSelection& ZelSettingsApplication::getSelection() const
{
    return m_selection;
}

kqDMSelection& ZelSettingsApplication::grabSelection()
{
    return m_selection;
}

void ZelSettingsApplication::setScreenshotImageFolder(const QString&)
{
}

const QString& ZelSettingsApplication::getScreenshotImageFolder() const
{
    return m_screenshotImageFolder;
}

void ZelSettingsApplication::updateAfterCompleteLoading()
{
}

void ZelSettingsApplication::setUpdateEngineEnabled(bool)
{
}

void ZelSettingsApplication::setLowUpdateEngineFrequency(bool)
{
}

zelThumbnailManager* ZelSettingsApplication::getThumbnailManager() const
{
    return nullptr;
}

void ZelSettingsApplication::notifyAppEvent(zelAppEvent)
{
}

QString ZelSettingsApplication::getDefaultSettingsValue(const QString&)
{
    return QString();
}

const QString& ZelSettingsApplication::getLanguageCode()
{
    return m_languageCode;
}

const QString& ZelSettingsApplication::getApplicationFolder() const
{
    return m_applicationFolder;
}

bool ZelSettingsApplication::removeComponent(kqDMComponentId)
{
    return false;
}

void ZelSettingsApplication::applicationStarted()
{
}

void ZelSettingsApplication::applicationFinished()
{
}

bool ZelSettingsApplication::saveDocument()
{
    return false;
}

void ZelSettingsApplication::loadDocument(const QStringList&, bool)
{
}

void ZelSettingsApplication::loadDocument(bool)
{
}

void ZelSettingsApplication::set3DSelectionPickingEnabled(bool)
{
}

bool ZelSettingsApplication::is3DSelectionPickingEnabled() const
{
    return true;
}

std::vector<PostSaveEventItem>& ZelSettingsApplication::getPostSaveEventVector()
{
    return m_postSaveEvents;
}

void ZelSettingsApplication::setWorkFlowWidget(QWidget*)
{
}

void ZelSettingsApplication::registerMouseReleaseEventFilter(zelReleaseEventFilter*, bool)
{
}

void ZelSettingsApplication::setLanguageCode(const QString& code)
{
    m_languageCode = code;
}

} // namespace zel
