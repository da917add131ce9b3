#ifndef ZEL_MTLOGGER_H
#define ZEL_MTLOGGER_H

#include "../base/ZelExport.h"

#include <string>

/// The viewer's log: events with a type and a text. Keeps events until a handler is installed, which then
/// writes them.
class ZEL_KERNEL_EXPORT MTLogger
{
public:
    /// Writes events to a file from now on, one line each with time, type and text. Reports a file that
    /// cannot be opened on standard output; the application then has no log.
    /// @param diagnostics    whether to write events of the type "debug"
    /// @param blackListUtf8  types to leave out, separated by "," or ";", in upper or lower case
    static void InstallFileHandler(const std::string& fileUtf8, bool diagnostics,
                                   const std::string& blackListUtf8);

    /// Closes the log file. Does nothing without a handler.
    static void RemoveFileHandler();

    /// Writes one event; types in use are "debug", "info", "warning" and "error".
    static void Log(const std::string& type, const std::string& textUtf8);
};

#endif
