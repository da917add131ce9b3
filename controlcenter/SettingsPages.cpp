#include "SettingsPages.h"

#include "Log.h"
#include "ZelPageEdits.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPointer>
#include <QSettings>

#include <algorithm>

namespace zel {

namespace {

const int FollowInterval = 1000; // ms

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

/// Without pending edits a transparent icon takes the same space.
void markButton(QPushButton& button, bool pending)
{
    const QString tip = pending ? QCoreApplication::translate("ZelControlCenter",
                                                              "This page has changes that are not applied.")
                                : QCoreApplication::translate("ZelControlCenter", "Shows this page.");
    if (button.toolTip() == tip)
        return;
    button.setIcon(QIcon(pending ? ":/controlCenter/controlCenter/pending.png"
                                 : ":/controlCenter/controlCenter/pendingNone.png"));
    button.setToolTip(tip);
    button.setAccessibleDescription(tip);
}

} // namespace

SettingsPages::SettingsPages(QObject* parent)
    : QObject(parent)
    , m_followed(nullptr)
    , m_stamp()
{
}

bool SettingsPages::add(ZelSettingsPanel* page)
{
    if (m_pages.contains(page))
        return false;
    m_pages.append(page);
    logUnregisteredKeys(*page);
    connect(page, SIGNAL(stateChanged()), this, SIGNAL(stateChanged()));
    connect(page, SIGNAL(destroyed(QObject*)), this, SLOT(onPageDestroyed(QObject*)));
    return true;
}

bool SettingsPages::remove(ZelSettingsPanel* page)
{
    disconnect(page, nullptr, this, nullptr);
    m_discarded.remove(page);
    return m_pages.removeOne(page);
}

void SettingsPages::forEach(const std::function<void(ZelSettingsPanel*)>& action)
{
    const QPointer<SettingsPages> self(this);
    const QList<ZelSettingsPanel*> pages = m_pages;
    for (ZelSettingsPanel* page : pages)
        if (self && m_pages.contains(page))
            action(page);
}

bool SettingsPages::hasModifications() const
{
    return std::any_of(m_pages.begin(), m_pages.end(),
                       [](const ZelSettingsPanel* page) { return page->hasModifications(); });
}

bool SettingsPages::canReset() const
{
    return std::any_of(m_pages.begin(), m_pages.end(),
                       [](const ZelSettingsPanel* page) { return page->canResetContent(); });
}

void SettingsPages::load()
{
    m_discarded.clear();
    forEach([](ZelSettingsPanel* page) { page->initializeWidget(); });
}

void SettingsPages::follow(QSettings* settings)
{
    m_followed = settings;
    m_timer.stop();
    if (!settings)
        return;
    m_stamp = {-1, -1}; // Others may have written since the pages were loaded.
    m_timer.start(FollowInterval, this);
}

void SettingsPages::timerEvent(QTimerEvent*)
{
    const FileStamp present = stampOf(m_followed->fileName());
    const bool isWriting = &ZelSettingsFile::Current(*m_followed) != m_followed;
    QString error;
    if (isWriting || (present.size == m_stamp.size && present.time == m_stamp.time) ||
        !ZelSettingsFile::ReadAgain(*m_followed, error))
        return;
    m_stamp = present;
    const QPointer<SettingsPages> self(this);
    forEach([](ZelSettingsPanel* page) {
        if (auto* edits = dynamic_cast<ZelPageEdits*>(page))
            edits->takeStored();
    });
    if (self)
        Q_EMIT stateChanged();
}

bool SettingsPages::apply(QSettings& settings, bool& restart, QString& error)
{
    QList<ZelSettingsPanel*> edited;
    for (ZelSettingsPanel* page : m_pages)
        if (page->hasModifications())
            edited << page;
    const auto applyPages = [&](QSettings&, QString&) {
        restart = applyEach(edited) || restart; // It may be called again.
        return true;
    };
    // One write for all pages, so that the file never has only some of the edits.
    if (edited.isEmpty())
        return applyPages(settings, error);
    const QPointer<SettingsPages> self(this);
    const bool written = ZelSettingsFile::Write(settings, applyPages, error);
    if (!self)
        return written;
    forEach([&](ZelSettingsPanel* page) {
        if (auto* edits = dynamic_cast<ZelPageEdits*>(page))
            written ? edits->takeStored() : edits->pushStored();
    });
    return written;
}

bool SettingsPages::applyEach(const QList<ZelSettingsPanel*>& edited)
{
    bool restart = false;
    forEach([&](ZelSettingsPanel* page) {
        // Another program has changed the file. The page must not put its own values back.
        if (!edited.contains(page) && page->hasModifications())
            page->initializeWidget();
        restart = page->applyModifications() || restart;
    });
    return restart;
}

void SettingsPages::reset()
{
    forEach([](ZelSettingsPanel* page) { page->resetContent(); });
}

void SettingsPages::discard()
{
    m_discarded.clear();
    forEach([&](ZelSettingsPanel* page) {
        auto* edits = dynamic_cast<ZelPageEdits*>(page);
        if (const auto again = edits ? edits->copyOfEdits() : nullptr)
            m_discarded.insert(page, again);
        if (page->hasModifications())
            page->initializeWidget();
    });
    Q_EMIT stateChanged();
}

void SettingsPages::restore()
{
    const auto discarded = m_discarded;
    m_discarded.clear();
    forEach([&](ZelSettingsPanel* page) {
        if (const auto again = discarded.value(page))
            again();
    });
    Q_EMIT stateChanged();
}

bool SettingsPages::mark() const
{
    bool any = false;
    for (ZelSettingsPanel* page : m_pages) {
        const bool pending = page->hasModifications();
        if (QPushButton* button = page->getActionWidget())
            markButton(*button, pending);
        any = any || pending;
    }
    return any;
}

void SettingsPages::onPageDestroyed(QObject* page)
{
    // A page that is being destroyed is only a QObject: compare its address.
    m_pages.erase(std::remove(m_pages.begin(), m_pages.end(), page), m_pages.end());
    m_discarded.remove(page);
    Q_EMIT stateChanged();
}

} // namespace zel
