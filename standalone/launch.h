#ifndef ZEL_LAUNCH_H
#define ZEL_LAUNCH_H

#include "base/ZelExport.h"

/// Runs the stand-alone settings editor with the command line of its host, whose working folder must be the
/// root of the installed tree. To be called once in a process, and without an application object: the editor
/// brings its own.
///
/// Returns the exit code of the process:
/// - 0 when another instance runs, when the choice of a renderer is cancelled or when the settings cannot be
///   used;
/// - 1 when the renderer has just been chosen, so that the next start opens the window;
/// - 3 when the process has an application object already, or has called it before; a message of Qt tells
///   which, and nothing else has been done;
/// - else what the event loop returned.
extern "C" ZEL_EXPORT int launch(int argc, char** argv);

#endif
