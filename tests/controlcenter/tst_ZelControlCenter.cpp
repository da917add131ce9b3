#include "BoxAnswer.h"
#include "FakeApplication.h"
#include "FakePage.h"
#include "ZelControlCenter.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QtTest>

#include <memory>

using zel::ZelControlCenter;

/// A window with a view and a control center, as a viewer has them.
class tst_ZelControlCenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_calls.clear();
        m_application.reset(new FakeApplication);
        m_window.reset(new QWidget);
        m_controlCenter.reset(new ZelControlCenter(m_application.get(), nullptr, Qt::WindowFlags()));
        m_view = new QWidget;
        m_guiPlugin.mainView = m_view;
        auto* layout = new QHBoxLayout(m_window.get());
        layout->addWidget(m_controlCenter.get());
        layout->addWidget(m_controlCenter->settingsWidget());
        layout->addWidget(m_view, 1);
        m_window->resize(1200, 700);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        m_controlCenter.reset(); // Leaves registered pages to their owner.
        m_pages.clear();
        m_window.reset();
    }

    void menuSlides()
    {
        QVERIFY(!m_controlCenter->isVisible() && !m_controlCenter->settingsWidget()->isVisible());
        QVERIFY(!canApply() && !button("resetButton")->isEnabled());
        QPushButton external;
        external.setCheckable(true);
        m_controlCenter->setControlCenterButton(&external);
        m_application->engineUpdates.clear();

        m_controlCenter->openMenu(true);
        QVERIFY(external.isChecked() && !m_controlCenter->isMenuOpen());
        QCOMPARE(m_application->engineUpdates, QList<bool>({false}));
        int between = 0;
        QTRY_VERIFY((between = std::max(between, m_controlCenter->width() % 250)) > 0);
        QTRY_VERIFY(m_controlCenter->isMenuOpen());
        QCOMPARE(m_controlCenter->width(), 250);
        QCOMPARE(m_application->engineUpdates, QList<bool>({false, true}));
        QVERIFY(showsActions(true));

        m_controlCenter->openMenu(false);
        QVERIFY(!external.isChecked() && m_controlCenter->isMenuOpen());
        QTRY_VERIFY(!m_controlCenter->isMenuOpen());
        QVERIFY(!m_controlCenter->isVisible());
        QCOMPARE(m_application->engineUpdates.last(), true);

        m_controlCenter->show(); // What is visible already is open at once.
        m_controlCenter->openMenu(true);
        QVERIFY(m_controlCenter->isMenuOpen());
    }

    void drawerSlides()
    {
        addPages(2);
        m_calls.clear();
        m_controlCenter->openMenu(true);
        QTRY_VERIFY(m_controlCenter->isMenuOpen());
        QTest::mouseClick(button("actionButton"), Qt::LeftButton);
        QCOMPARE(m_calls, QStringList({"P0 initialize", "P1 initialize"}));
        QVERIFY(button("controlCenterButton")->isChecked());
        // The drawer uncovers pages that have their final width from the start.
        QTRY_VERIFY(m_controlCenter->settingsWidth() > 50);
        QVERIFY(m_controlCenter->settingsWidth() < 400);
        const int pageWidth = m_pages.front()->width();
        QTRY_VERIFY(m_controlCenter->isSettingsOpen());
        QCOMPARE(pageWidth, m_pages.front()->width());
        QVERIFY(m_controlCenter->isMenuOpen()); // "Settings" alone does not close the menu.
        QCOMPARE(m_controlCenter->settingsWidget()->width(), 450);
        QTRY_COMPARE(m_window->findChild<QWidget*>("settingsContent")->width(), 450 - scrollBar()->width());
        QVERIFY(scrollBar()->isVisible() && showsActions(false));

        m_window->resize(1200, 300); // Changes the range of the scroll bar.
        m_window->hide();
        QCoreApplication::processEvents();
        m_window->show();
        QCOMPARE(m_controlCenter->settingsWidth(), 450);

        m_controlCenter->setControlCenterVisible(false);
        QTRY_VERIFY(!m_controlCenter->isSettingsOpen());
        QCOMPARE(m_controlCenter->settingsWidth(), 0);
        QVERIFY(showsActions(true));

        openEverything();
        m_window->hide(); // Nothing slides where nobody can see it.
        m_controlCenter->openMenu(false);
        QVERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
        QCOMPARE(m_application->engineUpdates.last(), true);
    }

    void buttonsReachEveryPage()
    {
        addPages(3);
        openEverything();
        QPushButton* reset = button("resetButton");
        QVERIFY(!canApply() && !reset->isEnabled());
        m_pages[1]->edit();
        QVERIFY(canApply() && reset->isEnabled());
        QTest::mouseClick(reset, Qt::LeftButton);
        QCOMPARE(m_calls, QStringList({"P0 reset", "P1 reset", "P2 reset"}));
        QVERIFY(reset->isEnabled()); // Only a page's own signal re-evaluates after a reset.
        m_calls.clear();
        m_pages[1]->resettable = false;
        QTest::mouseClick(button("applyButton"), Qt::LeftButton);
        QCOMPARE(m_calls, QStringList({"P0 apply", "P1 apply", "P2 apply"}));
        QVERIFY(!canApply() && !reset->isEnabled());
    }

    void restartIsToldInsideTheViewerOnly()
    {
        addPages(2);
        openEverything();
        BoxAnswer answer(QMessageBox::Ok);
        for (bool needsRestart : {false, true})
            for (bool insideViewer : {false, true}) {
                m_application->guiPlugin = insideViewer ? &m_guiPlugin : nullptr;
                m_pages[0]->needsRestart = needsRestart;
                m_pages[0]->edit();
                QTest::mouseClick(button("applyButton"), Qt::LeftButton);
                QVERIFY(!canApply());
                QCOMPARE(answer.titles.size(), needsRestart && insideViewer ? 1 : 0);
            }
        QCOMPARE(answer.titles, QStringList("Settings Modification"));
        QCOMPARE(answer.texts.first(),
                 QString("You need to restart your application to turn settings modification effective."));
    }

    void closingAsksInsideTheViewerOnly()
    {
        addPages(1);
        const struct
        {
            bool insideViewer, modified, agree, closes;
        } cases[] = {{true, true, false, false},
                     {true, true, true, true},
                     {true, false, false, true},
                     {false, true, false, true}};
        for (const auto& one : cases) {
            m_application->guiPlugin = one.insideViewer ? &m_guiPlugin : nullptr;
            openEverything();
            if (one.modified)
                m_pages[0]->edit();
            BoxAnswer answer(one.agree ? QMessageBox::Ok : QMessageBox::Cancel);
            m_controlCenter->openMenu(false);
            const QString question = "You have pending modifications. Continue and discard your changes ?";
            QCOMPARE(answer.texts, QStringList(question).mid(one.insideViewer && one.modified ? 0 : 1));
            QTRY_VERIFY(!m_controlCenter->isSettingsOpen());
            QTRY_COMPARE(m_controlCenter->isMenuOpen(), !one.closes);
            QCOMPARE(m_calls, one.modified && one.closes ? QStringList("P0 initialize") : QStringList());
            QCOMPARE(m_application->engineUpdates.last(), true);
        }
    }

    void pageButtonsAndScrollingKeepInStep()
    {
        addPages(4);
        openEverything();
        QTest::mouseClick(m_pages[2]->getActionWidget(), Qt::LeftButton);
        QTRY_COMPARE(scrollBar()->value(), m_pages[2]->y());
        QVERIFY(m_pages[2]->getActionWidget()->isChecked());
        scrollBar()->setValue(m_pages[1]->y() + 5);
        QVERIFY(m_pages[1]->getActionWidget()->isChecked() && !m_pages[2]->getActionWidget()->isChecked());
        // The last page cannot reach the top.
        QTest::mouseClick(m_pages[3]->getActionWidget(), Qt::LeftButton);
        QTRY_COMPARE(scrollBar()->value(), scrollBar()->maximum());
        QVERIFY(m_pages[3]->getActionWidget()->isChecked());
    }

    void pagesMayLeaveAtAnyTime()
    {
        addPages(3);
        m_controlCenter->registerSettingsPanel(m_pages[0].get()); // Once more changes nothing.
        m_pages[0]->edit();
        m_controlCenter->unregisterSettingsPanel(m_pages[0].get(), false);
        QVERIFY(canApply());
        m_controlCenter->unregisterSettingsPanel(m_pages[1].get(), true);
        QVERIFY(!canApply());
        QVERIFY(!m_pages[0]->parent() && !m_pages[0]->getActionWidget()->parent());
        m_pages[0]->edit();
        QVERIFY(!canApply());

        m_pages[2]->edit();
        m_pages.pop_back();
        QVERIFY(!m_controlCenter->hasModifications() && !canApply());

        // The window owns the drawer as well, and with it the pages that are in it.
        m_controlCenter->registerSettingsPanel(m_pages[0].release());
        delete m_controlCenter->settingsWidget();
        QVERIFY(!m_controlCenter->hasModifications());
        m_controlCenter->openMenu(true);
        m_controlCenter->openMenu(false);
    }

    void clickOutsideCloses_data()
    {
        QTest::addColumn<bool>("foreignHandler");
        QTest::addColumn<QString>("before"); ///< What happens within the guard time.
        QTest::addColumn<bool>("closes");
        QTest::newRow("on the view") << false << "" << true;
        QTest::newRow("in a foreign window") << true << "" << false;
        QTest::newRow("just after a resize") << false << "resize" << false;
        QTest::newRow("just after one beside the view") << false << "press" << false;
    }

    void clickOutsideCloses()
    {
        QFETCH(bool, foreignHandler);
        QFETCH(QString, before);
        QFETCH(bool, closes);
        QWidget foreign;
        m_application->guiPlugin = &m_guiPlugin;
        m_controlCenter->setGUIHandler(foreignHandler ? &foreign : m_window.get());
        addPages(1);
        openEverything();
        QTest::qWait(550); // The slide has resized widgets; the guard counts from there.
        QResizeEvent resize(QSize(2, 2), QSize(1, 1));
        if (before == "resize")
            QApplication::sendEvent(m_view, &resize);
        else if (before == "press")
            press(m_controlCenter.get());
        press(m_view);
        if (closes) {
            QTRY_VERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
            return;
        }
        QTest::qWait(450); // Longer than a slide.
        QVERIFY(m_controlCenter->isMenuOpen() && m_controlCenter->isSettingsOpen());
    }

    void interfaceColour()
    {
        QPushButton external;
        const QString icon(":/controlCenter/controlCenter/controlCenterOn.png");
        m_controlCenter->setInterfaceColor(QColor(10, 20, 30, 128), icon, icon);
        QCOMPARE(m_controlCenter->findChild<QFrame*>("actionFrame")->styleSheet(),
                 QString("#actionFrame{ background-color:rgb(10,20,30);}"));
        m_controlCenter->setControlCenterButton(&external);
        QVERIFY(external.icon().isNull());
        m_controlCenter->setInterfaceColor(Qt::white, icon, icon);
        QCOMPARE(external.iconSize(), QSize(40, 40));
        QVERIFY(!external.icon().isNull());
    }

