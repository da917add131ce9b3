#include "ViewerWindow.h"

#include "ModelView.h"
#include "TurntableSettingsPanel.h"
#include "ViewerApplication.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QHBoxLayout>
#include <QPixmap>
#include <QPushButton>
#include <QStatusBar>

#include <zel/SettingsKeys.h>
#include <zel/ZelAboutSettingsPanel.h>
#include <zel/ZelGeneralSettingsPanel.h>
#include <zel/ZelImportSettingsPanel.h>
#include <zel/ZelRendererSettingsPanel.h>
#include <zel/ZelSimplificationSettingsPanel.h>
#include <zel/platform/kqMessageBox.h>
#include <zel/platform/zelAction.h>

namespace {

const int MenuWidth = 250; // pixels, as wide as the open control center
const QColor MenuColor(52, 64, 84);

template <class Page>
std::unique_ptr<zel::ZelSettingsPanel> createPage(kqDMIApplication* application)
{
    return std::make_unique<Page>(application, application->getSettings(), nullptr, Qt::WindowFlags());
}

} // namespace

ViewerWindow::ViewerWindow(ViewerApplication* application)
    : m_application(application)
{
    setWindowTitle(tr("Torvane Viewer"));
    resize(1100, 720);
    createLayout();
    createActions();
    createPages();
    statusBar()->showMessage(tr("Drag the model to turn it; the button at the top left opens the menu."));
}

ViewerWindow::~ViewerWindow()
{
    for (auto page = m_pages.rbegin(); page != m_pages.rend(); ++page)
        m_controlCenter->unregisterSettingsPanel(page->get(), false);
    m_pages.clear();
    for (zelAction* action : m_actions)
        m_controlCenter->unregisterCCAction(action);
    m_controlCenter.reset();
}

void ViewerWindow::createLayout()
{
    const bool deferred = m_application->getSettings().value(zel::keys::Engine) == zel::engines::Deferred;
    m_view = new ModelView(m_application->scene(), deferred, this);
    m_application->guiPlugin().setMainViewWidget(m_view);
    connect(m_application, SIGNAL(updateEngineEnabled(bool)), m_view, SLOT(setEngineEnabled(bool)));

    m_menuButton = new QPushButton(this);
    m_menuButton->setCheckable(true);
    m_menuButton->setFixedSize(48, 48);
    m_menuButton->setToolTip(tr("Menu and settings"));
    connect(m_menuButton, SIGNAL(clicked(bool)), this, SLOT(onMenuButtonClicked(bool)));

    m_controlCenter = std::make_unique<zel::ZelControlCenter>(m_application, nullptr, Qt::WindowFlags());
    m_controlCenter->setGUIHandler(this);
    m_controlCenter->setControlCenterButton(m_menuButton);
    m_controlCenter->setInterfaceColor(MenuColor, ":/controlCenter/controlCenter/controlCenterOn.png",
                                       ":/controlCenter/controlCenter/controlCenterOff.png");

    auto* strip = new QFrame(this);
    strip->setStyleSheet(QString("QFrame { background: %1; } QPushButton { background: %1; border: none; }")
                             .arg(MenuColor.darker(120).name()));
    auto* stripLayout = new QVBoxLayout(strip);
    stripLayout->setContentsMargins(0, 0, 0, 0);
    stripLayout->addWidget(m_menuButton);
    stripLayout->addStretch();

    // In this layout the drawer does not inherit the style sheet of the control center.
    m_controlCenter->settingsWidget()->setStyleSheet(kqDMIApplication::GetStylesheet("ZelControlCenter"));

    auto* content = new QWidget(this);
    auto* layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(strip);
    layout->addWidget(m_controlCenter.get());
    layout->addWidget(m_controlCenter->settingsWidget());
    layout->addWidget(m_view, 1);
    setCentralWidget(content);
}

