#ifndef ZEL_FOLDERFUNCTIONS_H
#define ZEL_FOLDERFUNCTIONS_H

class QString;

namespace zel {

/// How the validators see folders and create them. The checker puts functions of its own here, because it
/// only looks.
struct FolderFunctions
{
    bool (*isFolder)(const QString& path);
    /// Creates a folder with all missing parents; true when it exists afterwards.
    bool (*createFolder)(const QString& path);
};

extern FolderFunctions folderFunctions;

} // namespace zel

#endif
