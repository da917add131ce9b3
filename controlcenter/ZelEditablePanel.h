#ifndef ZEL_ZELEDITABLEPANEL_H
#define ZEL_ZELEDITABLEPANEL_H

#include "EnableButton.h"
#include "SignalBlock.h"
#include "ZelPageEdits.h"
#include "ZelPageHelp.h"
#include "ZelSettingsField.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"

#include <QMetaObject>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <vector>

namespace zel {

/// The base of pages that edit settings: it loads, compares, applies and resets them, and gives help on them.
/// A page adds a model (a plain struct), the table of its rows, and a slot for each of its widgets. Its form
/// has a button named "resetButton", which is enabled while the page differs from the defaults.
///
/// Nothing is written before applyModifications().
template <class Model>
class ZelEditablePanel : public ZelSettingsPanel, public ZelPageEdits
{
public:
    using ZelSettingsPanel::ZelSettingsPanel;

    /// Loads the stored values into the widgets.
    void initializeWidget() override
    {
        m_stored = storedModel();
        applyModel(m_stored);
        m_loaded = m_applied = currentModel();
        m_isLoaded = true;
        checkContent();
    }

    /// True when the widgets differ from the stored values.
    bool hasModifications() const override { return differ(storedModel(), currentModel()); }

    /// Takes what others have stored, passes the edits to the running application, then stores them. Returns
    /// shouldRestart().
    bool applyModifications() override
    {
        takeStored();
        if (!hasModifications())
            return false;
        pushToApplication(currentModel());
        // Before saving, because shouldRestart() compares with the stored values.
        const bool restart = shouldRestart();
        saveSettingsInternal();
        m_applied = currentModel();
        checkContent();
        return restart;
    }

    /// True when the widgets differ from the defaults.
    bool canResetContent() const override { return differ(defaultModel(), currentModel()); }

    /// Puts the defaults into the widgets, as a pending edit.
    void resetContent() override
    {
        if (!canResetContent())
            return;
        applyModel(defaultModel());
        onEdited();
    }

    /// Always false: initializeWidget() discards pending edits.
    bool cancelModifications() override { return false; }

    /// Does nothing: applyModifications() saves.
    virtual void saveSettings() {}

    /// See ZelPageEdits.
    void takeStored() override
    {
        if (!m_isLoaded)
            return;
        const Model stored = storedModel(), current = currentModel();
        Model merged = current;
        std::vector<const Field*> changed;
        forEachField([&](const Field& field) {
            if (field.isSame(stored, m_applied)) // The last Apply has been written.
                field.copy(m_loaded, m_applied);
            if (field.isSame(stored, current))
                field.copy(m_loaded, current);
            if (!field.isSame(current, m_loaded) || field.isSame(stored, m_stored))
                return;
            field.copy(merged, stored);
            changed.push_back(&field);
        });
        m_stored = stored;
        if (changed.empty())
            return;
        fill(merged, changed);
        const Model shown = currentModel();
        for (const Field* field : changed) {
            field->copy(m_loaded, shown);
            field->copy(m_applied, shown);
        }
        checkContent();
    }

    /// See ZelPageEdits.
    void pushStored() override
    {
        if (hasModifications())
            pushToApplication(storedModel());
    }

    /// See ZelPageEdits.
    std::vector<ZelPendingEdit> pendingEdits() override
    {
        std::vector<ZelPendingEdit> edits;
        if (!hasModifications())
            return edits;
        const Model stored = storedModel(), current = currentModel();
        for (const Row& row : m_rows) {
            if (!row.differs(current, stored))
                continue;
            const ZelSettingHelp* help = m_help->setting(row.fields.front().widgets.first());
            ZelPendingEdit edit = {help->name, row.text(stored), row.text(current), nullptr, help->putBack};
            if (edit.stored == edit.shown) // The field cannot show what is stored.
                edit.stored = settings().value(row.fields.front().key).toString();
            for (QWidget* field : help->fields)
                if (!edit.field && field->isEnabled() && field->isVisibleTo(this))
                    edit.field = field;
            edits.push_back(edit);
        }
        return edits;
    }