void ViewerWindow::createActions()
{
    const struct
    {
        const char* name;
        QString text;
        QString statusTip;
        const char* shortcut;
        bool closesMenu;
        bool checkable;
        const char* slot;
    } rows[] = {
        {"screenshot", tr("Screenshot"), tr("Saves a picture of the view in the screenshot folder"), "F12",
         true, false, SLOT(onScreenshot())},
        {"nextLevel", tr("Next Level"), tr("Shows the next simplification level"), "Ctrl+L", false, false,
         SLOT(onNextLevel())},
        {"renderingMode", tr("Wire Frame"), tr("Shows the model's facets by their edges"), "Ctrl+W", false,
         true, SLOT(onRenderingMode(bool))},
        {"fullScreen", tr("Full Screen"), tr("Gives the viewer the whole screen"), "F11", true, true,
         SLOT(onFullScreen(bool))},
    };
    for (const auto& row : rows) {
        auto* action = new zelAction(row.name, row.text, m_application->getActionManager());
        action->setStatusTip(row.statusTip);
        action->setShortcut(QKeySequence(row.shortcut));
        action->setCheckable(row.checkable);
        connect(action, row.checkable ? SIGNAL(triggered(bool)) : SIGNAL(triggered()), this, row.slot);
        addAction(action); // So that the shortcut also works while the menu is closed.
        m_controlCenter->registerCCAction(action, "Settings", false, false, row.closesMenu);
        m_actions.push_back(action);
    }
    // A new separator is as wide as the control center at that moment, less a margin.
    m_controlCenter->resize(MenuWidth, m_controlCenter->height());
    m_controlCenter->addCCSeparator("nextLevel", "viewSeparator");
    m_controlCenter->addCCSeparator("Settings", "settingsSeparator");
}

void ViewerWindow::createPages()
{
    m_pages.push_back(createPage<zel::ZelRendererSettingsPanel>(m_application));
    m_pages.push_back(createPage<zel::ZelGeneralSettingsPanel>(m_application));
    m_pages.push_back(createPage<zel::ZelSimplificationSettingsPanel>(m_application));
    m_pages.push_back(createPage<zel::ZelImportSettingsPanel>(m_application));
    m_pages.push_back(std::make_unique<TurntableSettingsPanel>(m_application->scene(), m_application,
                                                               m_application->getSettings()));
    m_pages.push_back(createPage<zel::ZelAboutSettingsPanel>(m_application));
    for (const auto& page : m_pages)
        m_controlCenter->registerSettingsPanel(page.get());
}

void ViewerWindow::onMenuButtonClicked(bool open)
{
    m_controlCenter->openMenu(open);
    // The menu stays open when the user keeps the edits.
    if (!open && m_controlCenter->hasModifications())
        m_menuButton->setChecked(true);
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    if (!m_controlCenter->hasModifications())
        return;
    const QMessageBox::StandardButton answer = kqMessageBox::ShowMessage(
        tr("Settings Modification"), tr("Your settings have not been applied. Close the viewer?"),
        QMessageBox::Ok | QMessageBox::Cancel, this, Qt::WindowFlags(),
        QMap<QMessageBox::StandardButton, QString>(), false);
    event->setAccepted(answer == QMessageBox::Ok);
}

void ViewerWindow::onScreenshot()
{
    const QDir folder(m_application->getScreenshotImageFolder());
    const QString file =
        folder.filePath(QDateTime::currentDateTime().toString("'Torvane' yyyy-MM-dd hh.mm.ss.zzz'.png'"));
    QPixmap picture(m_view->size());
    m_view->render(&picture);
    const bool saved = folder.mkpath(".") && picture.save(file);
    statusBar()->showMessage(saved ? tr("Saved %1").arg(file) : tr("Could not save %1").arg(file));
}

void ViewerWindow::onNextLevel()
{
    ViewerScene& scene = m_application->scene();
    scene.setLevel(scene.level() % ViewerScene::LevelCount + 1);
}

void ViewerWindow::onRenderingMode(bool wireFrame)
{
    m_view->setWireFrame(wireFrame);
}

void ViewerWindow::onFullScreen(bool fullScreen)
{
    if (fullScreen)
        showFullScreen();
    else
        showNormal();
}
