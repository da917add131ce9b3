#include <QLocalSocket>
#include <QtTest>

#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

const int Patience = 30000; // milliseconds, for what is to happen at once

/// A process that is killed, by a signal that it cannot catch, when it is no longer needed.
struct Process : QProcess
{
    ~Process() override
    {
        kill();
        waitForFinished();
    }

    QByteArray line()
    {
        while (!canReadLine()) {
            if (!waitForReadyRead(Patience))
                return "(nothing)";
        }
        return readLine().trimmed();
    }
};

} // namespace

/// Starts real processes of a program that runs once. Each test has a run-time folder of its own.
class tst_QtSingleApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneOfManyBecomesTheInstance();
    void messagesArriveUnchanged_data();
    void messagesArriveUnchanged();
    void killedInstanceLeavesNothingBehind();
    void badPeersDoNoHarm_data();
    void badPeersDoNoHarm();
    void placeIsPrivate_data();
    void placeIsPrivate();

private:
    std::unique_ptr<Process> start(const QByteArray& message = "", int timeout = Patience) const
    {
        std::unique_ptr<Process> process(new Process);
        process->setProcessEnvironment(m_environment);
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QCoreApplication::applicationDirPath() + "/single_instance",
                       {QString::number(timeout)});
        process->write(message);
        process->closeWriteChannel();
        return process;
    }

    QString find(const QString& pattern) const
    {
        const QDir folder(m_runtime->path());
        return folder.filePath(folder.entryList({pattern}, QDir::Files | QDir::System).value(0));
    }

    QScopedPointer<QTemporaryDir> m_runtime;
    QProcessEnvironment m_environment;
};

