#include "InstanceAddress.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#if defined(_WIN32)
#    include <lmcons.h>
#    include <windows.h>
#else
#    include <sys/stat.h>
#    include <sys/un.h>
#    include <unistd.h>
#endif

namespace {

const char Prefix[] = "single-instance-";

/// A name of fixed length, because the path of a socket may have some hundred bytes at most.
QString nameOf(const QString& id)
{
    const QByteArray hash = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex();
    return Prefix + QString::fromLatin1(hash.left(20));
}

#if defined(_WIN32)

/// Pipes have one name space for all users of a machine.
QString userAndSession()
{
    wchar_t name[UNLEN + 1] = L"";
    DWORD size = UNLEN + 1;
    GetUserNameW(name, &size);
    DWORD session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &session);
    return QString("%1/%2").arg(session).arg(QString::fromWCharArray(name));
}

#else

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

/// The first private folder in which a socket of that name can be; empty when there is none.
QString privateFolder(const QString& socketName)
{
    const QString runtime = QDir::cleanPath(QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")));
    if (QDir::isAbsolutePath(runtime) && isPrivate(runtime) && fitsSocket(runtime + '/' + socketName))
        return runtime;
    for (const QString& shared : {QDir(QDir::tempPath()).absolutePath(), QString("/tmp")}) {
        const QString own = QString("%1/%2%3").arg(shared, Prefix).arg(::geteuid());
        if (!fitsSocket(own + '/' + socketName))
            continue;
        // It is there after the first start. Whoever made it, and however, is looked at next.
        ::mkdir(QFile::encodeName(own).constData(), 0700);
        if (isPrivate(own))
            return own;
    }
    return QString();
}

#endif

} // namespace

InstanceAddress::InstanceAddress(const QString& id)
{
#if defined(_WIN32)
    m_server = nameOf(id + '/' + userAndSession());
    m_lock = "Local\\" + m_server;
#else
    const QString name = nameOf(id);
    const QString folder = privateFolder(name + ".socket");
    if (folder.isEmpty())
        return;
    m_server = folder + '/' + name + ".socket";
    m_lock = folder + '/' + name + ".lock";
#endif
}
