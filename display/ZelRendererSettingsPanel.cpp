#include "ZelRendererSettingsPanel.h"

#include "ui_ZelRendererSettingsPanel.h"

#include "Accessibility.h"
#include "SettingsKeys.h"
#include "SettingsNumbers.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMRenderer.h"
#include "platform/zelAction.h"
#include "platform/zelActionManager.h"

#include <QCoreApplication>
#include <QThread>

namespace zel {

namespace {

const int MetreIndex = 3;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ZelRendererSettingsPanel)
};

QString qualityText(int quality)
{
    const QString texts[kqDMRenderer::QualityCount] = {Text::tr("Low"), Text::tr("Medium"), Text::tr("High"),
                                                       Text::tr("Ultra")};
    // A kernel may give an unknown name an index outside its list.
    return texts[qBound(0, quality, kqDMRenderer::QualityCount - 1)];
}

QString coresText(int cores)
{
    return (cores < 2 ? Text::tr("%1 core") : Text::tr("%1 cores")).arg(cores);
}

bool isSoftware(const QString& engine)
{
    return engine == engines::Software;
}

/// The engine, as a flag that is true for the raytracer.
ZelFieldConversion<bool> engineConversion()
{
    return {[](const QVariant& stored) { return isSoftware(stored.toString()); }, isSoftware,
            [](bool software) { return QVariant(software ? engines::Software : engines::Deferred); }};
}

/// The raytracer's quality, as an index in kqDMRenderer::scQualityEnum.
ZelFieldConversion<int> qualityConversion()
{
    return {[](const QVariant& stored) { return kqDMRenderer::GetRaytracerQuality(stored.toString()); },
            kqDMRenderer::GetRaytracerQuality,
            [](int quality) { return QVariant(kqDMRenderer::scQualityEnum[quality]); }};
}

/// The scene unit, as an index; stored as the number of units in one metre.
ZelFieldConversion<int> sceneUnitConversion()
{
    const auto index = ZelRendererSettingsPanel::GetSceneUnitComboIndex;
    return {[index](const QVariant& stored) { return index(stored.toFloat()); },
            [index](const QString& text) { return index(text.toFloat()); },
            [](int unit) {
                const bool known = unit >= 0 && unit < SceneUnitCount;
                return QVariant(numberText(SceneUnitFactors[known ? unit : MetreIndex]));
            }};
}

} // namespace

ZelRendererSettingsPanel::ZelRendererSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                                   QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<EngineModel>(application, settings, parent, flags)
    , m_ui(new Ui::ZelRendererSettingsPanel)
    , m_startQuality(kqDMRenderer::GetRaytracerQuality(settings.value(keys::RaytracerQuality).toString()))
    , m_startCoreNumber(settings.value(keys::CoreNumber).toInt())
    , m_startGPUMode(!isSoftware(settings.value(keys::Engine).toString()))
{
    m_ui->setupUi(this);
    setNamedStyleSheet("ZelRendererSettingsPanel");
    setPanelCategory(ApplicationCategory);

    const int cores = QThread::idealThreadCount();
    if (cores != -1)
        m_ui->coreUsedSlider->setMaximum(cores);
    m_ui->qualitySlider->setMaximum(kqDMRenderer::QualityCount - 1);
    m_ui->extendOptionFrame->hide();
    for (zelSpinBox* memory : {m_ui->maxCPU3DSpinBox, m_ui->maxCPURaySpinBox, m_ui->maxGPUSPinBox})
        memory->setRange(MinimumMebibytes, MaximumMebibytes);
    m_ui->maxTrianglesSpinBox->setRange(MinimumTriangles, MaximumTriangles);
    followLanguage(*m_ui, [this] { describeSettings(); });
}

ZelRendererSettingsPanel::~ZelRendererSettingsPanel() = default;

