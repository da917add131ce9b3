#ifndef ZEL_ZELPAGEEDITS_H
#define ZEL_ZELPAGEEDITS_H

#include "base/ZelExport.h"

#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace zel {

/// A setting that the user has edited, and not applied yet. Valid while its page lives.
struct ZelPendingEdit
{
    QString name;                  ///< As the page names it, in the language of the interface.
    QString stored;                ///< The stored value, as a field shows it.
    QString shown;                 ///< The value that Apply would store, as a field shows it.
    QWidget* field = nullptr;      ///< Where it was made, or null if that is hidden. The page owns it.
    std::function<void()> putBack; ///< Puts the stored value into the fields; null where they cannot show it.
};

/// The pending edits of a page, for the control center and the window around it: a page with rows, which
/// derives from ZelEditablePanel, has this interface too. Find it with
/// dynamic_cast<ZelPageEdits*>(panel), which is null for a page of another kind.
///
/// An edit is a field that the user has changed since a stored value was loaded into it. Fields whose values
/// are stored as one text, under the same key, are edited together. GUI thread only.
class ZEL_EXPORT ZelPageEdits
{
public:
    virtual ~ZelPageEdits();

    /// Takes the stored values into every field without an edit, as when another program has written the
    /// file. Keeps the edits, except for those that equal the stored value: they are applied. Emits nothing,
    /// but the result of hasModifications() may change. Call it when the file has changed, and after Apply
    /// has written it.
    virtual void takeStored() = 0;

    /// Passes the stored values of a page with pending edits to the running application, which has got the
    /// edited ones by an Apply whose write failed.
    virtual void pushStored() = 0;

    /// What Apply would change in the file, in the order of the page's rows; empty while hasModifications()
    /// is false. Also has what takes effect only with another setting.
    virtual std::vector<ZelPendingEdit> pendingEdits() = 0;

    /// Discards the pending edits, as initializeWidget() does. Returns a function that makes them again,
    /// except where the user has made newer ones, and emits stateChanged(). It is valid while the page lives;
    /// null without edits. A stored value that no field can show still counts as a modification.
    virtual std::function<void()> discardEdits() = 0;
};

} // namespace zel

#endif
