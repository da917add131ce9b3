#include "ZelSettingsPanel.h"

#include "LanguageFollower.h"
#include "SignalBlock.h"
#include "StyleSheetPause.h"
#include "ZelSettingsFile.h"

#include "platform/kqDMIApplication.h"

#include <QComboBox>
#include <QLocale>
#include <QMap>

namespace zel {

namespace {

/// Forms of Qt 4.8 fill their combo boxes again, which loses the current item.
void translateKeepingItems(const QWidget& page, const std::function<void()>& translate)
{
    QMap<QComboBox*, int> items;
    QList<QWidget*> boxes;
    for (QComboBox* box : page.findChildren<QComboBox*>()) {
        items.insert(box, box->currentIndex());
        boxes << box;
    }
    const SignalBlock block(boxes);
    translate();
    for (QComboBox* box : items.keys())
        box->setCurrentIndex(items.value(box));
}

} // namespace

ZelSettingsPanel::ZelSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                                   Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_application(application)
    , m_settings(&settings)
    , m_category(NoCategory)
    , m_actionWidget(new QPushButton(this))
{
    m_actionWidget->setCheckable(true);
    m_actionWidget->setAutoExclusive(true);
    setLocaleOfLanguage();
}

ZelSettingsPanel::~ZelSettingsPanel()
{
    // The control center may have become the parent of the button.
    delete m_actionWidget;
}

ZelSettingsPanel::PanelCategory ZelSettingsPanel::getPanelCategory() const
{
    return m_category;
}

void ZelSettingsPanel::setPanelCategory(PanelCategory category)
{
    m_category = category;
}

QPushButton* ZelSettingsPanel::getActionWidget() const
{
    return m_actionWidget;
}

const QString& ZelSettingsPanel::getPanelName() const
{
    return m_panelName;
}

void ZelSettingsPanel::setPanelName(const QString& name)
{
    m_panelName = name;
    if (m_actionWidget)
        m_actionWidget->setText(name);
}

QSettings& ZelSettingsPanel::settings() const
{
    return ZelSettingsFile::Current(*m_settings);
}

const QStringList& ZelSettingsPanel::getSettingsKeys() const
{
    return m_settingsKeys;
}

void ZelSettingsPanel::setSettingsKeys(const QStringList& keys)
{
    m_settingsKeys = keys;
}

void ZelSettingsPanel::refreshWidgetContent()
{
}

void ZelSettingsPanel::registerCCAction(zelAction*)
{
}

void ZelSettingsPanel::unregisterCCActionByName(const QString&)
{
}

void ZelSettingsPanel::followLanguage(const std::function<void()>& setTexts)
{
    setTexts();
    onLanguageChange([] {}, setTexts);
}

void ZelSettingsPanel::onLanguageChange(const std::function<void()>& translateForm,
                                        const std::function<void()>& setTexts)
{
    new LanguageFollower(this, [this, translateForm, setTexts] {
        setLocaleOfLanguage();
        translateKeepingItems(*this, translateForm);
        setTexts();
    });
}

void ZelSettingsPanel::setLocaleOfLanguage()
{
    const QString language = m_application ? m_application->getLanguageCode() : QString();
    if (!language.isEmpty())
        setLocale(QLocale(language));
}

void ZelSettingsPanel::setNamedStyleSheet(const QString& name)
{
    setStyleSheet(QString()); // Otherwise the pause restores it when the named sheet is empty.
    const StyleSheetPause pause(*this);
    setStyleSheet(kqDMIApplication::GetStylesheet(name));
}

} // namespace zel
