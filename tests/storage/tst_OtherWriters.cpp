#include "FileAccess.h"
#include "SettingsFolder.h"
#include "base/FileLock.h"

#include <grp.h>
#include <sys/stat.h>

const int Writes = 100; // Of each of several programs at the same time.

/// What other programs and other users do with the settings file, and with what is beside it.
class tst_OtherWriters : public SettingsFolder
{
    Q_OBJECT

private Q_SLOTS:
    void locksOfOthers_data()
    {
        // What makes the lock, whether a living process holds it, and why it cannot be taken.
        const QString held = "another program has locked it", inTheWay = ".lock\" is in the way";
        const QByteArray ended = "echo 4194305 >$lock", own = QByteArray::number(::getpid());
        const std::tuple<const char*, QByteArray, bool, QString> rows[] = {
            {"of a process that has ended", ended, false, ""},
            {"of a program that had this number before", "printf '" + own + "\nother\n' >$lock", false, ""},
            {"old", "touch -d -40sec $lock", false, ""},
            {"from the future", "touch -d +1hour $lock", false, ""},
            {"of another machine", "printf '4194305\nprogram\nelsewhere\n' >$lock", false, held},
            {"just made", "touch $lock", false, held},
            {"of a running program, by its name", "printf '" + own + "\n/bin/tst_OtherWriters\n' >$lock",
             false, held},
            {"held", "true", true, held},
            {"held and old", "touch -d -1hour $lock", true, held},
            {"link", "ln -s nowhere $lock", false, inTheWay},
            {"folder", "mkdir $lock", false, inTheWay},
            {"cannot be removed", ended + "; mkdir $lock.rmlock", false, held}};
        addRows({"command", "isHeld", "reason"}, rows);
    }

    void locksOfOthers()
    {
        QFETCH(QByteArray, command);
        QFETCH(bool, isHeld);
        QFETCH(QString, reason);
        for (const QByteArray size : {"77", "7"}) {
            init();
            for (const char* end : {"", ".unfinished"}) // A killed write has left it.
                store(m_path + end, "[General]\nsettingsVersion=2\n[DBCache]\ncacheSize=" + size);
            FileLock holder(m_path + ".lock");
            QVERIFY(!isHeld || holder.take(0) == FileLock::Taken);
            QCOMPARE(::system("lock=" + m_path.toUtf8() + ".lock; " + command), 0);
            QElapsedTimer clock;
            clock.start();
            // What needs no repair is usable all the same.
            QVERIFY2(validate(m_path) == (reason.isEmpty() || size == "77"), command);
            QVERIFY2(apply(m_path) == reason.isEmpty() && error.contains(reason), command);
            QVERIFY2(contentOf(m_path).contains("cacheSize=512") == reason.isEmpty(), command);
            QVERIFY2(clock.elapsed() < 9000, command); // At most three and a half seconds each.
            error.clear();
            const auto settings = ZelSettingsFile::Open(m_path);
            QVERIFY(!isHeld || (QFile::remove(m_path) && !ZelSettingsFile::ReadAgain(*settings, error)));
            QVERIFY(!isHeld || settings->value("DBCache/cacheSize").toByteArray() == size);
            QVERIFY(!isHeld || size != "77" || !ZelSettingsFile::Repair(*settings, error));
        }
    }

    void plainSettingsBesideRepairs()
    {
        // Values of the same size, in one tick of the clock.
        store(m_path, "[DBCache]\ncacheSize=77\n[other]\nkey=1000\n");
        const int end = 1000 + Writes * 5;
        const pid_t child = startChild([&] {
            for (int value = 1000; value < end; ++value) {
                QSettings settings(m_path, QSettings::IniFormat);
                settings.setValue("other/key", value);
                settings.setValue("DBCache/cacheSize", 7);
                settings.sync();
                if (QSettings(m_path, QSettings::IniFormat).value("other/key").toInt() != value)
                    return false;
            }
            return true;
        });
        int status = 0;
        while (TEMP_FAILURE_RETRY(::waitpid(child, &status, WNOHANG)) == 0)
            QVERIFY2(validate(m_path), qPrintable(error));
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        QCOMPARE(QSettings(m_path, QSettings::IniFormat).value("other/key").toInt(), end - 1);
    }

