#include "Version.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QTemporaryDir>
#include <QtTest>

using zel::ZelSettingsApplication;

class tst_ZelSettingsApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersNothingButItsSettings();
    void versionTextsAgree();
};

void tst_ZelSettingsApplication::answersNothingButItsSettings()
{
    QTemporaryDir folder;
    const QString path = folder.path() + QString::fromUtf8("/\u8a2d\u5b9a");
    QVERIFY(QDir().mkpath(path));
    ZelSettingsApplication application(path);
    QCOMPARE(application.getApplicationFolder(), path);
    QCOMPARE(application.getSettings().fileName(), path + "/Settings.ini");
    QVERIFY(application.getLanguageCode().isNull());
    application.setLanguageCode("fr");
    QCOMPARE(application.getLanguageCode(), QString("fr"));

    application.setScreenshotImageFolder(path);
    QVERIFY(application.getScreenshotImageFolder().isNull());
    zel::ZelSettingsRegistry::RegisterSetting("engine", "deferred",
                                              &zel::ZelSettingsValidators::ensureEngine);
    QVERIFY(application.getDefaultSettingsValue("engine").isNull());
    QVERIFY(!application.getGuiPlugin() && !application.getDMManager() && !application.getDMRenderer() &&
            !application.getActionManager() && application.getPluginsList().empty());
    QVERIFY(application.grabSelection().isEmpty() && application.is3DSelectionPickingEnabled());
    QVERIFY(!application.saveDocument() && !application.removeComponent(1));

    QVERIFY(!application.isDiagModeEnable());
    application.getSettings().setValue("enablediag", "true");
    QVERIFY(application.isDiagModeEnable());
    application.getSettings().setValue("name", QString::fromUtf8("\u00e9"));
    application.getSettings().sync();
    QFile file(path + "/Settings.ini");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("name=\xc3\xa9"));
}

void tst_ZelSettingsApplication::versionTextsAgree()
{
    typedef ZelControlCenter::Version Version;
    const QString numbers = QString("%1.%2.%3.%4")
                                .arg(Version::GetMajor())
                                .arg(Version::GetMinor())
                                .arg(Version::GetRelease())
                                .arg(Version::GetRevision());
    QCOMPARE(numbers, QString("1.1.0.85"));
    for (bool internal : {true, false}) {
        QCOMPARE(Version::GetDescStringMajorMinorReleaseRevision(internal), qPrintable(numbers));
        QVERIFY(numbers.startsWith(QString(Version::GetDescStringMajorMinorRelease(internal)) + "."));
        QVERIFY(numbers.startsWith(QString(Version::GetDescStringMajorMinor(internal)) + "."));
    }
    QCOMPARE(QString(Version::GetDescStringMajorMinorReleaseRevisionDate()),
             QString("%1 %2-%3").arg(numbers).arg(Version::GetYear()).arg(Version::GetMonth()));
    QCOMPARE(int(Version::GetYear()) * 100 + Version::GetMonth(), 202401);
}

QTEST_GUILESS_MAIN(tst_ZelSettingsApplication)
#include "tst_ZelSettingsApplication.moc"
