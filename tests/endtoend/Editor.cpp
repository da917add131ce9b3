#include "Editor.h"

#include <QDir>
#include <QtTest>

Editor::Editor(const Desktop& desktop, const QString& home)
    : m_desktop(desktop)
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
        environment << variable + ('=' + qEnvironmentVariable(variable));
    QDir().mkpath(home + "/runtime");
    // The single instance takes no folder that others can enter.
    QFile::setPermissions(home + "/runtime", QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
    m_process.setEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
}

Editor::~Editor()
{
    m_process.kill();
    m_process.waitForFinished(Patience);
}

void Editor::start(const QStringList& arguments)
{
    m_process.start(TORVANE_SETTINGS, arguments);
}

int Editor::exitCode()
{
    const bool ended = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(Patience);
    return ended && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

bool Editor::shows(const QString& title)
{
    const QString process = QString::number(m_process.processId());
    const QStringList search = {"search", "--all", "--onlyvisible", "--pid", process, "--name"};
    const QString pattern = '^' + title + '$';
    const auto appears = [&] {
        m_window = m_desktop.ask("xdotool", {"getactivewindow"});
        return !m_window.isEmpty() &&
               m_desktop.ask("xdotool", search + QStringList(pattern)).split('\n').contains(m_window);
    };
    return m_process.waitForStarted(Patience) && QTest::qWaitFor(appears, Patience);
}

bool Editor::has(const QString& property, const QString& state) const
{
    return m_desktop.ask("xprop", {"-id", m_window, property}).contains(state);
}
