#include "TurntableSettingsPanel.h"

#include "ui_TurntableSettingsPanel.h"

#include "ViewerScene.h"
#include "ViewerSettings.h"

TurntableSettingsPanel::TurntableSettingsPanel(ViewerScene& scene, kqDMIApplication* application,
                                               QSettings& settings)
    : ZelEditablePanel(application, settings, nullptr, Qt::WindowFlags())
    , m_ui(new Ui::TurntableSettingsPanel)
    , m_scene(scene)
{
    m_ui->setupUi(this);
    // For the fonts and fields of the library's pages.
    setNamedStyleSheet("ZelGeneralSettingsPanel");
    setPanelCategory(ApplicationCategory);
    followLanguage(*m_ui, [this] { describeSettings(); });
}

TurntableSettingsPanel::~TurntableSettingsPanel() = default;

void TurntableSettingsPanel::describeSettings()
{
    setPanelName(tr("Turntable"));
    setRows({
        row(viewerkeys::Turns, &TurntableModel::turns, m_ui->turnsCheckBox, zel::EffectAtOnce,
            tr("Whether the model turns by itself. You can still turn it with the mouse.")),
        row(viewerkeys::TurnSpeed, &TurntableModel::degreesPerSecond, m_ui->speedSpinBox, zel::EffectAtOnce,
            tr("How fast the model turns: at 90 degrees per second, once in four seconds.")),
    });
}

void TurntableSettingsPanel::pushToApplication(const TurntableModel& model)
{
    m_scene.setTurnSpeed(model.turns ? model.degreesPerSecond : 0);
}
