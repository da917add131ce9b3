#ifndef ZEL_SETTINGSVALIDATION_H
#define ZEL_SETTINGSVALIDATION_H

#include "ZelSettingsRegistry.h"

#include <QSettings>
#include <QVariant>

namespace zel {

/// The error where a validator that fails gives none: the program has registered a default that is not valid.
const char* const InvalidDefault = "The default of a setting is not valid";

/// Runs the validator of a registered key on what settings hold for it, or on the default of a missing key.
/// False, perhaps with the error text set, when it fails.
/// @param stored  set to the value; invalid for a missing key
/// @param text  set to what becomes of it
inline bool validateKey(const QSettings& settings, const ZelSettingsRegistry::Settings::value_type& entry,
                        QVariant& stored, QString& text, QString& error)
{
    const auto& [key, rule] = entry;
    const auto& [defaultValue, validator] = rule;
    stored = settings.value(key);
    text = settings.value(key, defaultValue).toString(); // Of a stored "@Invalid()", an empty one.
    return validator(key, defaultValue, text, error);
}

/// Validates every registered key, in key order, and calls visit(entry of the registry, stored value,
/// resulting text); see validateKey(). Stops at a validator that fails, and returns false.
template <typename Visit>
bool validateSettings(const QSettings& settings, QString& error, Visit visit)
{
    for (const auto& entry : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        QVariant stored;
        QString text;
        if (!validateKey(settings, entry, stored, text, error))
            return false;
        visit(entry, stored, text);
    }
    return true;
}

/// True for a value that QSettings has read as a list: a comma in it stands outside quotation marks.
inline bool isList(const QVariant& value)
{
    return value.type() == QVariant::StringList || value.type() == QVariant::List;
}

/// True when the stored value is missing, is a list, or differs from the text.
inline bool needsRepair(const QVariant& stored, const QString& text)
{
    return !stored.isValid() || isList(stored) || stored.toString() != text;
}

/// Runs the registered end checks, up to the first that fails. In ZelSettingsRegistry.cpp, which lists them.
bool runEndChecks(QSettings& settings, QString& error);

} // namespace zel

#endif
