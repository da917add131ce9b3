#include "ZelControlCenter.h"

#include "ui_ControlCenter.h"

#include "ClickOutside.h"
#include "ControlCenterActions.h"
#include "DrawerLayout.h"
#include "EnableButton.h"
#include "MenuColumn.h"
#include "ReturnKey.h"
#include "SettingsPages.h"
#include "StyleSheetPause.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "base/ZelAccessibility.h"
#include "base/ZelQtCompat.h"

#include "platform/kqDMGuiPlugin.h"
#include "platform/kqDMIApplication.h"
#include "platform/kqMessageBox.h"
#include "platform/zelAction.h"

#include <QApplication>
#include <QButtonGroup>
#include <QColor>
#include <QIcon>
#include <QMouseEvent>
#include <QPropertyAnimation>
#include <QScrollBar>
#include <QSettings>
#include <QSignalMapper>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <vector>

// Q_CLEANUP_RESOURCE declares a global function, so it must not be used in a namespace.
static void cleanupResources()
{
    Q_CLEANUP_RESOURCE(ZelControlCenter);
}

namespace zel {

namespace {

const int SlideDuration = 350;   // ms
const int MenuWidth = 250;       // pixels
const int DrawerWidth = 450;     // pixels
const int ExternalIconSize = 40; // pixels

QMessageBox::StandardButton showMessage(const QString& text, QMessageBox::StandardButtons buttons)
{
    return kqMessageBox::ShowMessage(QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                                     text, buttons, nullptr, Qt::WindowFlags(),
                                     QMap<QMessageBox::StandardButton, QString>(), false);
}

/// Applies the style to a widget and its descendants. Some read it only on a change event: QComboBox chooses
/// its kind of list then.
void polishAll(QWidget& tree)
{
    tree.ensurePolished();
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    const std::vector<QPointer<QWidget>> guarded(descendants.begin(), descendants.end());
    for (const QPointer<QWidget>& widget : guarded) {
        QEvent change(QEvent::StyleChange);
        if (widget)
            QCoreApplication::sendEvent(widget, &change);
    }
}

} // namespace

ZelControlCenter::ZelControlCenter(kqDMIApplication* application, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_ui(new Ui::ControlCenter)
    , m_application(application)
    , m_pages(new SettingsPages(this))
    , m_clickOutside(new ClickOutside(application, this))
    , m_pageMapper(new QSignalMapper(this))
    , m_pageGroup(new QButtonGroup(this))
    , m_menuOpen(false)
    , m_settingsOpen(false)
{
    m_ui->setupUi(this);
    setStyleSheet(kqDMIApplication::GetStylesheet("ZelControlCenter"));
    setObjectName("ZelControlCenter");
    m_menu = std::make_unique<MenuColumn>(this, m_ui->verticalLayout);
    m_ui->verticalLayout_4 = m_drawerLayout = new DrawerLayout(m_ui->verticalLayout_4);
    // Keeps its width while the column slides, which clips it.
    m_ui->mainPanel->setMinimumWidth(MenuWidth);

    // The drawer leaves the layout of the form, so that the application can put it into its own.
    m_drawer = m_ui->settingsScrollArea;
    m_ui->horizontalLayout_30->removeWidget(m_drawer);
    m_drawer->setParent(this);
    m_ui->controlCenterButton->setChecked(false);
    m_drawer->hide();

    connect(m_pages, SIGNAL(stateChanged()), this, SLOT(onStateChanged()));
    connect(m_clickOutside, SIGNAL(clicked()), this, SLOT(onClickOutside()));
    connect(m_pageMapper, SIGNAL(mapped(QString)), this, SLOT(onPanelClicked(QString)));
    m_widthAnimation = createSlide("controlCenterWidth", MenuWidth, SLOT(onControlCenterWidthFinished()));
    m_settingsAnimation = createSlide("settingsWidth", DrawerWidth, SLOT(onSettingsWidthFinished()));

    QScrollBar* scrollBar = m_drawer->verticalScrollBar();
    m_scrollAnimation = new QPropertyAnimation(scrollBar, "value", this);
    m_scrollAnimation->setDuration(SlideDuration);
    m_scrollAnimation->setEasingCurve(QEasingCurve::InOutQuad);
    connect(scrollBar, SIGNAL(valueChanged(int)), this, SLOT(onScrollBarValueChanged(int)));
    // Queued: QScrollArea shows or hides the bar only after the range has changed.
    connect(scrollBar, SIGNAL(rangeChanged(int, int)), this, SLOT(onScrollBarRangeChanged()),
            Qt::QueuedConnection);

    // QScrollArea follows only a focus that moves within it.
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));

