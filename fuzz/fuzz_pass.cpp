// Fuzzes the validation pass with any bytes as a settings file. The file is in memory, and the folders that
// it names are made up, because the system calls for them would take most of the time.

#include "Check.h"
#include "FolderFunctions.h"
#include "SettingsDamage.h"
#include "SettingsKeys.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <new>

using namespace zel;

namespace {

using V = ZelSettingsValidators;

/// Values by key, as bytes, because QVariant cannot compare the types of QtGui here.
using Content = QMap<QString, QByteArray>;

/// Where the settings file is.
const QTemporaryDir& folder()
{
    const QString memory = "/dev/shm";
    const bool isChosen = qEnvironmentVariableIsSet("TMPDIR") || !QFileInfo(memory).isWritable();
    static const QTemporaryDir created((isChosen ? QDir::tempPath() : memory) + "/fuzz_pass");
    return created;
}

bool isFolder(const QString& path)
{
    static const QStringList folders = {"/", "/tmp", QDir::currentPath(), "/data", "/cache", "/scratch"};
    return folders.contains(QDir::cleanPath(path));
}

void registerSettings()
{
    const struct
    {
        const char* key;
        QString defaultValue;
        ZelSettingsRegistry::Validator validator;
    } settings[] = {
        {keys::Engine, engines::Deferred, &V::ensureEngine},
        {keys::SettingsVersion, QString::number(CurrentSettingsVersion), &V::ensureSettingsVersion},
        {keys::LogTypeBlackList, QString(), &V::noOp},
        {keys::LogFile, "/data/log.txt", &V::ensureFile},
        {keys::CacheSize, "4096", &V::noOp},
        {keys::CacheDirectory, "/cache", &V::ensureDMCacheFolder},
        {keys::SimplificationRatios, "1/0.75/0.5/0.25/0.1", &V::ensureSimplificationRatios},
        {keys::MaxFaceAngle, "15", &V::ensureTesselationMaxFaceAngle},
        {keys::MaxFaceLength, "10", &V::ensureTesselationMaxFaceLength},
        {keys::MaxFaceSag, "0.2", &V::ensureTesselationMaxFaceSag},
        {keys::TrianglesCap, "20000000", &V::ensureLODTrianglesCap},
        {keys::MaxGpuMemory, "1073741824", &V::ensureMaxGPUMemory},
        {keys::SceneUnits, "1", &V::ensureSceneUnit},
        {keys::UseEdgeDetection, "true", &V::ensureBool},
        {keys::CoreNumber, "1", &V::ensureCoreNumber},
        {keys::RaytracerQuality, "Medium", &V::ensureRaytracerQuality},
        // What an application may add. Each kind of rule stands here once: more keys take more time.
        {"network/host", "localhost", &V::ensureIpOrHostName},
        {"network/port", "8080", &V::ensurePortValue},
        {"network/cache", "100", &V::ensureCacheSize},
        {"log/level", "1", &V::ensureLogLevel},
        {"log/count", "5", &V::ensurePositiveInteger},
        {"Simplification/RAM", "1073741824", &V::ensureSimplificationRAM},
        {"Simplification/Threads", "1", &V::ensureSimplificationThreads},
        {"tmp/folder", "/scratch", &V::ensureTmpFolder},
    };
    for (const auto& setting : settings)
        ZelSettingsRegistry::RegisterSetting(setting.key, setting.defaultValue, setting.validator);
}

QByteArray bytes(const QString& path)
{
    QFile file(path);
    check(file.open(QIODevice::ReadOnly), "the file exists", path);
    return file.readAll();
}

/// A value in one form for all types in which QSettings may read it: numbers and booleans as text, and both
/// kinds of lists alike.
QByteArray comparable(const QVariant& value)
{
    QByteArray result;
    if (value.type() == QVariant::List || value.type() == QVariant::StringList) {
        for (const QVariant& item : value.toList())
            result += comparable(item) + '\0';
    } else if (value.canConvert(QVariant::String)) {
        result = value.toString().toUtf8();
    } else {
        QDataStream stream(&result, QIODevice::WriteOnly);
        stream << value;
    }
    return result;
}

/// The values of all keys that are not registered. QSettings keeps "a//b", but looks for "a/b" in its place.
Content unknownContent(const QSettings& settings)
{
    Content content;
    for (const QString& key : settings.allKeys()) {
        if (!ZelSettingsRegistry::GetDefaultSettingsValues().count(key))
            content[key] = key.contains("//") ? QByteArray() : comparable(settings.value(key));
    }
    return content;
}

QString text(const Content& content)
{
    QString result;
    QDebug(&result) << content;
    return result;
}

void checkRegisteredValues(const QSettings& settings)
{
    for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        check(settings.contains(key), "every registered key is in the file", key);
        const QString stored = settings.value(key).toString();
        QString repaired = stored, error;
        check(rule.second(key, rule.first, repaired, error), "every stored value is accepted", key, stored);
        check(repaired == stored, "every stored value is left as it is", key, stored, repaired);
    }
}

/// Repairs the file, as a start does.
void runPass(const QString& path)
{
    QString error;
    check(ZelSettingsFile::Repair(*ZelSettingsFile::Open(path), error), "the pass succeeds", error);
}

bool hasFolderWithSlash(const QString& path)
{
    const auto settings = ZelSettingsFile::Open(path);
    const char* const folders[] = {keys::LogFile, keys::CacheDirectory, "tmp/folder"};
    return std::any_of(std::begin(folders), std::end(folders),
                       [&](const char* key) { return settings->value(key).toString().endsWith('/'); });
}

/// A name that QSettings has not seen yet: it remembers what it has read from a file.
QString newPath()
{
    static int number = 0;
    return folder().filePath(QString("Settings%1.ini").arg(++number));
}

QString writeInput(const QByteArray& input)
{
    const QString path = newPath();
    QFile file(path);
    check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(input) == input.size(),
          "the input can be written", path);
    return path;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    new QCoreApplication(*argc, *argv); // For the whole run.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    folderFunctions = {&isFolder, &isFolder};
    registerSettings();
    return 0;
}

namespace {

void testInput(const QByteArray& input)
{
    const QString once = writeInput(input);
    const bool damaged = !settingsDamage(input).isEmpty();
    const Content unknown = unknownContent(*ZelSettingsFile::Open(once));
    // Each pass removes only one slash from the end of a folder.
    do
        runPass(once);
    while (hasFolderWithSlash(once));

    const QString twice = newPath();
    check(QFile::rename(once, twice), "the file is there");
    const QByteArray written = bytes(twice);
    auto settings = ZelSettingsFile::Open(twice);
    checkRegisteredValues(*settings);
    const Content kept = unknownContent(*settings);
    if (!damaged && kept != unknown)
        check(false, "unknown keys of an undamaged file are untouched", text(unknown), text(kept));
    check(settingsDamage(written).isEmpty(), "what the pass has written is not damaged", written);
    runPass(twice);
    const QByteArray writtenAgain = bytes(twice);
    check(writtenAgain == written, "a second pass changes nothing", written, writtenAgain);
}

void removeFiles()
{
    for (const auto& file : std::filesystem::directory_iterator(folder().path().toStdString()))
        std::filesystem::remove(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    try {
        testInput(QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    } catch (const std::bad_alloc&) {
        // QSettings allocates as much memory as a stored "@Variant(...)" asks for.
    }
    removeFiles();
    return 0;
}
