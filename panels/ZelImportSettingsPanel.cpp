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

QString automaticText()
{
    return QCoreApplication::translate("ZelImportSettingsPanel", "chosen by Torvane");
}

// Compares a flag, and its value while the flag is set.
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

    const QList<QWidget*> qualities = {m_ui->defaultQuality, m_ui->highQuality, m_ui->lowQuality};
    describe(
        "ZelImportSettingsPanel",
        {{qualities,
          nullptr,
          QT_TRANSLATE_NOOP(
              "ZelImportSettingsPanel",
              "How finely curved faces are cut into triangles when a CAD file is imported. "
              "High quality looks rounder and makes larger models. By default, Torvane decides."),
          ZelPageHelp::choiceText(qualities),
          EffectWithNextImport,
          {keys::TessellationQualitySet, keys::TessellationHighQuality},
          [this](const ImportModel& model) {
              const QRadioButton* chosen = model.isHighQuality ? m_ui->highQuality : m_ui->lowQuality;
              return model.qualitySet ? chosen->text() : automaticText();
          }},
         limitHelp(Sag, m_ui->faceSagSpin, &ImportModel::maxFaceSag,
                   QT_TRANSLATE_NOOP("ZelImportSettingsPanel",
                                     "How far a triangle may lie from the curved face that it stands for, in "
                                     "the unit of the model. A smaller value looks rounder and makes more "
                                     "triangles."),
                   {keys::MaxFaceSagSet, keys::MaxFaceSag}),
         limitHelp(Length, m_ui->faceLengthSpin, &ImportModel::maxFaceLength,
                   QT_TRANSLATE_NOOP("ZelImportSettingsPanel",
                                     "How long the edges of a triangle may be, in the unit of the model. A "
                                     "smaller value makes more triangles of more even sizes."),
                   {keys::MaxFaceLengthSet, keys::MaxFaceLength}),
         limitHelp(
             Angle, m_ui->faceAngleSpin, &ImportModel::maxFaceAngle,
             QT_TRANSLATE_NOOP("ZelImportSettingsPanel",
                               "How far a curved face may turn from one triangle to the next. A smaller "
                               "value looks rounder and makes more triangles."),
             {keys::MaxFaceAngleSet, keys::MaxFaceAngle})});
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
    // Not onEdited(): the reset button keeps its state until the next edit, on purpose.
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

template <class Box, class Value>
ZelImportSettingsPanel::Help
ZelImportSettingsPanel::limitHelp(int index, const Box* box, Value ImportModel::*value,
                                  const char* description, const QStringList& keys) const
{
    const Limit limit = m_limits[index];
    Help help;
    help.fields << limit.byDefault << limit.byValue << limit.value;
    help.name = nullptr;
    help.description = description;
    help.range = ZelPageHelp::rangeText(box);
    help.effect = EffectWithNextImport;
    help.keys = keys;
    help.shown = [limit, box, value](const ImportModel& model) {
        return model.*limit.set ? box->shownText(model.*value) : automaticText();
    };
    return help;
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
