#include "FakePage.h"
#include "ShownPage.h"
#include "ZelCCActionItem.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"
#include "base/AccessibleCompat.h"
#include "zelSpinBox.h"

#include "platform/zelAction.h"

#include <functional>
#include <map>
#include <memory>

using zel::ZelCCActionItem;
using zel::ZelControlCenter;

const int GuardTime = 550; // Milliseconds, and some more, in which another click does not close the menu.

/// Counts how often a widget appears with the role of a notice, which makes screen readers read it, or is
/// resized.
struct EventCounter : QObject
{
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        notices += event->type() == QEvent::Show && roleOf(static_cast<QWidget*>(watched)) == zel::NoticeRole;
        resizes += event->type() == QEvent::Resize;
        return false;
    }
    int notices = 0, resizes = 0;
};

/// A window with a view and a control center, as a viewer has them.
class tst_ZelControlCenter : public QObject
{
    Q_OBJECT

private:
    QPushButton* button(const char* name) const { return m_window->findChild<QPushButton*>(name); }
    bool canApply() const { return button("applyButton")->isEnabled(); }
    QScrollBar* scrollBar() const { return m_controlCenter->settingsWidget()->verticalScrollBar(); }
    QLayout* column() const { return m_controlCenter->findChild<QFrame*>("actionFrame")->layout(); }
    zelAction& action(const char* name)
    {
        return m_actions.try_emplace(name, name, "", nullptr).first->second;
    }
    static void press(Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier)
    {
        QTest::keyClick(inputOf(QApplication::activeWindow()), key, modifier);
    }

private Q_SLOTS:
    void init()
    {
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
        m_folders.reset();
        m_window.reset();
    }

    void menuSlides()
    {
        QVERIFY(!m_controlCenter->isVisible() && !m_controlCenter->settingsWidget()->isVisible());
        QPushButton external;
        external.setCheckable(true);
        m_controlCenter->setControlCenterButton(&external);
        for (const bool open : {true, false}) {
            m_application->engineUpdates.clear();
            m_controlCenter->openMenu(open);
            QVERIFY(external.isChecked() == open && m_controlCenter->isMenuOpen() != open);
            QVERIFY(!m_application->engineUpdates.contains(true));
            QPropertyAnimation* slide = halfWay("controlCenterWidth");
            const int width = m_controlCenter->width();
            m_controlCenter->openMenu(open); // Goes on from where it is.
            QVERIFY(width % 250 > 0 && m_controlCenter->width() == width);
            QVERIFY(m_controlCenter->isMenuOpen() != open);
            QCOMPARE(slide->easingCurve().type(), open ? QEasingCurve::OutQuad : QEasingCurve::InQuad);
            for (const auto* each : m_controlCenter->findChildren<QPropertyAnimation*>())
                QCOMPARE(each->duration(), 350);
            QTRY_COMPARE(m_controlCenter->isMenuOpen(), open);
            QCOMPARE(m_controlCenter->isVisible() ? m_controlCenter->width() : 0, open ? 250 : 0);
            QCOMPARE(m_application->engineUpdates.count(true), 1);
            QVERIFY(m_application->engineUpdates.last());
        }
    }

    void drawerSlides()
    {
        addPages(2);
        m_controlCenter->openMenu(true);
        QTRY_VERIFY(m_controlCenter->isMenuOpen());
        QVERIFY(button("actionButton")->mapTo(m_window.get(), QPoint()).y() < 60); // At the top.
        m_calls.clear();
        QTest::mouseClick(button("actionButton"), Qt::LeftButton);
        QCOMPARE(m_calls, QStringList({"P0 initialize", "P1 initialize"}));
        // The drawer uncovers pages that have their final size from the start.
        QPropertyAnimation* slide = halfWay("settingsWidth");
        QCOMPARE(slide->easingCurve().type(), QEasingCurve::OutQuad);
        QVERIFY(m_controlCenter->settingsWidth() > 50 && m_controlCenter->settingsWidth() < 400);
        for (int frame = 0; frame < 5; ++frame)
            slide->setCurrentTime(slide->currentTime() + 16);
        const QRect place = m_pages[0]->geometry();
        QVERIFY(m_pages[0]->isVisible() && m_pages[0]->getActionWidget()->isChecked());
        QTRY_VERIFY(m_controlCenter->isSettingsOpen());
        QCOMPARE(place, m_pages[0]->geometry());
        QCOMPARE(m_pages[0]->visibleRegion().boundingRect().width(), place.width()); // Nothing is clipped.
        QVERIFY(m_controlCenter->isMenuOpen() && showsActions(false)); // "Settings" does not close the menu.
        QTRY_COMPARE(m_window->findChild<QWidget*>("settingsContent")->width(), 450 - scrollBar()->width());

        m_window->resize(1200, 300); // Changes the range of the scroll bar.
        m_window->hide();
        QCoreApplication::processEvents();
        m_window->show();
        QCOMPARE(m_controlCenter->settingsWidth(), 450);

        m_controlCenter->setControlCenterVisible(false);
        QCOMPARE(slide->easingCurve().type(), QEasingCurve::InQuad);
        const auto* pages = m_controlCenter->findChild<QFrame*>("preferenceFrame");
        while (m_controlCenter->isSettingsOpen()) {
            QCOMPARE(pages->isVisible() ? pages->y() : 0, 0); // The column stands still.
            QTest::qWait(10);
        }
        QTRY_VERIFY(column()->parentWidget()->height() > 100 && showsActions(true));
        QCOMPARE(m_controlCenter->settingsWidth(), 0);
        EventCounter counter;
        m_pages[0]->installEventFilter(&counter);
        m_controlCenter->setControlCenterVisible(true);
        QTRY_VERIFY(m_controlCenter->isSettingsOpen());
        QCOMPARE(counter.resizes, 0); // It is not laid out again when it comes back.
        m_window->hide();             // Nothing slides out of sight.
        m_controlCenter->openMenu(false);
        QVERIFY(!m_controlCenter->isMenuOpen() && m_application->engineUpdates.last());
    }

