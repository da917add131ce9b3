#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

/// The console program as an administrator runs it, without a display.
class tst_SettingsCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsAndRepairs_data();
    void tellsAndRepairs();
    void cannotBeRepaired_data();
    void cannotBeRepaired();
    void usage_data();
    void usage();
    void needsNoWidgets();

private:
    /// Runs the program and returns its exit code; what it prints is left in m_output.
    int run(const QStringList& arguments);
    QJsonObject json() const;
    QString path(const char* name) const { return m_folder->filePath(name); }
    QByteArray content() const;
    QStringList everything() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    QByteArray m_output;
};

void tst_SettingsCheck::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QString::fromUtf8("\303\234ser \360\237\231\202.ini"));
}

int tst_SettingsCheck::run(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", path("config"));
    environment.insert("XDG_CACHE_HOME", path("cache"));
    environment.insert("LC_ALL", "C");
    environment.remove("DISPLAY");
    process.setProcessEnvironment(environment);
    process.start(TORVANE_SETTINGS_CHECK, arguments);
    process.waitForFinished();
    m_output = process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QJsonObject tst_SettingsCheck::json() const
{
    return QJsonDocument::fromJson(m_output).object();
}

QByteArray tst_SettingsCheck::content() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList tst_SettingsCheck::everything() const
{
    QStringList names;
    QDirIterator all(m_folder->path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext())
        names += all.next();
    names.sort();
    return names;
}

void tst_SettingsCheck::tellsAndRepairs_data()
{
    QTest::addColumn<QByteArray>("before"); ///< Null for no file.
    QTest::addColumn<QString>("key");       ///< One that is changed.
    QTest::addColumn<QString>("oldText");   ///< Null when it is missing.
    QTest::addColumn<QString>("newText");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("damage");
    const auto row = [](const char* name, const QByteArray& before, const char* key, const char* oldText,
                        const char* newText, const char* reason, const char* damage = "") {
        QTest::newRow(name) << before << key << QString(oldText) << newText << reason << damage;
    };
    row("no file", QByteArray(), "engine", nullptr, "deferred", "missing");
    row("missing", "[x]\ny=\360\237\231\202\n", "settingsVersion", nullptr, "2", "missing");
    row("wrong case", "[General]\nengine=Deferred\n", "engine", "Deferred", "deferred",
        "neither deferred nor");
    row("old version", "[General]\nsettingsVersion=1\n", "settingsVersion", "1", "2", "not the current");
    row("steers a terminal", "[General]\nenablediag=\"a\\\"\\n\\x1b[31m\"\n", "enablediag", "a\"\n\x1b[31m",
        "false", "true nor");
    row("list", "[General]\ndebuglogtypeblacklist=debug, info\n", "debuglogtypeblacklist", "debug, info", "",
        "list");
    row("no such folder", "[DBCache]\ncacheDirectory=/gone\n", "DBCache/cacheDirectory", "/gone",
        "%1/cache/TorvaneBoundlessX64/%2", "existing folder");
    row("backslash", "[Logging]\nlogFile=%1\\\\log\n", "Logging/logFile", "%1\\log", "%1/log", "usual way");
    row("damaged", "[General]\nengine=none\nno settings\n", "engine", "none", "deferred", "neither",
        "line 3 cannot be read");
}

void tst_SettingsCheck::tellsAndRepairs()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, key);
    QFETCH(QString, oldText);
    QFETCH(QString, newText);
    QFETCH(QString, reason);
    QFETCH(QString, damage);
    before.replace("%1", m_folder->path().toUtf8());
    QFile file(m_file);
    if (!before.isNull())
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(before) == before.size());
    file.close();

    const QStringList untouched = everything();
    QCOMPARE(run({m_file}), 1);
    QVERIFY2(m_output.count('\x1b') == 0 && m_output.contains("needs repair"), m_output.constData());
    QCOMPARE(run({"--json", m_file}), 1);
    QCOMPARE(everything(), untouched);
    QCOMPARE(content(), before);
    QCOMPARE(json()["file"].toString(), m_file);
    QCOMPARE(json()["damage"].toString(), damage);
    QVERIFY(!json()["folders"].toArray().isEmpty());
    const QJsonArray changes = json()["changes"].toArray();
    QJsonObject change;
    for (const QJsonValue& one : changes) {
        if (one.toObject()["key"] == key)
            change = one.toObject();
    }
    const QString user = QFileInfo(json()["folders"].toArray().first().toString()).fileName();
    QCOMPARE(change["old"].isNull(), oldText.isNull());
    QCOMPARE(change["old"].toString(), oldText.replace("%1", m_folder->path()));
    QCOMPARE(change["new"].toString(), newText.replace("%1", m_folder->path()).replace("%2", user));
    QVERIFY2(change["reason"].toString().contains(reason), m_output.constData());

    QCOMPARE(run({"--repair", "--json", m_file}), 4);
    QCOMPARE(json()["changes"].toArray(), changes);
    QSettings settings(m_file, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    for (const QJsonValue& one : changes)
        QCOMPARE(settings.value(one.toObject()["key"].toString()).toString(),
                 one.toObject()["new"].toString());
    QCOMPARE(content().contains("[x]\ny=\360\237\231\202\n"), before.contains("[x]"));
    const QString copy = json()["copy"].toString();
    QCOMPARE(copy.isEmpty(), damage.isEmpty());
    QFile kept(copy);
    QVERIFY(damage.isEmpty() || (kept.open(QIODevice::ReadOnly) && kept.readAll() == before));

    QCOMPARE(run({"--repair", "--json", m_file}), 0);
    QCOMPARE(json()["state"].toString(), QString("clean"));
    QVERIFY(json()["changes"].toArray().isEmpty());
}

