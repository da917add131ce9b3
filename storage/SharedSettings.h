#ifndef ZEL_SHAREDSETTINGS_H
#define ZEL_SHAREDSETTINGS_H

#include "SettingsState.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

class QSettings;

namespace zel {

class Deadline;
class WorkingCopy;

/// The settings that a write is asked for. They only read the file. Hosts and pages set values in them all
/// the same: these are carried into the copy of the file. QSettings cannot forget them, so it is given what
/// the file then holds, and writes that once more.
class SharedSettings
{
public:
    /// @param deadline  ends all waits; outlives this object, as the settings do
    SharedSettings(QSettings& settings, const Deadline& deadline);
    /// If nothing was written, they hold their former values again, or what they have read since. Values that
    /// the change has set would stay pending: QSettings writes the file's own values once more to forget
    /// them. If that is not possible, or values were pending before, nothing is written before the next
    /// write.
    ~SharedSettings();

    /// What the file has held, as far as that is known: a file that is cut meanwhile is restored with it.
    const QVariantMap& known() const { return m_known; }

    /// Notes what the file holds before an attempt to write it, and adds that to what is known of it.
    void learn(const QVariantMap& values);

    /// Sets in a copy of the file what has been set here before the change. False, with the reason, when that
    /// cannot be found out.
    bool carryPending(WorkingCopy& copy, QString& reason);

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
    const bool m_hasPending;
    const LastRead m_lastRead;
    QVariant m_former;    ///< What the last read has found; invalid until that is known.
    QVariantMap m_stored; ///< What the file held before the last attempt.
    QVariantMap m_known;
    const Deadline& m_deadline;
    bool m_isWritten;
};

} // namespace zel

#endif
