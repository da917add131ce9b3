#include "TurntableSettingsPanel.h"

#include "ui_TurntableSettingsPanel.h"

#include "ViewerScene.h"
#include "ViewerSettings.h"

#include <zel/SignalBlock.h>

bool TurntableModel::operator==(const TurntableModel& other) const
{
    return turns == other.turns && degreesPerSecond == other.degreesPerSecond;
}

TurntableSettingsPanel::TurntableSettingsPanel(ViewerScene& scene, kqDMIApplication* application,
                                               QSettings& settings)
    : ZelEditablePanel(
          application, settings, nullptr, Qt::WindowFlags(),
          {
              {viewerkeys::Turns, &TurntableModel::turns, zel::flagConversion()},
              {viewerkeys::TurnSpeed, &TurntableModel::degreesPerSecond, zel::integerConversion()},
          })
    , m_ui(new Ui::TurntableSettingsPanel)
    , m_scene(scene)
{
    m_ui->setupUi(this);
    // For the fonts and fields of the library's pages.
    setNamedStyleSheet("ZelGeneralSettingsPanel");
    setPanelName(tr("Turntable"));
    setPanelCategory(ApplicationCategory);
    describe("TurntableSettingsPanel",
             {{{m_ui->turnsCheckBox},
               nullptr,
               QT_TR_NOOP("Whether the model turns by itself. You can still turn it with the mouse."),
               zel::ZelPageHelp::flagRange(),
               zel::EffectAtOnce,
               {viewerkeys::Turns},
               [](const TurntableModel& model) { return zel::ZelPageHelp::flagText(model.turns); }},
              {{m_ui->speedSpinBox},
               nullptr,
               QT_TR_NOOP("How fast the model turns: at 90 degrees per second, once in four seconds."),
               zel::ZelPageHelp::rangeText(m_ui->speedSpinBox),
               zel::EffectAtOnce,
               {viewerkeys::TurnSpeed},
               [this](const TurntableModel& model) {
                   return m_ui->speedSpinBox->shownText(model.degreesPerSecond);
               }}});
}

TurntableSettingsPanel::~TurntableSettingsPanel() = default;

void TurntableSettingsPanel::on_resetButton_clicked()
{
    resetContent();
}

void TurntableSettingsPanel::on_turnsCheckBox_toggled(bool)
{
    onEdited();
}

void TurntableSettingsPanel::on_speedSpinBox_valueChanged(int)
{
    onEdited();
}

void TurntableSettingsPanel::getCurrentModel(TurntableModel& model) const
{
    model.turns = m_ui->turnsCheckBox->isChecked();
    model.degreesPerSecond = m_ui->speedSpinBox->value();
}

void TurntableSettingsPanel::applyModel(const TurntableModel& model)
{
    // The widgets must not emit edits here.
    const zel::SignalBlock block{m_ui->turnsCheckBox, m_ui->speedSpinBox};
    m_ui->turnsCheckBox->setChecked(model.turns);
    m_ui->speedSpinBox->setValue(model.degreesPerSecond);
}

void TurntableSettingsPanel::pushToApplication()
{
    m_scene.setTurnSpeed(m_ui->turnsCheckBox->isChecked() ? m_ui->speedSpinBox->value() : 0);
}

void TurntableSettingsPanel::notifyStateChanged()
{
    Q_EMIT stateChanged();
}
