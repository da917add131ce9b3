#ifndef ZEL_KQDMIAPPLICATION_H
#define ZEL_KQDMIAPPLICATION_H

#include "../base/ZelExport.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <vector>

class QDeclarativeEngine;
class QSettings;
class QUrl;
class QWidget;
class kqDMGuiPlugin;
class kqDMManager;
class kqDMPlugin;
class kqDMProject;
class kqDMRenderer;
class kqDMSelection;
class zelActionManager;
class zelMaterialManagerInterface;
class zelNavigationManager;
class zelReleaseEventFilter;
class zelThumbnailManager;

/// An event of the application's life that listeners are told of; the values are the application's own.
enum zelAppEvent : int;

/// Identifies a component of the loaded document.
using kqDMComponentId = unsigned int;

/// Something to be done once the document has been saved.
struct PostSaveEventItem
{
    zelAppEvent event;
    QString argument;
};

/// The interface of the application that hosts pages and panels: the viewer, or the stand-alone settings
/// editor, which has no scene. GUI thread only.
class ZEL_KERNEL_GUI_EXPORT kqDMIApplication : public QObject
{
    Q_OBJECT

public:
    explicit kqDMIApplication(QObject* parent = nullptr);
    ~kqDMIApplication() override;

    virtual void clearViewerApp() = 0;

    /// The document manager; null when nothing can be loaded.
    virtual kqDMManager* getDMManager() const = 0;
    /// The renderer; null when nothing is drawn.
    virtual kqDMRenderer* getDMRenderer() const = 0;
    virtual QDeclarativeEngine* getDeclarativeEngine() const = 0;
    virtual zelMaterialManagerInterface* getMaterialManager() const = 0;
    virtual void setMaterialManager(zelMaterialManagerInterface* manager) = 0;
    virtual zelNavigationManager* getNavigationManager() const = 0;

    /// The user's settings; owned by the application.
    virtual QSettings& getSettings() = 0;
    virtual kqDMProject* editProject() = 0;

    /// The loaded plug-ins, in the order of loading.
    virtual const std::vector<kqDMPlugin*>& getPluginsList() const = 0;
    /// The plug-in that draws the viewer's interface; null outside the full viewer.
    virtual kqDMGuiPlugin* getGuiPlugin() const = 0;

    virtual const kqDMSelection& getSelection() const = 0;
    virtual kqDMSelection& grabSelection() = 0;

    /// Screenshots taken from now on are saved in this folder.
    virtual void setScreenshotImageFolder(const QString& folder) = 0;
    virtual const QString& getScreenshotImageFolder() const = 0;

    virtual void updateAfterCompleteLoading() = 0;

    /// Pauses (false) and resumes (true) the 3D engine, so that nothing else competes with an animation.
    virtual void setUpdateEngineEnabled(bool enabled) = 0;
    virtual void setLowUpdateEngineFrequency(bool low) = 0;
    virtual zelThumbnailManager* getThumbnailManager() const = 0;
    virtual void notifyAppEvent(zelAppEvent event) = 0;

    /// The application's own default of a settings key; null when it has none.
    virtual QString getDefaultSettingsValue(const QString& key) = 0;
    /// Two-letter code of the interface language.
    virtual const QString& getLanguageCode() = 0;
    /// The folder that holds the user's settings file.
    virtual const QString& getApplicationFolder() const = 0;

    virtual bool removeComponent(kqDMComponentId component) = 0;
    virtual void applicationStarted() = 0;
    virtual void applicationFinished() = 0;
    virtual bool saveDocument() = 0;
    virtual void loadDocument(const QStringList& files, bool append) = 0;
    virtual void loadDocument(bool append) = 0;
    virtual void set3DSelectionPickingEnabled(bool enabled) = 0;
    virtual bool is3DSelectionPickingEnabled() const = 0;
    virtual std::vector<PostSaveEventItem>& getPostSaveEventVector() = 0;
    virtual void setWorkFlowWidget(QWidget* widget) = 0;
    virtual void registerMouseReleaseEventFilter(zelReleaseEventFilter* filter, bool enable) = 0;

    /// The named actions of the application; null unless the application has some.
    virtual zelActionManager* getActionManager() const;

    /// True when the settings switch diagnostics on ("enablediag" is "true").
    bool isDiagModeEnable();

    /// The style sheet registered under a name; empty when there is none.
    static QString GetStylesheet(const QString& name);
    /// Opens an address in the desktop's browser.
    static void OpenUrl(const QUrl& url);
    /// Version of the kernel, as it is shown to users.
    static QString GetKernelVersion();
};

#endif
