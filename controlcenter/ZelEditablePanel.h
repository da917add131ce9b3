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

/// A page that edits settings: what all such pages do alike. A page adds a plain model record that can be
/// compared, the table of its fields, and how the model gets into its widgets and out of them. Its form has a
/// button named "resetButton", which is enabled exactly while the page differs from the defaults.
///
/// Filling the widgets never looks like a user's edit; nothing is written before applyModifications().
template <class Model>
class ZelEditablePanel : public ZelSettingsPanel
{
public:
    /// The table of a page: a row for each key.
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

    /// Reads the stored values into the widgets.
    void initializeWidget() override
    {
        Model stored;
        readSettings(stored);
        applyModel(stored);
        checkContent();
    }

    /// True when the widgets do not hold the stored values.
    bool hasModifications() const override
    {
        Model stored, current;
        readSettings(stored);
        getCurrentModel(current);
        return !(stored == current);
    }

    /// Hands the edits to the running application, then stores them. True when shouldRestart() says so.
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

    /// True when the widgets do not hold the defaults.
    bool canResetContent() const override
    {
        Model defaults, current;
        getDefaultSettings(defaults);
        getCurrentModel(current);
        return !(defaults == current);
    }

    /// Puts the defaults into the widgets, as an edit.
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
    /// A row of the page's help: a setting, which has one or more keys.
    struct Help
    {
        QList<QWidget*> fields;  ///< What shows and edits it.
        const char* name;        ///< Null where the first field's name or label tells it.
        const char* description; ///< What the setting does, in a few sentences.
        QString range;           ///< Empty when there is none to tell.
        ZelSettingEffect effect; ///< When an applied edit counts.
        QStringList keys;        ///< Those that the fields hold.
        /// The setting's value in a model, as the fields would show it.
        std::function<QString(const Model&)> shown;
        /// Takes the setting over from a model into another one. Null for what the fields of the keys hold.
        std::function<void(Model& to, const Model& from)> take = nullptr;
        bool tipIsValue = false; ///< The fields need their tool tips for their values.
    };

    /// Tells of some of the page's settings, or of all. To be called once the form is set up; the registry is
    /// complete by then.
    /// @param context  in which names and descriptions are translated
    void describe(const char* context, const std::vector<Help>& rows)
    {
        auto* help = findChild<ZelPageHelp*>();
        if (!help)
            help = new ZelPageHelp(this);
        for (const Help& row : rows)
            help->add(settingHelp(context, row));
    }

    /// Reads what is stored.
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
        if (auto* resetButton = findChild<QPushButton*>(QLatin1String("resetButton")))
            enableButton(*resetButton, canResetContent(), getActionWidget());
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
    typedef void (ZelEditablePanel::*Reader)(Model& model) const;
    typedef std::function<void(Model& to, const Model& from)> Taker;

    Model read(Reader reader) const
    {
        Model model;
        (this->*reader)(model);
        return model;
    }

    /// What the widgets hold, but for a setting that is taken from elsewhere.
    Model readWith(const Taker& take, Reader elsewhere) const
    {
        Model current = read(&ZelEditablePanel::getCurrentModel);
        take(current, read(elsewhere));
        return current;
    }

    ZelSettingHelp settingHelp(const char* context, const Help& row)
    {
        const auto keys = row.keys;
        const auto shown = row.shown;
        const Taker take = row.take ? row.take : taker(keys);
        const auto differs = [this, take](Reader from) {
            return !(readWith(take, from) == read(&ZelEditablePanel::getCurrentModel));
        };
        const auto replace = [this, take](Reader from) {
            applyModel(readWith(take, from));
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

    Taker taker(const QStringList& keys) const
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
