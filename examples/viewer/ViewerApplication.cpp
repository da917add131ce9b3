#include "ViewerApplication.h"

#include "ViewerSettings.h"

#include <zel/SettingsKeys.h>
#include <zel/Version.h>
#include <zel/ZelSettingsFile.h>
#include <zel/ZelSettingsRegistry.h>
#include <zel/platform/MTLogger.h>

namespace keys = zel::keys;

ViewerApplication::ViewerApplication(const QString& folder)
    : m_folder(folder)
    , m_settings(folder + "/Settings.ini", QSettings::IniFormat)
    , m_manager(m_scene)
    , m_renderer(m_scene)
    , m_knotPlugin("Knots", "1.0")
    , m_controlCenterPlugin("Control center",
                            ZelControlCenter::Version::GetDescStringMajorMinorRelease(false))
    , m_plugins{&m_knotPlugin, &m_controlCenterPlugin}
{
    zel::ZelSettingsFile::UseFileEncoding(m_settings);
}

void ViewerApplication::applicationStarted()
{
    m_language = m_settings.value(keys::Language).toString();
    setScreenshotImageFolder(m_settings.value(keys::ScreenshotFolder).toString());
    m_renderer.setTargetTriangles(m_settings.value(keys::TrianglesCap).toULongLong());
    m_manager.setMaxCacheSize(m_settings.value(keys::CacheSize).toUInt());
    std::vector<float> ratios;
    for (const QString& ratio : m_settings.value(keys::SimplificationRatios).toString().split('/'))
        ratios.push_back(ratio.toFloat());
    m_manager.setSimplificationRatios(ratios);
    const bool turns = m_settings.value(viewerkeys::Turns).toBool();
    m_scene.setTurnSpeed(turns ? m_settings.value(viewerkeys::TurnSpeed).toInt() : 0);
}

QString ViewerApplication::getDefaultSettingsValue(const QString& key)
{
    return zel::ZelSettingsRegistry::GetDefaultSettingsValue(key);
}

void ViewerApplication::setUpdateEngineEnabled(bool enabled)
{
    MTLogger::Log("debug", enabled ? "engine updates on" : "engine updates off");
    Q_EMIT updateEngineEnabled(enabled);
}

void ViewerApplication::setScreenshotImageFolder(const QString& folder)
{
    m_screenshotFolder = folder;
}
