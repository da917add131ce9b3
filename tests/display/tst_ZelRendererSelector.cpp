#include "ZelRendererSelector.h"

#include <QtTest>

namespace {

struct ShownSelector : zel::ZelRendererSelector
{
    ShownSelector()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
    QWidget* child(const QString& name) const { return findChild<QWidget*>(name); }
};

} // namespace

class tst_ZelRendererSelector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesByMouse()
    {
        const std::pair<const char*, bool> clicks[] = {
            {"label_2", true}, {"raytracerButton", false}, {"label_2", false}, {"deferredButton", true}};
        ShownSelector selector;
        const QImage look = selector.grab().toImage();
        for (const auto& [name, gpu] : clicks) {
            const bool before = selector.useGPURenderer();
            QTest::mousePress(selector.child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), before);
            QTest::mouseRelease(selector.child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), gpu);
            QCOMPARE(selector.child(name)->hasFocus(), name != clicks[0].first && name != clicks[2].first);
            selector.child("okButton")->setFocus();
            QVERIFY2(selector.grab().toImage() == look, "a choice is not to be highlighted");
        }
    }

    void worksFromTheKeyboard()
    {
        for (const auto& [key, result] : {std::pair<Qt::Key, int>{Qt::Key_Return, QDialog::Accepted},
                                          std::pair<Qt::Key, int>{Qt::Key_Escape, QDialog::Rejected}}) {
            ShownSelector selector;
            for (const char* name : {"raytracerButton", "deferredButton", "raytracerButton"}) {
                QWidget* engine = selector.child(name);
                const bool before = selector.useGPURenderer();
                const QImage look = engine->grab().toImage();
                for (int stop = 0; stop < 4 && !engine->hasFocus(); ++stop)
                    QTest::keyClick(selector.focusWidget(), Qt::Key_Tab);
                QVERIFY2(engine->grab().toImage() != look, "the focus is to be seen");
                QCOMPARE(selector.useGPURenderer(), before);
                QTest::keyClick(engine, Qt::Key_Space);
                QCOMPARE(selector.useGPURenderer(), !before);
            }
            QTest::keyClick(selector.focusWidget(), key);
            QVERIFY(!selector.isVisible() && !selector.useGPURenderer());
            QCOMPARE(selector.result(), result);
        }
    }

    void glowSurroundsTheWindow()
    {
        ShownSelector selector;
        QRegion covered = selector.child("mainFrame")->geometry();
        for (const QWidget* piece : selector.findChildren<QWidget*>(QRegularExpression("^Frame[A-Z]+$")))
            covered += piece->geometry();
        QCOMPARE(covered, QRegion(selector.rect()));

        const QImage image = selector.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        QVERIFY(qAlpha(image.pixel(24, 11)) > qAlpha(image.pixel(24, 6)));
        for (int x = 22; x < image.width() - 22; ++x)
            QVERIFY2(image.pixel(x, 8) == image.pixel(22, 8), "the pieces join without a seam");
    }
};

QTEST_MAIN(tst_ZelRendererSelector)
#include "tst_ZelRendererSelector.moc"
