#ifndef ZEL_CHECKREPORT_H
#define ZEL_CHECKREPORT_H

#include "SettingsInspection.h"

#include <QByteArray>
#include <QString>

namespace zel {

/// The outcome of a check, each with the exit code that tells it.
enum class CheckState { Clean = 0, NeedsRepair = 1, NotRepairable = 2, Repaired = 4 };

/// The worse of two outcomes; from good to bad: Clean, Repaired, NeedsRepair, NotRepairable.
CheckState worseOf(CheckState one, CheckState other);

/// What is told of one settings file.
struct CheckReport
{
    CheckState state = CheckState::Clean;
    QString file;                        ///< As it was named.
    bool isFreshStart = false;           ///< The editor would keep nothing but the language.
    QString damage;                      ///< What is lost of the file; empty when nothing is.
    std::vector<SettingsChange> changes; ///< Made by the repair, or needed.
    QStringList folders;                 ///< Created by the repair, or missing.
    QString copy;                        ///< What is kept of a damaged file; empty when there is none.
    QString error;                       ///< Why it is not repairable.

    /// In lines for people. Texts of the file stand in quotation marks, so that they cannot steer a terminal.
    QByteArray toText() const;

    /// As one JSON object.
    QByteArray toJson() const;
};

} // namespace zel

#endif
