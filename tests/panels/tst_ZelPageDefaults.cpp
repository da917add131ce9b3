#include "ZelControlCenter.h"
#include "ZelPageDefaults.h"

#include <QtTest>

using namespace zel;

class tst_ZelPageDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registersWhatTheValidatorsAccept()
    {
        const QTemporaryDir folder;
        QSettings defaults(folder.filePath("Defaults.ini"), QSettings::IniFormat);
        ZelPageDefaults::Register(defaults);
        QVERIFY(ZelControlCenter::GetDefaultSettingsValues().empty());

        // Key, text, and what is registered; a null text where nothing is.
        const QString folderName = QString::fromUtf8("/\303\274");
        const QString rows[][3] = {
            {"raytracer/coreNumber", "100000", QString::number(QThread::idealThreadCount())},
            {"Resources/LODTrianglesCap", "1", "50000"},
            {"deferred/useED", "yes", {}},
            {"deferred/useSSAO", "", {}},
            {"Simplification/Ratios", "1/0.5", {}},
            {"screenshot/ImageFolder", folderName, folderName},
            {"raytracer/quality", "Ultra", "Low"}, // Registered before.
            {"unknown", "1", {}}};
        ZelControlCenter::RegisterSetting("raytracer/quality", "Low", &ZelControlCenter::noOp);
        for (const auto& [key, text, registered] : rows)
            defaults.setValue(key, text);
        ZelPageDefaults::Register(defaults);
        for (const auto& [key, text, registered] : rows) {
            QCOMPARE(ZelControlCenter::GetDefaultSettingsValue(key), registered);
            QCOMPARE(ZelControlCenter::GetDefaultSettingsValue(key).isNull(), registered.isNull());
        }
    }
};

QTEST_GUILESS_MAIN(tst_ZelPageDefaults)
#include "tst_ZelPageDefaults.moc"
