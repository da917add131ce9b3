#include "BoxAnswer.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsPanel.h"

#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace zel;

class tst_ZelControlCenterStandAloneWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pagesStandInTheirOrder();
    void closingAsksForPendingEdits();
    void maximizeButtonToggles();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ZelSettingsApplication> m_application;
    std::unique_ptr<ZelControlCenterStandAloneWidget> m_window;
};

void tst_ZelControlCenterStandAloneWidget::init()
{
    m_application.reset(new ZelSettingsApplication(m_folder.path()));
    m_application->getSettings().clear();
    m_window.reset(
        new ZelControlCenterStandAloneWidget(m_application.get(), nullptr, Qt::FramelessWindowHint));
    m_window->show();
    m_window->openMenu();
    QTRY_VERIFY(m_window->findChild<ZelControlCenter*>()->isSettingsOpen());
}

void tst_ZelControlCenterStandAloneWidget::cleanup()
{
    m_window.reset();
    m_application.reset();
}

void tst_ZelControlCenterStandAloneWidget::pagesStandInTheirOrder()
{
    QMap<int, QString> byPosition;
    for (const ZelSettingsPanel* page : m_window->findChildren<ZelSettingsPanel*>())
        byPosition.insert(page->y(), page->getPanelName());
    QCOMPARE(QStringList(byPosition.values()),
             QStringList({"Display", "Folders", "Simplification", "Tessellation", "About"}));
    QCOMPARE(m_window->windowTitle(), QString("Torvane - Control Center"));
    QCOMPARE(m_window->size(), QSize(800, 600));
}

void tst_ZelControlCenterStandAloneWidget::closingAsksForPendingEdits()
{
    auto* cacheSize = m_window->findChild<QSpinBox*>("databaseSpinBox");
    cacheSize->setFocus();
    QTest::keyClick(cacheSize, Qt::Key_Up);
    const int edited = cacheSize->value();
    {
        BoxAnswer answer(QMessageBox::Cancel);
        QTest::mouseClick(m_window->findChild<QPushButton*>("closeButton"), Qt::LeftButton);
        QCOMPARE(answer.titles, QStringList("Settings Modification"));
        QCOMPARE(
            answer.texts,
            QStringList("Your current changes will be discarded.\nContinue and close the application ?"));
    }
    QVERIFY(m_window->isVisible());
    QCOMPARE(cacheSize->value(), edited);
    BoxAnswer answer(QMessageBox::Ok);
    QTest::mouseClick(m_window->findChild<QPushButton*>("closeButton"), Qt::LeftButton);
    QVERIFY(!m_window->isVisible() && answer.texts.size() == 1);
}

void tst_ZelControlCenterStandAloneWidget::maximizeButtonToggles()
{
    const QSize normal = m_window->size();
    auto* button = m_window->findChild<QPushButton*>("maximizeButton");
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(m_window->isMaximized());
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!m_window->isMaximized());
    QTRY_COMPARE(m_window->size(), normal);
}

QTEST_MAIN(tst_ZelControlCenterStandAloneWidget)
#include "tst_ZelControlCenterStandAloneWidget.moc"
