#include "BoxAnswer.h"
#include "FakeApplication.h"
#include "FakePage.h"
#include "ZelControlCenter.h"

#include "platform/zelAction.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using zel::ZelControlCenter;

/// A window with a view and a control center, as a viewer has them.
class tst_ZelControlCenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsClosed();
    void menuSlides();
    void menuOfVisiblePanelFinishesAtOnce();
    void drawerSlides();
    void buttonsFollowThePages();
    void applyReachesEveryPageAndTheFile();
    void restartIsToldInsideTheViewerOnly_data();
    void restartIsToldInsideTheViewerOnly();
    void closingAsksInsideTheViewerOnly_data();
    void closingAsksInsideTheViewerOnly();
    void pageButtonsAndScrollingKeepInStep();
    void unregisteredPageIsLeftAlone();
    void clickOutsideCloses_data();
    void clickOutsideCloses();
    void interfaceColour();

private:
    template <class T>
    T* child(const char* name) const
    {
        T* found = m_controlCenter->findChild<T*>(name);
        return found ? found : m_window->findChild<T*>(name);
    }
    void addPages(int count);
    void openEverything();
    void pressOnView(int x);

    FakeGuiPlugin m_guiPlugin;
    QStringList m_calls;
    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<QWidget> m_window;
    QWidget* m_view = nullptr;
    std::vector<std::unique_ptr<FakePage>> m_pages;
    std::unique_ptr<ZelControlCenter> m_controlCenter;
};

void tst_ZelControlCenter::init()
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

void tst_ZelControlCenter::cleanup()
{
    m_controlCenter.reset();
    m_pages.clear();
    m_window.reset();
}

void tst_ZelControlCenter::addPages(int count)
{
    for (int i = 0; i < count; ++i) {
        m_pages.emplace_back(new FakePage(QString("P%1").arg(i), m_application->getSettings(), m_calls));
        m_controlCenter->registerSettingsPanel(m_pages.back().get());
    }
}

void tst_ZelControlCenter::openEverything()
{
    m_controlCenter->openMenu(true);
    m_controlCenter->setControlCenterVisible(true);
    QTRY_VERIFY(m_controlCenter->isMenuOpen() && m_controlCenter->isSettingsOpen());
    m_calls.clear();
    m_application->engineUpdates.clear();
}

void tst_ZelControlCenter::startsClosed()
{
    QVERIFY(!m_controlCenter->isVisible() && !m_controlCenter->settingsWidget()->isVisible());
    QVERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
    QCOMPARE(m_controlCenter->objectName(), QString("ZelControlCenter"));
    QVERIFY(!child<QPushButton>("applyButton")->isEnabled() &&
            !child<QPushButton>("resetButton")->isEnabled());
    QVERIFY(!m_controlCenter->hasModifications() && !m_controlCenter->applyModifications());
    QCOMPARE(m_application->engineUpdates.last(), true);
}

void tst_ZelControlCenter::menuSlides()
{
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
    QVERIFY(child<QFrame>("actionFrame")->isVisible() && !child<QFrame>("preferenceFrame")->isVisible());

    m_controlCenter->openMenu(false);
    QVERIFY(!external.isChecked() && m_controlCenter->isMenuOpen());
    QTRY_VERIFY(!m_controlCenter->isMenuOpen());
    QVERIFY(!m_controlCenter->isVisible());
    QCOMPARE(m_application->engineUpdates.last(), true);
}

void tst_ZelControlCenter::menuOfVisiblePanelFinishesAtOnce()
{
    m_controlCenter->show();
    m_controlCenter->openMenu(true);
    QVERIFY(m_controlCenter->isMenuOpen());
}

void tst_ZelControlCenter::drawerSlides()
{
    addPages(2);
    m_calls.clear();
    m_controlCenter->openMenu(true);
    QTRY_VERIFY(m_controlCenter->isMenuOpen());
    QTest::mouseClick(child<QPushButton>("actionButton"), Qt::LeftButton);
    QCOMPARE(m_calls, QStringList({"P0 initialize", "P1 initialize"}));
    QVERIFY(child<QPushButton>("controlCenterButton")->isChecked());
    QTRY_VERIFY(m_controlCenter->isSettingsOpen());
    QVERIFY(m_controlCenter->isMenuOpen()); // "Settings" alone does not close the menu.
    QCOMPARE(m_controlCenter->settingsWidget()->width(), 450);
    QCOMPARE(m_controlCenter->settingsWidth(), 450);
    const QScrollBar* bar = m_controlCenter->settingsWidget()->verticalScrollBar();
    QVERIFY(bar->isVisible());
    QTRY_COMPARE(child<QWidget>("settingsContent")->width(), 450 - bar->width());
    QVERIFY(!child<QFrame>("actionFrame")->isVisible() && child<QFrame>("preferenceFrame")->isVisible());

    m_controlCenter->setControlCenterVisible(false);
    QTRY_VERIFY(!m_controlCenter->isSettingsOpen());
    QCOMPARE(m_controlCenter->settingsWidth(), 0);
    QVERIFY(child<QFrame>("actionFrame")->isVisible() && !child<QFrame>("preferenceFrame")->isVisible());
}

