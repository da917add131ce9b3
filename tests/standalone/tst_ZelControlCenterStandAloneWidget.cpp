#include "Files.h"
#include "Rows.h"
#include "ShownPage.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelSettingsPanel.h"

using zel::ZelControlCenterStandAloneWidget;

namespace {

/// Another window on the same settings.
struct NextWindow : ZelControlCenterStandAloneWidget
{
    explicit NextWindow(FakeApplication& application)
        : ZelControlCenterStandAloneWidget(&application, nullptr, Qt::FramelessWindowHint)
    {
        findChild<zel::ZelControlCenter*>()->applyModifications(); // So that closing does not ask.
        show();
    }
};

} // namespace

class tst_ZelControlCenterStandAloneWidget : public QObject, private User
{
    Q_OBJECT

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QApplication::setActiveWindow(&m_window); // After a box, too.
        QTest::keyClick(inputOf(&m_window), key, modifiers);
    }

    /// The number counts before it is an edit.
    void typeOver(const char* number)
    {
        m_size->selectAll();
        QTest::keyClicks(m_size, number);
    }

private Q_SLOTS:
    void initTestCase()
    {
        window = &m_window;
        QVERIFY(m_window.minimumSize() == QSize(702, 300) && !m_window.testAttribute(Qt::WA_Moved));
        m_window.show();
        m_window.openMenu();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
        QTRY_VERIFY(showsPages(*m_controlCenter));
        const auto* drawer = m_controlCenter->settingsWidget();
        const auto* shadow = find("drawerShadow");
        const QPoint right = drawer->mapTo(&m_window, QPoint(drawer->width(), 0));
        QCOMPARE(QRect(shadow->mapTo(&m_window, QPoint()), shadow->size()),
                 QRect(701, right.y(), 12, drawer->height())); // The size is that of its image.
        const QImage picture = pictureOf(&m_window).copy(QRect(right + QPoint(0, 300), QSize(13, 1)));
        QVERIFY(qGray(picture.pixel(0, 0)) < qGray(picture.pixel(12, 0)));
        QVERIFY(m_window.childAt(right + QPoint(1, 300)) != shadow); // The mouse passes it by.
        m_controlCenter->setSettingsWidth(0);
        QVERIFY(!shadow->isVisible());
        m_controlCenter->setSettingsWidth(450);
        QMap<int, QString> pages;
        for (const auto* page : m_window.findChildren<zel::ZelSettingsPanel*>())
            pages.insert(page->y(), page->getPanelName() + QString::number(page->getPanelCategory()));
        QCOMPARE(QStringList(pages.values()).join(" "),
                 QString("Display1 Folders1 Simplification0 Tessellation2 About1"));
        QCOMPARE(qobject_cast<QPushButton*>(m_window.focusWidget())->text(), QString("Display"));
    }

    // Windows may take the keyboard away again when a window before this one has closed.
    void init() { QApplication::setActiveWindow(&m_window); }

    void wheelScrollsTheDrawerUntilAFieldHasTheFocus()
    {
        QScrollArea* drawer = m_controlCenter->settingsWidget();
        const QScrollBar* bar = drawer->verticalScrollBar();
        QSet<QString> turned;
        find<QCheckBox>("deferredSSAOCheckBox")->setChecked(true); // Enables the scene units.
        for (const char* engine : {"raytracerButton", "deferredButton"}) {
            m_window.findChild<QRadioButton*>(engine)->click();
            for (QWidget* field : m_window.findChildren<QWidget*>()) {
                const char* const value = field->inherits("QComboBox") ? "currentIndex" : "value";
                if (!field->property(value).isValid() || !field->focusPolicy() || !field->isVisible() ||
                    !field->isEnabled())
                    continue;
                field->setProperty("value", field->property("maximum"));
                for (const bool focused : {false, true, false}) {
                    focused ? field->setFocus() : m_window.setFocus();
                    drawer->ensureWidgetVisible(field);
                    const QVariant shown = field->property(value);
                    const int place = bar->value();
                    turnWheel(m_window, field->mapTo(&m_window, field->rect().center()));
                    const QByteArray name = field->objectName().toUtf8();
                    QVERIFY2((bar->value() > place) != focused, name);
                    QVERIFY2((field->property(value) != shown) == focused, name);
                }
                turned << field->metaObject()->className();
            }
        }
        QCOMPARE(turned.size(), 4); // Numbers of both kinds, sliders and lists.
    }

    void tabReachesEveryControl()
    {
        QSet<const QWidget*> reached;
        const QString ends = "putBackButton defaultButton discardButton editButton takeBack minimizeButton "
                             "maximizeButton closeButton";
        QStringList order; // The help, then the header.
        for (QWidget *apply = find("applyButton"), *widget = apply;
             (widget = widget->nextInFocusChain()) != apply;)
            if (ends.split(' ').contains(widget->objectName()))
                order << widget->objectName();
        order.removeDuplicates(); // There are several lines.
        QCOMPARE(order.join(" "), ends);
        m_window.setMinimumSize(400, 250); // As on a screen that is too small.
        m_window.resize(400, 250);
        QTRY_VERIFY(!find("helpFrame")->isVisible()); // No room is left for it.
        for (int i = 0; i < 100; ++i) {
            QTest::keyClick(inputOf(&m_window), Qt::Key_Tab);
            const QWidget* focused = QApplication::focusWidget();
            QCoreApplication::processEvents();
            QVERIFY2(focused->visibleRegion().contains(focused->rect().center()),
                     qPrintable(focused->objectName() + " is out of sight"));
            reached << focused;
        }
        auto* first = find("deferredButton");
        auto* last = find("copyButton");
        const auto place = [&] { return first->mapTo(&m_window, QPoint()); };
        for (const bool held : {true, false}) { // Nothing moves under a mouse button that is held down.
            last->setFocus();
            const QPoint before = place();
            if (held)
                QTest::mousePress(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, QPoint(5, 15));
            first->setFocus();
            QCOMPARE(place() == before, held);
            QVERIFY(held || first->mapTo(m_controlCenter->settingsWidget(), QPoint()).y() >= 50);
            QTest::mouseRelease(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, QPoint(5, 15));
        }
        m_window.resize(800, 600);
        m_window.setMinimumSize(702, 300);
        for (QWidget* widget : m_window.findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const bool arrowKeys = button && button->autoExclusive() && !button->isChecked();
            const bool control = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
            if (control && widget->isVisible() && widget->isEnabled() && !arrowKeys)
                QVERIFY2(reached.contains(widget), qPrintable(widget->objectName()));
        }
    }

    void windowButtonsWorkByKeyboard()
    {
        for (const auto* button : find<QFrame>("buttonsFrame")->findChildren<QPushButton*>())
            QVERIFY(qMin(button->width(), button->height()) >= 24 && !button->accessibleName().isEmpty());
        auto* button = find<QPushButton>("maximizeButton");
        button->setFocus();
        for (const char* tip : {"Restore", "Maximize"}) {
            QTest::keyClick(inputOf(&m_window), Qt::Key_Return);
            QTRY_COMPARE(button->toolTip() + button->accessibleName(), QString(tip) + tip);
        }
        QVERIFY(!m_window.isMaximized());
        QCOMPARE(m_window.windowIcon().actualSize(QSize(200, 200)), QSize(128, 128));
        QCOMPARE(roleOf(&m_window), QAccessible::Window);
        QCOMPARE(find<QAction>("close")->text(), QString("Close"));
        QStringList title; // The product is read as one name, although one half of it is bold.
        for (QLabel* label : find<QFrame>("headerFrame")->findChildren<QLabel*>())
            title << readOut(label);
        title.sort();
        QCOMPARE(title.join("|"), QString("Control Center|Torvane|silent|silent"));
    }

    void keysToggleApplyAndReset()
    {
        m_check->setFocus();
        for (const bool alt : {false, true}) {
            const bool checked = m_check->isChecked();
            press(Qt::Key_Return, Qt::ControlModifier);
            QCOMPARE(m_check->isChecked(), checked);
            press(alt ? Qt::Key_Enter : Qt::Key_Return, alt ? Qt::KeypadModifier : Qt::NoModifier);
            QVERIFY(m_check->isChecked() != checked && m_controlCenter->hasModifications());
            alt ? press(Qt::Key_A, Qt::AltModifier) : press(Qt::Key_S, Qt::ControlModifier);
            QTRY_VERIFY(!m_controlCenter->hasModifications());
            QVERIFY(m_check->hasFocus());
        }
        m_check->setChecked(false);
        press(Qt::Key_Space, Qt::NoModifier);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(m_check, &held);
        QVERIFY(m_check->isChecked());
        press(Qt::Key_R, Qt::AltModifier);
        QTRY_VERIFY(!m_check->isChecked());
    }

    void undoTakesBackWhatIsTypedThenTheEdits()
    {
        m_size->setFocus();
        typeOver("1"); // Less than the minimum.
        press(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(m_size->text().startsWith("1 "));
        m_check->setChecked(true);
        for (const bool typed : {true, false}) { // Undoes what is typed, then discards.
            press(Qt::Key_Z, Qt::ControlModifier);
            QVERIFY(!m_size->text().startsWith("1 ") && m_check->isChecked() == typed && m_size->hasFocus());
        }
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(m_check->isChecked());
    }

    void keysOfTheHelp()
    {
        m_size->setFocus();
        QSignalSpy help(m_controlCenter, SIGNAL(helpRequested(QWidget*)));
        for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
            press(Qt::Key_F1, modifier);
            QWidget* opened = QApplication::activePopupWidget();
            QVERIFY(opened &&
                    QApplication::desktop()->availableGeometry(opened).contains(opened->geometry()));
            QTest::keyClick(opened, Qt::Key_Escape);
        }
        QCOMPARE(help.count(), 1);
    }

    void keysInOtherLanguages()
    {
        auto *apply = find<QPushButton>("applyButton"), *reset = find<QPushButton>("resetButton");
        for (const char* text : {"\346\210\273\343\201\231", "Annuler", "Reset"}) { // As in other languages.
            reset->setText(QString::fromUtf8(text));
            QEvent change(QEvent::LanguageChange);
            for (QPushButton* button : {reset, apply})
                QCoreApplication::sendEvent(button, &change);
            QVERIFY(!reset->shortcut().isEmpty() && reset->shortcut() != apply->shortcut());
            QCOMPARE(m_controlCenter->findChild<QAction*>("reset")->text(), QString::fromUtf8(text));
        }
    }

    void keysReadWhatIsTyped()
    {
        m_size->setValue(m_size->maximum());
        find("closeButton")->setFocus(); // Neither in the column nor in the drawer.
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!m_controlCenter->hasModifications());
        m_size->setFocus();
        for (const Qt::Key key : {Qt::Key_Q, Qt::Key_W}) {
            typeOver("1");
            BoxAnswer answer({Qt::Key_Return});
            press(key, Qt::ControlModifier);
            QCOMPARE(answer.texts, QStringList("Your current changes will be discarded.\n"
                                               "Continue and close the application ?"));
            QVERIFY(m_window.isVisible());
            press(Qt::Key_Z, Qt::ControlModifier);
        }
        for (const bool alt : {true, false}) {
            const QSignalSpy ended(m_size, SIGNAL(editingFinished())); // It is brought into the range.
            typeOver(alt ? "1" : "9999");
            alt ? press(Qt::Key_A, Qt::AltModifier) : press(Qt::Key_S, Qt::ControlModifier);
            QTRY_COMPARE(m_application.getSettings().value("DBCache/cacheSize").toInt(),
                         alt ? m_size->minimum() : m_size->maximum());
            QCOMPARE(ended.count(), 1);
        }
    }

    void pendingEditsAreReachedByKeyboard()
    {
        auto* sag = find<QDoubleSpinBox>("faceSagSpin"); // Its page does not tell of edits.
        find<QRadioButton>("sag")->click();
        sag->setValue(1);
        find<QPushButton>("applyButton")->click();
        m_check->toggle();
        sag->setFocus();
        sag->setValue(2);
        QVERIFY(find<QLabel>("stateLabel")->text().startsWith("Changed"));
        auto* discard = find<QPushButton>("discardButton");
        const auto tab = [&](int times) {
            QCoreApplication::processEvents(); // New lines appear.
            for (discard->setFocus(); times > 0; --times)
                QTest::keyClick(inputOf(&m_window), Qt::Key_Tab);
            return QApplication::focusWidget();
        };
        QStringList reached;
        for (int times = 0; times < 6; ++times)
            reached << tab(times)->objectName();
        QCOMPARE(reached.join(" "),
                 QString("discardButton editButton takeBack editButton takeBack minimizeButton"));
        QTest::keyClick(tab(3), Qt::Key_Return);
        QVERIFY(sag->hasFocus());
        const QWidget* first = tab(1);
        sag->setValue(1);
        QVERIFY(first->hasFocus()); // Only the line below has gone.
        sag->setValue(2);
        tab(3);
        find<QAction>("discard")->trigger();
        QVERIFY(sag->hasFocus() && sag->value() == 1);
        find<QAction>("restore")->trigger();
        QTest::keyClick(tab(0), Qt::Key_Space);
        QVERIFY(m_check->hasFocus() && sag->value() == 1);
    }

    void editsScrollWhereThereIsNoRoomForThem()
    {
        m_window.resize(1100, 800);
        for (QAbstractSpinBox* box : m_window.findChildren<QAbstractSpinBox*>()) {
            box->stepUp();
            QCoreApplication::processEvents(); // Their lines appear one after the other.
        }
        const auto* bar = find("pendingList")->findChild<QScrollArea*>()->verticalScrollBar();
        for (const int height : {800, 350}) {
            m_window.resize(1100, height);
            QTRY_COMPARE(bar->maximum() > 0, height == 350);
        }
        const QString lock = m_application.getSettings().fileName() + ".lock";
        QVERIFY(QDir().mkpath(lock));
        m_window.resize(1100, 300); // Less than the column needs.
        QCoreApplication::processEvents();
        find<QScrollArea>("contentArea")->verticalScrollBar()->setValue(0);
        find<QPushButton>("applyButton")->click();
        const auto* notice = find("writeErrorLabel");
        QTRY_VERIFY(notice->height() > 30 && notice->visibleRegion().boundingRect() == notice->rect());
        QVERIFY(QDir().rmdir(lock));
        m_window.resize(800, 600);
        find<QAction>("discard")->trigger();
    }

    void appliesOnlyWhatTheUserHasEdited()
    {
        const QString path = m_application.getSettings().fileName();
        store(path, "[DBCache]\ncacheSize=1234\n"); // As another program does.
        m_size->setFocus();
        m_check->toggle();
        find<QPushButton>("applyButton")->click();
        QVERIFY(contentOf(path).contains(m_check->isChecked() ? "useFXAA=true" : "useFXAA=false"));
        QVERIFY(contentOf(path).contains("cacheSize=1234"));
        QTest::keyClick(m_size, Qt::Key_Escape); // Does not bring back the former value.
        QCOMPARE(m_size->value(), 1234);
        m_size->selectAll();
        QTest::keyClicks(m_size, "5"); // Less than the minimum, so no value yet.
        store(path, contentOf(path).replace("cacheSize=1234", "cacheSize=345"));
        QTimerEvent tick(0);
        int ticks = 0;
        for (QObject* child : m_controlCenter->findChildren<QObject*>())
            ticks += child->inherits("zel::SettingsFollower") && QCoreApplication::sendEvent(child, &tick);
        QCOMPARE(ticks, 1);
        QCOMPARE(m_size->text().left(2), QString("5 "));
        QTest::keyClick(m_size, Qt::Key_Escape);
        QTRY_COMPARE(m_size->value(), 345);
        for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) { // Back to the edit, not to the file.
            m_size->selectAll();
            QTest::keyClicks(m_size, end == Qt::Key_Return ? "400" : "500");
            QTest::keyClick(m_size, end);
            QCOMPARE(m_size->value(), 400);
        }
    }

    void edgesAndCornersResize_data()
    {
        const std::tuple<const char*, QPoint, QPoint, int, QRect> rows[] = {
            {"left", {4, 250}, {-20, 7}, Qt::SizeHorCursor, {10, 40, 760, 500}},
            {"right", {735, 250}, {10, 7}, Qt::SizeHorCursor, {30, 40, 750, 500}},
            {"top", {300, 4}, {7, -30}, Qt::SizeVerCursor, {30, 10, 740, 530}},
            {"bottom", {300, 495}, {7, 30}, Qt::SizeVerCursor, {30, 40, 740, 530}},
            {"top left", {3, 13}, {10, 20}, Qt::SizeFDiagCursor, {40, 60, 730, 480}},
            {"bottom right", {726, 497}, {10, 20}, Qt::SizeFDiagCursor, {30, 40, 750, 520}},
            {"top right", {736, 9}, {10, 20}, Qt::SizeBDiagCursor, {30, 60, 750, 480}},
            {"bottom left", {9, 497}, {10, 20}, Qt::SizeBDiagCursor, {40, 40, 730, 520}},
            {"to menu, drawer and frame", {2, 250}, {300, 0}, Qt::SizeHorCursor, {68, 40, 702, 500}},
            {"to the end of the screen", {300, 498}, {0, 700}, Qt::SizeVerCursor, {30, 40, 740, 600}},
            {"to the least height", {300, 498}, {0, -700}, Qt::SizeVerCursor, {30, 40, 740, 300}},
            {"beside the edge", {5, 250}, {10, 10}, Qt::ArrowCursor, {30, 40, 740, 500}},
        };
        addRows({"press", "way", "pointer", "result"}, rows);
    }

    void edgesAndCornersResize()
    {
        QFETCH(QPoint, press);
        QFETCH(QPoint, way);
        QFETCH(int, pointer);
        QFETCH(QRect, result);
        const QRect start(30, 40, 740, 500);
        m_window.setGeometry(start);
        QTest::mouseMove(inputOf(&m_window), press);
        QCOMPARE(int(m_window.cursor().shape()), pointer);
        drag(m_window, press, way, start.topLeft() + press + way - result.topLeft());
        QCOMPARE(m_window.geometry(), result);
    }

    void edgesAreLeftAlone()
    {
        const QRect start(30, 40, 740, 500);
        m_window.setGeometry(start);
        QTest::mouseMove(inputOf(&m_window), QPoint(2, 250));
        for (QWidget* left : {m_window.childAt(2, 250), window}) {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(left, &leave);
            QCOMPARE(m_window.cursor().shape(), left == window ? Qt::ArrowCursor : Qt::SizeHorCursor);
        }
        QTest::mousePress(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, QPoint(100, 300));
        QTest::mousePress(inputOf(&m_window), Qt::RightButton, Qt::NoModifier, QPoint(2, 300));
        QTest::mouseMove(inputOf(&m_window), QPoint(3, 300)); // The edges are the left button's.
        QVERIFY(m_window.geometry() == start && m_window.cursor().shape() == Qt::ArrowCursor);
        QTest::mouseRelease(inputOf(&m_window), Qt::RightButton, Qt::NoModifier, QPoint(50, 300));
        QTest::mouseRelease(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, QPoint(50, 300));
        for (const Qt::WindowState state : {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen}) {
            m_window.setWindowFlags(state ? Qt::Window | Qt::FramelessWindowHint : Qt::Window);
            m_window.setWindowState(state);
            m_window.show(); // The system resizes it, or nothing does.
            QTest::mouseMove(inputOf(&m_window), QPoint(2, 300 + state));
            QCOMPARE(m_window.cursor().shape(), Qt::ArrowCursor);
        }
        m_window.showNormal();
        m_window.setGeometry(0, 0, 800, 600);
    }

    void opensWhereItWasClosed()
    {
        FakeApplication application;
        const QString file = QFileInfo(application.getSettings().fileName()).path() + "/Window.ini";
        const QRect place(20, 30, 720, 400), usual(0, 0, 800, 600);
        for (int start = 0; start < 3; ++start) {
            NextWindow window(application);
            QCOMPARE(window.isMaximized(), start == 2);
            if (start == 2)
                window.triggerMaximize();
            QTRY_COMPARE(window.geometry(), start ? place : usual);
            auto* check = window.findChild<QCheckBox*>("deferredFXAACheckBox");
            check->toggle();
            const BoxAnswer answer({Qt::Key_Escape});
            QVERIFY(!window.close() && (start || !QFile::exists(file))); // It is kept only when it closes.
            check->toggle();
            window.setGeometry(place);
            if (start == 1)
                window.showMaximized();
            QTRY_COMPARE(window.geometry(), start == 1 ? usual : place);
            window.close();
        }
        QVERIFY(QFile::remove(file) && QDir().mkdir(file)); // It cannot be replaced, and nothing is left.
        NextWindow(application).close();
        QVERIFY(QFileInfo(file).dir().entryList(QStringList("Window.ini.*")).isEmpty());
    }

    void opensWhereItCanBeSeen_data()
    {
        const QRect usual(0, 0, 800, 600);
        const std::tuple<const char*, QByteArray, QRect> rows[] = {
            {"closed there", "0 0 800 600 20 30 720 400 0\n", {20, 30, 720, 400}},
            {"partly off the screen", "0 0 800 600 -500 900 3000 400 0\n", {0, 200, 800, 400}},
            {"another screen", "0 0 1920 1080 20 30 720 400 0\n", usual},
            {"a number is missing", "0 0 800 600 20 30 720 400\n", usual},
            {"no numbers", "geometry=@Variant(\\x0\\x0\\x0\\xb\\x7f\\xff\\xff\\xff)\n", usual},
        };
        addRows({"text", "opened"}, rows);
    }

    void opensWhereItCanBeSeen()
    {
        QFETCH(QByteArray, text);
        QFETCH(QRect, opened);
        FakeApplication application;
        store(QFileInfo(application.getSettings().fileName()).path() + "/Window.ini", text);
        QCOMPARE(NextWindow(application).geometry(), opened);
    }

    void comesBackFromALostScreen()
    {
        for (const char* change : {"resized", "workAreaResized", "screenCountChanged"}) {
            m_window.resize(2000, 400);
            QMetaObject::invokeMethod(QApplication::desktop(), change, Q_ARG(int, 0));
            QCOMPARE(m_window.width(), QApplication::desktop()->availableGeometry(&m_window).width());
        }
        m_window.setGeometry(3000, 40, 720, 400);
        m_window.showMaximized();
        m_window.showNormal();
        QTRY_VERIFY(QApplication::desktop()->availableGeometry(&m_window).contains(m_window.geometry()));
        m_size->setFocus();
        m_window.hide();
        m_window.show();
        QCOMPARE(m_window.focusWidget(), m_size);
        m_window.move(700, 40); // As a window manager places it.
        QTRY_COMPARE(m_window.geometry().right(),
                     QApplication::desktop()->availableGeometry(&m_window).right());
    }

    void headerMovesAndMaximizes()
    {
        const QPoint onHeader(300, 15), way(30, 20);
        m_window.setGeometry(0, 0, 720, 500);
        const QRect moved = m_window.geometry().translated(way);
        drag(m_window, onHeader, QPoint(1, 1), onHeader + QPoint(1, 1)); // Less than a drag.
        drag(m_window, onHeader, way, onHeader);
        QCOMPARE(m_window.geometry(), moved);
        for (const QPoint& place : {onHeader, QPoint(2, 250)}) {
            QTest::mousePress(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, place);
            QMouseEvent lost(QEvent::MouseMove, place, QPoint(500, 300), Qt::NoButton, Qt::RightButton,
                             Qt::NoModifier); // Another window has got the release.
            QCoreApplication::sendEvent(find("headerFrame"), &lost);
            QCOMPARE(m_window.geometry(), moved);
            QTest::mouseRelease(inputOf(&m_window), Qt::LeftButton, Qt::NoModifier, place);
        }
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
            QTest::mouseDClick(find("headerFrame"), button);
            QCOMPARE(m_window.isMaximized(), button == Qt::LeftButton);
        }
        QTRY_COMPARE(m_window.pos(), QPoint());
        // Dragged off, it keeps the place below the pointer as a part of its width.
        const QPoint grip(onHeader.x() * moved.width() / m_window.width(), onHeader.y());
        drag(m_window, onHeader, way, grip);
        QTRY_COMPARE(m_window.geometry(), QRect(onHeader + way - grip, moved.size()));
    }

private:
    FakeApplication m_application;
    ZelControlCenterStandAloneWidget m_window{&m_application, nullptr, Qt::FramelessWindowHint};
    QCheckBox* const m_check = m_window.findChild<QCheckBox*>("deferredFXAACheckBox");
    QSpinBox* const m_size = m_window.findChild<QSpinBox*>("databaseSpinBox");
    zel::ZelControlCenter* const m_controlCenter = m_window.findChild<zel::ZelControlCenter*>();
};

QTEST_MAIN(tst_ZelControlCenterStandAloneWidget)
#include "tst_ZelControlCenterStandAloneWidget.moc"
