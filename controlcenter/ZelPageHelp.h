#ifndef ZEL_ZELPAGEHELP_H
#define ZEL_ZELPAGEHELP_H

#include "base/ZelExport.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPoint;
class QWidget;

namespace zel {

/// When an applied edit of a setting takes effect.
enum ZelSettingEffect { EffectAtOnce, EffectWithNextImport, EffectAfterRestart };

/// A value of a setting that a page can put into its fields.
enum ZelSettingSource { StoredValue, DefaultValue };

/// The help on one setting of a page, in the language of the interface. Every function is set.
struct ZEL_EXPORT ZelSettingHelp
{
    QList<QWidget*> fields;  ///< The widgets that edit it.
    QString name;            ///< As the page names it.
    QString description;     ///< What it does, in a few sentences.
    QString range;           ///< Empty for a setting without a range.
    QString effect;          ///< When an applied edit takes effect.
    bool tipIsValue = false; ///< The fields' tool tips are their values.
    /// The value as a field shows it; empty for a missing default.
    std::function<QString(ZelSettingSource)> text;
    /// True while the fields show another value; false for a missing default.
    std::function<bool(ZelSettingSource)> differs;
    /// Puts the value into the fields, as an edit.
    std::function<void(ZelSettingSource)> take;

    /// Description, range, default and effect in one paragraph.
    QString summary() const;
};

/// The help on the settings of a page: tool tips and accessible descriptions for the fields, and all that a
/// ZelHelpArea shows. On a field, the context menu and keys take back an edit (Alt+Backspace), put the
/// default into it (Alt+Delete), and ask what it is (Shift+F1).
///
/// A page has at most one, as its child; a help area finds it there.
class ZEL_EXPORT ZelPageHelp : public QObject
{
    Q_OBJECT

public:
    /// The page becomes its owner.
    explicit ZelPageHelp(QWidget* page);

    /// Adds a setting, and sets the tool tips and accessible descriptions of its fields. Replaces the one
    /// that has the same first field.
    void add(const ZelSettingHelp& setting);

    /// The setting that a field of the page edits; null for any other widget. Valid until the next add().
    const ZelSettingHelp* setting(const QWidget* field) const;

    /// The setting that a widget edits, on any page; null for one that edits none.
    static const ZelSettingHelp* HelpOn(const QWidget* field);

    /// Switches the tool tips off (true) while a help area shows the same text, or on.
    void setHelpAreaVisible(bool visible) { m_helpAreaVisible = visible; }

    /// When an edit takes effect, to follow "Takes effect:".
    static QString effectText(ZelSettingEffect effect);
    /// The range between two values.
    static QString rangeText(const QString& minimum, const QString& maximum);
    /// The range of a NumberBox.
    template <class Box>
    static QString rangeText(const Box* box)
    {
        return rangeText(box->shownText(box->minimum()), box->shownText(box->maximum()));
    }
    /// The state of a check box.
    static QString flagText(bool on);
    /// Both states of a check box.
    static QString flagRange();
    /// The texts of the buttons of a choice.
    static QString choiceText(const QList<QWidget*>& buttons);

    /// Watches the fields for the pointer and the focus. Consumes tool tips that are switched off, and the
    /// keys and the context menu of the fields' commands.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The pointer has entered a field, or a field has got the focus.
    void reached(QWidget* field);
    /// The user has changed what a field shows.
    void edited();
    /// A stored value or a default has been put into the focused field.
    void taken();
    /// The user asks what a field is. Without a receiver the help appears at the field.
    void helpRequested(QWidget* field);

private Q_SLOTS:
    /// Tells screen readers of the new item of a combo box. Brings it into the description, where they find
    /// no other text of it.
    void describeItem();

private:
    void run(int command, QWidget* field);
    void showMenu(QWidget* field, const QPoint& position);
    QString nameOf(const QWidget& field) const;
    void watch(QWidget* widget, QWidget* field);
    void describeItemOf(QWidget* field);

    std::vector<ZelSettingHelp> m_settings;
    bool m_helpAreaVisible = false;
    QHash<const QObject*, QWidget*> m_fields; ///< By watched widget: a field or its label.
};

} // namespace zel

#endif
