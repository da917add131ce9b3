#ifndef ZEL_EDITOR_H
#define ZEL_EDITOR_H

#include "QtTestCompat.h"

/// How long a test waits for what must happen, in milliseconds; for a machine that is busy with a build.
const int Patience = 20000;

/// What a tool that sees the screen writes, without white space around it.
inline QString ask(const QString& tool, const QStringList& arguments)
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(Patience);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/// What a window shows as soon as nothing in it moves any more. A window is named by its X11 id.
inline QImage pictureAtRest(const QString& window)
{
    const int stillTime = 250; // Milliseconds. Even a slow animation shows something new within them.
    QImage now;
    const auto rests = [&] {
        const QImage before = now;
        QTest::qWait(stillTime);
        now = pictureOf(window.toUInt());
        return now == before;
    };
    return QTest::qWaitFor(rests, Patience) ? now : QImage();
}

/// The editor's executable, as a user runs it who has nothing but a home folder. Killed with the object.
class Editor
{
public:
    explicit Editor(const QString& home)
    {
        // What a sanitizer finds must not look like a first start.
        QStringList environment = {"LC_ALL=C",
                                   "ASAN_OPTIONS=exitcode=99",
                                   "HOME=" + home,
                                   "XDG_CONFIG_HOME=" + home + "/config",
                                   "XDG_CACHE_HOME=" + home + "/cache",
                                   "XDG_RUNTIME_DIR=" + home + "/runtime"};
        for (const char* variable :
             {"PATH", "DISPLAY", "LSAN_OPTIONS", "QT_XCB_GL_INTEGRATION", "DBUS_SESSION_BUS_ADDRESS"})
            environment << variable + ('=' + QString::fromLocal8Bit(qgetenv(variable)));
        QDir().mkpath(home + "/runtime");
        // The single instance takes no folder that others can enter.
        QFile::setPermissions(home + "/runtime", QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
        m_process.setEnvironment(environment);
        m_process.setProcessChannelMode(ForwardedErrors);
        m_process.setStandardInputFile("/dev/null");
    }

    /// @param redirection  what a shell is to do with the standard streams
    void start(const QStringList& arguments = QStringList(), const QString& redirection = QString())
    {
        m_process.start("bash", QStringList{"-c", "exec \"$0\" \"$@\" " + redirection, TORVANE_SETTINGS}
                                    << arguments);
    }

    /// Waits for the end; -1 when it does not come in time or is a crash.
    int exitCode()
    {
        const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(Patience);
        return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    /// Waits for a window whose title matches to have the keyboard; it is the one that what follows is about.
    bool shows(const QString& title)
    {
        const QString visible = QString("search --all --onlyvisible --pid %1 --name").arg(idOf(m_process));
        const QStringList search = visible.split(' ') << '^' + title + '$';
        const auto appears = [&] {
            m_window = ask("xdotool", {"getactivewindow"});
            return !m_window.isEmpty() && ask("xdotool", search).split('\n').contains(m_window);
        };
        return m_process.waitForStarted(Patience) && QTest::qWaitFor(appears, Patience);
    }

    /// Moves the mouse, clicks and types, in the words of xdotool; %1 stands for the window.
    void act(QString action) const { ask("xdotool", action.replace("%1", m_window).split(' ')); }

    /// Waits for a window, then does something that closes it.
    bool isAnswered(const QString& title, const QString& action)
    {
        const bool shown = shows(title);
        act(action);
        return shown;
    }

    QByteArray output() { return m_process.readAllStandardOutput(); }

    bool has(const QString& property, const QString& state) const
    {
        return ask("xprop", {"-id", m_window, property}).contains(state);
    }

    QImage picture() const { return pictureAtRest(m_window); }

private:
    QString m_window;
    Program m_process;
};

#endif
