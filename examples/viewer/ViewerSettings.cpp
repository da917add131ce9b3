#include "ViewerSettings.h"

#include <QCoreApplication>
#include <QSettings>
#include <QThread>

#include <algorithm>
#include <zel/SettingsKeys.h>
#include <zel/ZelControlCenter.h>

namespace keys = zel::keys;

namespace {

typedef zel::ZelControlCenter Rules;

// A validator of the viewer's own: it repairs the value in place, and fails only when that is impossible.
bool ensureScreenshotFolder(const QString&, const QString& defaultValue, QString& value, QString& error)
{
    if (Rules::ensureFolder(defaultValue, value))
        return true;
    error =
        QCoreApplication::translate("ViewerSettings", "The folder \"%1\" for screenshots cannot be created.")
            .arg(value);
    return false;
}

bool ensureTurnSpeed(const QString&, const QString& defaultValue, QString& value, QString&)
{
    bool isNumber = false;
    const int speed = value.toInt(&isNumber);
    value = isNumber ? QString::number(qBound(1, speed, 90)) : defaultValue;
    return true;
}

// An end check sees the settings as a whole, after every value has been repaired.
bool foldersDiffer(QSettings& settings, QString& error)
{
    const QString cache = settings.value(keys::CacheDirectory).toString();
    if (cache != settings.value(keys::ScreenshotFolder).toString())
        return true;
    error = QCoreApplication::translate(
                "ViewerSettings", "The cache and the screenshots share the folder \"%1\", and screenshots "
                                  "would be lost with the cache. Please change one of them in \"%2\".")
                .arg(cache, settings.fileName());
    return false;
}

} // namespace

void ViewerSettings::Register(const QString& applicationName, const QString& folder)
{
    const QString cores = QString::number(std::max(1, QThread::idealThreadCount()));
    const QString twoGiB = QString::number(Q_UINT64_C(2) << 30);
    const struct
    {
        const char* key;
        QString defaultText;
        zel::ZelSettingsRegistry::Validator validator;
    } settings[] = {
        {keys::Language, "en", &Rules::noOp},
        {keys::ScreenshotFolder, folder + "/Screenshots", &ensureScreenshotFolder},
        {keys::SimplificationRatios, "1/0.75/0.5/0.25/0.1", &Rules::ensureSimplificationRatios},
        {keys::MaxFaceAngle, "20", &Rules::ensureTesselationMaxFaceAngle},
        {keys::MaxFaceLength, "10", &Rules::ensureTesselationMaxFaceLength},
        {keys::MaxFaceSag, "0.1", &Rules::ensureTesselationMaxFaceSag},
        {keys::MaxFaceAngleSet, "false", &Rules::ensureBool},
        {keys::MaxFaceLengthSet, "false", &Rules::ensureBool},
        {keys::MaxFaceSagSet, "false", &Rules::ensureBool},
        {keys::TessellationQualitySet, "false", &Rules::ensureBool},
        {keys::TessellationHighQuality, "true", &Rules::ensureBool},
        {keys::TrianglesCap, "500000", &Rules::ensureLODTrianglesCap},
        {keys::MaxGpuMemory, twoGiB, &Rules::ensureMaxGPUMemory},
        {keys::MaxCpuMemoryRaytracer, twoGiB, &Rules::ensureMaxCPUMemoryRaytracer},
        {keys::MaxCpuMemory3D, twoGiB, &Rules::ensureMaxCPUMemory3D},
        {keys::SceneUnits, "1000", &Rules::ensureSceneUnit},
        {keys::UseEdgeDetection, "false", &Rules::ensureBool},
        {keys::UseFxaa, "true", &Rules::ensureBool},
        {keys::UseSsao, "true", &Rules::ensureBool},
        {keys::CoreNumber, cores, &Rules::ensureCoreNumber},
        {keys::RaytracerQuality, "Medium", &Rules::ensureRaytracerQuality},
        {viewerkeys::Turns, "true", &Rules::ensureBool},
        {viewerkeys::TurnSpeed, "20", &ensureTurnSpeed},
    };
    for (const auto& setting : settings)
        Rules::RegisterSetting(setting.key, setting.defaultText, setting.validator);

    // Before the library's own keys, because the first registration of a key wins.
    Rules::RegisterSetting(keys::CacheSize, "1024", &Rules::ensureCacheSize);
    Rules::InitDefaultSettingsValues(applicationName);
    Rules::RegisterEndCheckFunction(&foldersDiffer);
}
