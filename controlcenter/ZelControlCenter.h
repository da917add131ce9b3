#ifndef ZEL_ZELCONTROLCENTER_H
#define ZEL_ZELCONTROLCENTER_H

#include "ZelSettingsCatalogue.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"
#include "base/ZelExport.h"

#include <QElapsedTimer>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QWidget>

#include <functional>
#include <memory>

class QButtonGroup;
class QColor;
class QFrame;
class QPropertyAnimation;
class QSignalMapper;
class kqDMGuiPlugin;
class kqDMIApplication;
class zelAction;

namespace Ui {
class ControlCenter;
}

namespace zel {

class DrawerLayout;
class ZelCCActionItem;
class ZelSettingsPanel;

/// The side panel that an application puts beside its 3D view: a menu column of actions that slides open, and
/// beside it a drawer in which the registered settings pages are stacked, with Apply and Reset for all of
/// them.
///
/// The rules of Settings.ini (registry, validators, catalogue) are reached through this class too; they need
/// no instance.
///
/// What it can be told to do is among its actions(), by object name: "apply" and "reset", which press these
/// buttons; "help", which emits helpRequested(); "putBack", which undoes what is being typed in a field;
/// "pageUp", "pageDown", "top" and "bottom", which scroll the drawer. They have no shortcuts until the
/// application gives them some; these work while the column or the drawer has the focus, unless it changes
/// their context, too.
///
/// Registered pages and actions belong to their creators, who unregister them before they delete them. The
/// application must outlive the control center. GUI thread only.
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

    /// Releases the images that are compiled into the library, before it is unloaded.
    static void CleanupRessources();

    /// Adds a page below those already there and loads its values.
    void registerSettingsPanel(ZelSettingsPanel* panel);
    /// Takes a page out; it has no parent afterwards. The Apply and Reset buttons follow if reevaluate is
    /// true.
    void unregisterSettingsPanel(ZelSettingsPanel* panel, bool reevaluate);

    /// True from the end of the opening slide to the end of the closing one.
    bool isMenuOpen() const;
    /// The same of the drawer.
    bool isSettingsOpen() const;

    /// True when any page has pending edits.
    bool hasModifications() const;
    /// Applies the pending edits of every page and writes the settings file; true when a restart is needed.
    /// When the file cannot be written the edits stay pending, and the reason stands below the Apply button.
    bool applyModifications();

    /// The widget outside of which a click never closes the menu. Not owned; null, as at first, for any.
    void setGUIHandler(QWidget* handler);
    /// The application's own checkable button that opens the control center. Not owned.
    void setControlCenterButton(QPushButton* button);

    /// The drawer, for applications that lay it out themselves. Owned by the control center.
    QScrollArea* settingsWidget() const;

    /// Width of the menu column and the drawer together, in pixels, while both are open.
    static int OpenWidth();

    /// Width of the menu column in pixels; it is visible from 1 on.
    int controlCenterWidth() const;
    /// Sets it; 0 hides the menu column. What the slide does.
    void setControlCenterWidth(int width);

    /// Width of the drawer in pixels, 0 while it is hidden; it is visible from 1 on.
    int settingsWidth() const;
    /// Sets it; 0 hides the drawer. What the slide does.
    void setSettingsWidth(int width);

    /// Adds an action to the menu column, before or after the item of the action named anchorName; on top
    /// when the anchor is empty, at the bottom when no item has it.
    void registerCCAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific, bool after,
                          bool closeMenuOnTrigger);
    /// Removes every item of an action; an action that has none is ignored.
    void unregisterCCAction(zelAction* action);

    /// Adds a separator line before an anchor, as registerCCAction() finds it. False when the name is taken.
    bool addCCSeparator(const QString& anchorName, const QString& separatorName);
    /// False when there is no separator of that name.
    bool setCCSeparatorVisible(const QString& separatorName, bool visible);

    /// Tints the menu column (alpha is ignored) and gives the application's button, if one has been set, its
    /// icons for the checked and the unchecked state.
    void setInterfaceColor(const QColor& color, const QString& iconOnFile, const QString& iconOffFile);

    /// Watches the application, inside the viewer and while the menu is open, for clicks that close it.
    /// Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Slides the menu column open or closed. Closing discards pending edits; inside the viewer the user is
    /// asked first and may refuse.
    void openMenu(bool open);
    /// Shows the list of pages and opens the drawer, or closes both.
    void setControlCenterVisible(bool visible);
    /// Toggles the drawer.
    void openSettings();

