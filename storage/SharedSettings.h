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
    /// As giveBack(), unless that or readWritten() was called, but without a write: the values that the
    /// change has set stay pending.
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

    /// To be called when nothing was written: they hold their former values again, or what they have read
    /// since, and QSettings forgets what the change has set. If that is not possible, which returns false
    /// with the reason, or values were pending before, nothing is written before the next write.
    bool giveBack(QString& reason);

private:
    Q_DISABLE_COPY(SharedSettings)

    /// The part of giveBack() that only touches memory. True when values are pending then.
    bool holdFormer();

    QSettings& m_settings;
    const QVariantMap m_held; ///< What they held before the change.
    const bool m_hasPending;
    const LastRead m_lastRead;
    std::optional<QVariantMap> m_former; ///< What the last read has found; none until that is known.
    QVariantMap m_stored;                ///< What the file held before the last attempt.
    QVariantMap m_known;
    const Deadline& m_deadline;
    bool m_isDone; ///< They hold what they should.
};

} // namespace zel

#endif
