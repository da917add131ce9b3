#include "ZelControlCenterStandAloneWidget.h"

#include "ui_ControlCenterStandAlone.h"

#include "ZelAboutSettingsPanel.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelImportSettingsPanel.h"
#include "ZelRendererSettingsPanel.h"
#include "ZelSimplificationSettingsPanel.h"
#include "base/ZelAccessibility.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqMovableObject.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMessageBox>

namespace zel {

namespace {

template <class Panel>
std::unique_ptr<ZelSettingsPanel> createPanel(kqDMIApplication* application)
{
    return std::make_unique<Panel>(application, application->getSettings(), nullptr, Qt::WindowFlags());
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
    connect(m_controlCenter.get(), SIGNAL(evaluated()), m_ui->helpArea, SLOT(refresh()));
}

ZelControlCenterStandAloneWidget::~ZelControlCenterStandAloneWidget()
{
    for (auto panel = m_panels.rbegin(); panel != m_panels.rend(); ++panel)
        m_controlCenter->unregisterSettingsPanel(panel->get(), true);
    while (!m_panels.empty())
        m_panels.pop_back(); // The last one first, as they were unregistered.
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

void ZelControlCenterStandAloneWidget::closeEvent(QCloseEvent* event)
{
    if (!m_controlCenter->hasModifications()) {
        event->accept();
        return;
    }
    QMessageBox question(QMessageBox::Warning,
                         QCoreApplication::translate("ZelControlCenter", "Settings Modification"),
                         QCoreApplication::translate(
                             "ZelControlCenter",
                             "Your current changes will be discarded.\nContinue and close the application ?"),
                         QMessageBox::Ok | QMessageBox::Cancel, this);
    // Before it is polished, a box that has a parent with a sheet does not heed its own.
    question.ensurePolished();
    question.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
    event->setAccepted(question.exec() == QMessageBox::Ok);
}

} // namespace zel
