#ifndef ZEL_ZELCONTROLCENTER_H
#define ZEL_ZELCONTROLCENTER_H

#include "ZelSettingsCatalogue.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"
#include "base/ZelExport.h"

#include <QPushButton>
#include <QScrollArea>
#include <QWidget>

#include <memory>

class QColor;
class kqDMIApplication;
class zelAction;

namespace zel {

class ZelSettingsPanel;

/// The side panel that an application puts beside its 3D view: a menu column of actions that slides open, and
/// beside it a drawer with the registered settings pages, one below the other, and Apply and Reset for all of
/// them.
///
/// The base classes are the rules of Settings.ini (registry, validators, catalogue). Their members are static
/// and need no instance.
///
/// Its actions() carry out its commands. Their object names are "apply" and "reset", which click these
/// buttons; "discard", which takes all pending edits back without a question, and "restore", which makes them
/// again; "help", which emits helpRequested(); "putBack", which undoes typing in a field; "pageUp",
/// "pageDown", "top" and "bottom", which scroll the drawer. They have no shortcuts; the application may set
/// some. A shortcut works while the focus is in the column or the drawer; for a wider range, change the
/// action's shortcut context.
///
/// The creators of pages and actions own them, and unregister them before they delete them. The application
/// must outlive the control center. GUI thread only.
class ZEL_EXPORT ZelControlCenter : public QWidget,
                                    public ZelSettingsRegistry,
                                    public ZelSettingsValidators,
                                    public ZelSettingsCatalogue
{
    Q_OBJECT
    Q_PROPERTY(int controlCenterWidth READ controlCenterWidth WRITE setControlCenterWidth)
    Q_PROPERTY(int settingsWidth READ settingsWidth WRITE setSettingsWidth)

public:
    /// Closed, with the built-in action "Settings" in its menu column. The application must not be null.
    ZelControlCenter(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags);
    ~ZelControlCenter() override;

    /// Releases the images in the library. Call it before the library is unloaded.
    static void CleanupRessources();

    /// Adds a page below the others and loads its values.
    void registerSettingsPanel(ZelSettingsPanel* panel);
    /// Removes a page, which then has no parent. Updates the Apply and Reset buttons if reevaluate is true.
    void unregisterSettingsPanel(ZelSettingsPanel* panel, bool reevaluate);

    /// True from the end of the opening slide to the end of the closing one.
    bool isMenuOpen() const;
    /// The same for the drawer.
    bool isSettingsOpen() const;

    /// True when any page has pending edits.
    bool hasModifications() const;
    /// Applies the pending edits of every page and writes the settings file; true when a restart is needed.
    /// When writing fails the edits stay pending, and the reason is shown below the Apply button.
    bool applyModifications();

    /// Only a click inside this widget can close the menu. Null, the initial value, allows any. Not owned.
    void setGUIHandler(QWidget* handler);
    /// The application's own checkable button that opens the control center. Not owned.
    void setControlCenterButton(QPushButton* button);

    /// The drawer, for the application to put into a layout. Owned by the control center.
    QScrollArea* settingsWidget() const;

    /// Width of the open menu column and the open drawer together, in pixels.
    static int OpenWidth();

    /// Width of the menu column in pixels.
    int controlCenterWidth() const;
    /// Shows the menu column with this width; 0 hides it. The slide animates it.
    void setControlCenterWidth(int width);

    /// Width of the drawer in pixels; 0 while it is hidden.
    int settingsWidth() const;
    /// Shows the drawer with this width; 0 hides it. The slide animates it.
    void setSettingsWidth(int width);

    /// Adds an action to the menu column, before or after the item of the action named anchorName; at the top
    /// when the name is empty, at the bottom when no item has it.
    /// @param isWorkflowSpecific  for the application to read from the item
    /// @param closeMenuOnTrigger  choosing the action closes the menu
    void registerCCAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific, bool after,
                          bool closeMenuOnTrigger);
    /// Removes every item of an action; does nothing when there is none.
    void unregisterCCAction(zelAction* action);

    /// Adds a separator line before an anchor, as registerCCAction() finds it. False when the name is taken.
    bool addCCSeparator(const QString& anchorName, const QString& separatorName);
    /// Shows or hides a separator. False when there is none of that name.
    bool setCCSeparatorVisible(const QString& separatorName, bool visible);

    /// Sets the background of the menu column, without alpha, and the icons of the application's button, if
    /// it is set, for its checked (on) and unchecked (off) state.
    void setInterfaceColor(const QColor& color, const QString& iconOnFile, const QString& iconOffFile);

    /// Sees all events of the application while the menu is open in the viewer, to close it by a click.
    /// Consumes none.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Slides the menu column open or closed. Closing discards pending edits; in the viewer the user is asked
    /// first and may keep the menu open.
    void openMenu(bool open);
    /// Shows the list of pages and opens the drawer, or closes both.
    void setControlCenterVisible(bool visible);
    /// Toggles the drawer.
    void openSettings();

Q_SIGNALS:
    /// Stored or shown values may have changed: after an edit, Apply or Reset, and when a page is registered
    /// or unregistered.
    void pagesChanged();
    /// The user asks for help on a field; null when no field of the drawer has the focus.
    void helpRequested(QWidget* field);

protected Q_SLOTS:
    /// Applies the edits of all pages; in the viewer, shows a message when a restart is needed.
    void on_applyButton_clicked();
    /// Calls resetControlCenter().
    void on_resetButton_clicked();
    /// Opens the drawer if it is closed, and scrolls to the page of that name.
    void onPanelClicked(const QString& pPanelName);
    /// Updates the Apply and Reset buttons and the marks on the page buttons.
    void onStateChanged();
    /// @{
    /// The slide of the menu column, or of the drawer, has ended: it is now open or closed.
    void onControlCenterWidthFinished();
    void onSettingsWidthFinished();
    /// @}
    /// Checks the button of the page at the top of the drawer.
    void onScrollBarValueChanged(int value);
    /// Calls openMenu(false).
    void closeMenu();

protected:
    /// Slides the drawer open or closed. Opening a closed drawer loads the stored values into every page.
    void openSettingsPanel(bool open);
    /// Scrolls a page to the top of the drawer, as far as the scroll range allows.
    void ensureSettingVisible(QWidget* widget);
    /// Puts the defaults into every page, as pending edits.
    void resetControlCenter();

    /// @{
    /// Calls QWidget's.
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// @}

private Q_SLOTS:
    void onClickOutside();
    /// Loads the stored values into the pages, and shows whether the file can be written.
    void loadPages();

private:
    struct Parts;

    /// Discards pending edits; in the viewer it asks first. False when the user keeps them, or when this
    /// object was deleted while the question was open.
    bool discardModifications();

    const std::unique_ptr<Parts> m_parts;
};

} // namespace zel

#endif
