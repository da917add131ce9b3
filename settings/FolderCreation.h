#ifndef ZEL_FOLDERCREATION_H
#define ZEL_FOLDERCREATION_H

#include <QString>
#include <QStringList>

namespace zel {

/// True for a folder that exists, or would exist by now if this were no rehearsal. Every validator asks here.
bool isFolder(const QString& path);

/// Creates a folder with all missing parents; true when it exists afterwards. Every folder that a validator
/// needs is created here.
bool createFolder(const QString& path);

/// While one of these lives, createFolder creates nothing: it tells whether the folder could be created, and
/// from then on isFolder takes it for one.
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
    friend bool isFolder(const QString& path);
    friend bool createFolder(const QString& path);

    bool wouldExist(const QString& path) const;

    static FolderRehearsal* s_current;
    QStringList m_folders;
};

} // namespace zel

#endif