    void writersAtTheSameTime()
    {
        store(m_path, Foreign);
        const auto line = [](int writer, int value) {
            return QString("[writer%1]\nkey=%2\n").arg(writer).arg(value).toUtf8();
        };
        std::vector<pid_t> children;
        for (int writer = 0; writer < 3; ++writer) {
            children.push_back(startChild([=] {
                std::srand(unsigned(writer));
                const auto settings = ZelSettingsFile::Open(m_path);
                for (int i = 1; i <= Writes; ++i) {
                    QByteArray content;
                    if (!write(*settings, {{QString("writer%1/key").arg(writer), i}}))
                        return false;
                    ::usleep(useconds_t(std::rand() % 3000));
                    // The others may write, but not over this one's value.
                    if (!readFile(m_path, content, error) || !content.contains(line(writer, i)))
                        return false;
                }
                return true;
            }));
        }
        for (const pid_t child : children)
            QCOMPARE(statusOf(child), 0);
        QVERIFY(holds({line(0, Writes), line(1, Writes), line(2, Writes)}));
    }

    void damagedByOthers_data()
    {
        // What others leave of a complete file, and which unregistered values it holds after the write.
        const std::tuple<const char*, QByteArray, QString> rows[] = {
            {"nothing", "rm -r ../folder", "own=1"},
            {"an empty file", ": >Settings.ini", "own=1"},
            {"a damaged file", "sed -i 's/own=1/x\\nown=2/; /Fore/,$d' *", "own=2"},
            {"another value", "sed -i 's/own=1/other=3/' *", "other=3"},
            {"nothing but their own", "echo other=3 >Settings.ini", "other=3 own=1"}};
        addRows({"command", "kept"}, rows);
    }

