#include "ZelRendererSettingsPanel.h"

#include "ui_ZelRendererSettingsPanel.h"

#include "SettingsKeys.h"
#include "SettingsNumbers.h"
#include "SignalBlock.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMRenderer.h"
#include "platform/zelAction.h"
#include "platform/zelActionManager.h"

#include <QCoreApplication>
#include <QThread>

#include <limits>
#include <tuple>

namespace zel {

namespace {

const int BytesToMebibytes = 20; // bits to shift
const int MetreIndex = 3;

const char* const QualityTexts[kqDMRenderer::QualityCount] = {
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Low"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Medium"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "High"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Ultra"),
};

QString qualityText(int quality)
{
    // A kernel may give an unknown name an index outside its list.
    const int shown = qBound(0, quality, kqDMRenderer::QualityCount - 1);
    return QCoreApplication::translate("ZelRendererSettingsPanel", QualityTexts[shown]);
}

QString coresText(int cores)
{
    const QString text = cores < 2 ? QCoreApplication::translate("ZelRendererSettingsPanel", "%1 core")
                                   : QCoreApplication::translate("ZelRendererSettingsPanel", "%1 cores");
    return text.arg(cores);
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

ZelEditablePanel<EngineModel>::Fields engineFields()
{
    return {
        {keys::RaytracerQuality, &EngineModel::quality, qualityConversion()},
        {keys::Engine, &EngineModel::useSoftware, engineConversion()},
        {keys::CoreNumber, &EngineModel::coreNumber, integerConversion()},
        {keys::UseSsao, &EngineModel::useSSAO, flagConversion()},
        {keys::UseFxaa, &EngineModel::useFXAA, flagConversion()},
        {keys::UseEdgeDetection, &EngineModel::useED, flagConversion()},
        {keys::SceneUnits, &EngineModel::sceneUnitIndex, sceneUnitConversion()},
        {keys::MaxCpuMemory3D, &EngineModel::maxCPUMemory3D, unsignedConversion()},
        {keys::MaxCpuMemoryRaytracer, &EngineModel::maxCPUMemoryRaytracer, unsignedConversion()},
        {keys::MaxGpuMemory, &EngineModel::maxGPUMemory, unsignedConversion()},
        {keys::TrianglesCap, &EngineModel::trianglesCap, unsignedConversion()},
    };
}

quint64 shownNumber(const QSpinBox* box)
{
    return static_cast<quint64>(box->value());
}

void showNumber(QSpinBox* box, quint64 number)
{
    // qMin before the conversion, because a number that exceeds an int would wrap.
    box->setValue(static_cast<int>(qMin<quint64>(number, std::numeric_limits<int>::max())));
}

auto raytracerOptions(const EngineModel& model)
{
    return std::tie(model.maxCPUMemoryRaytracer, model.coreNumber, model.quality);
}

auto deferredOptions(const EngineModel& model)
{
    return std::tie(model.useSSAO, model.useFXAA, model.useED, model.maxCPUMemory3D, model.maxGPUMemory);
}

} // namespace

bool operator==(const EngineModel& left, const EngineModel& right)
{
    if (left.useSoftware != right.useSoftware || left.trianglesCap != right.trianglesCap)
        return false;
    if (left.useSoftware)
        return raytracerOptions(left) == raytracerOptions(right);
    return deferredOptions(left) == deferredOptions(right) &&
           (!left.useSSAO || left.sceneUnitIndex == right.sceneUnitIndex);
}

ZelRendererSettingsPanel::ZelRendererSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                                   QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<EngineModel>(application, settings, parent, flags, engineFields())
    , m_ui(new Ui::ZelRendererSettingsPanel)
    , m_startQuality(kqDMRenderer::GetRaytracerQuality(settings.value(keys::RaytracerQuality).toString()))
    , m_startCoreNumber(settings.value(keys::CoreNumber).toInt())
    , m_startGPUMode(!isSoftware(settings.value(keys::Engine).toString()))
{
    m_ui->setupUi(this);
    setNamedStyleSheet("ZelRendererSettingsPanel");
    setPanelName(QCoreApplication::translate("ZelRendererSettingsPanel", "Display"));
    setPanelCategory(ApplicationCategory);

    const int cores = QThread::idealThreadCount();
    if (cores != -1)
        m_ui->coreUsedSlider->setMaximum(cores);
    m_ui->qualitySlider->setMaximum(kqDMRenderer::QualityCount - 1);
    m_ui->extendOptionFrame->hide();
    for (const auto& rows : {choiceHelp(), effectHelp(), limitHelp()})
        describe("ZelRendererSettingsPanel", rows);
}

ZelRendererSettingsPanel::~ZelRendererSettingsPanel() = default;

std::vector<ZelRendererSettingsPanel::Help> ZelRendererSettingsPanel::choiceHelp() const
{
    return {
        {{m_ui->deferredButton, m_ui->raytracerButton},
         QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Rendering engine"),
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "Decides what draws your models. The high mode uses the graphics card; the low mode "
             "uses the processor and runs everywhere. Only the settings of the chosen mode are "
             "shown."),
         ZelPageHelp::choiceText({m_ui->deferredButton, m_ui->raytracerButton}),
         EffectAfterRestart,
         {keys::Engine},
         [this](const EngineModel& model) {
             return (model.useSoftware ? m_ui->raytracerButton : m_ui->deferredButton)->text();
         }},
        {{m_ui->sceneUnitComboBox},
         nullptr,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong "
             "unit they are too strong or cannot be seen. It counts only while SSAO is used."),
         ZelPageHelp::rangeText(m_ui->sceneUnitComboBox->itemText(0),
                                m_ui->sceneUnitComboBox->itemText(SceneUnitCount - 1)),
         EffectAfterRestart,
         {keys::SceneUnits},
         [this](const EngineModel& model) {
             return m_ui->sceneUnitComboBox->itemText(model.sceneUnitIndex);
         }},
        {{m_ui->qualitySlider},
         nullptr,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "How carefully the raytracer computes a picture. A higher quality looks better and "
             "takes longer."),
         ZelPageHelp::rangeText(qualityText(0), qualityText(kqDMRenderer::QualityCount - 1)),
         EffectAfterRestart,
         {keys::RaytracerQuality},
         [](const EngineModel& model) { return qualityText(model.quality); }},
        {{m_ui->coreUsedSlider},
         nullptr,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "How many cores of the processor the raytracer may use. More cores make it faster and "
             "leave less to other programs."),
         ZelPageHelp::rangeText(coresText(m_ui->coreUsedSlider->minimum()),
                                coresText(m_ui->coreUsedSlider->maximum())),
         EffectAfterRestart,
         {keys::CoreNumber},
         [](const EngineModel& model) { return coresText(model.coreNumber); }},
    };
}