    void engineGoesOnWhenTheDrawerClosesOutOfSight()
    {
        QWidget container;
        QVBoxLayout layout(&container);
        layout.addWidget(m_controlCenter->settingsWidget());
        for (const bool hidden : {true, false})
            for (const bool byButton : {true, false}) {
                container.show();
                openEverything();
                m_controlCenter->openMenu(true); // It is already, and hides the list of pages.
                QVERIFY(!m_controlCenter->findChild<QFrame*>("preferenceFrame")->isVisible());
                m_controlCenter->setControlCenterVisible(true);
                hidden ? container.hide() : m_controlCenter->setSettingsWidth(0);
                byButton ? m_controlCenter->openSettings() : m_controlCenter->setControlCenterVisible(false);
                QCOMPARE(m_application->engineUpdates, QList<bool>({false, true, false, true, false, true}));
                QVERIFY(!m_controlCenter->isSettingsOpen() && showsActions(true));
                QCOMPARE(button("controlCenterButton")->isChecked(), !byButton);
            }
        m_controlCenter->settingsWidget()->setParent(nullptr);
    }

    void editsStayWhereNothingCanBeWritten()
    {
        QSettings& settings = m_application->getSettings();
        const QString file = settings.fileName(), folder = QFileInfo(file).path(), aside = folder + ".aside";
        settings.setValue("DBCache/cacheSize", 1000);
        settings.sync();
        auto* size = addFoldersPage();
        auto* error = m_controlCenter->findChild<QLabel*>("writeErrorLabel");
        for (const bool locked : {true, false}) { // What cannot be written is told when the drawer opens.
            QVERIFY(locked ? QDir().mkpath(file + ".lock") : QDir().rmdir(file + ".lock"));
            m_controlCenter->setControlCenterVisible(false);
            QTRY_VERIFY(!m_controlCenter->isSettingsOpen());
            openEverything();
            m_controlCenter->applyModifications(); // Without an edit, it writes nothing that could fail.
            QVERIFY(error->isVisible() == locked && error->text().contains(".lock") == locked);
        }
        QVERIFY(error->focusPolicy() != Qt::NoFocus);
        // What stands in the way is known beforehand, or shows only when the file is written.
        const std::pair<std::function<bool()>, std::function<bool()>> obstacles[] = {
            {[&] { return QDir().mkpath(file + ".lock"); }, [&] { return QDir().rmdir(file + ".lock"); }},
            {[&] { return QDir().rename(folder, aside) && QFile(folder).open(QIODevice::WriteOnly); },
             [&] { return QFile::remove(folder) && QDir().rename(aside, folder); }}};
        for (const auto& [block, clear] : obstacles) {
            size->setValue(size->value() + 1);
            QVERIFY(block());
            m_controlCenter->setControlCenterVisible(true); // It is already: nothing is loaded again.
            EventCounter counter;
            error->installEventFilter(&counter);
            for (int twice = 0; twice < 2; ++twice)
                QTest::mouseClick(button("applyButton"), Qt::LeftButton);
            QCOMPARE(counter.notices, 2);
            QVERIFY(canApply() && m_folders->hasModifications() && m_controlCenter->hasModifications());
            QVERIFY2(error->isVisible() && error->text().contains(file), qPrintable(error->text()));
            QCOMPARE(error->accessibleDescription(), error->text());
            QVERIFY(Qt::mightBeRichText(error->toolTip()) && error->toolTip().contains("Settings.ini"));
            QCOMPARE(int(m_application->manager.cacheSizes.last()), size->value() - 1); // The stored one.
            QVERIFY(clear());
            QTest::mouseClick(button("applyButton"), Qt::LeftButton);
            QVERIFY(!canApply() && error->isHidden() && error->text().isEmpty());
            QVERIFY(contentOf(file).contains("cacheSize=" + QByteArray::number(size->value()) + '\n'));
        }
        addPages(1); // What is not stored needs no restart.
        m_pages[0]->needsRestart = true;
        m_pages[0]->edit();
        m_pages[0]->whenAsked = [&] {
            if (m_calls.contains("P0 apply") && QDir().mkpath(file + ".lock"))
                settings.setValue("P0/key", 1);
        };
        const bool mustRestart = m_controlCenter->applyModifications();
        m_pages[0]->whenAsked = [] {};
        QVERIFY(!mustRestart && error->isVisible());
    }

