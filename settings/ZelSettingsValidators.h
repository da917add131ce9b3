#ifndef ZEL_ZELSETTINGSVALIDATORS_H
#define ZEL_ZELSETTINGSVALIDATORS_H

#include "base/ZelExport.h"

#include <QString>

namespace zel {

/// The validators of the settings: each takes (key, default, value, error), repairs the value in place and
/// returns true. "Default" below means that the value becomes the registered default as it stands. The few
/// that can fail say so; they return false and, unless stated, set a translated error text.
class ZEL_EXPORT ZelSettingsValidators
{
public:
    /// The form of all validators.
    using Validate = bool(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// Normalises a folder path: every "\" becomes "/", then one trailing "/" is dropped.
    static void CleanupFolder(QString& path);

    /// Accepts any text.
    static Validate noOp;

    /// Always the default: the file ends up stamped with the current version.
    static Validate ensureSettingsVersion;

    /// "true" or "false"; else the default.
    static Validate ensureBool;

    /// "deferred" or "software"; else the default.
    static Validate ensureEngine;

    /// An integer, raised to at least 0; the default if it is none.
    static Validate ensureLogLevel;

    /// A 64-bit integer above 0; else the default.
    static Validate ensurePositiveInteger;

    /// An integer in 0..65535; else the default.
    static Validate ensurePortValue;

    /// Megabytes in 10..10240; else the default.
    static Validate ensureCacheSize;

    /// Bytes from 64 MiB to 8096 MiB; else the default.
    static Validate ensureSimplificationRAM;

    /// Always "1": simplification runs on one thread, whatever the file says.
    static Validate ensureSimplificationThreads;

    /// An integer, clamped to 1..the processor's ideal thread count; the default if it is none.
    static Validate ensureCoreNumber;

    /// Whole degrees, clamped to 0..359; the default if they do not parse.
    static Validate ensureTesselationMaxFaceAngle;

    /// A single-precision number, clamped to 0..100 and written with six digits; the default if it is none.
    static Validate ensureTesselationMaxFaceLength;

    /// As ensureTesselationMaxFaceLength.
    static Validate ensureTesselationMaxFaceSag;

    /// Triangles, clamped to 50,000..500,000,000; the default if they do not parse.
    static Validate ensureLODTrianglesCap;

    /// Bytes, clamped to 128 MiB..8096 MiB; the default if they do not parse.
    static Validate ensureMaxGPUMemory;

    /// As ensureMaxGPUMemory.
    static Validate ensureMaxCPUMemoryRaytracer;

    /// As ensureMaxGPUMemory.
    static Validate ensureMaxCPUMemory3D;

    /// One of the renderer's quality names; else the default.
    static Validate ensureRaytracerQuality;

    /// A power of ten from 0.001 to 1000, met within 0.001 and written in its plain form; else the default.
    static Validate ensureSceneUnit;

    /// A dotted IPv4 address or a host name of at most 255 characters; else the default.
    static Validate ensureIpOrHostName;

    /// Five numbers separated by "/", as the simplifier corrects them; the corrected default if there are not
    /// five. Fails, without an error text, when the default has not five either.
    static Validate ensureSimplificationRatios;

    /// A file whose folder exists; else the default, normalised, whose folder is created. Fails when it
    /// cannot be. The file itself is neither created nor read.
    static Validate ensureFile;

    /// An existing folder; else the default, normalised, which is created. Fails when it cannot be.
    static Validate ensureDMCacheFolder;

    /// An existing folder; else the default as it stands. The default folder is created in either case; fails
    /// when it cannot be.
    static Validate ensureTmpFolder;

    /// Makes value an existing folder: itself, normalised, or else the default, normalised and created if
    /// missing. False when the default cannot be created.
    static bool ensureFolder(const QString& defaultValue, QString& value);
};

} // namespace zel

#endif
