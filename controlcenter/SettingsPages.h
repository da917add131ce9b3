#ifndef ZEL_SETTINGSPAGES_H
#define ZEL_SETTINGSPAGES_H

#include "PageList.h"
#include "SettingsFollower.h"

#include <QMap>
#include <QObject>

#include <functional>

class QSettings;

namespace zel {

class ZelSettingsPanel;

/// The registered pages in the order of their registration, and what is asked of all of them together. Needs
/// no window. Does not own the pages.
///
/// A page may register and unregister pages, or delete this object, in every function that is called here.
class SettingsPages : public QObject
{
    Q_OBJECT

public:
    explicit SettingsPages(QObject* parent);
    ~SettingsPages() override;

    /// The pages, the first registered one first.
    const PageList& all() const { return m_pages; }
    /// False when the page is already there. Logs its keys that the registry does not have.
    bool add(ZelSettingsPanel* page);
    /// False when the page is not there.
    bool remove(ZelSettingsPanel* page);

    /// True when any page has pending edits.
    bool hasModifications() const;
    /// True when any page differs from its defaults.
    bool canReset() const;

    /// Reads the file again, which others may have written, and loads the stored values, which discards the
    /// pending edits for good. False, with a translated text, when the file cannot be read or written.
    bool load(QSettings& settings, QString& error);
    /// Lets the fields without an edit take what other programs write to the file of these settings; null
    /// ends it. See SettingsFollower.
    void follow(QSettings* settings) { m_follower.follow(settings); }
    /// Writes the pending edits of all pages at once. False, with a translated text, when the file cannot be
    /// written; the edits then stay pending, and the running application has got the stored values again.
    /// @param restart  becomes true when an edit needs a restart to take effect
    bool apply(QSettings& settings, bool& restart, QString& error);
    /// Puts the defaults into the pages, as pending edits.
    void reset();
    /// True when restore() makes edits again.
    bool canRestore() const { return !m_discarded.isEmpty(); }

public Q_SLOTS:
    /// Discards the pending edits, so that restore() can make them again.
    void discard();
    /// Makes the edits again that the last discard() has taken back, on the pages that can do so.
    void restore();

Q_SIGNALS:
    /// The answers of a page may have changed, or a registered page was deleted.
    void stateChanged();

private Q_SLOTS:
    void takeStored();
    void onPageDestroyed(QObject* page);

private:
    PageList m_pages;
    SettingsFollower m_follower;
    QMap<const QObject*, std::function<void()>> m_discarded; ///< What makes its edits again, by page.
};

} // namespace zel

#endif
