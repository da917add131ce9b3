#include "SettingsPages.h"

#include "Log.h"
#include "ZelPageEdits.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"

#include <QPointer>
#include <QSettings>

#include <algorithm>

namespace zel {

namespace {

void logUnregisteredKeys(const ZelSettingsPanel& page)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    QStringList keys = page.getSettingsKeys();
    keys.erase(std::remove_if(keys.begin(), keys.end(),
                              [&](const QString& key) { return registered.count(key) > 0; }),
               keys.end());
    if (!keys.isEmpty())
        logWarning(QString("The page \"%1\" has keys without a default or a validator, because they are not "
                           "registered: %2")
                       .arg(page.getPanelName(), keys.join(", ")));
}

/// Applies every page, in order. One that is not in the list has no edits of the user.
bool applyEach(const PageList& pages, const QList<ZelSettingsPanel*>& edited)
{
    // Another program has changed the file. The page must not put its own values back.
    const QList<ZelSettingsPanel*> outdated = pages.modified();
    pages.forEach([&](ZelSettingsPanel* page) {
        if (outdated.contains(page) && !edited.contains(page))
            page->initializeWidget();
    });
    bool restart = false;
    pages.forEach([&](ZelSettingsPanel* page) { restart = page->applyModifications() || restart; });
    return restart;
}

} // namespace

SettingsPages::SettingsPages(QObject* parent)
    : QObject(parent)
    , m_follower(this)
{
    connect(&m_follower, SIGNAL(changed()), this, SLOT(takeStored()));
}

SettingsPages::~SettingsPages()
{
    m_pages->clear();
}

bool SettingsPages::add(ZelSettingsPanel* page)
{
    if (m_pages->contains(page))
        return false;
    m_pages->append(page);
    logUnregisteredKeys(*page);
    connect(page, SIGNAL(stateChanged()), this, SIGNAL(stateChanged()));
    connect(page, SIGNAL(destroyed(QObject*)), this, SLOT(onPageDestroyed(QObject*)));
    return true;
}

bool SettingsPages::remove(ZelSettingsPanel* page)
{
    disconnect(page, nullptr, this, nullptr);
    m_discarded.remove(page);
    return m_pages->removeOne(page);
}

bool SettingsPages::hasModifications() const
{
    return m_pages.any([](ZelSettingsPanel* page) { return page->hasModifications(); });
}

bool SettingsPages::canReset() const
{
    return m_pages.any([](ZelSettingsPanel* page) { return page->canResetContent(); });
}

bool SettingsPages::load(QSettings& settings, QString& error)
{
    const bool usable = ZelSettingsFile::ReadAgain(settings, error) &&
                        ZelSettingsFile::IsWritable(settings.fileName(), error);
    m_discarded.clear();
    m_pages.forEach([](ZelSettingsPanel* page) { page->initializeWidget(); });
    return usable;
}

bool SettingsPages::apply(QSettings& settings, bool& restart, QString& error)
{
    const PageList pages = m_pages;
    const QList<ZelSettingsPanel*> edited = pages.modified();
    restart = false;
    const auto applyPages = [&](QSettings&, QString&) {
        restart = applyEach(pages, edited) || restart; // It may be called again.
        return true;
    };
    // One write for all pages, so that the file never has only some of the edits.
    if (edited.isEmpty())
        return applyPages(settings, error);
    const bool written = ZelSettingsFile::Write(settings, applyPages, error);
    pages.forEach([&](ZelSettingsPanel* page) {
        if (auto* edits = dynamic_cast<ZelPageEdits*>(page))
            written ? edits->takeStored() : edits->pushStored();
    });
    return written;
}

void SettingsPages::reset()
{
    m_pages.forEach([](ZelSettingsPanel* page) { page->resetContent(); });
}

void SettingsPages::discard()
{
    const QPointer<SettingsPages> self(this);
    const PageList pages = m_pages;
    QList<ZelSettingsPanel*> others = pages.modified();
    decltype(m_discarded) discarded;
    pages.forEach([&](ZelSettingsPanel* page) {
        auto* edits = dynamic_cast<ZelPageEdits*>(page);
        if (edits)
            others.removeOne(page);
        if (const auto again = edits ? edits->discardEdits() : nullptr)
            discarded.insert(page, again);
    });
    pages.forEach([&](ZelSettingsPanel* page) {
        if (others.contains(page))
            page->initializeWidget();
    });
    if (!self)
        return;
    m_discarded = discarded;
    Q_EMIT stateChanged();
}

void SettingsPages::restore()
{
    const auto discarded = m_discarded;
    m_discarded.clear();
    m_pages.forEach([&](ZelSettingsPanel* page) {
        if (const auto again = discarded.value(page))
            again(); // The page says so.
    });
}

void SettingsPages::takeStored()
{
    const QPointer<SettingsPages> self(this);
    m_pages.forEach([](ZelSettingsPanel* page) {
        if (auto* edits = dynamic_cast<ZelPageEdits*>(page))
            edits->takeStored();
    });
    if (self)
        Q_EMIT stateChanged();
}

void SettingsPages::onPageDestroyed(QObject* page)
{
    // A page that is being destroyed is only a QObject: compare its address.
    m_pages->erase(std::remove(m_pages->begin(), m_pages->end(), page), m_pages->end());
    m_discarded.remove(page);
    Q_EMIT stateChanged();
}

} // namespace zel