Q_SIGNALS:
    /// What is stored, or what the pages show, may have changed: an edit, Apply, Reset, or a page that came
    /// or went.
    void evaluated();
    /// The user asks what a field is about; null when no field has the focus.
    void helpRequested(QWidget* field);

protected Q_SLOTS:
    /// Applies the edits of all pages and tells if a restart is needed.
    void on_applyButton_clicked();
    /// As resetControlCenter().
    void on_resetButton_clicked();
    /// Opens the drawer, if need be, and scrolls to the pages of that name.
    void onPanelClicked(const QString& pPanelName);
    /// Re-evaluates the Apply and Reset buttons and the marks of the pages.
    void onStateChanged();
    /// @{
    /// The end of a slide of the menu column, and of the drawer: from then on it counts as open or closed.
    void onControlCenterWidthFinished();
    void onSettingsWidthFinished();
    /// @}
    /// Marks the page at the top of the drawer in the list.
    void onScrollBarValueChanged(int value);
    /// As openMenu(false).
    void closeMenu();
    /// Gives the pages the width that the scroll bar leaves them.
    void onScrollBarRangeChanged();
    /// Forgets a page that was deleted without being unregistered.
    void onPanelDestroyed(QObject* panel);
    /// Brings a field into view that the keyboard enters the drawer at.
    void onFocusChanged(QWidget* former, QWidget* current);
    /// Every widget that a press is offered to has seen it.
    void onPressDelivered();

protected:
    /// Slides the drawer open or closed. Opening it from closed loads the stored values into every page.
    void openSettingsPanel(bool open);
    /// Scrolls the drawer until a page is at its top, as far as it goes.
    void ensureSettingVisible(QWidget* widget);
    /// Puts the defaults into every page, as pending edits.
    void resetControlCenter();

    /// @{
    /// Only forwards to QWidget; for classes that derive from this one.
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// @}

private:
    /// The plug-in that draws the viewer's interface; null outside the full viewer.
    kqDMGuiPlugin* guiPlugin() const;
    QPropertyAnimation* createSlide(const char* property, int openWidth, const char* finishedSlot);
    void createSettingsAction();
    void addPageButton(QPushButton* button, const QString& panelName);
    bool isSliding() const;
    void showDrawer(bool keepEdits);
    /// Pauses the engine and slides the drawer if there is anything to see of it. One that opens from closed
    /// loads its pages first, unless their edits are to stay.
    void slideDrawer(bool open, bool keepEdits);
    void resumeEngineAtRest();
    void closeDrawer();
    /// Whether the actions have room in the menu column while they are shown.
    void setActionSpace(bool given);
    /// Calls a function for each page, in the order of registration. A page may register or unregister others
    /// meanwhile.
    void forEachPanel(const std::function<void(ZelSettingsPanel*)>& action) const;
    /// Shows below the Apply button why the settings file cannot be written; an empty text hides the last.
    void showWriteError(const QString& error);
    void initializePanels();
    /// Drops pending edits, after asking where that is possible; false when the user keeps them.
    bool discardModifications();
    bool isClickOutside(QObject* watched, const QPoint& globalPosition) const;
    /// Index of an anchor's item in the menu column; 0 for an empty name; -1, which inserts at the bottom,
    /// when there is none.
    int anchorIndex(const QString& anchorName) const;

    const std::unique_ptr<Ui::ControlCenter> m_ui;
    std::unique_ptr<zelAction> m_settingsAction;
    QList<ZelSettingsPanel*> m_panels;
    QList<ZelCCActionItem*> m_actionItems;
    QMap<QString, QFrame*> m_separators;
    QElapsedTimer m_clickTimer;
    QPointer<QWidget> m_guiHandler;
    kqDMIApplication* const m_application;
    QSignalMapper* const m_pageMapper;
    QPointer<QPushButton> m_controlCenterButton;
    QButtonGroup* const m_pageGroup;
    QPointer<QScrollArea> m_drawer;
    DrawerLayout* m_drawerLayout;
    QPropertyAnimation* m_widthAnimation;
    QPropertyAnimation* m_settingsAnimation;
    QPropertyAnimation* m_scrollAnimation;
    bool m_menuOpen;
    bool m_settingsOpen;
    bool m_pressHandled; ///< The press that is being delivered has been a click outside already.
};

} // namespace zel

#endif
