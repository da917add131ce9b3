#ifndef ZEL_FOLDERCREATION_H
#define ZEL_FOLDERCREATION_H

#include <QString>
#include <QStringList>

namespace zel {

/// Creates a folder with all missing parents; true when it exists afterwards. Every folder that a validator
/// needs is created here.
bool createFolder(const QString& path);

/// While one of these lives, createFolder creates nothing: it notes the folder, and tells whether it could be
/// created.
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
    friend bool createFolder(const QString& path);

    static FolderRehearsal* s_current;
    QStringList m_folders;
};

} // namespace zel

#endif