    void damagedByOthers()
    {
        QFETCH(QByteArray, command);
        QFETCH(QString, kept);
        store(m_path, "[General]\nsettingsVersion=2\nown=1\n\n[DBCache]\ncacheSize=77\n" + Foreign);
        setTime(m_path, stampOf(m_path).time - 3600000);
        const auto settings = ZelSettingsFile::Open(m_path);
        QVERIFY(settings->contains("own"));
        QCOMPARE(::system(command), 0);
        QVERIFY2(write(*settings, {{"engine", "software"}}), qPrintable(error));
        QVERIFY(holds({"settingsVersion=2\n", "cacheSize=77\n"}) && settings->value("engine") == "software");
        QStringList own = QString(contentOf(m_path)).split('\n').filter(QRegExp("^o"));
        own.sort();
        QCOMPARE(own.join(" "), kept);
        store(m_path, "settingsVersion=2\n[DBCache]\ncacheSize=11\n");
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error) && settings->allKeys().size() == 2);
        store(m_path, "");
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error) && contentOf(m_path).contains("=11\n"));
        store(m_path, "settingsVersion=2\n[DBCache]\ncacheSize=2\n");
        QVERIFY(ZelSettingsFile::Repair(*settings, error) && contentOf(m_path).contains("=4096\n"));
    }

    void foldersOfOthersStay()
    {
        store(m_path, Foreign);
        const QString own = QString("%1.new-%2").arg(m_path).arg(QCoreApplication::applicationPid());
        store(m_folder.filePath("mine/1.ini"), "mine");
        QVERIFY(QFile::link("mine", own) && !apply(m_path));
        QCOMPARE(contentOf(m_folder.filePath("mine/1.ini")), QByteArray("mine"));
        QVERIFY(QFile::remove(own));
        store(own + "/mine", "mine");
        QVERIFY(!apply(m_path) && contentOf(own + "/mine") == "mine");
    }

    void linkStaysALink()
    {
        const QString target = m_folder.filePath("elsewhere/target.ini");
        QVERIFY(m_folder.mkdir("elsewhere") && QFile::link("elsewhere/target.ini", m_path));
        QVERIFY(QFile::link("elsewhere/other", m_path + ".bak.new")); // Somebody else's.
        store(target, "no set");
        store(target + ".unfinished", "no settings\n"); // Its write was killed.
        QVERIFY(ZelSettingsFile::IsUsable(m_path, error) && contentOf(target) == "no settings\n");
        for (const Operation operation : {&migrate, &apply, &validate}) {
            const QByteArray before = contentOf(target);
            QVERIFY(operation(m_path) && contentOf(target) != before);
            QCOMPARE(QFile::symLinkTarget(m_path), target);
        }
        QCOMPARE(copies().size(), 1);
        QCOMPARE(QDir("elsewhere").entryList(QDir::Files), QStringList("target.ini"));
        for (const QString& name : {target, m_path}) {
            FileLock lock(name + ".lock"); // Of one that knows of no other name.
            QVERIFY(lock.take(0) == FileLock::Taken && !change(m_path, {{"a", 1}}) &&
                    error.contains("locked"));
        }
        const QTemporaryDir disk; // Another one, if the working directory is in memory.
        store(disk.path() + "/far.ini", "far, no settings\n");
        QVERIFY(QFile::remove(m_path) && QFile::link(disk.path() + "/far.ini", m_path));
        QVERIFY2(apply(m_path) && copies().size() == 2, qPrintable(error));
        QVERIFY(QFile::remove(m_path) && QFile::link("elsewhere/target.ini", m_path));
        // A link to a link to what is not there yet.
        QVERIFY(QFile::remove(target) && QFile::link("../new.ini", target));
        QVERIFY2(apply(m_path) && contentOf("new.ini").contains("[new]\nkey=text\n"), qPrintable(error));
        QVERIFY(QFileInfo(m_path).isSymLink() && QFileInfo(target).isSymLink());
        QVERIFY(QFile::remove(m_path) && QFile::link(m_path, m_path));
        QVERIFY(!apply(m_path) && error.contains("symbolic links"));
    }

    void ownerIsKept()
    {
        if (::geteuid() != 0)
            QSKIP("only the administrator can give a file away");
        struct stat status = {};
        store(m_path, Foreign);
        QVERIFY(::chmod(qPrintable(m_path), 0606) == 0 && ::chown(qPrintable(m_path), 65534, 65533) == 0);
        store(m_path, "no value\n" + Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        settings->setValue("host/key", 1); // QSettings writes it as well.
        QVERIFY(write(*settings, {{"new/key", "text"}}));
        for (const QString& path : {m_path, copies().value(0)}) {
            QVERIFY(::stat(qPrintable(path), &status) == 0 && (status.st_mode & 0777) == 0606);
            QVERIFY(status.st_uid == 65534 && status.st_gid == 65533);
        }
        const QByteArray content = contentOf(m_path);
        for (const QString& path : {m_parent->path(), m_folder.path()})
            QCOMPARE(::chmod(qPrintable(path), 0777), 0);
        const pid_t stranger = startChild([this] {
            return ::setgroups(0, nullptr) == 0 && ::setuid(65532) == 0 && !apply(m_path) &&
                   error.contains("belongs to another user") &&
                   !ZelSettingsFile::IsWritable(m_path, error = "") && error.contains("another user");
        });
        QVERIFY(statusOf(stranger) == 0 && contentOf(m_path) == content);
        // Its owner, who is not in its group, keeps the copy to himself.
        store(m_path, "[open\n");
        QVERIFY(m_folder.mkdir("Settings.ini.new-1")); // Of a running process.
        const auto writesAgain = [this] {              // When another program has written during a change.
            bool isLate = false;
            const auto slow = [&](QSettings& copy, QString&) {
                copy.setValue("own/key", 1);
                if (QFile::permissions(QFileInfo(copy.fileName()).path()) != 0x7700)
                    return false;
                if (!isLate) {
                    store(m_path, contentOf(m_path) + "[late]\nkey=1\n");
                    QTest::qSleep(3100); // Longer than a write may wait.
                }
                return isLate = true;
            };
            return ZelSettingsFile::Write(*ZelSettingsFile::Open(m_path), slow, error) &&
                   contentOf(m_path).contains("[late]\nkey=1\n") &&
                   contentOf(m_path).contains("[own]\nkey=1\n");
        };
        const pid_t owner = startChild([&] {
            return ::setgroups(0, nullptr) == 0 && ::setgid(65534) == 0 && ::setuid(65534) == 0 &&
                   apply(m_path) && QFile::permissions(copies().last()) == QFile::Permissions(0x6600) &&
                   m_folder.exists("Settings.ini.new-1") && writesAgain();
        });
        QVERIFY(statusOf(owner) == 0 && ::stat(qPrintable(m_path), &status) == 0 && status.st_gid == 65533);
    }
};

QTEST_GUILESS_MAIN(tst_OtherWriters)
#include "tst_OtherWriters.moc"
