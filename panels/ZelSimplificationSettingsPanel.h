#ifndef ZEL_ZELSIMPLIFICATIONSETTINGSPANEL_H
#define ZEL_ZELSIMPLIFICATIONSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <limits>
#include <memory>
#include <vector>

namespace Ui {
class ZelSimplificationSettingsPanel;
}

namespace zel {

class zelDoubleSpinBox;

/// The settings of the page "Simplification".
struct SimplificationModel
{
    /// The kept fractions of triangles, each from 0.01 to 1, of levels 1 to 5. NaN where a level has none.
    std::vector<float> ratios = std::vector<float>(5, std::numeric_limits<float>::quiet_NaN());
};

/// The page "Simplification": the percentage of triangles that a scene keeps when it is exported at each of
/// five levels. The first level keeps all; each of the others keeps at most as many as the one before.
class ZEL_EXPORT ZelSimplificationSettingsPanel : public ZelEditablePanel<SimplificationModel>
{
    Q_OBJECT

public:
    /// Sets the name of the page, but loads nothing. The arguments are those of ZelSettingsPanel.
    ZelSimplificationSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                                   Qt::WindowFlags flags);
    ~ZelSimplificationSettingsPanel() override;

    /// Also true while the stored text does not have five ratios; the page then shows the defaults.
    bool hasModifications() const override;

    /// Begins with such a text.
    std::vector<ZelPendingEdit> pendingEdits() override;

Q_SIGNALS:
    /// Emitted after every edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// Connected to the widgets of the form by their names.
    void on_resetButton_clicked() { resetContent(); }
    void on_ratio2_editingFinished() { finishEditing(2); }
    void on_ratio3_editingFinished() { finishEditing(3); }
    void on_ratio4_editingFinished() { finishEditing(4); }
    void on_ratio5_editingFinished() { finishEditing(5); }
    /// @}

protected:
    void pushToApplication(const SimplificationModel& model) override;

    /// Passes the ratios to the running simplifier.
    void setRatios() { pushToApplication(currentModel()); }
    /// Writes the ratios.
    void saveRatios() { saveSettingsInternal(); }

private:
    /// Names the page, and gives it its settings with their help, in the current language.
    void describeSettings();
    /// Brings a level with a new value and its two neighbours into descending order; other levels stay as
    /// they are.
    void finishEditing(int level);
    Row levelRow(int level);
    zelDoubleSpinBox* percentage(int level) const;

    const std::unique_ptr<Ui::ZelSimplificationSettingsPanel> m_ui;
    bool m_editing;
};

} // namespace zel

#endif
