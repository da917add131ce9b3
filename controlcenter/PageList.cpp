#include "PageList.h"

#include "ZelSettingsPanel.h"

#include <algorithm>

namespace zel {

void PageList::forEach(const std::function<void(ZelSettingsPanel*)>& action) const
{
    any([&](ZelSettingsPanel* page) {
        action(page);
        return false;
    });
}

bool PageList::any(const std::function<bool(ZelSettingsPanel*)>& test) const
{
    const auto listed = m_pages;
    const QList<ZelSettingsPanel*> pages = *listed;
    return std::any_of(pages.begin(), pages.end(),
                       [&](ZelSettingsPanel* page) { return listed->contains(page) && test(page); });
}

QList<ZelSettingsPanel*> PageList::modified() const
{
    QList<ZelSettingsPanel*> modified;
    forEach([&](ZelSettingsPanel* page) {
        if (page->hasModifications())
            modified << page;
    });
    return modified;
}

} // namespace zel
