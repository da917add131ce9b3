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
    followLanguage(*m_ui, [this] { describeSettings(); });
}

ZelImportSettingsPanel::~ZelImportSettingsPanel() = default;

void ZelImportSettingsPanel::describeSettings()
{
    setPanelName(Text::tr("Tessellation"));
    setRows({
        qualityRow(),
        choiceRow(keys::MaxFaceSagSet, &ImportModel::maxFaceSagSet, m_limits[Sag], keys::MaxFaceSag,
                  &ImportModel::maxFaceSag, m_ui->faceSagSpin,
                  Text::tr("How far a triangle may lie from the curved face that it stands for, in the unit "
                           "of the model. A smaller value looks rounder and makes more triangles.")),
        choiceRow(keys::MaxFaceLengthSet, &ImportModel::maxFaceLengthSet, m_limits[Length],
                  keys::MaxFaceLength, &ImportModel::maxFaceLength, m_ui->faceLengthSpin,
                  Text::tr("How long the edges of a triangle may be, in the unit of the model. A smaller "
                           "value makes more triangles of more even sizes.")),
        choiceRow(keys::MaxFaceAngleSet, &ImportModel::maxFaceAngleSet, m_limits[Angle], keys::MaxFaceAngle,
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
    set.read = [this] { return !m_ui->defaultQuality->isChecked(); };
    set.show = [this](bool isSet) { setQuality(isSet, !m_ui->lowQuality->isChecked()); };
    high.range = ZelPageHelp::choiceText(set.widgets);
    high.read = [this] { return !m_ui->lowQuality->isChecked(); };
    high.show = [this](bool isHigh) { setQuality(!m_ui->defaultQuality->isChecked(), isHigh); };
    high.text = [this](bool isHigh) { return (isHigh ? m_ui->highQuality : m_ui->lowQuality)->text(); };
    return choiceRow(keys::TessellationQualitySet, &ImportModel::qualitySet, set,
                     keys::TessellationHighQuality, &ImportModel::isHighQuality, high,
                     Text::tr("How finely curved faces are cut into triangles when a CAD file is imported. "
                              "High quality looks rounder and makes larger models. By default, Torvane "
                              "decides."));
}

template <class Value>
ZelImportSettingsPanel::Row ZelImportSettingsPanel::choiceRow(const char* setKey, bool ImportModel::*set,
                                                              const ZelFieldWidgets<bool>& choice,
                                                              const char* valueKey, Value ImportModel::*value,
                                                              const ZelFieldWidgetsOf<Value>& widgets,
                                                              const QString& description)
{
    return row(setKey, set, choice, EffectWithNextImport, description)
        .with(valueKey, value, widgets)
        .onlyWhile(set)
        .shownAs(
            [=](const ImportModel& model) {
                return model.*set ? widgets.text(model.*value) : Text::tr("chosen by Torvane");
            },
            widgets.range);
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
