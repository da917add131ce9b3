#include "ZelImportSettingsPanel.h"

#include "ui_ZelImportSettingsPanel.h"

#include "SettingsKeys.h"
#include "SettingsNumbers.h"

#include <QCoreApplication>

namespace zel {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ZelImportSettingsPanel)
};

QString automaticText()
{
    return Text::tr("chosen by Torvane");
}

} // namespace

ZelImportSettingsPanel::ZelImportSettingsPanel(kqDMIApplication* application, QSettings& settings,
                                               QWidget* parent, Qt::WindowFlags flags)
    : ZelEditablePanel<ImportModel>(application, settings, parent, flags)
    , m_ui(new Ui::ZelImportSettingsPanel)
{
    m_ui->setupUi(this);
    m_limits = {{{m_ui->defaultSag, m_ui->sag, m_ui->faceSagSpin},
                 {m_ui->defaultLength, m_ui->length, m_ui->faceLengthSpin},
                 {m_ui->defaultAngle, m_ui->angle, m_ui->faceAngleSpin}}};
    m_ui->faceAngleSpin->setRange(0, MaximumFaceAngle);
    setNamedStyleSheet("ZelImportSettingsPanel");
    setPanelCategory(AdvancedCategory);
    followLanguage(*m_ui, [this] { setTexts(); });
}

ZelImportSettingsPanel::~ZelImportSettingsPanel() = default;

void ZelImportSettingsPanel::setTexts()
{
    setPanelName(Text::tr("Tessellation"));
    setRows({
        qualityRow(),
        limitRow(Sag, keys::MaxFaceSagSet, &ImportModel::maxFaceSagSet, keys::MaxFaceSag,
                 &ImportModel::maxFaceSag, m_ui->faceSagSpin,
                 Text::tr("How far a triangle may lie from the curved face that it stands for, in the unit "
                          "of the model. A smaller value looks rounder and makes more triangles.")),
        limitRow(Length, keys::MaxFaceLengthSet, &ImportModel::maxFaceLengthSet, keys::MaxFaceLength,
                 &ImportModel::maxFaceLength, m_ui->faceLengthSpin,
                 Text::tr("How long the edges of a triangle may be, in the unit of the model. A smaller "
                          "value makes more triangles of more even sizes.")),
        limitRow(Angle, keys::MaxFaceAngleSet, &ImportModel::maxFaceAngleSet, keys::MaxFaceAngle,
                 &ImportModel::maxFaceAngle, m_ui->faceAngleSpin,
                 Text::tr("How far a curved face may turn from one triangle to the next. A smaller value "
                          "looks rounder and makes more triangles.")),
    });
}

void ZelImportSettingsPanel::on_lowQuality_clicked()
{
    setQuality(true, false);
    // Not onEdited(): the reset button keeps its state until the next edit, on purpose.
    Q_EMIT stateChanged();
}

ZelImportSettingsPanel::Row ZelImportSettingsPanel::qualityRow()
{
    ZelFieldWidgets<bool> set, high;
    set.widgets << m_ui->defaultQuality << m_ui->highQuality << m_ui->lowQuality;
    set.range = ZelPageHelp::choiceText(set.widgets);
    set.read = [this] { return !m_ui->defaultQuality->isChecked(); };
    set.show = [this](bool isSet) { setQuality(isSet, !m_ui->lowQuality->isChecked()); };
    high.read = [this] { return !m_ui->lowQuality->isChecked(); };
    high.show = [this](bool isHigh) { setQuality(!m_ui->defaultQuality->isChecked(), isHigh); };
    return row(keys::TessellationQualitySet, &ImportModel::qualitySet, set, EffectWithNextImport,
               Text::tr("How finely curved faces are cut into triangles when a CAD file is imported. High "
                        "quality looks rounder and makes larger models. By default, Torvane decides."))
        .with(keys::TessellationHighQuality, &ImportModel::isHighQuality, high)
        .onlyWhile(&ImportModel::qualitySet)
        .shownAs(
            [this](const ImportModel& model) {
                const QRadioButton* chosen = model.isHighQuality ? m_ui->highQuality : m_ui->lowQuality;
                return model.qualitySet ? chosen->text() : automaticText();
            },
            set.range);
}

template <class Box, class Value>
ZelImportSettingsPanel::Row ZelImportSettingsPanel::limitRow(LimitIndex index, const char* setKey,
                                                             bool ImportModel::*set, const char* valueKey,
                                                             Value ImportModel::*value, Box* box,
                                                             const QString& description)
{
    const ZelFieldWidgets<Value> number(box);
    return row(setKey, set, m_limits[index], EffectWithNextImport, description)
        .with(valueKey, value, number)
        .onlyWhile(set)
        .shownAs(
            [=](const ImportModel& model) {
                return model.*set ? number.text(model.*value) : automaticText();
            },
            number.range);
}

void ZelImportSettingsPanel::setQuality(bool set, bool high)
{
    const SignalBlock block{m_ui->defaultQuality, m_ui->highQuality, m_ui->lowQuality};
    m_ui->defaultQuality->setChecked(!set);
    m_ui->lowQuality->setChecked(set && !high);
    m_ui->highQuality->setChecked(set && high);
}

void ZelImportSettingsPanel::setLimitSet(LimitIndex index, bool set)
{
    const SignalBlock block(m_limits[index].widgets);
    m_limits[index].show(set);
}

} // namespace zel
