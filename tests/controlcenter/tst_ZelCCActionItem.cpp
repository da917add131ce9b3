#include "FakeApplication.h"
#include "ZelCCActionItem.h"
#include "ZelControlCenter.h"

#include "platform/zelAction.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using zel::ZelCCActionItem;
using zel::ZelControlCenter;

class tst_ZelCCActionItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mirrorsItsAction();
    void placement_data();
    void placement();
    void separators();
    void unregistering();
    void closeMenuOnTrigger();

private:
    static QStringList column(const ZelControlCenter& controlCenter);

    FakeApplication m_application;
};

/// The menu column from top to bottom: names of actions, "-" for separators.
QStringList tst_ZelCCActionItem::column(const ZelControlCenter& controlCenter)
{
    QStringList names;
    const QLayout* layout = controlCenter.findChild<QFrame*>("actionFrame")->layout();
    for (int i = 0; i < layout->count(); ++i) {
        const auto* item = qobject_cast<ZelCCActionItem*>(layout->itemAt(i)->widget());
        names << (item ? item->getZelAction()->getActionName() : "-");
    }
    return names;
}

void tst_ZelCCActionItem::mirrorsItsAction()
{
    zelAction action("open", "Open", nullptr);
    ZelCCActionItem item(&action, nullptr, Qt::WindowFlags());
    auto* button = item.findChild<QPushButton*>("actionButton");
    auto* shortcut = item.findChild<QLabel*>("shortcut");
    QCOMPARE(button->text(), QString("Open"));
    QVERIFY(shortcut->isHidden() && !item.isWorkflowSpecific());

    action.setText("Open file");
    action.setShortcut(QKeySequence("Ctrl+O"));
    action.setToolTip("Opens a file");
    action.setStatusTip("Opens");
    QCOMPARE(button->text(), QString("Open file"));
    QVERIFY(!shortcut->isHidden());
    QCOMPARE(shortcut->text(), QKeySequence("Ctrl+O").toString(QKeySequence::NativeText));
    QCOMPARE(item.toolTip() + "/" + item.statusTip(), QString("Opens a file/Opens"));

    QSignalSpy triggered(&action, SIGNAL(triggered()));
    item.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(triggered.count(), 1);

    action.setShortcut(QKeySequence());
    action.setEnabled(false);
    QVERIFY(shortcut->isHidden() && !shortcut->text().isEmpty() && !button->isEnabled());
    action.setVisible(false);
    QVERIFY(item.isHidden());
}

void tst_ZelCCActionItem::placement_data()
{
    QTest::addColumn<QString>("anchor");
    QTest::addColumn<bool>("after");
    QTest::addColumn<QString>("expected");
    QTest::newRow("on top") << "" << true << "new,b,a,Settings";
    QTest::newRow("before") << "a" << false << "b,new,a,Settings";
    QTest::newRow("after") << "b" << true << "b,new,a,Settings";
    QTest::newRow("after the last") << "Settings" << true << "b,a,Settings,new";
    QTest::newRow("unknown anchor") << "c" << false << "b,a,Settings,new";
}

void tst_ZelCCActionItem::placement()
{
    QFETCH(QString, anchor);
    QFETCH(bool, after);
    QFETCH(QString, expected);
    zelAction a("a", "A", nullptr), b("b", "B", nullptr), added("new", "New", nullptr);
    ZelControlCenter controlCenter(&m_application, nullptr, Qt::WindowFlags());
    controlCenter.registerCCAction(&a, "", false, false, false);
    controlCenter.registerCCAction(&b, "", false, false, false);
    controlCenter.registerCCAction(&added, anchor, true, after, false);
    QCOMPARE(column(controlCenter).join(","), expected);
}

void tst_ZelCCActionItem::separators()
{
    ZelControlCenter controlCenter(&m_application, nullptr, Qt::WindowFlags());
    controlCenter.setFixedWidth(250);
    controlCenter.resize(250, 400);
    zelAction a("a", "A", nullptr);
    controlCenter.registerCCAction(&a, "", false, false, false);
    QVERIFY(controlCenter.addCCSeparator("Settings", "before settings"));
    QVERIFY(!controlCenter.addCCSeparator("", "before settings"));
    QVERIFY(controlCenter.addCCSeparator("", "top"));
    QVERIFY(controlCenter.addCCSeparator("unknown", "bottom"));
    QCOMPARE(column(controlCenter).join(","), QString("-,a,-,Settings,-"));
    auto* line = controlCenter.findChild<QFrame*>("actionFrame")->layout()->itemAt(0)->widget();
    QCOMPARE(line->minimumSize(), QSize(232, 1));
    QCOMPARE(line->styleSheet(), QString("background:rgb(0,0,0,30);"));
    QVERIFY(controlCenter.setCCSeparatorVisible("top", false) && line->isHidden());
    QVERIFY(!controlCenter.setCCSeparatorVisible("unknown", true));
    controlCenter.unregisterCCAction(&a);
}

void tst_ZelCCActionItem::unregistering()
{
    zelAction twice("twice", "Twice", nullptr), other("other", "Other", nullptr);
    ZelControlCenter controlCenter(&m_application, nullptr, Qt::WindowFlags());
    controlCenter.registerCCAction(&twice, "", false, false, true);
    controlCenter.registerCCAction(&twice, "", false, false, false);
    controlCenter.unregisterCCAction(&other);
    controlCenter.unregisterCCAction(&twice);
    QCOMPARE(column(controlCenter), QStringList("Settings"));
    twice.setText("Changed"); // Nothing mirrors it any more.
}

void tst_ZelCCActionItem::closeMenuOnTrigger()
{
    zelAction closing("closing", "Closing", nullptr), staying("staying", "Staying", nullptr);
    ZelControlCenter controlCenter(&m_application, nullptr, Qt::WindowFlags());
    controlCenter.registerCCAction(&closing, "", false, false, true);
    controlCenter.registerCCAction(&staying, "", false, false, false);
    controlCenter.openMenu(true);
    QTRY_VERIFY(controlCenter.isMenuOpen());
    staying.trigger();
    QTest::qWait(450); // Longer than a slide.
    QVERIFY(controlCenter.isMenuOpen());
    closing.trigger();
    QTRY_VERIFY(!controlCenter.isMenuOpen());
    controlCenter.unregisterCCAction(&closing);
    controlCenter.unregisterCCAction(&staying);
}

QTEST_MAIN(tst_ZelCCActionItem)
#include "tst_ZelCCActionItem.moc"
