#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"

#include <random>
#if defined(_WIN32)
#    include <windows.h>
#else
#    include <malloc.h>
#endif

using namespace zel;

namespace {

/// The resources that the process holds at the moment.
struct Census
{
    Census()
    {
        QPixmapCache::clear();
        QObjectList all = qApp->findChildren<QObject*>();
        for (QWidget* window : QApplication::topLevelWidgets())
            all << window << window->findChildren<QObject*>();
        for (QObject* object : all)
            if (!QAbstractEventDispatcher::instance()->registeredTimers(object).isEmpty())
                withTimer << object->metaObject()->className();
#if defined(_WIN32)
        DWORD descriptors = 0;
        GetProcessHandleCount(GetCurrentProcess(), &descriptors);
        heap = 0; // Is counted elsewhere.
#else
        const uint descriptors = QDir("/proc/self/fd", "", {}, QDir::AllEntries | QDir::System).count();
        const auto use = mallinfo2(); // Zeros under a sanitizer, which finds leaks by itself.
        heap = qint64(use.uordblks + use.hblkhd);
#endif
        held = QString("%1 objects, %2 descriptors").arg(all.size()).arg(descriptors);
    }

    QString held;          ///< QObjects of windows and the application; files, sockets and pipes.
    qint64 heap;           ///< Bytes in use.
    QStringList withTimer; ///< Classes of the objects that have a timer running.
};

/// What widgets show, by their names.
using Values = QMap<QString, QVariant>;

const QString Number, Flag = "false|true", Negated = "true|false", Units = "0.001|0.01|0.1|1|10|100|1000";

/// A widget; the button that decides whether its value counts (while it is checked or, after a "!", while it
/// is not); the key; its default; and the stored texts of the values, if those are not numbers.
const struct Field
{
    QString page, widget, decider;
    const char *key, *defaultText;
    QString texts;
} Fields[] = {
    {"General", "databaseSpinBox", "", keys::CacheSize, "1024", Number},
    {"Display", "raytracerButton", "", keys::Engine, "deferred", "deferred|software"},
    {"Display", "deferredSSAOCheckBox", "!raytracerButton", keys::UseSsao, "true", Flag},
    {"Display", "deferredFXAACheckBox", "!raytracerButton", keys::UseFxaa, "true", Flag},
    {"Display", "deferredEDCheckBox", "!raytracerButton", keys::UseEdgeDetection, "false", Flag},
    {"Display", "sceneUnitComboBox", "deferredSSAOCheckBox", keys::SceneUnits, "1", Units},
    {"Display", "maxCPU3DSpinBox", "!raytracerButton", keys::MaxCpuMemory3D, "1073741824", Number},
    {"Display", "maxGPUSPinBox", "!raytracerButton", keys::MaxGpuMemory, "536870912", Number},
    {"Display", "maxCPURaySpinBox", "raytracerButton", keys::MaxCpuMemoryRaytracer, "2147483648", Number},
    {"Display", "coreUsedSlider", "raytracerButton", keys::CoreNumber, "1", Number},
    {"Display", "qualitySlider", "raytracerButton", keys::RaytracerQuality, "Medium",
     "Low|Medium|High|Ultra"},
    {"Display", "maxTrianglesSpinBox", "", keys::TrianglesCap, "20000000", Number},
    {"Import", "defaultQuality", "", keys::TessellationQualitySet, "false", Negated},
    {"Import", "lowQuality", "!defaultQuality", keys::TessellationHighQuality, "true", Negated},
    {"Import", "sag", "", keys::MaxFaceSagSet, "true", Flag},
    {"Import", "faceSagSpin", "sag", keys::MaxFaceSag, "0.2", Number},
    {"Import", "length", "", keys::MaxFaceLengthSet, "false", Flag},
    {"Import", "faceLengthSpin", "length", keys::MaxFaceLength, "10", Number},
    {"Import", "angle", "", keys::MaxFaceAngleSet, "false", Flag},
    {"Import", "faceAngleSpin", "angle", keys::MaxFaceAngle, "15", Number},
    // Stored together.
    {"Simplification", "ratio2", "", nullptr, nullptr, Number},
    {"Simplification", "ratio3", "", nullptr, nullptr, Number},
    {"Simplification", "ratio4", "", nullptr, nullptr, Number},
    {"Simplification", "ratio5", "", nullptr, nullptr, Number},
};

QString storedText(const Field& field, const QVariant& value)
{
    if (!field.texts.isEmpty())
        return field.texts.section('|', value.toInt(), value.toInt());
    // Memory is shown in mebibytes and stored in bytes.
    return QString(field.key).contains("Memory") ? QString::number(value.toULongLong() << 20)
                                                 : value.toString();
}

QVariant shownValue(const QWidget* widget)
{
    for (const char* property : {"checked", "currentIndex", "value"}) {
        if (widget->property(property).isValid())
            return widget->property(property);
    }
    return QVariant();
}

/// Whether the value of a widget counts, given the others.
bool counts(const Values& values, const QString& widget)
{
    const auto field = std::find_if(std::begin(Fields), std::end(Fields),
                                    [&](const Field& candidate) { return candidate.widget == widget; });
    const QString decider = QString(field->decider).remove('!');
    return decider.isEmpty() ||
           (values[decider].toBool() != field->decider.startsWith('!') && counts(values, decider));
}

/// Whether two states of a page, or of any page for an empty name, differ.
bool differ(const Values& left, const Values& right, const QString& page = QString())
{
    return std::any_of(std::begin(Fields), std::end(Fields), [&](const Field& field) {
        const bool counted = counts(left, field.widget);
        return (page.isEmpty() || page == field.page) &&
               (counted != counts(right, field.widget) ||
                (counted && left[field.widget] != right[field.widget]));
    });
}

/// A user who does random things in the stand-alone window, and a small model of the expected results.
class Walk : private User
{
public:
    Walk(FakeApplication& application, std::mt19937& random)
        : m_random(random)
        , m_path(application.getSettings().fileName())
        , m_window(&application, nullptr, Qt::WindowFlags())
        , m_controlCenter(*m_window.findChild<ZelControlCenter*>())
    {
        window = &m_window;
        m_window.show();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
        for (const Field& field : Fields)
            m_stored[field.widget] = shownValue(find(field.widget));
        m_defaults = m_stored;
        openMenu();
    }

