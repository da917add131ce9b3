#ifndef ZEL_FOLDERREHEARSAL_H
#define ZEL_FOLDERREHEARSAL_H

#include "SettingsValidation.h"

#include <QStringList>

namespace zel {

/// While one of these lives, the validators create no folder: they are told whether it could be created, and
/// from then on that it exists. One at a time.
class FolderRehearsal
{
public:
    FolderRehearsal();
    ~FolderRehearsal();

    FolderRehearsal(const FolderRehearsal&) = delete;
    FolderRehearsal& operator=(const FolderRehearsal&) = delete;

    /// The folders that would have been created.
    const QStringList& folders() const { return m_folders; }

private:
    static bool isFolder(const QString& path);
    static bool createFolder(const QString& path);

    static FolderRehearsal* s_current;

    const FolderFunctions m_former;
    QStringList m_folders;
};

} // namespace zel

#endif
