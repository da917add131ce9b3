#include "../support/Files.h"
#include "QtTestCompat.h"
#include "Rows.h"
#include "SettingsKeys.h"
#include "ZelPageDefaults.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include "platform/MTLogger.h"

using namespace zel;

const char* const DefaultRatios = "1/0.75/0.5/0.25/0.1";

/// The defaults of the pages' keys, some of which a host replaces.
class tst_ZelPageDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ZelSettingsRegistry::ClearSettingsValues(); }

    void defaultsAreValid()
    {
        ZelPageDefaults::Register(QSettings(QString(), QSettings::IniFormat));
        QString value, error;
        QStringList registered; // In the order of the keys.
        for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
            QVERIFY(rule.second(key, rule.first, value = "?", error));
            QVERIFY2((value == "?") == (key == keys::ScreenshotFolder), qPrintable(key));
            registered << rule.first;
        }
        QCOMPARE(registered.join(" "), QString("500000 2147483648 2147483648 2147483648 1/0.75/0.5/0.25/0.1 "
                                               "true 20 false 10 false 0.1 false false 1000 false true true "
                                               "%1 Medium ")
                                           .arg(QThread::idealThreadCount()));
    }

    void defaultsOfTheHost_data()
    {
        const QString folder = QString::fromUtf8("/\303\274");
        const QVariant list = QStringList({"/a", "b"}); // As a comma without quotes.
        const std::tuple<const char*, QString, QVariant, QString, QString> rows[] = {
            {"cores", keys::CoreNumber, "many", QString::number(QThread::idealThreadCount()), "be \"many\""},
            {"check box", keys::UseEdgeDetection, "yes", "false", "useED\" cannot be \"yes\""},
            {"unit", keys::SceneUnits, "7", "1000", "sceneUnits\" cannot be \"7\""},
            {"angle", keys::MaxFaceAngle, "90.5", "20", "cannot be \"90.5\""},
            {"no text", keys::UseSsao, "", "true", "useSSAO\" cannot be \"\""},
            {"ratios", keys::SimplificationRatios, "1/0.5", DefaultRatios, "cannot be \"1/0.5\""},
            {"list", keys::ScreenshotFolder, list, "", "ImageFolder\" cannot be \"/a, b\""},
            {"of no page", "unknown", "1", {}, "no page has a setting \"unknown\""},
            {"repaired", keys::TrianglesCap, "1", "50000", {}},
            {"folder", keys::ScreenshotFolder, folder, folder, {}},
            {"registered before", keys::RaytracerQuality, "Ultra", "Low", {}},
            {"cut file", "", QVariant(), {}, "cannot be read to its end"},
        };
        addRows({"key", "value", "registered", "logged"}, rows);
    }

    void defaultsOfTheHost()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QString, registered);
        QFETCH(QString, logged);
        ZelSettingsRegistry::RegisterSetting(keys::RaytracerQuality, "Low", &ZelSettingsValidators::noOp);
        const QTemporaryDir folder;
        MTLogger::InstallFileHandler(folder.filePath("log.txt").toStdString(), false, "");
        store(folder.filePath("Defaults.ini"), value.isValid() ? "" : "[cut\n");
        QSettings defaults(folder.filePath("Defaults.ini"), QSettings::IniFormat);
        if (value.isValid())
            defaults.setValue(key, value);
        ZelPageDefaults::Register(defaults);
        MTLogger::RemoveFileHandler();
        const QString log = contentOf(folder.filePath("log.txt"));
        QVERIFY2(log.contains(logged) && log.isEmpty() == logged.isEmpty(), qPrintable(log));
        const QString used = ZelSettingsRegistry::GetDefaultSettingsValue(key);
        QVERIFY2(used == registered && used.isNull() == registered.isNull(), qPrintable(used));
    }
};

QTEST_GUILESS_MAIN(tst_ZelPageDefaults)
#include "tst_ZelPageDefaults.moc"