    new ReturnKey(this);
    new ReturnKey(m_drawer);
    connect(new ControlCenterActions(this, m_drawer, m_ui->applyButton, m_ui->resetButton),
            SIGNAL(helpRequested(QWidget*)), this, SIGNAL(helpRequested(QWidget*)));

    m_pageGroup->setExclusive(true);
    showWriteError(QString());
    openMenu(false);
    createSettingsAction();
}

ZelControlCenter::~ZelControlCenter()
{
    while (!m_pages->all().isEmpty())
        unregisterSettingsPanel(m_pages->all().front(), true);
    if (isSliding())
        m_application->setUpdateEngineEnabled(true);
    delete m_drawer;
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
    slide->setDuration(SlideDuration);
    slide->setStartValue(0);
    slide->setEndValue(openWidth);
    connect(slide, SIGNAL(finished()), this, finishedSlot);
    return slide;
}

void ZelControlCenter::createSettingsAction()
{
    m_settingsAction = std::make_unique<zelAction>(
        "Settings", QCoreApplication::translate("ZelControlCenter", "Settings"), nullptr);
    m_settingsAction->setStatusTip(
        QCoreApplication::translate("ZelControlCenter", "Changes the settings of the application"));
    // It opens the settings inside the menu, so it does not close the menu.
    registerCCAction(m_settingsAction.get(), "", false, false, false);
    connect(m_settingsAction.get(), SIGNAL(triggered()), this, SLOT(openSettings()));
}

void ZelControlCenter::registerSettingsPanel(ZelSettingsPanel* panel)
{
    if (!m_pages->add(panel))
        return;
    if (QPushButton* button = panel->getActionWidget())
        addPageButton(button, panel->getPanelName());
    {
        const StyleSheetPause pause(*panel);
        m_ui->verticalLayout_8->addWidget(panel);
    }
    polishAll(*panel);
    m_ui->applicationFrame->show();
    panel->show();
    panel->initializeWidget();
    onStateChanged();
}

void ZelControlCenter::addPageButton(QPushButton* button, const QString& panelName)
{
    m_ui->verticalLayout_6->addWidget(button);
    m_ui->applicationSettings->show();
    // The Tab key visits the column from top to bottom before the pages.
    if (m_pageGroup->buttons().isEmpty()) {
        setTabOrder(button, m_ui->resetButton);
        setTabOrder(m_ui->resetButton, m_ui->applyButton);
    } else {
        setTabOrder(m_pageGroup->buttons().last(), button);
    }
    m_pageGroup->addButton(button);
    connect(button, SIGNAL(clicked()), m_pageMapper, SLOT(map()));
    m_pageMapper->setMapping(button, panelName);
}

