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

class tst_ZelCCActionItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mirrorsItsAction()
    {
        zelAction action("open", "Open", nullptr);
        ZelCCActionItem item(&action, nullptr, Qt::WindowFlags());
        auto* button = item.findChild<QPushButton*>("actionButton");
        auto* shortcut = item.findChild<QLabel*>("shortcut");
        QCOMPARE(button->text(), QString("Open"));
        QVERIFY(shortcut->isHidden());

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

    void standsWhereItIsAskedTo()
    {
        const struct
        {
            const char *name, *anchor;
            bool anchored, after;
        } registrations[] = {{"a", "", false, false},        {"b", "", true, true},
                             {"before a", "a", true, false}, {"last", "Settings", true, true},
                             {"twice", "gone", true, true},  {"twice", "b", true, true}};
        std::vector<std::unique_ptr<zelAction>> actions;
        for (const auto& one : registrations) {
            if (actions.empty() || actions.back()->getActionName() != one.name)
                actions.emplace_back(new zelAction(one.name, "Action", nullptr));
            m_controlCenter.registerCCAction(actions.back().get(), one.anchor, one.anchored, one.after,
                                             false);
        }
        QCOMPARE(column(), QString("b,twice,before a,a,Settings,last,twice"));

        QVERIFY(m_controlCenter.addCCSeparator("Settings", "before settings"));
        QVERIFY(!m_controlCenter.addCCSeparator("", "before settings"));
        QVERIFY(m_controlCenter.addCCSeparator("", "top"));
        QVERIFY(m_controlCenter.addCCSeparator("gone", "bottom"));
        m_controlCenter.unregisterCCAction(actions.back().get());
        actions.back()->setText("Changed"); // Nothing mirrors it any more.
        QCOMPARE(column(), QString("-,b,before a,a,-,Settings,last,-"));
        QVERIFY(m_controlCenter.setCCSeparatorVisible("top", false));
        QVERIFY(layout()->itemAt(0)->widget()->isHidden());
        QVERIFY(!m_controlCenter.setCCSeparatorVisible("gone", true));
        for (const auto& action : actions)
            m_controlCenter.unregisterCCAction(action.get());
    }

    void closesTheMenuWhereThatIsAsked()
    {
        zelAction action("closing", "Closing", nullptr);
        m_controlCenter.registerCCAction(&action, "", false, false, true);
        m_controlCenter.openMenu(true);
        QTRY_VERIFY(m_controlCenter.isMenuOpen());
        action.trigger();
        QTRY_VERIFY(!m_controlCenter.isMenuOpen());
        m_controlCenter.unregisterCCAction(&action);
    }

private:
    const QLayout* layout() const { return m_controlCenter.findChild<QFrame*>("actionFrame")->layout(); }

    /// The menu column from top to bottom: names of actions, "-" for separators.
    QString column() const
    {
        QStringList names;
        for (int i = 0; i < layout()->count(); ++i) {
            const auto* item = qobject_cast<ZelCCActionItem*>(layout()->itemAt(i)->widget());
            names << (item ? item->getZelAction()->getActionName() : "-");
        }
        return names.join(",");
    }

    FakeApplication m_application;
    zel::ZelControlCenter m_controlCenter{&m_application, nullptr, Qt::WindowFlags()};
};

QTEST_MAIN(tst_ZelCCActionItem)
#include "tst_ZelCCActionItem.moc"
