#include "QtTestCompat.h"
#include "Rows.h"
#include "SettingsKeys.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

using namespace zel;
using V = ZelSettingsValidators;
using Validator = ZelSettingsRegistry::Validator;
Q_DECLARE_METATYPE(Validator)

const char* const DefaultRatios = "1/0.75/0.5/0.25/0.1";

class tst_ZelSettingsValidators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data()
    {
        // Not valid but for ratios: a default is taken as it stands.
        const QString no = DefaultRatios;
        const QString threads = QString::number(QThread::idealThreadCount());
        const QString longHost = QString("a.").repeated(127) + "a";
        // Values and what they become, alternating.
        const std::tuple<const char*, Validator, QStringList> rows[] = {
            {"any", &V::noOp, {"any; text", "any; text"}},
            {"version", &V::ensureSettingsVersion, {"7", no}},
            {"truth", &V::ensureBool, {"true", "true", "false", "false", "True", no, "1", no}},
            {"engine", &V::ensureEngine, {"deferred", "deferred", "software", "software", "Deferred", no}},
            {"level", &V::ensureLogLevel, {"-4", "0", "7", "7", "2147483648", no, "7x", no}},
            {"count",
             &V::ensurePositiveInteger,
             {"9223372036854775807", "9223372036854775807", "1", "1", "0", no, "-1", no,
              "9223372036854775808", no}},
            {"port", &V::ensurePortValue, {"0", "0", "65535", "65535", "65536", no, "-1", no}},
            {"cache", &V::ensureCacheSize, {"10", "10", "10240", "10240", "9", no, "10241", no}},
            {"RAM",
             &V::ensureSimplificationRAM,
             {"67108864", "67108864", "67108863", no, "8489271296", "8489271296", "8489271297", no}},
            {"threads", &V::ensureSimplificationThreads, {"8", "1"}},
            {"cores", &V::ensureCoreNumber, {"0", "1", "1000", threads, "one", no}},
            {"angle", &V::ensureTesselationMaxFaceAngle, {"-1", "0", "360", "359", "1.5", no}},
            {"length",
             &V::ensureTesselationMaxFaceLength,
             {"250.5", "100", "-3",    "0", "0.1234567", "0.123457", "1e-3", "0.001", "nan", no,
              "inf",   "100", "1e-50", no,  "1e50",      no,         "1,5",  no,      "",    no}},
            {"sag", &V::ensureTesselationMaxFaceSag, {"100.01", "100", "-3", "0"}},
            {"cap",
             &V::ensureLODTrianglesCap,
             {"1", "50000", "500000001", "500000000", "60000", "60000", "-5", no}},
            {"GPU", &V::ensureMaxGPUMemory, {"1", "134217728", "8489271297", "8489271296", "much", no}},
            {"raytracer", &V::ensureMaxCPUMemoryRaytracer, {"1", "134217728", "8489271297", "8489271296"}},
            {"3D", &V::ensureMaxCPUMemory3D, {"1", "134217728", "8489271297", "8489271296"}},
            {"quality", &V::ensureRaytracerQuality, {"Ultra", "Ultra", "Low", "Low", "ultra", no}},
            {"unit",
             &V::ensureSceneUnit,
             {"0.0105", "0.01", "5", no, "0.0019", "0.001", "999.9995", "1000", "0", no, "1.0", "1", "nan",
              no, "inf", no}},
            {"host",
             &V::ensureIpOrHostName,
             {"192.168.1.255", "192.168.1.255", "192.168.1.256", no, "256.1.1", "256.1.1", "my_host", no,
              "a..b.", "a..b.", "", no, longHost, longHost, longHost + "b", no}},
            // Too few; empty parts and those that do not parse are skipped; the kernel corrects the rest.
            {"ratios",
             &V::ensureSimplificationRatios,
             {"1/0.5/0.25", no, "1//0.5/0.25/x/0.1/0.05", "1/0.5/0.25/0.1/0.05", "nan/1/0.5/0.25/0.1", no,
              "0.5/2/0.1/0.3/0.001", "1/1/0.1/0.1/0.01"}}};
        addRows({"validator", "pairs"}, rows);
    }

    void values()
    {
        QFETCH(Validator, validator);
        QFETCH(QStringList, pairs);
        for (int i = 0; i < pairs.size(); i += 2) {
            QString value = pairs[i], error;
            QVERIFY(validator("key", DefaultRatios, value, error) && error.isEmpty());
            QCOMPARE(pairs[i] + " becomes " + value, pairs[i] + " becomes " + pairs[i + 1]);
        }
    }

    void defaultThatIsNotValid()
    {
        QString value("1/2"), error; // Neither they nor the default are well formed.
        QVERIFY(!V::ensureSimplificationRatios("key", "1/0.5", value, error) && error.isEmpty());
    }

    void folders_data()
    {
        // Below a folder in which "there" is a folder, and "file" a file that no folder can be made in: the
        // value, the default, what comes of it, and the error, or nothing when the validator is to succeed.
        const std::tuple<const char*, Validator, QString, QString, QString, QString> rows[] = {
            {"slash at the end", &V::ensureDMCacheFolder, "there\\", "new", "there", ""},
            {"default with slashes", &V::ensureDMCacheFolder, "gone", "a\\b/", "a/b", ""},
            {"file in place of the folder", &V::ensureDMCacheFolder, "file", "new", "new", ""},
            {"two slashes at the end", &V::ensureDMCacheFolder, "there//", "new", "there/", ""},
            {"default that cannot be created", &V::ensureDMCacheFolder, "gone", "file/b/", "file/b",
             "Could not use the 3D database cache, folder \"%1\" could not be created"},
            {"file in a folder", &V::ensureFile, "there\\log.txt", "new/log", "there/log.txt", ""},
            {"default for a file", &V::ensureFile, "gone/log", "n\\m/log", "n/m/log", ""},
            {"file whose folder cannot be created", &V::ensureFile, "gone/log", "file/log", "file/log",
             "Could not use the Torvane log file, file \"%1\" could not be created"},
            {"temporary folder", &V::ensureTmpFolder, "there\\", "deep/made", "there", ""},
            {"temporary folder that is gone", &V::ensureTmpFolder, "gone", "made/", "made/", ""},
            {"temporary folder that cannot be created", &V::ensureTmpFolder, "there", "file/x", "file/x",
             "Could not create compulsory folder \"%1\""}};
        addRows({"validator", "before", "byDefault", "after", "failure"}, rows);
    }

    void folders()
    {
        QFETCH(Validator, validator);
        QFETCH(QString, before);
        QFETCH(QString, byDefault);
        QFETCH(QString, after);
        QFETCH(QString, failure);
        const QTemporaryDir folder;
        const QString root = folder.path() + "/", expected = root + after;
        QVERIFY(QDir(root).mkdir("there") && QFile(root + "file").open(QIODevice::WriteOnly));
        QString value = root + before, error;
        const bool good = validator("key", root + byDefault, value, error);
        QCOMPARE(error, QString(failure).replace("%1", expected));
        QCOMPARE(good, failure.isEmpty());
        if (!good)
            return;
        QCOMPARE(value, expected);
        const bool file = validator == &V::ensureFile;
        QVERIFY(QFileInfo(file ? QFileInfo(value).path() : value).isDir());
        QVERIFY(!file || !QFile::exists(value));
        // The compulsory folder is made in any case.
        QVERIFY(validator != &V::ensureTmpFolder || QFileInfo(root + byDefault).isDir());
    }
};

QTEST_GUILESS_MAIN(tst_ZelSettingsValidators)
#include "tst_ZelSettingsValidators.moc"
