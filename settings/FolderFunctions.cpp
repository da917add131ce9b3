#include "FolderFunctions.h"

#include <QDir>
#include <QFileInfo>
#include <QString>

namespace zel {

FolderFunctions folderFunctions = {
    [](const QString& path) { return QFileInfo(path).isDir(); },
    [](const QString& path) { return QFileInfo(path).isDir() || QDir(path).mkpath("."); }};

} // namespace zel
