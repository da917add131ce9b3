#ifndef ZEL_LAUNCH_H
#define ZEL_LAUNCH_H

#include "base/ZelExport.h"

/* Also for hosts in C, from C99 on: the comments are those of C99. */
#if defined(__cplusplus)
extern "C" {
#endif

/// Registers the keys of the settings pages with the defaults of the installed file "resources/Defaults.ini".
/// Call it before launch(), in the same working directory, unless the host registers these keys with defaults
/// of its own.
ZEL_EXPORT void zelRegisterPageDefaults(void);

/// Runs the stand-alone settings editor with the command line of the host. The working directory must be the
/// root of the installed tree. Call it once in a process, without an application object: it creates its own.
///
/// The library's own keys are registered by launch(). Before it, the host registers those of the settings
/// pages, by zelRegisterPageDefaults() or one by one: without them Reset has no defaults for the pages, and
/// their values are not validated. launch() empties the registry, except when it refuses, another instance
/// runs, or the user cancels the choice of the renderer.
///
/// Returns the exit code of the process:
/// - 0 when another instance runs, when the user cancels the choice of the renderer, or when the settings
///   file cannot be used;
/// - 1 when the user has just chosen the renderer; the next start opens the window;
/// - 3 when the process already has an application object, or has called launch() before: it then prints the
///   reason with qWarning() and does nothing else;
/// - otherwise the result of the event loop.
ZEL_EXPORT int launch(int argc, char** argv);

#if defined(__cplusplus)
}
#endif

#endif
