#include "SettingsKeys.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace zel;
typedef ZelSettingsRegistry Registry;
typedef ZelSettingsValidators Validators;

namespace {

QStringList calls;
bool endCheckResult = true;

bool upper(const QString& key, const QString& defaultValue, QString& value, QString&)
{
    calls << key + ":" + defaultValue + ":" + value;
    value = value.toUpper();
    return true;
}

bool failing(const QString& key, const QString&, QString&, QString& error)
{
    error = key + " failed";
    return false;
}

bool firstCheck(QSettings&, QString& error)
{
    calls << "first";
    if (!endCheckResult)
        error = "first failed";
    return endCheckResult;
}

bool secondCheck(QSettings& settings, QString&)
{
    calls << "second:" + settings.value("a").toString();
    return true;
}

} // namespace

class tst_ZelSettingsRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstRegistrationWins();
    void passRepairsAndCompletes();
    void failureStopsThePass();
    void endChecks();
    void catalogue();

private:
    QString onDisk() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
};

void tst_ZelSettingsRegistry::init()
{
    Registry::ClearSettingsValues();
    calls.clear();
    endCheckResult = true;
    m_settings.reset();
    m_folder.reset(new QTemporaryDir);
    m_settings.reset(new QSettings(m_folder->filePath("Settings.ini"), QSettings::IniFormat));
}

QString tst_ZelSettingsRegistry::onDisk() const
{
    QFile file(m_settings->fileName());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void tst_ZelSettingsRegistry::firstRegistrationWins()
{
    QVERIFY(Registry::RegisterSetting("key", "one", &upper));
    QVERIFY(!Registry::RegisterSetting("key", "two", &failing));
    QVERIFY(Registry::RegisterSetting("Key", "three", &upper)); // Case counts.
    QCOMPARE(Registry::GetDefaultSettingsValue("key"), QString("one"));
    QVERIFY(Registry::GetDefaultSettingsValues().at("key").second == &upper);
    QCOMPARE(Registry::GetDefaultSettingsValues().begin()->first, QString("Key"));
    QVERIFY(Registry::GetDefaultSettingsValue("unknown").isNull());
    Registry::ClearSettingsValues();
    QVERIFY(Registry::GetDefaultSettingsValues().empty());
    QVERIFY(Registry::RegisterSetting("key", "two", &upper));
    QCOMPARE(Registry::GetDefaultSettingsValue("key"), QString("two"));
}

void tst_ZelSettingsRegistry::passRepairsAndCompletes()
{
    m_settings->setValue("b/known", "old");
    m_settings->setValue("settingsVersion", 1);
    m_settings->setValue("foreign/key", "kept");
    Registry::RegisterSetting("settingsVersion", "2", &Validators::ensureSettingsVersion);
    Registry::RegisterSetting("b/known", "default", &upper);
    Registry::RegisterSetting("a", "missing", &upper);
    QString error("untouched");
    QVERIFY(Registry::EnsureSettings(*m_settings, error));
    QCOMPARE(error, QString("untouched"));
    QCOMPARE(calls, QStringList({"a:missing:missing", "b/known:default:old"}));
    QCOMPARE(onDisk(),
             QString("[General]\na=MISSING\nsettingsVersion=2\n\n[b]\nknown=OLD\n\n[foreign]\nkey=kept\n"));
}

void tst_ZelSettingsRegistry::failureStopsThePass()
{
    for (const char* key : {"a", "b", "d"})
        Registry::RegisterSetting(key, "x", &upper);
    Registry::RegisterSetting("c", "x", &failing);
    QString error;
    QVERIFY(!Registry::EnsureSettings(*m_settings, error));
    QCOMPARE(error, QString("c failed"));
    QCOMPARE(calls, QStringList({"a:x:x", "b:x:x"}));
    QCOMPARE(m_settings->value("b").toString(), QString("X"));
    QVERIFY(!m_settings->contains("c"));
    QVERIFY(!QFile::exists(m_settings->fileName()));
}

void tst_ZelSettingsRegistry::endChecks()
{
    // The list outlives every other test of this process: nothing ever empties it.
    QVERIFY(Registry::RegisterEndCheckFunction(&firstCheck));
    QVERIFY(Registry::RegisterEndCheckFunction(&secondCheck));
    QVERIFY(!Registry::RegisterEndCheckFunction(&firstCheck));
    Registry::RegisterSetting("a", "x", &upper);
    Registry::ClearSettingsValues();
    m_settings->setValue("a", "kept");
    QString error;
    QVERIFY(Registry::EnsureSettings(*m_settings, error));
    QCOMPARE(calls, QStringList({"first", "second:kept"}));
    calls.clear();
    endCheckResult = false;
    QVERIFY(!Registry::EnsureSettings(*m_settings, error));
    QCOMPARE(calls, QStringList("first"));
    QCOMPARE(error, QString("first failed"));
    endCheckResult = true;
}

void tst_ZelSettingsRegistry::catalogue()
{
    const QString home = m_folder->filePath(QString::fromUtf8("H\u00e9l\u00e8ne"));
    qputenv("XDG_CONFIG_HOME", (home + "/back\\slash/").toUtf8());
    qputenv("XDG_CACHE_HOME", (home + "/cache").toUtf8());
    Registry::RegisterSetting(keys::CacheSize, "77", &Validators::ensureCacheSize);
    ZelSettingsCatalogue::InitDefaultSettingsValues("Editor");
    ZelSettingsCatalogue::InitDefaultSettingsValues("Other");

    QStringList registered;
    for (const auto& setting : Registry::GetDefaultSettingsValues())
        registered << setting.first;
    QCOMPARE(registered, QStringList({"DBCache/cacheDirectory", "DBCache/cacheSize", "Logging/logFile",
                                      "debuglogtypeblacklist", "enablediag", "engine", "settingsVersion"}));
    QCOMPARE(Registry::GetDefaultSettingsValue(keys::CacheSize), QString("77"));
    QCOMPARE(Registry::GetDefaultSettingsValue(keys::SettingsVersion), QString("2"));
    QVERIFY(Registry::GetDefaultSettingsValue(keys::LogTypeBlackList).isNull());
    const QString logFile = Registry::GetDefaultSettingsValue(keys::LogFile);
    QVERIFY2(logFile.startsWith(home + "/back/slash/") && logFile.endsWith("/Editor/log.txt"),
             qPrintable(logFile));
    const QString cache = Registry::GetDefaultSettingsValue(keys::CacheDirectory);
    QVERIFY2(cache.startsWith(home + "/cache/Editor/"), qPrintable(cache));

    QString error;
    QVERIFY2(Registry::EnsureSettings(*m_settings, error), qPrintable(error));
    QVERIFY(QFileInfo(cache).isDir());
    QVERIFY(QFileInfo(logFile).dir().exists());
}

QTEST_GUILESS_MAIN(tst_ZelSettingsRegistry)
#include "tst_ZelSettingsRegistry.moc"
