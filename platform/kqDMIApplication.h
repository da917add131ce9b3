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

/// An event that notifyAppEvent() sends to listeners. The application defines the values.
enum zelAppEvent : int;

/// Identifies a component of the loaded document.
using kqDMComponentId = unsigned int;

/// An event to send after the document is saved.
struct PostSaveEventItem
{
    /// The event.
    zelAppEvent event;
    /// Its argument; the application defines the meaning.
    QString argument;
};

/// The interface of the application that hosts the control center and its pages: the viewer, or the
/// stand-alone settings editor, which has no scene. The guide to embedding lists the functions that control
/// center and pages call; the others serve the viewer. GUI thread only.
class ZEL_KERNEL_GUI_EXPORT kqDMIApplication : public QObject
{
    Q_OBJECT

public:
    /// The parent, if any, owns the application.
    explicit kqDMIApplication(QObject* parent = nullptr);
    ~kqDMIApplication() override;

    /// Closes the loaded document and releases its resources.
    virtual void clearViewerApp() = 0;

    /// The document manager; null when nothing can be loaded.
    virtual kqDMManager* getDMManager() const = 0;
    /// The renderer; null when nothing is drawn.
    virtual kqDMRenderer* getDMRenderer() const = 0;
    /// The QML engine of the interface; null without one.
    virtual QDeclarativeEngine* getDeclarativeEngine() const = 0;
    /// The materials of the document; null without a document.
    virtual zelMaterialManagerInterface* getMaterialManager() const = 0;
    /// Replaces the materials of the document. The caller still owns the manager.
    virtual void setMaterialManager(zelMaterialManagerInterface* manager) = 0;
    /// The manager that moves the camera; null without a view.
    virtual zelNavigationManager* getNavigationManager() const = 0;

    /// The user's settings; owned by the application.
    virtual QSettings& getSettings() = 0;
    /// The loaded document, for changes; null without one.
    virtual kqDMProject* editProject() = 0;

    /// The loaded plug-ins, in the order of loading.
    virtual const std::vector<kqDMPlugin*>& getPluginsList() const = 0;
    /// The plug-in that draws the viewer's interface; null outside the full viewer.
    virtual kqDMGuiPlugin* getGuiPlugin() const = 0;

    /// The selected components; empty without a document.
    virtual const kqDMSelection& getSelection() const = 0;
    /// The selected components, for changes.
    virtual kqDMSelection& grabSelection() = 0;

    /// Sets the folder for screenshots.
    virtual void setScreenshotImageFolder(const QString& folder) = 0;
    /// The folder for screenshots; null before it is set.
    virtual const QString& getScreenshotImageFolder() const = 0;

    /// The kernel calls it when a document is completely loaded.
    virtual void updateAfterCompleteLoading() = 0;

    /// Resumes (true) or pauses (false) the 3D engine, which would slow an animation down.
    virtual void setUpdateEngineEnabled(bool enabled) = 0;
    /// Lets the 3D engine draw less often (true), or at its usual rate.
    virtual void setLowUpdateEngineFrequency(bool low) = 0;
    /// The thumbnails of the document's components; null without any.
    virtual zelThumbnailManager* getThumbnailManager() const = 0;
    /// Sends an event to the listeners.
    virtual void notifyAppEvent(zelAppEvent event) = 0;

    /// The application's own default of a settings key; null when it has none.
    virtual QString getDefaultSettingsValue(const QString& key) = 0;
    /// Two-letter code of the interface language.
    virtual const QString& getLanguageCode() = 0;
    /// The folder that holds the user's settings file.
    virtual const QString& getApplicationFolder() const = 0;

    /// Removes a component from the document; false when the document does not have it.
    virtual bool removeComponent(kqDMComponentId component) = 0;
    /// Called once, when the settings are valid and the libraries are started.
    virtual void applicationStarted() = 0;
    /// Called once, before the libraries stop.
    virtual void applicationFinished() = 0;
    /// Saves the document to its file; false when that fails or there is no document.
    virtual bool saveDocument() = 0;
    /// Loads documents; replaces the loaded one, or adds to it.
    virtual void loadDocument(const QStringList& files, bool append) = 0;
    /// Asks the user for documents and loads them; replaces the loaded one, or adds to it.
    virtual void loadDocument(bool append) = 0;
    /// Lets clicks in the 3D view select components (true), or not.
    virtual void set3DSelectionPickingEnabled(bool enabled) = 0;
    /// Whether clicks in the 3D view select components.
    virtual bool is3DSelectionPickingEnabled() const = 0;
    /// The events to send after the document is saved; the caller may add some.
    virtual std::vector<PostSaveEventItem>& getPostSaveEventVector() = 0;
    /// Shows the widget of the current workflow; null for none. Not owned.
    virtual void setWorkFlowWidget(QWidget* widget) = 0;
    /// Adds a filter for mouse releases in the 3D view (true), or removes it. Not owned.
    virtual void registerMouseReleaseEventFilter(zelReleaseEventFilter* filter, bool enable) = 0;

    /// The named actions of the application; null without any.
    virtual zelActionManager* getActionManager() const;

    /// True when the setting "enablediag" is "true".
    bool isDiagModeEnable();

    /// The style sheet of that name; empty when there is none.
    static QString GetStylesheet(const QString& name);
    /// Opens an address in the user's browser.
    static void OpenUrl(const QUrl& url);
    /// Version of the kernel, for users to read.
    static QString GetKernelVersion();
};

#endif
