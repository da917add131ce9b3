#include "ZelSimplificationSettingsPanel.h"

#include "ui_ZelSimplificationSettingsPanel.h"

#include "LabelImage.h"
#include "SettingsKeys.h"
#include "SettingsNumbers.h"
#include "base/QtCompat.h"

#include "platform/kqDMIApplication.h"
#include "platform/kqDMManager.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace zel {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ZelSimplificationSettingsPanel)
};

using Ratios = std::vector<float>;

const int FirstEditableLevel = 2;
const int LastLevel = 5;
const char* const Images[LastLevel] = {"High", "Medium High", "Medium", "Medium-Low-Quality", "Low-Quality"};
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

bool isWellFormed(const Ratios& ratios)
{
    return ratios.size() == LastLevel;
}

bool isMalformed(const QVariant& stored)
{
    return stored.isValid() && !isWellFormed(ratiosToShow(stored.toString()));
}

/// Without a default for each level there is none.
Ratios defaultRatios(const QString& text)
{
    Ratios ratios = ratiosToShow(text);
    if (ratios.size() < LastLevel)
        return SimplificationModel().ratios;
    ratios.resize(LastLevel);
    return ratios;
}

Ratios storedRatios(const QVariant& stored)
{
    const Ratios ratios = ratiosToShow(stored.toString());
    if (isWellFormed(ratios))
        return ratios;
    return defaultRatios(ZelSettingsRegistry::GetDefaultSettingsValue(keys::SimplificationRatios));
}

} // namespace

ZelSimplificationSettingsPanel::ZelSimplificationSettingsPanel(kqDMIApplication* application,
                                                               QSettings& settings, QWidget* parent,
                                                               Qt::WindowFlags flags)
    : ZelEditablePanel<SimplificationModel>(application, settings, parent, flags)
    , m_ui(new Ui::ZelSimplificationSettingsPanel)
    , m_editing(false)
{
    m_ui->setupUi(this);
    for (int level = 1; level <= LastLevel; ++level)
        showImage(*findChild<QLabel*>(QString("icon%1").arg(level)),
                  QString(":/controlCenter/controlCenter/%1.png").arg(Images[level - 1]), ImageSize);
    setNamedStyleSheet("ZelSimplificationSettingsPanel");
    setPanelCategory(ProjectCategory);
    followLanguage(*m_ui, [this] { describeSettings(); });
}

ZelSimplificationSettingsPanel::~ZelSimplificationSettingsPanel() = default;

void ZelSimplificationSettingsPanel::describeSettings()
{
    setPanelName(Text::tr("Simplification"));
    setRows({levelRow(1), levelRow(2), levelRow(3), levelRow(4), levelRow(5)});
}

bool ZelSimplificationSettingsPanel::hasModifications() const
{
    // Apply replaces a text that the page cannot show.
    return isMalformed(settings().value(keys::SimplificationRatios)) ||
           ZelEditablePanel<SimplificationModel>::hasModifications();
}

std::vector<ZelPendingEdit> ZelSimplificationSettingsPanel::pendingEdits()
{
    auto edits = ZelEditablePanel<SimplificationModel>::pendingEdits();
    const QVariant stored = settings().value(keys::SimplificationRatios);
    if (isMalformed(stored))
        edits.insert(edits.begin(), {getPanelName(), stored.toString(), ratiosText(currentModel().ratios),
                                     nullptr, nullptr});
    return edits;
}

void ZelSimplificationSettingsPanel::pushToApplication(const SimplificationModel& model)
{
    kqDMManager* manager = application() ? application()->getDMManager() : nullptr;
    std::vector<float> ratios = model.ratios; // Which the manager may change.
    if (manager)
        manager->setSimplificationRatios(ratios);
}

ZelSimplificationSettingsPanel::Row ZelSimplificationSettingsPanel::levelRow(int level)
{
    zelDoubleSpinBox* box = percentage(level);
    const auto percent = [box](double number) { return box->shownText(number) + " %"; };
    ZelFieldWidgets<float> widgets;
    widgets.widgets << box;
    widgets.read = [box] { return static_cast<float>(box->value()) / 100; };
    // In single precision, because it decides how a half is rounded: 0.755 is shown as 76, not as 75.
    widgets.show = [box](float ratio) {
        if (!std::isnan(ratio))
            box->setValue(ratio * 100);
    };
    widgets.text = [percent](float ratio) { return std::isnan(ratio) ? QString() : percent(ratio * 100); };

    const bool fixed = level < FirstEditableLevel;
    const QString description =
        fixed ? Text::tr("This level keeps every triangle of the model. It cannot be changed.")
              : Text::tr("How many of the model's triangles an export at this level keeps, in percent. A "
                         "level never keeps more than the one above it.");
    if (!fixed)
        widgets.range = ZelPageHelp::rangeText(percent(box->minimum()), percent(box->maximum()));
    const auto place = [level](auto& model) -> auto&
    {
        return model.ratios[level - 1];
    };
    Row made = row(keys::SimplificationRatios, &SimplificationModel::ratios, widgets, EffectAtOnce,
                   description, ZelFieldConversion<Ratios>{storedRatios, defaultRatios, ratiosText}, place);
    made.fixed = fixed;
    made.finish = [this, level] { finishEditing(level); };
    return made;
}

zelDoubleSpinBox* ZelSimplificationSettingsPanel::percentage(int level) const
{
    return findChild<zelDoubleSpinBox*>(QString("ratio%1").arg(level));
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
