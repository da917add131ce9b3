#ifndef VIEWER_TURNTABLESETTINGSPANEL_H
#define VIEWER_TURNTABLESETTINGSPANEL_H

#include <memory>
#include <zel/ZelEditablePanel.h>

class ViewerScene;

namespace Ui {
class TurntableSettingsPanel;
}

/// The settings of the page "Turntable".
struct TurntableModel
{
    bool turns = false;
    int degreesPerSecond = 0;
};

/// A page of the viewer itself: whether the model turns by itself, and how fast.
class TurntableSettingsPanel : public zel::ZelEditablePanel<TurntableModel>
{
    Q_OBJECT

public:
    /// Passes applied values to the scene at once.
    TurntableSettingsPanel(ViewerScene& scene, kqDMIApplication* application, QSettings& settings);
    ~TurntableSettingsPanel() override;

Q_SIGNALS:
    void stateChanged();

protected Q_SLOTS:
    void on_resetButton_clicked() { resetContent(); }
    void on_turnsCheckBox_toggled(bool) { onEdited(); }
    void on_speedSpinBox_valueChanged(int) { onEdited(); }

protected:
    void pushToApplication(const TurntableModel& model) override;

private:
    /// In the current language.
    void describeSettings();

    const std::unique_ptr<Ui::TurntableSettingsPanel> m_ui;
    ViewerScene& m_scene;
};

#endif
