#include "Rows.h"
#include "ShownPage.h"
#include "ZelRendererSelector.h"
#include "ZelRendererSettingsPanel.h"

#include "platform/zelAction.h"

using Page = zel::ZelRendererSettingsPanel;

namespace {

const SettingsTexts Plain = {{"engine", "deferred"},
                             {"deferred/useSSAO", "true"},
                             {"deferred/useFXAA", "true"},
                             {"deferred/useED", "false"},
                             {"deferred/sceneUnits", "1"},
                             {"raytracer/coreNumber", "1"},
                             {"raytracer/quality", "Medium"},
                             {"Resources/MaxCPUMemory3D", "1073741824"},
                             {"Resources/MaxGPUMemory", "1073741824"},
                             {"Resources/MaxCPUMemoryRaytracer", "1073741824"},
                             {"Resources/LODTrianglesCap", "1000000"}};

/// The viewer with settings that the page can show as they are, but for the given ones.
struct Viewer : FakeApplication
{
    explicit Viewer(const SettingsTexts& others = SettingsTexts())
    {
        for (const SettingsTexts& texts : {Plain, others})
            store(getSettings(), texts);
    }
};

struct DisplayPage : ShownPage<Page>
{
    explicit DisplayPage(FakeApplication& viewer)
        : ShownPage(&viewer, viewer.getSettings())
    {
        // Enough for all rows, whatever this machine has.
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

/// What decides about a restart.
struct Choice
{
    QString engine;
    int cores, quality;
};

class ShownSelector : public zel::ZelRendererSelector
{
public:
    ShownSelector()
        : ZelRendererSelector(nullptr, Qt::WindowFlags())
    {
        show();
        activateWindow();
        isActive = QTest::qWaitForWindowActive(this);
    }

    bool isActive;
};

} // namespace

Q_DECLARE_METATYPE(Choice)

/// The display page, and the selector that asks for the renderer.
class tst_Display : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedValues_data()
    {
        // Applied is null where the page can show what is stored, and writes nothing.
        for (const char* column : {"engine", "key", "stored", "applied"})
            QTest::addColumn<QString>(column);
        const std::pair<const char*, SettingsTexts> keys[] = {
            {"deferred Resources/LODTrianglesCap",
             {{"50000", {}}, {"49999", "50000"}, {"500000000", {}}, {"4294967297", "500000000"}}},
            {"software raytracer/coreNumber",
             {{"1", {}}, {"0", "1"}, {"100000", QString::number(QThread::idealThreadCount())}}},
            {"Software raytracer/coreNumber", {{"0", {}}, {"100000", {}}}},
            {"software raytracer/quality", {{"Low", {}}, {"Ultra", {}}, {"unknown", {}}}},
            {"deferred Resources/MaxCPUMemory3D",
             {{"134217728", {}}, {"104857600", "134217728"}, {"1610612737", "1610612736"}}},
            {"software Resources/MaxCPUMemory3D", {{"1", {}}}},
            {"deferred Resources/MaxGPUMemory", {{"8489271296", {}}, {"18446744073709551615", "8489271296"}}},
            {"software Resources/MaxCPUMemoryRaytracer", {{"8490319872", "8489271296"}}},
            {"deferred Resources/MaxCPUMemoryRaytracer", {{"1", {}}}},
            {"deferred deferred/sceneUnits", {{"0.0015", {}}, {"999.9995", {}}, {"nan", {}}, {"", {}}}},
            {"deferred deferred/useED", {{"true", {}}, {"1", {}}, {"false", {}}, {"0", {}}, {"", {}}}}};
        for (const auto& [key, texts] : keys)
            for (const auto& [stored, applied] : texts)
                QTest::newRow(qPrintable(QString(key) + ' ' + stored))
                    << QString(key).section(' ', 0, 0) << QString(key).section(' ', 1) << stored << applied;
    }

    void storedValues()
    {
        QFETCH(QString, engine);
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(QString, applied);
        Viewer viewer({{"engine", engine}});
        const QString written = writtenUntouched<Page>(viewer, {{key, stored}}, key);
        QCOMPARE(written, applied);
        QVERIFY(viewer.renderer.triangles.isEmpty() == applied.isEmpty() &&
                written.isNull() == applied.isNull());
    }

