#ifndef ZEL_FOLDERCREATION_H
#define ZEL_FOLDERCREATION_H

#include <QString>

namespace zel {

/// How the validators see folders and create them. A rehearsal of the validation pass puts functions of its
/// own here for as long as it runs.
struct FolderFunctions
{
    bool (*isFolder)(const QString& path);
    /// Creates a folder with all missing parents; true when it exists afterwards.
    bool (*createFolder)(const QString& path);
};

extern FolderFunctions folderFunctions;

/// True when a folder exists and can be written into, or could be created so with its missing parents.
bool canCreateFolder(const QString& path);

} // namespace zel

#endif