void tst_QtSingleApplication::init()
{
    m_runtime.reset(new QTemporaryDir);
    QVERIFY(m_runtime->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert("XDG_RUNTIME_DIR", m_runtime->path());
}

void tst_QtSingleApplication::oneOfManyBecomesTheInstance()
{
    std::vector<std::unique_ptr<Process>> processes;
    for (int i = 0; i < 12; ++i)
        processes.push_back(start(QByteArray::number(i)));
    std::unique_ptr<Process> instance;
    QSet<QByteArray> expected, received;
    for (int i = 0; i < 12; ++i) {
        if (processes[i]->line() == "instance") {
            QVERIFY(!instance);
            instance = std::move(processes[i]);
        } else {
            QCOMPARE(processes[i]->line(), QByteArray("sent"));
            expected += "raised " + QByteArray::number(i).toHex();
        }
    }
    QVERIFY(instance);
    for (int i = 0; i < 11; ++i)
        received += instance->line();
    QCOMPARE(received, expected);
}

void tst_QtSingleApplication::messagesArriveUnchanged_data()
{
    const int longest = 1024 * 1024 - 8;
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<bool>("taken");
    QTest::newRow("empty") << QByteArray("") << true;
    QTest::newRow("beyond ASCII") << QByteArray("\xc3\xa4?\xe5\xb1\xb1?\xf0\x9f\x93\x81\n\x01") << true;
    QTest::newRow("longest") << QByteArray(longest, 'x') << true;
    QTest::newRow("too long") << QByteArray(longest + 1, 'x') << false;
}

void tst_QtSingleApplication::messagesArriveUnchanged()
{
    QFETCH(QByteArray, message);
    QFETCH(bool, taken);
    const auto instance = start();
    QCOMPARE(instance->line(), QByteArray("instance"));
    const auto client = start(message);
    QCOMPARE(client->line(), QByteArray("client"));
    QCOMPARE(client->line(), QByteArray(taken ? "sent" : "failed"));
    if (taken)
        QCOMPARE(instance->line(), ("raised " + message.toHex()).trimmed());
}

void tst_QtSingleApplication::killedInstanceLeavesNothingBehind()
{
    QCOMPARE(start()->line(), QByteArray("instance"));
    QVERIFY(QFileInfo::exists(find("*.socket")));

    // Now this process has the lock, as an instance has before it listens.
    const int lock = ::open(QFile::encodeName(find("*.lock")).constData(), O_RDWR | O_CLOEXEC);
    QCOMPARE(::flock(lock, LOCK_EX | LOCK_NB), 0);
    const auto hasty = start("hasty", 300);
    QCOMPARE(hasty->line(), QByteArray("client"));
    QCOMPARE(hasty->line(), QByteArray("failed"));
    const auto patient = start("patient");
    QCOMPARE(patient->line(), QByteArray("client"));
    ::close(lock);
    const auto instance = start();
    QCOMPARE(instance->line(), QByteArray("instance"));
    QCOMPARE(patient->line(), QByteArray("sent"));
    QCOMPARE(instance->line(), "raised " + QByteArray("patient").toHex());
}

void tst_QtSingleApplication::badPeersDoNoHarm_data()
{
    QTest::addColumn<int>("peers");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("many silent ones") << 100 << QByteArray();
    QTest::newRow("garbage") << 4 << QByteArray(100, '\xff');
    QTest::newRow("half a header") << 4 << QByteArray("msg1\0\0", 6);
    QTest::newRow("enormous length") << 4 << QByteArray("msg1\xff\xff\xff\xff", 8);
    QTest::newRow("endless") << 4 << QByteArray("msg1\0\0\0\1", 8) + QByteArray(64 * 1024 * 1024, 'x');
}

void tst_QtSingleApplication::badPeersDoNoHarm()
{
    QFETCH(int, peers);
    QFETCH(QByteArray, bytes);
    const auto instance = start();
    QCOMPARE(instance->line(), QByteArray("instance"));
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (int i = 0; i < peers; ++i) {
        sockets.emplace_back(new QLocalSocket);
        sockets.back()->connectToServer(find("*.socket"));
        QVERIFY(sockets.back()->waitForConnected(Patience));
        sockets.back()->write(bytes);
        while (sockets.back()->waitForBytesWritten(50)) // until the instance takes no more
            ;
        QVERIFY(sockets.back()->bytesToWrite() >= bytes.size() - 8 * 1024 * 1024);
    }
    const auto client = start("honest");
    QCOMPARE(client->line(), QByteArray("client"));
    QCOMPARE(client->line(), QByteArray("sent"));
    QByteArray received;
    for (int i = 0; i <= peers && !received.endsWith(QByteArray("honest").toHex()); ++i)
        received = instance->line();
    QCOMPARE(received, "raised " + QByteArray("honest").toHex());
    for (const auto& socket : sockets)
        QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, Patience);
}

void tst_QtSingleApplication::placeIsPrivate_data()
{
    QTest::addColumn<QString>("runtime"); // Below the test's folder, unless it does not start with a slash.
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    const QString own = QString("single-instance-%1").arg(geteuid());
    QTest::newRow("open to others") << "/run" << 0755 << own;
    QTest::newRow("not absolute") << "run" << 0700 << own;
    QTest::newRow("too long for a socket") << '/' + QString(80, 'r') << 0700 << own;
}

void tst_QtSingleApplication::placeIsPrivate()
{
    QFETCH(QString, runtime);
    QFETCH(int, mode);
    QFETCH(QString, expected);
    const QString folder = m_runtime->path();
    QCOMPARE(::mkdir(qPrintable(folder + '/' + runtime), mode_t(mode)), 0);
    m_environment.insert("XDG_RUNTIME_DIR", runtime.startsWith('/') ? folder + runtime : runtime);
    m_environment.insert("TMPDIR", folder);
    const auto instance = start();
    QCOMPARE(instance->line(), QByteArray("instance"));
    struct stat place;
    QCOMPARE(::stat(qPrintable(folder + '/' + expected), &place), 0);
    QCOMPARE(place.st_mode & 0777, mode_t(0700));
    QCOMPARE(QDir(folder + '/' + expected).entryList({"*.socket"}, QDir::System).size(), 1);
}

QTEST_GUILESS_MAIN(tst_QtSingleApplication)
#include "tst_QtSingleApplication.moc"