    void worksWithoutAnApplication()
    {
        FakeApplication empty;
        ShownPage<Page> display(nullptr, empty.getSettings());
        display.click("raytracerButton");
        QVERIFY(display.page.applyModifications() && empty.storedFile().contains("engine=software"));
        QCOMPARE(empty.getSettings().allKeys().size(), int(Plain.size()));
    }

    void sceneUnits()
    {
        Viewer viewer(SettingsTexts{{"deferred/sceneUnits", "nan"}});
        DisplayPage display(viewer);
        auto* units = display.find<QComboBox>("sceneUnitComboBox");
        QString texts = units->currentText();
        for (int unit = units->count() - 1; unit >= 0; --unit) {
            units->setCurrentIndex(unit);
            display.page.applyModifications();
            texts += ' ' + viewer.getSettings().value("deferred/sceneUnits").toString() +
                     units->currentText().section(' ', 1);
        }
        QCOMPARE(texts, QString("Meter (m) 1000(mm) 100(cm) 10(dm) 1(m) 0.1(dam) 0.01(hm) 0.001(km)"));
    }

    void restarts_data()
    {
        // The running raytracer has 2 cores and quality 1.
        const QString gpu("deferred"), cpu("software");
        const std::tuple<const char*, QString, Choice, Choice, bool> rows[] = {
            {"to the raytracer", gpu, {gpu, 2, 1}, {cpu, 2, 1}, true},
            {"from the raytracer", cpu, {cpu, 2, 1}, {gpu, 2, 1}, true},
            {"back to the running GPU", gpu, {cpu, 2, 1}, {gpu, 2, 1}, false},
            {"back to the running raytracer", cpu, {gpu, 2, 1}, {cpu, 2, 1}, false},
            {"cores that the GPU does not use", gpu, {gpu, 2, 1}, {gpu, 3, 1}, false},
            {"cores", cpu, {cpu, 2, 1}, {cpu, 1, 1}, true},
            {"cores of the raytracer to come", gpu, {cpu, 2, 1}, {cpu, 1, 1}, true},
            {"cores beside another quality", cpu, {cpu, 2, 2}, {cpu, 1, 2}, true},
            {"back to the running cores", cpu, {cpu, 1, 2}, {cpu, 2, 2}, false},
            {"quality", cpu, {cpu, 2, 1}, {cpu, 2, 3}, true},
            {"quality beside other cores", cpu, {cpu, 3, 3}, {cpu, 3, 0}, true},
            {"back to the running quality", cpu, {cpu, 3, 0}, {cpu, 3, 1}, false},
        };
        addRows({"running", "stored", "chosen", "needed"}, rows);
    }

    void restarts()
    {
        QFETCH(QString, running);
        QFETCH(Choice, stored);
        QFETCH(Choice, chosen);
        QFETCH(bool, needed);
        Viewer viewer({{"engine", running}, {"raytracer/coreNumber", "2"}});
        DisplayPage display(viewer);
        const QString quality = QString("Low Medium High Ultra").section(' ', stored.quality, stored.quality);
        store(viewer.getSettings(), {{"engine", stored.engine},
                                     {"raytracer/coreNumber", QString::number(stored.cores)},
                                     {"raytracer/quality", quality}});
        display.page.initializeWidget();
        display.slide("coreUsedSlider", chosen.cores - 1);
        display.slide("qualitySlider", chosen.quality);
        display.click(chosen.engine == "deferred" ? "deferredButton" : "raytracerButton");
        if (chosen.engine == "deferred")
            display.click("deferredFXAACheckBox"); // Which needs none.
        QVERIFY(display.page.hasModifications());
        QCOMPARE(display.page.applyModifications(), needed);
    }

