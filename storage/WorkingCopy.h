#ifndef ZEL_WORKINGCOPY_H
#define ZEL_WORKINGCOPY_H

#include "SettingsLock.h"
#include "SpareCopy.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <memory>

class QSettings;

namespace zel {

/// A complete file beside the settings file, in a folder that only its user can enter. It is changed in place
/// of the settings file, and takes its place when it is known to be good. Its maker holds the lock, except
/// while the copy is changed.
class WorkingCopy
{
public:
    /// @param lock  of the settings file; outlives the copy
    explicit WorkingCopy(const SettingsLock& lock);
    /// Removes the copy, unless it has taken its place.
    ~WorkingCopy();

    /// The copy that a change is made to; null when none is.
    static const WorkingCopy* changing() { return s_changing; }

    /// Makes a copy the one that a change is made to, also if that ends with an exception.
    class ChangeScope
    {
    public:
        explicit ChangeScope(const WorkingCopy& copy) { s_changing = &copy; }
        ~ChangeScope() { s_changing = nullptr; }

    private:
        Q_DISABLE_COPY(ChangeScope)
    };

    /// Copies the settings file, after a dated copy of it where a write loses something. Lines with
    /// serialised objects are left out. False, with the reason, when the file cannot be read or copied.
    /// @param known  what the file has held, as far as that is known: what a damaged, empty or cut file has
    ///     lost comes back from it. A file that lacks a registered key counts as cut.
    bool make(const QVariantMap& known, QString& reason);

    /// Of the copy. Valid from a successful make() on.
    QSettings& settings() const { return *m_settings; }

    /// Of the settings file, as it was given.
    const QString& path() const { return m_lock.path(); }
    /// True when the file must be written even if the change sets nothing: QSettings could not write its
    /// content again without a loss, or has lost some.
    bool mustBeWritten() const { return m_mustBeWritten; }

    /// Of the settings file, when it was copied; once the copy is written, of that.
    const QByteArray& content() const { return m_isWritten ? m_result : m_content; }

    /// Reads the values of a content of the settings file, without objects, after make(). False, with the
    /// reason, when that is not possible.
    bool parse(const QByteArray& content, QVariantMap& values, QString& reason) const;

    /// Keeps the content of the settings file as a dated copy; see keepBackup().
    bool keepContent(const QString& loss, QString& reason) const;

    /// Writes the values to the copy, and forces it onto the disk. False, with the reason, when it does not
    /// hold them all afterwards.
    bool write(QString& reason);

    /// Lets the copy take the place of the settings file, with its rights.
    Outcome put(QString& reason);

    /// Makes the copy the spare copy of the settings file, with its rights. False, with the reason, when that
    /// is not possible. A file that does not exist needs none.
    bool putAside(const SpareCopy& spare, QString& reason);

private:
    Q_DISABLE_COPY(WorkingCopy)

    QString nextName() const;
    /// Adds what a damaged, empty or cut file has lost. False, with the reason, when it cannot be kept.
    bool restoreLost(const QVariantMap& known, QString& reason);
    /// Begins with what QSettings writes of values.
    bool makeOf(const QVariantMap& values, QString& reason);
    /// Writes the values and reads them. False, with the reason, when they are not the same.
    /// @param isExact  compares more than the names
    bool writeAndCompare(bool isExact, QString& reason);
    /// Gives the copy the rights of the settings file; if that is not possible, only its user has rights.
    bool takeRights();
    Outcome replace(QString& reason) const;

    static const WorkingCopy* s_changing;

    const SettingsLock& m_lock;
    const QString m_target; ///< The settings file behind all links.
    const QString m_folder; ///< Of the copy.
    QString m_copy;
    QByteArray m_content; ///< Of the settings file, when it was copied.
    QByteArray m_result;  ///< Of the copy, once it is written.
    bool m_exists;
    bool m_mustBeWritten;
    bool m_isWritten;
    std::unique_ptr<QSettings> m_settings;
};

} // namespace zel

#endif
