#include "zelDoubleSpinBox.h"
#include "zelSpinBox.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

class tst_zelSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wheelNeedsTheFocus()
    {
        QWidget page;
        QLineEdit other;
        zel::zelSpinBox integer, ofAForm;
        zel::zelDoubleSpinBox floating;
        ofAForm.setFocusPolicy(Qt::WheelFocus); // A form may ask for the wheel.
        const QList<QAbstractSpinBox*> boxes = {&integer, &ofAForm, &floating};
        QVBoxLayout layout(&page);
        layout.addWidget(&other);
        for (QAbstractSpinBox* box : boxes)
            layout.addWidget(box);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));

        for (QAbstractSpinBox* box : boxes) {
            const auto value = [box] { return box->property("value").toInt(); };
            box->setProperty("value", 50);
            other.setFocus();
            QVERIFY(!takesTurn(box));
            QCOMPARE(value(), 50);
            QTest::mouseClick(box->findChild<QLineEdit*>(), Qt::LeftButton);
            QVERIFY(takesTurn(box));
            QCOMPARE(value(), 49);
            QTest::keyClick(box, Qt::Key_Backtab);
            QVERIFY(!box->hasFocus() && !takesTurn(box));
            QCOMPARE(value(), 49);
        }
    }

private:
    /// Whether the box takes a turn of the wheel; one that it ignores goes on to the page around it.
    static bool takesTurn(QWidget* box)
    {
        const QPoint center = box->rect().center();
        QWheelEvent wheel(center, box->mapToGlobal(center), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        // An event from outside moves the focus where the policy asks for that.
        QSpontaneKeyEvent::setSpontaneous(&wheel);
        QApplication::sendEvent(box, &wheel);
        return wheel.isAccepted();
    }
};

QTEST_MAIN(tst_zelSpinBox)
#include "tst_zelSpinBox.moc"
