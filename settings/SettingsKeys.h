#ifndef ZEL_SETTINGSKEYS_H
#define ZEL_SETTINGSKEYS_H

namespace zel {

/// Names the folders of the stand-alone editor's settings, log and cache.
const char* const StandAloneApplicationName = "TorvaneBoundlessX64";

/// The keys of Settings.ini. What stands before a "/" is the group of the file.
namespace keys {

const char* const Engine = "engine";
const char* const SettingsVersion = "settingsVersion";
const char* const EnableDiagnostics = "enablediag";
const char* const LogTypeBlackList = "debuglogtypeblacklist";
const char* const Language = "language";

const char* const LogFile = "Logging/logFile";

const char* const CacheSize = "DBCache/cacheSize";
const char* const CacheDirectory = "DBCache/cacheDirectory";

const char* const ScreenshotFolder = "screenshot/ImageFolder";

const char* const SimplificationRatios = "Simplification/Ratios";

const char* const MaxFaceAngle = "Tesselation/TesselationMaxFaceAngle";
const char* const MaxFaceLength = "Tesselation/TesselationMaxFaceLength";
const char* const MaxFaceSag = "Tesselation/TesselationMaxFaceSag";
const char* const MaxFaceAngleSet = "Tesselation/TesselationMaxFaceAngleSet";
const char* const MaxFaceLengthSet = "Tesselation/TesselationMaxFaceLengthSet";
const char* const MaxFaceSagSet = "Tesselation/TesselationMaxFaceSagSet";
const char* const TessellationQualitySet = "Tesselation/TesselationQualitySet";
const char* const TessellationHighQuality = "Tesselation/TesselationIsHighQuality";

const char* const TrianglesCap = "Resources/LODTrianglesCap";
const char* const MaxGpuMemory = "Resources/MaxGPUMemory";
const char* const MaxCpuMemoryRaytracer = "Resources/MaxCPUMemoryRaytracer";
const char* const MaxCpuMemory3D = "Resources/MaxCPUMemory3D";

const char* const SceneUnits = "deferred/sceneUnits";
const char* const UseEdgeDetection = "deferred/useED";
const char* const UseFxaa = "deferred/useFXAA";
const char* const UseSsao = "deferred/useSSAO";

const char* const CoreNumber = "raytracer/coreNumber";
const char* const RaytracerQuality = "raytracer/quality";

} // namespace keys

/// The layout of Settings.ini that this version writes.
const int CurrentSettingsVersion = 2;

/// The two values of keys::Engine.
namespace engines {

const char* const Deferred = "deferred";
const char* const Software = "software";

} // namespace engines
} // namespace zel

#endif
