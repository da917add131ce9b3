#include "ZelControlCenter.h"

#include "ui_ControlCenter.h"

#include "ClickOutside.h"
#include "ControlCenterActions.h"
#include "ControlCenterSlides.h"
#include "EnableButton.h"
#include "LanguageFollower.h"
#include "MenuColumn.h"
#include "PageButtons.h"
#include "ReturnKey.h"
#include "SettingsDrawer.h"
#include "SettingsPages.h"
#include "TypedField.h"
#include "WriteNotice.h"
#include "ZelPageHelp.h"
#include "ZelSettingsPanel.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqMessageBox.h"

#include <QApplication>
#include <QIcon>
#include <QPointer>
#include <QScrollBar>

// Q_CLEANUP_RESOURCE declares a global function, so it must not be used in a namespace.
static void cleanupResources()
{
    Q_CLEANUP_RESOURCE(ZelControlCenter);
}

namespace zel {

namespace {

const int ExternalIconSize = 40; // pixels

QMessageBox::StandardButton showMessage(const QString& text, QMessageBox::StandardButtons buttons)
{
    return kqMessageBox::ShowMessage(QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                                     text, buttons, nullptr, Qt::WindowFlags(),
                                     QMap<QMessageBox::StandardButton, QString>(), false);
}

Ui::ControlCenter setUp(QWidget* controlCenter)
{
    Ui::ControlCenter form;
    form.setupUi(controlCenter);
    controlCenter->setStyleSheet(kqDMIApplication::GetStylesheet("ZelControlCenter"));
    controlCenter->setObjectName("ZelControlCenter");
    // Keeps its width while the column slides, which clips it and uncovers what has been painted.
    controlCenter->setAttribute(Qt::WA_StaticContents);
    form.mainPanel->setMinimumWidth(MenuColumn::OpenWidth);
    form.controlCenterButton->setChecked(false);
    return form;
}

} // namespace

/// What the control center consists of, and owns, except the application and the opener.
struct ZelControlCenter::Parts
{
    Parts(ZelControlCenter* owner, kqDMIApplication* application)
        : application(*application)
        , form(setUp(owner))
        , pages(*new SettingsPages(owner))
        , menu(owner, form.actionFrame)
        , drawer(*new SettingsDrawer(form.settingsScrollArea, form.verticalLayout_4, form.verticalLayout_8,
                                     owner))
        , buttons(*new PageButtons(form.verticalLayout_6,
                                   QList<QWidget*>() << form.resetButton << form.applyButton, owner))
        , clickOutside(*new ClickOutside(application, owner))
        , actions(*new ControlCenterActions(owner, drawer.area(), form.applyButton, form.resetButton))
        , notice(*new WriteNotice(form.writeErrorLabel))
    {
    }