    void showsTheEnginesOwnFrames()
    {
        for (const bool started : {true, false}) {
            Viewer viewer({{"engine", started ? "deferred" : "software"}, {"deferred/useSSAO", "false"}});
            zelActionManager actions;
            auto* renderingMode = new zelAction("renderingMode", "Rendering mode", &actions);
            renderingMode->setEnabled(!started);
            viewer.actionManager = &actions;
            DisplayPage display(viewer);
            QVERIFY(!display.find("sceneUnitComboBox")->isEnabled());
            display.find("resetButton")->setFocus();
            QTest::keyClick(display.find("resetButton"), Qt::Key_Tab);
            QVERIFY(display.find(started ? "deferredButton" : "raytracerButton")->hasFocus());
            display.find<QComboBox>("sceneUnitComboBox")->setCurrentIndex(0);
            for (const bool used : {true, false}) { // The unit counts only while SSAO is used.
                display.find<QCheckBox>("deferredSSAOCheckBox")->setChecked(used);
                QCOMPARE(display.find("sceneUnitComboBox")->isEnabled(), used);
                QCOMPARE(display.page.hasModifications(), used && started);
            }
            for (const bool gpu : {started, !started, started}) {
                display.click(gpu ? "deferredButton" : "raytracerButton");
                display.type("maxTrianglesSpinBox", "70000"); // Putting it back is not to show other frames.
                QTest::keyClick(display.find("maxTrianglesSpinBox"), Qt::Key_Backspace, Qt::AltModifier);
                QCOMPARE(display.find<QSpinBox>("maxTrianglesSpinBox")->value(), 1000000);
                for (const char* name : {"hardwareFrame", "SSAOFrame", "GPUMemoryFrame", "GPUMemory"})
                    QVERIFY2(display.find(name)->isVisible() == gpu, name);
                for (const char* name : {"softwareFrame", "basicOptionFrame", "CPUMemoryFrame"})
                    QVERIFY2(display.find(name)->isVisible() != gpu, name);
                QVERIFY(!display.find("extendOptionFrame")->isVisible()); // Nothing works in it.
                QCOMPARE(renderingMode->isEnabled(), started);
            }
        }
    }

    void resetShowsTheDefaults()
    {
        SettingsTexts defaults = {
            {"engine", "software"}, {"raytracer/quality", "Ultra"}, {"Resources/LODTrianglesCap", "50000"}};
        defaults.insert(Plain.begin(), Plain.end());
        registerDefaults(defaults);
        Viewer viewer(SettingsTexts{{"raytracer/coreNumber", "0"}});
        DisplayPage display(viewer);
        QCOMPARE(display.text("coreUsedLabel") + ' ' + display.text("qualityLabel"),
                 QString("0 core Medium"));
        QCOMPARE(display.reset(), 1);
        display.page.resetContent(); // Not again.
        QCOMPARE(display.changes.count(), 1);
        QVERIFY(!display.canClickReset() && !QApplication::focusWidget());
        QVERIFY(display.elsewhere.focusWidget()); // The button of the page.
        QCOMPARE(display.text("qualityLabel"), QString("Ultra"));
        QVERIFY(display.find("qualitySlider")->toolTip().contains("Range: Low to Ultra. Default: Ultra."));
        QVERIFY(display.page.applyModifications());
        QCOMPARE(viewer.renderer.triangles, QList<quint64>{50000});

        QCOMPARE(display.text("coreUsedLabel"), QString("1 core"));
        display.slide("coreUsedSlider", 1);
        const QImage ultra = pictureOf(display.find("qualitySlider"));
        display.slide("qualitySlider", 2);
        QVERIFY(pictureOf(display.find("qualitySlider")) != ultra);
        QCOMPARE(display.text("coreUsedLabel") + ' ' + display.text("qualityLabel"), QString("2 cores High"));
        // A mark for each step, or for every second, fourth and so on where they would be too close.
        for (const auto& [steps, interval] : {std::make_pair(3, 1), {75, 1}, {120, 2}, {1200, 16}}) {
            display.find<QSlider>("qualitySlider")->setMaximum(steps);
            const QImage image = pictureOf(display.find("qualitySlider"));
            QMap<int, QList<int>> marks; // The places of each length; 0 where there is none.
            for (int x = 1; x < image.width() - 1; ++x) {
                int length = 0;
                for (int y = image.height() - 6; y < image.height(); ++y)
                    length += image.pixel(x, y) == QColor(Qt::white).rgb();
                marks[length] << x;
            }
            QVERIFY(marks.size() == 2 && marks.keys().last() > 1);
            const QList<int> places = marks.values().last();
            QCOMPARE(places.size(), steps / interval + 1);
            QVERIFY(qAbs(places.first() + places.last() + 1 - image.width()) <
                    3); // Below the handle's centre.
        }
    }

