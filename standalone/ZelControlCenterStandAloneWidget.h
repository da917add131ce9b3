#ifndef ZEL_ZELCONTROLCENTERSTANDALONEWIDGET_H
#define ZEL_ZELCONTROLCENTERSTANDALONEWIDGET_H

#include "base/ZelExport.h"

#include <QWidget>

#include <memory>
#include <vector>

class kqDMIApplication;
class kqMovableObject;

namespace Ui {
class ControlCenterStandAlone;
}

namespace zel {

class WindowGeometry;
class ZelControlCenter;
class ZelSettingsPanel;

/// The window of the stand-alone settings editor: a control center with every page, below a header with three
/// buttons. It draws its own frame: the header moves it, edges and corners resize it. Owns the control center
/// and the pages; the application must outlive it.
///
/// It saves its position and size in "Window.ini" beside the settings file. It is never larger than the
/// available area of its screen; where that is too narrow, the content below the header scrolls.
///
/// Its keys: Ctrl+S applies; Ctrl+Z discards the pending edits, and Ctrl+Shift+Z makes them again; Alt with a
/// letter of a button's text clicks Apply or Reset; F1 shows help; Ctrl+Q and Ctrl+W close.
class ZEL_EXPORT ZelControlCenterStandAloneWidget : public QWidget
{
    Q_OBJECT

public:
    /// Creates all pages. The application must not be null.
    ZelControlCenterStandAloneWidget(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags);
    ~ZelControlCenterStandAloneWidget() override;

    /// Sets the focus to the list of pages when the control center appears. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Minimises the window.
    void triggerMinimize();
    /// Maximises the window, or restores it.
    void triggerMaximize();
    /// Closes the window, as its close button does.
    void closeWidget();
    /// Slides the menu and the drawer open.
    void openMenu();
    /// Receives the message of another instance. Ignores it: QtSingleApplication raises the window.
    void parseMessage(const QString& message);

protected:
    /// Asks before it discards pending edits; saves position and size.
    void closeEvent(QCloseEvent* event) override;
    /// Updates the tool tip of the maximise button.
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    /// Scrolls to the focused widget.
    void onFocusChanged(QWidget* previous, QWidget* current);

private:
    void createPages(kqDMIApplication& application);
    void createHelp();
    /// Sets the texts that are not in the form, and how they look in the language.
    void setTexts(kqDMIApplication& application);
    void nameMaximizeButton();
    bool mayDiscardModifications();

    const std::unique_ptr<Ui::ControlCenterStandAlone> m_ui;
    std::unique_ptr<ZelControlCenter> m_controlCenter;
    std::unique_ptr<kqMovableObject> m_movable;
    WindowGeometry* m_geometry;
    /// From top to bottom.
    std::vector<std::unique_ptr<ZelSettingsPanel>> m_panels;
};

} // namespace zel

#endif
