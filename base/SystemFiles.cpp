#include "SystemFiles.h"

#include "SystemCalls.h"

#include <QFileInfo>

#if defined(Q_OS_WIN)
#    include <io.h>
#    include <vector>
#    include <windows.h>
#else
#    include <acl/libacl.h>
#    include <attr/libattr.h>
#    include <cerrno>
#    include <csignal>
#    include <sys/acl.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace zel {

QString systemError()
{
    return qt_error_string();
}

#if defined(Q_OS_WIN)

namespace {

/// Repeats an attempt for a second while it fails because a program has the file open for itself, as virus
/// scanners do. On failure the error is that of the last attempt.
/// @param alsoBusy  another error that may mean this
template <typename Attempt>
bool succeedsWhenFree(Attempt attempt, DWORD alsoBusy = ERROR_SHARING_VIOLATION)
{
    bool isDone = false;
    succeedsWithin(1000, [&] {
        isDone = attempt();
        const DWORD error = GetLastError();
        return isDone ||
               (error != ERROR_SHARING_VIOLATION && error != ERROR_LOCK_VIOLATION && error != alsoBusy);
    });
    return isDone;
}

bool isReadOnly(const QString& path)
{
    const DWORD attributes = GetFileAttributesW(native(path));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

} // namespace

bool openWhenFree(QFile& file, QIODevice::OpenMode mode)
{
    return succeedsWhenFree([&] { return file.open(mode); });
}

bool isOwnFile(const QString&)
{
    return true;
}

bool mayReplace(const QString&)
{
    return true;
}

bool isWritableFolder(const QString& path)
{
    const DWORD attributes = GetFileAttributesW(native(path));
    const bool isFolder = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
    if (!isFolder && attributes != INVALID_FILE_ATTRIBUTES)
        SetLastError(ERROR_DIRECTORY);
    return isFolder;
}

bool isProcessRunning(qint64 process)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    const bool isRunning = handle && WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
    if (handle)
        CloseHandle(handle);
    return isRunning || (!handle && GetLastError() == ERROR_ACCESS_DENIED);
}

bool createPrivateFolder(const QString& path)
{
    return CreateDirectoryW(native(path), nullptr) != 0;
}

bool syncToDisk(const QFile& file)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
}

bool copyRights(const QString& from, const QString& to)
{
    if (isReadOnly(from))
        return true; // It is not replaced.
    const DWORD attributes = GetFileAttributesW(native(from));
    if (attributes == INVALID_FILE_ATTRIBUTES || !SetFileAttributesW(native(to), attributes))
        return false;
    DWORD size = 0;
    GetFileSecurityW(native(from), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<char> rights(size);
    // Not all file systems have rights.
    return !GetFileSecurityW(native(from), DACL_SECURITY_INFORMATION, rights.data(), size, &size) ||
           SetFileSecurityW(native(to), DACL_SECURITY_INFORMATION, rights.data());
}

// ReplaceFileW() would leave no file at all if the process is killed between its two steps.
bool replaceFile(const QString& file, const QString& replaced)
{
    if (isReadOnly(replaced)) { // Wine would replace it for an administrator.
        SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    return succeedsWhenFree(
        [&] {
            return MoveFileExW(native(file), native(replaced),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        },
        ERROR_ACCESS_DENIED);
}

#else

bool openWhenFree(QFile& file, QIODevice::OpenMode mode)
{
    return file.open(mode);
}

bool isOwnFile(const QString& path)
{
    return QFileInfo(path).ownerId() == ::geteuid();
}

bool mayReplace(const QString& path)
{
    return isOwnFile(path) || ::geteuid() == 0;
}

bool isWritableFolder(const QString& path)
{
    return ::access((native(path) + "/.").constData(), W_OK) == 0;
}

bool isProcessRunning(qint64 process)
{
    return ::kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
}

bool createPrivateFolder(const QString& path)
{
    return ::mkdir(native(path).constData(), S_IRWXU) == 0;
}

bool syncToDisk(const QFile& file)
{
    return ::fsync(file.handle()) == 0;
}

bool copyRights(const QString& from, const QString& to)
{
    const QByteArray source = native(from), target = native(to);
    struct stat rights = {}, former = {};
    if (::stat(source.constData(), &rights) != 0 || ::stat(target.constData(), &former) != 0)
        return false;
    // The owner first: giving a file away takes rights from it.
    return ((former.st_uid == rights.st_uid && former.st_gid == rights.st_gid) ||
            ::chown(target.constData(), rights.st_uid, rights.st_gid) == 0) &&
           ::perm_copy_file(source.constData(), target.constData(), nullptr) == 0 &&
           ::attr_copy_file(source.constData(), target.constData(), &attr_copy_check_permissions, nullptr) ==
               0;
}

bool replaceFile(const QString& file, const QString& replaced)
{
    return ::rename(native(file).constData(), native(replaced).constData()) == 0;
}

#endif

} // namespace zel
