#ifndef ZEL_SETTINGSKEYS_H
#define ZEL_SETTINGSKEYS_H

namespace zel {

/// Names the folders of the stand-alone editor's settings, log and cache.
const char* const StandAloneApplicationName = "TorvaneBoundlessX64";

/// The settings file in an application's folder.
const char* const SettingsFileName = "Settings.ini";

/// The layout of Settings.ini that this version writes.
const int CurrentSettingsVersion = 2;

/// The keys of Settings.ini. What stands before a "/" is the group of the file. A setting is "true" or
/// "false" where nothing else is said of its value.
namespace keys {

const char* const Engine = "engine";                          ///< The renderer: one of engines.
const char* const SettingsVersion = "settingsVersion";        ///< The layout: see CurrentSettingsVersion.
const char* const EnableDiagnostics = "enablediag";           ///< The log has events of the type "debug".
const char* const LogTypeBlackList = "debuglogtypeblacklist"; ///< Types not logged, separated by "," or ";".
const char* const Language = "language";                      ///< Two-letter code.

const char* const LogFile = "Logging/logFile";                 ///< Path.
const char* const CacheSize = "DBCache/cacheSize";             ///< Of the 3D database, in megabytes.
const char* const CacheDirectory = "DBCache/cacheDirectory";   ///< Path.
const char* const ScreenshotFolder = "screenshot/ImageFolder"; ///< Path.

/// The kept fractions of triangles of the five levels, separated by "/".
const char* const SimplificationRatios = "Simplification/Ratios";

// The limits of facets; lengths are in the unit of the model.
const char* const MaxFaceAngle = "Tesselation/TesselationMaxFaceAngle";   ///< Between two facets, in degrees.
const char* const MaxFaceLength = "Tesselation/TesselationMaxFaceLength"; ///< Of a facet.
const char* const MaxFaceSag = "Tesselation/TesselationMaxFaceSag";       ///< From the surface.
/// @{
/// Whether each limit, and the quality, is used.
const char* const MaxFaceAngleSet = "Tesselation/TesselationMaxFaceAngleSet";
const char* const MaxFaceLengthSet = "Tesselation/TesselationMaxFaceLengthSet";
const char* const MaxFaceSagSet = "Tesselation/TesselationMaxFaceSagSet";
const char* const TessellationQualitySet = "Tesselation/TesselationQualitySet";
/// @}
/// The quality: "true" for high, "false" for low.
const char* const TessellationHighQuality = "Tesselation/TesselationIsHighQuality";

const char* const TrianglesCap = "Resources/LODTrianglesCap";                ///< Triangles in one frame.
const char* const MaxGpuMemory = "Resources/MaxGPUMemory";                   ///< In bytes.
const char* const MaxCpuMemoryRaytracer = "Resources/MaxCPUMemoryRaytracer"; ///< In bytes.
const char* const MaxCpuMemory3D = "Resources/MaxCPUMemory3D"; ///< In bytes; of the deferred renderer.

const char* const SceneUnits = "deferred/sceneUnits";  ///< How many of the scene's unit make one metre.
const char* const UseEdgeDetection = "deferred/useED"; ///< Edges are drawn.
const char* const UseFxaa = "deferred/useFXAA";        ///< Edges are smoothed.
const char* const UseSsao = "deferred/useSSAO";        ///< Corners and creases are shaded.

const char* const CoreNumber = "raytracer/coreNumber";    ///< Processor cores.
const char* const RaytracerQuality = "raytracer/quality"; ///< One of kqDMRenderer::scQualityEnum.

} // namespace keys

/// The two values of keys::Engine.
namespace engines {

const char* const Deferred = "deferred"; ///< The graphics card draws.
const char* const Software = "software"; ///< The raytracer draws, on the processor.

} // namespace engines
} // namespace zel

#endif
