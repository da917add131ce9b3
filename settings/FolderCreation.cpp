#include "FolderCreation.h"

#include <QDir>
#include <QFileInfo>

namespace zel {

FolderRehearsal* FolderRehearsal::s_current = nullptr;

namespace {

bool canBeCreated(const QString& path)
{
    QString folder = QDir(path).absolutePath();
    while (!QFileInfo(folder).exists() && !QDir(folder).isRoot())
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

bool createFolder(const QString& path)
{
    if (QFileInfo(path).isDir())
        return true;
    if (!FolderRehearsal::s_current)
        return QDir(path).mkpath(".");
    if (!canBeCreated(path))
        return false;
    FolderRehearsal::s_current->m_folders += path;
    return true;
}

} // namespace zel
