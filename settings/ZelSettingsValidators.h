#ifndef ZEL_ZELSETTINGSVALIDATORS_H
#define ZEL_ZELSETTINGSVALIDATORS_H

#include "base/ZelExport.h"

#include <QString>

namespace zel {

/// The validators of the settings: each takes (key, default, value, error), repairs the value in place and
/// returns true. "Or default": any other value becomes the registered default, unchanged. "Clamped": a number
/// outside the range becomes the nearest limit; a text that is no number becomes the default. The few
/// validators that can fail say so; they return false and, unless stated, set a translated error text.
class ZEL_EXPORT ZelSettingsValidators
{
public:
    /// The form of all validators.
    using Validate = bool(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// Normalises a folder path: every "\" becomes "/", then one trailing "/" is dropped.
    static void CleanupFolder(QString& path);

    static Validate noOp;                          ///< Any text.
    static Validate ensureSettingsVersion;         ///< Always the default, the current version.
    static Validate ensureBool;                    ///< "true" or "false", or default.
    static Validate ensureEngine;                  ///< "deferred" or "software", or default.
    static Validate ensureLogLevel;                ///< An integer, clamped to at least 0.
    static Validate ensurePositiveInteger;         ///< A 64-bit integer above 0, or default.
    static Validate ensurePortValue;               ///< An integer in 0..65535, or default.
    static Validate ensureCacheSize;               ///< Megabytes in 10..10240, or default.
    static Validate ensureSimplificationRAM;       ///< Bytes from 64 MiB to 8096 MiB, or default.
    static Validate ensureSimplificationThreads;   ///< Always "1": simplification runs on one thread.
    static Validate ensureCoreNumber;              ///< An integer, clamped to 1..QThread::idealThreadCount().
    static Validate ensureTesselationMaxFaceAngle; ///< Whole degrees, clamped to 0..359.
    static Validate ensureTesselationMaxFaceLength; ///< A float, clamped to 0..100, written with six digits.
    static Validate ensureTesselationMaxFaceSag;    ///< As ensureTesselationMaxFaceLength.
    static Validate ensureLODTrianglesCap;          ///< Triangles, clamped to 50,000..500,000,000.
    static Validate ensureMaxGPUMemory;             ///< Bytes, clamped to 128 MiB..8096 MiB.
    static Validate ensureMaxCPUMemoryRaytracer;    ///< As ensureMaxGPUMemory.
    static Validate ensureMaxCPUMemory3D;           ///< As ensureMaxGPUMemory.
    static Validate ensureRaytracerQuality;         ///< One of kqDMRenderer::scQualityEnum, or default.
    static Validate ensureSceneUnit;    ///< 0.001, 0.01 and so on to 1000, met within 0.001, or default.
    static Validate ensureIpOrHostName; ///< IPv4 address or host name, up to 255 characters, or default.

    /// Five numbers separated by "/", as the simplifier corrects them; the corrected default if there are not
    /// five. Fails, without an error text, when the default has not five either.
    static Validate ensureSimplificationRatios;

    /// A file whose folder exists; else the default, normalised, whose folder is created. Fails when it
    /// cannot be. The file itself is neither created nor read.
    static Validate ensureFile;

    /// An existing folder; else the default, normalised, which is created. Fails when it cannot be.
    static Validate ensureDMCacheFolder;

    /// An existing folder, or default. The default folder is created in either case; fails when it cannot be.
    static Validate ensureTmpFolder;

    /// Makes value an existing folder: itself, normalised, or else the default, normalised and created if
    /// missing. False when the default cannot be created.
    static bool ensureFolder(const QString& defaultValue, QString& value);
};

} // namespace zel

#endif