void ZelRendererSettingsPanel::describeSettings()
{
    setPanelName(Text::tr("Display"));
    const ZelFieldWidgets<bool> engineChoice(m_ui->deferredButton, m_ui->raytracerButton);
    const ZelFieldWidgets<int> qualities(m_ui->qualitySlider, qualityText);
    const ZelFieldWidgets<int> coreCounts(m_ui->coreUsedSlider, coresText);
    const auto software = &EngineModel::useSoftware;
    setRows({
        row(keys::RaytracerQuality, &EngineModel::quality, qualities, EffectAfterRestart,
            Text::tr("How carefully the raytracer computes a picture. A higher quality looks better and "
                     "takes longer."),
            qualityConversion())
            .onlyWhile(software),
        row(keys::Engine, software, engineChoice, EffectAfterRestart,
            Text::tr("Decides what draws your models. The high mode uses the graphics card; the low mode "
                     "uses the processor and runs everywhere. Only the settings of the chosen mode are "
                     "shown."),
            engineConversion())
            .named(Text::tr("Rendering engine")),
        row(keys::CoreNumber, &EngineModel::coreNumber, coreCounts, EffectAfterRestart,
            Text::tr("How many cores of the processor the raytracer may use. More cores make it faster and "
                     "leave less to other programs."))
            .onlyWhile(software),
        row(keys::UseSsao, &EngineModel::useSSAO, m_ui->deferredSSAOCheckBox, EffectAfterRestart,
            Text::tr("Darkens corners and gaps as soft light does, so that shapes are easier to see. It "
                     "takes some time in every picture."))
            .onlyWhile(software, false),
        row(keys::UseFxaa, &EngineModel::useFXAA, m_ui->deferredFXAACheckBox, EffectAfterRestart,
            Text::tr("Smooths the jagged edges of the picture. It takes little time on a current graphics "
                     "card."))
            .onlyWhile(software, false),
        row(keys::UseEdgeDetection, &EngineModel::useED, m_ui->deferredEDCheckBox, EffectAfterRestart,
            Text::tr("Draws lines along the edges of the parts. This helps to tell parts of the same "
                     "colour apart."))
            .onlyWhile(software, false),
        row(keys::SceneUnits, &EngineModel::sceneUnitIndex, m_ui->sceneUnitComboBox, EffectAfterRestart,
            Text::tr("The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong "
                     "unit they are too strong or cannot be seen. It counts only while SSAO is used."),
            sceneUnitConversion())
            .onlyWhile(software, false)
            .onlyWhile(&EngineModel::useSSAO),
        row(keys::MaxCpuMemory3D, &EngineModel::maxCPUMemory3D, inMebibytes(m_ui->maxCPU3DSpinBox),
            EffectAfterRestart,
            Text::tr("How much of the computer's memory the models may take while the graphics card draws "
                     "them. With more of it, more details stay loaded."))
            .onlyWhile(software, false),
        row(keys::MaxCpuMemoryRaytracer, &EngineModel::maxCPUMemoryRaytracer,
            inMebibytes(m_ui->maxCPURaySpinBox), EffectAfterRestart,
            Text::tr("How much of the computer's memory the raytracer may take. With more of it, larger "
                     "models can be drawn."))
            .onlyWhile(software),
        row(keys::MaxGpuMemory, &EngineModel::maxGPUMemory, inMebibytes(m_ui->maxGPUSPinBox),
            EffectAfterRestart,
            Text::tr("How much of the graphics card's memory the models may take. Stay below what the card "
                     "has: other programs need some too."))
            .onlyWhile(software, false),
        row(keys::TrianglesCap, &EngineModel::trianglesCap, m_ui->maxTrianglesSpinBox, EffectAtOnce,
            Text::tr("How many triangles one picture may have at most. With fewer, models move more "
                     "smoothly; with more, they show finer details.")),
    });
}

int ZelRendererSettingsPanel::GetSceneUnitComboIndex(float factor)
{
    const int index = sceneUnitIndex(factor);
    return index < 0 ? MetreIndex : index;
}

void ZelRendererSettingsPanel::onFilled(const EngineModel& model)
{
    setRaytracerQuality(model.quality);
    setNbCoresTxt(model.coreNumber);
    enableSceneUnit();
    forceGPUMode(!model.useSoftware);
}

void ZelRendererSettingsPanel::pushToApplication(const EngineModel& model)
{
    setTriangleCap(model.trianglesCap);
}

bool ZelRendererSettingsPanel::shouldRestart() const
{
    const bool software = m_ui->raytracerButton->isChecked();
    const bool storedSoftware = isSoftware(settings().value(keys::Engine).toString());
    // A change back to the running engine needs no restart.
    if (software != storedSoftware && !software != m_startGPUMode)
        return true;
    return hasRaytracerRebootChanged();
}

bool ZelRendererSettingsPanel::hasRaytracerRebootChanged() const
{
    if (!m_ui->raytracerButton->isChecked())
        return false;
    const EngineModel stored = storedModel(), current = currentModel();
    return (current.coreNumber != stored.coreNumber && current.coreNumber != m_startCoreNumber) ||
           (current.quality != stored.quality && current.quality != m_startQuality);
}

void ZelRendererSettingsPanel::forceGPUMode(bool gpu)
{
    const auto show = [](QWidget* frame, bool shown) {
        if (frame->isHidden() == shown) // Otherwise Qt would lay it out again.
            frame->setVisible(shown);
    };
    for (QWidget* frame : {m_ui->hardwareFrame, m_ui->GPUMemoryFrame, m_ui->GPUMemory})
        show(frame, gpu);
    for (QWidget* frame : {m_ui->softwareFrame, m_ui->CPUMemoryFrame})
        show(frame, !gpu);

    zelActionManager* actions = application() ? application()->getActionManager() : nullptr;
    zelAction* renderingMode = actions ? actions->getActionByName("renderingMode") : nullptr;
    // The mode is one of the running renderer; the engine of the next start does not matter.
    if (renderingMode)
        renderingMode->setEnabled(m_startGPUMode);
}

void ZelRendererSettingsPanel::setNbCoresTxt(int cores)
{
    m_ui->coreUsedLabel->setText(coresText(cores));
    announceValue(*m_ui->coreUsedSlider, coresText(cores));
}

void ZelRendererSettingsPanel::setRaytracerQuality(int quality)
{
    m_ui->qualityLabel->setText(qualityText(quality));
    announceValue(*m_ui->qualitySlider, qualityText(quality));
}

void ZelRendererSettingsPanel::enableSceneUnit()
{
    m_ui->SSAOFrame->setEnabled(m_ui->deferredSSAOCheckBox->isChecked());
}

void ZelRendererSettingsPanel::setTriangleCap(quint64 triangles)
{
    kqDMRenderer* renderer = application() ? application()->getDMRenderer() : nullptr;
    if (renderer)
        renderer->setTargetTriangles(triangles);
}

} // namespace zel