    void selectorIsAWindowOfItsOwn()
    {
        ShownSelector selector;
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        QVERIFY(selector.isActive);
        QCOMPARE(selector.focusWidget(), child("okButton"));
        QVERIFY(selector.windowFlags() & Qt::FramelessWindowHint &&
                selector.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(child("raytracerButton")->accessibleName(), QString("Low (Run everywhere)"));
        QVERIFY(!child("label")->property("pixmap").value<QPixmap>().isNull());
        selector.move(0, 0);
        drag(selector, QPoint(200, 20), QPoint(30, 20), QPoint(200, 20));
        QCOMPARE(selector.pos(), QPoint(30, 20));
    }

    void selectorChoosesByMouse()
    {
        ShownSelector selector;
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        const std::pair<const char*, bool> clicks[] = {
            {"label_2", true}, {"raytracerButton", false}, {"label_2", false}, {"deferredButton", true}};
        // The ring follows the choice, the colour does not.
        const auto pixel = [&](const char* name, int y) { return pictureOf(child(name)).pixel(75, y); };
        const QRgb ring = qRgb(47, 86, 127), low = pixel("raytracerButton", 9),
                   high = pixel("deferredButton", 9);
        for (const auto& [name, gpu] : clicks) {
            const bool before = selector.useGPURenderer();
            QTest::mousePress(child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), before);
            QTest::mouseRelease(child(name), Qt::LeftButton);
            QCOMPARE(selector.useGPURenderer(), gpu);
            QCOMPARE(isReadAsChecked(child("deferredButton")), gpu);
            QCOMPARE(child(name)->hasFocus(), name != std::string("label_2"));
            child("okButton")->setFocus();
            QCOMPARE(pixel("deferredButton", 1) == ring, gpu);
            QCOMPARE(pixel("raytracerButton", 1) == ring, !gpu);
            QVERIFY(pixel("raytracerButton", 9) == low && pixel("deferredButton", 9) == high);
        }
    }

    void selectorChoosesByKeyboard()
    {
        ShownSelector selector;
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter}) {
            const bool before = selector.useGPURenderer();
            QWidget* engine = child(before ? "raytracerButton" : "deferredButton");
            const QImage look = pictureOf(engine);
            for (int stop = 0; stop < 4 && !engine->hasFocus(); ++stop)
                QTest::keyClick(selector.focusWidget(), Qt::Key_Tab);
            QVERIFY2(pictureOf(engine) != look, "the focus is to be seen");
            QCOMPARE(selector.useGPURenderer(), before);
            QTest::keyClick(engine, key);
            QCOMPARE(selector.useGPURenderer(), !before);
        }
        for (const auto& [key, gpu] : {std::make_pair(Qt::Key_Right, true),
                                       {Qt::Key_Up, false},
                                       {Qt::Key_Down, true},
                                       {Qt::Key_Left, false}}) {
            QTest::keyClick(selector.focusWidget(), key);
            QVERIFY(selector.useGPURenderer() == gpu && child("deferredButton")->hasFocus() == gpu);
        }
        QVERIFY(selector.isVisible());
    }

    void selectorChoosesByReader()
    {
        ShownSelector selector;
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        for (const char* name : {"raytracerButton", "deferredButton"}) {
            pressByReader(child(name));
            QVERIFY(selector.useGPURenderer() == (name == std::string("deferredButton")) &&
                    roleOf(child(name)) == QAccessible::RadioButton);
        }
    }

    void selectorCloses()
    {
        ShownSelector selector;
        const auto child = [&](const char* name) { return selector.findChild<QWidget*>(name); };
        child("okButton")->setFocus();
        QTest::keyClick(selector.focusWidget(), Qt::Key_Return);
        QVERIFY(!selector.isVisible() && selector.useGPURenderer());
        QCOMPARE(selector.result(), int(QDialog::Accepted));
        for (const char* name : {"closeButton", "deferredButton"}) { // Both close without a choice.
            selector.show();
            selector.setResult(QDialog::Accepted);
            QTest::keyClick(child(name), name == std::string("closeButton") ? Qt::Key_Space : Qt::Key_Escape);
            QVERIFY(!selector.isVisible() && selector.result() == QDialog::Rejected);
        }
    }
};

QTEST_MAIN(tst_Display)
#include "tst_Display.moc"
