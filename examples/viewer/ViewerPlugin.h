#ifndef VIEWER_VIEWERPLUGIN_H
#define VIEWER_VIEWERPLUGIN_H

#include <zel/platform/kqDMPlugin.h>

/// A row of the plug-in table on the page "About".
class ViewerPlugin : public kqDMPlugin
{
public:
    ViewerPlugin(const QString& name, const QString& version)
        : m_name(name)
        , m_version(version)
    {
    }

    QString getName() const override { return m_name; }
    QString getVersion() const override { return m_version; }

private:
    const QString m_name;
    const QString m_version;
};

#endif
