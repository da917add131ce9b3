#include "FileLock.h"

#include "SystemCalls.h"
#include "SystemFiles.h"

#include <QByteArray>
#include <QFileInfo>
#include <QList>

#include <cstdlib>

#if defined(Q_OS_WIN)
#    include <windows.h>
#else
#    include <cerrno>
#    include <ctime>
#    include <fcntl.h>
#    include <sys/file.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace zel {

namespace {

const std::intptr_t None = -1;

} // namespace

FileLock::FileLock(const QString& lock)
    : m_path(lock)
    , m_handle(None)
{
}

FileLock::~FileLock()
{
    release();
}

FileLock::State FileLock::take(int timeout)
{
    State found = Held;
    succeedsWithin(timeout, [&] {
        found = tryOnce();
        return found != Held;
    });
    return found;
}

#if defined(Q_OS_WIN)

// The system keeps a lock file that its process has open, so what can be removed is orphaned.

bool FileLock::isBlocked() const
{
    const DWORD attributes = GetFileAttributesW(native(m_path));
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return true;
    const HANDLE file =
        CreateFileW(native(m_path), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() != ERROR_SHARING_VIOLATION && GetLastError() != ERROR_FILE_NOT_FOUND;
    CloseHandle(file);
    return false;
}

FileLock::State FileLock::tryOnce()
{
    DeleteFileW(native(m_path));
    const HANDLE file = CreateFileW(native(m_path), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return QFileInfo(m_path).isFile() ? Held : Blocked;
    const QByteArray text = QByteArray::number(static_cast<uint>(GetCurrentProcessId())) + '\n';
    DWORD written = 0;
    WriteFile(file, text.constData(), static_cast<DWORD>(text.size()), &written, nullptr);
    m_handle = reinterpret_cast<std::intptr_t>(file);
    return Taken;
}

void FileLock::release()
{
    if (m_handle == None)
        return;
    CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    DeleteFileW(native(m_path));
    m_handle = None;
}

#else

namespace {

const time_t MaximumAge = 30; // s
const mode_t Permissions = 0666;

/// The name of a running program; empty when the system does not tell.
QByteArray programOf(const QByteArray& process)
{
    char target[4096];
    const ssize_t length = ::readlink(("/proc/" + process + "/exe").constData(), target, sizeof(target));
    const QByteArray path(target, static_cast<int>(length > 0 ? length : 0));
    return path.mid(path.lastIndexOf('/') + 1);
}

QByteArray hostName()
{
    char name[256] = "";
    ::gethostname(name, sizeof(name) - 1);
    return name;
}

/// Holds a lock file, where the file system has such locks. False when another process holds it.
bool hold(int file)
{
    return ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno == ENOLCK;
}

/// Holds a lock file and names this process in it.
bool claim(int file)
{
    const QByteArray process = QByteArray::number(static_cast<qlonglong>(::getpid()));
    const QByteArray text = process + '\n' + programOf(process) + '\n' + hostName() + '\n';
    return hold(file) &&
           ::write(file, text.constData(), static_cast<std::size_t>(text.size())) == text.size();
}

/// Closes a lock file that was not created after all. None, with the error of the call before.
std::intptr_t giveUp(int file)
{
    const int reason = errno;
    ::close(file);
    errno = reason;
    return None;
}

/// Creates a lock file that holds its text as soon as it has its name: an empty one, which a killed process
/// would leave, counts as valid for half a minute. None, with the system's error, when that is not possible.
std::intptr_t create(const QByteArray& path)
{
    const QByteArray folder = path.left(path.lastIndexOf('/') + 1) + '.';
    const int unnamed = ::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, Permissions);
    if (unnamed >= 0) {
        const QByteArray opened = "/proc/self/fd/" + QByteArray::number(unnamed);
        if (claim(unnamed) &&
            ::linkat(AT_FDCWD, opened.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0)
            return unnamed;
        giveUp(unnamed);
        if (errno != ENOENT)
            return None;
    }
    // Not all systems have files without a name, or /proc.
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, Permissions);
    if (file < 0 || claim(file))
        return file;
    const int reason = errno;
    ::unlink(path.constData());
    errno = reason;
    return giveUp(file);
}

/// An existing lock file, opened to be judged.
class ExistingLock
{
public:
    explicit ExistingLock(const QByteArray& path)
        : m_path(path)
        , m_file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK))
    {
        m_exists = ::lstat(path.constData(), &m_status) == 0;
    }

    ~ExistingLock()
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    /// True when something else than a file has this name.
    bool isBlocked() const { return m_exists && !S_ISREG(m_status.st_mode); }

    /// True when its process has ended, or when it is too old.
    bool isOrphaned() const
    {
        char text[1024];
        const ssize_t length = m_file < 0 ? -1 : ::read(m_file, text, sizeof(text));
        const QList<QByteArray> lines =
            QByteArray(text, static_cast<int>(length > 0 ? length : 0)).split('\n');
        const QByteArray process = lines.value(0), program = lines.value(1), host = lines.value(2);
        const long number = std::strtol(process.constData(), nullptr, 10);
        if (number > 0 && (host.isEmpty() || host == hostName())) {
            if (!isProcessRunning(number))
                return true;
            // A later program may have got the number of the one that has ended.
            const QByteArray running = programOf(process);
            if (!running.isEmpty() && running != program.mid(program.lastIndexOf('/') + 1))
                return true;
        }
        return std::abs(::time(nullptr) - m_status.st_mtime) > MaximumAge;
    }

    /// Removes it, unless its process still holds it, or another lock has its name meanwhile.
    bool remove() const
    {
        return m_file >= 0 && hold(m_file) && isInPlace() && ::unlink(m_path.constData()) == 0;
    }

private:
    Q_DISABLE_COPY(ExistingLock)

    bool isInPlace() const
    {
        struct stat opened = {}, named = {};
        return ::fstat(m_file, &opened) == 0 && ::lstat(m_path.constData(), &named) == 0 &&
               opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
    }

    const QByteArray m_path;
    const int m_file;
    struct stat m_status = {};
    bool m_exists = false;
};

} // namespace

bool FileLock::isBlocked() const
{
    return ExistingLock(native(m_path)).isBlocked();
}

FileLock::State FileLock::tryOnce()
{
    const QByteArray path = native(m_path);
    m_handle = create(path);
    if (m_handle != None)
        return Taken;
    if (errno != EEXIST)
        return Blocked;
    const ExistingLock lock(path);
    if (lock.isBlocked()) {
        errno = EEXIST;
        return Blocked;
    }
    // Another program that removes the same orphaned lock must not remove the one that is made in its place.
    FileLock removal(m_path + ".rmlock");
    if (lock.isOrphaned() && removal.tryOnce() == Taken && lock.remove())
        return tryOnce();
    return Held;
}

void FileLock::release()
{
    if (m_handle == None)
        return;
    ::unlink(native(m_path).constData());
    ::close(static_cast<int>(m_handle));
    m_handle = None;
}

#endif

} // namespace zel
