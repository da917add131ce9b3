#include "../support/Files.h"
#include "../support/Rows.h"
#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "SharedSettings.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"
#include "base/FileLock.h"
#include "base/SystemFiles.h"

#include "platform/MTLogger.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zel;

namespace {

const int Writes = 100; // Of each of several programs at the same time.
const QByteArray ForeignGroup = "[Foreign]\nemoji=\360\237\231\202\nlist=a, b\n";
const QByteArray OtherGroup = "[%E6%97%A5]\nkey%20=\303\274\n";
const QByteArray Foreign = ForeignGroup + '\n' + OtherGroup;

pid_t startChild(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::_exit(work() ? 0 : 1);
    }
    return child;
}

/// 0 when the child has succeeded.
int statusOf(pid_t child)
{
    int status = -1;
    TEMP_FAILURE_RETRY(::waitpid(child, &status, 0));
    return status;
}

QString error; ///< Of the last operation that failed.

bool write(QSettings& settings, const std::map<QString, QVariant>& values)
{
    const auto change = [&values](QSettings& changed, QString&) {
        for (const auto& [key, value] : values)
            changed.setValue(key, value);
        return true;
    };
    return ZelSettingsFile::Write(settings, change, error);
}

bool change(const QString& path, const std::map<QString, QVariant>& values)
{
    return write(*ZelSettingsFile::Open(path), values);
}

bool apply(const QString& path)
{
    return change(path, {{"engine", "software"}, {"DBCache/cacheSize", 512}, {"new/key", "text"}});
}

bool validate(const QString& path)
{
    return ZelSettingsFile::Repair(*ZelSettingsFile::Open(path), error);
}

bool migrate(const QString& path)
{
    return migrateSettings(path, "fr", error);
}

using Operation = bool (*)(const QString& path);

enum Fault { NoFault, Fails, Kills };
Fault faultAtCall = NoFault;     ///< What happens at a call of the system.
int callsLeft = 0;               ///< Before it happens.
enum { NotReached = 2, Silent }; ///< Exit codes: it has not happened, or the error has no reason.
int missing = 0;                 ///< Files without a name (EOPNOTSUPP), /proc (ENOENT), or locks (ENOLCK).
timeval fixedTime = {};          ///< What the clock shows, unless 0.
[[maybe_unused]] bool isSynced = true; ///< What was written last is on the disk.
bool isSafe = true;                    ///< That was so whenever a file got a name beside the settings file.

bool fails()
{
    if (faultAtCall == NoFault || callsLeft-- != 0)
        return false;
    if (faultAtCall == Kills)
        ::kill(::getpid(), SIGKILL);
    errno = EIO;
    return true;
}

[[maybe_unused]] bool lacks(int what)
{
    return missing == what && (errno = what) != 0;
}

template <typename... Arguments>
int call(long number, Arguments... arguments)
{
    return fails() ? -1 : static_cast<int>(::syscall(number, arguments...));
}

} // namespace
Q_DECLARE_METATYPE(Operation)

#if !defined(__SANITIZE_ADDRESS__)
// Found before those of the C library, by Qt as well.
#    pragma GCC visibility push(default)
#    define ZEL_CALL(type, name, parameters, ...)                                                            \
        type name parameters                                                                                 \
        {                                                                                                    \
            return call(__VA_ARGS__);                                                                        \
        }
extern "C" {
int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const bool isNameless = (flags & O_TMPFILE) == O_TMPFILE;
    return isNameless && lacks(EOPNOTSUPP) ? -1 : call(SYS_openat, AT_FDCWD, path, flags, mode);
}
int open64(const char* path, int flags, ...) __attribute__((alias("open")));
ZEL_CALL(ssize_t, read, (int file, void* data, size_t size), SYS_read, file, data, size)
ZEL_CALL(ssize_t, write, (int file, const void* data, size_t size), (isSynced = false, SYS_write), file, data,
         size)
ZEL_CALL(int, rename, (const char* from, const char* to) noexcept,
         (isSafe = isSafe && (isSynced || std::strstr(to, ".new-")), SYS_rename), from, to)
int unlink(const char* path) noexcept
{
    const bool isLock = std::strstr(path, ".lock"); // One that stays is waited for.
    return isLock && faultAtCall == Fails ? int(::syscall(SYS_unlink, path)) : call(SYS_unlink, path);
}
ZEL_CALL(int, mkdir, (const char* path, mode_t mode) noexcept, SYS_mkdir, path, mode)
ZEL_CALL(int, rmdir, (const char* path) noexcept, SYS_rmdir, path)
ZEL_CALL(int, fsync, (int file), (isSynced = true, SYS_fsync), file)
ZEL_CALL(int, fdatasync, (int file), SYS_fdatasync, file)
ZEL_CALL(int, ftruncate, (int file, off_t size) noexcept, SYS_ftruncate, file, size)
int ftruncate64(int file, off64_t size) noexcept __attribute__((alias("ftruncate")));
int gettimeofday(timeval* time, void*) noexcept
{
    return fixedTime.tv_sec ? (*time = fixedTime, 0) : int(::syscall(SYS_gettimeofday, time, nullptr));
}
ZEL_CALL(int, chmod, (const char* path, mode_t mode) noexcept, SYS_chmod, path, mode)
ZEL_CALL(int, fchmod, (int file, mode_t mode) noexcept, SYS_fchmod, file, mode)
int flock(int file, int operation) noexcept
{
    return lacks(ENOLCK) ? -1 : call(SYS_flock, file, operation);
}
int linkat(int from, const char* path, int to, const char* name, int flags) noexcept
{
    return lacks(ENOENT) ? -1 : call(SYS_linkat, from, path, to, name, flags);
}
ZEL_CALL(int, access, (const char* path, int mode) noexcept, SYS_access, path, mode)
}
#    pragma GCC visibility pop
#endif

