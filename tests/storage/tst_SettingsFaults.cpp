#include "../support/Files.h"
#include "QtTestCompat.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "UnfinishedWrite.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include "platform/MTLogger.h"

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <grp.h>
#include <limits>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zel;

namespace {

#if defined(__SANITIZE_ADDRESS__)
const int Kills = 60;
#else
const int Kills = 1000;
#endif
const int UndisturbedRounds = 5;
const int Patience = 20000; // ms; QSettings waits 30 s for a lock that it takes for a valid one.
const QByteArray ForeignGroup = "[Foreign]\nemoji=\360\237\231\202\nlist=a, b\n";
const QByteArray OtherGroup = "[%E6%97%A5]\nkey%20=\303\274\n";
const QByteArray Foreign = ForeignGroup + '\n' + OtherGroup;

bool holdsForeign(const QByteArray& content)
{
    return content.contains(ForeignGroup) && content.contains(OtherGroup);
}

/// Makes the file an hour old, older than any write of the test.
void makeOld(const QString& path)
{
    const timespec anHourAgo = {::time(nullptr) - 3600, 0}, times[] = {anHourAgo, anHourAgo};
    QCOMPARE(::utimensat(AT_FDCWD, qPrintable(path), times, 0), 0);
}

pid_t startChild(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::_exit(work() ? 0 : 1);
    }
    return child;
}

bool succeeds(pid_t child)
{
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

QString error; ///< Of the last operation that failed.

bool write(QSettings& settings, const Table<QString, QVariant>& values)
{
    const auto change = [&values](QSettings& changed, QString&) {
        for (const QString& key : values.keys())
            changed.setValue(key, values[key]);
        return true;
    };
    return ZelSettingsFile::Write(settings, change, error);
}

bool change(const QString& path, const Table<QString, QVariant>& values)
{
    const auto settings = ZelSettingsFile::Open(path);
    return write(*settings, values);
}

bool apply(const QString& path)
{
    return change(path, {{"engine", "software"}, {"DBCache/cacheSize", 512}, {"new/key", "text"}});
}

bool validate(const QString& path)
{
    const auto settings = ZelSettingsFile::Open(path);
    return ZelSettingsFile::Repair(*settings, error);
}

bool migrate(const QString& path)
{
    return migrateSettings(path, "fr", error);
}

typedef bool (*Operation)(const QString& path);

} // namespace

/// What is left of the settings file after a fault that really happens.
class tst_SettingsFaults : public QObject
{
    Q_OBJECT

private:
    QStringList files(const QString& pattern) const { return m_folder.entryList({pattern}, QDir::Files); }
    QStringList copies() const { return files("Settings.ini.2*.bak"); }

