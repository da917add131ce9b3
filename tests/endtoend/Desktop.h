#ifndef ZEL_DESKTOP_H
#define ZEL_DESKTOP_H

#include <QApplication>
#include <QImage>
#include <QProcess>
#include <QtTest>

/// How long a test waits for what must happen, in milliseconds; for a machine that is busy with a build.
const int Patience = 20000;

/// A screen of its own with a window manager; both programs end with the object.
class Desktop
{
public:
    ~Desktop();

    /// Takes a free display and puts it into the environment, so that this process can use it too. Returns
    /// the reason when that fails, else nothing.
    QString start();

    /// What a tool that sees the screen writes, without white space around it.
    QString ask(const QString& tool, const QStringList& arguments) const;
    /// What a window shows as soon as nothing in it moves any more. Windows go by the numbers of the X tools.
    QImage picture(const QString& window) const;

private:
    QProcess m_server;
    QProcess m_windowManager;
};

/// The main function of a test that is made with a desktop.
template <class Test>
int runOnDesktop(int argc, char** argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "xcb");
    // Neither a bus, because one would be started, nor the graphics driver, which leaks.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    Desktop desktop;
    const QString mishap = desktop.start();
    if (!mishap.isEmpty()) {
        qWarning("%s", qPrintable(mishap));
        return 1;
    }
    QApplication application(argc, argv);
    Test test(desktop);
    return QTest::qExec(&test, argc, argv);
}

#endif
