#ifndef ZEL_SETTINGSVALIDATION_H
#define ZEL_SETTINGSVALIDATION_H

#include "ZelSettingsRegistry.h"

#include <QSettings>
#include <QVariant>

namespace zel {

/// How the validators see folders and create them. The checker puts functions of its own here, because it
/// only looks.
struct FolderFunctions
{
    bool (*isFolder)(const QString& path);
    /// Creates a folder with all missing parents; true when it exists afterwards.
    bool (*createFolder)(const QString& path);
};

extern FolderFunctions folderFunctions;

/// The error where a validator that fails gives none: the program has registered a default that is not valid.
const char* const InvalidDefault = "The default of a setting is not valid";

/// Runs the validator of every registered key, in key order, on what the settings hold for it, and calls
/// visit(entry of the registry, stored value, resulting text). The stored value of a missing key is invalid;
/// its validator sees the default. Stops at a validator that fails, and returns false.
template <typename Visit>
bool validateSettings(const QSettings& settings, QString& error, Visit visit)
{
    // No settings file can hold a pointer, so it stands for a missing key.
    const QVariant missing = QVariant::fromValue<void*>(nullptr);
    for (const auto& entry : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        const auto& [defaultValue, validator] = entry.second;
        QVariant stored = settings.value(entry.first, missing);
        const bool isMissing = stored.userType() == QMetaType::VoidStar;
        if (isMissing)
            stored.clear();
        QString text = isMissing ? defaultValue : stored.toString();
        if (!validator(entry.first, defaultValue, text, error))
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

/// Runs the registered end checks, up to the first that fails.
bool runEndChecks(QSettings& settings, QString& error);

} // namespace zel

#endif
