#ifndef ZEL_WORKINGCOPY_H
#define ZEL_WORKINGCOPY_H

#include "SpareCopy.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

namespace zel {

/// All values, by the names that QSettings writes: the group "[%general]" becomes "[%General]". Not those
/// with names that it reads from a file but cannot look up.
QVariantMap valuesOf(const QSettings& settings);

/// A complete file beside the settings file, in a folder that only its user can enter. It is changed in place
/// of the settings file, and takes its place when it is known to be good. Its maker holds the lock of the
/// settings file, except while it is changed.
class WorkingCopy
{
public:
    /// @param path  of the settings file, which may be a link
    /// @param deadline  ends all waits; outlives the copy
    WorkingCopy(const QString& path, const Deadline& deadline);
    /// Removes the copy, unless it has taken its place.
    ~WorkingCopy();

    /// The copy that a change is made to; null when none is.
    static WorkingCopy* Changing;

    /// Copies the settings file, after a dated copy of it where a write loses something. Lines with
    /// serialised objects are left out. False, with the reason, when the file cannot be read or copied.
    bool make(QString& reason);

    /// Of the copy. Valid from a successful make() on.
    QSettings& settings() const { return *m_settings; }

    /// Of the settings file, as it was given.
    const QString& path() const { return m_path; }
    /// The content of the settings file when it was copied.
    const QByteArray& content() const { return m_content; }
    /// True when QSettings could not write the content again without a loss.
    bool isDamaged() const { return m_damaged; }

    /// Keeps the content of the settings file as a dated copy; see keepBackup().
    bool keepContent(const QString& loss, QString& reason) const;

    /// Writes the values to the copy, and forces it onto the disk. False, with the reason, when it does not
    /// hold them all afterwards.
    bool write(QString& reason);

    /// Lets the copy take the place of the settings file, with its rights.
    Outcome put(QString& reason);

private:
    Q_DISABLE_COPY(WorkingCopy)

    QString nextName() const;
    /// Writes the values and reads them. False, with the reason, when they are not the same.
    /// @param isExact  compares more than the names
    bool readAgain(bool isExact, QString& reason);
    Outcome replace(QString& reason) const;

    const QString m_path;
    const QString m_target; ///< The settings file behind all links.
    const QString m_folder; ///< Of the copy.
    const Deadline& m_deadline;
    QString m_copy;
    QByteArray m_content; ///< Of the settings file, when it was copied.
    QByteArray m_result;  ///< Of the copy, once it is written.
    bool m_exists;
    bool m_damaged;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace zel

#endif
