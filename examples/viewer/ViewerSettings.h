#ifndef VIEWER_VIEWERSETTINGS_H
#define VIEWER_VIEWERSETTINGS_H

#include <QString>

/// The keys of Settings.ini that are this viewer's own.
namespace viewerkeys {

const char* const Turns = "turntable/enabled";
const char* const TurnSpeed = "turntable/degreesPerSecond";

} // namespace viewerkeys

/// What this viewer demands of Settings.ini.
class ViewerSettings
{
public:
    /// Registers every key with its default and validator, and the end check. To be called before the
    /// validation pass.
    /// @param applicationName  names the folders of the log and of the cache
    /// @param folder           where the settings file lies
    static void Register(const QString& applicationName, const QString& folder);
};

#endif
