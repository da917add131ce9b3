#include "ZelPageDefaults.h"

#include "Log.h"
#include "SettingsKeys.h"
#include "SettingsValidation.h"
#include "ZelSettingsValidators.h"

#include <QSettings>
#include <QString>
#include <QStringList>

namespace zel {

namespace {

using Rules = ZelSettingsValidators;

const struct
{
    const char* key;
    const char* defaultText;
    ZelSettingsRegistry::Validator validator;
} Settings[] = {
    {keys::SimplificationRatios, "1/0.75/0.5/0.25/0.1", &Rules::ensureSimplificationRatios},
    {keys::TessellationQualitySet, "false", &Rules::ensureBool},
    {keys::TessellationHighQuality, "true", &Rules::ensureBool},
    {keys::MaxFaceSagSet, "false", &Rules::ensureBool},
    {keys::MaxFaceSag, "0.1", &Rules::ensureTesselationMaxFaceSag},
    {keys::MaxFaceLengthSet, "false", &Rules::ensureBool},
    {keys::MaxFaceLength, "10", &Rules::ensureTesselationMaxFaceLength},
    {keys::MaxFaceAngleSet, "false", &Rules::ensureBool},
    {keys::MaxFaceAngle, "20", &Rules::ensureTesselationMaxFaceAngle},
    {keys::TrianglesCap, "500000", &Rules::ensureLODTrianglesCap},
    {keys::MaxGpuMemory, "2147483648", &Rules::ensureMaxGPUMemory},
    {keys::MaxCpuMemoryRaytracer, "2147483648", &Rules::ensureMaxCPUMemoryRaytracer},
    {keys::MaxCpuMemory3D, "2147483648", &Rules::ensureMaxCPUMemory3D},
    {keys::SceneUnits, "1000", &Rules::ensureSceneUnit},
    {keys::UseEdgeDetection, "false", &Rules::ensureBool},
    {keys::UseFxaa, "true", &Rules::ensureBool},
    {keys::UseSsao, "true", &Rules::ensureBool},
    {keys::CoreNumber, "1000", &Rules::ensureCoreNumber}, // All: a larger number comes to what there is.
    {keys::RaytracerQuality, "Medium", &Rules::ensureRaytracerQuality},
    {keys::ScreenshotFolder, "", &Rules::noOp}, // None: the page asks for one.
};

// Passed as the default, because no setting has this text: a validator that returns it has refused the file's
// text.
const char* const Refused = "\n";

void warn(const QSettings& file, const QString& text)
{
    logWarning(QString("%1: %2").arg(file.fileName(), text));
}

} // namespace

void ZelPageDefaults::Register(const QSettings& replacements)
{
    if (replacements.status() != QSettings::NoError)
        warn(replacements, "cannot be read to its end");
    QStringList unknown = replacements.allKeys();
    for (const auto& setting : Settings) {
        const auto accepted = [&](QString& text) {
            QString error;
            return setting.validator(setting.key, Refused, text, error) && text != Refused;
        };
        const QVariant given = replacements.value(setting.key, setting.defaultText);
        QString text = given.toString();
        if (isList(given) || !accepted(text)) {
            warn(replacements,
                 QString("\"%1\" cannot be \"%2\"").arg(setting.key, given.toStringList().join(", ")));
            text = setting.defaultText;
            accepted(text);
        }
        ZelSettingsRegistry::RegisterSetting(setting.key, text, setting.validator);
        unknown.removeAll(setting.key);
    }
    for (const QString& key : unknown)
        warn(replacements, QString("no page has a setting \"%1\"").arg(key));
}

} // namespace zel
