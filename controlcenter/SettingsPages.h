#ifndef ZEL_SETTINGSPAGES_H
#define ZEL_SETTINGSPAGES_H

#include "base/SystemFiles.h"

#include <QBasicTimer>
#include <QList>
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

    /// The pages, the first registered one first.
    const QList<ZelSettingsPanel*>& all() const { return m_pages; }
    /// False when the page is already there. Logs its keys that the registry does not have.
    bool add(ZelSettingsPanel* page);
    /// False when the page is not there.
    bool remove(ZelSettingsPanel* page);
    /// Calls a function for each page, in order.
    void forEach(const std::function<void(ZelSettingsPanel*)>& action);

    /// True when any page has pending edits.
    bool hasModifications() const;
    /// True when any page differs from its defaults.
    bool canReset() const;

    /// Loads the stored values, which discards the pending edits for good.
    void load();
    /// Lets the fields without an edit take what other programs write to the file of these settings; null
    /// ends it.
    void follow(QSettings* settings);
    /// Writes the pending edits of all pages at once. False, with a translated text, when the file cannot be
    /// written; the edits then stay pending, and the running application has got the stored values again.
    /// @param restart  becomes true when an edit needs a restart to take effect
    bool apply(QSettings& settings, bool& restart, QString& error);
    /// Puts the defaults into the pages, as pending edits.
    void reset();
    /// Discards the pending edits, so that restore() can make them again.
    void discard();
    /// Makes the edits again that the last discard() has taken back, on the pages that can do so.
    void restore();
    bool canRestore() const { return !m_discarded.isEmpty(); }

    /// Marks the buttons of the pages that have pending edits. True when there is one.
    bool mark() const;

Q_SIGNALS:
    /// The answers of a page may have changed, or a registered page was deleted.
    void stateChanged();

protected:
    /// Looks whether the file has changed.
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void onPageDestroyed(QObject* page);

private:
    /// Applies every page, in order. One that is not in the list has no edits of the user.
    bool applyEach(const QList<ZelSettingsPanel*>& edited);

    QList<ZelSettingsPanel*> m_pages;
    QSettings* m_followed; ///< Not owned.
    FileStamp m_stamp;     ///< Of their file, when it was read.
    QBasicTimer m_timer;
    QMap<const QObject*, std::function<void()>> m_discarded; ///< What makes its edits again, by page.
};

} // namespace zel

#endif
