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
    /// What is to happen.
    zelAppEvent event;
    /// What the event is about; its meaning is the application's own.
    QString argument;
};

/// The interface of the application that hosts pages and panels: the viewer, or the stand-alone settings
/// editor, which has no scene. The guide to embedding lists what the control center and its pages ask for;
/// the rest is the viewer's own affair. GUI thread only.
class ZEL_KERNEL_GUI_EXPORT kqDMIApplication : public QObject
{
    Q_OBJECT

public:
    /// The parent, if any, owns the application.
    explicit kqDMIApplication(QObject* parent = nullptr);
    ~kqDMIApplication() override;

    /// Drops the loaded document and all that was made for it.
    virtual void clearViewerApp() = 0;

    /// The document manager; null when nothing can be loaded.
    virtual kqDMManager* getDMManager() const = 0;
    /// The renderer; null when nothing is drawn.
    virtual kqDMRenderer* getDMRenderer() const = 0;
    /// The engine of the interface's QML parts; null without any.
    virtual QDeclarativeEngine* getDeclarativeEngine() const = 0;
    /// The materials of the document; null without any.
    virtual zelMaterialManagerInterface* getMaterialManager() const = 0;
    /// Replaces the materials of the document; the caller keeps the manager.
    virtual void setMaterialManager(zelMaterialManagerInterface* manager) = 0;
    /// What moves the camera; null without a view.
    virtual zelNavigationManager* getNavigationManager() const = 0;

    /// The user's settings; owned by the application.
    virtual QSettings& getSettings() = 0;
    /// The loaded document, to be changed; null without one.
    virtual kqDMProject* editProject() = 0;

    /// The loaded plug-ins, in the order of loading.
    virtual const std::vector<kqDMPlugin*>& getPluginsList() const = 0;
    /// The plug-in that draws the viewer's interface; null outside the full viewer.
    virtual kqDMGuiPlugin* getGuiPlugin() const = 0;

    /// The selected components; empty without a document.
    virtual const kqDMSelection& getSelection() const = 0;
    /// The selected components, to be changed.
    virtual kqDMSelection& grabSelection() = 0;

    /// Screenshots taken from now on are saved in this folder.
    virtual void setScreenshotImageFolder(const QString& folder) = 0;
    /// The folder that was set last; null before.
    virtual const QString& getScreenshotImageFolder() const = 0;

    /// Called by the kernel when a document has been loaded to its end.
    virtual void updateAfterCompleteLoading() = 0;

    /// Pauses (false) and resumes (true) the 3D engine, so that nothing else competes with an animation.
    virtual void setUpdateEngineEnabled(bool enabled) = 0;
    /// Lets the 3D engine draw less often (true), or as often as usual.
    virtual void setLowUpdateEngineFrequency(bool low) = 0;
    /// The small pictures of the document's components; null without any.
    virtual zelThumbnailManager* getThumbnailManager() const = 0;
    /// Tells the listeners of an event.
    virtual void notifyAppEvent(zelAppEvent event) = 0;

    /// The application's own default of a settings key; null when it has none.
    virtual QString getDefaultSettingsValue(const QString& key) = 0;
    /// Two-letter code of the interface language.
    virtual const QString& getLanguageCode() = 0;
    /// The folder that holds the user's settings file.
    virtual const QString& getApplicationFolder() const = 0;

    /// Removes a component from the document; false when it is not there.
    virtual bool removeComponent(kqDMComponentId component) = 0;
    /// Called once, when the settings are valid and the libraries run.
    virtual void applicationStarted() = 0;
    /// Called once, before the libraries stop.
    virtual void applicationFinished() = 0;
    /// Saves the document where it came from; false when that fails or there is none.
    virtual bool saveDocument() = 0;
    /// Loads documents, in place of the loaded one or in addition to it.
    virtual void loadDocument(const QStringList& files, bool append) = 0;
    /// Lets the user choose what to load, in place of the loaded document or in addition to it.
    virtual void loadDocument(bool append) = 0;
    /// Allows (true) and forbids clicks in the 3D view that select components.
    virtual void set3DSelectionPickingEnabled(bool enabled) = 0;
    /// Whether such clicks are allowed.
    virtual bool is3DSelectionPickingEnabled() const = 0;
    /// What is to be done once the document has been saved; the caller may add to it.
    virtual std::vector<PostSaveEventItem>& getPostSaveEventVector() = 0;
    /// Shows the widget of the workflow at hand; null for none. Not owned.
    virtual void setWorkFlowWidget(QWidget* widget) = 0;
    /// Offers mouse releases in the 3D view to a filter (true), or no longer. Not owned.
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
