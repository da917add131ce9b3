#ifndef ZEL_ZELEXPORT_H
#define ZEL_ZELEXPORT_H

// Marks what a library exports; everything else is hidden. CMake defines <target>_EXPORTS while it compiles
// the target itself.

#if defined(_WIN32)
#    define ZEL_SYMBOL_EXPORT __declspec(dllexport)
#    define ZEL_SYMBOL_IMPORT __declspec(dllimport)
#else
#    define ZEL_SYMBOL_EXPORT __attribute__((visibility("default")))
#    define ZEL_SYMBOL_IMPORT __attribute__((visibility("default")))
#endif

/// The control center's own library.
#if defined(ZelControlCenter_EXPORTS)
#    define ZEL_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define ZEL_EXPORT ZEL_SYMBOL_IMPORT
#endif

/// The part of the viewer's kernel that needs no widgets.
#if defined(ZelKernel_EXPORTS)
#    define ZEL_KERNEL_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define ZEL_KERNEL_EXPORT ZEL_SYMBOL_IMPORT
#endif

/// The part of the viewer's kernel that needs widgets.
#if defined(ZelKernelGui_EXPORTS)
#    define ZEL_KERNEL_GUI_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define ZEL_KERNEL_GUI_EXPORT ZEL_SYMBOL_IMPORT
#endif

#if defined(kqSystem_EXPORTS)
#    define KQ_SYSTEM_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define KQ_SYSTEM_EXPORT ZEL_SYMBOL_IMPORT
#endif

#if defined(kqSceneGraph_EXPORTS)
#    define KQ_SCENE_GRAPH_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define KQ_SCENE_GRAPH_EXPORT ZEL_SYMBOL_IMPORT
#endif

#if defined(kqMeshLib_EXPORTS)
#    define KQ_MESH_LIB_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define KQ_MESH_LIB_EXPORT ZEL_SYMBOL_IMPORT
#endif

#if defined(kqSimplificationLib_EXPORTS)
#    define KQ_SIMPLIFICATION_LIB_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define KQ_SIMPLIFICATION_LIB_EXPORT ZEL_SYMBOL_IMPORT
#endif

#if defined(kqGlView_EXPORTS)
#    define KQ_GL_VIEW_EXPORT ZEL_SYMBOL_EXPORT
#else
#    define KQ_GL_VIEW_EXPORT ZEL_SYMBOL_IMPORT
#endif

#endif
