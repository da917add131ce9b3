#include "FakePage.h"
#include "Files.h"
#include "PageButtons.h"
#include "SettingsPages.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include "platform/MTLogger.h"

#include <QtTest>

#include <map>
#include <memory>
#include <utility>

using zel::PageButtons;
using zel::SettingsPages;

Q_DECLARE_METATYPE(std::function<void(SettingsPages&)>)

/// Pages without a window.
class tst_SettingsPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_settings = std::make_unique<QSettings>(m_folder.path() + "/Settings.ini", QSettings::IniFormat);
        m_pages = std::make_unique<SettingsPages>(nullptr);
        for (const char* name : {"A", "B", "C"}) {
            m_page[name] = std::make_unique<FakePage>(name, *m_settings, m_calls);
            QVERIFY(m_pages->add(m_page[name].get()) && !m_pages->add(m_page[name].get()));
        }
        m_calls.clear();
    }

    void appliesInOrder()
    {
        QSignalSpy changed(m_pages.get(), SIGNAL(stateChanged()));
        QVERIFY(!m_pages->hasModifications() && !PageButtons::mark(m_pages->all()) && !m_pages->canReset());
        m_page["A"]->needsRestart = true;
        m_page["B"]->edit();
        QVERIFY(m_pages->hasModifications() && PageButtons::mark(m_pages->all()) && m_pages->canReset());
        for (const auto& [page, icon] : {std::make_pair("A", "pendingNone"), {"B", "pending"}})
            QCOMPARE(m_page[page]->getActionWidget()->icon().pixmap(8).toImage(),
                     QIcon(QString(":/controlCenter/controlCenter/%1.png").arg(icon)).pixmap(8).toImage());
        QVERIFY(m_page["B"]->getActionWidget()->toolTip() != m_page["A"]->getActionWidget()->toolTip());
        // Differs from the file only when that is read again: another program has changed it.
        m_page["C"]->whenAsked = [this] { m_page["C"]->modified = true; };
        m_page["B"]->whenAsked = [this] { // Another program writes meanwhile, so that all is done again.
            if (m_calls.endsWith("B apply") && std::exchange(m_page["A"]->needsRestart, false)) {
                zel::ZelSettingsFile::Current(*m_settings).setValue("edited", 1);
                store(m_settings->fileName(), "other=1\n");
            }
        };
        QVERIFY(m_pages->apply(*m_settings, m_restart, m_error) && m_restart && m_error.isEmpty());
        QCOMPARE(m_calls.join(",") + ',', QString("C initialize,A apply,B apply,C apply,").repeated(2));
        QVERIFY(m_pages->remove(m_page["B"].get()) && !m_pages->remove(m_page["B"].get()));
        m_pages->reset();
        QCOMPARE(QStringList(m_calls.mid(8)).join(","), QString("A reset,C reset"));
        m_page["B"]->edit();
        QCOMPARE(changed.count(), 1);
    }

    void pagesMayLeaveWhileTheyAreAsked_data()
    {
        QTest::addColumn<std::function<void(SettingsPages&)>>("ask");
        QTest::addColumn<QString>("leaving");
        const std::pair<const char*, std::function<void(SettingsPages&)>> questions[] = {
            {"modifications", [](SettingsPages& pages) { pages.hasModifications(); }},
            {"resettable", [](SettingsPages& pages) { pages.canReset(); }},
            {"reset", [](SettingsPages& pages) { pages.reset(); }},
            {"marks", [](SettingsPages& pages) { PageButtons::mark(pages.all()); }},
            {"discard", [](SettingsPages& pages) { pages.discard(); }},
            {"load", [this](SettingsPages& pages) { pages.load(*m_settings, m_error); }},
            {"apply", [this](SettingsPages& pages) { pages.apply(*m_settings, m_restart, m_error); }}};
        for (const auto& [name, ask] : questions)
            for (const char* leaving : {"A", "B", "C", "all", "list"})
                QTest::newRow(qPrintable(QString("%1: %2 leaves").arg(name, leaving))) << ask << leaving;
    }

    void pagesMayLeaveWhileTheyAreAsked()
    {
        QFETCH(std::function<void(SettingsPages&)>, ask);
        QFETCH(QString, leaving);
        m_page["C"]->modified = true;
        m_page["A"]->whenAsked = m_page["B"]->whenAsked = [&] {
            if (leaving == "list")
                m_pages.reset();
            else if (leaving == "all")
                m_page.clear();
            else
                m_page.erase(leaving);
        };
        ask(*m_pages);
        const bool others = leaving != "list" && leaving != "all";
        QCOMPARE(static_cast<int>(m_page.size()), leaving == "list" ? 3 : others ? 2 : 0);
        QCOMPARE(m_pages ? (*m_pages).all()->size() : -1, leaving == "list" ? -1 : others ? 2 : 0);
        m_page.clear();
    }

    void unregisteredKeysAreLogged()
    {
        struct : FakePage
        {
            using FakePage::FakePage;
            using ZelSettingsPanel::setSettingsKeys;
        } page("Folders", *m_settings, m_calls);
        page.setSettingsKeys({"known", "unknown"});
        zel::ZelSettingsRegistry::RegisterSetting("known", "1", &zel::ZelSettingsValidators::noOp);
        MTLogger::InstallFileHandler((m_folder.path() + "/log.txt").toStdString(), false, "");
        m_pages->add(&page);
        MTLogger::RemoveFileHandler();
        zel::ZelSettingsRegistry::ClearSettingsValues();
        const QString log = contentOf(m_folder.path() + "/log.txt");
        QVERIFY2(log.contains("\"Folders\"") && log.contains("not registered: unknown"), qPrintable(log));
    }

private:
    QTemporaryDir m_folder;
    QStringList m_calls;
    std::unique_ptr<QSettings> m_settings;
    std::map<QString, std::unique_ptr<FakePage>> m_page;
    std::unique_ptr<SettingsPages> m_pages;
    bool m_restart = false;
    QString m_error;
};

QTEST_MAIN(tst_SettingsPages)
#include "tst_SettingsPages.moc"
