#ifndef ZEL_SHAREDSETTINGS_H
#define ZEL_SHAREDSETTINGS_H

#include <QString>
#include <QVariant>

class QSettings;

namespace zel {

class Deadline;

/// True when settings hold values that they have not written.
bool hasPending(QSettings& settings);

/// Reads the file again. What is pending is written, without protection.
void readAgain(QSettings& settings);

/// The settings that a write is asked for. They only read the file. A change may set values in them all the
/// same, as many a page does: QSettings cannot forget these, and has to write them.
class SharedSettings
{
public:
    /// @param deadline  ends all waits; outlives this object, as the settings do
    SharedSettings(QSettings& settings, const Deadline& deadline);
    /// Unless the file has been written, they hold again what they held.
    ~SharedSettings();

    /// What they held before the change.
    const QVariantMap& held() const { return m_held; }

    /// True until catchUp() when there may be values that were set before the write, and are not in the file.
    bool isBehind(const QVariantMap& file) const { return !m_isCaughtUp && (m_hasPending || m_held != file); }

    /// Lets the file have such values, and reads what others have written. Not to be called under the lock.
    /// False, with the reason, when that is not possible.
    bool catchUp(QString& reason);

    /// Sets in a copy of the file what the change has set here.
    void carryOver(QSettings& copy) const;

    /// To be called when the file is written, and not under its lock. False, with the reason, when it has not
    /// stayed whole.
    bool readWritten(QString& reason);

private:
    Q_DISABLE_COPY(SharedSettings)

    void stopWriting();
    bool writePending(QString& reason);

    QSettings& m_settings;
    QVariantMap m_held;
    const bool m_hasPending;
    const Deadline& m_deadline;
    bool m_isCaughtUp;
    bool m_isWritten;
};

} // namespace zel

#endif