    /// See ZelPageEdits.
    std::function<void()> copyOfEdits() override
    {
        std::vector<const Field*> edited;
        const Model current = currentModel();
        forEachField([&](const Field& field) {
            if (!field.isSame(current, m_loaded))
                edited.push_back(&field);
        });
        if (edited.empty())
            return nullptr;
        return [this, current, edited] {
            Model model = currentModel();
            for (const Field* field : edited)
                field->copy(model, current);
            fill(model, edited);
            onEdited();
        };
    }

protected:
    /// One setting of the page.
    using Row = ZelSettingsRow<Model>;

    /// Makes a row.
    /// @param key          as in Settings.ini
    /// @param member       holds its value in the model
    /// @param widgets      shows the value: a widget of a usual kind, or ZelFieldWidgets
    /// @param effect       when an applied edit takes effect
    /// @param description  what the setting does, in a few translated sentences
    /// @param conversion   how the value is stored
    template <class T>
    static Row row(const char* key, T Model::*member,
                   const typename std::common_type<ZelFieldWidgets<T>>::type& widgets,
                   ZelSettingEffect effect, const QString& description,
                   const ZelFieldConversion<T>& conversion = plainConversion<T>())
    {
        return row(Field(key, member, widgets, conversion), widgets.range, effect, description);
    }

    /// Makes a row of a value that differs from the usual ones.
    static Row row(const ZelSettingsField<Model>& field, const QString& range, ZelSettingEffect effect,
                   const QString& description)
    {
        Row made;
        made.fields = {field};
        made.description = description;
        made.effect = effect;
        made.range = range;
        made.text = field.text;
        return made;
    }

    /// Sets the rows of the page and adds help on them. Call it in the constructor, after the form is set up
    /// and the keys are registered. The values are stored in the order of the rows: first the first value of
    /// each row, then the further ones.
    ///
    /// With followLanguage() it is called again in another language, with the same rows. It then takes their
    /// texts, and the values and edits stay.
    void setRows(const std::vector<Row>& rows)
    {
        const bool again = m_help;
        if (!again) {
            m_rows = rows;
            m_help = new ZelPageHelp(this);
            QStringList keys;
            forEachField([&](const Field& field) { keys.append(field.key); });
            keys.removeDuplicates();
            setSettingsKeys(keys);
        }
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            m_rows[i].takeTexts(rows[i]);
            m_help->add(helpOn(m_rows[i]));
        }
        if (!again)
            return;
        fill(currentModel(), {});
        changeState();
    }

    /// Reads the stored values.
    void readSettings(Model& model) const
    {
        forEachField([&](const Field& field) { field.readStored(model, settings().value(field.key)); });
    }

    /// Reads the registered defaults.
    void getDefaultSettings(Model& model) const
    {
        forEachField([&](const Field& field) {
            field.readDefault(model, ZelSettingsRegistry::GetDefaultSettingsValue(field.key));
        });
    }

    /// Reads the widgets.
    void getCurrentModel(Model& model) const
    {
        forEachField([&](const Field& field) { field.read(model); });
    }

    /// The stored values.
    Model storedModel() const { return read(&ZelEditablePanel::readSettings); }
    /// The registered defaults.
    Model defaultModel() const { return read(&ZelEditablePanel::getDefaultSettings); }
    /// The values of the widgets.
    Model currentModel() const { return read(&ZelEditablePanel::getCurrentModel); }

    /// Fills the widgets, with their signals blocked, so that it does not count as an edit.
    void applyModel(const Model& model)
    {
        std::vector<const Field*> all;
        forEachField([&](const Field& field) { all.push_back(&field); });
        fill(model, all);
    }

    /// The widgets have been filled from a model, while their signals were blocked: brings what follows from
    /// their values up to date.
    virtual void onFilled(const Model&) {}

    /// Writes every value.
    virtual void saveSettingsInternal()
    {
        const Model current = currentModel();
        for (std::size_t index = 0, further = 1; further > 0; ++index) {
            further = 0;
            for (const Row& row : m_rows) {
                if (index < row.fields.size())
                    settings().setValue(row.fields[index].key, row.fields[index].stored(current));
                further += index + 1 < row.fields.size();
            }
        }
    }

