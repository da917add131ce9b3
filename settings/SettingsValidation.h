#ifndef ZEL_SETTINGSVALIDATION_H
#define ZEL_SETTINGSVALIDATION_H

#include "ZelSettingsRegistry.h"

#include <QSettings>
#include <QVariant>

namespace zel {

/// Lets the validator of every registered key, in key order, see what the settings hold for it, and hands
/// each text that comes of it to a function: take(entry of the registry, stored value, text). A missing key
/// holds its default. Changes nothing by itself. False when a validator gives up, which ends it.
template <typename Take>
bool validateSettings(const QSettings& settings, QString& error, Take take)
{
    for (const auto& entry : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        const auto& [defaultValue, validator] = entry.second;
        const QVariant stored = settings.value(entry.first, QVariant(defaultValue));
        QString text = stored.toString();
        if (!validator(entry.first, defaultValue, text, error))
            return false;
        take(entry, stored, text);
    }
    return true;
}

} // namespace zel

#endif