std::vector<ZelRendererSettingsPanel::Help> ZelRendererSettingsPanel::effectHelp() const
{
    const struct
    {
        QCheckBox* box;
        const char* description;
        const char* key;
        bool EngineModel::*value;
    } effects[] = {
        {m_ui->deferredFXAACheckBox,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "Smooths the jagged edges of the picture. It takes little time on a current graphics "
             "card."),
         keys::UseFxaa, &EngineModel::useFXAA},
        {m_ui->deferredSSAOCheckBox,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "Darkens corners and gaps as soft light does, so that shapes are easier to see. It "
             "takes some time in every picture."),
         keys::UseSsao, &EngineModel::useSSAO},
        {m_ui->deferredEDCheckBox,
         QT_TRANSLATE_NOOP("ZelRendererSettingsPanel",
                           "Draws lines along the edges of the parts. This helps to tell parts of the same "
                           "colour apart."),
         keys::UseEdgeDetection, &EngineModel::useED},
    };
    std::vector<Help> rows;
    for (const auto& effect : effects) {
        const auto value = effect.value;
        rows.push_back({{effect.box},
                        nullptr,
                        effect.description,
                        ZelPageHelp::flagRange(),
                        EffectAfterRestart,
                        {effect.key},
                        [value](const EngineModel& model) { return ZelPageHelp::flagText(model.*value); }});
    }
    return rows;
}

