#ifndef ZEL_FAKEAPPLICATION_H
#define ZEL_FAKEAPPLICATION_H

#include "Files.h"
#include "ZelSettingsApplication.h"

#include "platform/kqDMGuiPlugin.h"
#include "platform/kqDMManager.h"
#include "platform/kqDMPlugin.h"
#include "platform/kqDMRenderer.h"
#include "platform/zelActionManager.h"

struct FakeManager : kqDMManager
{
    void setMaxCacheSize(unsigned int megabytes) override { cacheSizes << megabytes; }
    void setSimplificationRatios(std::vector<float>& fractions) override { ratios << fractions; }
    QList<unsigned int> cacheSizes;
    QList<std::vector<float>> ratios;
};

struct FakeRenderer : kqDMRenderer
{
    void setTargetTriangles(quint64 count) override { triangles << count; }
    QList<quint64> triangles;
};

struct FakePlugin : kqDMPlugin
{
    QString getName() const override { return name; }
    QString getVersion() const override { return "1.2"; }
    QString name = "Reader";
};

struct FakeGuiPlugin : kqDMGuiPlugin
{
    QWidget* getMainViewWidget() const override { return mainView; }
    QWidget* mainView = nullptr;
};

/// The viewer, as pages see it, with a settings file in a temporary folder. Tests set its public members.
class FakeApplication : private QTemporaryDir, public zel::ZelSettingsApplication
{
public:
    FakeApplication()
        : ZelSettingsApplication(QTemporaryDir::path())
    {
    }

    /// What the settings file holds on the disk.
    QByteArray storedFile()
    {
        getSettings().sync();
        return contentOf(getSettings().fileName());
    }

    mutable FakeManager manager;
    mutable FakeRenderer renderer;
    kqDMGuiPlugin* guiPlugin = nullptr;
    zelActionManager* actionManager = nullptr;
    std::vector<kqDMPlugin*> plugins;
    QList<bool> engineUpdates;   ///< Calls of setUpdateEngineEnabled().
    QList<QString> imageFolders; ///< Calls of setScreenshotImageFolder().

    kqDMManager* getDMManager() const override { return &manager; }
    kqDMRenderer* getDMRenderer() const override { return &renderer; }
    kqDMGuiPlugin* getGuiPlugin() const override { return guiPlugin; }
    zelActionManager* getActionManager() const override { return actionManager; }
    const std::vector<kqDMPlugin*>& getPluginsList() const override { return plugins; }
    void setUpdateEngineEnabled(bool enabled) override { engineUpdates << enabled; }
    void setScreenshotImageFolder(const QString& folder) override { imageFolders << folder; }
};

#endif