private:
    QPushButton* button(const char* name) const
    {
        auto* found = m_controlCenter->findChild<QPushButton*>(name);
        return found ? found : m_window->findChild<QPushButton*>(name);
    }
    bool canApply() const { return button("applyButton")->isEnabled(); }
    QScrollBar* scrollBar() const { return m_controlCenter->settingsWidget()->verticalScrollBar(); }

    /// Whether the column shows its actions, or else the buttons of the pages.
    bool showsActions(bool actions) const
    {
        return m_controlCenter->findChild<QFrame*>("actionFrame")->isVisible() == actions &&
               m_controlCenter->findChild<QFrame*>("preferenceFrame")->isVisible() != actions;
    }

    static void press(QWidget* widget)
    {
        QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    }

    void addPages(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_pages.emplace_back(new FakePage(QString("P%1").arg(i), m_application->getSettings(), m_calls));
            m_controlCenter->registerSettingsPanel(m_pages.back().get());
        }
    }

    void openEverything()
    {
        m_controlCenter->openMenu(true);
        m_controlCenter->setControlCenterVisible(true);
        QTRY_VERIFY(m_controlCenter->isMenuOpen() && m_controlCenter->isSettingsOpen());
        m_calls.clear();
        m_application->engineUpdates.clear();
    }

    FakeGuiPlugin m_guiPlugin;
    QStringList m_calls;
    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<QWidget> m_window;
    QWidget* m_view = nullptr;
    std::vector<std::unique_ptr<FakePage>> m_pages;
    std::unique_ptr<ZelControlCenter> m_controlCenter;
};

QTEST_MAIN(tst_ZelControlCenter)
#include "tst_ZelControlCenter.moc"
