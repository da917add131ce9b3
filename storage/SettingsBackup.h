#ifndef ZEL_SETTINGSBACKUP_H
#define ZEL_SETTINGSBACKUP_H

#include <QString>

namespace zel {

/// Dated copies of a settings file, kept beside it before its content is given up:
/// "Settings.ini.2024-05-31T18-04-09.123Z.bak". The last three are kept. What is kept, and what cannot be, is
/// announced.
class SettingsBackup
{
public:
    /// Keeps a copy. False, with a translated text, if that is not possible: the file should then stay as it
    /// is. A file without content needs no copy, and one that is kept already gets no second one.
    /// @param reason  why the content is given up, as in "it is too old"
    /// @param copy    becomes the copy's path; empty when none is needed
    /// @param source  the file that holds the content, where it is not the settings file itself
    static bool keep(const QString& path, const QString& reason, QString& copy, QString& error,
                     const QString& source = QString());

    /// Keeps a copy of a file that is damaged.
    static bool keepIfDamaged(const QString& path, QString& copy, QString& error);
};

} // namespace zel

#endif
