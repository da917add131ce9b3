#ifndef ZEL_ZELSIMPLIFICATIONSETTINGSPANEL_H
#define ZEL_ZELSIMPLIFICATIONSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <memory>
#include <vector>

namespace Ui {
class ZelSimplificationSettingsPanel;
}

namespace zel {

class zelDoubleSpinBox;

/// What the Simplification page edits.
struct SimplificationModel
{
    /// The kept fraction of triangles, 0.01 to 1, of levels 1 to 5. Any other size is not well formed.
    std::vector<float> ratios;
};

ZEL_EXPORT bool operator==(const SimplificationModel& left, const SimplificationModel& right);

/// The page "Simplification": how many of its triangles, in percent, a scene keeps when it is exported at
/// each of five levels. The first level keeps all; no other should keep more than the one before it.
class ZEL_EXPORT ZelSimplificationSettingsPanel : public ZelEditablePanel<SimplificationModel>
{
    Q_OBJECT

public:
    /// Names the page and fills nothing yet. The arguments are those of ZelSettingsPanel.
    ZelSimplificationSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                                   Qt::WindowFlags flags);
    ~ZelSimplificationSettingsPanel() override;

    /// True also while the stored text is not one of five ratios, in whose place the page shows the defaults.
    bool hasModifications() const override;

Q_SIGNALS:
    /// Emitted after each edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// What the user does in the form; connected by the names of its widgets.
    void on_resetButton_clicked();
    void on_ratio2_editingFinished();
    void on_ratio3_editingFinished();
    void on_ratio4_editingFinished();
    void on_ratio5_editingFinished();
    /// @}

protected:
    void getCurrentModel(SimplificationModel& model) const override;
    void applyModel(const SimplificationModel& model) override;
    void pushToApplication() override;
    void notifyStateChanged() override;

    /// Hands the ratios to the running simplifier.
    void setRatios();

private:
    /// Brings the neighbours of an edited level, but none beyond them, into descending order with it.
    void finishEditing(int level);
    Help levelHelp(int level) const;
    zelDoubleSpinBox* percentage(int level) const { return m_percentages[std::size_t(level - 1)]; }

    const std::unique_ptr<Ui::ZelSimplificationSettingsPanel> m_ui;
    std::vector<zelDoubleSpinBox*> m_percentages; ///< The form's spin boxes, level 1 first.
    bool m_editing;
};

} // namespace zel

#endif
