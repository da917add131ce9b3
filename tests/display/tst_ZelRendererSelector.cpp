#include "ZelRendererSelector.h"

#include <QFile>
#include <QLabel>
#include <QtTest>

using zel::ZelRendererSelector;

namespace {

class ShownSelector : public ZelRendererSelector
{
public:
    ShownSelector()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    QWidget* child(const QString& name) const { return findChild<QWidget*>(name); }
    void tabTo(const QString& name)
    {
        for (int stop = 0; stop < 4 && focusWidget() != child(name); ++stop)
            QTest::keyClick(focusWidget(), Qt::Key_Tab);
        QVERIFY2(child(name)->hasFocus(), qPrintable(name));
    }
};

/// Counts the mouse releases that the selector lets through to its engines. Filters installed later go first.
class PassedReleases : public QObject
{
public:
    explicit PassedReleases(ShownSelector& selector)
    {
        for (QWidget* engine : {selector.child("raytracerButton"), selector.child("deferredButton")}) {
            engine->installEventFilter(this);
            engine->removeEventFilter(&selector);
            engine->installEventFilter(&selector);
        }
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == QEvent::MouseButtonRelease;
        return false;
    }
    int m_count = 0;
};

} // namespace

class tst_ZelRendererSelector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesByMouse_data();
    void choosesByMouse();
    void choosesByKeyboard();
    void ends_data();
    void ends();
    void titleMovesTheWindow();
    void glowSurroundsTheWindow();
    void nothingIsClipped();
};

void tst_ZelRendererSelector::choosesByMouse_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<bool>("gpu");
    QTest::addColumn<int>("passedOn");
    const QString low = "raytracerButton", high = "deferredButton";
    QTest::newRow("nothing") << QStringList() << true << 0;
    QTest::newRow("high is chosen already") << QStringList(high) << true << 1;
    QTest::newRow("low twice") << (QStringList() << low << low) << false << 1;
    QTest::newRow("low, high") << (QStringList() << low << high) << true << 0;
    QTest::newRow("beside the engines") << QStringList("label_2") << true << 0;
}

void tst_ZelRendererSelector::choosesByMouse()
{
    QFETCH(QStringList, clicks);
    ShownSelector selector;
    PassedReleases passedOn(selector);
    const QImage look = selector.grab().toImage();
    for (const QString& name : clicks) {
        const bool before = selector.useGPURenderer();
        QTest::mousePress(selector.child(name), Qt::LeftButton);
        QCOMPARE(selector.useGPURenderer(), before);
        QTest::mouseRelease(selector.child(name), Qt::LeftButton);
    }
    QTEST(selector.useGPURenderer(), "gpu");
    QTEST(passedOn.m_count, "passedOn");
    QVERIFY2(selector.grab().toImage() == look, "a choice is not to be highlighted");
}

void tst_ZelRendererSelector::choosesByKeyboard()
{
    ShownSelector selector;
    for (const char* name : {"raytracerButton", "deferredButton"}) {
        const bool before = selector.useGPURenderer();
        const QImage look = selector.child(name)->grab().toImage();
        selector.tabTo(name);
        QCOMPARE(selector.useGPURenderer(), before);
        QVERIFY2(selector.child(name)->grab().toImage() != look, "the focus is to be seen");
        QTest::keyClick(selector.focusWidget(), Qt::Key_Space);
        QCOMPARE(selector.useGPURenderer(), !before);
    }
}

void tst_ZelRendererSelector::ends_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    const int click = 0;
    QTest::newRow("Ok") << "okButton" << click << int(QDialog::Accepted);
    QTest::newRow("close") << "closeButton" << click << int(QDialog::Rejected);
    QTest::newRow("Enter on an engine") << "deferredButton" << int(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("Escape on an engine") << "deferredButton" << int(Qt::Key_Escape) << int(QDialog::Rejected);
    QTest::newRow("Space on close") << "closeButton" << int(Qt::Key_Space) << int(QDialog::Rejected);
}

void tst_ZelRendererSelector::ends()
{
    QFETCH(QString, widget);
    QFETCH(int, key);
    ShownSelector selector;
    QSignalSpy finished(&selector, SIGNAL(finished(int)));
    QTest::mouseClick(selector.child("raytracerButton"), Qt::LeftButton);
    if (key) {
        selector.tabTo(widget);
        QTest::keyClick(selector.focusWidget(), Qt::Key(key));
    } else {
        QTest::mouseClick(selector.child(widget), Qt::LeftButton);
    }
    QCOMPARE(finished.count(), 1);
    QTEST(selector.result(), "result");
    QVERIFY(!selector.useGPURenderer());
}

void tst_ZelRendererSelector::titleMovesTheWindow()
{
    ShownSelector selector;
    QWidget* title = selector.child("titleFrame");
    const QPoint grip(5, 5), way(30, 20), start = selector.pos(), pressed = title->mapToGlobal(grip);
    QTest::mousePress(title, Qt::LeftButton, Qt::NoModifier, grip);
    QMouseEvent move(QEvent::MouseMove, grip + way, pressed + way, Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(title, &move);
    QCOMPARE(selector.pos(), start + way);
}

void tst_ZelRendererSelector::glowSurroundsTheWindow()
{
    ShownSelector selector;
    QRegion covered = selector.child("mainFrame")->geometry();
    const QString suffixes = "TL T TR L R BL B BR LT LB RT RB OTL ORT OBL OBR ITL IRT IBL IBR";
    for (const QString& suffix : suffixes.split(' ')) {
        QWidget* frame = selector.child("Frame" + suffix);
        QVERIFY2(frame && QFile::exists(":/glow/Glow/" + suffix + ".png"), qPrintable(suffix));
        covered += frame->geometry();
    }
    QCOMPARE(covered, QRegion(selector.rect()));

    const QImage image = selector.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QVERIFY(qAlpha(image.pixel(24, 11)) > qAlpha(image.pixel(24, 6)));
    for (int x = 22; x < image.width() - 22; ++x)
        QVERIFY2(image.pixel(x, 8) == image.pixel(22, 8), "the pieces join without a seam");
}

void tst_ZelRendererSelector::nothingIsClipped()
{
    ShownSelector selector;
    QCOMPARE(selector.size(), QSize(517, 262));
    for (const QLabel* label : selector.findChildren<QLabel*>())
        QVERIFY2(label->size() == label->size().expandedTo(label->sizeHint()),
                 qPrintable(label->objectName()));
}

QTEST_MAIN(tst_ZelRendererSelector)
#include "tst_ZelRendererSelector.moc"
