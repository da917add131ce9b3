#include "platform/kqMovableObject.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

/// A frameless window with a header as applications have it, and a mouse that acts through the window system.
class tst_kqMovableObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dragging_data();
    void dragging();
    void doubleClick();
    void maximizedWindowIsRestoredUnderTheCursor();
    void anchorAndTargetMayGo();

private:
    void press(QPoint pos, Qt::MouseButton button = Qt::LeftButton)
    {
        m_start = m_window->mapToGlobal(pos);
        QTest::mousePress(m_window->windowHandle(), button, {}, pos);
    }
    void moveBy(QPoint distance) { QTest::mouseMove(m_window->windowHandle(), cursor(distance)); }
    void release(QPoint distance, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(m_window->windowHandle(), button, {}, cursor(distance));
    }
    QPoint cursor(QPoint distance) const { return m_window->mapFromGlobal(m_start + distance); }

    QScopedPointer<QWidget> m_window;
    kqMovableObject* m_movable = nullptr;
    QFrame* m_header = nullptr;
    QPoint m_start;
};

void tst_kqMovableObject::init()
{
    m_window.reset(new QWidget(nullptr, Qt::FramelessWindowHint));
    m_window->setGeometry(100, 100, 400, 300);
    m_header = new QFrame(m_window.data());
    m_header->setGeometry(0, 0, 2000, 40);
    auto* group = new QFrame(m_header);
    group->setGeometry(100, 0, 300, 40);
    const QList<QWidget*> row = {new QLabel("label", group), new QPushButton("button", group),
                                 new QCheckBox("x", group)};
    for (int i = 0; i < row.size(); ++i)
        row[i]->setGeometry(100 * i, 0, 90, 40);
    m_movable = new kqMovableObject(m_window.data());
    m_movable->setAnchorObject(m_header, m_window.data());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.data()));
}

void tst_kqMovableObject::dragging_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("moves");
    QTest::newRow("header") << QPoint(20, 20) << int(Qt::LeftButton) << true;
    QTest::newRow("label") << QPoint(150, 20) << int(Qt::LeftButton) << true;
    QTest::newRow("frame in the header") << QPoint(195, 20) << int(Qt::LeftButton) << true;
    QTest::newRow("button") << QPoint(250, 20) << int(Qt::LeftButton) << false;
    QTest::newRow("check box, beside its text") << QPoint(380, 20) << int(Qt::LeftButton) << false;
    QTest::newRow("right button of the mouse") << QPoint(20, 20) << int(Qt::RightButton) << false;
    QTest::newRow("below the header") << QPoint(20, 200) << int(Qt::LeftButton) << false;
}

void tst_kqMovableObject::dragging()
{
    QFETCH(QPoint, pos);
    QFETCH(int, button);
    QFETCH(bool, moves);
    const QPoint origin = m_window->pos();
    press(pos, Qt::MouseButton(button));
    for (QPoint distance : {QPoint(1, 1), QPoint(30, -15), QPoint(-10, 12)}) {
        moveBy(distance);
        QCOMPARE(m_window->pos(), moves ? origin + distance : origin);
    }
    release(QPoint(-10, 12), Qt::MouseButton(button));
    moveBy(QPoint(5, 5));
    QCOMPARE(m_window->pos(), moves ? origin + QPoint(-10, 12) : origin);
}

void tst_kqMovableObject::doubleClick()
{
    const auto clickTwice = [this](QPoint pos) {
        QTest::mouseDClick(m_window->windowHandle(), Qt::LeftButton, {}, pos);
    };
    const QPoint label(150, 20), besideCheckBox(380, 20);
    const QRect normal = m_window->geometry();
    clickTwice(label);
    m_movable->setExpandOnDlbClick(true);
    clickTwice(besideCheckBox);
    QVERIFY(!m_window->isMaximized());
    clickTwice(label);
    QVERIFY(m_window->isMaximized());
    clickTwice(label);
    QVERIFY(!m_window->isMaximized());
    QCOMPARE(m_window->geometry(), normal);
}

void tst_kqMovableObject::maximizedWindowIsRestoredUnderTheCursor()
{
    const QSize normal = m_window->size();
    m_window->showMaximized();
    QTRY_VERIFY(m_window->width() > normal.width());
    press(QPoint(m_window->width() * 3 / 4, 20));
    moveBy(QPoint(1, 2)); // an unsteady hand
    QVERIFY(m_window->isMaximized());
    moveBy(QPoint(0, 100));
    QVERIFY(!m_window->isMaximized());
    QCOMPARE(m_window->size(), normal);
    QCOMPARE(cursor(QPoint(0, 100)), QPoint(normal.width() * 3 / 4, 20));
    release(QPoint(0, 100));
}

void tst_kqMovableObject::anchorAndTargetMayGo()
{
    const QPoint origin = m_window->pos(), distance(30, 10);
    QScopedPointer<QWidget> other(new QWidget), label(m_header->findChild<QLabel*>());
    const auto drag = [&] { press(QPoint(20, 20)), other.reset(), moveBy(distance), release(distance); };
    m_movable->setAnchorObject(m_header, other.data());
    drag(); // takes the target away under way
    m_movable->setAnchorObject(label.data(), m_window.data());
    drag();
    QCOMPARE(m_window->pos(), origin); // The former anchor moves nothing any more.
    label.reset();
    m_movable->setAnchorObject(m_header, m_window.data());
    drag();
    QCOMPARE(m_window->pos(), origin + distance);
}

QTEST_MAIN(tst_kqMovableObject)
#include "tst_kqMovableObject.moc"
