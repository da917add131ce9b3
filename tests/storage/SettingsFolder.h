#ifndef ZEL_SETTINGSFOLDER_H
#define ZEL_SETTINGSFOLDER_H

#include "Files.h"
#include "Rows.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"
#include "base/QtSettingsFile.h"

#include <memory>

#if !defined(_WIN32)
#    include <fcntl.h>
#    include <sys/wait.h>
#    include <unistd.h>

inline pid_t startChild(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::_exit(work() ? 0 : 1);
    }
    return child;
}

/// 0 when the child has succeeded.
inline int statusOf(pid_t child)
{
    int status = -1;
    TEMP_FAILURE_RETRY(::waitpid(child, &status, 0));
    return status;
}
#endif

using namespace zel;

const QByteArray ForeignGroup = "[Foreign]\nemoji=\360\237\231\202\nlist=a, b\n";
const QByteArray OtherGroup = "[%E6%97%A5]\nkey%20=\303\274\n";
const QByteArray Foreign = ForeignGroup + '\n' + OtherGroup;

inline QString error; ///< Of the last operation that failed.

inline bool write(QSettings& settings, const std::map<QString, QVariant>& values)
{
    const auto change = [&values](QSettings& changed, QString&) {
        for (const auto& [key, value] : values)
            changed.setValue(key, value);
        return true;
    };
    return ZelSettingsFile::Write(settings, change, error);
}

inline bool change(const QString& path, const std::map<QString, QVariant>& values)
{
    return write(*ZelSettingsFile::Open(path), values);
}

inline bool apply(const QString& path)
{
    return change(path, {{"engine", "software"}, {"DBCache/cacheSize", 512}, {"new/key", "text"}});
}

inline bool validate(const QString& path)
{
    return ZelSettingsFile::Repair(*ZelSettingsFile::Open(path), error);
}

inline bool migrate(const QString& path)
{
    return migrateSettings(path, "fr", error);
}

using Operation = bool (*)(const QString& path);

Q_DECLARE_METATYPE(Operation)

/// A folder with a settings file, of which some keys are registered.
class SettingsFolder : public QObject
{
    Q_OBJECT

protected:
    QStringList files(const QString& pattern) const
    {
        return m_folder.entryList({pattern}, QDir::Files | QDir::Hidden);
    }
    QStringList copies() const { return files("*Settings.ini.2*.bak"); }

    /// True when the settings file still has the foreign groups, and has these texts.
    bool holds(const QList<QByteArray>& texts = QList<QByteArray>()) const
    {
        const QByteArray content = contentOf(m_path);
        for (const QByteArray& text : QList<QByteArray>({ForeignGroup, OtherGroup}) + texts) {
            if (!content.contains(text))
                return qWarning("\"%s\" is lost of:\n%s", text.constData(), content.constData()), false;
        }
        return true;
    }

    std::unique_ptr<QTemporaryDir> m_parent;
    QDir m_folder;
    QString m_path;

protected Q_SLOTS:
    void init()
    {
        using Registry = ZelSettingsRegistry;
        Registry::ClearSettingsValues();
        Registry::RegisterSetting(keys::CacheSize, "4096", &ZelSettingsValidators::ensureCacheSize);
        Registry::RegisterSetting(keys::SettingsVersion, "2", &ZelSettingsValidators::ensureSettingsVersion);
        QLocale::setDefault(QLocale("ar_EG")); // With digits of its own.
        // The working directory is in memory if possible: many writes fall into one tick of the clock.
        m_parent = std::make_unique<QTemporaryDir>(
            (QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) + "/settings-XXXXXX");
        m_folder.setPath(m_parent->filePath("folder"));
        QVERIFY(m_folder.mkpath(".") && QDir::setCurrent(m_folder.path()));
        m_path = m_folder.filePath("Settings.ini");
    }

    void cleanup() { QDir::setCurrent(QDir::rootPath()); } // Windows removes no working folder.
};

#endif