/// What is left of the settings file after a fault that really happens.
class tst_SettingsFaults : public QObject
{
    Q_OBJECT

private:
    QStringList files(const QString& pattern) const
    {
        return m_folder.entryList({pattern}, QDir::Files | QDir::Hidden);
    }
    QStringList copies() const { return files("*Settings.ini.2*.bak"); }

    /// True when the settings file still has the foreign groups, and has these texts.
    bool holds(const QList<QByteArray>& texts = QList<QByteArray>()) const
    {
        const QByteArray content = contentOf(m_path);
        for (const QByteArray& text : QList<QByteArray>({ForeignGroup, OtherGroup}) + texts) {
            if (!content.contains(text))
                return qWarning("\"%s\" is lost of:\n%s", text.constData(), content.constData()), false;
        }
        return true;
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
        missing = 0;
        Registry::ClearSettingsValues();
        Registry::RegisterSetting(keys::CacheSize, "4096", &ZelSettingsValidators::ensureCacheSize);
        Registry::RegisterSetting(keys::SettingsVersion, "2", &ZelSettingsValidators::ensureSettingsVersion);
        QLocale::setDefault(QLocale("ar_EG")); // With digits of its own.
        // The working directory is in memory if possible: many writes fall into one tick of the clock.
        m_parent = std::make_unique<QTemporaryDir>(
            (QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) + "/tst_SettingsFaults-XXXXXX");
        m_folder.setPath(m_parent->filePath("folder"));
        QVERIFY(m_folder.mkpath(".") && QDir::setCurrent(m_folder.path()));
        m_path = m_folder.filePath("Settings.ini");
    }

    void faultAtEachCall_data()
    {
        // What the file holds beside the foreign groups, and some of what it holds then, separated by "|".
        const QByteArray bad("[DBCache]\ncacheSize=1\n\n"), version("[General]\nsettingsVersion=");
        const std::tuple<const char*, Operation, QByteArray, QByteArray> rows[] = {
            {"apply", &apply, version + "2\n\n", "\nengine=software\n"},
            {"repair", &validate, bad, "\ncacheSize=4096\n"},
            {"repair of a damaged file behind a link", &validate, "[DBCache]\nno value\n" + bad,
             version + "2\n"},
            {"upgrade", &migrate, version + "1\n\n", "\nengine=deferred\n|\nsettingsVersion=2\n"},
            {"fresh start", &migrate, "[General]\nengine=software\n\n", "[General]\nlanguage=fr\n"}};
        addRows({"operation", "general", "wanted"}, rows);
    }

    void faultAtEachCall()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer has these functions itself");
#endif
        QFETCH(Operation, operation);
        QFETCH(QByteArray, general);
        QFETCH(QByteArray, wanted);
        const QByteArray before = general + Foreign;
        const auto start = [&] {
            init();
            QVERIFY(!QByteArray(QTest::currentDataTag()).endsWith("link") || QFile::link("target", m_path));
            store(m_path, before);
            QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner));
        };
        start();
        QVERIFY(operation(m_path));
        const QByteArray after = contentOf(m_path);
        const int kept = copies().size();
        for (const QByteArray& text : wanted.split('|'))
            QVERIFY2(after.contains(text), after);
        for (const Fault fault : {Fails, Kills}) {
            bool isReached = true;
            int calls = 0, changed = 0;
            for (; isReached; ++calls) {
                start();
                const int status = statusOf(startChild([&] {
                    callsLeft = calls;
                    faultAtCall = fault;
                    const bool isDone = operation(m_path);
                    faultAtCall = NoFault;
                    if (isDone && callsLeft >= 0)
                        ::_exit(NotReached);
                    if (!isDone && error.endsWith(": "))
                        ::_exit(Silent);
                    return isDone;
                }));
                isReached = WEXITSTATUS(status) != NotReached;
                const QByteArray left = contentOf(m_path);
                const QByteArray which = "call " + QByteArray::number(calls) + " leaves:\n" + left;
                QVERIFY2(WEXITSTATUS(status) != Silent, which);
                QVERIFY2(fault == Kills || left == (status == 0 || !isReached ? after : before), which);
                changed += left == after;
                for (const QString& name : files("*")) // What nobody else may read, nobody else can.
                    QVERIFY2(name.endsWith("lock") || contentOf(name).isEmpty() ||
                                 !(QFile::permissions(name) & 0x77),
                             which + name.toUtf8());
                // Rewritten in place, a file may be cut until the next start.
                QVERIFY(ZelSettingsFile::IsUsable(m_path, error));
                const bool isDone = contentOf(m_path) == after;
                QVERIFY2(isDone || contentOf(m_path) == before, which);
                QVERIFY2(isDone ? copies().size() == kept : copies().size() <= kept, which);
                QVERIFY2(operation(m_path), qPrintable(error));
                QCOMPARE(contentOf(m_path), after);
                QVERIFY2(change(m_path, {}), qPrintable(error)); // Removes what is left.
                QCOMPARE(m_folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                             .filter("Settings.ini")
                             .size(),
                         1 + copies().size());
            }
            QVERIFY2(calls > 30 && changed > 1, "the faults come at the wrong moments");
        }
    }

    void valuesOfTheHostSurviveEachFault()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer has these functions itself");
