#ifndef ZEL_ZELSETTINGSAPPLICATION_H
#define ZEL_ZELSETTINGSAPPLICATION_H

#include "base/ZelExport.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMSelection.h"

#include <QSettings>
#include <QString>

#include <vector>

namespace zel {

/// The application object of the stand-alone settings editor. It has settings, a folder and a language. All
/// that needs a scene, a renderer or a plug-in returns null or false, or does nothing.
class ZEL_EXPORT ZelSettingsApplication : public kqDMIApplication
{
    Q_OBJECT

public:
    /// Opens the settings file "Settings.ini" of a folder.
    explicit ZelSettingsApplication(const QString& applicationFolder);
    ~ZelSettingsApplication() override;

    void clearViewerApp() override {}
    kqDMManager* getDMManager() const override { return nullptr; }
    kqDMRenderer* getDMRenderer() const override { return nullptr; }
    QDeclarativeEngine* getDeclarativeEngine() const override { return nullptr; }
    zelMaterialManagerInterface* getMaterialManager() const override { return nullptr; }
    void setMaterialManager(zelMaterialManagerInterface*) override {}
    zelNavigationManager* getNavigationManager() const override { return nullptr; }
    QSettings& getSettings() override { return m_settings; }
    kqDMProject* editProject() override { return nullptr; }
    const std::vector<kqDMPlugin*>& getPluginsList() const override { return m_plugins; }
    kqDMGuiPlugin* getGuiPlugin() const override { return nullptr; }
    const kqDMSelection& getSelection() const override { return m_selection; }
    kqDMSelection& grabSelection() override { return m_selection; }
    /// Does nothing: the editor takes no screenshots.
    void setScreenshotImageFolder(const QString&) override {}
    /// Always null.
    const QString& getScreenshotImageFolder() const override { return m_screenshotImageFolder; }
    void updateAfterCompleteLoading() override {}
    void setUpdateEngineEnabled(bool) override {}
    void setLowUpdateEngineFrequency(bool) override {}
    zelThumbnailManager* getThumbnailManager() const override { return nullptr; }
    void notifyAppEvent(zelAppEvent) override {}
    /// Always null, even for registered keys: ask the registry.
    QString getDefaultSettingsValue(const QString&) override { return QString(); }
    const QString& getLanguageCode() override { return m_languageCode; }
    const QString& getApplicationFolder() const override { return m_applicationFolder; }
    bool removeComponent(kqDMComponentId) override { return false; }
    void applicationStarted() override {}
    void applicationFinished() override {}
    bool saveDocument() override { return false; }
    void loadDocument(const QStringList&, bool) override {}
    void loadDocument(bool) override {}
    void set3DSelectionPickingEnabled(bool) override {}
    /// Always true.
    bool is3DSelectionPickingEnabled() const override { return true; }
    std::vector<PostSaveEventItem>& getPostSaveEventVector() override { return m_postSaveEvents; }
    void setWorkFlowWidget(QWidget*) override {}
    void registerMouseReleaseEventFilter(zelReleaseEventFilter*, bool) override {}

    /// Sets the result of getLanguageCode(), which is empty at first.
    void setLanguageCode(const QString& code) { m_languageCode = code; }

private:
    std::vector<kqDMPlugin*> m_plugins;
    std::vector<PostSaveEventItem> m_postSaveEvents;
    kqDMSelection m_selection;
    QSettings m_settings;
    QString m_applicationFolder;
    QString m_languageCode;
    QString m_screenshotImageFolder;
};

} // namespace zel

#endif
