#include "Files.h"
#include "Rows.h"
#include "Version.h"
#include "ZelSettingsRegistry.h"
#include "launch.h"

#include "platform/MTLogger.h"

#include <QtSingleApplication>

namespace {

const char* const Role = "TST_LAUNCH_ROLE"; // Of a process that this test starts: "first" or "second".
const int Refused = 3;
const int Patience = 60000; // ms

/// Tells what an editor shows that has started, and closes it when the test has read that.
struct Onlooker : QTimer
{
    Onlooker() { start(20); }

    void timerEvent(QTimerEvent*) override
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible())
                continue;
            stop();
            MTLogger::Log("debug", "seen");
            qWarning("seen: %s", describe(*window).toUtf8().constData());
            std::getchar();
            window->close();
            return;
        }
    }

    static QString describe(QWidget& window)
    {
        if (const auto* box = qobject_cast<QMessageBox*>(&window)) {
            const bool isUsual = box->textFormat() == Qt::PlainText && !box->styleSheet().isEmpty();
            return box->windowTitle() + (isUsual ? ": " : ":: ") + box->text();
        }
        const QMessageBox question(QMessageBox::NoIcon, "", "", QMessageBox::Cancel);
        QStringList seen(question.button(QMessageBox::Cancel)->text());
        seen << window.findChild<QLabel*>("summaryLabel")->styleSheet();
        if (window.windowFlags() & Qt::FramelessWindowHint)
            seen << "frameless";
        if (!QFontDatabase::applicationFontFamilies(0).isEmpty())
            seen << "own fonts";
        seen << QString("%1 dpi").arg(window.logicalDpiX()); // All grows with those of the screen.
        seen << QCoreApplication::libraryPaths().filter(QRegExp("^bin$")); // The plug-ins.
        return seen.join(", ");
    }
};

