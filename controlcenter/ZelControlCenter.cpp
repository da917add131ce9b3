#include "ZelControlCenter.h"

#include "ui_ControlCenter.h"

#include "ControlCenterActions.h"
#include "DrawerLayout.h"
#include "EnableButton.h"
#include "FileAccess.h"
#include "ReturnKey.h"
#include "StyleSheetPause.h"
#include "ZelCCActionItem.h"
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
const int ClickGuard = 500;      // ms
const int SeparatorMargin = 18;  // pixels
const int ExternalIconSize = 40; // pixels

QMessageBox::StandardButton showMessage(const QString& text, QMessageBox::StandardButtons buttons)
{
    return kqMessageBox::ShowMessage(QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                                     text, buttons, nullptr, Qt::WindowFlags(),
                                     QMap<QMessageBox::StandardButton, QString>(), false);
}

void logUnregisteredKeys(const ZelSettingsPanel& panel)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    QStringList keys = panel.getSettingsKeys();
    keys.erase(std::remove_if(keys.begin(), keys.end(),
                              [&](const QString& key) { return registered.count(key) > 0; }),
               keys.end());
    if (!keys.isEmpty())
        logWarning(QString("The page \"%1\" has keys without a default or a validator, because they are not "
                           "registered: %2")
                       .arg(panel.getPanelName(), keys.join(", ")));
}

