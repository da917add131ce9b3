#ifndef ZEL_SHAREDSETTINGS_H
#define ZEL_SHAREDSETTINGS_H

#include <QByteArray>
#include <QString>
#include <QVariant>

class QSettings;

namespace zel {

class Deadline;
class WorkingCopy;

/// True when settings hold values that they have not written, or have posted an event to write.
bool hasPending(QSettings& settings);

/// True when settings hold values that they could not write.
bool hasUnwritten(const QSettings& settings);

/// Leaves the groups that a change has begun, outside which no value can be reached.
void leaveGroups(QSettings& settings);

/// Keeps settings from writing what is pending while they live: they would wait for a lock without end, or
/// write without protection. The next write carries it.
void stopWriting(QSettings& settings);

/// Notes what settings have just read from the file, so that what is set later can be told from what others
/// have written. It is what both hold: QSettings does not tell of a read, or of a write, that has failed.
/// @param content  of the file, without objects
void noteRead(QSettings& settings, const QByteArray& content);

/// Reads the file again. QSettings writes what is pending, without protection.
/// @param content  of the file, without objects, as it was just read
void readAgain(QSettings& settings, const QByteArray& content);

/// The settings that a write is asked for. They only read the file. Hosts and pages set values in them all
/// the same: these are carried into the copy of the file. QSettings cannot forget them, so it is given what
/// the file then holds, and writes that once more.
class SharedSettings
{
public:
    /// @param deadline  ends all waits; outlives this object, as the settings do
    SharedSettings(QSettings& settings, const Deadline& deadline);
    /// If nothing was written, they hold their former values again. Values that the change has set would stay
    /// pending: QSettings writes the file's own values once more to forget them. If that is not possible, or
    /// values were pending before, nothing is written before the next write.
    ~SharedSettings();

    /// What the file has held, as far as that is known: a file that is cut meanwhile is restored with it.
    const QVariantMap& known() const { return m_known; }

    /// Adds to what is known of the file.
    void learn(const QVariantMap& values);

    /// Sets in a copy of the file what has been set here before the change.
    void carryPending(WorkingCopy& copy) const;

    /// Sets in a copy of the file what the change has set here.
    void carryOver(QSettings& copy);

    /// To be called when the file is written, and not under its lock. False, with the reason, when it has not
    /// stayed whole.
    /// @param content  what the file holds now
    bool readWritten(const QByteArray& content, QString& reason);

private:
    Q_DISABLE_COPY(SharedSettings)

    bool writePending(const QVariantMap& known, QString& reason);

    QSettings& m_settings;
    const QVariantMap m_held; ///< What they held before the change.
    QVariantMap m_known;
    const bool m_hasPending;
    const Deadline& m_deadline;
    bool m_isWritten;
};

} // namespace zel

#endif
