#include "SettingsPages.h"

#include "Log.h"
#include "ZelPageEdits.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "ZelSettingsRegistry.h"
#include "zelDoubleSpinBox.h"
#include "zelSpinBox.h"

#include <QApplication>
#include <QIcon>
#include <QPointer>
#include <QSettings>

#include <algorithm>

namespace zel {

namespace {

// In milliseconds.
const int FollowInterval = 1000;
const int RetryInterval = 10000;

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

bool lacksRegisteredKey(const QSettings& settings)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    return std::any_of(registered.begin(), registered.end(),
                       [&](const auto& entry) { return !settings.contains(entry.first); });
}

template <class Box>
bool isTypedIn(const QWidget* widget)
{
    const auto* box = qobject_cast<const Box*>(widget);
    return box && box->isTyping();
}

/// True while the user is typing a number, which no page knows yet, so that it would not keep it as an edit.
bool isTyping()
{
    const QWidget* focused = QApplication::focusWidget();
    return isTypedIn<zelSpinBox>(focused) || isTypedIn<zelDoubleSpinBox>(focused);
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

SettingsPages::SettingsPages(QObject* parent)
    : QObject(parent)
    , m_followed(nullptr)
    , m_stamp()
{
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
    m_timer.start(FollowInterval, this);
    if (isWriting || isTyping() || (present.size == m_stamp.size && present.time == m_stamp.time))
        return;
    // A setting that is gone gets its default, as at the next start; without it, the fields would show a
    // minimum.
    const QPointer<SettingsPages> self(this);
    QString error; // The log has it, too.
    const bool isRead = ZelSettingsFile::ReadAgain(*m_followed, error) &&
                        (!lacksRegisteredKey(*m_followed) || ZelSettingsFile::Repair(*m_followed, error));
    if (!self || !m_followed) // A validator may show a dialog.
        return;
    if (!isRead) {
        m_timer.start(RetryInterval, this); // Each attempt may wait for a lock.
        return;
    }
    m_stamp = present;
    m_pages.forEach([](ZelSettingsPanel* page) {
        if (auto* edits = dynamic_cast<ZelPageEdits*>(page))
            edits->takeStored();
    });
    if (self)
        Q_EMIT stateChanged();
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
    const QPointer<SettingsPages> self(this);
    const auto discarded = m_discarded;
    m_discarded.clear();
    m_pages.forEach([&](ZelSettingsPanel* page) {
        if (const auto again = discarded.value(page))
            again();
    });
    if (self)
        Q_EMIT stateChanged();
}

bool SettingsPages::mark() const
{
    bool any = false;
    m_pages.forEach([&](ZelSettingsPanel* page) {
        const QPointer<QPushButton> button = page->getActionWidget();
        const bool pending = page->hasModifications();
        if (button)
            markButton(*button, pending);
        any = any || pending;
    });
    return any;
}

void SettingsPages::onPageDestroyed(QObject* page)
{
    // A page that is being destroyed is only a QObject: compare its address.
    m_pages->erase(std::remove(m_pages->begin(), m_pages->end(), page), m_pages->end());
    m_discarded.remove(page);
    Q_EMIT stateChanged();
}

} // namespace zel
