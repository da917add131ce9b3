#include "platform/kqDMIApplication.h"

#include "base/VersionNumbers.h"

#include <QDesktopServices>
#include <QFile>
#include <QRegExp>
#include <QSettings>
#include <QUrl>

kqDMIApplication::kqDMIApplication(QObject* parent)
    : QObject(parent)
{
}

kqDMIApplication::~kqDMIApplication() = default;

zelActionManager* kqDMIApplication::getActionManager() const
{
    return nullptr;
}

bool kqDMIApplication::isDiagModeEnable()
{
    return getSettings().value("enablediag").toString() == "true";
}

QString kqDMIApplication::GetStylesheet(const QString& name)
{
    // Only class names, so that a name such as "../x" cannot reach other resources.
    if (!QRegExp("[A-Za-z0-9_]+").exactMatch(name))
        return QString();
    QFile file(":/stylesheets/" + name + ".qss");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void kqDMIApplication::OpenUrl(const QUrl& url)
{
    if (!QDesktopServices::openUrl(url))
        qWarning("No application opens %s", url.toEncoded().constData());
}

QString kqDMIApplication::GetKernelVersion()
{
    return ZEL_MAJOR_MINOR_RELEASE_REVISION;
}
