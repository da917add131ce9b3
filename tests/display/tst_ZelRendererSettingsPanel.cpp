#include "FakeApplication.h"
#include "ShownPage.h"
#include "ZelRendererSettingsPanel.h"

#include "platform/zelAction.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>
#include <QThread>

using zel::ZelRendererSettingsPanel;

namespace {

/// Values that the page can show as they are, and that a user can change in both directions.
SettingsTexts plainTexts(const SettingsTexts& others = SettingsTexts())
{
    SettingsTexts texts{{"engine", "deferred"},
                        {"raytracer/coreNumber", "1"},
                        {"raytracer/quality", "Medium"},
                        {"deferred/useSSAO", "true"},
                        {"deferred/useFXAA", "true"},
                        {"deferred/useED", "false"},
                        {"deferred/sceneUnits", "1"},
                        {"Resources/MaxCPUMemory3D", "1073741824"},
                        {"Resources/MaxCPUMemoryRaytracer", "1073741824"},
                        {"Resources/MaxGPUMemory", "1073741824"},
                        {"Resources/LODTrianglesCap", "1000000"}};
    for (const QString& key : others.keys())
        texts[key] = others[key];
    return texts;
}

struct Viewer : FakeApplication
{
    explicit Viewer(const SettingsTexts& texts)
    {
        renderer = &fakeRenderer;
        store(getSettings(), texts);
    }
    FakeRenderer fakeRenderer;
};

struct Display : ShownPage<ZelRendererSettingsPanel>
{
    explicit Display(FakeApplication& viewer)
        : ShownPage(&viewer, viewer.getSettings())
    {
        // As if on a machine that has more cores than any of the tests asks for.
        find<QSlider>("coreUsedSlider")->setMaximum(8);
    }
    void slide(const char* name, int steps)
    {
        QTest::keyClick(find(name), Qt::Key_Home);
        while (steps-- > 0)
            QTest::keyClick(find(name), Qt::Key_Right);
    }
    QString text(const char* name) { return find<QLabel>(name)->text(); }
};

} // namespace

