#ifndef ZEL_LAUNCH_H
#define ZEL_LAUNCH_H

#include "base/ZelExport.h"

/// Runs the stand-alone settings editor with the command line of its host, whose working folder must be the
/// root of the installed tree. Returns the exit code of the process: 0 when another instance runs, when the
/// choice of a renderer is cancelled or when the settings cannot be used; 1 when the renderer has just been
/// chosen, so that the next start opens the window; else what the event loop returned.
extern "C" ZEL_EXPORT int launch(int argc, char** argv);

#endif
