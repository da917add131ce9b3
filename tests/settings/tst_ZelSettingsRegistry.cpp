#include "../support/Files.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

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
    calls << "first:" + settings.value("a").toString();
    error = settings.contains("bad") ? "first failed" : "";
    return error.isEmpty();
}

} // namespace

class tst_ZelSettingsRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passAndEndChecks()
    {
        // Nothing ever empties the list of end checks.
        QVERIFY(Registry::RegisterEndCheckFunction(&firstCheck));
        QVERIFY(Registry::RegisterEndCheckFunction([](QSettings&, QString&) {
            calls << "second";
            return true;
        }));
        QVERIFY(!Registry::RegisterEndCheckFunction(&firstCheck));
        const QTemporaryDir folder;
        QSettings settings(folder.filePath("Settings.ini"), QSettings::IniFormat);
        settings.setValue("Version", 1);
        settings.setValue("b/known", "old");
        settings.setValue("foreign/key", "kept");
        Registry::RegisterSetting("Version", "2", &ZelSettingsValidators::ensureSettingsVersion);
        Registry::RegisterSetting("b/known", "default", &upper);
        QVERIFY(Registry::RegisterSetting("a", "missing", &upper));
        QVERIFY(!Registry::RegisterSetting("a", "second", &failing));
        QString error;
        QVERIFY(Registry::EnsureSettings(settings, error) && error.isEmpty());
        QCOMPARE(calls.join(' '), QString("a:missing:missing b/known:default:old first:MISSING second"));
        QCOMPARE(contentOf(settings.fileName()),
                 QByteArray("[General]\nVersion=2\na=MISSING\n\n[b]\nknown=OLD\n\n[foreign]\nkey=kept\n"));

        // A failure stops it.
        settings.setValue("bad", "");
        QVERIFY(!Registry::EnsureSettings(settings, error));
        QCOMPARE(error + ": " + calls.last(), QString("first failed: first:MISSING"));
        calls.clear();
        Registry::RegisterSetting("b", "x", &failing);
        QVERIFY(!Registry::EnsureSettings(settings, error) && !settings.contains("b"));
        QCOMPARE(error + ": " + calls.join(' '), QString("b failed: a:missing:MISSING"));
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsRegistry)
#include "tst_ZelSettingsRegistry.moc"
