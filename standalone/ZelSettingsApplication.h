#ifndef ZEL_ZELSETTINGSAPPLICATION_H
#define ZEL_ZELSETTINGSAPPLICATION_H

#include "base/ZelExport.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMSelection.h"

#include <QSettings>
#include <QString>

#include <vector>

namespace zel {

/// The application that the pages see in the stand-alone settings editor. It has settings, a folder and a
/// language; whatever would need a loaded scene, a renderer or a plug-in answers "nothing": null, false, or
/// no action.
class ZEL_EXPORT ZelSettingsApplication : public kqDMIApplication
{
    Q_OBJECT

public:
    /// Opens the settings file "Settings.ini" of a folder.
    explicit ZelSettingsApplication(const QString& applicationFolder);
    ~ZelSettingsApplication() override;

    void clearViewerApp() override;
    kqDMManager* getDMManager() const override;
    kqDMRenderer* getDMRenderer() const override;
    QDeclarativeEngine* getDeclarativeEngine() const override;
    zelMaterialManagerInterface* getMaterialManager() const override;
    void setMaterialManager(zelMaterialManagerInterface* manager) override;
    zelNavigationManager* getNavigationManager() const override;
    QSettings& getSettings() override;
    kqDMProject* editProject() override;
    const std::vector<kqDMPlugin*>& getPluginsList() const override;
    kqDMGuiPlugin* getGuiPlugin() const override;
    const kqDMSelection& getSelection() const override;
    kqDMSelection& grabSelection() override;
    /// Ignored: nothing takes screenshots here.
    void setScreenshotImageFolder(const QString& folder) override;
    /// Always null.
    const QString& getScreenshotImageFolder() const override;
    void updateAfterCompleteLoading() override;
    void setUpdateEngineEnabled(bool enabled) override;
    void setLowUpdateEngineFrequency(bool low) override;
    zelThumbnailManager* getThumbnailManager() const override;
    void notifyAppEvent(zelAppEvent event) override;
    /// Always null, also for registered keys: those are the registry's to answer.
    QString getDefaultSettingsValue(const QString& key) override;
    const QString& getLanguageCode() override;
    const QString& getApplicationFolder() const override;
    bool removeComponent(kqDMComponentId component) override;
    void applicationStarted() override;
    void applicationFinished() override;
    bool saveDocument() override;
    void loadDocument(const QStringList& files, bool append) override;
    void loadDocument(bool append) override;
    void set3DSelectionPickingEnabled(bool enabled) override;
    bool is3DSelectionPickingEnabled() const override;
    std::vector<PostSaveEventItem>& getPostSaveEventVector() override;
    void setWorkFlowWidget(QWidget* widget) override;
    void registerMouseReleaseEventFilter(zelReleaseEventFilter* filter, bool enable) override;

    /// Sets what getLanguageCode() answers; empty at first.
    void setLanguageCode(const QString& code);

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
