#include "Desktop.h"

#include <QPixmap>
#include <QScreen>

Desktop::~Desktop()
{
    for (QProcess* process : {&m_windowManager, &m_server}) {
        process->kill();
        process->waitForFinished(Patience);
    }
}

QString Desktop::start()
{
    for (QProcess* process : {&m_windowManager, &m_server})
        process->setStandardErrorFile(QProcess::nullDevice());
    // A server that resets itself when its only client has left throws out the one that is just coming.
    const QStringList screen = {"-screen", "0", "1000x800x24"};
    m_server.start("Xvfb", screen + QStringList({"-displayfd", "1", "-noreset", "-nolisten", "tcp"}));
    if (!m_server.waitForReadyRead(Patience))
        return "Xvfb does not start";
    qputenv("DISPLAY", ':' + m_server.readLine().trimmed());

    m_windowManager.start("openbox", {"--sm-disable"});
    const auto manages = [this] {
        return ask("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id");
    };
    return QTest::qWaitFor(manages, Patience) ? QString() : "openbox does not start";
}

QString Desktop::ask(const QString& tool, const QStringList& arguments) const
{
    QProcess process;
    process.start(tool, arguments);
    process.waitForFinished(Patience);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QImage Desktop::picture(const QString& window) const
{
    const int stillTime = 250; // Milliseconds. Even a slow animation shows something new within them.
    QImage now;
    const auto rests = [&] {
        const QImage before = now;
        QTest::qWait(stillTime);
        now = QGuiApplication::primaryScreen()->grabWindow(window.toUInt()).toImage();
        return now == before;
    };
    return QTest::qWaitFor(rests, Patience) ? now : QImage();
}
