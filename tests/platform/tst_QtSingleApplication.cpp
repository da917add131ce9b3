#include <QLocalSocket>
#include <QtTest>

#include <algorithm>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

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

private:
    std::unique_ptr<Process> start(const QByteArray& message = "", int timeout = Patience) const
    {
        auto process = std::make_unique<Process>();
        process->setProcessEnvironment(m_environment);
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QCoreApplication::applicationDirPath() + "/single_instance",
                       {QString::number(timeout)});
        process->write(message);
        process->closeWriteChannel();
        return process;
    }

    /// Starts a client to its end, and tells how that was.
    QByteArray send(const QByteArray& message, int timeout = Patience) const
    {
        const auto client = start(message, timeout);
        const QByteArray part = client->line();
        return part == "client" ? client->line() : part;
    }

    QString find(const QString& pattern) const
    {
        const auto kinds = QDir::Files | QDir::System;
        return m_runtime->filePath(QDir(m_runtime->path()).entryList({pattern}, kinds).value(0));
    }

    QScopedPointer<QTemporaryDir> m_runtime;
    QProcessEnvironment m_environment;

private Q_SLOTS:
    void init()
    {
        m_runtime.reset(new QTemporaryDir);
        QVERIFY(m_runtime->isValid());
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert("XDG_RUNTIME_DIR", m_runtime->path());
    }

    void oneOfManyBecomesTheInstance()
    {
        std::vector<std::unique_ptr<Process>> processes;
        for (int i = 0; i < 12; ++i)
            processes.push_back(start("same"));
        const auto instance = std::partition(processes.begin(), processes.end(),
                                             [](const auto& process) { return process->line() == "client"; });
        QCOMPARE(std::distance(instance, processes.end()), 1);
        for (auto client = processes.begin(); client != instance; ++client) {
            QCOMPARE((*client)->line(), QByteArray("sent"));
            QCOMPARE((*instance)->line(), QByteArray("same").toHex());
        }
    }

    void messagesArriveUnchanged()
    {
        const QByteArray longest(1024 * 1024 - 8, 'x');
        const auto instance = start();
        QCOMPARE(instance->line(), QByteArray("instance"));
        QCOMPARE(send(longest + 'x'), QByteArray("failed"));
        for (const QByteArray& message : {longest, QByteArray("\xc3\xa4?\xf0\x9f\x93\x81\n\x01")}) {
            QCOMPARE(send(message), QByteArray("sent"));
            QCOMPARE(instance->line(), message.toHex());
        }
    }

    void killedInstanceLeavesNothingBehind()
    {
        QCOMPARE(start()->line(), QByteArray("instance"));
        QVERIFY(QFileInfo::exists(find("*.socket")));

        // Now this process has the lock, as an instance has before it listens.
        const int lock = ::open(QFile::encodeName(find("*.lock")).constData(), O_RDWR | O_CLOEXEC);
        QCOMPARE(::flock(lock, LOCK_EX | LOCK_NB), 0);
        QCOMPARE(send("hasty", 300), QByteArray("failed"));
        const auto patient = start("patient");
        QCOMPARE(patient->line(), QByteArray("client"));
        ::close(lock);
        const auto instance = start();
        QCOMPARE(instance->line(), QByteArray("instance"));
        QCOMPARE(patient->line(), QByteArray("sent"));
        QCOMPARE(instance->line(), QByteArray("patient").toHex());
    }

    void badPeersDoNoHarm()
    {
        const std::pair<int, QByteArray> crowds[] = {
            {100, {}}, // They are silent.
            {4, QByteArray(100, '\xff')},
            {4, QByteArray("msg1\xff\xff\xff\xff", 8)},
            {4, QByteArray("msg1\0\0\0\1", 8) + QByteArray(64 * 1024 * 1024, 'x')}};
        for (const auto& [peers, bytes] : crowds) {
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
            QCOMPARE(send("honest"), QByteArray("sent"));
            QByteArray received;
            for (int i = 0; i <= peers && !received.endsWith(QByteArray("honest").toHex()); ++i)
                received = instance->line();
            QCOMPARE(received, QByteArray("honest").toHex());
            for (const auto& socket : sockets)
                QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, Patience);
        }
    }

    void placeIsPrivate()
    {
        const QString folder = m_runtime->path(), open = folder + "/open";
        QCOMPARE(::mkdir(qPrintable(open), 0755), 0);
        m_environment.insert("TMPDIR", folder);
        const QString own = QString("%1/single-instance-%2").arg(folder).arg(geteuid());
        for (const QString& unfit : {open, QString("relative"), folder + '/' + QString(80, 'r')}) {
            m_environment.insert("XDG_RUNTIME_DIR", unfit);
            const auto instance = start();
            QCOMPARE(instance->line(), QByteArray("instance"));
            struct stat place;
            QCOMPARE(::stat(qPrintable(own), &place), 0);
            QCOMPARE(place.st_mode & 0777, mode_t(0700));
            QCOMPARE(QDir(own).entryList({"*.socket"}, QDir::System).size(), 1);
            QVERIFY(QDir(own).removeRecursively());
        }
    }
};

QTEST_GUILESS_MAIN(tst_QtSingleApplication)
#include "tst_QtSingleApplication.moc"
