#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelPageDefaults.h"
#include "ZelPageHelp.h"
#include "ZelSettingsPanel.h"

#include <random>
#include <utility>
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
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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

/// What the fields show, by their names, and whether that counts: not in a field that is hidden or disabled.
using Values = QMap<QString, std::pair<QVariant, bool>>;

/// A widget that edits a setting, and its page.
struct Field
{
    ZelSettingsPanel* page;
    QWidget* widget;

    std::pair<QVariant, bool> value() const
    {
        for (const char* property : {"checked", "currentIndex", "value"})
            if (widget->property(property).isValid())
                return {widget->property(property), widget->isEnabled() && widget->isVisibleTo(page)};
        return {};
    }
};

/// All of them but the buttons that choose a folder.
std::vector<Field> fieldsOf(const QWidget& window)
{
    std::vector<Field> fields;
    for (auto* page : window.findChildren<ZelSettingsPanel*>())
        for (auto* help : page->findChildren<ZelPageHelp*>())
            for (auto* widget : page->findChildren<QWidget*>())
                if (help->setting(widget) && !widget->inherits("QPushButton"))
                    fields.push_back({page, widget});
    return fields;
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
        m_fields = fieldsOf(m_window);
        m_defaults = m_stored = values(m_fields);
        openMenu();
    }

    void step()
    {
        const int choice = below(100);
        if (choice < 85)
            edit(m_fields[below(static_cast<int>(m_fields.size()))]);
        else if (choice < 92)
            take(find("applyButton"), m_shown, m_stored);
        else if (choice < 96)
            take(resetButton(), m_defaults, m_shown);
        else
            closeMenu(), openMenu();
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
        const QByteArray before = std::exchange(m_content, contentOf(m_path));
        const bool applied = std::exchange(m_applied, false);
        if (before != m_content && !before.isEmpty() && !applied)
            return "the file has changed without Apply";
        const Values shown = values(m_fields);
        for (const QString& name : shown.keys())
            if (shown[name] != m_shown[name])
                return QString("%1 does not show %2").arg(name, m_shown[name].first.toString());
        if (m_controlCenter.hasModifications() != differ(m_shown, m_stored))
            return "pending edits";
        if (m_announced && (find("applyButton")->isEnabled() != differ(m_shown, m_stored) ||
                            resetButton()->isEnabled() != differ(m_shown, m_defaults)))
            return "Apply or Reset";
        return QString();
    }

    /// What another editor reads from the file, if that differs from what is applied.
    static QString differenceOfFile(FakeApplication& application, const Walk& walk)
    {
        const ZelControlCenterStandAloneWidget other(&application, nullptr, Qt::WindowFlags());
        const Values stored = values(fieldsOf(other));
        for (const QString& name : stored.keys())
            if (stored[name].first != walk.m_stored[name].first)
                return QString("%1 is stored as %2").arg(name, stored[name].first.toString());
        return walk.m_content.contains("\nown=kept\n") ? QString() : "own";
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    QWidget* resetButton() { return find("frame_4")->findChild<QWidget*>("resetButton"); }

    void reload()
    {
        m_shown = m_stored;
        m_announced = true;
    }

    static Values values(const std::vector<Field>& fields)
    {
        Values found;
        for (const Field& field : fields)
            found[field.widget->objectName()] = field.value();
        return found;
    }

    /// Whether two states of a page, or of any page for null, differ.
    bool differ(const Values& left, const Values& right, const ZelSettingsPanel* page = nullptr) const
    {
        return std::any_of(m_fields.begin(), m_fields.end(), [&](const Field& field) {
            const auto& [value, counts] = left[field.widget->objectName()];
            const auto& [other, otherCounts] = right[field.widget->objectName()];
            return (!page || page == field.page) && counts && otherCounts && value != other;
        });
    }

    void edit(const Field& field)
    {
        QWidget* widget = field.widget;
        if (!widget->isEnabled() || !widget->isVisible())
            return;
        const QString name = widget->objectName(), page = field.page->getPanelName();
        const Values before = m_shown;
        const bool radio = widget->inherits("QRadioButton"), ratio = page == "Simplification",
                   last = below(2);
        QVariant value;
        if (widget->inherits("QAbstractButton")) {
            click(name);
            value = radio || !before[name].first.toBool();
        } else if (auto* box = qobject_cast<QAbstractSpinBox*>(widget)) {
            if (auto* integer = qobject_cast<QSpinBox*>(box))
                value = integer->minimum() + below(integer->maximum() - integer->minimum() + 1);
            else
                value = ratio ? 1. + below(100) : below(99990) / 1000.;
            if (before[name].first != value || ratio) {
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
        for (const Field& other : m_fields)
            if (other.page == field.page)
                m_shown[other.widget->objectName()] = other.value();
        m_shown[name].first = value;
        // Numbers of the tessellation emit nothing, its buttons and ratios on each visit, all else on
        // changes.
        const bool changed = m_shown != before;
        m_announced = (page == "Tessellation" ? radio : ratio || changed) || (m_announced && !changed);
    }

    /// Clicks on Apply or Reset, which lets the pages that differ take the values of another state.
    void take(QWidget* button, const Values& from, Values& to)
    {
        const Values before = to;
        const bool enabled = button->isEnabled();
        QTest::mouseClick(button, Qt::LeftButton);
        m_applied = &to == &m_stored;
        if (!enabled || !differ(from, before))
            return;
        for (const Field& field : m_fields)
            if (differ(from, before, field.page))
                to[field.widget->objectName()] = from[field.widget->objectName()];
        m_announced = true;
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
    std::vector<Field> m_fields;
    Values m_defaults, m_stored, m_shown;
    QByteArray m_content;    ///< Of the file, after the last step.
    bool m_applied = false;  ///< The last step may have written it.
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
        qDebug("WALK_SEED=%d", seed);
        std::mt19937 random(static_cast<unsigned>(seed));
        FakeApplication application;
        ZelControlCenter::RegisterSetting(keys::CacheSize, "1024", &ZelControlCenter::noOp);
        ZelControlCenter::RegisterSetting(keys::Engine, "deferred", &ZelControlCenter::noOp);
        ZelPageDefaults::Register(QSettings(QString(), QSettings::IniFormat));
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
                QVERIFY2(growth < 600, qPrintable(QString("%1 bytes more each step").arg(growth)));
                QCOMPARE(Walk::differenceOfFile(application, walk), QString());
            }
            const QString left = Census().held;
            QCOMPARE(left, window == 0 ? left : closed);
            closed = left;
        }
    }
};

QTEST_MAIN(tst_RandomWalk)
#include "tst_RandomWalk.moc"
