#include "ZelSimplificationSettingsPanel.h"

#include "ui_ZelSimplificationSettingsPanel.h"

#include "LabelImage.h"
#include "SettingsKeys.h"
#include "SettingsNumbers.h"
#include "SignalBlock.h"
#include "base/ZelQtCompat.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMManager.h"

#include <QCoreApplication>
#include <QStringList>

namespace zel {

namespace {

using Ratios = std::vector<float>;

const int FirstEditableLevel = 2;
const int LastLevel = 5;
const int ImageSize = 64; // pixels

/// Unlike the validator, reads a part that is no number as 0, so that every level keeps its place.
Ratios ratiosToShow(const QString& text)
{
    Ratios ratios;
    for (const QString& part : text.split('/', SkipEmptyParts)) {
        float ratio = 0;
        ratios.push_back(parseFloat(part, ratio) ? ratio : 0);
    }
    return ratios;
}

Ratios defaultRatios(const QString& text)
{
    Ratios ratios = ratiosToShow(text);
    if (ratios.size() > LastLevel)
        ratios.resize(LastLevel);
    return ratios;
}

bool isWellFormed(const Ratios& ratios)
{
    return ratios.size() == LastLevel;
}

bool isMalformed(const QVariant& stored)
{
    return stored.isValid() && !isWellFormed(ratiosToShow(stored.toString()));
}

Ratios storedRatios(const QVariant& stored)
{
    const Ratios ratios = ratiosToShow(stored.toString());
    if (isWellFormed(ratios))
        return ratios;
    return defaultRatios(ZelSettingsRegistry::GetDefaultSettingsValue(keys::SimplificationRatios));
}

QVariant ratiosToStore(const Ratios& ratios)
{
    return ratiosText(ratios);
}

ZelEditablePanel<SimplificationModel>::Fields simplificationFields()
{
    return {{keys::SimplificationRatios,
             &SimplificationModel::ratios,
             {storedRatios, defaultRatios, ratiosToStore}}};
}

void showLevelImages(const Ui::ZelSimplificationSettingsPanel& form)
{
    const struct
    {
        QLabel* label;
        const char* image;
    } levels[] = {
        {form.icon1, "High"},        {form.icon2, "Medium High"},
        {form.icon3, "Medium"},      {form.icon4, "Medium-Low-Quality"},
        {form.icon5, "Low-Quality"},
    };
    for (const auto& level : levels)
        showImage(*level.label, QString(":/controlCenter/controlCenter/%1.png").arg(level.image), ImageSize);
}

} // namespace

bool operator==(const SimplificationModel& left, const SimplificationModel& right)
{
    return left.ratios == right.ratios;
}

ZelSimplificationSettingsPanel::ZelSimplificationSettingsPanel(kqDMIApplication* application,
                                                               QSettings& settings, QWidget* parent,
                                                               Qt::WindowFlags flags)
    : ZelEditablePanel<SimplificationModel>(application, settings, parent, flags, simplificationFields())
    , m_ui(new Ui::ZelSimplificationSettingsPanel)
    , m_editing(false)
{
    m_ui->setupUi(this);
    showLevelImages(*m_ui);
    m_percentages = {m_ui->ratio1, m_ui->ratio2, m_ui->ratio3, m_ui->ratio4, m_ui->ratio5};
    setNamedStyleSheet("ZelSimplificationSettingsPanel");
    setPanelName(QCoreApplication::translate("ZelSimplificationSettingsPanel", "Simplification"));
    setPanelCategory(ProjectCategory);

    std::vector<Help> help;
    for (int level = 1; level <= LastLevel; ++level)
        help.push_back(levelHelp(level));
    describe("ZelSimplificationSettingsPanel", help);
}

ZelSimplificationSettingsPanel::~ZelSimplificationSettingsPanel() = default;

void ZelSimplificationSettingsPanel::on_resetButton_clicked()
{
    resetContent();
}

void ZelSimplificationSettingsPanel::on_ratio2_editingFinished()
{
    finishEditing(2);
}

void ZelSimplificationSettingsPanel::on_ratio3_editingFinished()
{
    finishEditing(3);
}

void ZelSimplificationSettingsPanel::on_ratio4_editingFinished()
{
    finishEditing(4);
}

void ZelSimplificationSettingsPanel::on_ratio5_editingFinished()
{
    finishEditing(5);
}

bool ZelSimplificationSettingsPanel::hasModifications() const
{
    // Apply replaces a text that the page cannot show.
    return isMalformed(settings().value(keys::SimplificationRatios)) ||
           ZelEditablePanel<SimplificationModel>::hasModifications();
}

void ZelSimplificationSettingsPanel::getCurrentModel(SimplificationModel& model) const
{
    model.ratios.clear();
    for (const zelDoubleSpinBox* box : m_percentages)
        model.ratios.push_back(static_cast<float>(box->value()) / 100);
}

void ZelSimplificationSettingsPanel::applyModel(const SimplificationModel& model)
{
    if (!isWellFormed(model.ratios))
        return;
    for (int level = FirstEditableLevel; level <= LastLevel; ++level) {
        const SignalBlock block{percentage(level)};
        // In single precision, because it decides how a half is rounded: 0.755 is shown as 76, not as 75.
        percentage(level)->setValue(model.ratios[level - 1] * 100);
    }
}

void ZelSimplificationSettingsPanel::pushToApplication()
{
    setRatios();
}

void ZelSimplificationSettingsPanel::notifyStateChanged()
{
    Q_EMIT stateChanged();
}

void ZelSimplificationSettingsPanel::setRatios()
{
    kqDMManager* manager = application() ? application()->getDMManager() : nullptr;
    if (!manager)
        return;
    SimplificationModel current;
    getCurrentModel(current);
    manager->setSimplificationRatios(current.ratios);
}

ZelSimplificationSettingsPanel::Help ZelSimplificationSettingsPanel::levelHelp(int level) const
{
    const zelDoubleSpinBox* box = percentage(level);
    const auto percent = [box](double number) { return box->shownText(number) + " %"; };
    Help help;
    help.fields << percentage(level);
    help.name = nullptr;
    help.description =
        level < FirstEditableLevel
            ? QT_TRANSLATE_NOOP("ZelSimplificationSettingsPanel",
                                "This level keeps every triangle of the model. It cannot be changed.")
            : QT_TRANSLATE_NOOP(
                  "ZelSimplificationSettingsPanel",
                  "How many of the model's triangles an export at this level keeps, in percent. A "
                  "level never keeps more than the one above it.");
    help.range = ZelPageHelp::rangeText(percent(box->minimum()), percent(box->maximum()));
    help.effect = EffectAtOnce;
    help.keys << keys::SimplificationRatios;
    help.shown = [level, percent](const SimplificationModel& model) {
        return isWellFormed(model.ratios) ? percent(model.ratios[level - 1] * 100) : QString();
    };
    help.copy = [level](SimplificationModel& to, const SimplificationModel& from) {
        if (isWellFormed(from.ratios) && level >= FirstEditableLevel)
            to.ratios[level - 1] = from.ratios[level - 1];
    };
    return help;
}

void ZelSimplificationSettingsPanel::finishEditing(int level)
{
    const bool nested = m_editing;
    m_editing = true;
    const double edited = percentage(level)->value();
    if (level < LastLevel && percentage(level + 1)->value() > edited)
        percentage(level + 1)->setValue(edited);
    if (level > FirstEditableLevel && percentage(level - 1)->value() < edited)
        percentage(level - 1)->setValue(edited);
    if (nested)
        return;
    m_editing = false;
    onEdited();
}

} // namespace zel
