#ifndef ZEL_ZELSETTINGSPANEL_H
#define ZEL_ZELSETTINGSPANEL_H

#include "base/ZelExport.h"

#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QWidget>

class QSettings;
class kqDMIApplication;
class zelAction;

namespace zel {

/// A page of the control center's settings drawer. The control center knows a page through this class alone,
/// so an application adds pages of its own by deriving from it.
///
/// Every concrete page declares the signal stateChanged(), without arguments, and emits it whenever the
/// answer of hasModifications() or canResetContent() may have changed.
///
/// The creator of a page owns it, also while it is registered; it has to be unregistered before it is
/// deleted. The application and the settings must outlive it. GUI thread only.
class ZEL_EXPORT ZelSettingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// What a page is about, for applications that group their pages; the control center makes no use of it.
    enum PanelCategory { ProjectCategory = 0, ApplicationCategory = 1, AdvancedCategory = 2, NoCategory = 3 };

    /// The page has no name and no category yet. Its fields write numbers in the application's language. The
    /// application may be null: nothing is then pushed to it.
    ZelSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                     Qt::WindowFlags flags);
    ~ZelSettingsPanel() override;

    /// NoCategory unless the page has set one.
    PanelCategory getPanelCategory() const;
    /// Sets the category; nothing else changes.
    void setPanelCategory(PanelCategory category);

    /// The checkable button that brings the page into view. The page owns it, wherever it is shown. Null once
    /// it has been deleted, with a widget that it was put into.
    QPushButton* getActionWidget() const;

    /// Empty until it is set.
    const QString& getPanelName() const;
    /// Names the page and labels its button.
    void setPanelName(const QString& name);

    /// The keys of Settings.ini that the page edits. The control center logs those that are not registered
    /// when it gets the page.
    const QStringList& getSettingsKeys() const;

    /// Loads the stored values into the widgets and forgets pending edits. Called at registration, whenever
    /// the drawer opens, and when pending edits are discarded.
    virtual void initializeWidget() = 0;

    /// True while the widgets differ from what is stored.
    virtual bool hasModifications() const = 0;

    /// Writes pending edits to the settings, and to the running application where it can take them. Returns
    /// true when one of them takes effect only after a restart.
    virtual bool applyModifications() = 0;

    /// True while the widgets differ from the defaults.
    virtual bool canResetContent() const = 0;

    /// Puts the defaults into the widgets, as pending edits.
    virtual void resetContent() = 0;

    /// Discards pending edits; false when the page leaves that to initializeWidget().
    virtual bool cancelModifications() = 0;

    /// For applications: reads live state again. Does nothing unless a page overrides it.
    virtual void refreshWidgetContent();

    /// For applications: hands an action to the page. Does nothing unless a page overrides it.
    virtual void registerCCAction(zelAction* action);

    /// For applications: takes an action back. Does nothing unless a page overrides it.
    virtual void unregisterCCActionByName(const QString& name);

protected:
    /// To be called by the constructor of a page that edits settings; ZelEditablePanel does it.
    void setSettingsKeys(const QStringList& keys);

    /// What was given to the constructor; may be null.
    kqDMIApplication* application() const { return m_application; }
    /// What was given to the constructor.
    QSettings& settings() const { return *m_settings; }

    /// Sets the style sheet that the application keeps under this name; to be called once the form is set up.
    void setNamedStyleSheet(const QString& name);

private:
    kqDMIApplication* m_application;
    QSettings* m_settings;
    QString m_panelName;
    QStringList m_settingsKeys;
    PanelCategory m_category;
    QPointer<QPushButton> m_actionWidget;
};

} // namespace zel

#endif
