#ifndef ZEL_LAUNCH_H
#define ZEL_LAUNCH_H

#include "base/ZelExport.h"

/// Runs the stand-alone settings editor with the command line of the host. The working directory must be the
/// root of the installed tree. Call it once in a process, without an application object: it creates its own.
///
/// Returns the exit code of the process:
/// - 0 when another instance runs, when the user cancels the choice of the renderer, or when the settings
///   file cannot be used;
/// - 1 when the user has just chosen the renderer; the next start opens the window;
/// - 3 when the process already has an application object, or has called launch() before: it then prints the
///   reason with qWarning() and does nothing else;
/// - otherwise the result of the event loop.
extern "C" ZEL_EXPORT int launch(int argc, char** argv);

#endif
