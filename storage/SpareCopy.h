#ifndef ZEL_SPARECOPY_H
#define ZEL_SPARECOPY_H

#include "Outcome.h"

#include <QByteArray>
#include <QString>

namespace zel {

class Deadline;

/// A complete copy that stands beside a file, "Settings.ini.unfinished", while the file is written in place:
/// by QSettings, or because QSettings locks the file itself. It has what the file holds in the end. If the
/// process is killed meanwhile, the file is brought to its end from it. The caller holds the lock of the
/// file, except for exists() and readFinished(), whose answers may soon be out of date.
class SpareCopy
{
public:
    /// @param target  the file, which is no link
    /// @param deadline  ends all waits; outlives this object
    SpareCopy(const QString& target, const Deadline& deadline);

    /// True while there is one: now, or because a process was killed.
    bool exists() const;

    /// What the file holds once finish() has been called. False, with the reason, when it cannot be read.
    bool readFinished(QByteArray& content, QString& reason) const;

    /// Makes another file the spare copy. False, with the reason, when that is not possible.
    bool adopt(const QString& file, QString& reason) const;

    /// Writes over the file, which other programs may have opened already, waiting to write to it.
    /// @param expected  what the file holds unless another program has written it
    /// @param content  what the spare copy holds
    Outcome overwrite(const QByteArray& expected, const QByteArray& content, QString& reason) const;

    /// As restoreIfCut(), after a write that was killed. If another program has written the file since, the
    /// spare copy becomes a dated one.
    bool finish(QString& reason) const;

    /// Brings the file to its end if it is cut, and removes the spare copy. False, with the reason, when that
    /// is not possible.
    bool restoreIfCut(QString& reason) const;

    /// Puts the spare copy in the place of the file, whatever that holds, and removes it. False, with the
    /// reason, when that is not possible.
    bool restore(QString& reason) const;

    /// Gives the file the rights that it had when the spare copy was made.
    void giveRights() const;

    void remove() const;

private:
    bool readBoth(QByteArray& wanted, QByteArray& present, QString& reason) const;
    bool putBack(const QByteArray& wanted, const QByteArray& present, QString& reason) const;

    const QString m_target;
    const QString m_path;
    const Deadline& m_deadline;
};

} // namespace zel

#endif
