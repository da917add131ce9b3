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
    QWidget* field;                ///< Where it was made, or null if that is hidden. The page owns it.
    std::function<void()> putBack; ///< Puts the stored value into the fields. Null for what no field shows.
};

/// The pending edits of a page, for the control center and the window around it: a page with rows, which
/// derives from ZelEditablePanel, has this interface too. Find it with
/// dynamic_cast<ZelPageEdits*>(panel), which is null for a page of another kind.
///
/// An edit is a field that the user has changed since a stored value was loaded into it. GUI thread only.
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

    /// A function that makes the pending edits again after they were discarded, and emits stateChanged().
    /// Valid while the page lives; null without edits. The edits are discarded by initializeWidget().
    virtual std::function<void()> copyOfEdits() = 0;
};

} // namespace zel

#endif
