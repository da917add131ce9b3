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

/// The viewer with settings that the page can show as they are, but for the given ones.
struct Viewer : FakeApplication
{
    explicit Viewer(const SettingsTexts& others = SettingsTexts())
    {
        renderer = &fakeRenderer;
        store(getSettings(), texts(others));
    }
    static SettingsTexts texts(const SettingsTexts& others)
    {
        const QString plain =
            "engine=deferred deferred/useSSAO=true deferred/useFXAA=true deferred/useED=false "
            "deferred/sceneUnits=1 raytracer/coreNumber=1 raytracer/quality=Medium "
            "Resources/MaxCPUMemory3D=1073741824 Resources/MaxGPUMemory=1073741824 "
            "Resources/MaxCPUMemoryRaytracer=1073741824 Resources/LODTrianglesCap=1000000";
        SettingsTexts all;
        for (const QString& text : plain.split(' '))
            all[text.section('=', 0, 0)] = text.section('=', 1);
        all.insert(others);
        return all;
    }
    bool holds(const QString& line) { return storedFile().contains("\n" + line.toUtf8() + "\n"); }

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

void addRows(const QStringList& rows)
{
    QTest::addColumn<QStringList>("row");
    for (const QString& row : rows)
        QTest::newRow(row.toLatin1()) << row.split(' ');
}

} // namespace