    void step()
    {
        const int choice = below(100);
        if (choice < 75)
            edit(Fields[below(static_cast<int>(std::size(Fields)))]);
        else if (choice < 81)
            take(find("applyButton"), m_shown, m_stored);
        else if (choice < 85)
            take(resetButton(), m_defaults, m_shown);
        else if (choice < 88)
            reopenDrawer();
        else if (choice < 91)
            closeMenu(), openMenu();
        else
            scroll();
    }

    void openMenu()
    {
        m_window.openMenu();
        settle();
        reload();
    }

    void closeMenu()
    {
        m_controlCenter.openMenu(false);
        settle();
        if (differ(m_shown, m_stored))
            reload();
    }

    /// What is wrong in the window or in the file; empty if nothing is.
    QString difference()
    {
        for (const Field& field : Fields) {
            if (shownValue(find(field.widget)) != m_shown[field.widget])
                return QString("%1 does not show %2").arg(field.widget, m_shown[field.widget].toString());
        }
        if (m_controlCenter.hasModifications() != differ(m_shown, m_stored))
            return "pending edits";
        if (m_announced && (find("applyButton")->isEnabled() != differ(m_shown, m_stored) ||
                            resetButton()->isEnabled() != differ(m_shown, m_defaults)))
            return "Apply or Reset";

        QString ratios = "Ratios=1";
        QStringList lines = {"own=kept"};
        for (const Field& field : Fields) {
            const QVariant value = m_stored[field.widget];
            if (field.key)
                lines << QString(field.key).section('/', -1) + '=' + storedText(field, value);
            else
                ratios += '/' + QString::number(value.toDouble() / 100);
        }
        const QByteArray content = contentOf(m_path);
        for (const QString& line : lines << ratios) {
            if (!content.contains(('\n' + line + '\n').toUtf8()))
                return "the file does not hold " + line;
        }
        return QString();
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    QWidget* resetButton() { return find("frame_4")->findChild<QWidget*>("resetButton"); }

    void reload()
    {
        m_shown = m_stored;
        m_announced = true;
    }

    void edit(const Field& field)
    {
        QWidget* widget = find(field.widget);
        if (!widget->isEnabled() || !widget->isVisible())
            return;
        const Values before = m_shown;
        const bool radio = widget->inherits("QRadioButton"), last = below(2);
        QVariant value;
        if (widget->inherits("QAbstractButton")) {
            QList<QRadioButton*> group;
            for (QObject* sibling : widget->parent()->children())
                if (auto* button = qobject_cast<QRadioButton*>(sibling))
                    group << button;
            QWidget* clicked = radio ? group[below(group.size())] : widget;
            click(clicked->objectName());
            value = radio ? clicked == widget : !before[field.widget].toBool();
        } else if (auto* box = qobject_cast<QAbstractSpinBox*>(widget)) {
            if (auto* integer = qobject_cast<QSpinBox*>(box))
                value = integer->minimum() + below(integer->maximum() - integer->minimum() + 1);
            else
                value = field.key ? below(99990) / 1000. : 1. + below(100);
            if (before[field.widget] != value || !field.key) {
                box->setFocus();
                box->selectAll();
                QTest::keyClicks(box, value.toString());
                QTest::keyClick(box, Qt::Key_Return);
            }
        } else {
            QTest::keyClick(widget, last ? Qt::Key_End : Qt::Key_Home);
            value = widget->inherits("QComboBox") ? (last ? 6 : 0)
                                                  : widget->property(last ? "maximum" : "minimum");
        }
        // Effects on the same page are for the page's own test; other pages must not change.
        for (const Field& other : Fields) {
            if (other.page == field.page)
                m_shown[other.widget] = shownValue(find(other.widget));
        }
        m_shown[field.widget] = value;
        // Numbers of the Import page emit nothing, its buttons and ratios on each visit, all else on changes.
        const bool changed = m_shown != before;
        m_announced = (field.page == "Import" ? radio : !field.key || changed) || (m_announced && !changed);
    }

    /// Clicks on Apply or Reset, which lets the pages that differ take the values of another state.
    void take(QWidget* button, const Values& from, Values& to)
    {
        const Values before = to;
        const bool enabled = button->isEnabled();
        QTest::mouseClick(button, Qt::LeftButton);
        if (!enabled || !differ(from, before))
            return;
        for (const Field& field : Fields) {
            if (differ(from, before, field.page))
                to[field.widget] = from[field.widget];
        }
        m_announced = true;
    }

    void reopenDrawer()
    {
        for (const bool visible : {false, true}) {
            m_controlCenter.setControlCenterVisible(visible);
            settle();
        }
        reload();
    }

    void scroll()
    {
        if (below(2))
            m_controlCenter.settingsWidget()->verticalScrollBar()->setValue(below(2000));
        else
            QTest::mouseClick(find("applicationSettings")->findChildren<QPushButton*>()[below(5)],
                              Qt::LeftButton);
        settle();
    }

    /// Waits for the end of all slides, and chooses how long the next ones take.
    void settle()
    {
        const int duration = below(10) ? 0 : 30;
        for (QPropertyAnimation* slide : m_controlCenter.findChildren<QPropertyAnimation*>()) {
            while (slide->state() == QAbstractAnimation::Running)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            slide->setDuration(duration);
        }
        QCoreApplication::processEvents();
    }

    std::mt19937& m_random;
    const QString m_path;
    ZelControlCenterStandAloneWidget m_window;
    ZelControlCenter& m_controlCenter;
    Values m_defaults, m_stored, m_shown;
    bool m_announced = true; ///< Whether the window has been told of the last edit.
};

} // namespace

/// After each step window and file must follow the model, after the rounds no resource may have grown, and
/// none may be left of a closed window. WALK_SEED and WALK_ROUNDS make another walk, or a longer one.
class tst_RandomWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk()
    {
        const int seed = qgetenv("WALK_SEED").toInt(), steps = 150, warmUp = 1;
        const int rounds = qMax(8, qgetenv("WALK_ROUNDS").toInt());
        qInfo("WALK_SEED=%d", seed);
        std::mt19937 random(static_cast<unsigned>(seed));
        FakeApplication application;
        ZelControlCenter::RegisterSetting(keys::SimplificationRatios, "1/0.75/0.5/0.25/0.1",
                                          &ZelControlCenter::noOp);
        for (const Field& field : Fields)
            if (field.key)
                ZelControlCenter::RegisterSetting(field.key, field.defaultText, &ZelControlCenter::noOp);
        QString closed;
        for (int window = 0; window < 2; ++window) {
            application.getSettings().clear();
            application.getSettings().setValue("viewer/own", "kept");
            QString error;
            QVERIFY(ZelControlCenter::EnsureSettings(application.getSettings(), error));
            {
                Walk walk(application, random);
                std::unique_ptr<Census> warm;
                for (int round = 0; round < rounds; ++round) {
                    for (int step = 0; step < steps; ++step) {
                        walk.step();
                        const QString difference =
                            QString("round %1, step %2: ").arg(round).arg(step) + walk.difference();
                        QVERIFY2(difference.endsWith(": "), qPrintable(difference));
                    }
                    walk.closeMenu();
                    QTRY_COMPARE(Census().withTimer.join(" "), QString());
                    if (round == warmUp)
                        warm = std::make_unique<Census>();
                    walk.openMenu();
                }
                walk.closeMenu();
                const Census last;
                QCOMPARE(last.held, warm->held);
                const qint64 growth = (last.heap - warm->heap) / (steps * (rounds - warmUp));
                QVERIFY2(growth < 300, qPrintable(QString("%1 bytes more each step").arg(growth)));
            }
            const QString left = Census().held;
            QCOMPARE(left, window == 0 ? left : closed);
            closed = left;
        }
    }
};

QTEST_MAIN(tst_RandomWalk)
#include "tst_RandomWalk.moc"
