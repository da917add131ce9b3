#include "ZelControlCenterStandAloneWidget.h"

#include "ui_ControlCenterStandAlone.h"

#include "FrameResizer.h"
#include "ReturnKey.h"
#include "WindowPlace.h"
#include "ZelAboutSettingsPanel.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelImportSettingsPanel.h"
#include "ZelRendererSettingsPanel.h"
#include "ZelSimplificationSettingsPanel.h"
#include "base/ZelAccessibility.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqMovableObject.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QIcon>
#include <QKeySequence>
#include <QMessageBox>
#include <QScrollArea>
#include <QSettings>

namespace zel {

namespace {

const int FrameWidth = 1;    // pixels, left and right of the content
const int LeastHeight = 300; // pixels: the header and what the menu column needs

template <class Panel>
std::unique_ptr<ZelSettingsPanel> createPanel(kqDMIApplication* application)
{
    return std::make_unique<Panel>(application, application->getSettings(), nullptr, Qt::WindowFlags());
}

QIcon windowImage()
{
    QIcon icon;
    for (const char* size : {"48", "128"})
        icon.addFile(QString(":/window/icons/torvane-settings-%1.png").arg(size));
    return icon;
}

/// Alt and the first letter of a button's text that is not taken yet, or else of a name in Latin letters.
QKeySequence altKey(const QPushButton& button, const char* name, QString& taken)
{
    for (const QChar& character : (button.text() + name).toUpper()) {
        if (character < 'A' || character > 'Z' || taken.contains(character))
            continue;
        taken += character;
        return QKeySequence(QString("Alt+%1").arg(character));
    }
    return QKeySequence();
}

} // namespace

ZelControlCenterStandAloneWidget::ZelControlCenterStandAloneWidget(kqDMIApplication* application,
                                                                   QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_ui(new Ui::ControlCenterStandAlone)
{
    m_ui->setupUi(this);
    // The product's name is read as one word, by the first of its two labels.
    leaveUnannounced(*m_ui->label_3);
    leaveUnannounced(*m_ui->label_4);
    setWindowIcon(windowImage());
    wrapContent();
    new FrameResizer(this);
    new ReturnKey(this);

    m_movable = std::make_unique<kqMovableObject>(this);
    m_movable->setExpandOnDlbClick(true);
    m_movable->setAnchorObject(m_ui->headerFrame, this);

    m_controlCenter = std::make_unique<ZelControlCenter>(application, nullptr, Qt::WindowFlags());
    m_controlCenter->setGUIHandler(this);
    m_ui->contentLayout->insertWidget(0, m_controlCenter.get());
    m_ui->contentLayout->insertWidget(1, m_controlCenter->settingsWidget());

    connect(m_ui->closeButton, SIGNAL(clicked()), this, SLOT(closeWidget()));
    connect(m_ui->maximizeButton, SIGNAL(clicked()), this, SLOT(triggerMaximize()));
    connect(m_ui->minimizeButton, SIGNAL(clicked()), this, SLOT(triggerMinimize()));

    m_panels.push_back(createPanel<ZelRendererSettingsPanel>(application));
    m_panels.push_back(createPanel<ZelGeneralSettingsPanel>(application));
    m_panels.push_back(createPanel<ZelSimplificationSettingsPanel>(application));
    m_panels.push_back(createPanel<ZelImportSettingsPanel>(application));
    m_panels.push_back(createPanel<ZelAboutSettingsPanel>(application));
    for (const auto& panel : m_panels)
        m_controlCenter->registerSettingsPanel(panel.get());
    m_ui->helpArea->follow(m_controlCenter->settingsWidget());
    connect(m_controlCenter.get(), SIGNAL(pagesChanged()), m_ui->helpArea, SLOT(refresh()));

    createActions();
    orderFocus();
    const QString folder = QFileInfo(application->getSettings().fileName()).path();
    m_place = new WindowPlace(this, QSize(ZelControlCenter::OpenWidth() + 2 * FrameWidth, LeastHeight),
                              folder + "/Window.ini");
    m_place->restore();
}

ZelControlCenterStandAloneWidget::~ZelControlCenterStandAloneWidget()
{
    for (auto panel = m_panels.rbegin(); panel != m_panels.rend(); ++panel)
        m_controlCenter->unregisterSettingsPanel(panel->get(), true);
    while (!m_panels.empty())
        m_panels.pop_back(); // The last one first, as they were unregistered.
}

void ZelControlCenterStandAloneWidget::wrapContent()
{
    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_scrollArea->setWidgetResizable(true);
    m_ui->verticalLayout->removeWidget(m_ui->controlCenterContentFrame);
    m_scrollArea->setWidget(m_ui->controlCenterContentFrame);
    m_ui->verticalLayout->addWidget(m_scrollArea);
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

void ZelControlCenterStandAloneWidget::createActions()
{
    // Here nothing else has shortcuts, so that they need not wait for the focus.
    for (QAction* action : m_controlCenter->actions()) {
        action->setShortcutContext(Qt::WindowShortcut);
        addAction(action);
    }
    m_controlCenter->findChild<QAction*>("apply")->setShortcut(QKeySequence("Ctrl+S"));
    m_controlCenter->findChild<QAction*>("help")->setShortcut(QKeySequence("F1"));
    connect(m_controlCenter.get(), SIGNAL(helpRequested(QWidget*)), m_ui->helpArea,
            SLOT(showHelpOfFocusedField()));

    QString taken;
    for (const char* name : {"apply", "reset"}) {
        auto* button = m_controlCenter->findChild<QPushButton*>(QString(name) + "Button");
        button->setShortcut(altKey(*button, name, taken));
    }

    auto* close = new QAction(m_ui->closeButton->accessibleName(), this);
    close->setObjectName("close");
    close->setShortcuts(QList<QKeySequence>() << QKeySequence("Ctrl+Q") << QKeySequence("Ctrl+W"));
    connect(close, SIGNAL(triggered()), this, SLOT(closeWidget()));
    addAction(close);
}

void ZelControlCenterStandAloneWidget::orderFocus()
{
    m_controlCenter->installEventFilter(this);
    // The window's own buttons come after all that they are about.
    QWidget* last = previousInFocusChain();
    for (QWidget* button : {m_ui->minimizeButton, m_ui->maximizeButton, m_ui->closeButton}) {
        setTabOrder(last, button);
        last = button;
    }
}

void ZelControlCenterStandAloneWidget::triggerMinimize()
{
    showMinimized();
}

void ZelControlCenterStandAloneWidget::triggerMaximize()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void ZelControlCenterStandAloneWidget::closeWidget()
{
    close();
}

void ZelControlCenterStandAloneWidget::openMenu()
{
    m_controlCenter->openMenu(true);
    m_controlCenter->setControlCenterVisible(true);
}

void ZelControlCenterStandAloneWidget::parseMessage(const QString&)
{
}

bool ZelControlCenterStandAloneWidget::eventFilter(QObject* watched, QEvent* event)
{
    // The window may be active before the column slides in: the focus then went to what could be seen.
    if (event->type() == QEvent::Show && !m_scrollArea->isAncestorOf(focusWidget()))
        m_panels.front()->getActionWidget()->setFocus();
    return QWidget::eventFilter(watched, event);
}

void ZelControlCenterStandAloneWidget::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayDiscardModifications());
    if (event->isAccepted())
        m_place->store();
}

void ZelControlCenterStandAloneWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    const QString what = QCoreApplication::translate(
        "ControlCenterStandAlone", isMaximized() ? QT_TRANSLATE_NOOP("ControlCenterStandAlone", "Restore")
                                                 : QT_TRANSLATE_NOOP("ControlCenterStandAlone", "Maximize"));
    m_ui->maximizeButton->setToolTip(what);
    m_ui->maximizeButton->setAccessibleName(what);
}

void ZelControlCenterStandAloneWidget::onFocusChanged(QWidget*, QWidget* current)
{
    // Nothing must move under a mouse button that is held down.
    if (m_scrollArea->isAncestorOf(current) && QApplication::mouseButtons() == Qt::NoButton)
        m_scrollArea->ensureWidgetVisible(current, 0, 0);
}

bool ZelControlCenterStandAloneWidget::mayDiscardModifications()
{
    if (!m_controlCenter->hasModifications())
        return true;
    QMessageBox question(QMessageBox::Warning,
                         QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                         QCoreApplication::translate(
                             "ZelControlCenter",
                             "Your current changes will be discarded.\nContinue and close the application ?"),
                         QMessageBox::Ok | QMessageBox::Cancel, this);
    question.setDefaultButton(QMessageBox::Cancel);
    // Before it is polished, a box that has a parent with a sheet ignores its own.
    question.ensurePolished();
    question.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
    return question.exec() == QMessageBox::Ok;
}

} // namespace zel
