#ifndef VIEWER_VIEWERAPPLICATION_H
#define VIEWER_VIEWERAPPLICATION_H

#include "ViewerGuiPlugin.h"
#include "ViewerManager.h"
#include "ViewerPlugin.h"
#include "ViewerRenderer.h"
#include "ViewerScene.h"

#include <QSettings>

#include <zel/platform/kqDMIApplication.h>
#include <zel/platform/kqDMSelection.h>
#include <zel/platform/zelActionManager.h>

/// The application object of the viewer, for the control center and its pages. Owns all that it returns, and
/// outlives the window.
class ViewerApplication : public kqDMIApplication
{
    Q_OBJECT

public:
    /// Opens the settings file "Settings.ini" of a folder.
    explicit ViewerApplication(const QString& folder);

    ViewerScene& scene() { return m_scene; }
    ViewerGuiPlugin& guiPlugin() { return m_guiPlugin; }

    /// Passes the stored settings to the scene. Call it when they are valid.
    void applicationStarted() override;

    QSettings& getSettings() override { return m_settings; }
    const QString& getApplicationFolder() const override { return m_folder; }
    const QString& getLanguageCode() override { return m_language; }
    QString getDefaultSettingsValue(const QString& key) override;

    kqDMManager* getDMManager() const override { return &m_manager; }
    kqDMRenderer* getDMRenderer() const override { return &m_renderer; }
    kqDMGuiPlugin* getGuiPlugin() const override { return &m_guiPlugin; }
    zelActionManager* getActionManager() const override { return &m_actions; }
    const std::vector<kqDMPlugin*>& getPluginsList() const override { return m_plugins; }

    /// The control center pauses the engine while it slides.
    void setUpdateEngineEnabled(bool enabled) override;
    void setScreenshotImageFolder(const QString& folder) override;
    const QString& getScreenshotImageFolder() const override { return m_screenshotFolder; }

    // Features that this viewer does not have.
    void clearViewerApp() override {}
    QDeclarativeEngine* getDeclarativeEngine() const override { return nullptr; }
    zelMaterialManagerInterface* getMaterialManager() const override { return nullptr; }
    void setMaterialManager(zelMaterialManagerInterface*) override {}
    zelNavigationManager* getNavigationManager() const override { return nullptr; }
    kqDMProject* editProject() override { return nullptr; }
    const kqDMSelection& getSelection() const override { return m_selection; }
    kqDMSelection& grabSelection() override { return m_selection; }
    void updateAfterCompleteLoading() override {}
    void setLowUpdateEngineFrequency(bool) override {}
    zelThumbnailManager* getThumbnailManager() const override { return nullptr; }
    void notifyAppEvent(zelAppEvent) override {}
    bool removeComponent(kqDMComponentId) override { return false; }
    void applicationFinished() override {}
    bool saveDocument() override { return false; }
    void loadDocument(const QStringList&, bool) override {}
    void loadDocument(bool) override {}
    void set3DSelectionPickingEnabled(bool) override {}
    bool is3DSelectionPickingEnabled() const override { return false; }
    std::vector<PostSaveEventItem>& getPostSaveEventVector() override { return m_postSaveEvents; }
    void setWorkFlowWidget(QWidget*) override {}
    void registerMouseReleaseEventFilter(zelReleaseEventFilter*, bool) override {}

Q_SIGNALS:
    void updateEngineEnabled(bool enabled);

private:
    const QString m_folder;
    QSettings m_settings;
    QString m_language;
    QString m_screenshotFolder;
    ViewerScene m_scene;
    mutable ViewerManager m_manager;
    mutable ViewerRenderer m_renderer;
    mutable ViewerGuiPlugin m_guiPlugin;
    mutable zelActionManager m_actions;
    ViewerPlugin m_knotPlugin;
    ViewerPlugin m_controlCenterPlugin;
    const std::vector<kqDMPlugin*> m_plugins;
    kqDMSelection m_selection;
    std::vector<PostSaveEventItem> m_postSaveEvents;
};

#endif
