#ifndef ZEL_ZELSETTINGSREGISTRY_H
#define ZEL_ZELSETTINGSREGISTRY_H

#include "base/ZelExport.h"

#include <QString>

#include <map>
#include <utility>

class QSettings;

namespace zel {

/// The keys that Settings.ini must hold, each with its default text and the validator that repairs its value,
/// and the pass that brings a file into that form. One registry per process: filled at start-up, before any
/// page exists, and read-only from then on. GUI thread only.
class ZEL_EXPORT ZelSettingsRegistry
{
public:
    /// Checks one value and may rewrite it in place; what it leaves there is written back. False stops the
    /// pass: the validator then sets the error text, unless the default itself is not valid.
    using Validator = bool (*)(const QString& key, const QString& defaultValue, QString& value,
                               QString& error);

    /// Checks the settings as a whole, once every value is repaired. Sets the error text when it fails.
    using EndCheck = bool (*)(QSettings& settings, QString& error);

    /// The registered keys: to each its default text and its validator.
    using Settings = std::map<QString, std::pair<QString, Validator>>;

    /// Adds a key. False, and no change, for a key that is there already: its first registration wins.
    static bool RegisterSetting(const QString& key, const QString& defaultValue, Validator validator);

    /// The registered default of a key; a null text for a key that is not registered.
    static QString GetDefaultSettingsValue(const QString& key);

    /// Every registered key with its default and validator, in key order.
    static const Settings& GetDefaultSettingsValues();

    /// Forgets every key; end checks stay.
    static void ClearSettingsValues();

    /// Adds an end check behind those already there; false, and no change, if it is one of them.
    static bool RegisterEndCheckFunction(EndCheck check);

    /// Repairs and completes the settings: every registered key holds a valid value afterwards. Writes the
    /// file as QSettings does, without protection: a start calls ZelSettingsFile::Repair instead. False when
    /// a validator or an end check gave up; the error text is then theirs. A validator that gives up leaves
    /// the keys after its own untouched.
    static bool EnsureSettings(QSettings& settings, QString& error);
};

} // namespace zel

#endif
