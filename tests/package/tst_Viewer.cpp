#include "../endtoend/Editor.h"
#include "../support/Files.h"

namespace {

const char* const Window = "Torvane Viewer";
const char* const Box = "Settings Modification";

// What the user does, in the words of xdotool.
const char* const ClickButton = "mousemove --window %1 24 24 click 1";
const char* const ClickSettings = "mousemove --window %1 150 112 click 1";
const char* const PointAtEdgeDetect = "mousemove --window %1 330 308";
const char* const TypeTriangles = "mousemove --window %1 650 420 click 1 key ctrl+a type 50000";
const char* const ClickApply = "mousemove --window %1 231 267 click 1";
const char* const ClickView = "mousemove --window %1 900 600 click 1";
const int ClickGuard = 500; // Milliseconds in which another click does not close the menu.

} // namespace

/// The example viewer as a user meets it: what the control center does only inside a viewer.
class tst_Viewer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_viewer.reset();
        m_home = std::make_unique<QTemporaryDir>();
        m_viewer = std::make_unique<Editor>(m_home->path());
        QSettings settings(file("Settings.ini"), QSettings::IniFormat);
        settings.setValue("enablediag", "true");
        settings.setValue("turntable/enabled", "false");
        settings.setValue("Resources/LODTrianglesCap", "100000");
    }

    void closingAsksBeforeItDiscards()
    {
        openDrawer();
        m_viewer->act(PointAtEdgeDetect);
        const QImage before = m_viewer->picture();
        m_viewer->act("click 1");
        QTRY_VERIFY_WITH_TIMEOUT(m_viewer->picture() != before, Patience);
        QTest::qWait(ClickGuard);
        answer(ClickView, "key Escape");
        QCOMPARE(state(), QString("drawer"));
        answer(ClickButton, "key Tab key Return"); // The edit is still there, so that it asks again.
        QCOMPARE(state(), QString("closed"));
    }

    void pushesTakeEffectAtOnce()
    {
        openDrawer();
        const int before = paintedFacets();
        m_viewer->act(TypeTriangles);
        m_viewer->act(ClickApply);
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(paintedFacets() - before / 2) < before / 20, Patience);
    }

private:
    QString file(const QString& name) const { return m_home->path() + "/config/TorvaneViewer/" + name; }

    int paintedFacets() const
    {
        return QString(contentOf(file("log.txt"))).section("painting ", -1).section(' ', 0, 0).toInt();
    }

    /// What is open once nothing moves any more, by the colour of the place where the menu column is.
    QString state() const
    {
        const QMap<QRgb, QString> colors = {{qRgb(52, 64, 84), "menu"}, {qRgb(69, 69, 69), "drawer"}};
        return colors.value(m_viewer->picture().pixel(150, 500), "closed");
    }

    /// Does what opens the box, and closes that with a key.
    void answer(const char* action, const char* key)
    {
        m_viewer->act(action);
        QVERIFY(m_viewer->isAnswered(Box, key) && m_viewer->shows(Window));
    }

    void openDrawer()
    {
        m_viewer->start();
        QVERIFY(m_viewer->shows(Window));
        m_viewer->act("windowmove --sync %1 10 10 windowsize --sync %1 970 680");
        QCOMPARE(state(), QString("closed"));
        m_viewer->act(ClickButton);
        QCOMPARE(state(), QString("menu"));
        m_viewer->act(ClickSettings);
        QCOMPARE(state(), QString("drawer"));
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<Editor> m_viewer;
};

QTEST_MAIN(tst_Viewer)
#include "tst_Viewer.moc"
