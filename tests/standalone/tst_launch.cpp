#include "QtTestCompat.h"
#include "Version.h"
#include "launch.h"

#include <QtSingleApplication>

namespace {

const char* const Role = "TST_LAUNCH_ROLE"; // Set in the second instance.
const int Refused = 3;

/// Runs inside launch(), as soon as there is an application.
void writeMessages()
{
    if (qgetenv(Role).isEmpty())
        return;
    for (const char* text : {"QGLShader", "QGLShader: cannot compile", "QGL", "qglshader", " QGLShader"})
        qWarning("%s", text);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(writeMessages)

/// launch() in a second instance of the editor, and where it cannot work.
class tst_launch : public QObject
{
    Q_OBJECT

    static void startSecond(QProcess& process, const QStringList& arguments)
    {
        process.setEnvironment(QProcess::systemEnvironment() << QString(Role) + "=second");
        process.setWorkingDirectory(QCoreApplication::applicationDirPath() + "/../stage");
        process.start(QCoreApplication::applicationFilePath(), arguments);
    }

private Q_SLOTS:
    void secondInstancePassesItsArgumentsOn()
    {
        auto* application = static_cast<QtSingleApplication*>(QCoreApplication::instance());
        QVERIFY(!application->isRunning());
        QSignalSpy received(application, SIGNAL(messageReceived(QString)));
        const QString name = QString::fromUtf8("\303\274 \360\237\252\221");
        for (const QStringList& arguments :
             {QStringList(), QStringList({"a", "b"}), QStringList({"", "c?d", name})}) {
            const QString message = (arguments + QStringList("")).join("?");
            QProcess second;
            startSecond(second, arguments);
            received.clear();
            QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 60000);
            QCOMPARE(second.exitCode(), Refused);
            QVERIFY(second.readAllStandardError().contains("called in this process before"));
            QTRY_COMPARE(received.size(), 1);
            QCOMPARE(received[0][0].toString(), message);
            QCOMPARE(second.readAllStandardOutput().replace('\r', ""),
                     QByteArray("QGL\nqglshader\n QGLShader\n"));
        }
    }

    void tellsThatTheFirstInstanceDoesNotAnswer()
    {
        QProcess second;
        startSecond(second, QStringList("a"));
        QVERIFY(second.waitForFinished(60000)); // Meanwhile this one does nothing.
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
        const int exitCode = launch(argc, argv);
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
