#include "FolderCreation.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace zel {

FolderRehearsal* FolderRehearsal::s_current = nullptr;

namespace {

bool canBeCreated(const QString& path)
{
    QString folder = QDir(path).absolutePath();
    // A link that leads nowhere does not exist, and yet no folder can take its place.
    while (!QFileInfo(folder).exists() && !QFileInfo(folder).isSymLink() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    const QFileInfo ancestor(folder);
    return ancestor.isDir() && ancestor.isWritable();
}

} // namespace

FolderRehearsal::FolderRehearsal()
{
    s_current = this;
}

FolderRehearsal::~FolderRehearsal()
{
    s_current = nullptr;
}

bool FolderRehearsal::wouldExist(const QString& path) const
{
    const QString folder = QDir::cleanPath(QDir(path).absolutePath()) + '/';
    return !path.isEmpty() &&
           std::any_of(m_folders.begin(), m_folders.end(), [&folder](const QString& created) {
               return (QDir::cleanPath(QDir(created).absolutePath()) + '/').startsWith(folder);
           });
}

bool isFolder(const QString& path)
{
    return QFileInfo(path).isDir() ||
           (FolderRehearsal::s_current && FolderRehearsal::s_current->wouldExist(path));
}

bool createFolder(const QString& path)
{
    if (isFolder(path))
        return true;
    if (!FolderRehearsal::s_current)
        return QDir(path).mkpath(".");
    if (!canBeCreated(path))
        return false;
    FolderRehearsal::s_current->m_folders += path;
    return true;
}

} // namespace zel
