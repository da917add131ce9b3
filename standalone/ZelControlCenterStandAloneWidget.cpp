#include "ZelControlCenterStandAloneWidget.h"

#include "ui_ControlCenterStandAlone.h"

#include "Accessibility.h"
#include "DrawerShadow.h"
#include "FrameResizer.h"
#include "LanguageFollower.h"
#include "ReturnKey.h"
#include "WindowGeometry.h"
#include "WindowShortcuts.h"
#include "ZelAboutSettingsPanel.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelHelpArea.h"
#include "ZelImportSettingsPanel.h"
#include "ZelRendererSettingsPanel.h"
#include "ZelSimplificationSettingsPanel.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqMovableObject.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QSettings>
#include <QStringList>

namespace zel {

namespace {

const int FrameWidth = 1;      // pixels, left and right of the content
const int MinimumHeight = 300; // pixels, for the header and the menu column
const int InnerMargin = 50;    // pixels, above and below the focused widget: as QScrollArea keeps it

template <class Panel>
std::unique_ptr<ZelSettingsPanel> createPanel(kqDMIApplication* application)
{
    return std::make_unique<Panel>(application, application->getSettings(), nullptr, Qt::WindowFlags());
}

QIcon createWindowIcon()
{
    QIcon icon;
    for (const char* size : {"48", "128"})
        icon.addFile(QString(":/window/icons/torvane-settings-%1.png").arg(size));
    return icon;
}

} // namespace

ZelControlCenterStandAloneWidget::ZelControlCenterStandAloneWidget(kqDMIApplication* application,
                                                                   QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_ui(new Ui::ControlCenterStandAlone)
{
    m_ui->setupUi(this);
    announceWindow(*this);
    // Screen readers read the whole name from the label "Tor"; "-" and "vane" stay silent.
    keepSilent(*m_ui->label_3);
    keepSilent(*m_ui->label_4);
    setWindowIcon(createWindowIcon());
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
    new FrameResizer(this);
    new ReturnKey(this);

    m_movable = std::make_unique<kqMovableObject>(this);
    m_movable->setExpandOnDlbClick(true);
    m_movable->setAnchorObject(m_ui->headerFrame, this);

    // In its place at once: Qt styles it again when it moves into another window.
    m_controlCenter = std::make_unique<ZelControlCenter>(application, m_ui->slidesFrame, Qt::WindowFlags());
    m_controlCenter->setGUIHandler(this);
    // The slides neither move nor resize the help beside it.
    m_ui->slidesFrame->setFixedWidth(ZelControlCenter::OpenWidth());
    m_ui->slidesLayout->insertWidget(0, m_controlCenter.get());
    m_ui->slidesLayout->insertWidget(1, m_controlCenter->settingsWidget());
    new DrawerShadow(m_controlCenter->settingsWidget(), m_ui->slidesFrame);

    connect(m_ui->closeButton, SIGNAL(clicked()), this, SLOT(closeWidget()));
    connect(m_ui->maximizeButton, SIGNAL(clicked()), this, SLOT(triggerMaximize()));
    connect(m_ui->minimizeButton, SIGNAL(clicked()), this, SLOT(triggerMinimize()));

    createPages(*application);
    createHelp();
    addWindowShortcuts(*this, *m_controlCenter);
    setTexts(*application);
    new LanguageFollower(this, [this, application] {
        m_ui->retranslateUi(this);
        setTexts(*application);
    });
    m_controlCenter->installEventFilter(this);
    const QString folder = QFileInfo(application->getSettings().fileName()).path();
    m_geometry = new WindowGeometry(
        this, QSize(ZelControlCenter::OpenWidth() + 2 * FrameWidth, MinimumHeight), folder + "/Window.ini");
    m_geometry->restore();
}

ZelControlCenterStandAloneWidget::~ZelControlCenterStandAloneWidget()
{
    for (auto panel = m_panels.rbegin(); panel != m_panels.rend(); ++panel)
        m_controlCenter->unregisterSettingsPanel(panel->get(), true);
    while (!m_panels.empty())
        m_panels.pop_back(); // Deletes the last page first.
}

void ZelControlCenterStandAloneWidget::createPages(kqDMIApplication& application)
{
    m_panels.push_back(createPanel<ZelRendererSettingsPanel>(&application));
    m_panels.push_back(createPanel<ZelGeneralSettingsPanel>(&application));
    m_panels.push_back(createPanel<ZelSimplificationSettingsPanel>(&application));
    m_panels.push_back(createPanel<ZelImportSettingsPanel>(&application));
    m_panels.push_back(createPanel<ZelAboutSettingsPanel>(&application));
    for (const auto& panel : m_panels)
        m_controlCenter->registerSettingsPanel(panel.get());
}

void ZelControlCenterStandAloneWidget::createHelp()
{
    // Not in the form, which would style it twice: without the sheet of the window, and with it.
    auto* helpArea = new ZelHelpArea(m_ui->uiDummyContent);
    helpArea->setObjectName("helpArea");
    helpArea->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_ui->helpLayout->addWidget(helpArea);
    helpArea->follow(*m_controlCenter);
    helpArea->useColumn(m_controlCenter.get(), m_controlCenter->findChild<QWidget*>("preferenceFrame"));
}

void ZelControlCenterStandAloneWidget::setTexts(kqDMIApplication& application)
{
    findChild<QAction*>("close")->setText(m_ui->closeButton->accessibleName());
    nameMaximizeButton();
    // Some writings have no italics: a slanted character is hard to read.
    const bool upright = QStringList({"ja", "zh"}).contains(application.getLanguageCode());
    const QString sheet = upright ? "font-style: normal;" : "";
    for (const auto& panel : m_panels)
        for (QLabel* summary : panel->findChildren<QLabel*>("summaryLabel"))
            if (summary->styleSheet() != sheet)
                summary->setStyleSheet(sheet);
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
    // While the column was hidden, the focus could only go to the buttons of the window.
    if (event->type() == QEvent::Show && !m_ui->contentArea->isAncestorOf(focusWidget()))
        m_panels.front()->getActionWidget()->setFocus();
    return QWidget::eventFilter(watched, event);
}

void ZelControlCenterStandAloneWidget::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayDiscardModifications());
    if (event->isAccepted())
        m_geometry->save();
}

void ZelControlCenterStandAloneWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        nameMaximizeButton();
}

void ZelControlCenterStandAloneWidget::nameMaximizeButton()
{
    const QString what = QCoreApplication::translate(
        "ControlCenterStandAlone", isMaximized() ? QT_TRANSLATE_NOOP("ControlCenterStandAlone", "Restore")
                                                 : QT_TRANSLATE_NOOP("ControlCenterStandAlone", "Maximize"));
    m_ui->maximizeButton->setToolTip(what);
    m_ui->maximizeButton->setAccessibleName(what);
}

void ZelControlCenterStandAloneWidget::onFocusChanged(QWidget*, QWidget* current)
{
    if (!m_ui->contentArea->isAncestorOf(current) || QApplication::mouseButtons() != Qt::NoButton)
        return; // Do not scroll while a mouse button is down.
    // From the inside out, because each area moves what is in it.
    for (QWidget* around = current->parentWidget(); around != this; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(current, 0, area == m_ui->contentArea ? 0 : InnerMargin);
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
    // Under a parent with a style sheet, a box that is not polished ignores its own sheet.
    question.ensurePolished();
    question.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
    return question.exec() == QMessageBox::Ok;
}

} // namespace zel
