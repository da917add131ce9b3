#ifndef ZEL_FOLDERDRYRUN_H
#define ZEL_FOLDERDRYRUN_H

#include "FolderFunctions.h"

#include <QStringList>

namespace zel {

/// While this object lives, the validators create no folder. Creating one succeeds if it is possible, and
/// from then on the folder counts as existing. Only one object may live at a time.
class FolderDryRun
{
public:
    FolderDryRun();
    ~FolderDryRun();

    FolderDryRun(const FolderDryRun&) = delete;
    FolderDryRun& operator=(const FolderDryRun&) = delete;

    /// The folders that the validators would have created.
    const QStringList& folders() const { return m_folders; }

private:
    static bool isFolder(const QString& path);
    static bool createFolder(const QString& path);

    static FolderDryRun* s_current;

    const FolderFunctions m_former;
    QStringList m_folders;
};

} // namespace zel

#endif
