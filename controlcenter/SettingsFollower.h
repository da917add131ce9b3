#ifndef ZEL_SETTINGSFOLLOWER_H
#define ZEL_SETTINGSFOLLOWER_H

#include "base/QtSettingsFile.h"

#include <QBasicTimer>
#include <QObject>

class QSettings;

namespace zel {

/// Follows what other programs write to the file of settings, but not while a number is being typed. A file
/// that is gone is written again; a registered key that it has lost gets its default.
class SettingsFollower : public QObject
{
    Q_OBJECT

public:
    explicit SettingsFollower(QObject* parent);

    /// Follows the file of these settings, which are not owned; null ends it.
    void follow(QSettings* settings);

Q_SIGNALS:
    /// The settings have read the file again. A receiver may delete this object.
    void changed();

protected:
    /// Looks whether the file has changed.
    void timerEvent(QTimerEvent* event) override;

private:
    QSettings* m_settings;
    FileStamp m_stamp; ///< Of their file, when it was read.
    QBasicTimer m_timer;
};

} // namespace zel

#endif