/// Runs inside launch(), as soon as there is an application.
void act()
{
    if (qgetenv(Role) == "first") {
        static Onlooker onlooker;
    }
    if (qgetenv(Role) == "second")
        for (const char* text : {"QGLShader", "QGLShader: cannot compile", "QGL", "qglshader", " QGLShader"})
            qWarning("%s", text);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(act)

/// launch() in a process of its own, and where it cannot work.
class tst_launch : public QObject
{
    Q_OBJECT

    static QString stage() { return QCoreApplication::applicationDirPath() + "/../stage"; }

    static void start(QProcess& process, const QString& role, const QStringList& arguments,
                      const QString& root = stage(), const QStringList& environment = QStringList())
    {
        process.setEnvironment(QProcess::systemEnvironment() + environment << Role + ('=' + role));
        process.setWorkingDirectory(root);
        process.start(QCoreApplication::applicationFilePath(), arguments);
    }

private Q_SLOTS:
#if !defined(ZEL_LEAVE_OUT_firstInstance)
    void firstInstance_data()
    {
        // What the settings hold, a file in their folder that is in the way, and what is seen.
        const QByteArray complete("settingsVersion=2\nengine=software\n");
        const QString error = "Torvane - Fatal Error: Could not ",
                      file = " the Torvane settings file \"%1/Settings.ini\": ";
        const QString cancel =
            QString::fromUtf8("\343\202\255\343\203\243\343\203\263\343\202\273\343\203\253");
        const std::tuple<const char*, QByteArray, QString, QString> rows[] = {
            {"Japanese, with diagnostics", complete + "language=ja\nenablediag=true\n", "",
             cancel + ", font-style: normal;, frameless, own fonts, 96 dpi, bin"},
            {"settings are a folder", "", "Settings.ini/x", error + "read" + file + "it is not a file"},
            {"no folder for the cache", complete, "cache",
             error + "use the 3D database cache, folder \"%1/cache/TorvaneBoundlessX64/"}};
        addRows({"general", "obstacle", "seen"}, rows);
    }

    void firstInstance()
    {
        QFETCH(QByteArray, general);
        QFETCH(QString, obstacle);
        QFETCH(QString, seen);
        // An installed tree, in which its user is at home as well.
        const QTemporaryDir root;
        const QString home = root.filePath("TorvaneBoundlessX64");
        QDirIterator font("/usr/share/fonts", {"*.ttf"}, QDir::Files, QDirIterator::Subdirectories);
        store(root.filePath("resources/Defaults.ini"), "[screenshot]\nImageFolder=/\303\274\n");
        for (const QString name : {"bin", "resources/languages"})
            QVERIFY(QFile::link(stage() + '/' + name, root.filePath(name)));
        QVERIFY(QFile::link(QFileInfo(font.next()).path(), root.filePath("resources/fonts")));
        if (!general.isEmpty())
            store(home + "/Settings.ini", general);
        if (!obstacle.isEmpty())
            store(home + '/' + obstacle, "");

        QProcess first;
        start(first, "first", {}, root.path(),
              {"QT_FONT_DPI=144", "XDG_CACHE_HOME=" + home + "/cache", "XDG_CONFIG_HOME=" + root.path(),
               "XDG_RUNTIME_DIR=" + root.path(), "TMPDIR=" + root.path()});
        QByteArray output; // It comes at once: the process does not end before it is told.
        while (!output.contains("seen: ") && first.waitForReadyRead(Patience))
            output += first.readAllStandardOutput();
        QVERIFY2(QString::fromUtf8(output).contains("seen: " + seen.replace("%1", home)), output);
        first.closeWriteChannel();
        QVERIFY(first.waitForFinished(Patience));
        QCOMPARE(first.exitCode(), Refused);
        const bool isWindow = seen.contains("frameless"), isReported = general.contains("diag=true");
        const QByteArray log = contentOf(home + "/log.txt");
        QVERIFY2(log.contains("Applied the settings") == isWindow, log);
        QVERIFY2(log.contains("[debug] seen") == isReported, log);
        QCOMPARE(bool(contentOf(home + "/Settings.ini").contains("ImageFolder=/\303\274\n")), isWindow);
        QCOMPARE(first.readAllStandardOutput(), QByteArray("0 settings\n"));
    }
#endif

    void secondInstancePassesItsArgumentsOn()
    {
        auto* application = static_cast<QtSingleApplication*>(QCoreApplication::instance());
        QVERIFY(!application->isRunning());
        QSignalSpy received(application, SIGNAL(messageReceived(QString)));
        const QString name = QString::fromUtf8("\303\274 \360\237\252\221");
        QWidget window;
        application->setActivationWindow(&window);
        application->setActivationWindow(&window, false);
        for (const QStringList& arguments :
             {QStringList(), QStringList({"a", "b"}), QStringList({"", "c?d", name})}) {
            const QString message = (arguments + QStringList("")).join("?");
            QProcess second;
            start(second, "second", arguments);
            received.clear();
            QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, Patience);
            QCOMPARE(second.exitCode(), Refused);
            QVERIFY(second.readAllStandardError().contains("called in this process before"));
            QTRY_COMPARE(received.size(), 1);
            QVERIFY(received[0][0].toString() == message && window.isHidden());
            QCOMPARE(second.readAllStandardOutput().replace('\r', ""),
                     QByteArray("QGL\nqglshader\n QGLShader\n"));
        }
    }

    void tellsThatTheFirstInstanceDoesNotAnswer()
    {
        QProcess second;
        start(second, "second", QStringList("a"));
        QVERIFY(second.waitForFinished(Patience)); // Meanwhile this one does nothing.
        QVERIFY(second.readAllStandardError().contains("it does not answer"));
    }

    void versions()
    {
        using ZelControlCenter::Version;
        const QString whole = Version::GetDescStringMajorMinorReleaseRevision(true);
        QCOMPARE(whole, QString("%1.%2.%3.%4")
                            .arg(Version::GetMajor())
                            .arg(Version::GetMinor())
                            .arg(Version::GetRelease())
                            .arg(Version::GetRevision()));
        QCOMPARE(QString(Version::GetDescStringMajorMinorRelease(false)), whole.section('.', 0, 2));
        QCOMPARE(QString(Version::GetDescStringMajorMinor(false)), whole.section('.', 0, 1));
        QCOMPARE(QString(Version::GetDescStringMajorMinorReleaseRevisionDate()),
                 whole + QString(" %1-%2").arg(Version::GetYear()).arg(Version::GetMonth()));
    }

    void refusesBesideAnApplication()
    {
        const QStringList paths = QCoreApplication::libraryPaths();
        QTest::ignoreMessage(QtWarningMsg,
                             "launch() refuses: this process has an application object already");
        QCOMPARE(launch(0, nullptr), Refused);
        QCOMPARE(QCoreApplication::libraryPaths(), paths);
    }
};

int main(int argc, char** argv)
{
    if (!qgetenv(Role).isEmpty()) {
        zelRegisterPageDefaults();
        const int exitCode = launch(argc, argv);
        if (qgetenv(Role) == "first")
            std::printf("%d settings\n", int(zel::ZelSettingsRegistry::GetDefaultSettingsValues().size()));
        return exitCode ? exitCode : launch(argc, argv); // The second call is refused.
    }
    // Apart from every other run of this test.
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    QtSingleApplication application(argc, argv);
    tst_launch test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_launch.moc"
