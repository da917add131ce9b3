#ifndef ZEL_ZELEDITABLEPANEL_H
#define ZEL_ZELEDITABLEPANEL_H

#include "EnableButton.h"
#include "ZelPageHelp.h"
#include "ZelSettingsField.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace zel {

/// The base of pages that edit settings: it loads, compares, applies and resets them. A page adds a model (a
/// plain struct with operator==), the table of its fields, and the functions that read its widgets into a
/// model and fill them from one. Its form has a button named "resetButton", which is enabled while the page
/// differs from the defaults.
///
/// Nothing is written before applyModifications().
template <class Model>
class ZelEditablePanel : public ZelSettingsPanel
{
public:
    /// The table of a page, with a row for each key.
    using Fields = std::vector<ZelSettingsField<Model>>;

    /// The first four arguments are those of ZelSettingsPanel.
    ZelEditablePanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                     Qt::WindowFlags flags, Fields fields)
        : ZelSettingsPanel(application, settings, parent, flags)
        , m_fields(std::move(fields))
    {
        QStringList keys;
        for (const auto& field : m_fields)
            keys.append(field.key);
        setSettingsKeys(keys);
    }

    /// Loads the stored values into the widgets.
    void initializeWidget() override
    {
        Model stored;
        readSettings(stored);
        applyModel(stored);
        checkContent();
    }

    /// True when the widgets differ from the stored values.
    bool hasModifications() const override
    {
        Model stored, current;
        readSettings(stored);
        getCurrentModel(current);
        return !(stored == current);
    }

    /// Passes the edits to the running application, then stores them. Returns shouldRestart().
    bool applyModifications() override
    {
        if (!hasModifications())
            return false;
        pushToApplication();
        // Before saving, because shouldRestart() compares with the stored values.
        const bool restart = shouldRestart();
        saveSettingsInternal();
        checkContent();
        return restart;
    }

    /// True when the widgets differ from the defaults.
    bool canResetContent() const override
    {
        Model defaults, current;
        getDefaultSettings(defaults);
        getCurrentModel(current);
        return !(defaults == current);
    }

    /// Puts the defaults into the widgets, as a pending edit.
    void resetContent() override
    {
        if (!canResetContent())
            return;
        Model defaults;
        getDefaultSettings(defaults);
        applyModel(defaults);
        onEdited();
    }

    /// Always false: initializeWidget() discards pending edits.
    bool cancelModifications() override { return false; }

    /// Does nothing: applyModifications() saves.
    virtual void saveSettings() {}