class tst_ZelRendererSettingsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedValues_data()
    {
        // Engine and key, and the values: each may be followed by what Apply makes of it; alone, it is shown
        // as it is and nothing is written.
        const QString flags = "true|1|false|0|";
        const QString memory = "134217728|104857600 134217728|1610612736|1610612737 1610612736|8489271296|"
                               "8490319872 8489271296|18446744073709551615 8489271296";
        const std::vector<std::pair<QString, QString>> keys{
            {"deferred Resources/LODTrianglesCap", "50000|49999 50000|500000000|500000001 500000000"},
            {"software Resources/LODTrianglesCap", "50000|4294967297 500000000|many 50000"},
            {"software raytracer/coreNumber", QString("1|0 1|100000 %1").arg(QThread::idealThreadCount())},
            {"deferred raytracer/coreNumber", "0|100000"},
            {"Software raytracer/coreNumber", "0|100000"},
            {"software raytracer/quality", "Low|Ultra|unknown"},
            {"deferred Resources/MaxCPUMemory3D", memory},
            {"software Resources/MaxCPUMemory3D", "1"},
            {"deferred Resources/MaxGPUMemory", memory},
            {"software Resources/MaxGPUMemory", "1"},
            {"software Resources/MaxCPUMemoryRaytracer", memory},
            {"deferred Resources/MaxCPUMemoryRaytracer", "1"},
            {"deferred deferred/sceneUnits", "0.0015|5|999.9995|nan|"},
            {"deferred deferred/useSSAO", flags},
            {"deferred deferred/useFXAA", flags},
            {"deferred deferred/useED", flags}};
        QStringList rows;
        for (const auto& [key, values] : keys)
            for (const QString& value : values.split('|'))
                rows << key + ' ' + value;
        addRows(rows);
    }
    void storedValues()
    {
        QFETCH(QStringList, row);
        const QString engine = row.value(0), key = row.value(1), stored = row.value(2), saved = row.value(3);
        Viewer viewer({{"engine", engine}, {key, stored}});
        const QByteArray before = viewer.storedFile();
        ShownPage<ZelRendererSettingsPanel> display(&viewer, viewer.getSettings());

        QCOMPARE(display.page.hasModifications(), !saved.isEmpty());
        display.page.applyModifications();
        QCOMPARE(display.page.hasModifications(), false);
        QCOMPARE(viewer.fakeRenderer.triangles.size(), saved.isEmpty() ? 0 : 1);
        QCOMPARE(display.changes.size(), 0);
        QVERIFY(saved.isEmpty() ? viewer.storedFile() == before
                                : viewer.holds(key.section('/', -1) + "=" + saved));
    }

    void edits_data()
    {
        // Engine and widget, what is done and what it saves: a click, a key or a number to type.
        addRows({"deferred raytracerButton click engine=software",
                 "deferred deferredFXAACheckBox click useFXAA=false",
                 "deferred deferredSSAOCheckBox click useSSAO=false",
                 "deferred deferredEDCheckBox click useED=true",
                 "deferred sceneUnitComboBox Down sceneUnits=10",
                 "deferred maxCPU3DSpinBox 8096 MaxCPUMemory3D=8489271296",
                 "deferred maxGPUSPinBox 128 MaxGPUMemory=134217728",
                 "deferred maxTrianglesSpinBox 50000 LODTrianglesCap=50000",
                 "software deferredButton click engine=deferred", "software qualitySlider Right quality=High",
                 "software coreUsedSlider Right coreNumber=2",
                 "software maxCPURaySpinBox 4096 MaxCPUMemoryRaytracer=4294967296"});
    }
    void edits()
    {
        QFETCH(QStringList, row);
        const QString engine = row.value(0), object = row.value(1), done = row.value(2), saved = row.value(3);
        Viewer viewer({{"engine", engine}});
        registerDefaults(Viewer::texts({{"engine", engine}}));
        Display display(viewer);
        QVERIFY(!display.canClickReset());
        const QByteArray before = viewer.storedFile();

        if (done == "click")
            display.click(object);
        else if (done[0].isDigit())
            display.type(object, done);
        else
            QTest::keyClick(display.find(object), done == "Down" ? Qt::Key_Down : Qt::Key_Right);
        QVERIFY(display.changes.size() > 0 && display.canClickReset() && display.page.hasModifications());
        QCOMPARE(viewer.storedFile(), before);

        display.page.applyModifications();
        QVERIFY(viewer.holds(saved));
        const quint64 cap = saved.startsWith("LOD") ? 50000 : 1000000;
        QVERIFY(!display.page.applyModifications());
        QCOMPARE(viewer.fakeRenderer.triangles, QList<quint64>{cap});
    }

    void ignoresTheSceneUnitWithoutSsao()
    {
        Viewer viewer({{"deferred/useSSAO", "false"}});
        Display display(viewer);
        QTest::keyClick(display.find("sceneUnitComboBox"), Qt::Key_Down);
        QCOMPARE(display.changes.size(), 1);
        QVERIFY(!display.page.hasModifications());
        display.click("deferredSSAOCheckBox");
        viewer.getSettings().setValue("deferred/useSSAO", true);
        QVERIFY(display.page.hasModifications());
    }

    void writesEverythingWithoutAnApplication()
    {
        FakeApplication empty;
        ShownPage<ZelRendererSettingsPanel> display(nullptr, empty.getSettings());
        display.click("raytracerButton");
        QVERIFY(display.page.applyModifications());
        QCOMPARE(QString(empty.storedFile()),
                 QString("[General]\nengine=software\n\n[Resources]\nLODTrianglesCap=50000\n"
                         "MaxCPUMemory3D=134217728\nMaxCPUMemoryRaytracer=134217728\n"
                         "MaxGPUMemory=134217728\n\n[deferred]\nsceneUnits=1\nuseED=false\nuseFXAA=false\n"
                         "useSSAO=false\n\n[raytracer]\ncoreNumber=1\nquality=Low\n"));
    }

    void restarts_data()
    {
        // Started and stored engine, and steps: a button, "c" and a number of cores, or "q" and a quality;
        // "!" says that it needs a restart.
        addRows({"deferred deferred raytracer!,deferred,raytracer!", "software software deferred!,raytracer",
                 "deferred software deferred", "software software c2!,c1,c3!,c2!,c1",
                 "software software q2!,q1,q3!,q0!,q1", "software software c2!,q2!,c1,q1",
                 "deferred deferred raytracer!,c2!,q3!,c1,deferred"});
    }
    void restarts()
    {
        QFETCH(QStringList, row);
        const QString started = row.value(0), stored = row.value(1), steps = row.value(2);
        Viewer viewer({{"engine", started}});
        Display display(viewer);
        store(viewer.getSettings(), {{"engine", stored}});
        display.page.initializeWidget();
        for (const QString& step : steps.split(',')) {
            if (step[0] == 'c')
                display.slide("coreUsedSlider", step.mid(1, 1).toInt() - 1);
            else if (step[0] == 'q')
                display.slide("qualitySlider", step.mid(1, 1).toInt());
            else
                display.click(step[0] == 'r' ? "raytracerButton" : "deferredButton");
            QVERIFY2(display.page.hasModifications(), qPrintable(step));
            QVERIFY2(display.page.applyModifications() == step.endsWith('!'), qPrintable(step));
        }
    }

    void showsTheEnginesOwnFrames_data() { addRows({"deferred 9", "software 6"}); }
    void showsTheEnginesOwnFrames()
    {
        QFETCH(QStringList, row);
        const bool gpu = row[0] == "deferred";
        zel::ZelSettingsRegistry::ClearSettingsValues();
        Viewer viewer({{"engine", row[0]}});
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

        // The tabulator goes from top to bottom.
        display.find("resetButton")->setFocus();
        int bottom = 0;
        for (int stop = 0; stop < row[1].toInt(); ++stop) {
            QWidget* widget = QApplication::focusWidget();
            QVERIFY2(widget->mapTo(&display.page, QPoint()).y() >= bottom, qPrintable(widget->objectName()));
            bottom = widget->mapTo(&display.page, QPoint(0, widget->height())).y();
            QTest::keyClick(widget, Qt::Key_Tab);
        }
        QVERIFY(display.find("resetButton")->hasFocus());
        QVERIFY(display.page.minimumSizeHint().width() <= 435);
    }

    void resetsToTheDefaults()
    {
        registerDefaults(Viewer::texts({{"engine", "software"}, {"raytracer/quality", "Ultra"}}));
        Viewer viewer;
        Display display(viewer);
        const QByteArray before = viewer.storedFile();
        display.find("resetButton")->setFocus();
        QTest::keyClick(display.find("resetButton"), Qt::Key_Space);
        QVERIFY(!display.canClickReset() && !QApplication::focusWidget());
        QCOMPARE(display.text("qualityLabel"), QString("Ultra"));
        QVERIFY(display.find<QAbstractButton>("raytracerButton")->isChecked());
        QVERIFY(!display.find<QAbstractButton>("deferredButton")->isChecked());
        QCOMPARE(viewer.storedFile(), before);
        QVERIFY(!display.page.cancelModifications() && display.page.hasModifications());
        display.page.resetContent();
        QCOMPARE(display.changes.size(), 1);
    }

    void labelsAndMarksTheSliders()
    {
        Viewer viewer({{"engine", "software"}, {"raytracer/coreNumber", "0"}});
        Display display(viewer);
        QCOMPARE(display.text("coreUsedLabel"), QString("0 core"));
        for (const char* text : {"2 cores", "1 core", "3 cores"}) {
            display.slide("coreUsedSlider", text[0] - '1');
            QCOMPARE(display.text("coreUsedLabel"), QString(text));
        }
        for (const char* text : {"3 Ultra", "2 High", "1 Medium", "0 Low"}) {
            display.slide("qualitySlider", text[0] - '0');
            QCOMPARE(display.text("qualityLabel"), QString(text + 2));
        }
        const QImage image = display.find("qualitySlider")->grab().toImage();
        int marks = 0;
        for (int x = 1; x < image.width() - 1; ++x)
            marks += image.pixelColor(x, image.height() - 4) == Qt::white;
        QCOMPARE(marks, 4);
    }

    void namesSceneUnits()
    {
        const float factors[] = {0.0015F, 0.01F, 0.1F, 5.F, 10.F, 100.F, 999.9995F};
        for (int unit = 0; unit < 7; ++unit)
            QCOMPARE(ZelRendererSettingsPanel::GetSceneUnitComboIndex(factors[unit]), unit);
    }
};

QTEST_MAIN(tst_ZelRendererSettingsPanel)

#include "tst_ZelRendererSettingsPanel.moc"
