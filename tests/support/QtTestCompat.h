#ifndef ZEL_QTTESTCOMPAT_H
#define ZEL_QTTESTCOMPAT_H

// What the tests use of Qt 5 and Qt 4.8 lacks, under the names of Qt 5 where that is possible.

#include <QtTest>

#include <filesystem>
#include <functional>
#include <memory>

#if defined(QT_WIDGETS_LIB)
#    include <QtWidgets>
#elif defined(QT_GUI_LIB)
#    include <QtGui>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

const QProcess::ProcessChannelMode ForwardedErrors = QProcess::ForwardedErrorChannel;

const auto idOf = [](const QProcess& process) { return process.processId(); };

#    if defined(QT_WIDGETS_LIB)
/// Where the system delivers the input of a window.
const auto inputOf = [](QWidget* window) { return window->windowHandle(); };

inline QImage pictureOf(QWidget* widget)
{
    return widget->grab().toImage();
}

const auto useOwnDialogs = [] { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); };

/// As assistive technology reads it; "silent" for what it leaves out.
inline QString readOut(QWidget* widget)
{
    const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(widget);
    return read->state().invisible ? "silent" : read->text(QAccessible::Name);
}

const auto roleOf = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget)->role(); };
const auto isReadAsChecked = [](QWidget* widget) {
    return bool(QAccessible::queryAccessibleInterface(widget)->state().checked);
};

