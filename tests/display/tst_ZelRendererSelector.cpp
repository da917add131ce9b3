#include "ZelRendererSelector.h"

#include <QtTest>

class tst_ZelRendererSelector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesByMouseAndKeyboard()
    {
        zel::ZelRendererSelector selector(nullptr, Qt::WindowFlags());
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        selector.show();
        selector.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&selector));
        const std::pair<const char*, bool> clicks[] = {
            {"label_2", true}, {"raytracerButton", false}, {"label_2", false}, {"deferredButton", true}};
        const QImage window = selector.grab().toImage();
        for (const auto& [name, gpu] : clicks) {
            const bool before = selector.useGPURenderer();
            QTest::mousePress(child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), before);
            QTest::mouseRelease(child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), gpu);
            QCOMPARE(child(name)->hasFocus(), name != std::string("label_2"));
            child("okButton")->setFocus();
            QVERIFY2(selector.grab().toImage() == window, "a choice is not to be highlighted");
        }
        for (const char* name : {"raytracerButton", "deferredButton", "raytracerButton"}) {
            QWidget* engine = child(name);
            const bool before = selector.useGPURenderer();
            const QImage look = engine->grab().toImage();
            for (int stop = 0; stop < 4 && !engine->hasFocus(); ++stop)
                QTest::keyClick(selector.focusWidget(), Qt::Key_Tab);
            QVERIFY2(engine->grab().toImage() != look, "the focus is to be seen");
            QCOMPARE(selector.useGPURenderer(), before);
            QTest::keyClick(engine, Qt::Key_Space);
            QCOMPARE(selector.useGPURenderer(), !before);
        }
        QTest::keyClick(selector.focusWidget(), Qt::Key_Return); // Wherever the focus is.
        QVERIFY(!selector.isVisible() && !selector.useGPURenderer());
        QCOMPARE(selector.result(), int(QDialog::Accepted));
    }
};

QTEST_MAIN(tst_ZelRendererSelector)
#include "tst_ZelRendererSelector.moc"
