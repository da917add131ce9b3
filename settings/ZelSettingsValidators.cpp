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
#include <iterator>
#include <limits>
#include <vector>

namespace zel {

namespace {

const quint64 MiB = quint64(1024) * 1024;
const quint64 MaximumMemory = 8096 * MiB;
const std::size_t RatioCount = 5;

template <std::size_t Count>
bool ensureOneOf(const QString (&accepted)[Count], const QString& defaultValue, QString& value)
{
    if (std::find(std::begin(accepted), std::end(accepted), value) == std::end(accepted))
        value = defaultValue;
    return true;
}

bool ensureUnsignedWithin(quint64 minimum, quint64 maximum, const QString& defaultValue, QString& value)
{
    bool parsed = false;
    const quint64 number = value.toULongLong(&parsed);
    if (!parsed || number < minimum || number > maximum)
        value = defaultValue;
    return true;
}

bool clampUnsigned(quint64 minimum, quint64 maximum, const QString& defaultValue, QString& value)
{
    bool parsed = false;
    const quint64 number = value.toULongLong(&parsed);
    value = parsed ? QString::number(std::clamp(number, minimum, maximum)) : defaultValue;
    return true;
}

bool clampInteger(int minimum, int maximum, const QString& defaultValue, QString& value)
{
    bool parsed = false;
    const int number = value.toInt(&parsed);
    // Not std::clamp: on a machine that cannot tell its thread count the maximum may lie below the minimum.
    value = parsed ? QString::number(std::min(std::max(number, minimum), maximum)) : defaultValue;
    return true;
}

bool clampFloat(float minimum, float maximum, const QString& defaultValue, QString& value)
{
    float number = 0.F;
    value =
        parseFloat(value, number) ? numberText(double(std::clamp(number, minimum, maximum))) : defaultValue;
    return true;
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

QString ratiosText(const std::vector<float>& ratios)
{
    QStringList parts;
    std::transform(ratios.begin(), ratios.end(), std::back_inserter(parts),
                   [](float ratio) { return numberText(double(ratio)); });
    return parts.join("/");
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

bool ZelSettingsValidators::ensureSettingsVersion(const QString&, const QString& defaultValue, QString& value,
                                                  QString&)
{
    value = defaultValue;
    return true;
}

bool ZelSettingsValidators::ensureBool(const QString&, const QString& defaultValue, QString& value, QString&)
{
    static const QString accepted[] = {"true", "false"};
    return ensureOneOf(accepted, defaultValue, value);
}

bool ZelSettingsValidators::ensureEngine(const QString&, const QString& defaultValue, QString& value,
                                         QString&)
{
    static const QString accepted[] = {engines::Deferred, engines::Software};
    return ensureOneOf(accepted, defaultValue, value);
}

bool ZelSettingsValidators::ensureLogLevel(const QString&, const QString& defaultValue, QString& value,
                                           QString&)
{
    return clampInteger(0, std::numeric_limits<int>::max(), defaultValue, value);
}

bool ZelSettingsValidators::ensurePositiveInteger(const QString&, const QString& defaultValue, QString& value,
                                                  QString&)
{
    bool parsed = false;
    if (value.toLongLong(&parsed) <= 0 || !parsed)
        value = defaultValue;
    return true;
}

bool ZelSettingsValidators::ensurePortValue(const QString&, const QString& defaultValue, QString& value,
                                            QString&)
{
    return ensureUnsignedWithin(0, 65535, defaultValue, value);
}

bool ZelSettingsValidators::ensureCacheSize(const QString&, const QString& defaultValue, QString& value,
                                            QString&)
{
    return ensureUnsignedWithin(10, 10240, defaultValue, value);
}

bool ZelSettingsValidators::ensureSimplificationRAM(const QString&, const QString& defaultValue,
                                                    QString& value, QString&)
{
    return ensureUnsignedWithin(64 * MiB, MaximumMemory, defaultValue, value);
}

bool ZelSettingsValidators::ensureSimplificationThreads(const QString&, const QString&, QString& value,
                                                        QString&)
{
    value = "1";
    return true;
}

bool ZelSettingsValidators::ensureCoreNumber(const QString&, const QString& defaultValue, QString& value,
                                             QString&)
{
    // Asked once, because the answer is read from a file of the system each time.
    static const int cores = QThread::idealThreadCount();
    return clampInteger(1, cores, defaultValue, value);
}

bool ZelSettingsValidators::ensureTesselationMaxFaceAngle(const QString&, const QString& defaultValue,
                                                          QString& value, QString&)
{
    return clampInteger(0, 359, defaultValue, value);
}

bool ZelSettingsValidators::ensureTesselationMaxFaceLength(const QString&, const QString& defaultValue,
                                                           QString& value, QString&)
{
    return clampFloat(0.F, 100.F, defaultValue, value);
}

bool ZelSettingsValidators::ensureTesselationMaxFaceSag(const QString& key, const QString& defaultValue,
                                                        QString& value, QString& error)
{
    return ensureTesselationMaxFaceLength(key, defaultValue, value, error);
}

bool ZelSettingsValidators::ensureLODTrianglesCap(const QString&, const QString& defaultValue, QString& value,
                                                  QString&)
{
    return clampUnsigned(50000, 500000000, defaultValue, value);
}

bool ZelSettingsValidators::ensureMaxGPUMemory(const QString&, const QString& defaultValue, QString& value,
                                               QString&)
{
    return clampUnsigned(128 * MiB, MaximumMemory, defaultValue, value);
}

bool ZelSettingsValidators::ensureMaxCPUMemoryRaytracer(const QString& key, const QString& defaultValue,
                                                        QString& value, QString& error)
{
    return ensureMaxGPUMemory(key, defaultValue, value, error);
}

bool ZelSettingsValidators::ensureMaxCPUMemory3D(const QString& key, const QString& defaultValue,
                                                 QString& value, QString& error)
{
    return ensureMaxGPUMemory(key, defaultValue, value, error);
}

bool ZelSettingsValidators::ensureRaytracerQuality(const QString&, const QString& defaultValue,
                                                   QString& value, QString&)
{
    return ensureOneOf(kqDMRenderer::scQualityEnum, defaultValue, value);
}

bool ZelSettingsValidators::ensureSceneUnit(const QString&, const QString& defaultValue, QString& value,
                                            QString&)
{
    float factor = 0.F;
    const int unit = parseFloat(value, factor) ? sceneUnitIndex(factor) : -1;
    value = unit < 0 ? defaultValue : numberText(double(SceneUnitFactors[unit]));
    return true;
}

bool ZelSettingsValidators::ensureIpOrHostName(const QString&, const QString& defaultValue, QString& value,
                                               QString&)
{
    bool valid = !value.isEmpty() && value.length() <= 255;
    if (valid && !isIpAddress(value, valid))
        valid = isHostName(value);
    if (!valid)
        value = defaultValue;
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
