#include "ReplacedFile.h"

#include "Announcement.h"
#include "FileTools.h"
#include "base/FileOwner.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <filesystem>
#include <system_error>

namespace zel {

namespace {

/// How many names a file has; 0 when there is no file.
std::uintmax_t namesOf(const QString& path)
{
    std::error_code error;
    const auto names = std::filesystem::hard_link_count(nativePath(path), error);
    return error ? 0 : names;
}

} // namespace

ReplacedFile::ReplacedFile(const QString& path)
    : m_path(QFileInfo(path).canonicalFilePath())
    , m_owner(QFileInfo(path).ownerId())
    , m_group(QFileInfo(path).groupId())
    , m_names(namesOf(m_path))
{
}

bool ReplacedFile::canKeepOwner() const
{
    if (m_path.isEmpty())
        return true;
    QTemporaryFile probe(m_path + ".XXXXXX");
    if (!probe.open() || giveToOwner(probe.fileName())) // Without room for it nothing will be replaced.
        return true;
    // A group loses nothing that all others may do as well.
    const QFile::Permissions allowed = QFile::permissions(m_path);
    const bool groupMatters = ((allowed & QFile::ReadGroup) && !(allowed & QFile::ReadOther)) ||
                              ((allowed & QFile::WriteGroup) && !(allowed & QFile::WriteOther));
    return !groupMatters && QFileInfo(probe.fileName()).ownerId() == m_owner;
}

bool ReplacedFile::giveToOwner(const QString& path) const
{
    const QFileInfo file(path);
    return (file.ownerId() == m_owner && file.groupId() == m_group) || giveFileTo(path, m_owner, m_group);
}

void ReplacedFile::restore() const
{
    if (m_path.isEmpty())
        return;
    if (!giveToOwner(m_path))
        announce("error", QString("Could not give \"%1\" back to its owner and group.").arg(m_path));
    if (m_names > 1 && namesOf(m_path) == 1)
        announce("warning",
                 QString("\"%1\" is a file of its own now: its other names (hard links) keep the former "
                         "content.")
                     .arg(m_path));
}

} // namespace zel
