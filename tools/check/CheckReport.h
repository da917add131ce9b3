#ifndef ZEL_CHECKREPORT_H
#define ZEL_CHECKREPORT_H

#include "SettingsInspection.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace zel {

/// The outcome of a check. The values are the exit codes.
enum class CheckState { Clean = 0, NeedsRepair = 1, NotRepairable = 2, Repaired = 4 };

/// The worse of two outcomes. The order from good to bad: Clean, Repaired, NeedsRepair, NotRepairable.
CheckState worseOf(CheckState one, CheckState other);

/// What the checker reports about one settings file.
struct CheckReport
{
    CheckState state = CheckState::Clean;
    QString file;                        ///< The name that the user gave.
    bool isFreshStart = false;           ///< The editor will keep only the language.
    QString damage;                      ///< What the pass loses of the file; empty when nothing.
    std::vector<SettingsChange> changes; ///< Those that the repair made or would make.
    QStringList folders;                 ///< Those that the repair created or would create.
    QString copy;                        ///< The copy of what the repair has replaced; empty without one.
    QString error;                       ///< Why it is not repairable.

    /// Lines for people to read. Texts from the file are escaped, so that they cannot control a terminal.
    QByteArray toText() const;

    /// One JSON object, on one line.
    QByteArray toJson() const;
};

} // namespace zel

#endif
