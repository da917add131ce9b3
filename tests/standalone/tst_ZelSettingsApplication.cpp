#include "Version.h"
#include "ZelSettingsApplication.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ZelSettingsApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsItsSettingsInItsFolder()
    {
        QTemporaryDir folder;
        zel::ZelSettingsApplication application(folder.path());
        QCOMPARE(application.getSettings().fileName(), folder.filePath("Settings.ini"));
        QVERIFY(application.getLanguageCode().isNull() && !application.isDiagModeEnable());
        application.setLanguageCode("fr");
        QCOMPARE(application.getLanguageCode(), QString("fr"));
        application.getSettings().setValue("enablediag", "true");
        QVERIFY(application.isDiagModeEnable());
    }

    void versionTextsAgree()
    {
        typedef ZelControlCenter::Version Version;
        const QString numbers = "1.1.0.85";
        for (bool internal : {true, false}) {
            QCOMPARE(Version::GetDescStringMajorMinorReleaseRevision(internal), qPrintable(numbers));
            QVERIFY(numbers.startsWith(QString(Version::GetDescStringMajorMinorRelease(internal)) + "."));
            QVERIFY(numbers.startsWith(QString(Version::GetDescStringMajorMinor(internal)) + "."));
        }
        QCOMPARE(QString(Version::GetDescStringMajorMinorReleaseRevisionDate()), numbers + " 2024-1");
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsApplication)
#include "tst_ZelSettingsApplication.moc"