protected:
    /// A row of the page's help: one setting, with one or more keys.
    struct Help
    {
        QList<QWidget*> fields;  ///< The widgets that edit the setting.
        const char* name;        ///< Null for the name or the label of the first field.
        const char* description; ///< What the setting does, in a few sentences.
        QString range;           ///< Empty for a setting without a range.
        ZelSettingEffect effect; ///< When an applied edit takes effect.
        QStringList keys;        ///< The keys that the fields edit.
        /// The text that the fields show for the value in a model.
        std::function<QString(const Model&)> shown;
        /// Copies the setting from one model to another. Null copies the values of the keys.
        std::function<void(Model& to, const Model& from)> copy = nullptr;
        bool tipIsValue = false; ///< The tool tips of the fields are their values, so help must not use them.
    };

    /// Adds help on some or all settings of the page. Call it after the form is set up and the keys are
    /// registered.
    /// @param context  the translation context of names and descriptions
    void describe(const char* context, const std::vector<Help>& rows)
    {
        auto* help = findChild<ZelPageHelp*>();
        if (!help)
            help = new ZelPageHelp(this);
        for (const Help& row : rows)
            help->add(settingHelp(context, row));
    }

    /// Reads the stored values.
    void readSettings(Model& model) const
    {
        for (const auto& field : m_fields)
            field.readStored(model, settings().value(field.key));
    }

    /// Reads the registered defaults.
    void getDefaultSettings(Model& model) const
    {
        for (const auto& field : m_fields)
            field.readDefault(model, ZelSettingsRegistry::GetDefaultSettingsValue(field.key));
    }

    /// Reads the widgets.
    virtual void getCurrentModel(Model& model) const = 0;

    /// Fills the widgets, with their signals blocked, so that it does not count as an edit.
    virtual void applyModel(const Model& model) = 0;

    /// Writes every field, in the order of the table.
    virtual void saveSettingsInternal()
    {
        Model current;
        getCurrentModel(current);
        for (const auto& field : m_fields)
            settings().setValue(field.key, field.stored(current));
    }

    /// Passes to the running application what it can use at once.
    virtual void pushToApplication() {}

    /// True when the pending edits need a restart to take effect.
    virtual bool shouldRestart() const { return false; }

    /// Emits the page's own stateChanged().
    virtual void notifyStateChanged() = 0;

    /// Enables or disables the reset button.
    void checkContent() const
    {
        if (auto* resetButton = findChild<QPushButton*>(QLatin1String("resetButton")))
            enableButton(*resetButton, canResetContent(), getActionWidget());
        else
            qWarning("The form of the page \"%s\" has no push button named \"resetButton\"",
                     qPrintable(getPanelName()));
    }

    /// Call it after every edit: updates the reset button and emits stateChanged().
    void onEdited()
    {
        checkContent();
        notifyStateChanged();
    }

private:
    using Reader = void (ZelEditablePanel::*)(Model& model) const;
    using Copier = std::function<void(Model& to, const Model& from)>;

    Model read(Reader reader) const
    {
        Model model;
        (this->*reader)(model);
        return model;
    }

    /// The values of the widgets, except for one setting, which comes from another source.
    Model currentModelWith(const Copier& copy, Reader source) const
    {
        Model current = read(&ZelEditablePanel::getCurrentModel);
        copy(current, read(source));
        return current;
    }

    ZelSettingHelp settingHelp(const char* context, const Help& row)
    {
        const auto keys = row.keys;
        const auto shown = row.shown;
        const Copier copy = row.copy ? row.copy : copierOf(keys);
        const auto differs = [this, copy](Reader source) {
            return !(currentModelWith(copy, source) == read(&ZelEditablePanel::getCurrentModel));
        };
        const auto replace = [this, copy](Reader source) {
            applyModel(currentModelWith(copy, source));
            onEdited();
        };
        const auto hasDefault = [keys] {
            return std::none_of(keys.begin(), keys.end(), [](const QString& key) {
                return ZelSettingsRegistry::GetDefaultSettingsValue(key).isNull();
            });
        };
        const Reader stored = &ZelEditablePanel::readSettings,
                     defaults = &ZelEditablePanel::getDefaultSettings;

        ZelSettingHelp help;
        help.fields = row.fields;
        help.name = row.name ? QCoreApplication::translate(context, row.name) : QString();
        help.description = QCoreApplication::translate(context, row.description);
        help.range = row.range;
        help.effect = ZelPageHelp::effectText(row.effect);
        help.tipIsValue = row.tipIsValue;
        help.byDefault = [=] { return hasDefault() ? shown(read(defaults)) : QString(); };
        help.stored = [=] { return shown(read(stored)); };
        help.differsFromDefault = [=] { return hasDefault() && differs(defaults); };
        help.differsFromStored = [=] { return differs(stored); };
        help.useDefault = [=] { replace(defaults); };
        help.putBack = [=] { replace(stored); };
        return help;
    }

    Copier copierOf(const QStringList& keys) const
    {
        return [this, keys](Model& to, const Model& from) {
            for (const auto& field : m_fields)
                if (keys.contains(field.key))
                    field.copy(to, from);
        };
    }

    const Fields m_fields;
};

} // namespace zel

#endif
