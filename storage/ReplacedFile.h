#ifndef ZEL_REPLACEDFILE_H
#define ZEL_REPLACEDFILE_H

#include <QString>

#include <cstdint>

namespace zel {

/// What a settings file has besides its content, and would lose when a new one takes its place: its owner and
/// group, and its other names (hard links).
class ReplacedFile
{
public:
    /// Takes note of the present file, the one behind a link; there may be none.
    explicit ReplacedFile(const QString& path);

    /// False when a new file could not be given to the owner and the group of this one.
    bool canKeepOwner() const;

    /// Gives a file to the owner and the group of this one. False when this process may not.
    bool giveToOwner(const QString& path) const;

    /// Gives what has taken the place of the file to the owner and group; announces what cannot be kept.
    void restore() const;

private:
    const QString m_path;
    const uint m_owner;
    const uint m_group;
    const std::uintmax_t m_names;
};

} // namespace zel

#endif
