#ifndef ZEL_ZELCONTROLCENTERSTANDALONEWIDGET_H
#define ZEL_ZELCONTROLCENTERSTANDALONEWIDGET_H

#include "base/ZelExport.h"

#include <QWidget>

#include <memory>
#include <vector>

class QScrollArea;
class kqDMIApplication;
class kqMovableObject;

namespace Ui {
class ControlCenterStandAlone;
}

namespace zel {

class WindowPlace;
class ZelControlCenter;
class ZelSettingsPanel;

/// The window of the stand-alone settings editor: a frame of its own with a header to drag it by and three
/// buttons, around a control center with every page. Owns both; the application must outlive it.
///
/// It opens where it was closed, which it keeps in "Window.ini" beside the settings file, and is never larger
/// than the free area of its screen: where that is too narrow, what is below the header scrolls. Edges and
/// corners resize it.
///
/// Its keys: Ctrl+S and Alt with a letter of its text apply, Alt with a letter of its text resets, F1 helps,
/// Ctrl+Q and Ctrl+W close.
class ZEL_EXPORT ZelControlCenterStandAloneWidget : public QWidget
{
    Q_OBJECT

public:
    /// Creates all pages. The application must not be null.
    ZelControlCenterStandAloneWidget(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags);
    ~ZelControlCenterStandAloneWidget() override;

    /// Gives the focus to the list of pages when that slides in. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Minimises the window.
    void triggerMinimize();
    /// Maximises the window, or restores it.
    void triggerMaximize();
    /// Closes the window, as its frame's button does.
    void closeWidget();
    /// Slides the menu and the drawer open.
    void openMenu();
    /// What another process has passed on. Ignored: such a message only raises the window.
    void parseMessage(const QString& message);

protected:
    /// Asks before pending edits are lost.
    void closeEvent(QCloseEvent* event) override;
    /// Lets the maximise button say what it does now.
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    /// Scrolls to what the keyboard has reached.
    void onFocusChanged(QWidget* former, QWidget* current);

private:
    void wrapContent();
    void createActions();
    void orderFocus();
    bool mayDiscardModifications();

    const std::unique_ptr<Ui::ControlCenterStandAlone> m_ui;
    std::unique_ptr<ZelControlCenter> m_controlCenter;
    std::unique_ptr<kqMovableObject> m_movable;
    WindowPlace* m_place;
    QScrollArea* m_scrollArea;
    /// In the order in which they are shown.
    std::vector<std::unique_ptr<ZelSettingsPanel>> m_panels;
};

} // namespace zel

#endif
