#include "SettingsFollower.h"

#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "zelDoubleSpinBox.h"
#include "zelSpinBox.h"

#include <QApplication>
#include <QPointer>
#include <QSettings>

#include <algorithm>

namespace zel {

namespace {

// In milliseconds.
const int FollowInterval = 1000;
const int RetryInterval = 10000;

bool lacksRegisteredKey(const QSettings& settings)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    return std::any_of(registered.begin(), registered.end(),
                       [&](const auto& entry) { return !settings.contains(entry.first); });
}

template <class Box>
bool isTypedIn(const QWidget* widget)
{
    const auto* box = qobject_cast<const Box*>(widget);
    return box && box->isTyping();
}

/// True while the user is typing a number, which no page knows yet, so that it would not keep it as an edit.
bool isTyping()
{
    const QWidget* focused = QApplication::focusWidget();
    return isTypedIn<zelSpinBox>(focused) || isTypedIn<zelDoubleSpinBox>(focused);
}

} // namespace

SettingsFollower::SettingsFollower(QObject* parent)
    : QObject(parent)
    , m_settings(nullptr)
    , m_stamp()
{
}

void SettingsFollower::follow(QSettings* settings)
{
    m_settings = settings;
    m_timer.stop();
    if (!settings)
        return;
    m_stamp = {-1, -1}; // Others may have written since the pages were loaded.
    m_timer.start(FollowInterval, this);
}

void SettingsFollower::timerEvent(QTimerEvent*)
{
    const FileStamp present = stampOf(m_settings->fileName());
    const bool isWriting = &ZelSettingsFile::Current(*m_settings) != m_settings;
    m_timer.start(FollowInterval, this);
    if (isWriting || isTyping() || present == m_stamp)
        return;
    // A setting that is gone gets its default, as at the next start; without it, the fields would show a
    // minimum.
    const QPointer<SettingsFollower> self(this);
    QString error; // The log has it, too.
    const bool isRead = ZelSettingsFile::ReadAgain(*m_settings, error) &&
                        (!lacksRegisteredKey(*m_settings) || ZelSettingsFile::Repair(*m_settings, error));
    if (!self || !m_settings) // A validator may show a dialog.
        return;
    if (!isRead) {
        m_timer.start(RetryInterval, this); // Each attempt may wait for a lock.
        return;
    }
    m_stamp = present;
    Q_EMIT changed();
}

} // namespace zel
