#ifndef ZEL_KQLIBRARIES_H
#define ZEL_KQLIBRARIES_H

#include "../base/ZelExport.h"

// Functions that start and stop the viewer's libraries. Start each once, before any other use of it; stop
// them in reverse order.

namespace kq {

/// How much of the system library an application needs.
enum InitType { InitMinimal = 0, InitConsole = 1, InitApplication = 2 };

/// @param reportCrashes  installs the crash reporter of the library
KQ_SYSTEM_EXPORT void initializeKqSystem(InitType type, bool reportCrashes);
KQ_SYSTEM_EXPORT void terminateKqSystem();

KQ_SCENE_GRAPH_EXPORT void initializeKqSceneGraph();
KQ_SCENE_GRAPH_EXPORT void terminateKqSceneGraph();

KQ_MESH_LIB_EXPORT void initializeKqMeshLibrary();
KQ_MESH_LIB_EXPORT void terminateKqMeshLibrary();

KQ_SIMPLIFICATION_LIB_EXPORT void initializeKqSimplificationLibrary();
KQ_SIMPLIFICATION_LIB_EXPORT void terminateKqSimplificationLibrary();

} // namespace kq

namespace zel {

ZEL_KERNEL_EXPORT void zelInitializeKernelLibrary();
ZEL_KERNEL_EXPORT void zelTerminateKernelLibrary();

} // namespace zel

#endif
