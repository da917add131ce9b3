#ifndef ZEL_ZELRENDERERSETTINGSPANEL_H
#define ZEL_ZELRENDERERSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <memory>

namespace Ui {
class ZelRendererSettingsPanel;
}

namespace zel {

/// The settings of the page "Display". The values of the engine that is not chosen do not count.
struct EngineModel
{
    quint64 maxCPUMemory3D = 0;        ///< Bytes, used by the deferred renderer.
    quint64 maxCPUMemoryRaytracer = 0; ///< Bytes.
    quint64 maxGPUMemory = 0;          ///< Bytes, used by the deferred renderer.
    quint64 trianglesCap = 0;          ///< Triangles in one frame.
    int coreNumber = 0;                ///< Processor cores of the raytracer.
    int quality = 0;                   ///< Of the raytracer: index in kqDMRenderer::scQualityEnum.
    int sceneUnitIndex = 0;            ///< From 0 (kilometre) to 6 (millimetre).
    bool useSoftware = false;          ///< True for the raytracer, false for the deferred renderer.
    bool useSSAO = false;              ///< Shades corners and creases (screen-space ambient occlusion).
    bool useFXAA = false;              ///< Antialiasing.
    bool useED = false;                ///< Edge detection.
};

/// The page "Display": the rendering engine, its effects or its quality, and its limits of memory, cores and
/// triangles. It shows only the settings of the chosen engine. Another engine needs a restart, and so do
/// another quality or number of cores for the raytracer, unless the application was started with them. The
/// limit of triangles takes effect with Apply.
class ZEL_EXPORT ZelRendererSettingsPanel : public ZelEditablePanel<EngineModel>
{
    Q_OBJECT

public:
    /// Sets the name of the page, but loads nothing. The arguments are those of ZelSettingsPanel.
    ZelRendererSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                             Qt::WindowFlags flags);
    ~ZelRendererSettingsPanel() override;

    /// Index of the unit of which this many make one metre, with a tolerance of 0.001; that of the metre when
    /// there is none.
    static int GetSceneUnitComboIndex(float factor);

Q_SIGNALS:
    /// Emitted after every edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// Connected to the widgets of the form by their names.
    void on_resetButton_clicked() { resetContent(); }
    void on_maxTrianglesSpinBox_valueChanged(int) { onEdited(); }
    void on_maxGPUSPinBox_valueChanged(int) { onEdited(); }
    void on_maxCPURaySpinBox_valueChanged(int) { onEdited(); }
    void on_maxCPU3DSpinBox_valueChanged(int) { onEdited(); }
    void on_sceneUnitComboBox_currentIndexChanged(int) { onEdited(); }
    void on_deferredEDCheckBox_stateChanged(int) { onEdited(); }
    void on_deferredFXAACheckBox_stateChanged(int) { onEdited(); }
    void on_deferredSSAOCheckBox_stateChanged(int) { enableSceneUnit(), onEdited(); }
    void on_coreUsedSlider_valueChanged(int cores) { setNbCoresTxt(cores), onEdited(); }
    void on_qualitySlider_valueChanged(int quality) { setRaytracerQuality(quality), onEdited(); }
    void on_deferredButton_toggled(bool checked) { forceGPUMode(checked), onEdited(); }
    void on_raytracerButton_toggled(bool checked) { forceGPUMode(!checked), onEdited(); }
    /// @}

protected:
    void onFilled(const EngineModel& model) override;
    void pushToApplication(const EngineModel& model) override;
    bool shouldRestart() const override;

private:
    /// Names the page, and gives it its settings with their help, in the current language.
    void describeSettings();
    /// True when the raytracer is chosen and its quality or number of cores needs a restart.
    bool hasRaytracerRebootChanged() const;

    /// Shows the settings of the deferred renderer (true) or of the raytracer (false).
    void forceGPUMode(bool gpu);
    void setNbCoresTxt(int cores);
    void setRaytracerQuality(int quality);
    void setTriangleCap(quint64 triangles);
    /// Enables the scene unit while SSAO, which uses it, is on.
    void enableSceneUnit();

    const std::unique_ptr<Ui::ZelRendererSettingsPanel> m_ui;

    // The values at the start of the application.
    const int m_startQuality;
    const int m_startCoreNumber;
    const bool m_startGPUMode;
};

} // namespace zel

#endif
