#ifndef ZEL_ZELSETTINGSPANEL_H
#define ZEL_ZELSETTINGSPANEL_H

#include "base/ZelExport.h"

#include <QPointer>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

class QSettings;
class kqDMIApplication;
class zelAction;

namespace zel {

/// The base of all pages in the control center's settings drawer. An application derives its own pages from
/// it, or from ZelEditablePanel.
///
/// Every concrete page declares the signal stateChanged(), without arguments, and emits it whenever the
/// result of hasModifications() or canResetContent() may have changed.
///
/// The creator of a page owns it, also while it is registered, and unregisters it before deleting it. The
/// application and the settings must outlive it. GUI thread only.
class ZEL_EXPORT ZelSettingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// For applications that group their pages; the control center ignores it.
    enum PanelCategory { ProjectCategory = 0, ApplicationCategory = 1, AdvancedCategory = 2, NoCategory = 3 };

    /// Creates a page without a name and a category, with the locale of the application's language. The
    /// application may be null; the page then only writes the settings.
    ZelSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                     Qt::WindowFlags flags);
    ~ZelSettingsPanel() override;

    /// The category; NoCategory at first.
    PanelCategory getPanelCategory() const;
    /// Sets the category.
    void setPanelCategory(PanelCategory category);

    /// The checkable button that scrolls to the page. The page owns it, also in another widget; null after
    /// such a widget has deleted it.
    QPushButton* getActionWidget() const;

    /// The name; empty at first.
    const QString& getPanelName() const;
    /// Sets the name and the text of the button.
    void setPanelName(const QString& name);

    /// The keys of Settings.ini that the page edits. When the page is registered, the control center logs
    /// those that the registry does not have.
    const QStringList& getSettingsKeys() const;

    /// Loads the stored values into the widgets and discards pending edits. Called when the page is
    /// registered, when the drawer opens, when pending edits are discarded, and during Apply for a page
    /// without edits whose stored values others have changed.
    virtual void initializeWidget() = 0;

    /// True while the widgets differ from what is stored.
    virtual bool hasModifications() const = 0;

    /// Writes the pending edits to the settings and passes them to the running application. Returns true when
    /// one of them needs a restart to take effect.
    virtual bool applyModifications() = 0;

    /// True while the widgets differ from the defaults.
    virtual bool canResetContent() const = 0;

    /// Puts the defaults into the widgets, as pending edits.
    virtual void resetContent() = 0;

    /// Discards pending edits. False when only initializeWidget() does so.
    virtual bool cancelModifications() = 0;

    /// For applications: reads the current state again. Does nothing unless overridden.
    virtual void refreshWidgetContent();

    /// For applications: adds an action to the page. Does nothing unless overridden.
    virtual void registerCCAction(zelAction* action);

    /// For applications: removes an action from the page. Does nothing unless overridden.
    virtual void unregisterCCActionByName(const QString& name);

protected:
    /// Sets the keys that the page edits. Call it in the constructor; ZelEditablePanel does so.
    void setSettingsKeys(const QStringList& keys);

    /// The application; may be null.
    kqDMIApplication* application() const { return m_application; }
    /// The settings; while Apply runs, the copy of their file that takes its place at the end.
    QSettings& settings() const;

    /// Lets the page follow the language of the interface: calls a function that sets all its texts, at once
    /// and whenever a translator is installed or removed. Its locale follows too. Call it in the constructor.
    void followLanguage(const std::function<void()>& setTexts);
    /// The same for a page with a form, whose texts are translated before the function is called.
    template <class Form>
    void followLanguage(Form& form, const std::function<void()>& setTexts)
    {
        setTexts(); // Setting the form up has translated it.
        onLanguageChange([this, &form] { form.retranslateUi(this); }, setTexts);
    }

    /// Sets the style sheet that kqDMIApplication::GetStylesheet() has under this name. Call it after the
    /// form is set up.
    void setNamedStyleSheet(const QString& name);

private:
    void onLanguageChange(const std::function<void()>& translateForm, const std::function<void()>& setTexts);
    void setLocaleOfLanguage();

    kqDMIApplication* m_application;
    QSettings* m_settings;
    QString m_panelName;
    QStringList m_settingsKeys;
    PanelCategory m_category;
    QPointer<QPushButton> m_actionWidget;
};

} // namespace zel

#endif