    /// Passes to the running application what it can use at once: the current values, or the stored ones
    /// after they could not be stored.
    virtual void pushToApplication(const Model&) {}

    /// True when the pending edits need a restart to take effect.
    virtual bool shouldRestart() const { return false; }

    /// Enables or disables the reset button.
    void checkContent() const
    {
        if (auto* resetButton = findChild<QPushButton*>(QLatin1String("resetButton")))
            enableButton(*resetButton, canResetContent(), getActionWidget());
        else
            qWarning("The form of the page \"%s\" has no push button named \"resetButton\"",
                     qPrintable(getPanelName()));
    }

    /// Call it after every edit: updates the reset button and emits the page's own stateChanged().
    void onEdited()
    {
        checkContent();
        changeState();
    }

private:
    using Field = ZelSettingsField<Model>;

    void changeState() { QMetaObject::invokeMethod(this, "stateChanged", Qt::DirectConnection); }

    Model read(void (ZelEditablePanel::*reader)(Model& model) const) const
    {
        Model model;
        (this->*reader)(model);
        return model;
    }

    template <class Action>
    void forEachField(const Action& action) const
    {
        for (const Row& row : m_rows)
            std::for_each(row.fields.begin(), row.fields.end(), action);
    }

    /// True when a value that counts in both models differs.
    bool differ(const Model& left, const Model& right) const
    {
        bool differs = false;
        forEachField([&](const Field& field) {
            differs = differs || (field.counts(left) && field.counts(right) && !field.isSame(left, right));
        });
        return differs;
    }

    void fill(const Model& model, const std::vector<const Field*>& fields)
    {
        QList<QWidget*> widgets;
        forEachField([&](const Field& field) { widgets += field.widgets; });
        const SignalBlock block(widgets);
        for (const Field* field : fields)
            field->show(model);
        // QAbstractButton does so when the focus moves among the buttons, but not when they are filled.
        for (QWidget* widget : widgets)
            if (const auto* button = qobject_cast<QRadioButton*>(widget))
                widget->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        onFilled(model);
    }

    void replace(const Row& row, const Model& source)
    {
        std::vector<const Field*> fields;
        for (const Field& field : row.fields)
            fields.push_back(&field);
        fill(source, fields);
        row.finish ? row.finish() : onEdited();
    }

    ZelSettingHelp helpOn(const Row& row)
    {
        const auto hasDefault = [&row] {
            return !row.fixed && std::none_of(row.fields.begin(), row.fields.end(), [](const Field& field) {
                return ZelSettingsRegistry::GetDefaultSettingsValue(field.key).isNull();
            });
        };
        ZelSettingHelp help;
        for (const Field& field : row.fields)
            help.fields += field.widgets;
        help.name = row.name;
        help.description = row.description;
        help.range = row.range;
        help.effect = ZelPageHelp::effectText(row.effect);
        help.tipIsValue = row.tipIsValue;
        help.byDefault = [this, &row, hasDefault] {
            return hasDefault() ? row.text(defaultModel()) : QString();
        };
        help.stored = [this, &row] { return row.text(storedModel()); };
        help.differsFromDefault = [this, &row, hasDefault] {
            return hasDefault() && row.differs(currentModel(), defaultModel());
        };
        help.differsFromStored = [this, &row] {
            return !row.fixed && row.differs(currentModel(), storedModel());
        };
        help.useDefault = [this, &row] { replace(row, defaultModel()); };
        help.putBack = [this, &row] { replace(row, storedModel()); };
        return help;
    }

    std::vector<Row> m_rows; ///< Stays where it is after setRows(), so that the help can refer to it.
    ZelPageHelp* m_help = nullptr;
    Model m_stored;  ///< What was stored when the widgets were last filled from it.
    Model m_loaded;  ///< What the widgets have shown then.
    Model m_applied; ///< What they have shown at the last Apply, which may not have been written.
    bool m_isLoaded = false;
};

} // namespace zel

#endif
