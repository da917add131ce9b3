#ifndef ZEL_FAKEAPPLICATION_H
#define ZEL_FAKEAPPLICATION_H

#include "platform/kqDMGuiPlugin.h"
#include "platform/kqDMIApplication.h"
#include "platform/kqDMManager.h"
#include "platform/kqDMPlugin.h"
#include "platform/kqDMRenderer.h"
#include "platform/kqDMSelection.h"
#include "platform/zelActionManager.h"

#include <QFile>
#include <QList>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

/// Each fake records what it is handed, in order.
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
    FakePlugin(const QString& pluginName, const QString& pluginVersion)
        : name(pluginName)
        , version(pluginVersion)
    {
    }
    QString getName() const override { return name; }
    QString getVersion() const override { return version; }

    QString name, version;
};

struct FakeGuiPlugin : kqDMGuiPlugin
{
    QWidget* getMainViewWidget() const override { return mainView; }

    QWidget* mainView = nullptr;
};

/// The viewer, as far as pages and the control center see it. It has a settings file of its own in a
/// temporary folder; a test adds what else it needs by pointing the public members at it.
class FakeApplication : public kqDMIApplication
{
public:
    FakeApplication()
        : m_settings(m_folder.path() + "/Settings.ini", QSettings::IniFormat)
        , m_folderPath(m_folder.path())
    {
        m_settings.setIniCodec("UTF-8");
    }

    /// What the settings file holds on the disk.
    QByteArray storedFile()
    {
        m_settings.sync();
        QFile file(m_settings.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    kqDMManager* manager = nullptr;
    kqDMRenderer* renderer = nullptr;
    kqDMGuiPlugin* guiPlugin = nullptr;
    zelActionManager* actionManager = nullptr;
    std::vector<kqDMPlugin*> plugins;
    QList<bool> engineUpdates;   ///< Calls of setUpdateEngineEnabled().
    QList<QString> imageFolders; ///< Calls of setScreenshotImageFolder().

    kqDMManager* getDMManager() const override { return manager; }
    kqDMRenderer* getDMRenderer() const override { return renderer; }
    kqDMGuiPlugin* getGuiPlugin() const override { return guiPlugin; }
    zelActionManager* getActionManager() const override { return actionManager; }
    const std::vector<kqDMPlugin*>& getPluginsList() const override { return plugins; }
    QSettings& getSettings() override { return m_settings; }
    const QString& getApplicationFolder() const override { return m_folderPath; }
    void setUpdateEngineEnabled(bool enabled) override { engineUpdates << enabled; }
    void setScreenshotImageFolder(const QString& folder) override { imageFolders << folder; }

    // Nothing of the product calls these.
    void clearViewerApp() override {}
    QDeclarativeEngine* getDeclarativeEngine() const override { return nullptr; }
    zelMaterialManagerInterface* getMaterialManager() const override { return nullptr; }
    void setMaterialManager(zelMaterialManagerInterface*) override {}
    zelNavigationManager* getNavigationManager() const override { return nullptr; }
    kqDMProject* editProject() override { return nullptr; }
    const kqDMSelection& getSelection() const override { return m_selection; }
    kqDMSelection& grabSelection() override { return m_selection; }
    const QString& getScreenshotImageFolder() const override { return m_nothing; }
    void updateAfterCompleteLoading() override {}
    void setLowUpdateEngineFrequency(bool) override {}
    zelThumbnailManager* getThumbnailManager() const override { return nullptr; }
    void notifyAppEvent(zelAppEvent) override {}
    QString getDefaultSettingsValue(const QString&) override { return QString(); }
    const QString& getLanguageCode() override { return m_nothing; }
    bool removeComponent(kqDMComponentId) override { return false; }
    void applicationStarted() override {}
    void applicationFinished() override {}
    bool saveDocument() override { return false; }
    void loadDocument(const QStringList&, bool) override {}
    void loadDocument(bool) override {}
    void set3DSelectionPickingEnabled(bool) override {}
    bool is3DSelectionPickingEnabled() const override { return true; }
    std::vector<PostSaveEventItem>& getPostSaveEventVector() override { return m_postSaveEvents; }
    void setWorkFlowWidget(QWidget*) override {}
    void registerMouseReleaseEventFilter(zelReleaseEventFilter*, bool) override {}

private:
    QTemporaryDir m_folder;
    QSettings m_settings;
    const QString m_folderPath;
    const QString m_nothing;
    kqDMSelection m_selection;
    std::vector<PostSaveEventItem> m_postSaveEvents;
};

#endif