/// As assistive technology presses it.
inline void pressByReader(QWidget* widget)
{
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(widget);
    read->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

/// Turns the wheel towards the user.
inline void turnWheel(QWidget& window, const QPoint& place)
{
    QWheelEvent turn(place, window.mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only a spontaneous event moves the focus, and is passed on to parents.
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(inputOf(&window), &turn); // To send it would mark it as one from inside.
}
#    endif

#else

#    undef QSKIP
#    define QSKIP(reason)                                                                                    \
        do {                                                                                                 \
            QTest::qSkip(reason, QTest::SkipSingle, __FILE__, __LINE__);                                     \
            return;                                                                                          \
        } while (false)
#    define ZEL_TRY(condition, timeout, check)                                                               \
        do {                                                                                                 \
            QElapsedTimer tried;                                                                             \
            for (tried.start(); !(condition) && tried.elapsed() < (timeout); QTest::qWait(10))               \
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);                         \
            check;                                                                                           \
        } while (false)
#    define QTRY_VERIFY_WITH_TIMEOUT(condition, timeout) ZEL_TRY(condition, timeout, QVERIFY(condition))
#    define QTRY_COMPARE_WITH_TIMEOUT(actual, expected, timeout)                                             \
        ZEL_TRY((actual) == (expected), timeout, QCOMPARE(actual, expected))
#    define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 5000)
#    define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, 5000)
#    define QTEST_GUILESS_MAIN(Test)                                                                         \
        int main(int argc, char** argv)                                                                      \
        {                                                                                                    \
            QCoreApplication application(argc, argv);                                                        \
            Test test;                                                                                       \
            return QTest::qExec(&test, argc, argv);                                                          \
        }
/// Calls the function with the first connection that is made after there is an application.
#    define Q_COREAPP_STARTUP_FUNCTION(function)                                                             \
        static const bool callsAtStart =                                                                     \
            QInternal::registerCallback(QInternal::ConnectCallback, [](void**) {                             \
                static bool called = false;                                                                  \
                if (QCoreApplication::instance() && !called) {                                               \
                    called = true;                                                                           \
                    function();                                                                              \
                }                                                                                            \
                return false;                                                                                \
            });

const QProcess::ProcessChannelMode ForwardedErrors = QProcess::SeparateChannels;

#    if !defined(_WIN32)
const auto idOf = [](const QProcess& process) { return process.pid(); };
#    endif

class QTemporaryDir
{
public:
    explicit QTemporaryDir(const QString& pattern = QDir::tempPath() + "/test-XXXXXX")
    {
        static int made = 0;
        const QString stem = QDir::fromNativeSeparators(pattern).remove("XXXXXX");
        do
            m_path = stem + QString("%1-%2").arg(QCoreApplication::applicationPid()).arg(++made);
        while (!QDir().mkdir(m_path));
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    ~QTemporaryDir()
    {
        std::error_code ignored;
        std::filesystem::remove_all(QFile::encodeName(m_path).constData(), ignored);
    }

    QTemporaryDir(const QTemporaryDir&) = delete;
    QTemporaryDir& operator=(const QTemporaryDir&) = delete;

    QString path() const { return m_path; }
    QString filePath(const QString& name) const { return m_path + '/' + name; }

private:
    QString m_path;
};

namespace QTest {

template <class Condition>
bool qWaitFor(const Condition& condition, int timeout = 5000)
{
    QElapsedTimer tried;
    for (tried.start(); !condition() && tried.elapsed() < timeout;)
        qWait(10);
    return condition();
}

} // namespace QTest

#    if defined(QT_GUI_LIB)
/// Where the system delivers the input of a window: to the widgets in it.
struct WindowInput
{
    void mouse(QEvent::Type type, const QPoint& place, Qt::MouseButton button) const
    {
        static QPointer<QWidget> holder; // Of the mouse, while a button is down.
        static Qt::MouseButton held = Qt::NoButton;
        QWidget* const child = window->childAt(place);
        QWidget* const target = holder ? holder.data() : child ? child : window;
        held = type == QEvent::MouseButtonPress     ? button
               : type == QEvent::MouseButtonRelease ? Qt::NoButton
                                                    : held;
        holder = held ? target : nullptr;
        QMouseEvent event(type, target->mapFrom(window, place), window->mapToGlobal(place), button, held,
                          Qt::NoModifier);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
    }

    QWidget* window;
};

const auto inputOf = [](QWidget* window) { return WindowInput{window}; };

inline QImage pictureOf(QWidget* widget)
{
    return QPixmap::grabWidget(widget).toImage();
}

#        if defined(Q_OS_WIN)
extern Q_GUI_EXPORT bool qt_use_native_dialogs;
#        else
static bool qt_use_native_dialogs;
#        endif

inline void useOwnDialogs()
{
    qt_use_native_dialogs = false;
}

/// As assistive technology reads it; "silent" for what it leaves out.
inline QString readOut(QWidget* widget)
{
    const std::unique_ptr<QAccessibleInterface> read(QAccessible::queryAccessibleInterface(widget));
    return read->state(0) & QAccessible::Invisible ? "silent" : read->text(QAccessible::Name, 0);
}

inline QAccessible::Role roleOf(QWidget* widget)
{
    const std::unique_ptr<QAccessibleInterface> read(QAccessible::queryAccessibleInterface(widget));
    return read->role(0);
}

inline bool isReadAsChecked(QWidget* widget)
{
    const std::unique_ptr<QAccessibleInterface> read(QAccessible::queryAccessibleInterface(widget));
    return read->state(0) & QAccessible::Checked;
}

inline void pressByReader(QWidget* widget)
{
    const std::unique_ptr<QAccessibleInterface> read(QAccessible::queryAccessibleInterface(widget));
    read->doAction(QAccessible::Press, 0, QVariantList());
}

/// Turns the wheel towards the user.
inline void turnWheel(QWidget& window, const QPoint& place)
{
    QWidget* const target = window.childAt(place);
    QWheelEvent turn(target->mapFrom(&window, place), window.mapToGlobal(place), -120, Qt::NoButton,
                     Qt::NoModifier);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(target, &turn);
}

namespace QTest {

inline bool qWaitForWindowActive(QWidget* window)
{
    qWaitForWindowShown(window);
    window->activateWindow(); // No window manager does it.
    return qWaitFor([window] { return window->isActiveWindow(); });
}

inline bool qWaitForWindowExposed(QWidget* window)
{
    return qWaitForWindowActive(window); // Qt 5 activates what is shown first.
}

inline void keyClick(const WindowInput& input, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QWidget* const focused = input.window->focusWidget();
    keyClick(focused ? focused : input.window, key, modifiers);
}

inline void mousePress(const WindowInput& input, Qt::MouseButton button, Qt::KeyboardModifiers,
                       const QPoint& place)
{
    input.mouse(QEvent::MouseButtonPress, place, button);
}

inline void mouseMove(const WindowInput& input, const QPoint& place)
{
    input.mouse(QEvent::MouseMove, place, Qt::NoButton);
}

inline void mouseRelease(const WindowInput& input, Qt::MouseButton button, Qt::KeyboardModifiers,
                         const QPoint& place)
{
    input.mouse(QEvent::MouseButtonRelease, place, button);
}

inline void mouseClick(const WindowInput& input, Qt::MouseButton button, Qt::KeyboardModifiers,
                       const QPoint& place)
{
    mousePress(input, button, Qt::NoModifier, place);
    mouseRelease(input, button, Qt::NoModifier, place);
}

} // namespace QTest
#    endif

#endif

/// Calls a function once, while it lives.
struct Later : QTimer
{
    Later(int time, const std::function<void()>& function)
        : m_function(function)
    {
        setSingleShot(true);
        start(time);
    }

    void timerEvent(QTimerEvent*) override
    {
        stop();
        m_function();
    }

    const std::function<void()> m_function;
};

#endif
