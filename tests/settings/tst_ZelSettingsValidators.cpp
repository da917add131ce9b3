#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

using namespace zel;
typedef ZelSettingsValidators V;
typedef ZelSettingsRegistry::Validator Validator;

Q_DECLARE_METATYPE(ZelSettingsRegistry::Validator)

class tst_ZelSettingsValidators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data()
    {
        QTest::addColumn<Validator>("validator");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        // Values and what they become, alternating.
        const auto rows = [](const char* name, Validator validator, const QStringList& pairs) {
            for (int i = 0; i < pairs.size(); i += 2)
                QTest::addRow("%s: %s", name, qPrintable(pairs[i].left(30)))
                    << validator << pairs[i] << pairs[i + 1];
        };
        const QString no = "fallback"; // Not valid for any of them: a default is taken as it stands.
        const QString threads = QString::number(QThread::idealThreadCount());
        const QString longHost = QString("a.").repeated(127) + "a";
        rows("noOp", &V::noOp, {"any; text", "any; text"});
        rows("version", &V::ensureSettingsVersion, {"7", no});
        rows("bool", &V::ensureBool, {"true", "true", "false", "false", "True", no, "1", no});
        rows("engine", &V::ensureEngine, {"deferred", "deferred", "software", "software", "Deferred", no});
        rows("log level", &V::ensureLogLevel, {"-4", "0", "7", "7", "2147483648", no, "7x", no});
        rows("positive", &V::ensurePositiveInteger,
             {"9223372036854775807", "9223372036854775807", "0", no, "-1", no, "9223372036854775808", no});
        rows("port", &V::ensurePortValue, {"0", "0", "65535", "65535", "65536", no, "-1", no});
        rows("cache", &V::ensureCacheSize, {"10", "10", "10240", "10240", "9", no, "10241", no});
        rows("ram", &V::ensureSimplificationRAM,
             {"67108864", "67108864", "67108863", no, "8489271296", "8489271296", "8489271297", no});
        rows("threads", &V::ensureSimplificationThreads, {"8", "1"});
        rows("cores", &V::ensureCoreNumber, {"0", "1", "1000", threads, "one", no});
        rows("angle", &V::ensureTesselationMaxFaceAngle, {"-1", "0", "360", "359", "1.5", no});
        rows("length", &V::ensureTesselationMaxFaceLength,
             {"250.5", "100", "-3", "0", "0.1234567", "0.123457", "1e-3", "0.001", "nan", no, "inf", "100",
              "1,5", no, "", no});
        rows("sag", &V::ensureTesselationMaxFaceSag, {"100.01", "100"});
        rows("cap", &V::ensureLODTrianglesCap,
             {"1", "50000", "500000001", "500000000", "60000", "60000", "-5", no});
        rows("gpu", &V::ensureMaxGPUMemory, {"1", "134217728", "8489271297", "8489271296", "much", no});
        rows("raytracer memory", &V::ensureMaxCPUMemoryRaytracer, {"1", "134217728"});
        rows("3d memory", &V::ensureMaxCPUMemory3D, {"8489271297", "8489271296"});
        rows("quality", &V::ensureRaytracerQuality, {"Ultra", "Ultra", "Low", "Low", "ultra", no});
        rows("unit", &V::ensureSceneUnit,
             {"0.0105", "0.01", "5", no, "0.0019", "0.001", "999.9995", "1000", "0", no, "1.0", "1", "nan",
              no, "inf", no});
        rows("host", &V::ensureIpOrHostName,
             {"192.168.1.255", "192.168.1.255", "192.168.1.256", no, "256.1.1", "256.1.1", "my_host", no,
              "a..b.", "a..b.", "", no, longHost, longHost, longHost + "b", no});
    }

    void values()
    {
        QFETCH(Validator, validator);
        QFETCH(QString, text);
        QString error;
        QVERIFY(validator("key", "fallback", text, error));
        QTEST(text, "expected");
        QVERIFY(error.isEmpty());
    }

    void ratios()
    {
        const QString defaults("1/0.75/0.5/0.25/0.1");
        const QStringList pairs = {
            "1/0.5/0.25",           defaults,              // Three numbers.
            "1//0.5/0.25/0.1/0.05", "1/0.5/0.25/0.1/0.05", // An empty part is skipped.
            "1/x/0.5/0.4/0.3/0.2",  "1/0.5/0.4/0.3/0.2",   // So is one that does not parse.
            "nan/1/0.5/0.25/0.1",   defaults,              // Not a number is no number.
            "0.5/2/0.1/0.3/0.001",  "1/1/0.1/0.1/0.01",    // The kernel's correction.
        };
        QString error("untouched");
        for (int i = 0; i < pairs.size(); i += 2) {
            QString value = pairs[i];
            QVERIFY(V::ensureSimplificationRatios("key", defaults, value, error));
            QCOMPARE(value, pairs[i + 1]);
        }
        QString value("1/2");
        QVERIFY(!V::ensureSimplificationRatios("key", "1/0.5", value, error)); // A malformed default.
        QCOMPARE(error, QString("untouched"));
    }

    void folders_data()
    {
        QTest::addColumn<Validator>("validator");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("defaultValue");
        QTest::addColumn<QString>("expected"); ///< Below the test's folder.
        QTest::addColumn<QString>("error");    ///< Nothing when the validator is to succeed.
        const auto row = [](const char* name, Validator validator, const char* value, const char* fallback,
                            const char* expected, const char* error = "") {
            QTest::newRow(name) << validator << QString(value) << QString(fallback) << QString(expected)
                                << QString(error);
        };
        // "there" is a folder, "file" a file that no folder can be made in.
        row("cache there", &V::ensureDMCacheFolder, "there\\", "new", "there");
        row("cache missing", &V::ensureDMCacheFolder, "gone", "a\\b/", "a/b");
        row("cache is a file", &V::ensureDMCacheFolder, "file", "new", "new");
        row("one slash is cut", &V::ensureDMCacheFolder, "there//", "new", "there/");
        row("cache impossible", &V::ensureDMCacheFolder, "gone", "file/b/", "file/b",
            "Could not use the 3D database cache, folder \"%1\" could not be created");
        row("file there", &V::ensureFile, "there\\log.txt", "new/log", "there/log.txt");
        row("file missing", &V::ensureFile, "gone/log", "n\\m/log", "n/m/log");
        row("file impossible", &V::ensureFile, "gone/log", "file/log", "file/log",
            "Could not use the Torvane log file, file \"%1\" could not be created");
        row("tmp there", &V::ensureTmpFolder, "there\\", "deep/made", "there");
        row("tmp missing", &V::ensureTmpFolder, "gone", "made/", "made/");
        row("tmp impossible", &V::ensureTmpFolder, "there", "file/x", "file/x",
            "Could not create compulsory folder \"%1\"");
    }

    void folders()
    {
        QFETCH(Validator, validator);
        QFETCH(QString, value);
        QFETCH(QString, defaultValue);
        QFETCH(QString, expected);
        QFETCH(QString, error);
        QTemporaryDir folder;
        const QString root = folder.path() + "/";
        QVERIFY(QDir(root).mkdir("there"));
        QVERIFY(QFile(root + "file").open(QIODevice::WriteOnly));

        value.prepend(root);
        QString reported;
        QCOMPARE(validator("key", root + defaultValue, value, reported), error.isEmpty());
        QCOMPARE(reported, error.replace("%1", root + expected));
        if (!error.isEmpty())
            return;
        QCOMPARE(value, root + expected);
        const QFileInfo result(value);
        QVERIFY(validator == &V::ensureFile ? result.dir().exists() && !result.exists() : result.isDir());
        // The compulsory folder is made in any case.
        QVERIFY(validator != &V::ensureTmpFolder || QFileInfo(root + defaultValue).isDir());
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsValidators)
#include "tst_ZelSettingsValidators.moc"
