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
    /// Normalises a folder path: every "\" becomes "/", then one trailing "/" is dropped.
    static void CleanupFolder(QString& path);

    /// Accepts any text.
    static bool noOp(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// Always the default: the file ends up stamped with the current version.
    static bool ensureSettingsVersion(const QString& key, const QString& defaultValue, QString& value,
                                      QString& error);

    /// "true" or "false"; else the default.
    static bool ensureBool(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// "deferred" or "software"; else the default.
    static bool ensureEngine(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// An integer, raised to at least 0; the default if it is none.
    static bool ensureLogLevel(const QString& key, const QString& defaultValue, QString& value,
                               QString& error);

    /// A 64-bit integer above 0; else the default.
    static bool ensurePositiveInteger(const QString& key, const QString& defaultValue, QString& value,
                                      QString& error);

    /// An integer in 0..65535; else the default.
    static bool ensurePortValue(const QString& key, const QString& defaultValue, QString& value,
                                QString& error);

    /// Megabytes in 10..10240; else the default.
    static bool ensureCacheSize(const QString& key, const QString& defaultValue, QString& value,
                                QString& error);

    /// Bytes from 64 MiB to 8096 MiB; else the default.
    static bool ensureSimplificationRAM(const QString& key, const QString& defaultValue, QString& value,
                                        QString& error);

    /// Always "1": simplification runs on one thread, whatever the file says.
    static bool ensureSimplificationThreads(const QString& key, const QString& defaultValue, QString& value,
                                            QString& error);

    /// An integer, clamped to 1..the processor's ideal thread count; the default if it is none.
    static bool ensureCoreNumber(const QString& key, const QString& defaultValue, QString& value,
                                 QString& error);

    /// Whole degrees, clamped to 0..359; the default if they do not parse.
    static bool ensureTesselationMaxFaceAngle(const QString& key, const QString& defaultValue, QString& value,
                                              QString& error);

    /// A single-precision number, clamped to 0..100 and written with six digits; the default if it is none.
    static bool ensureTesselationMaxFaceLength(const QString& key, const QString& defaultValue,
                                               QString& value, QString& error);

    /// As ensureTesselationMaxFaceLength.
    static bool ensureTesselationMaxFaceSag(const QString& key, const QString& defaultValue, QString& value,
                                            QString& error);

    /// Triangles, clamped to 50,000..500,000,000; the default if they do not parse.
    static bool ensureLODTrianglesCap(const QString& key, const QString& defaultValue, QString& value,
                                      QString& error);

    /// Bytes, clamped to 128 MiB..8096 MiB; the default if they do not parse.
    static bool ensureMaxGPUMemory(const QString& key, const QString& defaultValue, QString& value,
                                   QString& error);

    /// As ensureMaxGPUMemory.
    static bool ensureMaxCPUMemoryRaytracer(const QString& key, const QString& defaultValue, QString& value,
                                            QString& error);

    /// As ensureMaxGPUMemory.
    static bool ensureMaxCPUMemory3D(const QString& key, const QString& defaultValue, QString& value,
                                     QString& error);

    /// One of the renderer's quality names; else the default.
    static bool ensureRaytracerQuality(const QString& key, const QString& defaultValue, QString& value,
                                       QString& error);

    /// A power of ten from 0.001 to 1000, met within 0.001 and written in its plain form; else the default.
    static bool ensureSceneUnit(const QString& key, const QString& defaultValue, QString& value,
                                QString& error);

    /// A dotted IPv4 address or a host name of at most 255 characters; else the default.
    static bool ensureIpOrHostName(const QString& key, const QString& defaultValue, QString& value,
                                   QString& error);

    /// Five numbers separated by "/", as the simplifier corrects them; the corrected default if there are not
    /// five. Fails, without an error text, when the default has not five either.
    static bool ensureSimplificationRatios(const QString& key, const QString& defaultValue, QString& value,
                                           QString& error);

    /// A file whose folder exists; else the default, normalised, whose folder is created. Fails when it
    /// cannot be. The file itself is neither created nor read.
    static bool ensureFile(const QString& key, const QString& defaultValue, QString& value, QString& error);

    /// An existing folder; else the default, normalised, which is created. Fails when it cannot be.
    static bool ensureDMCacheFolder(const QString& key, const QString& defaultValue, QString& value,
                                    QString& error);

    /// An existing folder; else the default as it stands. The default folder is created in either case; fails
    /// when it cannot be.
    static bool ensureTmpFolder(const QString& key, const QString& defaultValue, QString& value,
                                QString& error);

    /// Makes value an existing folder: itself, normalised, or else the default, normalised and created if
    /// missing. False when the default cannot be created.
    static bool ensureFolder(const QString& defaultValue, QString& value);
};

} // namespace zel

#endif
