#include "zelDoubleSpinBox.h"
#include "zelSpinBox.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

class tst_zelSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wheelNeedsTheFocus_data();
    void wheelNeedsTheFocus();
};

void tst_zelSpinBox::wheelNeedsTheFocus_data()
{
    QTest::addColumn<bool>("floating");
    QTest::addColumn<int>("formPolicy");
    QTest::newRow("integer") << false << int(Qt::StrongFocus);
    QTest::newRow("floating point") << true << int(Qt::StrongFocus);
    QTest::newRow("a form that asks for the wheel") << false << int(Qt::WheelFocus);
}

void tst_zelSpinBox::wheelNeedsTheFocus()
{
    QFETCH(bool, floating);
    QFETCH(int, formPolicy);
    QWidget page;
    auto* layout = new QVBoxLayout(&page);
    QAbstractSpinBox* box = floating ? static_cast<QAbstractSpinBox*>(new zel::zelDoubleSpinBox(&page))
                                     : new zel::zelSpinBox(&page);
    QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
    box->setFocusPolicy(Qt::FocusPolicy(formPolicy));
    auto* other = new QLineEdit(&page);
    layout->addWidget(other);
    layout->addWidget(box);
    page.show();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    other->setFocus();

    // Whether the box takes the turn; one that it ignores goes on to the page around it.
    const auto takesTurn = [box] {
        const QPoint center = box->rect().center();
        QWheelEvent wheel(center, box->mapToGlobal(center), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // An event from outside moves the focus where the policy asks for that.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        QApplication::sendEvent(box, &wheel);
        return wheel.isAccepted();
    };
    const auto value = [box] { return box->property("value").toDouble(); };
    box->setProperty("value", 50);
    QVERIFY(!takesTurn());
    QCOMPARE(value(), 50.);

    QTest::mouseClick(box->findChild<QLineEdit*>(), Qt::LeftButton);
    QCOMPARE(box->focusPolicy(), Qt::WheelFocus);
    QVERIFY(takesTurn());
    QCOMPARE(value(), 49.);

    QTest::keyClick(box, Qt::Key_Backtab);
    QVERIFY(!box->hasFocus() && !takesTurn());
    QCOMPARE(value(), 49.);
}

QTEST_MAIN(tst_zelSpinBox)
#include "tst_zelSpinBox.moc"
