#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelGeneralSettingsPanel.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
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
        store(m_application->getSettings(),
              {{keys::CacheDirectory, folder("cache")}, {keys::CacheSize, "500"}});
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        const SettingsTexts sizes = {
            {"10", {}}, {"4096", {}}, {"-1", "10"}, {"4097", "4096"}, {"many", "10"}};
        for (const QString& size : sizes.keys())
            QCOMPARE(writtenUntouched<ZelGeneralSettingsPanel>(*m_application, {{keys::CacheSize, size}},
                                                               keys::CacheSize),
                     sizes[size]);
    }

    void applyPushesToTheApplication()
    {
        FakeManager manager;
        m_application->manager = &manager;
        Page page(m_application.get(), m_application->getSettings());
        const QString shots = folder("other");
        page.type("databaseSpinBox", "2048");
        choose(page, "screenshotFolderButton", shots);
        QVERIFY(manager.cacheSizes.isEmpty() && m_application->imageFolders.isEmpty());
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(manager.cacheSizes, QList<unsigned int>{2048});
        QCOMPARE(m_application->imageFolders, QList<QString>({shots, shots}));

        Page alone(nullptr, m_application->getSettings());
        alone.type("databaseSpinBox", "30");
        QVERIFY(!alone.page.applyModifications() && m_application->storedFile().contains("cacheSize=30"));
    }

    void onlyAnotherCacheFolderThanTheRunningOneAsksForARestart()
    {
        Page page(m_application.get(), m_application->getSettings());
        choose(page, "databaseButton", QString());
        QVERIFY(page.changes.isEmpty() && !page.page.hasModifications());
        const std::pair<const char*, bool> sequence[] = {{"b", true},      {"c", true}, {"cache", false},
                                                         {"cache", false}, {"b", true}, {"b", false}};
        for (const auto& [name, restart] : sequence) {
            page.changes.clear();
            choose(page, "databaseButton", folder(name));
            QCOMPARE(page.changes.count(), 1);
            QCOMPARE(page.page.applyModifications(), restart);
            QCOMPARE(m_application->getSettings().value(keys::CacheDirectory).toString(), folder(name));
        }
    }

    void resetShowsTheDefaultsUntilApplied()
    {
        const QString cache = "/" + QString("long/").repeated(30) + "end";
        registerDefaults(
            {{keys::CacheDirectory, cache}, {keys::CacheSize, "10"}, {keys::ScreenshotFolder, "/shots"}});
        Page page(m_application.get(), m_application->getSettings());
        const QByteArray before = m_application->storedFile();
        QCOMPARE(page.reset(), 1);
        auto* button = page.find<QPushButton>("databaseButton");
        QVERIFY(button->text().startsWith(QChar(0x2026)) && button->text().endsWith("/end"));
        QCOMPARE(button->toolTip(), cache);
        QCOMPARE(page.find("screenshotFolderButton")->toolTip(), QString("/shots"));
        QVERIFY(!page.canClickReset() && !page.page.focusWidget());
        QCOMPARE(m_application->storedFile(), before);
        QVERIFY(page.page.applyModifications());
    }
};

QTEST_MAIN(tst_ZelGeneralSettingsPanel)
#include "tst_ZelGeneralSettingsPanel.moc"
