#include "ZelSettingsValidators.h"

#include "FolderFunctions.h"
#include "SettingsKeys.h"
#include "SettingsNumbers.h"
#include "base/QtCompat.h"

#include "platform/kqDMManager.h"
#include "platform/kqDMRenderer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegExp>
#include <QStringList>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <limits>
#include <vector>

namespace zel {

namespace {

const quint64 MiB = quint64{1024} * 1024;
const quint64 MinimumMemory = MinimumMebibytes * MiB;
const quint64 MaximumMemory = MaximumMebibytes * MiB;
const std::size_t RatioCount = 5;
const char* const Truths[] = {"true", "false"};
const char* const Engines[] = {engines::Deferred, engines::Software};

template <typename Texts>
bool isOneOf(const QString& value, const Texts& accepted)
{
    return std::find(std::begin(accepted), std::end(accepted), value) != std::end(accepted);
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
    // Not std::clamp: where the thread count is unknown, the maximum lies below the minimum.
    value = QString::number(std::min(std::max(number, minimum), maximum));
    return parsed;
}

bool clampFloat(QString& value, float minimum, float maximum)
{
    float number = 0.F;
    const bool parsed = parseFloat(value, number);
    if (parsed)
        value = numberText(static_cast<double>(std::clamp(number, minimum, maximum)));
    return parsed;
}

bool snapToSceneUnit(QString& value)
{
    float factor = 0.F;
    const int unit = parseFloat(value, factor) ? sceneUnitIndex(factor) : -1;
    if (unit >= 0)
        value = numberText(static_cast<double>(SceneUnitFactors[unit]));
    return unit >= 0;
}

int coreCount()
{
    static const int cores = QThread::idealThreadCount(); // QThread reads a system file for each call.
    return cores;
}

bool isIpOrHostName(const QString& text)
{
    if (text.isEmpty() || text.length() > 255)
        return false;
    QRegExp address("([0-9]{1,3})\\.([0-9]{1,3})\\.([0-9]{1,3})\\.([0-9]{1,3})");
    if (!address.exactMatch(text))
        return QRegExp("[A-Za-z0-9.\\-]*").exactMatch(text);
    const QStringList numbers = address.capturedTexts().mid(1);
    return std::all_of(numbers.begin(), numbers.end(), [](const QString& n) { return n.toInt() < 256; });
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

} // namespace

void ZelSettingsValidators::CleanupFolder(QString& path)
{
    path.replace('\\', '/');
    if (path.endsWith('/'))
        path.chop(1);
}

// The validators that never fail: a name, and an expression that may repair the value and is false when the
// default must replace it.
#define ZEL_VALIDATOR(name, ...)                                                                             \
    bool ZelSettingsValidators::name(const QString&, const QString& defaultValue, QString& value, QString&)  \
    {                                                                                                        \
        if (!(__VA_ARGS__))                                                                                  \
            value = defaultValue;                                                                            \
        return true;                                                                                         \
    }
ZEL_VALIDATOR(noOp, true)
ZEL_VALIDATOR(ensureSettingsVersion, false)
ZEL_VALIDATOR(ensureBool, isOneOf(value, Truths))
ZEL_VALIDATOR(ensureEngine, isOneOf(value, Engines))
ZEL_VALIDATOR(ensureLogLevel, clampInteger(value, 0, std::numeric_limits<int>::max()))
ZEL_VALIDATOR(ensurePositiveInteger, value.toLongLong() > 0)
ZEL_VALIDATOR(ensurePortValue, isUnsignedWithin(value, 0, 65535))
ZEL_VALIDATOR(ensureCacheSize, isUnsignedWithin(value, 10, 10240))
ZEL_VALIDATOR(ensureSimplificationRAM, isUnsignedWithin(value, 64 * MiB, MaximumMemory))
ZEL_VALIDATOR(ensureCoreNumber, clampInteger(value, 1, coreCount()))
ZEL_VALIDATOR(ensureTesselationMaxFaceAngle, clampInteger(value, 0, MaximumFaceAngle))
ZEL_VALIDATOR(ensureTesselationMaxFaceLength, clampFloat(value, 0.F, 100.F))
ZEL_VALIDATOR(ensureTesselationMaxFaceSag, clampFloat(value, 0.F, 100.F))
ZEL_VALIDATOR(ensureLODTrianglesCap, clampUnsigned(value, MinimumTriangles, MaximumTriangles))
ZEL_VALIDATOR(ensureMaxGPUMemory, clampUnsigned(value, MinimumMemory, MaximumMemory))
ZEL_VALIDATOR(ensureMaxCPUMemoryRaytracer, clampUnsigned(value, MinimumMemory, MaximumMemory))
ZEL_VALIDATOR(ensureMaxCPUMemory3D, clampUnsigned(value, MinimumMemory, MaximumMemory))
ZEL_VALIDATOR(ensureRaytracerQuality, isOneOf(value, kqDMRenderer::scQualityEnum))
ZEL_VALIDATOR(ensureSceneUnit, snapToSceneUnit(value))
ZEL_VALIDATOR(ensureIpOrHostName, isIpOrHostName(value))
#undef ZEL_VALIDATOR

bool ZelSettingsValidators::ensureSimplificationThreads(const QString&, const QString&, QString& value,
                                                        QString&)
{
    value = "1";
    return true;
}

bool ZelSettingsValidators::ensureSimplificationRatios(const QString& key, const QString& defaultValue,
                                                       QString& value, QString& error)
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
    // The default is tried once: a kernel that spoils the default as well would do so each time.
    if (value == defaultValue)
        return false;
    value = defaultValue;
    return ensureSimplificationRatios(key, defaultValue, value, error);
}

bool ZelSettingsValidators::ensureFile(const QString&, const QString& defaultValue, QString& value,
                                       QString& error)
{
    CleanupFolder(value);
    if (!value.isEmpty() && folderFunctions.isFolder(QFileInfo(value).absolutePath()))
        return true;
    value = defaultValue;
    CleanupFolder(value);
    if (folderFunctions.createFolder(QFileInfo(value).absolutePath()))
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
