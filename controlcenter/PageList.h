#ifndef ZEL_PAGELIST_H
#define ZEL_PAGELIST_H

#include <QList>

#include <functional>
#include <memory>

namespace zel {

class ZelSettingsPanel;

/// A list of pages, each of which may change the list, or delete the object that has it, while it is asked:
/// those that have left the list are not asked any more. A copy shares the list and keeps it alive, so a
/// function that goes through it twice takes one.
class PageList
{
public:
    QList<ZelSettingsPanel*>* operator->() const { return m_pages.get(); }

    /// Calls a function for each page, in order.
    void forEach(const std::function<void(ZelSettingsPanel*)>& action) const;
    /// True when a test is true for a page; the next ones are not tested.
    bool any(const std::function<bool(ZelSettingsPanel*)>& test) const;
    /// The pages with pending edits.
    QList<ZelSettingsPanel*> modified() const;

private:
    std::shared_ptr<QList<ZelSettingsPanel*>> m_pages = std::make_shared<QList<ZelSettingsPanel*>>();
};

} // namespace zel

#endif
