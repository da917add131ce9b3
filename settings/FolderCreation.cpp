#include "FolderCreation.h"

#include <QDir>
#include <QFileInfo>

zel::FolderFunctions zel::folderFunctions = {
    [](const QString& path) { return QFileInfo(path).isDir(); },
    [](const QString& path) { return QFileInfo(path).isDir() || QDir(path).mkpath("."); }};

bool zel::canCreateFolder(const QString& path)
{
    QString folder = QDir(path).absolutePath();
    // A link that leads nowhere does not exist, and yet no folder can take its place.
    while (!QFileInfo(folder).exists() && !QFileInfo(folder).isSymLink() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    const QFileInfo ancestor(folder);
    return ancestor.isDir() && ancestor.isWritable();
}
