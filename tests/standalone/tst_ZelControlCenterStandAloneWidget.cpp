#include "FakeApplication.h"
#include "Version.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelSettingsPanel.h"

#include <QtTest>
#include <QtWidgets>

using zel::ZelControlCenterStandAloneWidget;
using zel::ZelSettingsPanel;

class tst_ZelControlCenterStandAloneWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_window.show();
        m_window.openMenu();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
        QTRY_VERIFY(m_window.findChild<zel::ZelControlCenter*>()->isSettingsOpen());
    }

    void pagesStandInTheirOrder()
    {
        QMap<int, QString> byPosition;
        for (const ZelSettingsPanel* page : m_window.findChildren<ZelSettingsPanel*>())
            byPosition.insert(page->y(), page->getPanelName());
        const QStringList expected = {"Display", "Folders", "Simplification", "Tessellation", "About"};
        QCOMPARE(QStringList(byPosition.values()), expected);
    }

    void wheelScrollsTheDrawerUntilAFieldHasTheFocus()
    {
        QScrollArea* drawer = m_window.findChild<zel::ZelControlCenter*>()->settingsWidget();
        const QScrollBar* bar = drawer->verticalScrollBar();
        QSet<QString> turned;
        for (const char* engine : {"raytracerButton", "deferredButton"}) {
            m_window.findChild<QRadioButton*>(engine)->click();
            for (QWidget* field : m_window.findChildren<QWidget*>()) {
                const bool list = field->inherits("QComboBox");
                const bool number = field->inherits("QAbstractSpinBox") || field->inherits("QSlider");
                if ((!list && !number) || !field->isVisible() || !field->isEnabled())
                    continue;
                const char* const value = list ? "currentIndex" : "value";
                field->setProperty("value", field->property("maximum"));
                for (const bool focused : {false, true, false}) {
                    focused ? field->setFocus() : m_window.setFocus();
                    drawer->ensureWidgetVisible(field);
                    const QVariant shown = field->property(value);
                    const int place = bar->value();
                    turnWheelOver(*field);
                    const QByteArray name = field->objectName().toUtf8();
                    QVERIFY2((bar->value() > place) != focused, name);
                    QVERIFY2((field->property(value) != shown) == focused, name);
                }
                turned << field->metaObject()->className();
            }
        }
        QCOMPARE(turned.size(), 4); // Numbers of both kinds, sliders and lists.
    }

    void headerMovesAndMaximizes()
    {
        const QPoint start = m_window.pos();
        const QPoint onHeader(300, 15);
        QWindow* handle = m_window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, onHeader);
        QTest::mouseMove(handle, onHeader + QPoint(30, 20));
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, onHeader);
        const QRect moved = m_window.geometry();
        QCOMPARE(moved, QRect(start + QPoint(30, 20), QSize(800, 600)));

        auto* button = m_window.findChild<QPushButton*>("maximizeButton");
        QTest::mouseDClick(m_window.findChild<QWidget*>("headerFrame"), Qt::LeftButton);
        QVERIFY(m_window.isMaximized());
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_COMPARE(m_window.geometry(), moved);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(m_window.isMaximized());
    }

    void versionTextsAgree()
    {
        using Version = ZelControlCenter::Version;
        const QString numbers = Version::GetDescStringMajorMinorReleaseRevision(false);
        QCOMPARE(numbers, QString(kqDMIApplication::GetKernelVersion()));
        QCOMPARE(numbers.section('.', 0, 2), QString(Version::GetDescStringMajorMinorRelease(false)));
        QCOMPARE(numbers.section('.', 0, 1), QString(Version::GetDescStringMajorMinor(false)));
        QCOMPARE(QString(Version::GetDescStringMajorMinorReleaseRevisionDate()), numbers + " 2024-1");
    }

private:
    void turnWheelOver(const QWidget& field)
    {
        const QPoint place = field.mapTo(&m_window, field.rect().center());
        QWheelEvent turn(place, m_window.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        // An event from outside moves the focus where the policy asks for that, and goes on to parents.
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(m_window.windowHandle(), &turn); // To send it would mark it as one from inside.
    }

    FakeApplication m_application;
    ZelControlCenterStandAloneWidget m_window{&m_application, nullptr, Qt::FramelessWindowHint};
};

QTEST_MAIN(tst_ZelControlCenterStandAloneWidget)
#include "tst_ZelControlCenterStandAloneWidget.moc"