    void tellsAndAsksInsideTheViewerOnly()
    {
        addPages(1);
        const QStringList restart(
            "You need to restart your application to turn settings modification effective."),
            question("You have pending modifications. Continue and discard your changes ?"), none;
        for (const bool insideViewer : {true, false})
            for (const bool needed : {true, false}) {
                m_application->guiPlugin = insideViewer ? &m_guiPlugin : nullptr;
                openEverything();
                m_pages[0]->needsRestart = needed;
                m_pages[0]->edit();
                BoxAnswer answer({Qt::Key_Tab, Qt::Key_Return});
                QTest::mouseClick(button("applyButton"), Qt::LeftButton);
                QVERIFY(!canApply() && m_calls == QStringList("P0 apply"));
                QCOMPARE(answer.texts, insideViewer && needed ? restart : none);
                if (needed)
                    m_pages[0]->edit();
                m_controlCenter->openMenu(false);
                QCOMPARE(answer.texts, insideViewer && needed ? QStringList(restart + question) : none);
                QTRY_VERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
                QCOMPARE(QStringList(m_calls.mid(1)), needed ? QStringList("P0 initialize") : none);
                QTRY_VERIFY(m_application->engineUpdates.last());
            }
    }

    void mayBeDeletedAtAnyTime_data()
    {
        QTest::addColumn<QString>("when");
        for (const QString when : {"closing the menu", "clicking outside", "telling of a restart"})
            for (const char* answer : {", Ok", ", Escape"})
                QTest::newRow(qPrintable(when + answer)) << when + answer;
        for (const char* when : {"sliding", "loading the pages"}) // Nothing is asked.
            QTest::newRow(when) << when;
    }

    void mayBeDeletedAtAnyTime()
    {
        QFETCH(QString, when);
        const QPointer<QWidget> drawer(m_controlCenter->settingsWidget());
        addPages(1);
        m_application->guiPlugin = &m_guiPlugin;
        openEverything();
        m_pages[0]->edit();
        m_pages[0]->needsRestart = true;
        BoxAnswer answer(when.endsWith("Ok") ? QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Return}
                                             : QList<Qt::Key>{Qt::Key_Escape});
        answer.beforeAnswer = [this] { m_controlCenter.reset(); };
        if (when.startsWith("closing")) {
            m_controlCenter->openMenu(false);
        } else if (when.startsWith("clicking")) {
            QTest::qWait(GuardTime);
            QTest::mouseClick(inputOf(m_window.get()), Qt::LeftButton, {}, m_view->pos() + QPoint(10, 10));
        } else if (when.startsWith("telling")) {
            QTest::mouseClick(button("applyButton"), Qt::LeftButton);
        } else {
            m_controlCenter->setControlCenterVisible(false);
            QCOMPARE(m_application->engineUpdates, QList<bool>{false});
            m_pages[0]->whenAsked = answer.beforeAnswer;
            if (when == "loading the pages") {
                m_controlCenter->settingsWidget()->hide();
                m_controlCenter->setControlCenterVisible(true);
            } else {
                m_controlCenter.reset();
            }
        }
        QVERIFY(!m_controlCenter && !drawer && answer.texts.size() == when.count(","));
        QVERIFY(m_application->engineUpdates.isEmpty() || m_application->engineUpdates.last());
    }

    void mayBeDeletedByAPageThatAppears()
    {
        addPages(2);
        m_pages[1]->whenAsked = [this] {
            if (m_pages[1]->isVisible())
                m_controlCenter.reset();
        };
        m_controlCenter->setControlCenterVisible(true);
        QTRY_VERIFY(!m_controlCenter);
        QVERIFY(m_application->engineUpdates.last());
    }

    void pageMayLeaveWhileAnotherAppears()
    {
        addPages(4);
        m_pages[3]->hide(); // As the application likes.
        m_pages[0]->whenAsked = [this] {
            if (m_pages[0]->isVisible())
                m_pages[1].reset();
        };
        openEverything();
        QVERIFY(!m_pages[1] && m_pages[2]->y() == m_pages[0]->height() && m_pages[3]->isHidden());
    }