    kqDMIApplication& application;
    Ui::ControlCenter form;
    SettingsPages& pages;
    MenuColumn menu;
    SettingsDrawer& drawer;
    PageButtons& buttons;
    ControlCenterSlides* slides = nullptr;
    ClickOutside& clickOutside;
    ControlCenterActions& actions;
    WriteNotice& notice;
    QPointer<QPushButton> opener; ///< The application's own button.
};

ZelControlCenter::ZelControlCenter(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_parts(new Parts(this, application))
{
    // They read properties of the control center at once, through m_parts.
    m_parts->slides =
        new ControlCenterSlides(this, m_parts->form, m_parts->menu, m_parts->drawer, *application);
    new ReturnKey(this);
    connect(&m_parts->pages, SIGNAL(stateChanged()), SLOT(onStateChanged()));
    connect(&m_parts->buttons, SIGNAL(chosen(QString)), SLOT(onPanelClicked(QString)));
    connect(m_parts->drawer.area()->verticalScrollBar(), SIGNAL(valueChanged(int)),
            SLOT(onScrollBarValueChanged(int)));
    connect(m_parts->slides, SIGNAL(aboutToOpen()), SLOT(loadPages()));
    connect(&m_parts->clickOutside, SIGNAL(clicked()), SLOT(onClickOutside()));
    connect(&m_parts->actions, SIGNAL(helpRequested(QWidget*)), SIGNAL(helpRequested(QWidget*)));
    connect(&m_parts->actions, SIGNAL(discardRequested()), &m_parts->pages, SLOT(discard()));
    connect(&m_parts->actions, SIGNAL(restoreRequested()), &m_parts->pages, SLOT(restore()));

    onStateChanged();
    openMenu(false);
    new LanguageFollower(this, [this] {
        m_parts->form.retranslateUi(this);
        onStateChanged(); // Names the marks.
    });
}

ZelControlCenter::~ZelControlCenter()
{
    while (!m_parts->pages.all()->isEmpty())
        unregisterSettingsPanel(m_parts->pages.all()->front(), true);
    delete m_parts->drawer.area();
}

void ZelControlCenter::CleanupRessources()
{
    cleanupResources();
}

void ZelControlCenter::registerSettingsPanel(ZelSettingsPanel* panel)
{
    if (!m_parts->pages.add(panel))
        return;
    m_parts->buttons.add(panel);
    m_parts->drawer.addPage(panel);
    if (const auto* help = panel->findChild<ZelPageHelp*>())
        connect(help, SIGNAL(taken()), &m_parts->actions.typedField(), SLOT(remember()));
    panel->initializeWidget();
    onStateChanged();
}

void ZelControlCenter::unregisterSettingsPanel(ZelSettingsPanel* panel, bool reevaluate)
{
    if (m_parts->pages.remove(panel)) {
        m_parts->buttons.remove(panel);
        panel->setParent(nullptr);
    }
    if (reevaluate)
        onStateChanged();
}

bool ZelControlCenter::isMenuOpen() const
{
    return m_parts->slides->isMenuOpen();
}

bool ZelControlCenter::isSettingsOpen() const
{
    return m_parts->slides->isDrawerOpen();
}

bool ZelControlCenter::hasModifications() const
{
    return m_parts->pages.hasModifications();
}

bool ZelControlCenter::applyModifications()
{
    const QPointer<ZelControlCenter> self(this);
    const bool edited = hasModifications();
    bool restart = false;
    QString error;
    const bool written = m_parts->pages.apply(m_parts->application.getSettings(), restart, error);
    if (self && edited)
        m_parts->notice.show(error);
    return written && restart;
}

void ZelControlCenter::setGUIHandler(QWidget* handler)
{
    m_parts->clickOutside.setHandler(handler);
}

void ZelControlCenter::setControlCenterButton(QPushButton* button)
{
    m_parts->opener = button;
}

QScrollArea* ZelControlCenter::settingsWidget() const
{
    return m_parts->drawer.area();
}

int ZelControlCenter::OpenWidth()
{
    return MenuColumn::OpenWidth + SettingsDrawer::OpenWidth;
}

int ZelControlCenter::controlCenterWidth() const
{
    return minimumWidth();
}

void ZelControlCenter::setControlCenterWidth(int width)
{
    m_parts->drawer.makeRoom(*this, width);
    setVisible(width >= 1);
    setFixedWidth(width);
}

int ZelControlCenter::settingsWidth() const
{
    return m_parts->drawer.width();
}

void ZelControlCenter::setSettingsWidth(int width)
{
    const bool wasVisible = m_parts->drawer.isVisible();
    m_parts->drawer.setWidth(width);
    if (!m_parts->drawer.isVisible())
        return;
    if (!m_parts->slides->isDrawerSliding()) {
        m_parts->drawer.showAllPages();
        return;
    }
    const QPointer<ZelControlCenter> self(this);
    if (wasVisible) // The drawer has just appeared otherwise, which is enough work for one frame.
        m_parts->drawer.showNewPages(m_parts->slides->drawerProgress());
    if (!self)
        return;
    // An opening drawer has not scrolled yet, so nothing else has checked the button of its page.
    onScrollBarValueChanged(m_parts->drawer.area()->verticalScrollBar()->value());
}

void ZelControlCenter::registerCCAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific,
                                        bool after, bool closeMenuOnTrigger)
{
    m_parts->menu.addAction(action, anchorName, isWorkflowSpecific, after, closeMenuOnTrigger);
}

void ZelControlCenter::unregisterCCAction(zelAction* action)
{
    m_parts->menu.removeAction(action);
}

bool ZelControlCenter::addCCSeparator(const QString& anchorName, const QString& separatorName)
{
    return m_parts->menu.addSeparator(anchorName, separatorName);
}

bool ZelControlCenter::setCCSeparatorVisible(const QString& separatorName, bool visible)
{
    return m_parts->menu.setSeparatorVisible(separatorName, visible);
}

void ZelControlCenter::setInterfaceColor(const QColor& color, const QString& iconOnFile,
                                         const QString& iconOffFile)
{
    m_parts->menu.setColor(color);
    if (!m_parts->opener)
        return;
    QIcon icon;
    icon.addFile(iconOnFile, QSize(), QIcon::Normal, QIcon::On);
    icon.addFile(iconOffFile, QSize(), QIcon::Normal, QIcon::Off);
    m_parts->opener->setIcon(icon);
    m_parts->opener->setIconSize(QSize(ExternalIconSize, ExternalIconSize));
}

bool ZelControlCenter::eventFilter(QObject* watched, QEvent* event)
{
    return m_parts->clickOutside.eventFilter(watched, event);
}

void ZelControlCenter::onClickOutside()
{
    if (!discardModifications())
        return;
    openSettingsPanel(false);
    openMenu(false);
}

void ZelControlCenter::openMenu(bool open)
{
    ControlCenterSlides& slides = *m_parts->slides;
    if (!open) {
        const bool keepDrawer = slides.isDrawerToBeOpen();
        slides.slideDrawer(false, false);
        const QPointer<ZelControlCenter> self(this);
        const bool discarded = discardModifications();
        if (!self)
            return;
        if (!discarded) {
            slides.resumeEngine();
            if (keepDrawer)
                slides.showDrawer(true);
            return;
        }
    }
    if (m_parts->application.getGuiPlugin()) {
        // Removed first, so that it is installed only once.
        qApp->removeEventFilter(this);
        if (open)
            qApp->installEventFilter(this);
    }
    slides.slideMenu(open, m_parts->opener);
}

void ZelControlCenter::setControlCenterVisible(bool visible)
{
    if (visible)
        m_parts->slides->showDrawer(false);
    else if (m_parts->form.preferenceFrame->isVisible())
        openSettingsPanel(false);
}

void ZelControlCenter::openSettings()
{
    const bool open = !m_parts->form.controlCenterButton->isChecked();
    setControlCenterVisible(open);
    m_parts->form.controlCenterButton->setChecked(open);
}

void ZelControlCenter::on_applyButton_clicked()
{
    const QPointer<ZelControlCenter> self(this);
    if (applyModifications() && self && m_parts->application.getGuiPlugin())
        showMessage(QCoreApplication::translate(
                        "ZelControlCenter",
                        "You need to restart your application to turn settings modification effective."),
                    QMessageBox::Ok);
    if (self)
        onStateChanged();
}

void ZelControlCenter::on_resetButton_clicked()
{
    resetControlCenter();
}

void ZelControlCenter::onPanelClicked(const QString& pPanelName)
{
    if (!isSettingsOpen())
        openSettingsPanel(true);
    m_parts->pages.all().forEach([&](ZelSettingsPanel* panel) {
        if (panel->getPanelName() == pPanelName)
            ensureSettingVisible(panel);
    });
}

void ZelControlCenter::onStateChanged()
{
    const SettingsPages& pages = m_parts->pages;
    QWidget* const successor = m_parts->buttons.checkedButton();
    enableButton(*m_parts->form.resetButton, pages.canReset(), successor);
    const bool pending = PageButtons::mark(pages.all());
    enableButton(*m_parts->form.applyButton, pending, successor);
    m_parts->actions.enable(pending, pages.canRestore());
    Q_EMIT pagesChanged();
}

void ZelControlCenter::onControlCenterWidthFinished()
{
    m_parts->slides->onMenuFinished();
}

void ZelControlCenter::onSettingsWidthFinished()
{
    m_parts->slides->onDrawerFinished();
    m_parts->pages.follow(isSettingsOpen() ? &m_parts->application.getSettings() : nullptr);
}

void ZelControlCenter::onScrollBarValueChanged(int value)
{
    const ZelSettingsPanel* page = m_parts->drawer.pageAt(value);
    if (page && page->getActionWidget())
        page->getActionWidget()->setChecked(true);
}

void ZelControlCenter::closeMenu()
{
    openMenu(false);
}

void ZelControlCenter::openSettingsPanel(bool open)
{
    const QPointer<ZelControlCenter> self(this);
    m_parts->slides->slideDrawer(open, false);
    if (self)
        m_parts->slides->resumeEngineUnlessSliding();
}

void ZelControlCenter::ensureSettingVisible(QWidget* widget)
{
    m_parts->drawer.scrollTo(*widget);
}

void ZelControlCenter::resetControlCenter()
{
    m_parts->pages.reset();
}

void ZelControlCenter::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
}

void ZelControlCenter::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}

void ZelControlCenter::loadPages()
{
    QString error;
    const QPointer<ZelControlCenter> self(this);
    m_parts->pages.load(m_parts->application.getSettings(), error);
    if (!self)
        return;
    m_parts->notice.show(error);
    onStateChanged();
}

bool ZelControlCenter::discardModifications()
{
    if (!hasModifications())
        return true;
    const QString question = QCoreApplication::translate(
        "ZelControlCenter", "You have pending modifications. Continue and discard your changes ?");
    const QPointer<ZelControlCenter> self(this);
    if (m_parts->application.getGuiPlugin() &&
        (showMessage(question, QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok || !self))
        return false;
    loadPages();
    return true;
}

} // namespace zel
