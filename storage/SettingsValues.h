#ifndef ZEL_SETTINGSVALUES_H
#define ZEL_SETTINGSVALUES_H

#include <QVariant>

class QSettings;

namespace zel {

/// All values, by the names that QSettings writes: the group "[%general]" becomes "[%General]". Not those
/// with names that it reads from a file but cannot look up.
QVariantMap valuesOf(const QSettings& settings);

/// True for values that are equal and have the same text: QVariant takes true and "yes" for equal.
bool isSame(const QVariant& first, const QVariant& second);
bool isSame(const QVariantMap& first, const QVariantMap& second);

/// Makes settings hold these values, and no others.
void setValues(QSettings& settings, const QVariantMap& wanted);

/// The values that are the same in both.
QVariantMap common(const QVariantMap& first, const QVariantMap& second);

/// The values of both; those of the first where they differ.
QVariantMap united(QVariantMap values, const QVariantMap& others);

/// True when a registered key is gone, which nobody removes: QSettings takes a file that it cannot read for
/// an empty one.
bool lacksRegistered(const QVariantMap& values, const QVariantMap& former);

} // namespace zel

#endif
