#include "InstanceLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#if defined(_WIN32)
#    include <lmcons.h>
#    include <windows.h>
#else
#    include <cerrno>
#    include <fcntl.h>
#    include <sys/file.h>
#    include <sys/stat.h>
#    include <sys/un.h>
#    include <unistd.h>
#endif

namespace {

const char Prefix[] = "single-instance-";

/// A short name, because the path of a socket is limited to about a hundred bytes.
QString nameOf(const QString& id)
{
    const QByteArray hash = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex();
    return Prefix + QString::fromLatin1(hash.constData(), 20);
}

} // namespace

#if defined(_WIN32)

namespace {

/// All users of a machine share the names of pipes.
QString sessionAndUser()
{
    wchar_t name[UNLEN + 1] = L"";
    DWORD size = UNLEN + 1;
    GetUserNameW(name, &size);
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    return QString("%1/%2").arg(session).arg(QString::fromWCharArray(name));
}

} // namespace

InstanceLock::InstanceLock(const QString& id)
    : m_server(nameOf(id + '/' + sessionAndUser()))
    , m_name("Local\\" + m_server)
{
}

InstanceLock::~InstanceLock()
{
    if (isHeld())
        CloseHandle(m_mutex);
}

bool InstanceLock::isHeld() const
{
    return m_mutex != nullptr;
}

InstanceLock::Result InstanceLock::tryAcquire()
{
    if (isHeld())
        return Held;
    m_mutex = CreateMutexW(nullptr, FALSE, reinterpret_cast<const wchar_t*>(m_name.utf16()));
    if (!m_mutex)
        return Failed;
    if (GetLastError() != ERROR_ALREADY_EXISTS)
        return Held;
    CloseHandle(m_mutex);
    m_mutex = nullptr;
    return HeldElsewhere;
}

#else

namespace {

bool isPrivate(const QString& folder)
{
    struct stat info;
    return ::lstat(QFile::encodeName(folder).constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid() && (info.st_mode & 0777) == 0700;
}

bool fitsSocket(const QString& path)
{
    return QFile::encodeName(path).size() < static_cast<int>(sizeof(sockaddr_un().sun_path));
}

/// The first private folder whose path is short enough for a socket of that name; empty when there is none.
QString privateFolder(const QString& socketName)
{
    const QString runtime = QDir::cleanPath(QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")));
    if (QDir::isAbsolutePath(runtime) && isPrivate(runtime) && fitsSocket(runtime + '/' + socketName))
        return runtime;
    for (const QString& shared : {QDir(QDir::tempPath()).absolutePath(), QString("/tmp")}) {
        const QString own = QString("%1/%2%3").arg(shared, Prefix).arg(::geteuid());
        if (!fitsSocket(own + '/' + socketName))
            continue;
        // mkdir() may fail because the folder exists, perhaps of another user: isPrivate() decides.
        ::mkdir(QFile::encodeName(own).constData(), 0700);
        if (isPrivate(own))
            return own;
    }
    return QString();
}

} // namespace

InstanceLock::InstanceLock(const QString& id)
{
    const QString name = nameOf(id);
    const QString folder = privateFolder(name + ".socket");
    if (folder.isEmpty())
        return;
    m_server = folder + '/' + name + ".socket";
    m_name = folder + '/' + name + ".lock";
}

InstanceLock::~InstanceLock()
{
    // The file stays: otherwise one process could hold the lock of the removed file, another that of a new
    // one.
    if (isHeld())
        ::close(m_file);
}

bool InstanceLock::isHeld() const
{
    return m_file >= 0;
}

InstanceLock::Result InstanceLock::tryAcquire()
{
    if (isHeld())
        return Held;
    const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    const int file = m_name.isEmpty() ? -1 : ::open(QFile::encodeName(m_name).constData(), flags, 0600);
    if (file < 0)
        return Failed;
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
        m_file = file;
        return Held;
    }
    const bool heldElsewhere = errno == EWOULDBLOCK;
    ::close(file);
    return heldElsewhere ? HeldElsewhere : Failed;
}

#endif
