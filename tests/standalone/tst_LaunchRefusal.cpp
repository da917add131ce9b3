#include "launch.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const int Refused = 3;

/// Cancels the renderer selector, with which a first start begins.
void cancelSelector()
{
    auto* timer = new QTimer(qApp);
    timer->callOnTimeout([] {
        if (auto* selector = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            selector->reject();
    });
    timer->start(20);
}

int launchHere()
{
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    return launch(1, arguments);
}

} // namespace

/// launch() where it cannot work. Without a main application of its own.
class tst_LaunchRefusal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesBesideAnApplication()
    {
        int argc = 0;
        QCoreApplication application(argc, nullptr);
        const QStringList paths = QCoreApplication::libraryPaths();
        QTest::ignoreMessage(QtWarningMsg,
                             "launch() refuses: this process has an application object already");
        QCOMPARE(launchHere(), Refused);
        QCOMPARE(QCoreApplication::libraryPaths(), paths);
        QCOMPARE(QCoreApplication::instance(), &application);
    }

    void refusesASecondCall()
    {
        const QTemporaryDir home;
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
            qputenv(variable, QFile::encodeName(home.path()));
        qAddPreRoutine(&cancelSelector);
        QCOMPARE(launchHere(), 0);
        QTest::ignoreMessage(QtWarningMsg, "launch() refuses: it has been called in this process before");
        QCOMPARE(launchHere(), Refused);
        QVERIFY(!QCoreApplication::instance());
    }
};

QTEST_APPLESS_MAIN(tst_LaunchRefusal)
#include "tst_LaunchRefusal.moc"
