#include "ZelControlCenter.h"

#include "ui_ControlCenter.h"

#include "Accessibility.h"
#include "ClickOutside.h"
#include "ControlCenterActions.h"
#include "EnableButton.h"
#include "LanguageFollower.h"
#include "MenuColumn.h"
#include "PageButtons.h"
#include "ReturnKey.h"
#include "SettingsDrawer.h"
#include "SettingsPages.h"
#include "Slide.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "base/ZelQtCompat.h"

#include "platform/kqDMGuiPlugin.h"
#include "platform/kqDMIApplication.h"
#include "platform/kqMessageBox.h"
#include "platform/zelAction.h"

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QScrollBar>
#include <QSettings>
#include <QTextDocument>
#include <QTimer>

// Q_CLEANUP_RESOURCE declares a global function, so it must not be used in a namespace.
static void cleanupResources()
{
    Q_CLEANUP_RESOURCE(ZelControlCenter);
}

namespace zel {

namespace {

const int MenuWidth = 250;       // pixels
const int ExternalIconSize = 40; // pixels

QMessageBox::StandardButton showMessage(const QString& text, QMessageBox::StandardButtons buttons)
{
    return kqMessageBox::ShowMessage(QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                                     text, buttons, nullptr, Qt::WindowFlags(),
                                     QMap<QMessageBox::StandardButton, QString>(), false);
}

} // namespace

ZelControlCenter::ZelControlCenter(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_ui(new Ui::ControlCenter)
    , m_application(application)
    , m_pages(new SettingsPages(this))
    , m_clickOutside(new ClickOutside(application, this))
    , m_menuOpen(false)
    , m_settingsOpen(false)
    , m_enginePaused(false)
{
    m_ui->setupUi(this);
    setStyleSheet(kqDMIApplication::GetStylesheet("ZelControlCenter"));
    setObjectName("ZelControlCenter");
    m_menu = std::make_unique<MenuColumn>(this, m_ui->verticalLayout);
    // Keeps its width while the column slides, which clips it.
    m_ui->mainPanel->setMinimumWidth(MenuWidth);

    // The drawer leaves the layout of the form, so that the application can put it into its own.
    QScrollArea* drawer = m_ui->settingsScrollArea;
    m_ui->horizontalLayout_30->removeWidget(drawer);
    drawer->setParent(this);
    m_ui->controlCenterButton->setChecked(false);
    drawer->hide();
    m_drawer = new SettingsDrawer(drawer, m_ui->verticalLayout_4, m_ui->verticalLayout_8, this);
    m_pageButtons = new PageButtons(m_ui->verticalLayout_6,
                                    QList<QWidget*>() << m_ui->resetButton << m_ui->applyButton, this);

    connect(m_pages, SIGNAL(stateChanged()), this, SLOT(onStateChanged()));
    connect(m_clickOutside, SIGNAL(clicked()), this, SLOT(onClickOutside()));
    connect(m_pageButtons, SIGNAL(chosen(QString)), this, SLOT(onPanelClicked(QString)));
    m_widthAnimation = createSlide("controlCenterWidth", MenuWidth, SLOT(onControlCenterWidthFinished()));
    m_settingsAnimation =
        createSlide("settingsWidth", SettingsDrawer::OpenWidth, SLOT(onSettingsWidthFinished()));

    QScrollBar* scrollBar = drawer->verticalScrollBar();
    connect(scrollBar, SIGNAL(valueChanged(int)), this, SLOT(onScrollBarValueChanged(int)));
    // Queued: QScrollArea shows or hides the bar only after the range has changed.
    connect(scrollBar, SIGNAL(rangeChanged(int, int)), this, SLOT(onScrollBarRangeChanged()),
            Qt::QueuedConnection);

    new ReturnKey(this);
    auto* actions = new ControlCenterActions(this, drawer, m_ui->applyButton, m_ui->resetButton);
    connect(actions, SIGNAL(helpRequested(QWidget*)), this, SIGNAL(helpRequested(QWidget*)));
    connect(actions, SIGNAL(discardRequested()), this, SLOT(discardEdits()));
    connect(actions, SIGNAL(restoreRequested()), this, SLOT(restoreEdits()));

    showWriteError(QString());
    openMenu(false);
    createSettingsAction();
    setTexts();
    new LanguageFollower(this, [this] {
        m_ui->retranslateUi(this);
        setTexts();
    });
}

ZelControlCenter::~ZelControlCenter()
{
    while (!m_pages->all().isEmpty())
        unregisterSettingsPanel(m_pages->all().front(), true);
    if (m_enginePaused)
        resumeEngine();
    delete m_drawer->area();
    unregisterCCAction(m_settingsAction.get());
}

void ZelControlCenter::CleanupRessources()
{
    cleanupResources();
}

QPropertyAnimation* ZelControlCenter::createSlide(const char* property, int openWidth,
                                                  const char* finishedSlot)
{
    auto* slide = new QPropertyAnimation(this, property, this);
    slide->setDuration(SlideTime);
    slide->setStartValue(0);
    slide->setEndValue(openWidth);
    connect(slide, SIGNAL(finished()), this, finishedSlot);
    return slide;
}

void ZelControlCenter::createSettingsAction()
{
    m_settingsAction = std::make_unique<zelAction>("Settings", QString(), nullptr);
    // It opens the settings inside the menu, so it does not close the menu.
    registerCCAction(m_settingsAction.get(), "", false, false, false);
    connect(m_settingsAction.get(), SIGNAL(triggered()), this, SLOT(openSettings()));
}

void ZelControlCenter::setTexts()
{
    m_settingsAction->setText(QCoreApplication::translate("ZelControlCenter", "Settings"));
    m_settingsAction->setStatusTip(
        QCoreApplication::translate("ZelControlCenter", "Changes the settings of the application"));
    onStateChanged(); // Names the marks.
}

void ZelControlCenter::registerSettingsPanel(ZelSettingsPanel* panel)
{
    if (!m_pages->add(panel))
        return;
    m_pageButtons->add(panel);
    m_drawer->addPage(panel);
    panel->initializeWidget();
    onStateChanged();
}

void ZelControlCenter::unregisterSettingsPanel(ZelSettingsPanel* panel, bool reevaluate)
{
    if (m_pages->remove(panel)) {
        m_pageButtons->remove(panel);
        panel->setParent(nullptr);
    }
    if (reevaluate)
        onStateChanged();
}

bool ZelControlCenter::isMenuOpen() const
{
    return m_menuOpen;
}

bool ZelControlCenter::isSettingsOpen() const
{
    return m_settingsOpen;
}

bool ZelControlCenter::hasModifications() const
{
    return m_pages->hasModifications();
}

bool ZelControlCenter::applyModifications()
{
    const QPointer<ZelControlCenter> self(this);
    const bool edited = hasModifications();
    bool restart = false;
    QString error;
    const bool written = m_pages->apply(m_application->getSettings(), restart, error);
    if (self && edited)
        showWriteError(error);
    return written && restart;
}

void ZelControlCenter::setGUIHandler(QWidget* handler)
{
    m_clickOutside->setHandler(handler);
}

void ZelControlCenter::setControlCenterButton(QPushButton* button)
{
    m_controlCenterButton = button;
}

QScrollArea* ZelControlCenter::settingsWidget() const
{
    return m_drawer->area();
}

int ZelControlCenter::OpenWidth()
{
    return MenuWidth + SettingsDrawer::OpenWidth;
}

int ZelControlCenter::controlCenterWidth() const
{
    return minimumWidth();
}

void ZelControlCenter::setControlCenterWidth(int width)
{
    setVisible(width >= 1);
    setFixedWidth(width);
}

int ZelControlCenter::settingsWidth() const
{
    return m_drawer->width();
}

void ZelControlCenter::setSettingsWidth(int width)
{
    m_drawer->setWidth(width);
    if (!m_drawer->isVisible())
        return;
    if (m_settingsAnimation->state() != QAbstractAnimation::Running) {
        m_drawer->showAllPages();
        return;
    }
    m_drawer->showNextPage();
    // An opening drawer has not scrolled yet, so nothing else has checked the button of its page.
    onScrollBarValueChanged(m_drawer->area()->verticalScrollBar()->value());
}

void ZelControlCenter::registerCCAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific,
                                        bool after, bool closeMenuOnTrigger)
{
    m_menu->addAction(action, anchorName, isWorkflowSpecific, after, closeMenuOnTrigger);
}

void ZelControlCenter::unregisterCCAction(zelAction* action)
{
    m_menu->removeAction(action);
}

bool ZelControlCenter::addCCSeparator(const QString& anchorName, const QString& separatorName)
{
    return m_menu->addSeparator(anchorName, separatorName);
}

bool ZelControlCenter::setCCSeparatorVisible(const QString& separatorName, bool visible)
{
    return m_menu->setSeparatorVisible(separatorName, visible);
}

void ZelControlCenter::setInterfaceColor(const QColor& color, const QString& iconOnFile,
                                         const QString& iconOffFile)
{
    m_ui->actionFrame->setStyleSheet(QString("#actionFrame{ background-color:rgb(%1,%2,%3);}")
                                         .arg(color.red())
                                         .arg(color.green())
                                         .arg(color.blue()));
    if (!m_controlCenterButton)
        return;
    QIcon icon;
    icon.addFile(iconOnFile, QSize(), QIcon::Normal, QIcon::On);
    icon.addFile(iconOffFile, QSize(), QIcon::Normal, QIcon::Off);
    m_controlCenterButton->setIcon(icon);
    m_controlCenterButton->setIconSize(QSize(ExternalIconSize, ExternalIconSize));
}

bool ZelControlCenter::eventFilter(QObject* watched, QEvent* event)
{
    return m_clickOutside->eventFilter(watched, event);
}

void ZelControlCenter::discardEdits()
{
    m_pages->discard();
}

void ZelControlCenter::restoreEdits()
{
    m_pages->restore();
}

void ZelControlCenter::bringNoticeIntoView()
{
    for (QWidget* around = m_ui->writeErrorLabel; around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(m_ui->writeErrorLabel, 0, 0);
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
    const bool wasVisible = isVisible();
    if (open) {
        pauseEngine();
        if (guiPlugin()) {
            // Removed first, so that it is installed only once.
            qApp->removeEventFilter(this);
            qApp->installEventFilter(this);
        }
        m_widthAnimation->setEasingCurve(QEasingCurve::OutQuad);
        m_widthAnimation->setDirection(QAbstractAnimation::Forward);
        m_ui->preferenceFrame->hide();
    } else {
        const bool drawerWasOpen = m_drawer->area() && !m_drawer->area()->isHidden() &&
                                   m_settingsAnimation->direction() == QAbstractAnimation::Forward;
        slideDrawer(false, false);
        const QPointer<ZelControlCenter> self(this);
        const bool discarded = discardModifications();
        if (!self)
            return;
        if (!discarded) {
            resumeEngine();
            if (drawerWasOpen)
                showDrawer(true);
            return;
        }
        pauseEngine();
        if (guiPlugin())
            qApp->removeEventFilter(this);
        m_widthAnimation->setEasingCurve(QEasingCurve::InQuad);
        m_widthAnimation->setDirection(QAbstractAnimation::Backward);
        m_ui->controlCenterButton->setChecked(false);
    }

    if (m_ui->preferenceFrame->isVisible())
        slideDrawer(false, false);
    if (m_controlCenterButton)
        m_controlCenterButton->setChecked(open);
    if (m_widthAnimation->state() == QAbstractAnimation::Running)
        return;
    if (wasVisible == open)
        onControlCenterWidthFinished();
    else
        startSlide(*m_widthAnimation, *this);
}

void ZelControlCenter::setControlCenterVisible(bool visible)
{
    if (visible)
        showDrawer(false);
    else if (m_ui->preferenceFrame->isVisible())
        openSettingsPanel(false);
}

void ZelControlCenter::openSettings()
{
    const bool open = !m_ui->controlCenterButton->isChecked();
    setControlCenterVisible(open);
    m_ui->controlCenterButton->setChecked(open);
}

void ZelControlCenter::on_applyButton_clicked()
{
    const QPointer<ZelControlCenter> self(this);
    if (applyModifications() && self && guiPlugin())
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
    if (!m_settingsOpen)
        openSettingsPanel(true);
    m_pages->forEach([&](ZelSettingsPanel* panel) {
        if (panel->getPanelName() == pPanelName)
            ensureSettingVisible(panel);
    });
}

void ZelControlCenter::onStateChanged()
{
    enableButton(*m_ui->resetButton, m_pages->canReset(), m_pageButtons->checkedButton());
    const bool pending = m_pages->mark();
    enableButton(*m_ui->applyButton, pending, m_pageButtons->checkedButton());
    findChild<QAction*>("discard")->setEnabled(pending);
    findChild<QAction*>("restore")->setEnabled(m_pages->canRestore());
    Q_EMIT pagesChanged();
}

void ZelControlCenter::onControlCenterWidthFinished()
{
    m_menuOpen = m_widthAnimation->direction() == QAbstractAnimation::Forward;
    if (!m_menuOpen)
        hide();
    resumeEngine();
}

void ZelControlCenter::onSettingsWidthFinished()
{
    resumeEngine();
    m_settingsOpen = m_settingsAnimation->direction() == QAbstractAnimation::Forward;
    m_pages->follow(m_settingsOpen ? &m_application->getSettings() : nullptr);
    if (m_settingsOpen)
        m_drawer->showAllPages();
    else
        closeDrawer();
}

void ZelControlCenter::onScrollBarValueChanged(int value)
{
    const ZelSettingsPanel* page = m_drawer->pageAt(value);
    if (page && page->getActionWidget())
        page->getActionWidget()->setChecked(true);
}

void ZelControlCenter::closeMenu()
{
    openMenu(false);
}

void ZelControlCenter::onScrollBarRangeChanged()
{
    if (m_drawer->isVisible() && !isSliding())
        setSettingsWidth(settingsWidth());
}

void ZelControlCenter::openSettingsPanel(bool open)
{
    slideDrawer(open, false);
    resumeEngineUnlessSliding();
}

void ZelControlCenter::showDrawer(bool keepEdits)
{
    m_ui->controlCenterButton->setChecked(true);
    m_ui->preferenceFrame->show();
    slideDrawer(true, keepEdits);
    resumeEngineUnlessSliding();
}

void ZelControlCenter::slideDrawer(bool open, bool keepEdits)
{
    if (!m_drawer->area())
        return;
    const bool wasVisible = m_drawer->isVisible();
    // The closing drawer still shows the page buttons, which the actions must not push down.
    setActionSpace(open);
    m_ui->actionFrame->setVisible(!open);
    pauseEngine();
    if (open) {
        if (!wasVisible && !keepEdits)
            initializePanels();
        m_drawer->showWithoutNewPages();
    }
    m_settingsAnimation->setEasingCurve(open ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
    m_settingsAnimation->setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (wasVisible != open)
        startSlide(*m_settingsAnimation, *this);
    else if (!open)
        closeDrawer(); // It may still be open in a hidden window.
}

void ZelControlCenter::pauseEngine()
{
    if (!isAnimated(*this))
        return;
    m_enginePaused = true;
    m_application->setUpdateEngineEnabled(false);
}

void ZelControlCenter::resumeEngine()
{
    m_enginePaused = false;
    m_application->setUpdateEngineEnabled(true);
}

void ZelControlCenter::resumeEngineUnlessSliding()
{
    if (!isSliding())
        resumeEngine();
}

void ZelControlCenter::ensureSettingVisible(QWidget* widget)
{
    m_drawer->scrollTo(*widget);
}

void ZelControlCenter::resetControlCenter()
{
    m_pages->reset();
}

void ZelControlCenter::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
}

void ZelControlCenter::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}

bool ZelControlCenter::isSliding() const
{
    return m_widthAnimation->state() == QAbstractAnimation::Running ||
           m_settingsAnimation->state() == QAbstractAnimation::Running;
}

void ZelControlCenter::closeDrawer()
{
    m_settingsOpen = false;
    m_ui->preferenceFrame->hide();
    setActionSpace(true);
    if (m_drawer->area())
        m_drawer->area()->hide();
}

void ZelControlCenter::setActionSpace(bool given)
{
    m_ui->actionFrame->setMaximumHeight(given ? QWIDGETSIZE_MAX : 0);
    m_ui->verticalLayout_5->setStretchFactor(m_ui->actionFrame, given ? 1 : 0);
}

kqDMGuiPlugin* ZelControlCenter::guiPlugin() const
{
    return m_application->getGuiPlugin();
}

void ZelControlCenter::showWriteError(const QString& error)
{
    m_ui->writeErrorLabel->setText(error);
    // The column may be too narrow for a long path, which may hold what looks like markup.
    m_ui->writeErrorLabel->setToolTip(error.isEmpty() ? QString() : Qt::convertFromPlainText(error));
    m_ui->writeErrorLabel->setAccessibleDescription(error);
    if (error.isEmpty()) {
        m_ui->writeErrorLabel->hide();
        return;
    }
    showNotice(*m_ui->writeErrorLabel);
    QTimer::singleShot(0, this, SLOT(bringNoticeIntoView())); // When it is laid out.
}

void ZelControlCenter::initializePanels()
{
    QString error;
    QSettings& settings = m_application->getSettings();
    if (ZelSettingsFile::ReadAgain(settings, error)) // Others may have written it.
        ZelSettingsFile::IsWritable(settings.fileName(), error);
    showWriteError(error);
    m_pages->load();
    onStateChanged();
}

bool ZelControlCenter::discardModifications()
{
    if (!hasModifications())
        return true;
    const QString question = QCoreApplication::translate(
        "ZelControlCenter", "You have pending modifications. Continue and discard your changes ?");
    const QPointer<ZelControlCenter> self(this);
    if (guiPlugin() &&
        (showMessage(question, QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok || !self))
        return false;
    initializePanels();
    return true;
}

} // namespace zel
