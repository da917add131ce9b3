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

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        registerDefaults({{keys::CacheDirectory, "/d/cache"},
                          {keys::CacheSize, "1024"},
                          {keys::ScreenshotFolder, "/d/shots"}});
        store(m_application->getSettings(),
              {{keys::CacheDirectory, folder("cache")}, {keys::CacheSize, "500"}});
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        const SettingsTexts sizes = {{"10", {}},   {"4096", {}},     {"9", "10"},
                                     {"-1", "10"}, {"4097", "4096"}, {"many", "10"}};
        for (const QString& size : sizes.keys())
            QCOMPARE(writtenUntouched<ZelGeneralSettingsPanel>(*m_application, {{keys::CacheSize, size}},
                                                               keys::CacheSize),
                     sizes[size]);
    }

    void applyPushesToTheApplication()
    {
        const QString shots = folder("other");
        for (bool managed : {true, false}) {
            FakeManager manager;
            m_application->manager = managed ? &manager : nullptr;
            m_application->imageFolders.clear();
            Page page(m_application.get(), m_application->getSettings());
            page.type("databaseSpinBox", managed ? "2048" : "20");
            choose(page, "screenshotFolderButton", shots);
            QVERIFY(manager.cacheSizes.isEmpty() && m_application->imageFolders.isEmpty());
            QVERIFY(!page.page.applyModifications());
            QCOMPARE(manager.cacheSizes, managed ? QList<unsigned int>{2048} : QList<unsigned int>());
            QCOMPARE(m_application->imageFolders, QList<QString>({shots, shots}));
        }
        Page alone(nullptr, m_application->getSettings());
        alone.type("databaseSpinBox", "30");
        QVERIFY(!alone.page.applyModifications() && m_application->storedFile().contains("cacheSize=30"));
    }

    void onlyAnotherCacheFolderThanTheRunningOneAsksForARestart()
    {
        Page page(m_application.get(), m_application->getSettings());
        const QString running = folder("cache"), other = folder("b"), third = folder("c");
        const std::pair<QString, bool> sequence[] = {{other, true},    {third, true}, {running, false},
                                                     {running, false}, {other, true}, {other, false}};
        choose(page, "databaseButton", QString());
        QVERIFY(page.changes.isEmpty() && !page.page.hasModifications());
        for (const auto& [chosen, restart] : sequence) {
            page.changes.clear();
            choose(page, "databaseButton", chosen);
            QCOMPARE(page.changes.count(), 1);
            QCOMPARE(page.page.applyModifications(), restart);
            QCOMPARE(m_application->getSettings().value(keys::CacheDirectory).toString(), chosen);
        }
    }

    void resetShowsTheDefaultsUntilApplied()
    {
        Page page(m_application.get(), m_application->getSettings());
        const QByteArray before = m_application->storedFile();
        QVERIFY(page.canClickReset());
        QCOMPARE(page.reset(), 1);
        QCOMPARE(page.find("databaseButton")->toolTip(), QString("/d/cache"));
        QCOMPARE(page.find("screenshotFolderButton")->toolTip(), QString("/d/shots"));
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 1024);
        QVERIFY(!page.canClickReset() && !page.page.focusWidget());
        QCOMPARE(m_application->storedFile(), before);
        page.page.resetContent();
        QCOMPARE(page.changes.count(), 1);
        QVERIFY(page.page.applyModifications());
    }

    void longPathsShowTheirEnd()
    {
        const QString path = "/" + QString("long/").repeated(30) + "end";
        store(m_application->getSettings(), {{keys::CacheDirectory, path}});
        Page page(m_application.get(), m_application->getSettings());
        auto* button = page.find<QPushButton>("databaseButton");
        const QString shown = button->text();
        QVERIFY(shown.endsWith("/end") && shown.startsWith(QChar(0x2026)));
        page.page.resize(800, page.page.height());
        QVERIFY(button->text().size() > shown.size() && button->toolTip() == path);
    }
};

QTEST_MAIN(tst_ZelGeneralSettingsPanel)
#include "tst_ZelGeneralSettingsPanel.moc"
