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
#include <optional>
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
        applyModel(*m_stored);
        m_loaded = currentModel();
        m_applied.reset();
        checkContent();
    }

    /// True when the widgets differ from the stored values.
    bool hasModifications() const override { return differsFrom(storedModel()); }

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
    bool canResetContent() const override { return differsFrom(defaultModel()); }

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
        if (!m_stored) // Not loaded yet.
            return;
        const Model stored = storedModel();
        for (const Field* field : m_fields)
            if (m_applied && field->isSame(stored, *m_applied)) // The last Apply has been written.
                field->copy(m_loaded, *m_applied);
        m_applied.reset();
        const Fields edited = editedFields();
        const auto isNew = [&](const Field& field) { return !field.isSame(stored, *m_stored); };
        Fields changed;
        for (const Row& row : m_rows) {
            // What one field shows may depend on the others of its row.
            const bool isChanged = std::any_of(row.fields.begin(), row.fields.end(), [&](const Field& field) {
                return isNew(field) && !contains(edited, field);
            });
            for (const Field& field : row.fields) {
                if (!contains(edited, field) && isChanged)
                    changed.push_back(&field);
                else if (isNew(field))
                    field.copy(m_loaded, stored); // An edit is now a difference from this.
            }
        }
        m_stored = stored;
        if (changed.empty())
            return;
        fill(stored, changed);
        const Model shown = currentModel();
        for (const Field* field : changed)
            field->copy(m_loaded, shown);
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
        const Fields edited = editedFields();
        for (const Row& row : m_rows) {
            for (const Field& field : row.fields) {
                // Apply also stores edits that have no effect now, such as those of another engine.
                const bool isEdited = contains(edited, field);
                if (field.isSame(current, stored) || (!isEdited && !field.counts(current)))
                    continue;
                edits.push_back(pendingEdit(row, field, stored, current));
                break; // A row is one setting.
            }
        }
        return edits;
    }

    /// See ZelPageEdits.
    std::function<void()> discardEdits() override
    {
        const Model discarded = currentModel();
        const Fields edited = editedFields();
        if (edited.empty())
            return nullptr;
        initializeWidget();
        return [this, discarded, edited] {
            const Fields newer = editedFields();
            Fields again;
            for (const Field* field : edited)
                if (!contains(newer, *field))
                    again.push_back(field);
            fill(discarded, again);
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
    static Row row(const char* key, T Model::*member, const ZelFieldWidgetsOf<T>& widgets,
                   ZelSettingEffect effect, const QString& description,
                   const ZelFieldConversion<T>& conversion = plainConversion<T>())
    {
        return row(key, member, widgets, effect, description, conversion, std::mem_fn(member));
    }

    /// Makes a row whose widgets show a part of the member: what place(model) returns, a reference that can
    /// be assigned unless the model is const.
    template <class T, class Part, class Place>
    static Row row(const char* key, T Model::*member, const ZelFieldWidgets<Part>& widgets,
                   ZelSettingEffect effect, const QString& description,
                   const ZelFieldConversion<T>& conversion, const Place& place)
    {
        Row made;
        made.fields = {{key, member, widgets, conversion, place}};
        made.help.fields = widgets.widgets;
        made.help.description = description;
        made.help.range = widgets.range;
        made.help.effect = ZelPageHelp::effectText(effect);
        made.help.tipIsValue = widgets.tipIsValue;
        made.text = made.fields.front().text;
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
        if (!again)
            takeRows(rows);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            m_rows[i].help = rows[i].help;
            addHelp(m_rows[i]);
        }
        if (again)
            fill(currentModel(), {});
    }

    /// Reads the stored values.
    void readSettings(Model& model) const
    {
        for (const Field* field : m_fields)
            field->readStored(model, settings().value(field->key));
    }

    /// Reads the registered defaults.
    void getDefaultSettings(Model& model) const
    {
        for (const Field* field : m_fields)
            field->readDefault(model, ZelSettingsRegistry::GetDefaultSettingsValue(field->key));
    }

    /// Reads the widgets.
    void getCurrentModel(Model& model) const
    {
        for (const Field* field : m_fields)
            field->read(model);
    }

    /// The stored values.
    Model storedModel() const { return read(&ZelEditablePanel::readSettings); }
    /// The registered defaults.
    Model defaultModel() const { return read(&ZelEditablePanel::getDefaultSettings); }
    /// The values of the widgets.
    Model currentModel() const { return read(&ZelEditablePanel::getCurrentModel); }

    /// Fills the widgets, with their signals blocked, so that it does not count as an edit.
    void applyModel(const Model& model) { fill(model, m_fields); }

    /// The widgets have been filled from a model, while their signals were blocked: brings what follows from
    /// their values up to date.
    virtual void onFilled(const Model&) {}

    /// Writes every value.
    virtual void saveSettingsInternal()
    {
        const Model current = currentModel();
        for (const Field* field : m_fields)
            settings().setValue(field->key, field->stored(current));
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
    using Fields = std::vector<const Field*>;

    void changeState() { QMetaObject::invokeMethod(this, "stateChanged", Qt::DirectConnection); }

    Model read(void (ZelEditablePanel::*reader)(Model& model) const) const
    {
        Model model;
        (this->*reader)(model);
        return model;
    }

    Model valuesOf(ZelSettingSource source) const
    {
        return source == StoredValue ? storedModel() : defaultModel();
    }

    static bool contains(const Fields& fields, const Field& field)
    {
        return std::find(fields.begin(), fields.end(), &field) != fields.end();
    }

    /// The fields with an edit, and those of the same keys: values that are stored as one are edited as one.
    Fields editedFields() const
    {
        const Model current = currentModel();
        QStringList keys;
        for (const Field* field : m_fields)
            if (!field->isSame(current, m_loaded))
                keys << field->key;
        Fields edited;
        for (const Field* field : m_fields)
            if (keys.contains(field->key))
                edited.push_back(field);
        return edited;
    }

    /// True when a value of the page that counts in the widgets differs.
    bool differsFrom(const Model& other) const
    {
        const Model current = currentModel();
        return std::any_of(m_rows.begin(), m_rows.end(),
                           [&](const Row& row) { return row.differs(current, other); });
    }

    /// Fills the widgets of some fields.
    void fill(const Model& from, const Fields& fields)
    {
        QList<QWidget*> widgets;
        for (const Row& row : m_rows)
            widgets += row.help.fields;
        const SignalBlock block(widgets);
        Model model = currentModel();
        for (const Field* field : fields) {
            field->copy(model, from);
            field->show(from);
        }
        for (const Row& row : m_rows)
            letCheckedTakeFocus(row.help.fields);
        onFilled(model);
    }

    /// The widget that shows how two models differ in a row, or another one of it; null when none takes the
    /// focus.
    QWidget* widgetToEdit(const Row& row, const Model& left, const Model& right)
    {
        QWidget* other = nullptr;
        for (const Field& field : row.fields) {
            for (QWidget* widget : field.widgets) {
                const auto* choice = qobject_cast<const QRadioButton*>(widget);
                if (!widget->isEnabled() || !widget->isVisibleTo(this) || (choice && !choice->isChecked()))
                    continue;
                if (!field.isSame(left, right))
                    return widget;
                other = other ? other : widget;
            }
        }
        return other;
    }

    /// @param field  a field of the row in which the two models differ
    ZelPendingEdit pendingEdit(const Row& row, const Field& field, const Model& stored, const Model& current)
    {
        const ZelSettingHelp* help = m_help->setting(row.help.fields.first());
        ZelPendingEdit edit = {help->name, row.text(stored), row.text(current),
                               widgetToEdit(row, current, stored), nullptr};
        const bool isEdited = std::any_of(row.fields.begin(), row.fields.end(),
                                          [&](const Field& one) { return !one.isSame(current, m_loaded); });
        if (!row.fixed && isEdited)
            edit.putBack = [take = help->take] { take(StoredValue); };
        if (edit.stored == edit.shown) {
            edit.stored = field.text(stored);
            edit.shown = field.text(current);
        }
        if (edit.stored == edit.shown) // The field cannot show what is stored.
            edit.stored = settings().value(field.key).toString();
        return edit;
    }

    void takeRows(const std::vector<Row>& rows)
    {
        m_rows = rows;
        m_help = new ZelPageHelp(this);
        for (const Row& row : m_rows)
            m_fields.push_back(&row.fields.front());
        for (const Row& row : m_rows)
            for (std::size_t further = 1; further < row.fields.size(); ++further)
                m_fields.push_back(&row.fields[further]);
        QStringList keys;
        for (const Field* field : m_fields)
            keys.append(field->key);
        keys.removeDuplicates();
        setSettingsKeys(keys);
    }

    void addHelp(Row& row)
    {
        const auto has = [&row](ZelSettingSource source) {
            const auto isMissing = [](const Field& field) {
                return ZelSettingsRegistry::GetDefaultSettingsValue(field.key).isNull();
            };
            return source == StoredValue ||
                   (!row.fixed && std::none_of(row.fields.begin(), row.fields.end(), isMissing));
        };
        row.help.text = [this, &row, has](ZelSettingSource source) {
            return has(source) ? row.text(valuesOf(source)) : QString();
        };
        row.help.differs = [this, &row, has](ZelSettingSource source) {
            return !row.fixed && has(source) && row.differs(currentModel(), valuesOf(source));
        };
        row.help.take = [this, &row](ZelSettingSource source) {
            Fields fields;
            for (const Field& field : row.fields)
                fields.push_back(&field);
            fill(valuesOf(source), fields);
            const Model shown = currentModel();
            for (const Field* field : fields)
                if (source == StoredValue) // No edit is left.
                    field->copy(m_loaded, shown);
            row.finish ? row.finish() : onEdited();
        };
        m_help->add(row.help);
    }

    std::vector<Row> m_rows; ///< Stays where it is after setRows(), so that the help can refer to it.
    Fields m_fields;         ///< Of all rows, in the order in which they are stored.
    ZelPageHelp* m_help = nullptr;
    std::optional<Model> m_stored; ///< What was stored when that was last looked at.
    /// What the widgets have shown of it. A stored 500 that another program makes 700 while the field shows
    /// an edit to 512 is 700 here.
    Model m_loaded;
    std::optional<Model> m_applied; ///< What Apply has stored since, which may not have been written.
};

} // namespace zel

#endif
