#include "../support/Files.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

/// The console program as an administrator runs it, without a display.
class tst_SettingsCheck : public QObject
{
    Q_OBJECT

private:
    /// Runs the program and returns its exit code; what it prints is left in m_output and m_json.
    int run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_root + "/" + m_config);
        environment.insert("XDG_CACHE_HOME", m_root + "/cache");
        environment.insert("LC_ALL", "C");
        process.setProcessEnvironment(environment);
        int ends[2], left = 0; // Of a pipe.
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return -1;
        process.setStandardInputFile(QString("/proc/self/fd/%1").arg(ends[0]));
        process.start(TORVANE_SETTINGS_CHECK, arguments);
        for (const QByteArray& part : {m_input.left(1), m_input.mid(1)}) { // The second one is waited for.
            left = ::write(ends[1], part.constData(), part.size());
            while (left > 0 && process.state() != QProcess::NotRunning &&
                   ::ioctl(ends[1], FIONREAD, &left) == 0)
                process.waitForFinished(1);
        }
        for (const int end : ends)
            ::close(end);
        process.waitForFinished(120000);
        m_output = process.readAllStandardOutput();
        m_json = readJson(m_output);
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    QByteArray everything(const QString& format = "%p %T@\n") const
    {
        QProcess find;
        find.start("find", {m_root, "-printf", format});
        find.waitForFinished();
        return find.readAllStandardOutput();
    }

    void tellsAndRepairs(const QByteArray& before, const QString& oldText, const QStringList& texts)
    {
        const QString key = texts[0], reason = texts[2], damage = texts.value(3);
        const QList<QByteArray> left = before.split('|');
        for (int i = 0; i < left.size(); ++i)
            store(m_file + (i == 0 ? "" : ".unfinished"), left[i]);
        store(m_file + ".lock", ""); // Of a process that has died.
        const QByteArray untouched = everything();
        const bool fresh = !before.contains("settingsVersion=1");
        QCOMPARE(run({m_file}), 1);
        QCOMPARE(m_output.count("fresh start: its version is too old"), int(fresh));
        QVERIFY2(!m_output.contains('\x1b') && !m_output.contains("\342\200"), m_output);
        QVERIFY2(m_output.startsWith('"' + m_file.toUtf8() + "\": needs repair\n"), m_output);
        QVERIFY2(m_output.contains(", for the old value ") == !oldText.isNull(), m_output);
        QCOMPARE(bool(m_output.contains("\n  damaged: " + damage.toUtf8() + '\n')), !damage.isEmpty());
        QCOMPARE(run({"--json", m_file}), 1);
        QCOMPARE(everything(), untouched);
        QCOMPARE(m_json["file"].toString(), m_file);
        QVERIFY(m_json["damage"].toString() == damage && m_json["damage"].isNull() == damage.isEmpty());
        QCOMPARE(m_json["freshStart"].toBool(), fresh);
        const QVariantList changes = m_json["changes"].toList();
        QVariantMap change;
        for (const QVariant& candidate : changes)
            if (candidate.toMap()["key"] == key)
                change = candidate.toMap();
        const QString old = change["old"].toString();
        QVERIFY2(old == oldText && old.isNull() == oldText.isNull(), m_output);
        const QString user = QFileInfo(m_json["folders"].toList().value(0).toString()).fileName();
        QVERIFY(!user.isEmpty());
        QCOMPARE(change["new"].toString(), QString(texts[1]).replace("%1", m_root).replace("%2", user));
        QVERIFY2(change["reason"].toString().contains(reason), m_output);

        QVERIFY(QFile::remove(m_file + ".lock"));
        QCOMPARE(run({"--repair", "--json", m_file}), 4);
        QVERIFY(!m_json["freshStart"].toBool() && !m_json["folders"].toList().isEmpty());
        QCOMPARE(m_json["changes"].toList(), changes);
        QSettings settings(m_file, QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        for (const QVariant& one : changes)
            QCOMPARE(settings.value(one.toMap()["key"].toString()), one.toMap()["new"]);
        QCOMPARE(contentOf(m_file).count("[x]\ny=\360\237\231\202\n"), before.count("[x]"));
        const QString copy = m_json["copy"].toString();
        QVERIFY(before.contains(", ") || damage.startsWith("line") ? contentOf(copy) == before
                                                                   : copy.isEmpty());

        QVERIFY(QFile::copy(m_file, m_file + ".2020-01-01T00-00-00.000Z.bak"));
        QVERIFY(run({"--repair", "--json", m_file}) == 0 && m_json["copy"].toString().isEmpty());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_root, m_file, m_config = "config";
    QByteArray m_input, m_output;
    QVariantMap m_json;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_root = m_folder->path();
        m_file = m_folder->filePath(QString::fromUtf8("\303\234ser \360\237\231\202.ini"));
    }

    void tellsAndRepairs()
    {
        const QString cut = "a write was cut short, and has left a file \".unfinished\"";
        const QString object = "line 1 holds a serialised object"; // To decode it would end the process.
        const QString cache = "%1/cache/TorvaneBoundlessX64/%2",
                      log = "%1/config/TorvaneBoundlessX64/log.txt";
        const QByteArray listsInLists = QByteArray("\\0\\0\\0\\x9\\0\\0\\0\\x1").repeated(50000);
        // The file, the old text of a key, that key, its new text, the reason, and the damage.
        const std::tuple<QByteArray, QString, QStringList> rows[] = {
            {"[x]\ny=\360\237\231\202\n", {}, {"settingsVersion", "2", "missing"}},
            {"engine=Deferred\n", "Deferred", {"engine", "deferred", "neither deferred nor"}},
            {"settingsVersion=1\n", "1", {"settingsVersion", "2", "not the current"}},
            {"settingsVersion=1\nengine=a, b\n", "a, b", {"engine", "deferred", "list"}},
            {"settingsVersion=1\nengine=software\n", "software", {"engine", "deferred", "older version"}},
            {"[Logging]\nlogFile=%1/cache/log.txt\n", {}, {"engine", "deferred", "missing"}}, // It stays.
            {"[General]\nenablediag=\"a\\\"\\n\\x1b[31m\\x2028\\x2029\\x202e\\xd83d\"\n",
             QString("a\"\n\x1b[31m") + QChar(0x2028) + QChar(0x2029) + QChar(0x202e) + QChar(0xd83d),
             {"enablediag", "false", "true nor", "line 2 cannot be read"}},
            {"[DBCache]\ncacheDirectory=/gone\n",
             "/gone",
             {"DBCache/cacheDirectory", cache, "existing folder"}},
            {"[Logging]\nlogFile=\\\\tmp///\n",
             "\\tmp///",
             {"Logging/logFile", "/tmp", "is not written the usual way"}},
            {"[Logging]\nlogFile=//\n", "//", {"Logging/logFile", log, "existing folder"}},
            {"x=\"@Variant(" + listsInLists + ")\"\n", {}, {"engine", "deferred", "missing", object}},
            // What a killed program has left: a file that was written since, and one that is cut.
            {"engine=bad\n|engine=software\n", "bad", {"engine", "deferred", "neither", cut}},
            {"engi|engine=bad\nx\n",
             "bad",
             {"engine", "deferred", "neither", cut + "; line 2 cannot be read"}}};
        for (const auto& [before, oldText, texts] : rows) {
            init();
            tellsAndRepairs(QByteArray(before).replace("%1", m_root.toUtf8()), oldText, texts);
            if (QTest::currentTestFailed())
                QFAIL(before.left(60));
        }
    }

    void cannotBeRepaired()
    {
        const std::pair<const char*, QString> rows[] = {
            {"true", "does not exist"},
            {"mkfifo \"$1\"", "it is not a file"}, // It never gets a writer.
            {"touch \"$1\" \"$2\"", "could not be created"},
            {"touch \"$1\"; ln -s /gone/there \"$2\"", "could not be created"},
            {"mkdir \"$1.lock\"; touch \"$1\"", "is in the way"},
            {"touch \"$1\" \"$1.unfinished\" \"$1.lock\"", "has locked it"},
            {"truncate -s 70000000 \"$1\"", "too large"},
            {"ln -s /no/where/there \"$1\"", "No such file"},
            {"touch \"$1\"; chown 65534 \"$1\"", "another user"}};
        for (const auto& [obstacle, error] : rows) {
            if (error == "another user" && ::geteuid() != 0)
                continue; // Others cannot give a file away.
            init();
            QCOMPARE(QProcess::execute("sh", {"-c", obstacle, "sh", m_file, m_root + "/cache"}), 0);
            const QByteArray untouched = everything(), names = everything("%p\n");
            const bool seems = QString("another user, does not exist, has locked it").contains(error);
            QCOMPARE(run({m_file}), seems ? 1 : 2); // That it can be repaired.
            QCOMPARE(m_output.count("fresh start"), QByteArray(obstacle).count("touch"));
            QCOMPARE(everything(), untouched);
            QVERIFY2(run({"--repair", m_file}) == 2 && m_output.contains(error.toUtf8()), m_output);
            QCOMPARE(run({"--json", m_file, "--repair"}), 2);
            QVERIFY2(m_json["error"].toString().contains(error), m_output);
            QCOMPARE(everything("%p\n"), names);
        }
    }

    void repairsAllOrNothing()
    {
        store(m_file, "//=1\ngarbage\n");
        m_config = "cache"; // The folder of the log is above that of the cache, and created with it.
        QVERIFY(run({m_file}) == 1 && m_output.count("missing folder") == 1);
        m_config = "config";
        QCOMPARE(run({m_file}), 1);
        QVERIFY2(m_output.contains("\n  missing folder \"" + m_root.toUtf8()), m_output);
        QVERIFY2(m_output.contains("\n  engine: missing -> \"deferred\"\n"), m_output);
        QCOMPARE(run({"--repair", m_file}), 4);
        QVERIFY2(m_output.contains("\n  created folder \"" + m_root.toUtf8()), m_output);
        QVERIFY2(m_output.contains("\n  a copy of the former file is kept as \""), m_output);
        QVERIFY(QDir().mkdir(m_file + ".lock"));
        QCOMPARE(run({m_file}), 0); // It need not be written.
        QVERIFY(QDir().rmdir(m_file + ".lock") && QDir().rename(m_root + "/cache", m_root + "/away"));
        QCOMPARE(run({m_file}), 1); // Only a folder is missing.
        QVERIFY(QDir().rename(m_root + "/away", m_root + "/cache"));
        const QByteArray before = "[DBCache]\ncacheDirectory=/gone\ncacheSize=1\n";
        store(m_file, before);
        QVERIFY(run({m_file}) == 1 && !m_output.contains("missing folder")); // That of the default is there.
        QVERIFY2(m_output.contains("Directory: \"/gone\" -> \"" + m_root.toUtf8()), m_output);
        QVERIFY2(m_output.contains("\", for the old value is not an existing folder\n"), m_output);
        QVERIFY2(!m_output.contains("cacheSize"), m_output);
        m_config = QString(300, 'a'); // Too long to be created.
        QCOMPARE(run({"--repair", m_file}), 2);
        m_config = "config";
        QCOMPARE(contentOf(m_file), before);
    }

    void manyFiles()
    {
        const QString clean = m_root + "/cl\nean.ini", broken = m_file, folder = m_root;
        store(clean, "");
        QCOMPARE(run({"--repair", clean}), 4);
        QVERIFY(run({clean}) == 0 && m_output.endsWith("/cl\\u000aean.ini\": clean\n"));
        const QByteArray content = contentOf(clean);
        QVERIFY(content.contains("\ncacheSize=4096\n") && content.contains("\ndebuglogtypeblacklist=\n"));
        store(broken, content + "garbage\n");
        // Standard input, arguments, the exit code, and the state of each file.
        const std::tuple<QByteArray, QStringList, int, QString> rows[] = {
            {"", {clean, broken}, 1, "clean, needs repair"},
            {"", {broken, folder, clean}, 2, "needs repair, not repairable, clean"},
            {broken.toUtf8() + "\n\n", {"-", clean}, 1, "needs repair, clean"},
            {clean.toUtf8() + '\0' + broken.toUtf8() + '\0', {"-"}, 1, "clean, needs repair"},
            {"caf\351\n" + broken.toUtf8(), {clean, "-"}, 2, "clean, not repairable, needs repair"},
            {"", {"--repair", broken, folder}, 2, "repaired, not repairable"}};
        for (const auto& [input, arguments, exitCode, expected] : rows) {
            m_input = input;
            QCOMPARE(run(arguments + QStringList("--json")), exitCode);
            QStringList states;
            for (const QByteArray& line : m_output.trimmed().split('\n'))
                states << readJson(line)["state"].toString();
            QCOMPARE(states.join(", "), expected);
        }
    }

    void usage()
    {
        const std::pair<QStringList, int> rows[] = {
            {{}, 3},         {{""}, 3},
            {{"-h"}, 0},     {{"--fix", "a"}, 3},
            {{"--help"}, 0}, {{"--", "--help"}, 1}}; // A file like an option.
        for (const auto& [arguments, exitCode] : rows) {
            QCOMPARE(run(arguments), exitCode);
            QCOMPARE(m_output.startsWith("usage:") && m_output.contains("\nExit codes"), exitCode == 0);
        }
        QVERIFY(run({"--version"}) == 0 && m_output.startsWith("torvane-settings-check 1."));
        const auto shell = [](const char* command) {
            return QProcess::execute("sh", {"-c", command, TORVANE_SETTINGS_CHECK});
        };
        QCOMPARE(shell("exec \"$0\" --help >/dev/full"), 2);
        QCOMPARE(shell("exec \"$0\" /gone >/dev/full"), 2);
        QCOMPARE(shell("exec \"$0\" - <&-"), 2);
        for (const char* told : {"\"$0\" - <&- 2>&1 >/dev/null | grep 'list of files cannot be read'",
                                 "\"$0\" -h 2>&1 >/dev/full | grep 'report cannot be written: No space'",
                                 "\"$0\" \"$(printf 'caf\\351')\" | grep 'name is not UTF-8 text'",
                                 "\"$0\" 2>&1 >/dev/null | grep ^usage:"})
            QCOMPARE(shell(told), 0);
        QCOMPARE(shell("test $(ldd \"$0\" | grep -c libQt) = 1"), 0); // It needs no graphical libraries.
        // An empty entry in a run path would stand for the working directory.
        QCOMPARE(shell("cd \"${0%/*}\" && all=$(readelf -d torvane* ../lib/*.so) &&"
                       "echo \"$all\" | grep -E 'PATH.*(\\[:|::|:])'"),
                 1);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsCheck)
#include "tst_SettingsCheck.moc"
