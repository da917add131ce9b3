#ifndef VIEWER_VIEWERWINDOW_H
#define VIEWER_VIEWERWINDOW_H

#include <QMainWindow>

#include <memory>
#include <vector>
#include <zel/ZelControlCenter.h>
#include <zel/ZelSettingsPanel.h>

class ModelView;
class QPushButton;
class ViewerApplication;
class zelAction;

/// The viewer's window: from left to right the button that opens the control center, the control center with
/// its drawer, and the 3D view.
///
/// Owns the control center and the settings pages. The action manager of the application owns the actions.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The application must outlive the window.
    explicit ViewerWindow(ViewerApplication* application);
    ~ViewerWindow() override;

    ModelView* view() const { return m_view; }

protected:
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void onMenuButtonClicked(bool open);
    void onScreenshot();
    void onNextLevel();
    void onRenderingMode(bool wireFrame);
    void onFullScreen(bool fullScreen);

private:
    void createLayout();
    void createActions();
    void createPages();

    ViewerApplication* const m_application;
    ModelView* m_view;
    QPushButton* m_menuButton;
    std::unique_ptr<zel::ZelControlCenter> m_controlCenter;
    std::vector<zelAction*> m_actions;
    std::vector<std::unique_ptr<zel::ZelSettingsPanel>> m_pages;
};

#endif
