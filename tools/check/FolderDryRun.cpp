#include "FolderDryRun.h"

#include "FileAccess.h"

#include <QDir>

#include <algorithm>

namespace zel {

FolderDryRun* FolderDryRun::s_current = nullptr;

FolderDryRun::FolderDryRun()
    : m_former(folderFunctions)
{
    s_current = this;
    folderFunctions = {&isFolder, &createFolder};
}

FolderDryRun::~FolderDryRun()
{
    folderFunctions = m_former;
    s_current = nullptr;
}

bool FolderDryRun::isFolder(const QString& path)
{
    // Creating a folder creates its parents too.
    const QString folder = QDir::cleanPath(QDir(path).absolutePath()) + '/';
    return s_current->m_former.isFolder(path) ||
           (!path.isEmpty() &&
            std::any_of(s_current->m_folders.begin(), s_current->m_folders.end(),
                        [&](const QString& created) {
                            return (QDir::cleanPath(QDir(created).absolutePath()) + '/').startsWith(folder);
                        }));
}

bool FolderDryRun::createFolder(const QString& path)
{
    if (isFolder(path))
        return true;
    if (!canCreateFolder(path))
        return false;
    s_current->m_folders += path;
    return true;
}

} // namespace zel
