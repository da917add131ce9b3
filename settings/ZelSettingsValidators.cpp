#include "ZelSettingsValidators.h"

#include "FolderCreation.h"
#include "NumberText.h"
#include "SceneUnits.h"
#include "SettingsKeys.h"
#include "base/ZelQtCompat.h"

#include "platform/kqDMManager.h"
#include "platform/kqDMRenderer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegExp>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <vector>

namespace zel {

namespace {

const quint64 MiB = quint64{1024} * 1024;
const quint64 MaximumMemory = 8096 * MiB;
const std::size_t RatioCount = 5;

// What follows repairs a value, or returns false for one that the default must replace.

bool isOneOf(const QString& value, std::initializer_list<const char*> accepted)
{
    return std::any_of(accepted.begin(), accepted.end(),
                       [&value](const char* text) { return value == QLatin1String(text); });
}

bool isUnsignedWithin(const QString& value, quint64 minimum, quint64 maximum)
{
    bool parsed = false;
    const quint64 number = value.toULongLong(&parsed);
    return parsed && number >= minimum && number <= maximum;
}

bool clampUnsigned(QString& value, quint64 minimum, quint64 maximum)
{
    bool parsed = false;
    const quint64 number = value.toULongLong(&parsed);
    value = QString::number(std::clamp(number, minimum, maximum));
    return parsed;
}

bool clampInteger(QString& value, int minimum, int maximum)
{
    bool parsed = false;
    const int number = value.toInt(&parsed);
    // Not std::clamp: on a machine that cannot tell its thread count the maximum may lie below the minimum.
    value = QString::number(std::min(std::max(number, minimum), maximum));
    return parsed;
}

bool clampFloat(QString& value, float minimum, float maximum)
{
    float number = 0.F;
    const bool parsed = parseFloat(value, number);
    if (parsed)
        value = numberText(double(std::clamp(number, minimum, maximum)));
    return parsed;
}

bool snapToSceneUnit(QString& value)
{
    float factor = 0.F;
    const int unit = parseFloat(value, factor) ? sceneUnitIndex(factor) : -1;
    if (unit >= 0)
        value = numberText(double(SceneUnitFactors[unit]));
    return unit >= 0;
}

bool isQuality(const QString& value)
{
    const auto& names = kqDMRenderer::scQualityEnum;
    return std::find(std::begin(names), std::end(names), value) != std::end(names);
}

int coreCount()
{
    static const int cores = QThread::idealThreadCount(); // The answer is read from a system file each time.
    return cores;
}

bool isIpAddress(const QString& text, bool& valid)
{
    QRegExp address("([0-9]{1,3})\\.([0-9]{1,3})\\.([0-9]{1,3})\\.([0-9]{1,3})");
    if (!address.exactMatch(text))
        return false;
    const QStringList numbers = address.capturedTexts().mid(1);
    valid = std::all_of(numbers.begin(), numbers.end(), [](const QString& n) { return n.toInt() < 256; });
    return true;
}

bool isHostName(const QString& text)
{
    const QRegExp label("[A-Za-z0-9\\-]*");
    const QStringList labels = text.split('.');
    return std::all_of(labels.begin(), labels.end(),
                       [&label](const QString& part) { return label.exactMatch(part); });
}

bool isIpOrHostName(const QString& text)
{
    bool valid = !text.isEmpty() && text.length() <= 255;
    return valid && (isIpAddress(text, valid) ? valid : isHostName(text));
}

std::vector<float> parseRatios(const QString& text)
{
    std::vector<float> ratios;
    for (const QString& part : text.split('/', SkipEmptyParts)) {
        float ratio = 0.F;
        if (parseFloat(part, ratio))
            ratios.push_back(ratio);
    }
    return ratios;
}

bool ensureRatios(const QString& defaultValue, QString& value)
{
    std::vector<float> ratios = parseRatios(value);
    if (ratios.size() != RatioCount)
        ratios = parseRatios(defaultValue);
    if (ratios.size() != RatioCount)
        return false;
    if (kqDMManager::correctRatios(ratios)) {
        std::puts("Ratio changed");
        std::fflush(stdout);
    }
    if (ratios.size() == RatioCount) {
        value = ratiosText(ratios);
        return true;
    }
    // The default is tried once: a kernel that spoils that one as well would spoil it forever.
    if (value == defaultValue)
        return false;
    value = defaultValue;
    return ensureRatios(defaultValue, value);
}

QString folderOf(const QString& file)
{
    return QFileInfo(file).absolutePath();
}

} // namespace

void ZelSettingsValidators::CleanupFolder(QString& path)
{
    path.replace('\\', '/');
    if (path.endsWith('/'))
        path.chop(1);
}

bool ZelSettingsValidators::noOp(const QString&, const QString&, QString&, QString&)
{
    return true;
}

// The validators that never fail: a name, and what tells whether the value is kept.
#define ZEL_VALIDATOR(name, ...)                                                                             \
    bool ZelSettingsValidators::name(const QString&, const QString& defaultValue, QString& value, QString&)  \
    {                                                                                                        \
        if (!(__VA_ARGS__))                                                                                  \
            value = defaultValue;                                                                            \
        return true;                                                                                         \
    }
ZEL_VALIDATOR(ensureSettingsVersion, false)
ZEL_VALIDATOR(ensureBool, isOneOf(value, {"true", "false"}))
ZEL_VALIDATOR(ensureEngine, isOneOf(value, {engines::Deferred, engines::Software}))
ZEL_VALIDATOR(ensureLogLevel, clampInteger(value, 0, std::numeric_limits<int>::max()))
ZEL_VALIDATOR(ensurePositiveInteger, value.toLongLong() > 0)
ZEL_VALIDATOR(ensurePortValue, isUnsignedWithin(value, 0, 65535))
ZEL_VALIDATOR(ensureCacheSize, isUnsignedWithin(value, 10, 10240))
ZEL_VALIDATOR(ensureSimplificationRAM, isUnsignedWithin(value, 64 * MiB, MaximumMemory))
ZEL_VALIDATOR(ensureCoreNumber, clampInteger(value, 1, coreCount()))
ZEL_VALIDATOR(ensureTesselationMaxFaceAngle, clampInteger(value, 0, 359))
ZEL_VALIDATOR(ensureTesselationMaxFaceLength, clampFloat(value, 0.F, 100.F))
ZEL_VALIDATOR(ensureTesselationMaxFaceSag, clampFloat(value, 0.F, 100.F))
ZEL_VALIDATOR(ensureLODTrianglesCap, clampUnsigned(value, 50000, 500000000))
ZEL_VALIDATOR(ensureMaxGPUMemory, clampUnsigned(value, 128 * MiB, MaximumMemory))
ZEL_VALIDATOR(ensureMaxCPUMemoryRaytracer, clampUnsigned(value, 128 * MiB, MaximumMemory))
ZEL_VALIDATOR(ensureMaxCPUMemory3D, clampUnsigned(value, 128 * MiB, MaximumMemory))
ZEL_VALIDATOR(ensureRaytracerQuality, isQuality(value))
ZEL_VALIDATOR(ensureSceneUnit, snapToSceneUnit(value))
ZEL_VALIDATOR(ensureIpOrHostName, isIpOrHostName(value))
#undef ZEL_VALIDATOR

bool ZelSettingsValidators::ensureSimplificationThreads(const QString&, const QString&, QString& value,
                                                        QString&)
{
    value = "1";
    return true;
}

bool ZelSettingsValidators::ensureSimplificationRatios(const QString&, const QString& defaultValue,
                                                       QString& value, QString&)
{
    return ensureRatios(defaultValue, value);
}

bool ZelSettingsValidators::ensureFile(const QString&, const QString& defaultValue, QString& value,
                                       QString& error)
{
    CleanupFolder(value);
    if (!value.isEmpty() && folderFunctions.isFolder(folderOf(value)))
        return true;
    value = defaultValue;
    CleanupFolder(value);
    if (folderFunctions.createFolder(folderOf(value)))
        return true;
    error = QCoreApplication::translate(
                "ZelControlCenter", "Could not use the Torvane log file, file \"%1\" could not be created")
                .arg(value);
    return false;
}

bool ZelSettingsValidators::ensureDMCacheFolder(const QString&, const QString& defaultValue, QString& value,
                                                QString& error)
{
    if (ensureFolder(defaultValue, value))
        return true;
    error = QCoreApplication::translate(
                "ZelControlCenter", "Could not use the 3D database cache, folder \"%1\" could not be created")
                .arg(value);
    return false;
}

bool ZelSettingsValidators::ensureTmpFolder(const QString&, const QString& defaultValue, QString& value,
                                            QString& error)
{
    if (!folderFunctions.createFolder(defaultValue)) {
        error = QCoreApplication::translate("ZelControlCenter", "Could not create compulsory folder \"%1\"")
                    .arg(defaultValue);
        return false;
    }
    CleanupFolder(value);
    if (!folderFunctions.isFolder(value))
        value = defaultValue;
    return true;
}

bool ZelSettingsValidators::ensureFolder(const QString& defaultValue, QString& value)
{
    CleanupFolder(value);
    if (folderFunctions.isFolder(value))
        return true;
    value = defaultValue;
    CleanupFolder(value);
    return folderFunctions.createFolder(value);
}

} // namespace zel
