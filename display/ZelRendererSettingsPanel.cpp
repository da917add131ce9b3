#include "ZelRendererSettingsPanel.h"

#include "ui_ZelRendererSettingsPanel.h"

#include "NumberText.h"
#include "SceneUnits.h"
#include "SettingsKeys.h"
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

const int BytesToMebibytes = 20; // As a shift.
const int MetreIndex = 3;

const char* const QualityTexts[kqDMRenderer::QualityCount] = {
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Low"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Medium"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "High"),
    QT_TRANSLATE_NOOP("ZelRendererSettingsPanel", "Ultra"),
};

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

/// The raytracer's quality, as an index into the kernel's list of names.
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
    // Limited before the conversion: what exceeds an int must not come out as a small number.
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
}

ZelRendererSettingsPanel::~ZelRendererSettingsPanel() = default;

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
    // Back to the engine that is running needs no restart.
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
    // Of use only while the application runs the deferred renderer, whatever is chosen for the next start.
    if (renderingMode)
        renderingMode->setEnabled(m_startGPUMode);
}

void ZelRendererSettingsPanel::setNbCoresTxt(int cores)
{
    const QString text = cores < 2 ? QCoreApplication::translate("ZelRendererSettingsPanel", "%1 core")
                                   : QCoreApplication::translate("ZelRendererSettingsPanel", "%1 cores");
    m_ui->coreUsedLabel->setText(text.arg(cores));
}

void ZelRendererSettingsPanel::setRaytracerQuality(int quality)
{
    // The kernel may answer an unknown name with an index outside its list.
    const int shown = qBound(0, quality, kqDMRenderer::QualityCount - 1);
    m_ui->qualityLabel->setText(QCoreApplication::translate("ZelRendererSettingsPanel", QualityTexts[shown]));
}

void ZelRendererSettingsPanel::setTriangleCap(quint64 triangles)
{
    kqDMRenderer* renderer = application() ? application()->getDMRenderer() : nullptr;
    if (renderer)
        renderer->setTargetTriangles(triangles);
}

} // namespace zel
