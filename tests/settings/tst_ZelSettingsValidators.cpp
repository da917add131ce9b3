#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

using namespace zel;
typedef ZelSettingsValidators V;

Q_DECLARE_METATYPE(ZelSettingsRegistry::Validator)

class tst_ZelSettingsValidators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void malformedRatioDefault();
    void cleanupFolder_data();
    void cleanupFolder();
    void folders_data();
    void folders();
    void tmpFolderDefaultIsAlwaysMade();
};

void tst_ZelSettingsValidators::values_data()
{
    QTest::addColumn<ZelSettingsRegistry::Validator>("validator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    const QString fallback("fallback"); // Not valid for any of them: a default is taken as it stands.
    const QString longHost = QString("a.").repeated(127) + "a";
    const struct
    {
        const char* name;
        ZelSettingsRegistry::Validator validator;
        /// Value and what it becomes, alternating; a null text stands for the default.
        QStringList pairs;
    } groups[] = {
        {"noOp", &V::noOp, {"", "", "any; text", "any; text"}},
        {"version", &V::ensureSettingsVersion, {"7", QString(), "", QString()}},
        {"bool", &V::ensureBool, {"true", "true", "false", "false", "True", QString(), "1", QString()}},
        {"engine", &V::ensureEngine, {"deferred", "deferred", "software", "software", "Deferred", QString()}},
        {"log level", &V::ensureLogLevel, {"-4", "0", "7", "7", "2147483648", QString(), "7x", QString()}},
        {"positive",
         &V::ensurePositiveInteger,
         {"9223372036854775807", "9223372036854775807", "1", "1", "0", QString(), "-1", QString(),
          "9223372036854775808", QString(), "x", QString()}},
        {"port",
         &V::ensurePortValue,
         {"0", "0", "65535", "65535", "65536", QString(), "-1", QString(), "80a", QString()}},
        {"cache",
         &V::ensureCacheSize,
         {"10", "10", "10240", "10240", "9", QString(), "10241", QString(), "-20", QString()}},
        {"ram",
         &V::ensureSimplificationRAM,
         {"67108864", "67108864", "67108863", QString(), "8489271296", "8489271296", "8489271297",
          QString()}},
        {"threads", &V::ensureSimplificationThreads, {"8", "1", "x", "1"}},
        {"cores",
         &V::ensureCoreNumber,
         {"0", "1", "1000", QString::number(QThread::idealThreadCount()), "one", QString()}},
        {"angle",
         &V::ensureTesselationMaxFaceAngle,
         {"-1", "0", "359", "359", "360", "359", "1.5", QString()}},
        {"length",
         &V::ensureTesselationMaxFaceLength,
         {"250.5", "100", "-3", "0", "0.1234567", "0.123457", "1e-3", "0.001", "nan", QString(), "inf", "100",
          "1,5", QString(), "", QString()}},
        {"sag", &V::ensureTesselationMaxFaceSag, {"100.01", "100", "nan", QString()}},
        {"cap",
         &V::ensureLODTrianglesCap,
         {"1", "50000", "500000001", "500000000", "60000", "60000", "-5", QString()}},
        {"gpu",
         &V::ensureMaxGPUMemory,
         {"1", "134217728", "99999999999", "8489271296", "1073741824", "1073741824", "much", QString()}},
        {"raytracer memory", &V::ensureMaxCPUMemoryRaytracer, {"1", "134217728"}},
        {"3d memory", &V::ensureMaxCPUMemory3D, {"8489271297", "8489271296"}},
        {"quality", &V::ensureRaytracerQuality, {"Ultra", "Ultra", "Low", "Low", "ultra", QString()}},
        {"unit",
         &V::ensureSceneUnit,
         {"0.0105", "0.01", "5", QString(), "0.0019", "0.001", "999.9995", "1000", "0", QString(), "1.0", "1",
          "nan", QString(), "inf", QString()}},
        {"host",
         &V::ensureIpOrHostName,
         {"192.168.1.255", "192.168.1.255", "192.168.1.256", QString(), "256.1.1", "256.1.1", "my_host",
          QString(), "a..b.", "a..b.", "", QString(), longHost, longHost, longHost + "b", QString()}},
    };
    for (const auto& group : groups)
        for (int i = 0; i < group.pairs.size(); i += 2) {
            const QString expected = group.pairs[i + 1].isNull() ? fallback : group.pairs[i + 1];
            QTest::addRow("%s: %s", group.name, qPrintable(group.pairs[i].left(30)))
                << group.validator << group.pairs[i] << expected;
        }
}

void tst_ZelSettingsValidators::values()
{
    QFETCH(ZelSettingsRegistry::Validator, validator);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QString error;
    QVERIFY(validator("key", "fallback", text, error));
    QCOMPARE(text, expected);
    QVERIFY(error.isEmpty());
}

void tst_ZelSettingsValidators::malformedRatioDefault()
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
    QVERIFY(!V::ensureSimplificationRatios("key", "1/0.5", value, error));
    QCOMPARE(error, QString("untouched"));
}

