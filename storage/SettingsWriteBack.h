#ifndef ZEL_SETTINGSWRITEBACK_H
#define ZEL_SETTINGSWRITEBACK_H

#include <QString>
#include <QVariant>

class QSettings;

namespace zel {

class Deadline;

/// Makes QSettings forget what was set in it, which only a write of its own does: gives settings what the
/// file holds, and lets them write that once more. They may cut the file all the same, and QSettings of Qt 5
/// changes its rights, so a spare copy stands beside it meanwhile. False, with the reason, when they have not
/// written, as when the file has lost what they held. If they have cut it, the spare copy is left then.
/// @param known  what the file has held, as for WorkingCopy::make()
bool writeBack(QSettings& settings, const Deadline& deadline, const QVariantMap& known, QString& reason);

} // namespace zel

#endif