void tst_ZelControlCenter::buttonsFollowThePages()
{
    addPages(2);
    openEverything();
    auto* apply = child<QPushButton>("applyButton");
    auto* reset = child<QPushButton>("resetButton");
    QVERIFY(!apply->isEnabled() && !reset->isEnabled());
    m_pages[1]->edit();
    QVERIFY(apply->isEnabled() && reset->isEnabled());
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(m_calls, QStringList({"P0 reset", "P1 reset"}));
    QVERIFY(reset->isEnabled()); // Only a page's own signal re-evaluates after a reset.
    m_calls.clear();
    m_pages[1]->resettable = false;
    QTest::mouseClick(apply, Qt::LeftButton);
    QCOMPARE(m_calls, QStringList({"P0 apply", "P1 apply"}));
    QVERIFY(!apply->isEnabled() && !reset->isEnabled());
}

void tst_ZelControlCenter::applyReachesEveryPageAndTheFile()
{
    addPages(3);
    m_pages[0]->needsRestart = true;
    m_application->getSettings().setValue("key", "value");
    m_calls.clear();
    QVERIFY(m_controlCenter->applyModifications());
    QCOMPARE(m_calls, QStringList({"P0 apply", "P1 apply", "P2 apply"}));
    QFile file(m_application->getSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("key=value"));
}

void tst_ZelControlCenter::restartIsToldInsideTheViewerOnly_data()
{
    QTest::addColumn<bool>("insideViewer");
    QTest::addColumn<bool>("needsRestart");
    QTest::newRow("inside, restart") << true << true;
    QTest::newRow("inside, none") << true << false;
    QTest::newRow("alone, restart") << false << true;
}

void tst_ZelControlCenter::restartIsToldInsideTheViewerOnly()
{
    QFETCH(bool, insideViewer);
    QFETCH(bool, needsRestart);
    addPages(2);
    openEverything();
    m_application->guiPlugin = insideViewer ? &m_guiPlugin : nullptr;
    m_pages[0]->needsRestart = needsRestart;
    m_pages[0]->edit();
    BoxAnswer answer(QMessageBox::Ok);
    QTest::mouseClick(child<QPushButton>("applyButton"), Qt::LeftButton);
    const QStringList expected(
        "You need to restart your application to turn settings modification effective.");
    QCOMPARE(answer.texts, insideViewer && needsRestart ? expected : QStringList());
    QCOMPARE(answer.titles.value(0, "Settings Modification"), QString("Settings Modification"));
    QVERIFY(!child<QPushButton>("applyButton")->isEnabled());
}

void tst_ZelControlCenter::closingAsksInsideTheViewerOnly_data()
{
    QTest::addColumn<bool>("insideViewer");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<bool>("agree");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("closes");
    QTest::newRow("inside, refused") << true << true << false << true << false;
    QTest::newRow("inside, agreed") << true << true << true << true << true;
    QTest::newRow("inside, unmodified") << true << false << false << false << true;
    QTest::newRow("alone") << false << true << false << false << true;
}

void tst_ZelControlCenter::closingAsksInsideTheViewerOnly()
{
    QFETCH(bool, insideViewer);
    QFETCH(bool, modified);
    QFETCH(bool, agree);
    QFETCH(bool, asked);
    QFETCH(bool, closes);
    m_application->guiPlugin = insideViewer ? &m_guiPlugin : nullptr;
    addPages(1);
    openEverything();
    if (modified)
        m_pages[0]->edit();
    BoxAnswer answer(agree ? QMessageBox::Ok : QMessageBox::Cancel);
    m_controlCenter->openMenu(false);
    QCOMPARE(answer.texts, asked ? QStringList("You have pending modifications. Continue and discard your "
                                               "changes ?")
                                 : QStringList());
    QTRY_VERIFY(!m_controlCenter->isSettingsOpen());
    QTRY_COMPARE(m_controlCenter->isMenuOpen(), !closes);
    QCOMPARE(m_pages[0]->modified, modified && !closes);
    QCOMPARE(m_calls, modified && closes ? QStringList("P0 initialize") : QStringList());
    QCOMPARE(m_application->engineUpdates.last(), true);
}