void ZelControlCenter::unregisterSettingsPanel(ZelSettingsPanel* panel, bool reevaluate)
{
    if (m_pages->remove(panel)) {
        if (QPushButton* button = panel->getActionWidget()) {
            m_pageGroup->removeButton(button);
            disconnect(button, SIGNAL(clicked()), m_pageMapper, SLOT(map()));
            m_pageMapper->removeMappings(button);
            button->setParent(nullptr);
        }
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
    return m_drawer;
}

int ZelControlCenter::OpenWidth()
{
    return MenuWidth + DrawerWidth;
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
    return m_drawer && m_drawer->isVisible() ? m_drawer->minimumWidth() : 0;
}

void ZelControlCenter::setSettingsWidth(int width)
{
    if (!m_drawer)
        return;
    m_drawer->setVisible(width >= 1);
    m_drawer->setFixedWidth(width);
    const QScrollBar* scrollBar = m_drawer->verticalScrollBar();
    const int barWidth = scrollBar->isVisible() ? scrollBar->width() : 0;
    m_drawerLayout->setMinimumWidth(DrawerWidth - barWidth);
    m_ui->settingsContent->setFixedWidth(std::max(width - barWidth, 0));
    // An opening drawer has not scrolled yet, so nothing else has checked the button of its page.
    if (m_settingsAnimation->state() == QAbstractAnimation::Running &&
        m_settingsAnimation->direction() == QAbstractAnimation::Forward)
        onScrollBarValueChanged(scrollBar->value());
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
        m_application->setUpdateEngineEnabled(false);
        if (guiPlugin()) {
            // Removed first, so that it is installed only once.
            qApp->removeEventFilter(this);
            qApp->installEventFilter(this);
        }
        m_widthAnimation->setEasingCurve(QEasingCurve::OutQuad);
        m_widthAnimation->setDirection(QAbstractAnimation::Forward);
        m_ui->preferenceFrame->hide();
    } else {
        const bool drawerWasOpen = m_drawer && !m_drawer->isHidden() &&
                                   m_settingsAnimation->direction() == QAbstractAnimation::Forward;
        slideDrawer(false, false);
        const QPointer<ZelControlCenter> self(this);
        const bool discarded = discardModifications();
        if (!self)
            return;
        if (!discarded) {
            m_application->setUpdateEngineEnabled(true);
            if (drawerWasOpen)
                showDrawer(true);
            return;
        }
        m_application->setUpdateEngineEnabled(false);
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
        m_widthAnimation->start();
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
    enableButton(*m_ui->resetButton, m_pages->canReset(), m_pageGroup->checkedButton());
    enableButton(*m_ui->applyButton, m_pages->mark(), m_pageGroup->checkedButton());
    Q_EMIT pagesChanged();
}

void ZelControlCenter::onControlCenterWidthFinished()
{
    m_menuOpen = m_widthAnimation->direction() == QAbstractAnimation::Forward;
    if (!m_menuOpen)
        hide();
    m_application->setUpdateEngineEnabled(true);
}

void ZelControlCenter::onSettingsWidthFinished()
{
    m_application->setUpdateEngineEnabled(true);
    m_settingsOpen = m_settingsAnimation->direction() == QAbstractAnimation::Forward;
    if (!m_settingsOpen)
        closeDrawer();
}

void ZelControlCenter::onScrollBarValueChanged(int value)
{
    if (m_scrollAnimation->state() == QAbstractAnimation::Running)
        return;
    const QPoint belowTop(10, value + 10);
    for (QWidget* widget = m_ui->settingsContent->childAt(belowTop); widget;
         widget = widget->parentWidget()) {
        if (auto* panel = qobject_cast<ZelSettingsPanel*>(widget)) {
            if (QPushButton* button = panel->getActionWidget())
                button->setChecked(true);
            return;
        }
    }
}

void ZelControlCenter::closeMenu()
{
    openMenu(false);
}

void ZelControlCenter::onScrollBarRangeChanged()
{
    if (m_drawer && m_drawer->isVisible() && !isSliding())
        setSettingsWidth(settingsWidth());
}

void ZelControlCenter::onFocusChanged(QWidget* previous, QWidget* current)
{
    if (!m_drawer || !m_drawer->isAncestorOf(current) || m_drawer->isAncestorOf(previous))
        return;
    // Do not scroll the pages while a mouse button is down.
    if (QApplication::mouseButtons() == Qt::NoButton)
        m_drawer->ensureWidgetVisible(current, 0);
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
    if (!m_drawer)
        return;
    const bool wasVisible = m_drawer->isVisible();
    // The closing drawer still shows the page buttons, which the actions must not push down.
    setActionSpace(open);
    m_ui->actionFrame->setVisible(!open);
    m_application->setUpdateEngineEnabled(false);
    if (open) {
        if (!wasVisible && !keepEdits)
            initializePanels();
        m_drawer->show();
    }
    m_settingsAnimation->setEasingCurve(open ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
    m_settingsAnimation->setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (wasVisible != open)
        m_settingsAnimation->start();
    else if (!open)
        closeDrawer(); // It may still be open in a hidden window.
}

void ZelControlCenter::resumeEngineUnlessSliding()
{
    if (!isSliding())
        m_application->setUpdateEngineEnabled(true);
}

void ZelControlCenter::ensureSettingVisible(QWidget* widget)
{
    QScrollBar* scrollBar = m_drawer->verticalScrollBar();
    const int target = widget->y() + widget->parentWidget()->y();
    m_scrollAnimation->stop();
    m_scrollAnimation->setStartValue(scrollBar->value());
    m_scrollAnimation->setEndValue(std::min(target, scrollBar->maximum()));
    m_scrollAnimation->start();
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
    if (m_drawer)
        m_drawer->hide();
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
    m_ui->writeErrorLabel->setVisible(!error.isEmpty());
    if (!error.isEmpty())
        alertAbout(*m_ui->writeErrorLabel);
}

void ZelControlCenter::initializePanels()
{
    QString error;
    ZelSettingsFile::IsWritable(m_application->getSettings().fileName(), error);
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