#endif
        for (const bool isWrittenAgain : {true, false}) {
            int calls = 0;
            for (int status = 0; WEXITSTATUS(status) != NotReached; ++calls) {
                init();
                store(m_path, "[General]\nsettingsVersion=2\n[page]\nkey=1\n\n" + Foreign);
                status = statusOf(startChild([&] {
                    callsLeft = calls;
                    faultAtCall = Fails;
                    auto settings = ZelSettingsFile::Open(m_path);
                    settings->setValue("host/key", 1); // QSettings does not tell whether it could write it.
                    const auto change = [&](QSettings& copy, QString&) {
                        copy.setValue("new/key", 1);
                        settings->setValue("page/new", 1);
                        settings->sync(); // As many a page does.
                        return true;
                    };
                    const bool isDone = ZelSettingsFile::Write(*settings, change, error);
                    faultAtCall = NoFault;
                    const QByteArray left = contentOf(m_path);
                    const bool isCut = !left.contains("[page]\nkey=1\n");
                    if (!isCut) // Another program writes.
                        store(m_path, QByteArray(left).replace("[page]\nkey=1\n", "[page]\nkey=2\n"));
                    if (isWrittenAgain ? !write(*settings, {}) : (settings.reset(), false))
                        return false;
                    if (!holds({isCut ? "[page]\nkey=1\n" : "[page]\nkey=2\n", "[host]\nkey=1\n",
                                isDone ? "[new]\nkey=1\n" : "", isDone ? "\nnew=1\n" : ""}))
                        return false;
                    return callsLeft < 0 || (::_exit(NotReached), false);
                }));
                QVERIFY2(status == 0 || WEXITSTATUS(status) == NotReached,
                         QByteArray::number(calls) + contentOf(m_path));
            }
            QVERIFY(calls > 30);
        }
    }

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
            {"of a running program, by its name", "printf '" + own + "\n/bin/tst_SettingsFaults\n' >$lock",
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

#if !defined(ZEL_LEAVE_OUT_ownLockIsRespected)
    void ownLockIsRespected()
    {
        const QString path = m_path + ".lock";
        for (const int lacking : {0, EOPNOTSUPP, ENOENT, ENOLCK}) {
            missing = lacking;
            FileLock lock(path);
            QVERIFY(lock.take(0) == FileLock::Taken);
            qint64 process;
            QString host, program;
            QVERIFY(QLockFile(path).getLockInfo(&process, &host, &program));
            QCOMPARE(host + ' ' + program, QSysInfo::machineHostName() + " tst_SettingsFaults");
            QVERIFY(lacking == ENOLCK || ::system("touch -d -1hour " + path.toUtf8()) == 0);
            QVERIFY(!QLockFile(path).tryLock(500) && FileLock(path).take(100) == FileLock::Held);
            lock.release();
            for (int calls = 0; calls < 6; ++calls) { // What cannot be taken leaves nothing.
                callsLeft = calls;
                faultAtCall = Fails;
                const bool isTaken = lock.take(0) == FileLock::Taken;
                faultAtCall = NoFault;
                QVERIFY(isTaken || !QFile::exists(path));
                lock.release();
            }
            QLockFile other(path);
            QVERIFY(other.tryLock(0) && lock.take(100) == FileLock::Held);
        }
    }
#endif

    void killedWhileRewritingInPlace()
    {
        const QString spare = m_path + ".unfinished";
        store(m_path, "[Fore");
        store(spare, Foreign);
        setTime(spare, stampOf(m_path).time - 1000);
        QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(ZelSettingsFile::IsUsable(m_path, error));
        QVERIFY(contentOf(m_path) == Foreign && files("*").size() == 1);
        QCOMPARE(int(QFile::permissions(m_path)) & 0xFF, 0);
        // A program that knows nothing of the copy has written the file since.
        store(m_path, "[General]\nother=1\n");
        store(spare, Foreign);
        setTime(spare, stampOf(spare).time - 3600000);
        QVERIFY(ZelSettingsFile::IsUsable(m_path, error));
        QCOMPARE(contentOf(m_path), QByteArray("[General]\nother=1\n"));
        QCOMPARE(contentOf(copies().value(0)), Foreign);
        QCOMPARE(files("*").size(), 2);
        // One that was killed before it began to write leaves nothing to keep.
        store(spare, "begun=1\n");
        setTime(spare, stampOf(m_path).time);
        QVERIFY(ZelSettingsFile::IsUsable(m_path, error) && files("*").size() == 2);
        // A link of this name is somebody else's.
        store("theirs", contentOf(m_path) + "other=2\n");
        QVERIFY(QFile::link("theirs", spare) && ZelSettingsFile::IsUsable(m_path, error) &&
                QFileInfo(spare).isSymLink());
    }

    void changesThatFail()
    {
        store(m_path, Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto throws = [](QSettings& changed, QString&) -> bool {
            changed.setValue("new/key", 1);
            throw std::runtime_error("");
        };
        try {
            ZelSettingsFile::Write(*settings, throws, error);
            QFAIL("the exception is lost");
        } catch (const std::runtime_error&) {
            QVERIFY(contentOf(m_path) == Foreign && files("*").size() == 1);
        }
        const auto nested = [&](QSettings& changed, QString& text) {
            changed.setValue("new/key", 1);
            return write(*settings, {{"inner/key", 2}}) || (text = error).isNull();
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, nested, error) && error.contains("being written already"));
        settings->beginGroup("Foreign");
        QVERIFY(!write(*settings, {{"list", "none"}}) && error.contains("a group of it is open"));
        settings->endGroup();
        // Nothing is left that a later write would take along.
        const auto shared = [&](QSettings&, QString&) {
            settings->setValue("Foreign/list", "none");
            settings->setValue("new/key", 1);
            settings->beginGroup("new");
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, shared, error));
        settings->sync();
        QVERIFY(holds() && !contentOf(m_path).contains("[new]") && settings->group().isEmpty());
        QVERIFY(apply(m_path));
        // What cannot be read is not written either.
        settings->setValue("new/key", 2);
        QVERIFY(QFile::remove(m_path) && QDir().mkdir(m_path));
        QVERIFY(!ZelSettingsFile::ReadAgain(*settings, error) && error.startsWith("Could not read the"));
        QVERIFY(!ZelSettingsFile::IsUsable(m_path, error = "") && error.startsWith("Could not read the"));
        QVERIFY(!ZelSettingsFile::Repair(*settings, error = "") && error.startsWith("Could not read the"));
        QVERIFY(QDir().rmdir(m_path));
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QVERIFY(!QFile::exists(m_path));
    }

    void changesOfTheSharedSettings()
    {
        Deadline deadline(300); // The time of a change does not count.
        QVERIFY(
            deadline.pauseFor([&] { return QTest::qWaitFor([&] { return deadline.remaining() == 0; }); }));
        QVERIFY(deadline.remaining() > 0);
        store(m_path, Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto mixed = [&](QSettings& changed, QString&) {
            changed.setValue("own/key", 1);
            settings->setValue("page/key", 2);
            settings->sync(); // As many a page does.
            const int rights = QFile::permissions(QFileInfo(changed.fileName()).path());
            QSettings other("other.ini", QSettings::IniFormat);
            return &ZelSettingsFile::Current(*settings) == &changed && rights == 0x7700 &&
                   &ZelSettingsFile::Current(other) == &other && ZelSettingsFile::ReadAgain(*settings, error);
        };
        QVERIFY(ZelSettingsFile::Write(*settings, mixed, error) && !hasPending(*settings));
        QVERIFY(holds({"[own]\nkey=1\n", "[page]\nkey=2\n"}));
        QCOMPARE(files("*").join(" "), QString("Settings.ini"));
        // Nothing is pending: what another program writes stays.
        const uint time = QFileInfo(m_path).lastModified().toTime_t();
        QVERIFY(change(m_path, {{"page/key", 3}}) && QFileInfo(m_path).lastModified().toTime_t() > time);
        settings->sync();
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QVERIFY(contentOf(m_path).contains("[page]\nkey=3\n") && settings->value("page/key").toInt() == 3);
        // What was pending before is written, but not over the change, nor over what others have written.
        int host = 0;
        for (const QByteArray general : {"[page]\nkey=4\n", "[page]\nkey=5\n", "no value\n"}) {
            store(m_path, general + "[own]\nkey=9\n" + Foreign);
            settings->setValue("page/key", 4);
            settings->setValue("host/key", ++host);
            QVERIFY(write(*settings, {{"page/key", 6}}));
            settings->sync();
            QVERIFY(holds(
                {"[own]\nkey=9\n", "[page]\nkey=6\n", "[host]\nkey=" + QByteArray::number(host) + '\n'}));
        }
        // A change that gives up takes nothing along, not even of a group with the name of its key.
        settings->setValue("host", "group");
        const auto givesUp = [&](QSettings&, QString&) {
            settings->setValue("Foreign", 1);
            settings->setValue("page/key", 7);
            store(m_path, contentOf(m_path) + "[late]\nkey=1\n");
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error));
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error));
        QVERIFY(holds({"[late]\nkey=1\n", "host=group\n", "[page]\nkey=6\n"}));
        const auto locked = [&](QSettings&, QString&) {
            settings->setValue("page/key", 7);
            return ::system("touch " + m_path.toUtf8() + ".lock") == 0;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, locked, error) && error.contains("locked"));
        // Not by QSettings, which in Qt 4 writes what others of the process hold, in another encoding.
        QVERIFY(QFile::remove(m_path + ".lock"));
        store(m_path, contentOf(m_path).replace("[host]\nkey=3\n", "[host]\nkey=99\n"));
        QVERIFY(write(*settings, {{"page/key", 8}}) && !hasPending(*settings));
        settings->sync();
        QVERIFY(holds({"[page]\nkey=8\n", "[host]\nkey=99\n"}));
    }

    void nothingIsLostWhereQSettingsFails_data()
    {
        const std::tuple<const char*, int, bool> rows[] = {
            {"reads before the change", RLIMIT_NOFILE, false},
            {"reads during the change", RLIMIT_NOFILE, true},
            {"writes what a host has set", RLIMIT_FSIZE, false}};
        addRows({"limited", "isDuring"}, rows);
    }

    void nothingIsLostWhereQSettingsFails()
    {
        QFETCH(int, limited);
        QFETCH(bool, isDuring);
        ::signal(SIGXFSZ, SIG_IGN);
        store(m_path, "[General]\nsettingsVersion=2\n[page]\nkey=1\n" + Foreign);
        const auto settings = ZelSettingsFile::Open(m_path);
        const auto failAndSet = [&] {
            rlimit usual, none;
            QVERIFY(::getrlimit(__rlimit_resource_t(limited), &usual) == 0);
            none = usual;
            none.rlim_cur = 0;
            ::setrlimit(__rlimit_resource_t(limited), &none);
            QEvent update(QEvent::UpdateRequest); // QSettings reads the file again.
            if (limited == RLIMIT_NOFILE) {
                QCoreApplication::sendEvent(settings.get(), &update);
            } else {
                QCoreApplication::sendPostedEvents(settings.get(), 0);
                ZelSettingsFile::ReadAgain(*settings, error);
            }
            ::setrlimit(__rlimit_resource_t(limited), &usual);
            settings->setValue("other/key", 1);
        };
        if (limited == RLIMIT_FSIZE) // QSettings of Qt 4 cuts the file first.
            settings->setValue("host/key", 1);
        else
            store(m_path, contentOf(m_path) + "[late]\nkey=1\n");
        if (!isDuring)
            failAndSet();
        const auto change = [&](QSettings& copy, QString&) {
            copy.setValue("new/key", 1);
            if (isDuring)
                failAndSet();
            return true;
        };
        QVERIFY2(ZelSettingsFile::Write(*settings, change, error), qPrintable(error));
        QVERIFY(holds({"[new]\nkey=1\n", "[other]\nkey=1\n", "[page]\nkey=1\n"}));
        QVERIFY(holds({limited == RLIMIT_FSIZE ? "[host]\nkey=1\n" : "[late]\nkey=1\n"}));
    }

    void olderValuesDoNotReplaceNewerOnes()
    {
        store(m_path, "[page]\na=1\nb=1\n[gone]\nkey=1\n" + Foreign);
        auto settings = ZelSettingsFile::Open(m_path);
        store(m_path, "[page]\na=1\nb=newer\n[gone]\nkey=1\n" + Foreign);
        settings->setValue("page/a", 2);
        const auto leavesGroup = [&](QSettings& copy, QString&) {
            settings->remove("gone");
            for (QSettings* one : {&copy, settings.get()})
                one->beginGroup("page");
            return true;
        };
        QVERIFY(ZelSettingsFile::Write(*settings, leavesGroup, error));
        QVERIFY(holds({"[page]\na=2\nb=newer\n"}) && !contentOf(m_path).contains("[gone]"));
        const auto givesUp = [&](QSettings&, QString&) {
            settings->setValue("page/a", 3);
            return false;
        };
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error));
        settings->setValue("page/c", 1);
        QVERIFY(hasPending(*settings) && hasPending(*settings) && write(*settings, {}) &&
                contentOf(m_path).contains("c=1"));
        store(m_path, "");
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error) && write(*settings, {{"own/key", 1}}));
        QVERIFY(holds({"a=2"}));
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error));
        store(m_path, "[page]\na=latest\n");
        settings.reset();
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=latest\n"));
        settings = ZelSettingsFile::Open(m_path);
        settings->setValue("page/b", 1);
        QVERIFY(!ZelSettingsFile::Write(*settings, givesUp, error));
        store(m_path, "[page]\na=newest\n");
        QCoreApplication::sendPostedEvents(settings.get(), 0);
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=newest\n"));
        settings->beginGroup("page");
        settings.reset(); // Writes what has stayed pending, as Write() does.
        QCOMPARE(contentOf(m_path), QByteArray("[page]\na=newest\nb=1\n"));
        settings = ZelSettingsFile::Open(m_path);
        settings->setValue("page/b", 2);
        settings->sync(); // There is still an event to write it.
        store(m_path, "[page]\nb=latest\n");
        settings.reset();
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=latest\n"));
        settings = ZelSettingsFile::Open(m_path);
        const auto clear = [](QSettings& copy, QString&) {
            copy.clear();
            return true;
        };
        QVERIFY(ZelSettingsFile::Write(*settings, clear, error) && contentOf(m_path).isEmpty());
        store(m_path, "[page]\nb=again\n");
        settings->setValue("page/c", 1);
        QVERIFY(write(*settings, {}));
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=again\nc=1\n"));
        QSettings host(m_path, QSettings::IniFormat); // Not opened by us.
        store(m_path, contentOf(m_path) + Foreign);
        host.setValue("host/key", 1);
        host.setValue("page/c", 2);
        QVERIFY(write(host, {}) && holds({"[host]", "b=again\nc=2\n"}));
        store(m_path, "[page]\nb=last\n"); // What others have removed does not come back.
        QVERIFY(write(host, {{"page/b", "mine"}}));
        QCOMPARE(contentOf(m_path), QByteArray("[page]\nb=mine\n"));
    }

    void checksOfARepair()
    {
        static bool isMine, isRefused; // It stays registered.
        isMine = true;
        const auto check = [](QSettings& settings, QString& text) {
            if (isMine)
                settings.setValue("checked/key", 1);
            text = isRefused ? "refused" : "";
            return !isRefused;
        };
        ZelSettingsRegistry::RegisterEndCheckFunction(check);
        const auto settings = ZelSettingsFile::Open(m_path);
        QVERIFY(ZelSettingsFile::Repair(*settings, error) &&
                contentOf(m_path).contains("[checked]\nkey=1\n"));
        store(m_path, "junk\n" + contentOf(m_path));
        settings->setValue("checked/key", 2);
        QVERIFY2(ZelSettingsFile::ReadAgain(*settings, error), qPrintable(error));
        QVERIFY2(copies().size() == 1, contentOf(m_path));
        QVERIFY(contentOf(m_path).contains("[checked]\nkey=2\n"));
        isMine = false;
        isRefused = true;
        QVERIFY(!validate(m_path) && error == "refused");
        isRefused = false;
        // What another program has written while the values are checked stays.
        ZelSettingsRegistry::RegisterSetting("late", "1",
                                             [](const QString&, const QString&, QString&, QString&) {
                                                 if (contentOf("Settings.ini").contains("cacheSize=1\n"))
                                                     store("Settings.ini", "[DBCache]\ncacheSize=8888\n");
                                                 return true;
                                             });
        store(m_path, "[DBCache]\ncacheSize=1\n");
        QVERIFY(validate(m_path) && contentOf(m_path).contains("cacheSize=8888\n"));
        // A missing key with the name of a group, and a default that its validator refuses without a reason.
        ZelSettingsRegistry::RegisterSetting("Foreign", "text", &ZelSettingsValidators::noOp);
        store(m_path, Foreign);
        QVERIFY(validate(m_path) && holds());
        ZelSettingsRegistry::RegisterSetting("bad", "1/2",
                                             &ZelSettingsValidators::ensureSimplificationRatios);
        error.clear();
        QVERIFY(!validate(m_path) && error.contains("not valid"));
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

    void fullDisk()
    {
        // In a mount namespace of its own, so that nothing is left mounted.
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", qPrintable(m_folder.path()), "tmpfs", 0, "size=128k") != 0)
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
            QVERIFY(holds({"[new]\nkey=text\n"}));
        }
        // Room for the lock and a part of the content, whether that is known beforehand or not.
        int written = 0;
        for (int freePages = 1; freePages < 20; ++freePages) {
            store(m_path, Foreign);
            fillDisk(filler, freePages);
            const QByteArray value(16000, 'y');
            QVERIFY(freePages > 4 || !ZelSettingsFile::IsWritable(m_path, error));
            const bool isWritten = write(*ZelSettingsFile::Open(m_path), {{"new/key", QString(value)}});
            QVERIFY(contentOf(m_path).contains(value + '\n') == isWritten && holds());
            QVERIFY2(isWritten || error.contains("No space left"), qPrintable(error));
            written += isWritten;
        }
        QVERIFY(written > 0 && written < 16);
        // What a host has set is too large for QSettings, which cuts the file.
        for (const int freePages : {5, 8}) {
            store(m_path, Foreign);
            fillDisk(filler, freePages);
            const auto settings = ZelSettingsFile::Open(m_path);
            settings->setValue("host/key", QString(30000, 'z'));
            QVERIFY(!write(*settings, {{"new/key", 1}}));
            QCoreApplication::sendPostedEvents(settings.get(), 0);
            QCOMPARE(contentOf(m_path), Foreign);
            QVERIFY(filler.remove());
            QVERIFY2(write(*settings, {{"new/key", 1}}), qPrintable(error));
            QVERIFY(contentOf(m_path).contains("zzz") && contentOf(m_path).contains("[new]\nkey=1\n"));
        }
        store(m_path, Foreign);
        fillDisk(filler, 16);
        const QByteArray path = m_path.toUtf8(), other = path + ".other";
        store(other, Foreign);
        QVERIFY(::mount(other, path, nullptr, MS_BIND, nullptr) == 0);
        // What is in use as another file's place can be rewritten, but not replaced.
        QVERIFY2(apply(m_path) ? !SettingsFilesAreReplaced : error.contains("busy: it cannot be replaced"),
                 qPrintable(error));
        ::umount(path);
        filler.close(); // An open file keeps the disk mounted, and its folder in place.
        ::umount(qPrintable(m_folder.path()));
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

    void obstacles_data()
    {
        const QByteArray limit = "prlimit --pid $PPID --fsize=1000";
        const std::tuple<const char*, QByteArray, QString> rows[] = {
            {"folder that cannot be written", "chmod 555 .", "Permission denied"},
            {"file that cannot be written", "chmod 444 *", "Permission denied"},
            {"link that leads nowhere", "rm *; ln -s /no/where Settings.ini", "No such file"},
            {"folder of this name", "rm *; mkdir Settings.ini", "it is not a file"},
            {"file in place of the folder", "cd ..; rm -r folder; touch folder", "Not a directory"},
            {"limited size, and a comment", "echo ';' >>Settings.ini; " + limit,
             "a copy of it cannot be kept: File too"},
            {"limited size", limit, "too large"}};
        addRows({"command", "reason"}, rows);
    }

    void obstacles()
    {
        QFETCH(QByteArray, command);
        QFETCH(QString, reason);
        const QByteArray content = Foreign + "[other]\n" + QByteArray(2000, 'x') + "=1\n";
        ::signal(SIGXFSZ, SIG_IGN);
        store(m_path, content);
        for (const QString& path : {m_parent->path(), m_folder.path(), m_path})
            QVERIFY(::geteuid() != 0 || ::chown(qPrintable(path), 65534, 65534) == 0);
        const int status = statusOf(startChild([&] {
            // Permissions do not bind the administrator.
            if (::geteuid() == 0 &&
                (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0))
                return false;
            const auto settings = ZelSettingsFile::Open(m_path);
            const QVariant former = settings->value("Foreign/list");
            return ::system(command) == 0 && !write(*settings, {{"Foreign/list", "none"}}) &&
                   error.contains(m_path) && error.contains(reason) &&
                   ZelSettingsFile::IsWritable(m_path, error) == command.contains("prl") &&
                   error.startsWith("Could not write") && error.contains(reason) &&
                   settings->value("Foreign/list") == former;
        }));
        ::chmod(qPrintable(m_folder.path()), 0755);
        QCOMPARE(status, 0);
        QVERIFY(!QFileInfo(m_path).isFile() || contentOf(m_path).startsWith(content));
        QVERIFY(copies().isEmpty());
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

    void copyOfWhatIsGivenUp_data()
    {
        const QByteArray version2("[General]\nsettingsVersion=2\n");
        const std::tuple<const char*, Operation, QByteArray, int> rows[] = {
            {"open group", &apply, version2 + "[open\n", 1},
            {"no value", &migrate, "settingsVersion=1\nx\n", 1},
            {"key without a name", &validate, "=1\n[open\n", 1},
            {"list in place of a number", &validate, version2 + "[DBCache]\ncacheSize=1, 2\n", 1},
            {"comment", &apply, "; mine\n" + version2, 1},
            {"list of another", &validate, version2 + "own=1, 2\n", 0},
            {"keys that differ in case", &apply, version2 + "Engine=1\nENGINE=2\n", SettingsIgnoreCase},
            {"key beyond ASCII", &apply, version2 + "gr\303\266\303\237e=5\n", SettingsIgnoreCase},
            {"no character", &validate, version2 + "own=\357\277\276\n[DBCache]\ncacheSize=77\n", 1},
            {"no character within a plane", &apply, version2 + "own=\357\267\220\n", 1},
            {"tab in a list", &apply, version2 + "own=text\\t , b\n", SettingsDropBlanks},
            {"quoted tab", &validate, version2 + "own=\"text\\t\"\n", SettingsDropBlanks},
            {"escaped blank", &apply, version2 + "own=text\\x20\n", SettingsDropBlanks},
            {"too old, with a comment", &migrate, "[General]\nsettingsVersion=0\n; mine\n", 1},
            {"too old", &migrate, "[General]\nengine=software\n", 1},
            {"older version", &migrate, "[General]\nsettingsVersion=1\n", 0},
            {"value that is not valid", &validate, "[DBCache]\ncacheSize=1\n", 0},
            {"nothing", &migrate, "", 0}};
        addRows({"operation", "content", "kept"}, rows);
    }

    void copyOfWhatIsGivenUp()
    {
        QFETCH(Operation, operation);
        QFETCH(QByteArray, content);
        QFETCH(int, kept);
        store(m_path, content);
        QVERIFY(operation(m_path) && contentOf(m_path) != content);
        for (const Operation once : {&validate, &apply}) {
            QCOMPARE(copies().size(), kept);
            QVERIFY(kept == 0 || contentOf(copies().first()) == content);
            QVERIFY(once(m_path));
        }
    }

    void nothingToWrite()
    {
        for (const char* version : {"2", "7", "2147483648", "4294967297", "\" +99999999999999999999 \""}) {
            const QByteArray content = QByteArray("[General]\nsettingsVersion=") + version + "\n; note\n";
            store(m_path, content);
            setTime(m_path, stampOf(m_path).time - 3600000);
            const QDateTime time = QFileInfo(m_path).lastModified();
            QVERIFY(migrate(m_path) && change(m_path, {}));
            QVERIFY(contentOf(m_path) == content && QFileInfo(m_path).lastModified() == time);
        }
        QVERIFY(QFile::remove(m_path) && migrate(m_path) && !QFile::exists(m_path));
        const QByteArray lists = QByteArray("\\0\\0\\0\\x9\\0\\0\\0\\x1").repeated(50000);
        store(m_path, "x=\"@Variant(" + lists + ")\"\n"); // To decode it would end the process.
        QVERIFY(ZelSettingsFile::Open(m_path) != nullptr);
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
        const auto isLater = [this] {                  // Also by the seconds that some programs compare.
            const qint64 former = stampOf(m_path).time / 1000;
            return change(m_path, {{"DBCache/cacheSize", 513}}) && stampOf(m_path).time / 1000 > former;
        };
        const auto writesAgain = [this] { // When another program has written during a change.
            bool isLate = false;
            const auto slow = [&](QSettings& copy, QString&) {
                copy.setValue("own/key", 1);
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
                   m_folder.exists("Settings.ini.new-1") && isLater() && writesAgain();
        });
        QVERIFY(statusOf(owner) == 0 && ::stat(qPrintable(m_path), &status) == 0 && status.st_gid == 65533);
    }

    void lastThreeCopiesAreKept()
    {
        const QString log = m_folder.filePath("log.txt");
        MTLogger::InstallFileHandler(log.toStdString(), false, "");
        m_path = m_folder.filePath(".Settings.ini"); // Hidden, with hidden copies.
        const QString other = m_folder.filePath(".Settings.inf.2000-01-01T00-00-00.000Z.bak");
        for (const QString& name : {m_path + ".my own.bak", other})
            store(name, "mine");
        isSafe = true;
        for (char damage = '0'; damage < '5'; ++damage) {
            fixedTime.tv_sec = 1000000000 + damage / 2; // Two copies within one millisecond.
            qputenv("TZ", damage % 2 ? "UTC-9" : "UTC+9");
            store(m_path + ".2999-01-01T00-00-00.000Z.bak", "of a clock that was wrong");
            for (int twice = 0; twice < 2; ++twice) { // The second time it is kept already.
                store(m_path, QByteArray(1, damage));
                QVERIFY(apply(m_path));
            }
        }
        fixedTime.tv_sec = 0;
        store(m_path + ".unfinished", "5"); // It cannot be finished without the lock.
        QVERIFY(QDir().mkdir(m_path + ".lock") && !apply(m_path));
        MTLogger::RemoveFileHandler();
        QVERIFY(error.startsWith("Could not write the Torvane settings file \"" + m_path + "\": "));
        QVERIFY(contentOf(log).contains("[error] " + error.toUtf8() + '\n'));
        QByteArray kept;
        for (const QString& copy : copies()) {
            kept += contentOf(copy);
            QVERIFY(contentOf(log).contains(copy.toUtf8()));
        }
        QCOMPARE(kept, QByteArray("234"));
        QVERIFY(isSafe && contentOf(log).contains("that was cut short is not finished: \""));
        QVERIFY(contentOf(log).contains("[warning] The settings file \"" + m_path.toUtf8() + '"'));
        QCOMPARE(contentOf(m_path + ".my own.bak") + contentOf(other), QByteArray("minemine"));
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
        const QStringList list = {text, text, QString(1, QChar())};
        QVERIFY(change(m_path, {{"list", list}, {"mark", mark}, {"third", QVariant(1 / 3.F)}}));
        const auto shared = ZelSettingsFile::Open(m_path); // QSettings would serialise a float.
        shared->setValue("half", QVariant(0.5F));
        QVERIFY2(write(*shared, {}), qPrintable(error));
        QVERIFY2(contentOf(m_path).contains("\nhalf=0.5\n"), contentOf(m_path));
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("third").toFloat(), 1 / 3.F);
        QVERIFY(change(m_path, {{"sure", "yes"}}) && change(m_path, {{"sure", true}}));
        QVERIFY(contentOf(m_path).contains("\nsure=true\n"));
        shared->setValue("half", QVariant(true));
        QVERIFY(write(*shared, {}) && contentOf(m_path).contains("\nhalf=true\n"));
        for (const QVariant& lost : {QVariant(QStringList({text.left(1), "b"})), QVariant(QDate(2000, 1, 1))})
            QVERIFY(!change(m_path, {{"lost", lost}}) && error.contains("not all values"));
        // Under other names, because QSettings remembers what it has read; at last with Qt's own codec.
        for (const bool own : {true, false}) {
            const QString path = m_folder.filePath(own ? "own" : "other");
            QVERIFY(QFile::copy(m_path, path));
            const auto copy = ZelSettingsFile::Open(path);
            if (!own)
                copy->setIniCodec("UTF-8");
            QCOMPARE(copy->value("list").toStringList(), list);
            QVERIFY(!own || copy->value("mark").toString() == mark);
        }
        const auto settings = ZelSettingsFile::Open(m_path);
        store(m_path, Utf8Mark + contentOf(m_path));
        QVERIFY(ZelSettingsFile::ReadAgain(*settings, error));
        settings->setValue("host", text);
        settings->sync(); // QSettings writes it.
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("host").toString(), text);
        settings->setIniCodec("UTF-8");
        settings->setValue("host", text + text);
        QVERIFY(write(*settings, {{"new/key", 1}}));
        QCOMPARE(ZelSettingsFile::Open(m_path)->value("host").toString(), text + text);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsFaults)
#include "tst_SettingsFaults.moc"
