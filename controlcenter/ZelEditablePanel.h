#ifndef ZEL_ZELEDITABLEPANEL_H
#define ZEL_ZELEDITABLEPANEL_H

#include "EnableButton.h"
#include "ZelSettingsField.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"

#include <QSettings>

#include <utility>
#include <vector>

namespace zel {

/// A page that edits settings: what all such pages do alike. A page adds a plain model record that can be
/// compared, the table of its fields, and how the model gets into its widgets and out of them. Its form has a
/// button named "resetButton", which is enabled exactly while the page differs from the defaults.
///
/// Filling the widgets never looks like a user's edit; nothing is written before applyModifications().
template <class Model>
class ZelEditablePanel : public ZelSettingsPanel
{
public:
    using Fields = std::vector<ZelSettingsField<Model>>;

    ZelEditablePanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                     Qt::WindowFlags flags, Fields fields)
        : ZelSettingsPanel(application, settings, parent, flags)
        , m_fields(std::move(fields))
    {
    }

    void initializeWidget() override
    {
        Model stored;
        readSettings(stored);
        applyModel(stored);
        checkContent();
    }

    bool hasModifications() const override
    {
        Model stored, current;
        readSettings(stored);
        getCurrentModel(current);
        return !(stored == current);
    }

    bool applyModifications() override
    {
        if (!hasModifications())
            return false;
        pushToApplication();
        // Before saving, because the verdict compares with what is stored.
        const bool restart = shouldRestart();
        saveSettingsInternal();
        checkContent();
        return restart;
    }

    bool canResetContent() const override
    {
        Model defaults, current;
        getDefaultSettings(defaults);
        getCurrentModel(current);
        return !(defaults == current);
    }

    void resetContent() override
    {
        if (!canResetContent())
            return;
        Model defaults;
        getDefaultSettings(defaults);
        applyModel(defaults);
        onEdited();
    }

    /// False: initializeWidget() is what discards pending edits.
    bool cancelModifications() override { return false; }

    /// Does nothing: applyModifications() is what saves.
    virtual void saveSettings() {}

protected:
    void readSettings(Model& model) const
    {
        for (const auto& field : m_fields)
            field.readStored(model, settings().value(field.key));
    }

    void getDefaultSettings(Model& model) const
    {
        for (const auto& field : m_fields)
            field.readDefault(model, ZelSettingsRegistry::GetDefaultSettingsValue(field.key));
    }

    /// Reads the widgets.
    virtual void getCurrentModel(Model& model) const = 0;

    /// Fills the widgets, with their signals blocked.
    virtual void applyModel(const Model& model) = 0;

    /// Writes every field, in the order of the table.
    virtual void saveSettingsInternal()
    {
        Model current;
        getCurrentModel(current);
        for (const auto& field : m_fields)
            settings().setValue(field.key, field.stored(current));
    }

    /// Hands to the running application what it can take at once.
    virtual void pushToApplication() {}

    /// True when the widgets hold, against what is stored, something that only takes effect after a restart.
    virtual bool shouldRestart() const { return false; }

    /// Emits the page's own stateChanged().
    virtual void notifyStateChanged() = 0;

    /// Refreshes the reset button.
    void checkContent() const
    {
        if (auto* resetButton = findChild<QPushButton*>("resetButton"))
            enableButton(*resetButton, canResetContent());
        else
            qWarning("The form of the page \"%s\" has no push button named \"resetButton\"",
                     qPrintable(getPanelName()));
    }

    /// What every edit ends with.
    void onEdited()
    {
        checkContent();
        notifyStateChanged();
    }

private:
    const Fields m_fields;
};

} // namespace zel

#endif
