#ifndef ZEL_SETTINGSKEYS_H
#define ZEL_SETTINGSKEYS_H

namespace zel {

/// Names the folders of the stand-alone editor's settings, log and cache.
const char* const StandAloneApplicationName = "TorvaneBoundlessX64";

/// The keys of Settings.ini. What stands before a "/" is the group of the file.
namespace keys {

/// The renderer: one of engines.
const char* const Engine = "engine";
/// The layout of the file; see CurrentSettingsVersion.
const char* const SettingsVersion = "settingsVersion";
/// Whether the log has events of the type "debug": "true" or "false".
const char* const EnableDiagnostics = "enablediag";
/// Types of events that are not logged, separated by "," or ";".
const char* const LogTypeBlackList = "debuglogtypeblacklist";
/// Two-letter code of the interface language.
const char* const Language = "language";

/// Path of the log.
const char* const LogFile = "Logging/logFile";

/// Size of the 3D database cache, in megabytes.
const char* const CacheSize = "DBCache/cacheSize";
/// Folder of the 3D database cache.
const char* const CacheDirectory = "DBCache/cacheDirectory";

/// Folder of the screenshots.
const char* const ScreenshotFolder = "screenshot/ImageFolder";

/// The kept fractions of triangles of the five levels, separated by "/".
const char* const SimplificationRatios = "Simplification/Ratios";

/// Limit of the angle between facets, in degrees.
const char* const MaxFaceAngle = "Tesselation/TesselationMaxFaceAngle";
/// Limit of the length of facets, in the unit of the model.
const char* const MaxFaceLength = "Tesselation/TesselationMaxFaceLength";
/// Limit of the distance of facets from the surface, in the unit of the model.
const char* const MaxFaceSag = "Tesselation/TesselationMaxFaceSag";
/// Whether that limit is in force: "true" or "false".
const char* const MaxFaceAngleSet = "Tesselation/TesselationMaxFaceAngleSet";
/// Whether that limit is in force: "true" or "false".
const char* const MaxFaceLengthSet = "Tesselation/TesselationMaxFaceLengthSet";
/// Whether that limit is in force: "true" or "false".
const char* const MaxFaceSagSet = "Tesselation/TesselationMaxFaceSagSet";
/// Whether the quality is in force: "true" or "false".
const char* const TessellationQualitySet = "Tesselation/TesselationQualitySet";
/// The quality: "true" for high, "false" for low.
const char* const TessellationHighQuality = "Tesselation/TesselationIsHighQuality";

/// Triangles that the renderer may draw in one frame.
const char* const TrianglesCap = "Resources/LODTrianglesCap";
/// Memory of the graphics card, in bytes.
const char* const MaxGpuMemory = "Resources/MaxGPUMemory";
/// Memory of the raytracer, in bytes.
const char* const MaxCpuMemoryRaytracer = "Resources/MaxCPUMemoryRaytracer";
/// Memory of the deferred renderer, in bytes.
const char* const MaxCpuMemory3D = "Resources/MaxCPUMemory3D";

/// How many of the scene's unit make one metre.
const char* const SceneUnits = "deferred/sceneUnits";
/// Whether edges are drawn: "true" or "false".
const char* const UseEdgeDetection = "deferred/useED";
/// Whether edges are smoothed: "true" or "false".
const char* const UseFxaa = "deferred/useFXAA";
/// Whether corners and creases are shaded: "true" or "false".
const char* const UseSsao = "deferred/useSSAO";

/// Processor cores of the raytracer.
const char* const CoreNumber = "raytracer/coreNumber";
/// One of kqDMRenderer::scQualityEnum.
const char* const RaytracerQuality = "raytracer/quality";

} // namespace keys

/// The layout of Settings.ini that this version writes.
const int CurrentSettingsVersion = 2;

/// The two values of keys::Engine.
namespace engines {

/// The graphics card draws.
const char* const Deferred = "deferred";
/// The raytracer draws, on the processor.
const char* const Software = "software";

} // namespace engines
} // namespace zel

#endif