void tst_ZelSettingsValidators::cleanupFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("backslashes") << "C:\\data\\"
                                 << "C:/data";
    QTest::newRow("one slash only") << "a//"
                                    << "a/";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_ZelSettingsValidators::cleanupFolder()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    V::CleanupFolder(path);
    QCOMPARE(path, expected);
}

void tst_ZelSettingsValidators::folders_data()
{
    QTest::addColumn<ZelSettingsRegistry::Validator>("validator");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QString>("expected"); ///< Below the test's folder; null when the validator is to fail.
    QTest::addColumn<QString>("error");

    const QString cacheError("Could not use the 3D database cache, folder \"%1\" could not be created");
    const QString fileError("Could not use the Torvane log file, file \"%1\" could not be created");
    const QString tmpError("Could not create compulsory folder \"%1\"");
    // "there" is a folder, "file" a file that no folder can be made in.
    QTest::newRow("cache there") << &V::ensureDMCacheFolder << "there\\"
                                 << "new"
                                 << "there"
                                 << "";
    QTest::newRow("cache missing") << &V::ensureDMCacheFolder << "gone"
                                   << "a\\b/"
                                   << "a/b"
                                   << "";
    QTest::newRow("cache is a file") << &V::ensureDMCacheFolder << "file"
                                     << "new"
                                     << "new"
                                     << "";
    QTest::newRow("cache impossible") << &V::ensureDMCacheFolder << "gone"
                                      << "file/b/" << QString() << cacheError;
    QTest::newRow("file there") << &V::ensureFile << "there\\log.txt"
                                << "new/log"
                                << "there/log.txt"
                                << "";
    QTest::newRow("file missing") << &V::ensureFile << "gone/log"
                                  << "n\\m/log"
                                  << "n/m/log"
                                  << "";
    QTest::newRow("file impossible") << &V::ensureFile << "gone/log"
                                     << "file/log" << QString() << fileError;
    QTest::newRow("tmp there") << &V::ensureTmpFolder << "there\\"
                               << "made"
                               << "there"
                               << "";
    QTest::newRow("tmp missing") << &V::ensureTmpFolder << "gone"
                                 << "made/"
                                 << "made/"
                                 << "";
    QTest::newRow("tmp impossible") << &V::ensureTmpFolder << "there"
                                    << "file/x" << QString() << tmpError;
}

void tst_ZelSettingsValidators::folders()
{
    QFETCH(ZelSettingsRegistry::Validator, validator);
    QFETCH(QString, value);
    QFETCH(QString, defaultValue);
    QFETCH(QString, expected);
    QFETCH(QString, error);

    QTemporaryDir folder;
    const QString root = folder.path() + "/";
    QVERIFY(QDir(root).mkdir("there"));
    QFile file(root + "file");
    QVERIFY(file.open(QIODevice::WriteOnly));

    value.prepend(root);
    QString reported;
    QCOMPARE(validator("key", root + defaultValue, value, reported), !expected.isNull());
    if (expected.isNull()) {
        QString named = root + defaultValue;
        V::CleanupFolder(named);
        QCOMPARE(reported, error.arg(named));
        return;
    }
    QCOMPARE(value, root + expected);
    QVERIFY(reported.isEmpty());
    const QFileInfo result(value);
    QVERIFY(validator == &V::ensureFile ? result.dir().exists() && !result.exists() : result.isDir());
}

void tst_ZelSettingsValidators::tmpFolderDefaultIsAlwaysMade()
{
    QTemporaryDir folder;
    QString value = folder.path(), error;
    QVERIFY(V::ensureTmpFolder("key", folder.filePath("deep/default"), value, error));
    QCOMPARE(value, folder.path());
    QVERIFY(QFileInfo(folder.filePath("deep/default")).isDir());
    value.clear();
    QVERIFY(V::ensureTmpFolder("key", folder.filePath("deep/default"), value, error));
    QCOMPARE(value, folder.filePath("deep/default"));
}

QTEST_GUILESS_MAIN(tst_ZelSettingsValidators)
#include "tst_ZelSettingsValidators.moc"
