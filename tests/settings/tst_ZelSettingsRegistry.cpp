#include "ZelPageDefaults.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace zel;
using Registry = ZelSettingsRegistry;

namespace {

QStringList calls;

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

bool firstCheck(QSettings& settings, QString& error)
{
    calls << "first";
    if (settings.value("a") == "bad")
        error = "first failed";
    return error.isEmpty();
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
    void init()
    {
        Registry::ClearSettingsValues();
        calls.clear();
    }

    void firstRegistrationWins()
    {
        QVERIFY(Registry::RegisterSetting("key", "one", &upper));
        QVERIFY(!Registry::RegisterSetting("key", "two", &failing));
        QVERIFY(Registry::RegisterSetting("Key", "three", &upper)); // Case counts.
        QCOMPARE(Registry::GetDefaultSettingsValue("key"), QString("one"));
        QVERIFY(Registry::GetDefaultSettingsValues().at("key").second == &upper);
        QVERIFY(Registry::GetDefaultSettingsValue("unknown").isNull());
        Registry::ClearSettingsValues();
        QVERIFY(Registry::GetDefaultSettingsValues().empty());
    }

    void pass()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("Settings.ini"));
        QSettings settings(file.fileName(), QSettings::IniFormat);
        settings.setValue("b/known", "old");
        settings.setValue("settingsVersion", 1);
        settings.setValue("foreign/key", "kept");
        Registry::RegisterSetting("settingsVersion", "2", &ZelSettingsValidators::ensureSettingsVersion);
        Registry::RegisterSetting("b/known", "default", &upper);
        Registry::RegisterSetting("a", "missing", &upper);
        QString error;
        QVERIFY(Registry::EnsureSettings(settings, error) && error.isEmpty());
        QCOMPARE(calls, QStringList({"a:missing:missing", "b/known:default:old"}));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(
            file.readAll(),
            QByteArray("[General]\na=MISSING\nsettingsVersion=2\n\n[b]\nknown=OLD\n\n[foreign]\nkey=kept\n"));

        // A failure stops it.
        calls.clear();
        Registry::RegisterSetting("b", "x", &failing);
        QVERIFY(!Registry::EnsureSettings(settings, error));
        QCOMPARE(error, QString("b failed"));
        QCOMPARE(calls, QStringList("a:missing:MISSING"));
        QVERIFY(!settings.contains("b"));
    }

    void pageDefaults()
    {
        const QTemporaryDir folder;
        QSettings defaults(folder.filePath("Defaults.ini"), QSettings::IniFormat);
        ZelPageDefaults::Register(defaults);
        QVERIFY(Registry::GetDefaultSettingsValues().empty());

        // Key, text, and what is registered; a null text where nothing is.
        const QString rows[][3] = {
            {"raytracer/coreNumber", "100000", QString::number(QThread::idealThreadCount())},
            {"Resources/LODTrianglesCap", "1", "50000"},
            {"deferred/useED", "yes", {}},
            {"deferred/useSSAO", "", {}},
            {"Simplification/Ratios", "1/0.5", {}},
            {"screenshot/ImageFolder", QString::fromUtf8("/\303\274"), QString::fromUtf8("/\303\274")},
            {"raytracer/quality", "Ultra", "Low"}, // Registered before.
            {"unknown", "1", {}}};
        Registry::RegisterSetting("raytracer/quality", "Low", &upper);
        for (const auto& [key, text, registered] : rows)
            defaults.setValue(key, text);
        ZelPageDefaults::Register(defaults);
        for (const auto& [key, text, registered] : rows) {
            QCOMPARE(Registry::GetDefaultSettingsValue(key), registered);
            QCOMPARE(Registry::GetDefaultSettingsValue(key).isNull(), registered.isNull());
        }
    }

    void endChecks()
    {
        // Nothing ever empties their list: other tests of this process have to come before.
        QVERIFY(Registry::RegisterEndCheckFunction(&firstCheck));
        QVERIFY(Registry::RegisterEndCheckFunction(&secondCheck));
        QVERIFY(!Registry::RegisterEndCheckFunction(&firstCheck));
        Registry::ClearSettingsValues();
        const QTemporaryDir folder;
        QSettings settings(folder.filePath("Settings.ini"), QSettings::IniFormat);
        settings.setValue("a", "kept");
        QString error;
        QVERIFY(Registry::EnsureSettings(settings, error));
        settings.setValue("a", "bad");
        QVERIFY(!Registry::EnsureSettings(settings, error));
        QCOMPARE(calls, QStringList({"first", "second:kept", "first"}));
        QCOMPARE(error, QString("first failed"));
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsRegistry)
#include "tst_ZelSettingsRegistry.moc"
