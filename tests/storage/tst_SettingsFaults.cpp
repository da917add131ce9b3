#include "SettingsFolder.h"
#include "SettingsState.h"
#include "base/FileLock.h"

#include "platform/MTLogger.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

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
class tst_SettingsFaults : public SettingsFolder
{
    Q_OBJECT

private:
    /// Does what a host, a page and another program may do, in a random order, with random faults. True when
    /// each finds the values that it has set last.
    bool walk(unsigned seed)
    {
        std::mt19937 random(seed);
        const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
        store(m_path, "[General]\nsettingsVersion=2\n[a]\nhost1=0\nhost2=0\nother1=0\nother2=0\n"
                      "page1=0\npage2=0\n");
        std::map<QString, QString> set; // By the keys in the group.
        bool isPending = false;         // What the host has set may not be in the file yet.
        auto settings = ZelSettingsFile::Open(m_path);
        const auto setBeside = [&](const QString& key, const QString& value) { // By another program.
            const Fault fault = std::exchange(faultAtCall, NoFault);
            const FileStamp former = stampOf(m_path);
            QString text = contentOf(m_path);
            store(m_path, text.replace(QRegExp(key + "=[^\n]*"), key + '=' + value).toUtf8());
            makeLater(m_path, former);
            set[key] = value;
            faultAtCall = fault;
        };
        for (int step = 0; step < 25; ++step) {
            const QString value = QString::number(step) + QString(600 * below(2), 'x');
            const QString number = QString::number(1 + below(2));
            const int what = below(10), way = below(6);
            const auto change = [&, isFirst = true](QSettings& copy, QString&) mutable {
                (way == 1 ? *settings : copy).setValue("a/page" + number, value);
                if (way == 2 && !hasPending(*settings)) // QSettings would write it, without protection.
                    settings->sync();
                if (way == 3 && std::exchange(isFirst, false))
                    setBeside("other1", value);
                return way < 4;
            };
            callsLeft = below(way < 3 ? 60 : 250);
            faultAtCall = what > 5 && below(2) ? Fails : NoFault;
            if (what < 3) {
                setBeside((way ? "other" : "page") + number, value);
            } else if (what < 5) {
                settings->setValue("a/host" + number, set["host" + number] = value);
                if (!way)
                    QCoreApplication::sendPostedEvents(settings.get(), 0);
                isPending = true;
            } else if (what < 6) {
                settings.reset();
                settings = ZelSettingsFile::Open(m_path);
                isPending = false;
            } else if (what < 7) {
                ZelSettingsFile::ReadAgain(*settings, error);
            } else if (ZelSettingsFile::Write(*settings, change, error)) {
                set["page" + number] = value;
                isPending = false;
            }
            faultAtCall = NoFault;
            if (!ZelSettingsFile::IsUsable(m_path, error))
                return false;
            for (const auto& [key, wanted] : set) {
                const bool isHosts = key.startsWith("host"), isStored = !isHosts || !isPending;
                if ((isStored && !QString(contentOf(m_path)).contains(key + '=' + wanted + '\n')) ||
                    (isHosts && settings->value("a/" + key).toString() != wanted))
                    return false;
            }
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

private Q_SLOTS:
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

    void nobodysValuesAreLost()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer has these functions itself");
#endif
        for (unsigned seed = 0; seed < 500; ++seed) {
            init();
            QVERIFY2(statusOf(startChild([=] { return walk(seed); })) == 0, QByteArray::number(seed));
        }
    }

#if !defined(ZEL_LEAVE_OUT_ownLockIsRespected)
    void ownLockIsRespected()
    {
        const QString path = m_path + ".lock";
        for (const int lacking : {EOPNOTSUPP, ENOENT, ENOLCK, 0}) {
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
#if defined(__SANITIZE_ADDRESS__)
        if (limited == RLIMIT_NOFILE)
            QSKIP("the sanitizer opens files, too");
#endif
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
};

QTEST_GUILESS_MAIN(tst_SettingsFaults)
#include "tst_SettingsFaults.moc"