void tst_SettingsCheck::cannotBeRepaired_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("error");
    QTest::newRow("folder") << "folder"
                            << "it is not a file";
    QTest::newRow("huge") << "huge"
                          << "it is too large";
    QTest::newRow("no room for folders") << "cache"
                                         << "could not be created";
    if (::geteuid() == 0) // Others cannot give a file away.
        QTest::newRow("another user's") << "owner"
                                        << "another user";
}

void tst_SettingsCheck::cannotBeRepaired()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, error);
    QFile file(obstacle == "cache" ? path("cache") : m_file);
    if (obstacle == "folder")
        QVERIFY(QDir().mkpath(m_file));
    else
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(obstacle == "huge" ? Q_INT64_C(5) << 30 : 0));
    if (obstacle == "owner")
        QVERIFY(::chown(m_file.toUtf8().constData(), 65534, 65534) == 0);
    const QStringList untouched = everything();
    QCOMPARE(run({"--repair", m_file}), 2);
    QVERIFY2(m_output.contains(error.toUtf8()), m_output.constData());
    QCOMPARE(run({"--json", m_file, "--repair"}), 2);
    QCOMPARE(json()["state"].toString(), QString("not repairable"));
    QVERIFY2(json()["error"].toString().contains(error), m_output.constData());
    QCOMPARE(everything(), untouched);
}

void tst_SettingsCheck::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("nothing") << QStringList() << 3;
    QTest::newRow("two files") << QStringList({"a", "b"}) << 3;
    QTest::newRow("unknown option") << QStringList({"--fix", "a"}) << 3;
    QTest::newRow("help") << QStringList("--help") << 0;
    QTest::newRow("file like an option") << QStringList({"--", "--help"}) << 1;
}

void tst_SettingsCheck::usage()
{
    QFETCH(QStringList, arguments);
    QTEST(run(arguments), "exitCode");
    QCOMPARE(m_output.startsWith("usage:"), arguments == QStringList("--help"));
}

void tst_SettingsCheck::needsNoWidgets()
{
    QProcess ldd;
    ldd.start("ldd", {TORVANE_SETTINGS_CHECK});
    QVERIFY(ldd.waitForFinished());
    const QByteArray libraries = ldd.readAllStandardOutput();
    QVERIFY2(libraries.contains("Core") && !libraries.contains("Widgets") && !libraries.contains("Gui"),
             libraries.constData());
}

QTEST_GUILESS_MAIN(tst_SettingsCheck)
#include "tst_SettingsCheck.moc"