/// Marks the button of a page that has pending edits. Otherwise a transparent icon takes the same space.
void markPending(QPushButton& button, bool pending)
{
    const QString tip = pending ? QCoreApplication::translate("ZelControlCenter",
                                                              "This page has changes that are not applied.")
                                : QCoreApplication::translate("ZelControlCenter", "Shows this page.");
    if (button.toolTip() == tip)
        return;
    button.setIcon(QIcon(pending ? ":/controlCenter/controlCenter/pending.png"
                                 : ":/controlCenter/controlCenter/pendingNone.png"));
    button.setToolTip(tip);
    button.setAccessibleDescription(tip);
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
    , m_pageMapper(new QSignalMapper(this))
    , m_pageGroup(new QButtonGroup(this))
    , m_menuOpen(false)
    , m_settingsOpen(false)
    , m_pressHandled(false)
{
    m_ui->setupUi(this);
    setStyleSheet(kqDMIApplication::GetStylesheet("ZelControlCenter"));
    setObjectName("ZelControlCenter");
    m_ui->verticalLayout->setAlignment(Qt::AlignTop);
    m_ui->verticalLayout_4 = m_drawerLayout = new DrawerLayout(m_ui->verticalLayout_4);
    // Keeps its width while the column slides, which clips it.
    m_ui->mainPanel->setMinimumWidth(MenuWidth);

    // The drawer leaves the layout of the form, so that the application can put it into its own.
    m_drawer = m_ui->settingsScrollArea;
    m_ui->horizontalLayout_30->removeWidget(m_drawer);
    m_drawer->setParent(this);
    m_ui->controlCenterButton->setChecked(false);
    m_drawer->hide();

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
    m_clickTimer.start();
}

ZelControlCenter::~ZelControlCenter()
{
    while (!m_panels.isEmpty())
        unregisterSettingsPanel(m_panels.front(), true);
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
    registerCCAction(m_settingsAction.get(), "", false, false, true);
    connect(m_settingsAction.get(), SIGNAL(triggered()), this, SLOT(openSettings()));
    // This action opens the settings inside the menu, so it must not close the menu.
    disconnect(m_settingsAction.get(), SIGNAL(triggered()), this, SLOT(closeMenu()));
}

void ZelControlCenter::registerSettingsPanel(ZelSettingsPanel* panel)
{
    if (m_panels.contains(panel))
        return;
    m_panels.append(panel);
    logUnregisteredKeys(*panel);
    connect(panel, SIGNAL(stateChanged()), this, SLOT(onStateChanged()));
    connect(panel, SIGNAL(destroyed(QObject*)), this, SLOT(onPanelDestroyed(QObject*)));

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
    disconnect(panel, nullptr, this, nullptr);
    if (m_panels.removeOne(panel)) {
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
    return std::any_of(m_panels.begin(), m_panels.end(),
                       [](const ZelSettingsPanel* panel) { return panel->hasModifications(); });
}

bool ZelControlCenter::applyModifications()
{
    QList<ZelSettingsPanel*> edited;
    for (ZelSettingsPanel* panel : m_panels) {
        if (panel->hasModifications())
            edited << panel;
    }
    bool restart = false;
    const auto apply = [&](QSettings&, QString&) {
        forEachPanel([&](ZelSettingsPanel* panel) {
            // Another program has changed the file. The page must not put its own values back.
            if (!edited.contains(panel) && panel->hasModifications())
                panel->initializeWidget();
            restart = panel->applyModifications() || restart;
        });
        return true;
    };
    QSettings& settings = m_application->getSettings();
    QString error;
    if (edited.isEmpty())
        return apply(settings, error) && restart;
    // One write for all pages, so that the file never has only some of the edits.
    const bool written = ZelSettingsFile::Write(settings, apply, error);
    showWriteError(error);
    return written && restart;
}

void ZelControlCenter::setGUIHandler(QWidget* handler)
{
    m_guiHandler = handler;
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
    auto* item = new ZelCCActionItem(action, this, Qt::WindowFlags());
    item->setIsWorkflowSpecific(isWorkflowSpecific);
    if (closeMenuOnTrigger)
        connect(action, SIGNAL(triggered()), this, SLOT(closeMenu()), Qt::UniqueConnection);
    m_actionItems.append(item);

    const int anchor = anchorIndex(anchorName);
    const bool besideAnchor = !anchorName.isEmpty() && anchor >= 0;
    m_ui->verticalLayout->insertWidget(besideAnchor && after ? anchor + 1 : anchor, item);
    if (!besideAnchor)
        layout()->invalidate();
}

void ZelControlCenter::unregisterCCAction(zelAction* action)
{
    const auto items = m_actionItems;
    for (ZelCCActionItem* item : items) {
        if (item->getZelAction() != action)
            continue;
        disconnect(action, SIGNAL(triggered()), this, SLOT(closeMenu()));
        m_actionItems.removeOne(item);
        delete item;
    }
}

bool ZelControlCenter::addCCSeparator(const QString& anchorName, const QString& separatorName)
{
    if (m_separators.contains(separatorName))
        return false;
    auto* separator = new QFrame(this);
    separator->setStyleSheet("background:rgb(0,0,0,30);");
    separator->setFixedHeight(1);
    separator->setFixedWidth(std::max(width() - SeparatorMargin, 0));
    m_separators.insert(separatorName, separator);
    m_ui->verticalLayout->insertWidget(anchorIndex(anchorName), separator);
    return true;
}

bool ZelControlCenter::setCCSeparatorVisible(const QString& separatorName, bool visible)
{
    QFrame* separator = m_separators.value(separatorName);
    if (!separator)
        return false;
    separator->setVisible(visible);
    return true;
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
    if (event->type() == QEvent::Resize)
        m_clickTimer.restart();
    // A press in a modal dialog answers it and is not a click outside. Qt delivers a press to the native
    // window first, and then to the widget.
    if (event->type() != QEvent::MouseButtonPress || m_pressHandled || QApplication::activeModalWidget() ||
        isNativeWindow(watched))
        return false;
    if (m_clickTimer.elapsed() < ClickGuard)
        return false;
    m_clickTimer.restart();
    const QPoint position = static_cast<QMouseEvent*>(event)->globalPos();
    if (!isClickOutside(watched, position))
        return false;
    if (discardModifications()) {
        openSettingsPanel(false);
        openMenu(false);
    }
    // Qt delivers a press that no widget accepts to one parent after the other.
    m_pressHandled = true;
    QTimer::singleShot(0, this, SLOT(onPressDelivered()));
    return false;
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
        if (!discardModifications()) {
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
    if (applyModifications() && guiPlugin())
        showMessage(QCoreApplication::translate(
                        "ZelControlCenter",
                        "You need to restart your application to turn settings modification effective."),
                    QMessageBox::Ok);
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
    forEachPanel([&](ZelSettingsPanel* panel) {
        if (panel->getPanelName() == pPanelName)
            ensureSettingVisible(panel);
    });
}

void ZelControlCenter::onStateChanged()
{
    enableButton(*m_ui->resetButton,
                 std::any_of(m_panels.begin(), m_panels.end(),
                             [](const ZelSettingsPanel* panel) { return panel->canResetContent(); }),
                 m_pageGroup->checkedButton());
    bool modified = false;
    for (ZelSettingsPanel* panel : m_panels) {
        const bool pending = panel->hasModifications();
        if (QPushButton* button = panel->getActionWidget())
            markPending(*button, pending);
        modified = modified || pending;
    }
    enableButton(*m_ui->applyButton, modified, m_pageGroup->checkedButton());
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

void ZelControlCenter::onPanelDestroyed(QObject* panel)
{
    // A page that is being destroyed is only a QObject: compare its address.
    m_panels.erase(std::remove(m_panels.begin(), m_panels.end(), panel), m_panels.end());
    onStateChanged();
}

void ZelControlCenter::onFocusChanged(QWidget* previous, QWidget* current)
{
    if (!m_drawer || !m_drawer->isAncestorOf(current) || m_drawer->isAncestorOf(previous))
        return;
    // Do not scroll the pages while a mouse button is down.
    if (QApplication::mouseButtons() == Qt::NoButton)
        m_drawer->ensureWidgetVisible(current, 0);
}

void ZelControlCenter::onPressDelivered()
{
    m_pressHandled = false;
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
    forEachPanel([](ZelSettingsPanel* panel) { panel->resetContent(); });
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

void ZelControlCenter::forEachPanel(const std::function<void(ZelSettingsPanel*)>& action) const
{
    const QList<ZelSettingsPanel*> panels = m_panels;
    for (ZelSettingsPanel* panel : panels)
        if (m_panels.contains(panel))
            action(panel);
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
    forEachPanel([](ZelSettingsPanel* panel) { panel->initializeWidget(); });
    onStateChanged();
}

bool ZelControlCenter::discardModifications()
{
    if (!hasModifications())
        return true;
    const QString question = QCoreApplication::translate(
        "ZelControlCenter", "You have pending modifications. Continue and discard your changes ?");
    if (guiPlugin() && showMessage(question, QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok)
        return false;
    initializePanels();
    return true;
}

bool ZelControlCenter::isClickOutside(QObject* watched, const QPoint& globalPosition) const
{
    const QWidget* view = guiPlugin() ? guiPlugin()->getMainViewWidget() : nullptr;
    if (!view || !QRect(view->mapToGlobal(QPoint(0, 0)), view->size()).contains(globalPosition))
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    return !m_guiHandler || !widget || m_guiHandler->isAncestorOf(widget);
}

int ZelControlCenter::anchorIndex(const QString& anchorName) const
{
    if (anchorName.isEmpty())
        return 0;
    for (int index = 0; index < m_ui->verticalLayout->count(); ++index) {
        const auto* item = qobject_cast<ZelCCActionItem*>(m_ui->verticalLayout->itemAt(index)->widget());
        if (item && item->getZelAction() && item->getZelAction()->getActionName() == anchorName)
            return index;
    }
    return -1;
}

} // namespace zel
