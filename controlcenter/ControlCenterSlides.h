#ifndef ZEL_CONTROLCENTERSLIDES_H
#define ZEL_CONTROLCENTERSLIDES_H

#include <QObject>

class QPropertyAnimation;
class QPushButton;
class QWidget;
class kqDMIApplication;

namespace Ui {
class ControlCenter;
}

namespace zel {

class MenuColumn;
class SettingsDrawer;

/// The slides of the control center: they open and close its menu column and its drawer, while the engine is
/// paused. The column, which owns this object, shows the actions or, beside the open drawer, the list of
/// pages.
class ControlCenterSlides : public QObject
{
    Q_OBJECT

public:
    /// The slides animate properties of the column and call its slots when they end. Nothing is owned; all
    /// outlive the last slide.
    ControlCenterSlides(QWidget* column, const Ui::ControlCenter& form, MenuColumn& menu,
                        SettingsDrawer& drawer, kqDMIApplication& application);
    ~ControlCenterSlides() override;

    /// True from the end of the opening slide to the end of the closing one.
    bool isMenuOpen() const { return m_menuOpen; }
    /// The same for the drawer.
    bool isDrawerOpen() const { return m_drawerOpen; }
    /// True when the drawer is open or opens, also in a hidden window.
    bool isDrawerToBeOpen() const;
    bool isDrawerSliding() const;
    /// How far the drawer's opening slide is in time, from 0 to 1.
    double drawerProgress() const;

    /// Slides the menu column open or closed; closing closes the drawer too, opening hides the list of pages.
    /// The opener, if any, is checked while the column is open.
    void slideMenu(bool open, QPushButton* opener);
    /// Pauses the engine, which the caller resumes if nothing slides, and slides the drawer, if its state
    /// changes. A closed drawer emits aboutToOpen() before it opens, unless keepEdits is true.
    void slideDrawer(bool open, bool keepEdits);
    /// Shows the list of pages and slides the drawer open.
    void showDrawer(bool keepEdits);

    /// @{
    /// What the column does when a slide has ended.
    void onMenuFinished();
    void onDrawerFinished();
    /// @}

    void resumeEngine();
    void resumeEngineUnlessSliding();

Q_SIGNALS:
    /// The stored values are to be loaded into the pages. A receiver may delete this object.
    void aboutToOpen();

private:
    QPropertyAnimation* createSlide(const char* property, int openWidth, const char* finishedSlot);
    void closeDrawer();
    /// Where the style animates nothing, it is not paused.
    void pauseEngine();

    QWidget& m_column;
    QWidget& m_list; ///< Of pages.
    QPushButton& m_listButton;
    MenuColumn& m_menu;
    SettingsDrawer& m_drawer;
    kqDMIApplication& m_application;
    QPropertyAnimation* const m_menuSlide;
    QPropertyAnimation* const m_drawerSlide;
    bool m_menuOpen = false;
    bool m_drawerOpen = false;
    bool m_enginePaused = false;
};

} // namespace zel

#endif
