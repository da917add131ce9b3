#ifndef ZEL_SETTINGSSTATE_H
#define ZEL_SETTINGSSTATE_H

// What QSettings does not tell of itself: whether it has something to write, and what it has read.

#include <QByteArray>
#include <QVariant>

#include <optional>

class QSettings;

namespace zel {

/// True when settings hold values that they have not written, or have posted an event to write.
bool hasPending(QSettings& settings);

/// True when settings hold values that they could not write.
bool hasUnwritten(const QSettings& settings);
void setUnwritten(QSettings& settings, bool isUnwritten);

/// Keeps settings from writing what is pending while they live: they would wait for a lock without end, or
/// write without protection. The next write carries it.
void stopWriting(QSettings& settings);

/// Leaves the groups that a change has begun, outside which no value can be reached.
void leaveGroups(QSettings& settings);

/// What settings have read of the file. What they have set since is a difference from that.
struct LastRead
{
    std::optional<QVariantMap> values; ///< What they held then; none if that is unknown.
    std::optional<QByteArray> content; ///< Of the file; none if it has held all of the values.
};
LastRead lastRead(const QSettings& settings);

/// Notes what settings have read: the values that the content holds as well, because QSettings does not tell
/// of a read, or of a write, that has failed. From then on, what they read in the event loop is noted, too;
/// after stopWriting(), the event loop neither reads nor writes.
/// @param content  of the file, without objects; none if it holds all of the values
void noteRead(QSettings& settings, const QVariantMap& values,
              const std::optional<QByteArray>& content = std::nullopt);

/// Reads the file again. QSettings writes what is pending, without protection.
/// @param content  of the file, without objects, as it was just read
void readAgain(QSettings& settings, const QByteArray& content);

} // namespace zel

#endif
