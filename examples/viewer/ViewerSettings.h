#ifndef VIEWER_VIEWERSETTINGS_H
#define VIEWER_VIEWERSETTINGS_H

#include <QString>

/// The viewer's own keys in Settings.ini.
namespace viewerkeys {

const char* const Turns = "turntable/enabled";
const char* const TurnSpeed = "turntable/degreesPerSecond";

} // namespace viewerkeys

/// The viewer's rules for Settings.ini.
class ViewerSettings
{
public:
    /// Registers every key with its default and validator, and the end check. Call it before the validation
    /// pass.
    /// @param applicationName  the name of the folders for log and cache
    /// @param folder           the folder of the settings file
    static void Register(const QString& applicationName, const QString& folder);
};

#endif
