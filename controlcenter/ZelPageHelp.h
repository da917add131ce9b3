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

class QWidget;

namespace zel {

/// When an applied edit of a setting counts.
enum ZelSettingEffect { EffectAtOnce, EffectWithNextImport, EffectAfterRestart };

/// What a user is told about one setting of a page, in the language of the interface, and what can be done
/// with it. All functions are there.
struct ZelSettingHelp
{
    QList<QWidget*> fields;                   ///< What shows and edits it.
    QString name;                             ///< What the user knows it by.
    QString description;                      ///< What it does, in a few sentences.
    QString range;                            ///< Empty when there is none to tell.
    QString effect;                           ///< When an applied edit counts.
    bool tipIsValue;                          ///< The fields need their tool tips for their values.
    std::function<QString()> byDefault;       ///< As a field would show it; empty without a default.
    std::function<QString()> stored;          ///< As a field would show it.
    std::function<bool()> differsFromDefault; ///< False also without a default.
    std::function<bool()> differsFromStored;  ///< True while an edit is pending.
    std::function<void()> useDefault;         ///< Puts the default into the fields, as a pending edit.
    std::function<void()> putBack;            ///< Puts what is stored into the fields.

    /// All that does not change while the page lives, in a paragraph.
    QString summary() const;
};

/// What a page tells about its settings. It becomes the fields' tool tip and accessible description, and a
/// help area shows it in full, with what is stored.
///
/// A page has at most one, as its child, which is how a help area finds it.
class ZEL_EXPORT ZelPageHelp : public QObject
{
    Q_OBJECT

public:
    /// The page owns it.
    explicit ZelPageHelp(QWidget* page);

    /// Tells of one more setting, with tool tips and accessible descriptions for its fields.
    void add(const ZelSettingHelp& setting);

    /// The setting that a field of this page shows; null for any other widget. Valid until the next add().
    const ZelSettingHelp* setting(const QWidget* field) const;

    /// Whether a help area shows the help, so that tool tips need not say it over the fields.
    void setShown(bool shown) { m_shown = shown; }

    /// When an edit counts, as a sentence.
    static QString effectText(ZelSettingEffect effect);
    /// From the least to the greatest value.
    static QString rangeText(const QString& least, const QString& greatest);
    /// Of a NumberBox.
    template <class Box>
    static QString rangeText(const Box* box)
    {
        return rangeText(box->shownText(box->minimum()), box->shownText(box->maximum()));
    }
    /// The state of a check box.
    static QString flagText(bool on);
    /// Both states of a check box.
    static QString flagRange();
    /// The texts of the buttons between which the user chooses.
    static QString choiceText(const QList<QWidget*>& buttons);

    /// Watches the fields for the pointer, the focus and edits. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The pointer or the keyboard has come to a field.
    void reached(QWidget* field);
    /// The user has changed what a field shows.
    void edited();

private:
    QString nameOf(const QWidget& field) const;
    void watch(QWidget* widget, QWidget* field);

    std::vector<ZelSettingHelp> m_settings;
    bool m_shown = false;
    QHash<const QObject*, QWidget*> m_fields; ///< Of each watched widget: a field, or its label.
};

} // namespace zel

#endif
