#include "FakeApplication.h"
#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelGeneralSettingsPanel.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

using namespace zel;

typedef ShownPage<ZelGeneralSettingsPanel> Page;

class tst_ZelGeneralSettingsPanel : public QObject
{
    Q_OBJECT

private:
    /// Answers the folder dialog of a button; an empty folder cancels it.
    static void choose(Page& page, const char* button, const QString& folder)
    {
        QTimer answer;
        connect(&answer, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            answer.stop();
            if (!folder.isEmpty())
                dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder);
            QTest::keyClick(dialog, folder.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        answer.start(10);
        page.click(button);
    }

    QString folder(const QString& name)
    {
        QDir(m_application->getApplicationFolder()).mkpath(name);
        return m_application->getApplicationFolder() + "/" + name;
    }

    std::unique_ptr<FakeApplication> m_application;
    FakeManager m_manager;

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        m_manager = FakeManager();
        registerDefaults({{keys::CacheDirectory, "/d/cache"},
                          {keys::CacheSize, "1024"},
                          {keys::ScreenshotFolder, "/d/shots"}});
        store(m_application->getSettings(), {{keys::CacheDirectory, folder("cache")},
                                             {keys::CacheSize, "500"},
                                             {keys::ScreenshotFolder, folder("shots")}});
    }

    void untouchedPageWritesOnlyWhatItCannotShow_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("lowest") << "10"
                                << "10";
        QTest::newRow("highest") << "4096"
                                 << "4096";
        QTest::newRow("too low") << "9"
                                 << "10";
        QTest::newRow("too high") << "4097"
                                  << "4096";
        QTest::newRow("not a number") << "many"
                                      << "10";
        QTest::newRow("nothing") << QString() << "10";
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        QSettings& settings = m_application->getSettings();
        stored.isNull() ? settings.remove(keys::CacheSize) : settings.setValue(keys::CacheSize, stored);
        const QByteArray before = m_application->storedFile();
        Page page(m_application.get(), settings);
        QCOMPARE(page.page.hasModifications(), stored != shown);
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(m_application->storedFile() != before, stored != shown);
        QCOMPARE(settings.value(keys::CacheSize).toString(), shown);
        QVERIFY(page.changes.isEmpty());
        QVERIFY(!page.page.hasModifications());
    }

    void applyPushesToTheApplication_data()
    {
        QTest::addColumn<bool>("application");
        QTest::addColumn<bool>("manager");
        QTest::newRow("viewer") << true << true;
        QTest::newRow("without a manager") << true << false;
        QTest::newRow("without an application") << false << false;
    }

    void applyPushesToTheApplication()
    {
        QFETCH(bool, application);
        QFETCH(bool, manager);
        m_application->manager = manager ? &m_manager : nullptr;
        Page page(application ? m_application.get() : nullptr, m_application->getSettings());
        page.type("databaseSpinBox", "2048");
        QVERIFY(!page.changes.isEmpty() && m_manager.cacheSizes.isEmpty());
        const QString shots = folder("other");
        choose(page, "screenshotFolderButton", shots);
        QVERIFY(m_application->imageFolders.isEmpty());

        QVERIFY(!page.page.applyModifications());
        QCOMPARE(m_manager.cacheSizes, manager ? QList<unsigned int>{2048} : QList<unsigned int>());
        QCOMPARE(m_application->imageFolders,
                 application ? QList<QString>({shots, shots}) : QList<QString>());
        QVERIFY(m_application->storedFile().contains("cacheSize=2048"));
        QCOMPARE(m_application->getSettings().value(keys::ScreenshotFolder).toString(), shots);
    }

    void onlyAnotherCacheFolderThanTheRunningOneAsksForARestart()
    {
        Page page(m_application.get(), m_application->getSettings());
        const QString running = folder("cache"), other = folder("b"), third = folder("c");
        const std::pair<QString, bool> sequence[] = {{other, true},    {third, true}, {running, false},
                                                     {running, false}, {other, true}, {other, false}};
        for (const auto& [chosen, restart] : sequence) {
            page.changes.clear();
            choose(page, "databaseButton", chosen);
            QCOMPARE(page.changes.count(), 1);
            QCOMPARE(page.page.applyModifications(), restart);
            QCOMPARE(m_application->getSettings().value(keys::CacheDirectory).toString(), chosen);
        }
    }

    void cancelledDialogChangesNothing()
    {
        Page page(m_application.get(), m_application->getSettings());
        for (const char* button : {"databaseButton", "screenshotFolderButton"})
            choose(page, button, QString());
        QVERIFY(page.changes.isEmpty() && !page.page.hasModifications());
    }

    void resetShowsTheDefaultsUntilApplied()
    {
        Page page(m_application.get(), m_application->getSettings());
        const QByteArray before = m_application->storedFile();
        QVERIFY(page.canClickReset());
        page.find("resetButton")->setFocus();
        QTest::keyClick(page.find("resetButton"), Qt::Key_Space);
        QCOMPARE(page.find("databaseButton")->toolTip(), QString("/d/cache"));
        QCOMPARE(page.find("screenshotFolderButton")->toolTip(), QString("/d/shots"));
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 1024);
        QCOMPARE(page.changes.count(), 1);
        QVERIFY(!page.canClickReset() && !page.page.focusWidget());
        QCOMPARE(m_application->storedFile(), before);
        page.page.resetContent();
        QCOMPARE(page.changes.count(), 1);
        QVERIFY(page.page.hasModifications() && page.page.applyModifications());
    }

    void longPathsShowTheirEnd()
    {
        const QString path = "/" + QString("long/").repeated(30) + "end";
        m_application->getSettings().setValue(keys::CacheDirectory, path);
        Page page(m_application.get(), m_application->getSettings());
        auto* button = page.find<QPushButton>("databaseButton");
        const QString shown = button->text();
        QVERIFY(shown.endsWith("/end") && shown.startsWith(QChar(0x2026)));
        page.page.resize(800, page.page.height());
        QVERIFY(button->text().size() > shown.size());
        QCOMPARE(button->toolTip(), path);
    }
};

QTEST_MAIN(tst_ZelGeneralSettingsPanel)
#include "tst_ZelGeneralSettingsPanel.moc"