std::vector<ZelRendererSettingsPanel::Help> ZelRendererSettingsPanel::limitHelp() const
{
    const struct
    {
        zelSpinBox* box;
        const char* description;
        const char* key;
        quint64 EngineModel::*value;
        ZelSettingEffect effect;
        int shift;
    } limits[] = {
        {m_ui->maxCPU3DSpinBox,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "How much of the computer's memory the models may take while the graphics card draws "
             "them. With more of it, more details stay loaded."),
         keys::MaxCpuMemory3D, &EngineModel::maxCPUMemory3D, EffectAfterRestart, BytesToMebibytes},
        {m_ui->maxCPURaySpinBox,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "How much of the computer's memory the raytracer may take. With more of it, larger "
             "models can be drawn."),
         keys::MaxCpuMemoryRaytracer, &EngineModel::maxCPUMemoryRaytracer, EffectAfterRestart,
         BytesToMebibytes},
        {m_ui->maxGPUSPinBox,
         QT_TRANSLATE_NOOP(
             "ZelRendererSettingsPanel",
             "How much of the graphics card's memory the models may take. Stay below what the card "
             "has: other programs need some too."),
         keys::MaxGpuMemory, &EngineModel::maxGPUMemory, EffectAfterRestart, BytesToMebibytes},
        {m_ui->maxTrianglesSpinBox,
         QT_TRANSLATE_NOOP("ZelRendererSettingsPanel",
                           "How many triangles one picture may have at most. With fewer, models move more "
                           "smoothly; with more, they show finer details."),
         keys::TrianglesCap, &EngineModel::trianglesCap, EffectAtOnce, 0},
    };
    std::vector<Help> rows;
    for (const auto& limit : limits)
        rows.push_back({{limit.box},
                        nullptr,
                        limit.description,
                        ZelPageHelp::rangeText(limit.box),
                        limit.effect,
                        {limit.key},
                        [limit](const EngineModel& model) {
                            return limit.box->shownText(
                                static_cast<double>(model.*limit.value >> limit.shift));
                        }});
    return rows;
}

int ZelRendererSettingsPanel::GetSceneUnitComboIndex(float factor)
{
    const int index = sceneUnitIndex(factor);
    return index < 0 ? MetreIndex : index;
}

void ZelRendererSettingsPanel::on_resetButton_clicked()
{
    resetContent();
}

void ZelRendererSettingsPanel::on_maxTrianglesSpinBox_valueChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_maxGPUSPinBox_valueChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_maxCPURaySpinBox_valueChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_maxCPU3DSpinBox_valueChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_sceneUnitComboBox_currentIndexChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_deferredEDCheckBox_stateChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_deferredFXAACheckBox_stateChanged(int)
{
    onEdited();
}

void ZelRendererSettingsPanel::on_deferredSSAOCheckBox_stateChanged(int)
{
    enableSceneUnit();
    onEdited();
}

void ZelRendererSettingsPanel::on_coreUsedSlider_valueChanged(int cores)
{
    setNbCoresTxt(cores);
    onEdited();
}

void ZelRendererSettingsPanel::on_qualitySlider_valueChanged(int quality)
{
    setRaytracerQuality(quality);
    onEdited();
}

void ZelRendererSettingsPanel::on_deferredButton_toggled(bool checked)
{
    forceGPUMode(checked);
    onEdited();
}

void ZelRendererSettingsPanel::on_raytracerButton_toggled(bool checked)
{
    forceGPUMode(!checked);
    onEdited();
}

void ZelRendererSettingsPanel::getCurrentModel(EngineModel& model) const
{
    model.maxCPUMemory3D = shownNumber(m_ui->maxCPU3DSpinBox) << BytesToMebibytes;
    model.maxCPUMemoryRaytracer = shownNumber(m_ui->maxCPURaySpinBox) << BytesToMebibytes;
    model.maxGPUMemory = shownNumber(m_ui->maxGPUSPinBox) << BytesToMebibytes;
    model.trianglesCap = shownNumber(m_ui->maxTrianglesSpinBox);
    model.coreNumber = m_ui->coreUsedSlider->value();
    model.quality = m_ui->qualitySlider->value();
    model.sceneUnitIndex = m_ui->sceneUnitComboBox->currentIndex();
    model.useSoftware = m_ui->raytracerButton->isChecked();
    model.useSSAO = m_ui->deferredSSAOCheckBox->isChecked();
    model.useFXAA = m_ui->deferredFXAACheckBox->isChecked();
    model.useED = m_ui->deferredEDCheckBox->isChecked();
}