void tst_ZelControlCenter::pageButtonsAndScrollingKeepInStep()
{
    addPages(4);
    openEverything();
    QScrollBar* bar = m_controlCenter->settingsWidget()->verticalScrollBar();
    QTest::mouseClick(m_pages[2]->getActionWidget(), Qt::LeftButton);
    QTRY_COMPARE(bar->value(), m_pages[2]->y());
    QVERIFY(m_pages[2]->getActionWidget()->isChecked());
    bar->setValue(m_pages[1]->y() + 5);
    QVERIFY(m_pages[1]->getActionWidget()->isChecked() && !m_pages[2]->getActionWidget()->isChecked());
    // The last page cannot reach the top.
    QTest::mouseClick(m_pages[3]->getActionWidget(), Qt::LeftButton);
    QTRY_COMPARE(bar->value(), bar->maximum());
    QVERIFY(m_pages[3]->getActionWidget()->isChecked());
}

void tst_ZelControlCenter::unregisteredPageIsLeftAlone()
{
    addPages(2);
    m_pages[0]->edit();
    m_controlCenter->unregisterSettingsPanel(m_pages[0].get(), false);
    QVERIFY(child<QPushButton>("applyButton")->isEnabled());
    m_controlCenter->unregisterSettingsPanel(m_pages[1].get(), true);
    QVERIFY(!child<QPushButton>("applyButton")->isEnabled());
    QVERIFY(!m_pages[0]->parent() && !m_pages[0]->getActionWidget()->parent());
    m_pages[0]->edit();
    QVERIFY(!child<QPushButton>("applyButton")->isEnabled());

    m_controlCenter->registerSettingsPanel(m_pages[0].get());
    m_controlCenter.reset(); // Leaves registered pages to their owner.
    QVERIFY(!m_pages[0]->parent());
}

void tst_ZelControlCenter::clickOutsideCloses_data()
{
    QTest::addColumn<bool>("insideViewer");
    QTest::addColumn<int>("x"); ///< Relative to the view.
    QTest::addColumn<bool>("foreignHandler");
    QTest::addColumn<bool>("early"); ///< Within the guard of a resize.
    QTest::addColumn<bool>("closes");
    QTest::newRow("on the view") << true << 10 << false << false << true;
    QTest::newRow("beside the view") << true << -300 << false << false << false;
    QTest::newRow("in a foreign window") << true << 10 << true << false << false;
    QTest::newRow("just after a resize") << true << 10 << false << true << false;
    QTest::newRow("outside the viewer") << false << 10 << false << false << false;
}

void tst_ZelControlCenter::clickOutsideCloses()
{
    QFETCH(bool, insideViewer);
    QFETCH(int, x);
    QFETCH(bool, foreignHandler);
    QFETCH(bool, early);
    QFETCH(bool, closes);
    QWidget foreign;
    m_application->guiPlugin = insideViewer ? &m_guiPlugin : nullptr;
    m_controlCenter->setGUIHandler(foreignHandler ? &foreign : m_window.get());
    addPages(1);
    openEverything();
    QTest::qWait(550); // The slide has resized widgets; the guard counts from there.
    if (early) {
        QResizeEvent resize(QSize(2, 2), QSize(1, 1));
        QApplication::sendEvent(m_view, &resize);
    }
    QTest::mousePress(x < 0 ? m_controlCenter.get() : m_view, Qt::LeftButton, Qt::KeyboardModifiers(),
                      QPoint(std::max(x, 5), 10));
    if (closes) {
        QTRY_VERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
        return;
    }
    QTest::qWait(450); // Longer than a slide.
    QVERIFY(m_controlCenter->isMenuOpen() && m_controlCenter->isSettingsOpen());
}

void tst_ZelControlCenter::interfaceColour()
{
    QTemporaryDir folder;
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::red);
    QVERIFY(pixmap.save(folder.filePath("on.png")) && pixmap.save(folder.filePath("off.png")));
    QPushButton external;
    m_controlCenter->setInterfaceColor(QColor(10, 20, 30, 128), folder.filePath("on.png"), "");
    QCOMPARE(child<QFrame>("actionFrame")->styleSheet(),
             QString("#actionFrame{ background-color:rgb(10,20,30);}"));
    QVERIFY(external.icon().isNull());
    m_controlCenter->setControlCenterButton(&external);
    m_controlCenter->setInterfaceColor(Qt::white, folder.filePath("on.png"), folder.filePath("off.png"));
    QCOMPARE(external.iconSize(), QSize(40, 40));
    QVERIFY(!external.icon().pixmap(40, QIcon::Normal, QIcon::On).isNull());
}

QTEST_MAIN(tst_ZelControlCenter)
#include "tst_ZelControlCenter.moc"
