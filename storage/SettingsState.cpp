#include "SettingsState.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsDamage.h"
#include "SettingsValues.h"
#include "base/QtSettingsFile.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

namespace zel {

namespace {

/// Finds out whether settings are about to write: they have posted an event to themselves.
class PendingProbe : public QObject
{
public:
    bool isFound = false;

    bool eventFilter(QObject*, QEvent*) override
    {
        isFound = true;
        return true;
    }
};

/// What is known of settings, whose child it is. Notes what they read in the event loop, where QSettings
/// writes what a host has set. Holds that back while there is something that they could not write.
class SettingsMemory : public QObject
{
public:
    explicit SettingsMemory(QSettings& settings)
        : QObject(&settings)
    {
        settings.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::UpdateRequest)
            return false;
        if (hasUnwritten)
            return true;
        watched->event(event);
        auto& settings = static_cast<QSettings&>(*watched);
        QByteArray content;
        QString ignored;
        if (readFile(settings.fileName(), content, ignored) && !holdsObjects(content))
            read = {valuesOf(settings), content};
        return true;
    }

    bool hasUnwritten = false;
    LastRead read;
};

/// Null when nothing is known of the settings yet.
SettingsMemory* findMemory(const QSettings& settings)
{
    for (QObject* child : settings.children())
        if (auto* memory = dynamic_cast<SettingsMemory*>(child))
            return memory;
    return nullptr;
}

SettingsMemory& memoryOf(QSettings& settings)
{
    SettingsMemory* memory = findMemory(settings);
    return memory ? *memory : *new SettingsMemory(settings);
}

/// Lets settings write what is pending, and read the file if its stamp has changed.
void update(QSettings& settings)
{
    // Not sync(), after which QSettings of Qt 4 posts no event any more.
    QEvent event(QEvent::UpdateRequest);
    static_cast<QObject&>(settings).event(&event);
    QCoreApplication::removePostedEvents(&settings, QEvent::UpdateRequest); // It would count as pending.
}

} // namespace

void leaveGroups(QSettings& settings)
{
    while (!settings.group().isEmpty())
        settings.endGroup();
}

bool hasUnwritten(const QSettings& settings)
{
    const SettingsMemory* memory = findMemory(settings);
    return memory && memory->hasUnwritten;
}

void setUnwritten(QSettings& settings, bool isUnwritten)
{
    memoryOf(settings).hasUnwritten = isUnwritten;
}

bool hasPending(QSettings& settings)
{
    PendingProbe probe;
    settings.installEventFilter(&probe);
    QCoreApplication::sendPostedEvents(&settings, QEvent::UpdateRequest);
    if (probe.isFound) // Without it they would never post one again.
        QCoreApplication::postEvent(&settings, new QEvent(QEvent::UpdateRequest));
    return probe.isFound || hasUnwritten(settings);
}

void stopWriting(QSettings& settings)
{
    if (!hasPending(settings))
        return;
    QCoreApplication::removePostedEvents(&settings, QEvent::UpdateRequest);
    setUnwritten(settings, true);
}

LastRead lastRead(const QSettings& settings)
{
    const SettingsMemory* memory = findMemory(settings);
    return memory ? memory->read : LastRead();
}

void noteRead(QSettings& settings, const QVariantMap& values, const std::optional<QByteArray>& content)
{
    memoryOf(settings).read = {values, content};
}

void readAgain(QSettings& settings, const QByteArray& content)
{
    update(settings);
    if (settings.allKeys().isEmpty() && !content.isEmpty()) {
        // A read of QSettings has failed, which it takes for an empty file, and does not repeat.
        const QString target = resolvedPath(settings.fileName());
        makeLater(target, stampOf(target));
        update(settings);
    }
    settings.setIniCodec(&iniCodec()); // Reading the UTF-8 mark brings Qt's own codec back.
    noteRead(settings, valuesOf(settings), content);
}

} // namespace zel