#if !defined(ZEL_LEAVE_OUT_nothingSlidesWhereTheStyleAnimatesNothing)
    void nothingSlidesWhereTheStyleAnimatesNothing()
    {
        struct : QProxyStyle
        {
            int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const override
            {
                return hint == SH_Widget_Animate ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
            }
        } still;
        m_controlCenter->setStyleSheet(QString());
        m_controlCenter->setStyle(&still);
        m_application->engineUpdates.clear();
        for (const bool open : {true, false}) {
            m_controlCenter->openMenu(open);
            m_controlCenter->setControlCenterVisible(open);
            QVERIFY(m_controlCenter->isMenuOpen() == open && m_controlCenter->isSettingsOpen() == open);
        }
        QVERIFY(!m_application->engineUpdates.contains(false));
        m_controlCenter.reset();
    }
#endif

    void discardedEditsCanBeMadeAgain()
    {
        addPages(1);
        auto* size = addFoldersPage();
        size->setValue(1000);
        const int stored = size->value();
        QVERIFY(!m_controlCenter->applyModifications());
        size->setValue(stored + 1);
        m_pages[0]->edit(); // Cannot make its edits again.
        auto* discard = m_controlCenter->findChild<QAction*>("discard");
        auto* restore = m_controlCenter->findChild<QAction*>("restore");
        QVERIFY(discard->isEnabled() && !restore->isEnabled());
        discard->trigger();
        QVERIFY(size->value() == stored && !m_pages[0]->modified && !canApply() && !discard->isEnabled());
        restore->trigger();
        QVERIFY(size->value() == stored + 1 && canApply() && !restore->isEnabled());
        discard->trigger();
        openEverything(); // Reads the file: what was discarded belongs to an earlier state.
        QVERIFY(!restore->isEnabled());
    }

    void openPagesFollowTheFile()
    {
        auto* size = addFoldersPage();
        m_controlCenter->setControlCenterVisible(true);
        const auto write = [this](int value) {
            const auto other = zel::ZelSettingsFile::Open(m_application->getSettings().fileName());
            other->setValue("DBCache/cacheSize", value);
            other->setValue("other/key", value);
            other->sync();
        };
        for (const int value : {1234, 3456}) { // While the drawer opens, and then in as many bytes.
            write(value);
            QTRY_COMPARE(size->value(), value);
        }
        size->setValue(77);
        write(2345); // An edit stays.
        QTRY_COMPARE(m_application->getSettings().value("other/key").toInt(), 2345);
        QVERIFY(size->value() == 77 && canApply());
        write(77); // It is stored.
        QTRY_VERIFY(!canApply());
        const QString file = m_application->getSettings().fileName();
        QVERIFY(QFile::remove(file)); // It comes back, with what it held.
        QTRY_VERIFY(QFile::exists(file));
        QTRY_VERIFY(size->value() == 77 && !canApply());
        // Without the key, the next start would take the default.
        zel::ZelSettingsRegistry::RegisterSetting("DBCache/cacheSize", "99", &ZelControlCenter::noOp);
        const auto other = zel::ZelSettingsFile::Open(file);
        other->remove("DBCache/cacheSize");
        other->sync();
        QTRY_COMPARE(size->value(), 99);
        QVERIFY(!canApply());
        zel::ZelSettingsRegistry::ClearSettingsValues();
    }

    void refusedCloseKeepsTheEdits()
    {
        addPages(1);
        m_application->guiPlugin = &m_guiPlugin;
        for (const int answerAfter : {0, 200}) { // During the slide, and when it is over.
            m_controlCenter->openMenu(true);
            QTRY_VERIFY(m_controlCenter->isMenuOpen());
            m_pages[0]->edit();
            BoxAnswer answer({Qt::Key_Return}); // What is not destructive is the default.
            m_controlCenter->openMenu(false);   // A closed drawer stays so.
            QVERIFY(m_application->engineUpdates.last() && m_controlCenter->isMenuOpen());
            QVERIFY(answer.texts.size() == 1 && showsActions(true));
            openEverything();
            for (const int height : {700, 300, 700}) { // The drawer scrolls only where it is too low.
                m_window->resize(1200, height);
                QTRY_COMPARE(m_pages[0]->width(), height == 300 ? 450 - scrollBar()->width() : 450);
            }
            m_pages[0]->edit();
            answer.setInterval(answerAfter);
            m_controlCenter->openMenu(false);
            QTRY_VERIFY(m_controlCenter->isSettingsOpen());
            QVERIFY(canApply() && showsActions(false) && m_calls.isEmpty());
            m_controlCenter->openSettings();
            QTRY_VERIFY(!m_controlCenter->isSettingsOpen() && m_application->engineUpdates.last());
        }
    }

    void pageButtonsAndScrollingKeepInStep()
    {
        addPages(4);
        for (const auto& page : m_pages) {
            (new QLabel(page.get()))->show();
            (new QSpinBox(page.get()))->hide();
            (new QSpinBox(page.get()))->setEnabled(false);
            auto* button = new QPushButton(page.get());
            button->setCheckable(true);
            button->show();
        }
        m_controlCenter->openMenu(true);
        m_pages[1]->getActionWidget()->click(); // Opens the drawer, and waits for it.
        QTRY_VERIFY(m_controlCenter->isSettingsOpen() && scrollBar()->value() == m_pages[1]->y());
        openEverything();
        for (const int page : {2, 3}) { // The last page cannot reach the top.
            QTest::mouseClick(m_pages[page]->getActionWidget(), Qt::LeftButton);
            QTRY_COMPARE(scrollBar()->value(), qMin(m_pages[page]->y(), scrollBar()->maximum()));
            QVERIFY(m_pages[page]->getActionWidget()->isChecked());
            press(Qt::Key_Tab);
            press(Qt::Key_Return);
            QVERIFY(m_pages[page]->findChild<QPushButton*>()->isChecked());
        }
        QVERIFY(m_pages[3]->y() > scrollBar()->maximum());
        for (const int page : {0, 1}) { // What counts is some pixels below the top.
            scrollBar()->setValue(m_pages[1]->y() - (page ? 5 : 15));
            QVERIFY(m_pages[page]->getActionWidget()->isChecked());
            QVERIFY(!m_pages[3]->getActionWidget()->isChecked());
        }
        m_pages[3]->getActionWidget()->click();
        m_pages[3]->getActionWidget()->setFocus(); // Later than the click, which was not the user's.
        press(Qt::Key_Tab);
        QVERIFY(!m_pages[3]->isAncestorOf(QApplication::focusWidget()));
    }

    void pagesMayLeaveAtAnyTime()
    {
        addPages(3);
        m_pages[0]->edit();
        m_controlCenter->unregisterSettingsPanel(m_pages[0].get(), false);
        QVERIFY(canApply());
        m_controlCenter->unregisterSettingsPanel(m_pages[1].get(), true);
        QVERIFY(!canApply() && !m_pages[0]->parent() && !m_pages[0]->getActionWidget()->parent());
        QVERIFY(!m_pages[0]->getActionWidget()->group());
        m_pages[0]->edit();
        QVERIFY(!canApply());
        m_pages[2]->edit();
        const QPointer<QWidget> button(m_pages[2]->getActionWidget());
        m_pages.pop_back();
        QVERIFY(!button && !m_controlCenter->hasModifications() && !canApply());

        delete m_pages[1]->getActionWidget(); // With the bar that an application has put it into, say.
        m_pages[1]->setPanelName("Renamed");
        m_controlCenter->registerSettingsPanel(m_pages[1].get());
        openEverything();
        scrollBar()->setValue(5);
        m_controlCenter->unregisterSettingsPanel(m_pages[1].get(), true);
        // The window owns the drawer as well, and with it the pages that are in it.
        m_controlCenter->registerSettingsPanel(m_pages[0].release());
        delete m_controlCenter->settingsWidget();
        QVERIFY(!m_controlCenter->hasModifications());
        m_controlCenter->openMenu(true);
        m_controlCenter->openMenu(false);
    }

    void clickOutsideAsksOnceAndCloses()
    {
        addPages(1);
        m_application->guiPlugin = &m_guiPlugin;
        m_window->move(1500, 0);
        openEverything();
        QDialog dialog(m_window.get()); // A press in it answers it.
        dialog.setModal(true);
        dialog.move(m_view->mapToGlobal(QPoint(20, 20)));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::qWait(GuardTime);
        QTest::mouseClick(inputOf(&dialog), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(m_application->engineUpdates.isEmpty());
        dialog.close();
        m_pages[0]->edit();
        QWidget foreign, inView(m_view);
        inView.resize(m_view->size());
        inView.show();
        for (const QString press : {"later in a foreign window", "at once", "later after a resize", "later",
                                    "later", "later without edits", "later on the closed menu"}) {
            m_application->engineUpdates.clear();
            m_controlCenter->setGUIHandler(press.contains("foreign") ? &foreign : m_window.get());
            QTest::qWait(press.startsWith("later") ? GuardTime : 100);
            if (press.contains("resize"))
                m_view->resize(m_view->size() - QSize(0, 1));
            m_pages[0]->modified = !press.contains("without");
            BoxAnswer answer({Qt::Key_Escape});
            answer.setInterval(GuardTime);
            QTest::mouseClick(inputOf(m_window.get()), Qt::LeftButton, Qt::NoModifier,
                              inView.mapTo(m_window.get(), QPoint(10, 10)));
            QCOMPARE(answer.texts.size(), press == "later" ? 1 : 0);
            // Whatever closes stops the engine first.
            QCOMPARE(m_application->engineUpdates.count(false) > 0, !m_pages[0]->modified);
        }
        QTRY_VERIFY(!m_controlCenter->isMenuOpen() && !m_controlCenter->isSettingsOpen());
    }

    void keysDoWhatTheMouseDoes()
    {
        addPages(3);
        zel::zelSpinBox box(m_pages[0].get());
        box.setRange(10, 4096);
        openEverything();
        box.setFocus();
        auto* putBack = m_controlCenter->findChild<QAction*>("putBack");
        QVERIFY(putBack->isEnabled());
        for (const int value : {10, 33}) { // Escape puts back what is typed, and only that.
            for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) {
                box.selectAll();
                QTest::keyClicks(&box, end == Qt::Key_Return ? QString::number(value) : "44");
                press(end == Qt::Key_Return && value == 33 ? Qt::Key_Enter : end);
                QCOMPARE(box.value(), value);
            }
        }
        QCOMPARE(box.findChild<QLineEdit*>()->selectedText(), QString("33")); // To be typed over.
        for (const auto& [command, number] : {std::make_pair("apply", 55), {"reset", 66}, {"discard", 77}}) {
            m_pages[0]->edit();
            box.selectAll();
            QTest::keyClicks(&box, QString::number(number));
            m_controlCenter->findChild<QAction*>(command)->trigger();
            press(Qt::Key_Escape); // What is applied is not what is typed.
            QVERIFY(box.value() == number && box.findChild<QLineEdit*>()->selectedText().isEmpty());
        }
        zel::zelSpinBox last(m_pages[2].get());
        last.show();
        QPushButton inDrawer(m_pages[0].get()); // Where a page may have these keys.
        inDrawer.show();
        inDrawer.setFocus();
        press(Qt::Key_End);
        QCOMPARE(scrollBar()->value(), 0);
        QWidget* const pageButton = m_pages[0]->getActionWidget();
        const QPoint place = pageButton->mapTo(m_window.get(), QPoint(5, 5));
        for (const bool held : {true, false}) { // Nothing moves under a mouse button that is held down.
            pageButton->setFocus();
            if (held)
                QTest::mousePress(inputOf(m_window.get()), Qt::LeftButton, Qt::NoModifier, place);
            last.setFocus();
            QCOMPARE(scrollBar()->value() == 0, held);
            QTest::mouseRelease(inputOf(m_window.get()), Qt::LeftButton, Qt::NoModifier, place);
        }
        pageButton->setFocus();
        press(Qt::Key_Home, Qt::ControlModifier); // Not a key of the column.
        QVERIFY(!putBack->isEnabled() && scrollBar()->value() > 0);
        QCOMPARE(button("resetButton")->nextInFocusChain(), button("applyButton"));
        const int bottom = scrollBar()->maximum(), page = scrollBar()->pageStep();
        for (const auto& [key, place] : {std::make_pair(Qt::Key_End, bottom),
                                         {Qt::Key_PageUp, bottom - page},
                                         {Qt::Key_Home, 0},
                                         {Qt::Key_PageDown, page}}) {
            press(key, place ? Qt::KeypadModifier : Qt::NoModifier);
            QCOMPARE(scrollBar()->value(), qBound(0, place, bottom));
        }
        // A button that has been pressed hands the focus on to the page in view.
        m_pages[0]->edit();
        button("applyButton")->setFocus();
        press(Qt::Key_Return);
        QVERIFY(!canApply() && qobject_cast<QPushButton*>(QApplication::focusWidget())->isChecked());
    }

    void shortcutsAreTheApplications()
    {
        addPages(1);
        QSpinBox box(m_pages[0].get());
        openEverything();
        int key = Qt::Key_1;
        for (const char* name : {"apply", "reset", "help", "putBack", "pageUp", "pageDown", "top", "bottom",
                                 "discard", "restore"}) {
            auto* action = m_controlCenter->findChild<QAction*>(name);
            QVERIFY(action && action->shortcuts().isEmpty() && !action->text().isEmpty());
            action->setShortcut(QKeySequence(Qt::CTRL + key++));
            // A held Ctrl+Z is not to discard what is no longer typed.
            QCOMPARE(action->autoRepeat(), QString(name) != "discard" && QString(name) != "restore");
        }
        const auto* apply = m_controlCenter->findChild<QAction*>("apply");
        QVERIFY(!apply->isEnabled() && apply->toolTip() == "Applies your changes");
        QSignalSpy help(m_controlCenter.get(), SIGNAL(helpRequested(QWidget*)));
        QSignalSpy typed(&box, SIGNAL(editingFinished()));
        QDialog other(m_window.get(), Qt::Tool);
        QLineEdit field(&other);
        QCheckBox check(&other);
        m_view->setFocusPolicy(Qt::StrongFocus);
        m_pages[0]->edit();
        // They do not work in its other widgets and windows.
        for (QWidget* widget : std::initializer_list<QWidget*>{m_view, &field, &box}) {
            QVERIFY(m_calls.isEmpty());
            widget->window()->show();
            QApplication::setActiveWindow(widget->window());
            widget->setFocus();
            QTest::keyClicks(widget, "5");
            for (const Qt::Key each : {Qt::Key_3, Qt::Key_1, Qt::Key_2})
                press(each, Qt::ControlModifier);
        }
        QTest::keyClick(&check, Qt::Key_Return); // Is the other window's.
        QVERIFY(!check.isChecked());
        QCOMPARE(typed.count(), 1); // Only Apply ends what is being typed.
        QCOMPARE(m_calls.join(","), QString("P0 apply,P0 reset"));
        QCOMPARE(help.value(0).value(0).value<QWidget*>(), &box);
        QVERIFY(box.hasFocus());
        m_pages[0]->getActionWidget()->setFocus();
        press(Qt::Key_3, Qt::ControlModifier);
        QVERIFY(help.count() == 2 && !help[1][0].value<QWidget*>());
    }

    void pagesAreReadableAndKeepTheirStyle()
    {
        FakePage page("Page", m_application->getSettings(), m_calls);
        auto* dialog = new QDialog(&page);
        QWidget* const readable[] = {new QLabel("text", &page), new QCheckBox("text", &page),
                                     new QRadioButton("text", &page), new QLabel("text", dialog)};
        QFrame frame(&page);
        QPushButton styled("text", &frame);
        page.setStyleSheet("QPushButton { color: #ff0000; }");
        frame.setStyleSheet("QPushButton { background: #00ff00; }");
        styled.ensurePolished();
        m_controlCenter->registerSettingsPanel(&page);
        for (QWidget* widget : readable) {
            widget->ensurePolished();
            const bool inDrawer = widget->window() != dialog;
            const QColor behind = inDrawer ? QColor(69, 69, 69) : dialog->palette().color(QPalette::Window);
            const int difference =
                widget->palette().color(QPalette::WindowText).lightness() - behind.lightness();
            QVERIFY2(inDrawer ? difference > 128 : difference < -128, widget->metaObject()->className());
        }
        QCOMPARE(styled.palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(styled.palette().color(QPalette::Window), QColor(Qt::green));
    }

    void mirrorsItsAction()
    {
        zelAction& action = this->action("open");
        ZelCCActionItem item(&action, nullptr, Qt::WindowFlags());
        auto* button = item.findChild<QPushButton*>("actionButton");
        auto* shortcut = item.findChild<QLabel*>("shortcut");
        item.show();
        QSignalSpy triggered(&action, SIGNAL(triggered()));
        action.setText("Text");
        action.setToolTip("Tip");
        action.setStatusTip("Status");
        QCOMPARE(button->text() + item.toolTip() + item.statusTip(), QString("TextTipStatus"));
        for (const QString keys : {"Ctrl+O", ""}) {
            action.setShortcut(QKeySequence(keys));
            action.setEnabled(!keys.isEmpty());
            QVERIFY(shortcut->isVisible() == !keys.isEmpty() && shortcut->text() == "Ctrl+O");
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(triggered.count(), 1);
        action.setVisible(false);
        QVERIFY(item.isHidden());
        action.setVisible(true);
        m_actions.clear();
        item.onActionChanged();
        QVERIFY(!item.getZelAction() && item.isHidden());
    }

    void standsWhereItIsAskedTo()
    {
        const std::tuple<const char*, const char*, bool> registrations[] = {
            {"a", "", false},           {"b", "", true},         {"before a", "a", false},
            {"last", "Settings", true}, {"twice", "gone", true}, {"twice", "b", true}};
        for (const auto& [name, anchor, after] : registrations)
            m_controlCenter->registerCCAction(&action(name), anchor, anchor[0] == 'g', after, false);
        QCOMPARE(columnText(), QString("b,twice,before a,a,Settings,last,twice"));
        for (const auto* item : m_controlCenter->findChildren<ZelCCActionItem*>())
            QCOMPARE(item->isWorkflowSpecific(), item == column()->itemAt(6)->widget());
        int visited = 0; // By the Tab key, from top to bottom.
        for (QWidget* widget = m_window.get(); (widget = widget->nextInFocusChain()) != m_window.get();)
            if (widget->objectName() == "actionButton")
                QVERIFY(column()->itemAt(visited++)->widget()->isAncestorOf(widget));
        QCOMPARE(visited, 7);

        QVERIFY(m_controlCenter->addCCSeparator("Settings", "before settings") &&
                !m_controlCenter->addCCSeparator("", "before settings") &&
                m_controlCenter->addCCSeparator("", "top") &&
                m_controlCenter->addCCSeparator("gone", "bottom"));
        m_controlCenter->setControlCenterWidth(250);
        m_controlCenter->addCCSeparator("", "on top");
        QWidget* const line = column()->itemAt(0)->widget();
        QCOMPARE(line->size(), QSize(232, 1));
        QCOMPARE(line->styleSheet(), QString("background:rgb(0,0,0,30);"));
        QCOMPARE(line->property("styleSheet").toString(), QString("background:rgba(0,0,0,30);"));
        m_controlCenter->unregisterCCAction(&action("twice"));
        action("twice").setText("Changed"); // Nothing mirrors it any more.
        QCOMPARE(columnText(), QString("-,-,b,before a,a,-,Settings,last,-"));
        QVERIFY(m_controlCenter->setCCSeparatorVisible("top", false) &&
                !m_controlCenter->setCCSeparatorVisible("gone", true) &&
                column()->itemAt(1)->widget()->isHidden());
    }

    void actionMayCloseTheMenu()
    {
        for (const char* anchor : {"", "Settings"})
            m_controlCenter->registerCCAction(&action("closing"), anchor, false, false, true);
        openEverything();
        action("closing").trigger();
        QCOMPARE(m_application->engineUpdates.count(false), 3); // It closes once.
        QTRY_VERIFY(!m_controlCenter->isMenuOpen() && !button("controlCenterButton")->isChecked());
        openEverything();
        m_controlCenter->unregisterCCAction(&action("closing"));
        action("closing").trigger();
        QVERIFY(button("controlCenterButton")->isChecked());
    }

    void interfaceColour()
    {
        QPushButton external;
        m_controlCenter->setControlCenterButton(&external);
        const QString on = ":/controlCenter/controlCenter/controlCenterOn.png",
                      off = QString(on).replace("On.", "Off.");
        m_controlCenter->setInterfaceColor(QColor(10, 20, 30, 128), on, off);
        m_controlCenter->show();
        const QImage column = pictureOf(m_controlCenter.get());
        QCOMPARE(QColor(column.pixel(100, column.height() - 10)), QColor(10, 20, 30));
        QCOMPARE(external.iconSize(), QSize(40, 40));
        for (const auto& [picture, state] : {std::make_pair(on, QIcon::On), {off, QIcon::Off}})
            QCOMPARE(external.icon().pixmap(40, QIcon::Normal, state).toImage(),
                     QIcon(picture).pixmap(40).toImage());
    }

private:
    /// Whether the column shows its actions, or else the buttons of the pages.
    bool showsActions(bool actions) const
    {
        return m_controlCenter->findChild<QFrame*>("actionFrame")->isVisible() == actions &&
               m_controlCenter->findChild<QFrame*>("preferenceFrame")->isVisible() != actions;
    }

    void addPages(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_pages.emplace_back(new FakePage(QString("P%1").arg(i), m_application->getSettings(), m_calls));
            m_controlCenter->registerSettingsPanel(m_pages.back().get());
        }
    }

    /// A page of the product. Returns one of its fields.
    QSpinBox* addFoldersPage()
    {
        m_folders = std::make_unique<zel::ZelGeneralSettingsPanel>(
            m_application.get(), m_application->getSettings(), nullptr, Qt::WindowFlags());
        m_controlCenter->registerSettingsPanel(m_folders.get());
        return m_folders->findChild<QSpinBox*>("databaseSpinBox");
    }

    QPropertyAnimation* halfWay(const char* property) const
    {
        QPropertyAnimation* found = nullptr;
        for (QPropertyAnimation* slide : m_controlCenter->findChildren<QPropertyAnimation*>())
            found = slide->propertyName() == property ? slide : found;
        found->setCurrentTime(found->duration() / 2);
        return found;
    }

    void openEverything()
    {
        for (QPropertyAnimation* slide : m_controlCenter->findChildren<QPropertyAnimation*>())
            slide->setDuration(30);
        m_controlCenter->openMenu(true);
        m_controlCenter->setControlCenterVisible(true);
        QTRY_VERIFY(m_controlCenter->isMenuOpen() && showsPages(*m_controlCenter));
        m_calls.clear();
        m_application->engineUpdates.clear();
    }

    /// The menu column from top to bottom: names of actions, "-" for separators.
    QString columnText() const
    {
        QStringList names;
        for (int i = 0; i < column()->count(); ++i) {
            const auto* item = qobject_cast<ZelCCActionItem*>(column()->itemAt(i)->widget());
            names << (item ? item->getZelAction()->getActionName() : "-");
        }
        return names.join(",");
    }

    FakeGuiPlugin m_guiPlugin;
    std::map<QByteArray, zelAction> m_actions;
    QStringList m_calls;
    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<QWidget> m_window;
    QWidget* m_view = nullptr;
    std::vector<std::unique_ptr<FakePage>> m_pages;
    std::unique_ptr<zel::ZelGeneralSettingsPanel> m_folders;
    std::unique_ptr<ZelControlCenter> m_controlCenter;
};

QTEST_MAIN(tst_ZelControlCenter)
#include "tst_ZelControlCenter.moc"
