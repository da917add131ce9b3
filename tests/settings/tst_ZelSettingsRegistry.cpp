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
    const bool good = settings.value("a") != "bad";
    error = good ? error : "first failed";
    return good;
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
        m_settings.reset();
        m_folder.reset(new QTemporaryDir);
        m_settings.reset(new QSettings(m_folder->filePath("Settings.ini"), QSettings::IniFormat));
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

    void passRepairsAndCompletes()
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
        QFile file(m_settings->fileName());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(
            file.readAll(),
            QByteArray("[General]\na=MISSING\nsettingsVersion=2\n\n[b]\nknown=OLD\n\n[foreign]\nkey=kept\n"));
    }

    void failureStopsThePass()
    {
        for (const char* key : {"a", "b", "d"})
            Registry::RegisterSetting(key, "x", &upper);
        Registry::RegisterSetting("c", "x", &failing);
        QString error;
        QVERIFY(!Registry::EnsureSettings(*m_settings, error));
        QCOMPARE(error, QString("c failed"));
        QCOMPARE(calls, QStringList({"a:x:x", "b:x:x"}));
        QCOMPARE(m_settings->value("b").toString(), QString("X"));
        QVERIFY(!m_settings->contains("c") && !QFile::exists(m_settings->fileName()));
    }

    void endChecks()
    {
        // The list outlives every other test of this process: nothing ever empties it.
        QVERIFY(Registry::RegisterEndCheckFunction(&firstCheck));
        QVERIFY(Registry::RegisterEndCheckFunction(&secondCheck));
        QVERIFY(!Registry::RegisterEndCheckFunction(&firstCheck));
        Registry::ClearSettingsValues();
        m_settings->setValue("a", "kept");
        QString error;
        QVERIFY(Registry::EnsureSettings(*m_settings, error));
        QCOMPARE(calls, QStringList({"first", "second:kept"}));
        calls.clear();
        m_settings->setValue("a", "bad");
        QVERIFY(!Registry::EnsureSettings(*m_settings, error));
        QCOMPARE(calls, QStringList("first"));
        QCOMPARE(error, QString("first failed"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
};

QTEST_GUILESS_MAIN(tst_ZelSettingsRegistry)
#include "tst_ZelSettingsRegistry.moc"
