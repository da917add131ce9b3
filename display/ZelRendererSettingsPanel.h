#ifndef ZEL_ZELRENDERERSETTINGSPANEL_H
#define ZEL_ZELRENDERERSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <memory>
#include <vector>

namespace Ui {
class ZelRendererSettingsPanel;
}

namespace zel {

/// What the Display page edits. The engine decides which of the other values count.
struct EngineModel
{
    quint64 maxCPUMemory3D = 0;        ///< Bytes, used by the deferred renderer.
    quint64 maxCPUMemoryRaytracer = 0; ///< Bytes.
    quint64 maxGPUMemory = 0;          ///< Bytes, used by the deferred renderer.
    quint64 trianglesCap = 0;          ///< Triangles of one frame.
    int coreNumber = 0;                ///< Processor cores of the raytracer.
    int quality = 0;                   ///< Of the raytracer: index into the kernel's list of names.
    int sceneUnitIndex = 0;            ///< From 0, the kilometre, to 6, the millimetre.
    bool useSoftware = false;          ///< True for the raytracer, false for the deferred renderer.
    bool useSSAO = false;              ///< Shades corners and creases.
    bool useFXAA = false;              ///< Antialiasing.
    bool useED = false;                ///< Edge detection.
};

/// True when both are the same to the engine that they choose: values of the other engine do not count, nor
/// does the scene unit without SSAO.
ZEL_EXPORT bool operator==(const EngineModel& left, const EngineModel& right);

/// The page "Display": the rendering engine, its effects or its quality, and which of the machine's resources
/// it may use. Only what concerns the chosen engine is shown. A new engine needs a restart, and so do the
/// raytracer's quality and cores, unless the application was started with that value; the cap of triangles
/// takes effect with Apply.
class ZEL_EXPORT ZelRendererSettingsPanel : public ZelEditablePanel<EngineModel>
{
    Q_OBJECT

public:
    /// Names the page and fills nothing yet. The arguments are those of ZelSettingsPanel.
    ZelRendererSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                             Qt::WindowFlags flags);
    ~ZelRendererSettingsPanel() override;

    /// Index of the unit of which this many make one metre, within 0.001; the metre's when there is none.
    static int GetSceneUnitComboIndex(float factor);

Q_SIGNALS:
    /// Emitted after each edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// What the user does in the form; connected by the names of its widgets.
    void on_resetButton_clicked();
    void on_maxTrianglesSpinBox_valueChanged(int triangles);
    void on_maxGPUSPinBox_valueChanged(int mebibytes);
    void on_maxCPURaySpinBox_valueChanged(int mebibytes);
    void on_maxCPU3DSpinBox_valueChanged(int mebibytes);
    void on_sceneUnitComboBox_currentIndexChanged(int index);
    void on_deferredEDCheckBox_stateChanged(int state);
    void on_deferredFXAACheckBox_stateChanged(int state);
    void on_deferredSSAOCheckBox_stateChanged(int state);
    void on_coreUsedSlider_valueChanged(int cores);
    void on_qualitySlider_valueChanged(int quality);
    void on_deferredButton_toggled(bool checked);
    void on_raytracerButton_toggled(bool checked);
    /// @}

protected:
    void getCurrentModel(EngineModel& model) const override;
    void applyModel(const EngineModel& model) override;
    void pushToApplication() override;
    bool shouldRestart() const override;
    void notifyStateChanged() override;

private:
    // What the page tells of the engine and its quality, of the deferred renderer's effects, and of the
    // numbers.
    std::vector<Help> choiceHelp() const;
    std::vector<Help> effectHelp() const;
    std::vector<Help> limitHelp() const;

    /// True when the raytracer is chosen with a quality or a number of cores that needs a restart.
    bool hasRaytracerRebootChanged() const;

    /// Shows what concerns the deferred renderer (true) or the raytracer (false).
    void forceGPUMode(bool gpu);
    void setNbCoresTxt(int cores);
    void setRaytracerQuality(int quality);
    void setTriangleCap(quint64 triangles);
    /// The scene unit can be chosen only while SSAO makes use of it.
    void enableSceneUnit();

    const std::unique_ptr<Ui::ZelRendererSettingsPanel> m_ui;

    // The values that the application was started with.
    const int m_startQuality;
    const int m_startCoreNumber;
    const bool m_startGPUMode;
};

} // namespace zel

#endif
