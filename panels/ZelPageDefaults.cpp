#include "ZelPageDefaults.h"

#include "FileAccess.h"
#include "SettingsKeys.h"
#include "SettingsValidation.h"
#include "ZelSettingsValidators.h"

#include <QSettings>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

using Rules = ZelSettingsValidators;

const struct
{
    const char* key;
    ZelSettingsRegistry::Validator validator;
} Settings[] = {
    {keys::SimplificationRatios, &Rules::ensureSimplificationRatios},
    {keys::MaxFaceAngle, &Rules::ensureTesselationMaxFaceAngle},
    {keys::MaxFaceLength, &Rules::ensureTesselationMaxFaceLength},
    {keys::MaxFaceSag, &Rules::ensureTesselationMaxFaceSag},
    {keys::MaxFaceAngleSet, &Rules::ensureBool},
    {keys::MaxFaceLengthSet, &Rules::ensureBool},
    {keys::MaxFaceSagSet, &Rules::ensureBool},
    {keys::TessellationQualitySet, &Rules::ensureBool},
    {keys::TessellationHighQuality, &Rules::ensureBool},
    {keys::TrianglesCap, &Rules::ensureLODTrianglesCap},
    {keys::MaxGpuMemory, &Rules::ensureMaxGPUMemory},
    {keys::MaxCpuMemoryRaytracer, &Rules::ensureMaxCPUMemoryRaytracer},
    {keys::MaxCpuMemory3D, &Rules::ensureMaxCPUMemory3D},
    {keys::SceneUnits, &Rules::ensureSceneUnit},
    {keys::UseEdgeDetection, &Rules::ensureBool},
    {keys::UseFxaa, &Rules::ensureBool},
    {keys::UseSsao, &Rules::ensureBool},
    {keys::CoreNumber, &Rules::ensureCoreNumber},
    {keys::RaytracerQuality, &Rules::ensureRaytracerQuality},
    {keys::ScreenshotFolder, &Rules::noOp},
};

// Passed as the default, because no setting has this text: a validator that returns it has refused the file's
// text.
const char* const Refused = "\n";

void warn(const QSettings& defaults, const QString& text)
{
    logWarning(QString("%1: %2").arg(defaults.fileName(), text));
}

} // namespace

void ZelPageDefaults::Register(const QSettings& defaults)
{
    if (defaults.status() != QSettings::NoError)
        warn(defaults, "cannot be read to its end");
    for (const QString& key : defaults.allKeys()) {
        const auto* known = std::find_if(std::begin(Settings), std::end(Settings),
                                         [&key](const auto& setting) { return key == setting.key; });
        if (known == std::end(Settings)) {
            warn(defaults, QString("no page has a setting \"%1\"").arg(key));
            continue;
        }
        const QVariant given = defaults.value(key);
        QString text = given.toString(), error;
        if (!isList(given) && known->validator(key, Refused, text, error) && text != Refused)
            ZelSettingsRegistry::RegisterSetting(key, text, known->validator);
        else
            warn(defaults, QString("\"%1\" cannot be \"%2\"").arg(key, given.toStringList().join(", ")));
    }
}

} // namespace zel