void ZelRendererSettingsPanel::applyModel(const EngineModel& model)
{
    const SignalBlock block{m_ui->raytracerButton,      m_ui->deferredButton,     m_ui->deferredSSAOCheckBox,
                            m_ui->deferredFXAACheckBox, m_ui->deferredEDCheckBox, m_ui->sceneUnitComboBox,
                            m_ui->coreUsedSlider,       m_ui->qualitySlider,      m_ui->maxCPU3DSpinBox,
                            m_ui->maxCPURaySpinBox,     m_ui->maxGPUSPinBox,      m_ui->maxTrianglesSpinBox};
    m_ui->raytracerButton->setChecked(model.useSoftware);
    m_ui->deferredButton->setChecked(!model.useSoftware);
    m_ui->deferredSSAOCheckBox->setChecked(model.useSSAO);
    m_ui->deferredFXAACheckBox->setChecked(model.useFXAA);
    m_ui->deferredEDCheckBox->setChecked(model.useED);
    m_ui->sceneUnitComboBox->setCurrentIndex(model.sceneUnitIndex);
    m_ui->coreUsedSlider->setValue(model.coreNumber);
    m_ui->qualitySlider->setValue(model.quality);
    showNumber(m_ui->maxCPU3DSpinBox, model.maxCPUMemory3D >> BytesToMebibytes);
    showNumber(m_ui->maxCPURaySpinBox, model.maxCPUMemoryRaytracer >> BytesToMebibytes);
    showNumber(m_ui->maxGPUSPinBox, model.maxGPUMemory >> BytesToMebibytes);
    showNumber(m_ui->maxTrianglesSpinBox, model.trianglesCap);
    setRaytracerQuality(model.quality);
    setNbCoresTxt(model.coreNumber);
    enableSceneUnit();
    forceGPUMode(!model.useSoftware);
}

void ZelRendererSettingsPanel::pushToApplication()
{
    setTriangleCap(shownNumber(m_ui->maxTrianglesSpinBox));
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

void ZelRendererSettingsPanel::notifyStateChanged()
{
    Q_EMIT stateChanged();
}

bool ZelRendererSettingsPanel::hasRaytracerRebootChanged() const
{
    if (!m_ui->raytracerButton->isChecked())
        return false;
    EngineModel stored, current;
    readSettings(stored);
    getCurrentModel(current);
    return (current.coreNumber != stored.coreNumber && current.coreNumber != m_startCoreNumber) ||
           (current.quality != stored.quality && current.quality != m_startQuality);
}

void ZelRendererSettingsPanel::forceGPUMode(bool gpu)
{
    for (QWidget* frame : {m_ui->hardwareFrame, m_ui->GPUMemoryFrame, m_ui->GPUMemory})
        frame->setVisible(gpu);
    for (QWidget* frame : {m_ui->softwareFrame, m_ui->CPUMemoryFrame})
        frame->setVisible(!gpu);

    zelActionManager* actions = application() ? application()->getActionManager() : nullptr;
    zelAction* renderingMode = actions ? actions->getActionByName("renderingMode") : nullptr;
    // The mode is one of the running renderer; the engine of the next start does not matter.
    if (renderingMode)
        renderingMode->setEnabled(m_startGPUMode);
}

void ZelRendererSettingsPanel::setNbCoresTxt(int cores)
{
    m_ui->coreUsedLabel->setText(coresText(cores));
    m_ui->coreUsedSlider->setValueText(coresText(cores));
}

void ZelRendererSettingsPanel::setRaytracerQuality(int quality)
{
    m_ui->qualityLabel->setText(qualityText(quality));
    m_ui->qualitySlider->setValueText(qualityText(quality));
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
