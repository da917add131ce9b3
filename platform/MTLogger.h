#ifndef ZEL_MTLOGGER_H
#define ZEL_MTLOGGER_H

#include "../base/ZelExport.h"

#include <string>

/// The viewer's log: events of a type, each with a text. Events that come before a handler is installed are
/// kept and written as soon as there is one.
class ZEL_KERNEL_EXPORT MTLogger
{
public:
    /// Writes events to a file from now on, one line each with time, type and text.
    /// A file that cannot be opened is reported on standard output; the application goes on without a log.
    /// @param diagnostics    also write events of the type "debug"
    /// @param blackListUtf8  types that are not written, separated by "," or ";", case ignored
    static void InstallFileHandler(const std::string& fileUtf8, bool diagnostics,
                                   const std::string& blackListUtf8);

    /// Closes the log file. Does nothing without a handler.
    static void RemoveFileHandler();

    /// Writes one event; types in use are "debug", "info", "warning" and "error".
    static void Log(const std::string& type, const std::string& textUtf8);
};

#endif
