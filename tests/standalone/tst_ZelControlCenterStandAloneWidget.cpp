#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsPanel.h"

#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace zel;

class tst_ZelControlCenterStandAloneWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesStandInTheirOrder()
    {
        m_window.show();
        m_window.openMenu();
        QTRY_VERIFY(m_window.findChild<ZelControlCenter*>()->isSettingsOpen());
        QMap<int, QString> byPosition;
        for (const ZelSettingsPanel* page : m_window.findChildren<ZelSettingsPanel*>())
            byPosition.insert(page->y(), page->getPanelName());
        const QStringList expected = {"Display", "Folders", "Simplification", "Tessellation", "About"};
        QCOMPARE(QStringList(byPosition.values()), expected);
    }

    void headerMovesAndMaximizes()
    {
        m_window.show();
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

private:
    QTemporaryDir m_folder;
    ZelSettingsApplication m_application{m_folder.path()};
    ZelControlCenterStandAloneWidget m_window{&m_application, nullptr, Qt::FramelessWindowHint};
};

QTEST_MAIN(tst_ZelControlCenterStandAloneWidget)
#include "tst_ZelControlCenterStandAloneWidget.moc"