    void killAtAnyMoment(Operation operation, const QByteArray& general)
    {
        const QByteArray before = general + Foreign;
        QByteArray after;
        qint64 duration = std::numeric_limits<qint64>::max(); // Microseconds of an undisturbed operation.
        int unchanged = 0, changed = 0, locked = 0;
        for (int round = 0; round < UndisturbedRounds + Kills / 4; ++round) {
            init();
            store(m_path, before);
            makeOld(m_path);
            QElapsedTimer clock;
            clock.start();
            const pid_t child = startChild([&] { return operation(m_path); });
            if (round < UndisturbedRounds) {
                QVERIFY(succeeds(child));
                duration = std::min(duration, clock.nsecsElapsed() / 1000);
                after = contentOf(m_path);
                QVERIFY(after != before);
                continue;
            }
            ::usleep(useconds_t(std::rand() % (duration * 3 / 2)));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);

            const QByteArray left = contentOf(m_path);
            QVERIFY2(left == before || left == after, left.constData());
            (left == before ? unchanged : changed) += 1;
            locked += files("*.lock").size();
            QVERIFY(holdsForeign(after) || left == before || contentOf(copies().value(0)) == before);

            makeOld(m_path);
            clock.restart();
            QVERIFY(succeeds(startChild([&] { return operation(m_path); })));
            QVERIFY2(clock.elapsed() < Patience, "the next writer is blocked");
            QCOMPARE(contentOf(m_path), after);
        }
        qInfo("%d unchanged, %d changed, %d with a lock left", unchanged, changed, locked);
        // Else the kills come at the wrong moments; a few rounds may miss the right ones.
        QVERIFY(Kills < 1000 || (unchanged > 0 && changed > 0 && locked > 0));
    }

    static void fillDisk(QFile& filler, int freePages)
    {
        const QByteArray page(4096, 'x');
        filler.close();
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(page) == page.size())
            continue;
        QVERIFY(filler.resize((filler.size() / page.size() - freePages) * page.size()));
    }

    std::unique_ptr<QTemporaryDir> m_parent;
    QDir m_folder;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        using Registry = ZelSettingsRegistry;
        Registry::ClearSettingsValues();
        Registry::RegisterSetting(keys::CacheSize, "4096", &ZelSettingsValidators::ensureCacheSize);
        Registry::RegisterSetting(keys::SettingsVersion, "2", &ZelSettingsValidators::ensureSettingsVersion);
        // The working directory is in memory if possible: many writes fall into one tick of the clock.
        m_parent = std::make_unique<QTemporaryDir>(
            (QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) + "/tst_SettingsFaults-XXXXXX");
        m_folder.setPath(m_parent->filePath("folder"));
        QVERIFY(m_folder.mkpath(".") && QDir::setCurrent(m_folder.path()));
        m_path = m_folder.filePath("Settings.ini");
    }

    void killedAtAnyMoment()
    {
        std::srand(unsigned(::getpid()));
        killAtAnyMoment(&apply, "[General]\nsettingsVersion=2\n\n");
        killAtAnyMoment(&validate, "[DBCache]\ncacheSize=1\n\n");
        killAtAnyMoment(&migrate, "[General]\nsettingsVersion=1\n\n");
        killAtAnyMoment(&migrate, "[General]\nengine=software\n\n"); // Too old.
    }

    void locksOfOthers()
    {
        const char* const HeldLock = "another program"; // A process holds it that lives, but is stopped.
        QElapsedTimer clock;
        clock.start();
        // How the lock is made, and why it cannot be taken.
        const std::pair<QByteArray, const char*> rows[] = {
            {"touch $lock", ""},
            {"echo garbage >$lock", ""},
            {"ln -s nowhere $lock", "is in the way"},
            {"mkdir $lock", "is in the way"},
            {"echo " + QByteArray::number(::getpid()) + " >$lock",
             ""}, // Of a process that had this id before.
            {"touch -d -1hour $lock", HeldLock}};
        for (const auto& [command, reason] : rows) {
            const bool free = QByteArray(reason).isEmpty();
            for (const QByteArray size : {"77", "7"}) {
                init();
                store(m_path, "[General]\nsettingsVersion=2\n[DBCache]\ncacheSize=" + size);
                QLockFile holder(m_path + ".lock");
                QVERIFY(reason != HeldLock || holder.tryLock());
                QCOMPARE(::system("lock=" + m_path.toUtf8() + ".lock; " + command), 0);
                error.clear();
                QVERIFY2(ZelSettingsFile::IsWritable(m_path, error) == free && error.contains(reason),
                         command);
                // What needs no repair is usable all the same.
                QVERIFY2(validate(m_path) == (free || size == "77"), command);
                QVERIFY2(apply(m_path) == free && contentOf(m_path).contains("cacheSize=512") == free,
                         command);
            }
        }
        QVERIFY(clock.elapsed() < Patience);
    }

    void killedWhileRewritingInPlace()
    {
        // A write that has got as far as half of the first line.
        const auto begin = [this] {
            const bool begun = UnfinishedWrite::begin(m_path, error);
            store(m_path, "[Fore");
            return begun;
        };
        store(m_path, Foreign);
        QVERIFY(!succeeds(startChild([&] { return begin() && ::raise(SIGKILL) == 0; })));
        UnfinishedWrite::recover(m_path);
        QCOMPARE(contentOf(m_path), Foreign);
        QCOMPARE(contentOf(copies().value(0)), QByteArray("[Fore"));
        QCOMPARE(files("*").size(), 2);

        QVERIFY(begin());
        UnfinishedWrite::end(m_path, false);
        QCOMPARE(contentOf(m_path), Foreign);

        // A program that knows nothing of the copy has written the file since.
        QVERIFY(begin());
        makeOld(m_path + ".unfinished");
        UnfinishedWrite::recover(m_path);
        QCOMPARE(contentOf(m_path), QByteArray("[Fore"));
        QCOMPARE(contentOf(copies().value(1)), Foreign);
        QCOMPARE(files("*").size(), 3);
    }

    void writersAtTheSameTime()
    {
        store(m_path, Foreign);
        const int writers = 3, end = 100 + Kills / 10;
        const QString key = "writer%1/key%2";
        std::vector<pid_t> children;
        for (int writer = 0; writer < writers; ++writer) {
            children.push_back(startChild([=] {
                std::srand(unsigned(writer));
                const auto settings = ZelSettingsFile::Open(m_path);
                for (int i = 100; i < end; ++i) {
                    if (!write(*settings, {{key.arg(writer).arg(i % 3), i}}))
                        return false;
                    ::usleep(useconds_t(std::rand() % 3000));
                    // The others may write, but not over this one's values.
                    const QByteArray content = contentOf(m_path);
                    for (int j = std::max(100, i - 2); j <= i; ++j) {
                        if (!content.contains(QString("key%1=%2\n").arg(j % 3).arg(j).toUtf8()))
                            return false;
                    }
                }
                return true;
            }));
        }
        for (const pid_t child : children)
            QVERIFY(succeeds(child));
        const QSettings settings(m_path, QSettings::IniFormat);
        for (int writer = 0; writer < writers; ++writer)
            QCOMPARE(settings.value(key.arg(writer).arg((end - 1) % 3)).toInt(), end - 1);
        QVERIFY(holdsForeign(contentOf(m_path)));
    }

    void fullDisk()
    {
        // In a mount namespace of its own, so that nothing is left mounted.
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", qPrintable(m_folder.path()), "tmpfs", 0, "size=64k") != 0)
            QSKIP("not allowed to mount a small disk");
        QFile filler(m_folder.filePath("filler"));
        for (const bool damaged : {false, true}) {
            const QByteArray content = (damaged ? "no settings\n" : "") + Foreign;
            store(m_path, content);
            fillDisk(filler, 0);
            const auto settings = ZelSettingsFile::Open(m_path);
            QVERIFY(!write(*settings, {{"new/key", "text"}, {"Foreign/emoji", "none"}}));
            QVERIFY2(error.contains(m_path) && error.contains("No space left"), qPrintable(error));
            QCOMPARE(contentOf(m_path), content);
            QVERIFY(copies().isEmpty());

            // The settings hold what the file holds, and write nothing on their own once there is room.
            QVERIFY(!settings->contains("new/key") && settings->value("Foreign/emoji") != "none");
            QVERIFY(filler.remove());
            const QDateTime time = QFileInfo(m_path).lastModified();
            QCoreApplication::sendPostedEvents(settings.get(), 0);
            QVERIFY(contentOf(m_path) == content && QFileInfo(m_path).lastModified() == time);
            QVERIFY2(write(*settings, {{"new/key", "text"}}), qPrintable(error));
            QVERIFY(holdsForeign(contentOf(m_path)) && contentOf(m_path).contains("[new]\nkey=text\n"));
        }
        // Room for the lock and a part of the content, whether that is known beforehand or not.
        for (const int freePages : {1, 2, 3, 6}) {
            store(m_path, Foreign);
            fillDisk(filler, freePages);
            const auto settings = ZelSettingsFile::Open(m_path);
            QVERIFY(!write(*settings, {{"new/key", QString(40000, 'y')}}) && error.contains("No space left"));
            QVERIFY(!settings->contains("new/key") && contentOf(m_path) == Foreign);
        }
        for (const int freePages : {4, 5}) { // The last value may be cut.
            store(m_path, "");
            fillDisk(filler, freePages);
            const QByteArray value(16000, 'y');
            const bool isWritten = write(*ZelSettingsFile::Open(m_path), {{"new/key", QString(value)}});
            QVERIFY(isWritten == (freePages == 5) && contentOf(m_path).contains(value + '\n') == isWritten);
        }
        store(m_path, Foreign);
        fillDisk(filler, 10);
        const QByteArray path = m_path.toUtf8(), other = path + ".other";
        store(other, Foreign);
        QVERIFY(::mount(other, path, nullptr, MS_BIND, nullptr) == 0);
        QVERIFY2(!apply(m_path) && error.contains("cannot be replaced"), qPrintable(error));
        ::umount(path);
        filler.close(); // An open file keeps the disk mounted, and its folder in place.
        ::umount(qPrintable(m_folder.path()));
    }

    void obstacles()
    {
        const std::pair<const char*, const char*> rows[] = {
            {"chmod 555 .", "Permission denied"},
            {"chmod 444 *; chmod 555 .", "Permission denied"},
            {"rm *; ln -s /no/where Settings.ini", "No such file"},
            {"rm *; mkdir Settings.ini", "it is not a file"},
            {"cd ..; rm -r folder; touch folder", "Not a directory"}};
        for (const auto& [obstacle, reason] : rows) {
            init();
            store(m_path, Foreign);
            for (const QString& path : {m_parent->path(), m_folder.path(), m_path})
                QVERIFY(::geteuid() != 0 || ::chown(qPrintable(path), 65534, 65534) == 0);
            const bool told = succeeds(startChild([&, command = obstacle, reason = reason] {
                // Permissions do not bind the administrator.
                if (::geteuid() == 0 &&
                    (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0))
                    return false;
                const auto settings = ZelSettingsFile::Open(m_path);
                const QVariant former = settings->value("Foreign/list");
                return ::system(command) == 0 && !write(*settings, {{"Foreign/list", "none"}}) &&
                       error.contains(m_path) && error.contains(reason) &&
                       settings->value("Foreign/list") == former;
            }));
            ::chmod(qPrintable(m_folder.path()), 0755);
            QVERIFY2(told, obstacle);
            QVERIFY2(!QFileInfo(m_path).isFile() || contentOf(m_path) == Foreign, obstacle);
            QVERIFY(copies().isEmpty());
        }
    }

    void damagedByOthers()
    {
        // What others leave of a complete file, and which unregistered value it holds after the write.
        const QByteArray complete = "[General]\nsettingsVersion=2\nown=1\n\n[DBCache]\ncacheSize=77\n";
        const std::pair<const char*, QByteArray> rows[] = {{"rm -r ../folder", "own=1"},
                                                           {": >Settings.ini", "own=1"},
                                                           {"echo garbage >Settings.ini", "own=1"},
                                                           {"printf 'x\\nown=2\\n' >Settings.ini", "own=2"},
                                                           {"echo other=3 >Settings.ini", "other=3"},
                                                           {"echo other=3 >Settings.ini", "own=1"}};
        for (const auto& [command, kept] : rows) {
            init();
            store(m_path, complete);
            makeOld(m_path);
            const auto settings = ZelSettingsFile::Open(m_path);
            QVERIFY(settings->contains("own"));
            QCOMPARE(::system(command), 0);
            QVERIFY2(write(*settings, {{"engine", "software"}}), qPrintable(error));
            for (const QByteArray& line : {QByteArray("engine=software"), QByteArray("settingsVersion=2"),
                                           QByteArray("cacheSize=77"), kept})
                QVERIFY2(contentOf(m_path).contains(line + '\n'), (command + (" loses " + line)).constData());
        }
    }

    void linkStaysALink()
    {
        const QString target = m_folder.filePath("elsewhere/target.ini");
        QVERIFY(m_folder.mkdir("elsewhere") && QFile::link("elsewhere/target.ini", m_path));
        store(target, "no settings\n");
        for (const Operation operation : {&migrate, &apply, &validate}) {
            const QByteArray before = contentOf(target);
            QVERIFY(operation(m_path) && contentOf(target) != before);
            QCOMPARE(QFile::symLinkTarget(m_path), target);
        }
        QCOMPARE(copies().size(), 1);
        QCOMPARE(QDir("elsewhere").entryList(QDir::Files), QStringList("target.ini"));
        QVERIFY(QFile::remove(m_path) && QFile::link(m_path, m_path));
        QVERIFY(!apply(m_path) && error.contains("symbolic links"));
    }

    void copyOfWhatIsGivenUp()
    {
        const QByteArray version2("[General]\nsettingsVersion=2\n");
        const std::tuple<Operation, QByteArray, int> rows[] = {
            {&apply, version2 + "[open\n", 1},
            {&migrate, "settingsVersion=1\nx\n", 1},
            {&validate, version2 + "key=a" + QByteArray(9, '\0'), 1},
            {&migrate, QByteArray(4096, '\0'), 1},
            {&validate, "=1\n[open\n", 1}, // A key without a name.
            {&validate, version2 + "[DBCache]\ncacheSize=1, 2\n", 1},
            {&apply, "; mine\n" + version2, 1},
            {&validate, version2 + "own=1, 2\n", 0},
            {&migrate, "[General]\nsettingsVersion=0\n; mine\n", 1},
            {&migrate, "[General]\nengine=software\n", 1}, // Too old.
            {&migrate, "[General]\nsettingsVersion=1\n", 0},
            {&validate, "[DBCache]\ncacheSize=1\n", 0},
            {&migrate, "", 0}};
        for (const auto& [operation, content, kept] : rows) {
            init();
            store(m_path, content);
            QVERIFY2(operation(m_path) && contentOf(m_path) != content, content.constData());
            for (const Operation once : {&validate, &apply}) {
                QCOMPARE(copies().size(), kept);
                QVERIFY(kept == 0 || contentOf(copies().first()) == content);
                QVERIFY(once(m_path));
            }
        }
    }

    void groupNamedLikeAMissingKey()
    {
        ZelSettingsRegistry::RegisterSetting("Foreign", "text", &ZelSettingsValidators::noOp);
        store(m_path, Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto giveUp = [](QSettings& changed, QString&) {
            changed.setValue("Foreign", "text");
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, giveUp, error) && holdsForeign(contentOf(m_path)));
        QVERIFY(validate(m_path) && holdsForeign(contentOf(m_path)));
    }

    void nothingToWrite()
    {
        for (const char* version : {"2", "7", "2147483648", "4294967297", "99999999999999999999"}) {
            const QByteArray content = QByteArray("[General]\nsettingsVersion=") + version + "\n";
            store(m_path, content);
            makeOld(m_path);
            const QDateTime time = QFileInfo(m_path).lastModified();
            QVERIFY(migrate(m_path) && change(m_path, {}));
            QVERIFY(contentOf(m_path) == content && QFileInfo(m_path).lastModified() == time);
        }
    }

    void ownerIsKept()
    {
        if (::geteuid() != 0)
            QSKIP("only the administrator can give a file away");
        struct stat status = {};
        store(m_path, Foreign);
        QVERIFY(::chmod(qPrintable(m_path), 0606) == 0 && ::chown(qPrintable(m_path), 65534, 65533) == 0);
        QVERIFY(apply(m_path) && ::stat(qPrintable(m_path), &status) == 0);
        QVERIFY(status.st_uid == 65534 && status.st_gid == 65533 && (status.st_mode & 0777) == 0606);
        const QByteArray content = contentOf(m_path);
        for (const QString& path : {m_parent->path(), m_folder.path()})
            QCOMPARE(::chmod(qPrintable(path), 0777), 0);
        QVERIFY(succeeds(startChild([this] {
            return ::setgroups(0, nullptr) == 0 && ::setuid(65532) == 0 && !apply(m_path) &&
                   error.contains("belongs to another user");
        })));
        QCOMPARE(contentOf(m_path), content);
    }

    void lastThreeCopiesAreKept()
    {
        const QString log = m_folder.filePath("log.txt");
        MTLogger::InstallFileHandler(log.toStdString(), false, "");
        store(m_path + ".my own.bak", "mine");
        for (char damage = '0'; damage < '5'; ++damage) {
            for (int twice = 0; twice < 2; ++twice) { // The second time it is kept already.
                store(m_path, QByteArray(1, damage));
                QVERIFY(apply(m_path));
            }
        }
        MTLogger::RemoveFileHandler();
        QByteArray kept;
        for (const QString& copy : copies()) {
            kept += contentOf(copy);
            QVERIFY(contentOf(log).contains(copy.toUtf8()));
        }
        QCOMPARE(kept, QByteArray("234"));
        QVERIFY(contentOf(log).contains(m_path.toUtf8() + '"'));
        QCOMPARE(contentOf(m_path + ".my own.bak"), QByteArray("mine"));
    }

    void everyCharacterIsKept()
    {
        const QByteArray group("[mine]\nsmile=\360\237\230\200 x\n");
        for (const Operation operation : {&validate, &apply, &migrate}) {
            store(m_path, "\357\273\277[General]\nsettingsVersion=1\n\n" + group);
            QVERIFY(operation(m_path) && contentOf(m_path).contains(group));
        }
        const QString text = QString::fromUtf8("\360\237\231\202\360\240\256\267f, \"\303\274\"; \n\t\\=");
        const QString mark(QChar(QChar::ByteOrderMark));
        QVERIFY(change(m_path, {{"list", QStringList({text, text})}, {"mark", mark}}));
        // Under other names, because QSettings remembers what it has read; at last with Qt's own codec.
        for (const bool own : {true, false}) {
            const QString path = m_folder.filePath(own ? "own" : "other");
            QVERIFY(QFile::copy(m_path, path));
            const auto copy = ZelSettingsFile::Open(path);
            if (!own)
                copy->setIniCodec("UTF-8");
            QCOMPARE(copy->value("list").toStringList(), QStringList({text, text}));
            QVERIFY(!own || copy->value("mark").toString() == mark);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SettingsFaults)
#include "tst_SettingsFaults.moc"
