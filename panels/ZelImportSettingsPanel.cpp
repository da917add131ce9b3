#include "ZelImportSettingsPanel.h"

#include "ui_ZelImportSettingsPanel.h"

#include "SettingsKeys.h"
#include "SignalBlock.h"

#include <QCoreApplication>

namespace zel {

namespace {

ZelEditablePanel<ImportModel>::Fields importFields()
{
    return {
        {keys::TessellationQualitySet, &ImportModel::qualitySet, flagConversion()},
        {keys::MaxFaceSagSet, &ImportModel::maxFaceSagSet, flagConversion()},
        {keys::MaxFaceLengthSet, &ImportModel::maxFaceLengthSet, flagConversion()},
        {keys::MaxFaceAngleSet, &ImportModel::maxFaceAngleSet, flagConversion()},
        {keys::TessellationHighQuality, &ImportModel::isHighQuality, flagConversion()},
        {keys::MaxFaceSag, &ImportModel::maxFaceSag, realConversion()},
        {keys::MaxFaceLength, &ImportModel::maxFaceLength, realConversion()},
        {keys::MaxFaceAngle, &ImportModel::maxFaceAngle, integerConversion()},
    };
}

// A choice is a switch and the value that matters while it is on.
template <class T>
bool sameChoice(const ImportModel& left, const ImportModel& right, bool ImportModel::*set,
                T ImportModel::*value)
{
    return left.*set == right.*set && (!(left.*set) || left.*value == right.*value);
}

} // namespace

bool operator==(const ImportModel& left, const ImportModel& right)
{
    return sameChoice(left, right, &ImportModel::qualitySet, &ImportModel::isHighQuality) &&
           sameChoice(left, right, &ImportModel::maxFaceSagSet, &ImportModel::maxFaceSag) &&
           sameChoice(left, right, &ImportModel::maxFaceLengthSet, &ImportModel::maxFaceLength) &&
           sameChoice(left, right, &ImportModel::maxFaceAngleSet, &ImportModel::maxFaceAngle);
}

ZelImportSettingsPanel::ZelImportSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                               QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<ImportModel>(application, settings, parent, flags, importFields())
    , m_ui(new Ui::ZelImportSettingsPanel)
{
    m_ui->setupUi(this);
    m_limits[Sag] = {&ImportModel::maxFaceSagSet, m_ui->defaultSag, m_ui->sag, m_ui->faceSagSpin};
    m_limits[Length] = {&ImportModel::maxFaceLengthSet, m_ui->defaultLength, m_ui->length,
                        m_ui->faceLengthSpin};
    m_limits[Angle] = {&ImportModel::maxFaceAngleSet, m_ui->defaultAngle, m_ui->angle, m_ui->faceAngleSpin};
    setNamedStyleSheet("ZelImportSettingsPanel");
    setPanelName(QCoreApplication::translate("ZelImportSettingsPanel", "Tessellation"));
    setPanelCategory(AdvancedCategory);
}

ZelImportSettingsPanel::~ZelImportSettingsPanel() = default;

void ZelImportSettingsPanel::on_defaultQuality_clicked()
{
    setQuality(false, true);
    onEdited();
}

void ZelImportSettingsPanel::on_highQuality_clicked()
{
    setQuality(true, true);
    onEdited();
}

void ZelImportSettingsPanel::on_lowQuality_clicked()
{
    setQuality(true, false);
    // The reset button keeps its state until the next refresh, on purpose.
    Q_EMIT stateChanged();
}

void ZelImportSettingsPanel::on_defaultSag_clicked()
{
    setFaceSagSet(false);
    onEdited();
}

void ZelImportSettingsPanel::on_sag_clicked()
{
    setFaceSagSet(true);
    onEdited();
}

void ZelImportSettingsPanel::on_defaultLength_clicked()
{
    setFaceLengthSet(false);
    onEdited();
}

void ZelImportSettingsPanel::on_length_clicked()
{
    setFaceLengthSet(true);
    onEdited();
}

void ZelImportSettingsPanel::on_resetButton_clicked()
{
    resetContent();
}

void ZelImportSettingsPanel::on_defaultAngle_clicked()
{
    setFaceAngleSet(false);
    onEdited();
}

void ZelImportSettingsPanel::on_angle_clicked()
{
    setFaceAngleSet(true);
    onEdited();
}

void ZelImportSettingsPanel::getCurrentModel(ImportModel& model) const
{
    model.qualitySet = !m_ui->defaultQuality->isChecked();
    model.isHighQuality = !m_ui->lowQuality->isChecked();
    for (const Limit& limit : m_limits)
        model.*limit.set = !limit.byDefault->isChecked();
    model.maxFaceSag = m_ui->faceSagSpin->value();
    model.maxFaceLength = m_ui->faceLengthSpin->value();
    model.maxFaceAngle = m_ui->faceAngleSpin->value();
}

void ZelImportSettingsPanel::applyModel(const ImportModel& model)
{
    setQuality(model.qualitySet, model.isHighQuality);
    for (const Limit& limit : m_limits)
        setLimitSet(limit, model.*limit.set);
    const SignalBlock block{m_ui->faceSagSpin, m_ui->faceLengthSpin, m_ui->faceAngleSpin};
    m_ui->faceSagSpin->setValue(model.maxFaceSag);
    m_ui->faceLengthSpin->setValue(model.maxFaceLength);
    m_ui->faceAngleSpin->setValue(model.maxFaceAngle);
}

void ZelImportSettingsPanel::notifyStateChanged()
{
    Q_EMIT stateChanged();
}

void ZelImportSettingsPanel::setQuality(bool set, bool high)
{
    const SignalBlock block{m_ui->defaultQuality, m_ui->highQuality, m_ui->lowQuality};
    m_ui->defaultQuality->setChecked(!set);
    m_ui->lowQuality->setChecked(set && !high);
    m_ui->highQuality->setChecked(set && high);
}

void ZelImportSettingsPanel::setLimitSet(const Limit& limit, bool set)
{
    const SignalBlock block{limit.byDefault, limit.byValue};
    limit.byDefault->setChecked(!set);
    limit.value->setEnabled(set);
    limit.byValue->setChecked(set);
}

} // namespace zel
