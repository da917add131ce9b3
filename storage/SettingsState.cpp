#include "SettingsState.h"

#include "FileAccess.h"
#include "SettingsDamage.h"
#include "SettingsValues.h"
#include "ZelSettingsFile.h"
#include "base/SystemFiles.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

namespace zel {

namespace {

const char* const UnwrittenProperty = "zelUnwritten"; ///< True when they hold what they could not write.
const char* const ReadProperty = "zelRead";           ///< The values of a LastRead.
const char* const ContentProperty = "zelContent";     ///< Its content.

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

/// Notes what settings read in the event loop, where QSettings writes what a host has set. Holds that back
/// while there is something that they could not write.
class ReadNoter : public QObject
{
public:
    explicit ReadNoter(QSettings& settings)
        : QObject(&settings)
    {
        settings.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::UpdateRequest)
            return false;
        auto& settings = static_cast<QSettings&>(*watched);
        if (hasUnwritten(settings))
            return true;
        watched->event(event);
        QByteArray content;
        QString ignored;
        if (readFile(settings.fileName(), content, ignored) && !holdsObjects(content))
            noteRead(settings, valuesOf(settings), content);
        return true;
    }
};

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
    return settings.property(UnwrittenProperty).toBool();
}

void setUnwritten(QSettings& settings, bool isUnwritten)
{
    settings.setProperty(UnwrittenProperty, isUnwritten);
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
    return {settings.property(ReadProperty), settings.property(ContentProperty)};
}

void noteRead(QSettings& settings, const QVariantMap& values, const QVariant& content)
{
    if (!settings.property(ReadProperty).isValid())
        new ReadNoter(settings);
    settings.setProperty(ReadProperty, values);
    settings.setProperty(ContentProperty, content);
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
    ZelSettingsFile::UseFileEncoding(settings); // Reading the UTF-8 mark brings Qt's own codec back.
    noteRead(settings, valuesOf(settings), content);
}

} // namespace zel