class tst_ZelRendererSettingsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { registerDefaults(plainTexts()); }

    void storedValues_data()
    {
        // An empty text of "saved" says that the page shows the stored value, so that Apply writes nothing.
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("saved");

        const QString most = "8489271296", least = "134217728", maximum = "18446744073709551615";
        for (const QString& row :
             {QString("deferred Resources/MaxCPUMemory3D"), QString("deferred Resources/MaxGPUMemory"),
              QString("software Resources/MaxCPUMemoryRaytracer")}) {
            const QString engine = row.section(' ', 0, 0), key = row.section(' ', 1);
            const QString other = engine == "software" ? "deferred" : "software";
            const auto name = [&](const char* what) { return qPrintable(key + ": " + what); };
            QTest::newRow(name("1.5 GiB")) << engine << key << "1610612736"
                                           << "";
            QTest::newRow(name("part of a MiB")) << engine << key << "1610612737"
                                                 << "1610612736";
            QTest::newRow(name("least")) << engine << key << least << "";
            QTest::newRow(name("too little")) << engine << key << "104857600" << least;
            QTest::newRow(name("most")) << engine << key << most << "";
            QTest::newRow(name("too much")) << engine << key << "8490319872" << most;
            QTest::newRow(name("far too much")) << engine << key << maximum << most;
            QTest::newRow(name("other engine")) << other << key << "1"
                                                << "";
        }
        for (const QString& engine : {QString("deferred"), QString("software")}) {
            const QString key = "Resources/LODTrianglesCap";
            const auto name = [&](const char* what) { return qPrintable(engine + " cap: " + what); };
            QTest::newRow(name("least")) << engine << key << "50000"
                                         << "";
            QTest::newRow(name("too few")) << engine << key << "49999"
                                           << "50000";
            QTest::newRow(name("most")) << engine << key << "500000000"
                                        << "";
            QTest::newRow(name("too many")) << engine << key << "500000001"
                                            << "500000000";
            QTest::newRow(name("more than 32 bits")) << engine << key << "4294967297"
                                                     << "500000000";
            QTest::newRow(name("not a number")) << engine << key << "many"
                                                << "50000";
        }
        const QString cores = "raytracer/coreNumber", quality = "raytracer/quality";
        QTest::newRow("no core") << "software" << cores << "0"
                                 << "1";
        QTest::newRow("more cores than there are")
            << "software" << cores << "100000" << QString::number(QThread::idealThreadCount());
        QTest::newRow("cores of the other engine") << "deferred" << cores << "100000"
                                                   << "";
        QTest::newRow("best quality") << "software" << quality << "Ultra"
                                      << "";
        QTest::newRow("unknown quality") << "software" << quality << "ultra"
                                         << "";
        QTest::newRow("engine in capitals") << "Software" << quality << "Low"
                                            << "";
        for (const char* unit : {"0.0015", "5", "999.9995", "", "nan"})
            QTest::newRow(qPrintable(QString("scene unit ") + unit)) << "deferred"
                                                                     << "deferred/sceneUnits" << unit << "";
        for (const char* key : {"deferred/useSSAO", "deferred/useFXAA", "deferred/useED"})
            for (const char* flag : {"true", "1", "false", "0", ""})
                QTest::newRow(qPrintable(QString(key) + " " + flag)) << "deferred" << key << flag << "";
    }
    void storedValues()
    {
        QFETCH(QString, engine);
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(QString, saved);
        Viewer viewer(plainTexts({{"engine", engine}, {key, stored}}));
        const QByteArray before = viewer.storedFile();
        ShownPage<ZelRendererSettingsPanel> display(&viewer, viewer.getSettings());

        QCOMPARE(display.page.hasModifications(), !saved.isEmpty());
        display.page.applyModifications();
        QCOMPARE(display.page.hasModifications(), false);
        QCOMPARE(viewer.fakeRenderer.triangles.size(), saved.isEmpty() ? 0 : 1);
        QCOMPARE(display.changes.size(), 0);
        if (saved.isEmpty())
            QCOMPARE(viewer.storedFile(), before);
        else
            QVERIFY(viewer.storedFile().contains("\n" + key.section('/', -1).toUtf8() + "=" + saved.toUtf8() +
                                                 "\n"));
    }

    void edits_data()
    {
        QTest::addColumn<QString>("engine");
        QTest::addColumn<QByteArray>("object");
        QTest::addColumn<QString>("typed"); // Empty for a click, "+" for one step up.
        QTest::addColumn<QByteArray>("saved");
        const auto row = [](const char* engine, const char* object, const char* typed, const char* saved) {
            QTest::newRow(object) << engine << QByteArray(object) << typed << QByteArray(saved);
        };
        row("deferred", "raytracerButton", "", "engine=software");
        row("deferred", "deferredFXAACheckBox", "", "useFXAA=false");
        row("deferred", "deferredSSAOCheckBox", "", "useSSAO=false");
        row("deferred", "deferredEDCheckBox", "", "useED=true");
        row("deferred", "sceneUnitComboBox", "+", "sceneUnits=10");
        row("deferred", "maxCPU3DSpinBox", "8096", "MaxCPUMemory3D=8489271296");
        row("deferred", "maxGPUSPinBox", "128", "MaxGPUMemory=134217728");
        row("deferred", "maxTrianglesSpinBox", "500000000", "LODTrianglesCap=500000000");
        row("software", "deferredButton", "", "engine=deferred");
        row("software", "qualitySlider", "+", "quality=High");
        row("software", "coreUsedSlider", "+", "coreNumber=2");
        row("software", "maxCPURaySpinBox", "4096", "MaxCPUMemoryRaytracer=4294967296");
    }
    void edits()
    {
        QFETCH(QString, engine);
        QFETCH(QByteArray, object);
        QFETCH(QString, typed);
        QFETCH(QByteArray, saved);
        Viewer viewer(plainTexts({{"engine", engine}}));
        registerDefaults(plainTexts({{"engine", engine}}));
        Display display(viewer);
        QVERIFY(!display.canClickReset());
        const QByteArray before = viewer.storedFile();

        if (typed.isEmpty())
            display.click(object);
        else if (typed == "+")
            QTest::keyClick(display.find(object),
                            object == "sceneUnitComboBox" ? Qt::Key_Down : Qt::Key_Right);
        else
            display.type(object, typed);
        QVERIFY(display.changes.size() > 0);
        QVERIFY(display.canClickReset());
        QVERIFY(display.page.hasModifications());
        QCOMPARE(viewer.storedFile(), before);

        display.page.applyModifications();
        QVERIFY(viewer.storedFile().contains("\n" + saved + "\n"));
        const quint64 cap = object == "maxTrianglesSpinBox" ? 500000000 : 1000000;
        QCOMPARE(viewer.fakeRenderer.triangles, QList<quint64>{cap});
        QVERIFY(!display.page.applyModifications());
        QCOMPARE(viewer.fakeRenderer.triangles.size(), 1);
    }

    void ignoresWhatTheEngineDoesNotUse()
    {
        Viewer viewer(plainTexts({{"deferred/useSSAO", "false"}}));
        Display display(viewer);
        QTest::keyClick(display.find("sceneUnitComboBox"), Qt::Key_Down);
        display.click("raytracerButton");
        display.slide("qualitySlider", 3);
        display.slide("coreUsedSlider", 3);
        display.type("maxCPURaySpinBox", "200");
        QVERIFY(display.page.hasModifications());
        display.click("deferredButton");
        QVERIFY(!display.page.hasModifications());
        display.click("deferredSSAOCheckBox");
        viewer.getSettings().setValue("deferred/useSSAO", true);
        QVERIFY(display.page.hasModifications());
    }

    void writesEverythingWithoutAnApplication()
    {
        Viewer viewer((SettingsTexts()));
        ShownPage<ZelRendererSettingsPanel> display(nullptr, viewer.getSettings());
        display.click("raytracerButton");
        QVERIFY(display.page.applyModifications());
        QCOMPARE(QString(viewer.storedFile()),
                 QString("[General]\nengine=software\n\n[Resources]\nLODTrianglesCap=50000\n"
                         "MaxCPUMemory3D=134217728\nMaxCPUMemoryRaytracer=134217728\n"
                         "MaxGPUMemory=134217728\n\n[deferred]\nsceneUnits=1\nuseED=false\nuseFXAA=false\n"
                         "useSSAO=false\n\n[raytracer]\ncoreNumber=1\nquality=Low\n"));
    }

    void restarts_data()
    {
        // A step is "software", "deferred", "c" and cores, or "q" and a quality; "!" says that it needs a
        // restart.
        QTest::addColumn<QString>("started");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("steps");
        QTest::newRow("to the raytracer and back") << "deferred"
                                                   << "deferred"
                                                   << "software! deferred software!";
        QTest::newRow("from the raytracer and back") << "software"
                                                     << "software"
                                                     << "deferred! software";
        QTest::newRow("stored meanwhile") << "deferred"
                                          << "software"
                                          << "deferred";
        QTest::newRow("cores") << "software"
                               << "software"
                               << "c2! c1 c3! c2! c1";
        QTest::newRow("quality") << "software"
                                 << "software"
                                 << "q2! q1 q3! q0! q1";
        QTest::newRow("both") << "software"
                              << "software"
                              << "c2! q2! c1 q1";
        QTest::newRow("both, from the graphics card") << "deferred"
                                                      << "deferred"
                                                      << "software! c2! q3! c1 deferred";
        QTest::newRow("effects") << "deferred"
                                 << "deferred"
                                 << "effect effect";
    }
    void restarts()
    {
        QFETCH(QString, started);
        QFETCH(QString, stored);
        QFETCH(QString, steps);
        Viewer viewer(plainTexts({{"engine", started}}));
        Display display(viewer);
        store(viewer.getSettings(), {{"engine", stored}});
        display.page.initializeWidget();
        for (const QString& step : steps.split(' ')) {
            if (step[0] == 'c')
                display.slide("coreUsedSlider", step.mid(1, 1).toInt() - 1);
            else if (step[0] == 'q')
                display.slide("qualitySlider", step.mid(1, 1).toInt());
            else
                display.click(step[0] == 's'   ? "raytracerButton"
                              : step[0] == 'd' ? "deferredButton"
                                               : "deferredEDCheckBox");
            QVERIFY2(display.page.hasModifications(), qPrintable(step));
            QVERIFY2(display.page.applyModifications() == step.endsWith('!'), qPrintable(step));
        }
    }

    void showsTheEnginesOwnFrames_data()
    {
        QTest::addColumn<bool>("gpu");
        QTest::newRow("deferred") << true;
        QTest::newRow("software") << false;
    }
    void showsTheEnginesOwnFrames()
    {
        QFETCH(bool, gpu);
        Viewer viewer(plainTexts({{"engine", gpu ? "deferred" : "software"}}));
        zelActionManager actions;
        auto* renderingMode = new zelAction("renderingMode", "Rendering mode", &actions);
        renderingMode->setEnabled(!gpu);
        viewer.actionManager = &actions;
        Display display(viewer);
        for (const bool shown : {gpu, !gpu, gpu}) {
            display.click(shown ? "deferredButton" : "raytracerButton");
            for (const char* name : {"hardwareFrame", "SSAOFrame", "GPUMemoryFrame", "GPUMemory"})
                QVERIFY2(display.find(name)->isVisible() == shown, name);
            for (const char* name : {"softwareFrame", "basicOptionFrame", "CPUMemoryFrame"})
                QVERIFY2(display.find(name)->isVisible() != shown, name);
            QVERIFY(display.find("maxTrianglesSpinBox")->isVisible());
            QVERIFY(!display.find("extendOptionFrame")->isVisible());
            QCOMPARE(renderingMode->isEnabled(), gpu);
        }
    }

    void resetsToTheDefaults()
    {
        registerDefaults(plainTexts({{"engine", "software"}, {"raytracer/quality", "Ultra"}}));
        Viewer viewer(plainTexts());
        Display display(viewer);
        const QByteArray before = viewer.storedFile();
        display.find("resetButton")->setFocus();
        QTest::keyClick(display.find("resetButton"), Qt::Key_Space);
        QVERIFY(!display.canClickReset());
        QVERIFY(!display.page.focusWidget() || !display.page.focusWidget()->hasFocus());
        QCOMPARE(display.changes.size(), 1);
        QCOMPARE(display.text("qualityLabel"), QString("Ultra"));
        QVERIFY(display.find<QAbstractButton>("raytracerButton")->isChecked());
        QVERIFY(!display.find<QAbstractButton>("deferredButton")->isChecked());
        QCOMPARE(viewer.storedFile(), before);
        display.page.resetContent();
        QCOMPARE(display.changes.size(), 1);
        QVERIFY(!display.page.cancelModifications() && display.page.hasModifications());
    }

    void labelsTheSliders()
    {
        Viewer viewer(plainTexts({{"engine", "software"}, {"raytracer/coreNumber", "0"}}));
        Display display(viewer);
        QCOMPARE(display.text("coreUsedLabel"), QString("0 core"));
        for (const char* text : {"1 core", "2 cores", "3 cores"}) {
            display.slide("coreUsedSlider", text[0] - '1');
            QCOMPARE(display.text("coreUsedLabel"), QString(text));
        }
        const QStringList names{"Low", "Medium", "High", "Ultra"};
        for (int quality : {3, 2, 1, 0}) {
            display.slide("qualitySlider", quality);
            QCOMPARE(display.text("qualityLabel"), names[quality]);
        }
    }

    void marksTheStepsOfSliders()
    {
        Viewer viewer(plainTexts({{"engine", "software"}}));
        Display display(viewer);
        const QImage image = display.find("qualitySlider")->grab().toImage();
        int marks = 0;
        for (int x = 1; x < image.width() - 1; ++x)
            marks += image.pixelColor(x, image.height() - 4) == Qt::white;
        QCOMPARE(marks, 4);
    }

    void namesSceneUnits()
    {
        const QList<QPair<float, int>> units{{0.001F, 0}, {0.0015F, 0}, {0.01F, 1}, {0.1F, 2},
                                             {1.F, 3},    {5.F, 3},     {0.F, 3},   {10.F, 4},
                                             {100.F, 5},  {1000.F, 6},  {-1.F, 3},  {999.9995F, 6}};
        for (const auto& unit : units)
            QCOMPARE(ZelRendererSettingsPanel::GetSceneUnitComboIndex(unit.first), unit.second);
    }

    void canBeUsedByKeyboard_data() { showsTheEnginesOwnFrames_data(); }
    void canBeUsedByKeyboard()
    {
        QFETCH(bool, gpu);
        Viewer viewer(plainTexts({{"engine", gpu ? "deferred" : "software"},
                                  {"raytracer/quality", "Low"},
                                  {"deferred/useED", "true"}}));
        registerDefaults(SettingsTexts());
        Display display(viewer);
        QVERIFY(display.page.minimumSizeHint().width() <= 435);
        display.find("resetButton")->setFocus();
        for (int top = -1, stop = 0; stop < (gpu ? 9 : 6); ++stop) {
            QWidget* widget = display.page.focusWidget();
            const int y = widget->mapTo(&display.page, QPoint()).y();
            QVERIFY2(y > top, qPrintable(widget->objectName()));
            top = y;
            QTest::keyClick(widget, Qt::Key_Tab);
        }
        QVERIFY(display.find("resetButton")->hasFocus());
    }
};

QTEST_MAIN(tst_ZelRendererSettingsPanel)

#include "tst_ZelRendererSettingsPanel.moc"
