#ifndef ZEL_FOLDERREHEARSAL_H
#define ZEL_FOLDERREHEARSAL_H

#include "SettingsValidation.h"

#include <QStringList>

namespace zel {

/// A dry run for folders: while this object lives, the validators create no folder. Creating one succeeds if
/// it is possible, and from then on the folder counts as existing. Only one object may live at a time.
class FolderRehearsal
{
public:
    FolderRehearsal();
    ~FolderRehearsal();

    FolderRehearsal(const FolderRehearsal&) = delete;
    FolderRehearsal& operator=(const FolderRehearsal&) = delete;

    /// The folders that the validators would have created.
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
