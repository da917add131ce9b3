#include "QtTestCompat.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <algorithm>
#include <memory>
#if defined(_WIN32)
#    include <windows.h>
#else
#    include <fcntl.h>
#    include <sys/file.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace {

const int Patience = 120000; // milliseconds, for what happens at once unless the machine is busy
const QStringList Patient = {"30000"};
#if defined(_WIN32)
const int Starts = 40; // Each brings all of a graphical program with it.
#else
const int Starts = 100; // Qt 4.8 cannot wait for more than 1024 pipes.
#endif

/// Killed with the object, by a signal that it cannot catch.
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
            if (!waitForReadyRead(Patience) && !canReadLine()) // False as well when the process ends with it.
                return "(nothing)";
        }
        return readLine().trimmed();
    }

    /// Lets it go on. Returns the part that it plays.
    QByteArray part()
    {
        const QByteArray first = line();
        closeWriteChannel();
        return first == "ready" ? line() : first;
    }
};

using ProcessPointer = std::unique_ptr<Process>;

} // namespace

/// Starts real processes of a program that runs once. Each test has a run-time folder of its own.
class tst_QtSingleApplication : public QObject
{
    Q_OBJECT

private:
    ProcessPointer start(const QByteArray& message = "", const QStringList& arguments = Patient) const
    {
        auto process = std::make_unique<Process>();
        process->setProcessEnvironment(m_environment);
        process->setWorkingDirectory(m_folder->path());
        process->setProcessChannelMode(ForwardedErrors);
        process->start(QCoreApplication::applicationDirPath() + "/single_instance", arguments);
        process->write(message);
        return process;
    }

    /// Runs a client to its end. Returns its last line.
    QByteArray send(const QByteArray& message, const QStringList& arguments = Patient) const
    {
        const auto client = start(message, arguments);
        const QByteArray part = client->part();
        return part == "client" ? client->line() : part;
    }

#if defined(_WIN32)
    /// Pipes cannot be listed everywhere: the name is made as the instance makes it.
    QString server() const
    {
        DWORD session = 0;
        ProcessIdToSessionId(GetCurrentProcessId(), &session);
        const QString id = QCoreApplication::applicationDirPath() + "/single_instance.exe/" +
                           QString::number(session) + '/' + QString::fromLocal8Bit(qgetenv("USERNAME"));
        const QByteArray hash = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex();
        return "single-instance-" + hash.left(20);
    }
#else
    static QString find(const QString& folder, const QString& pattern)
    {
        return folder + '/' + QDir(folder).entryList({pattern}, QDir::Files | QDir::System).value(0);
    }
    QString server() const
    {
        return find(m_runtime, "*.socket");
    }
#endif

    QScopedPointer<QTemporaryDir> m_folder; // Where all may write, as in the one for temporary files.
    QString m_runtime;
    QProcessEnvironment m_environment;

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_runtime = m_folder->filePath("run");
#if !defined(_WIN32)
        QCOMPARE(::chmod(qPrintable(m_folder->path()), 01777), 0);
        QCOMPARE(::mkdir(qPrintable(m_runtime), 0700), 0);
#endif
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert("XDG_RUNTIME_DIR", m_runtime);
        m_environment.insert("TMPDIR", m_folder->path());
    }

#if !defined(ZEL_LEAVE_OUT_oneOfManyBecomesTheInstance)
    void oneOfManyBecomesTheInstance()
    {
        std::vector<ProcessPointer> processes;
        QList<QByteArray> sent, received;
        for (int i = 0; i < Starts; ++i) {
            sent << QByteArray::number(i) + (i % 2 ? "" : " \xc3\xa4 \xf0\x9f\x93\x81");
            processes.push_back(start(sent.last()));
        }
        for (const auto& process : processes)
            QCOMPARE(process->line(), QByteArray("ready"));
        for (const auto& process : processes)
            process->closeWriteChannel();
        const auto isClient = [](const auto& process) { return process->line() == "client"; };
        const auto found = std::find_if_not(processes.begin(), processes.end(), isClient);
        sent.removeAt(static_cast<int>(found - processes.begin()));
        const ProcessPointer instance = std::move(*found);
        const auto others = processes.erase(found);
        QVERIFY(std::all_of(others, processes.end(), isClient));
        for (const auto& client : processes) {
            QCOMPARE(client->line(), QByteArray("sent"));
            received << QByteArray::fromHex(instance->line());
        }
        std::sort(sent.begin(), sent.end());
        std::sort(received.begin(), received.end());
        QCOMPARE(received, sent);
    }
#endif

    void messagesArriveUnchanged()
    {
        const QByteArray longest(1024 * 1024 - 8, 'x');
        const auto instance = start();
        QCOMPARE(instance->part(), QByteArray("instance"));
        QCOMPARE(send(longest + 'x'), QByteArray("failed"));
        for (const QByteArray& message : {longest, QByteArray("\xc3\xa4?\xf0\x9f\x93\x81\n\x01")}) {
            QCOMPARE(send(message), QByteArray("sent"));
            QCOMPARE(instance->line(), message.toHex());
        }
        QLocalSocket slow; // What it sends arrives in parts, and goes on behind the message.
        slow.connectToServer(server());
        for (const QByteArray& part :
             {QByteArray("ms"), QByteArray("g1\0\0\0\4ab", 8), QByteArray("cdmsg1")}) {
            QVERIFY(!slow.waitForReadyRead(50));
            QVERIFY(slow.write(part) && slow.waitForBytesWritten(Patience));
        }
        QVERIFY(slow.waitForReadyRead(Patience) && slow.readAll() == "taken");
        slow.write(QByteArray("\0\0\0\4late", 8));
        QCOMPARE(send("next"), QByteArray("sent"));
        for (const QByteArray message : {"abcd", "next"})
            QCOMPARE(instance->line(), message.toHex());
    }

#if !defined(ZEL_LEAVE_OUT_badPeersDoNoHarm)
    void badPeersDoNoHarm()
    {
        const std::pair<int, QByteArray> crowds[] = {
            {100, {}}, // They are silent.
            {4, QByteArray(100, '\xff')},
            {4, QByteArray("msg1\xff\xff\xff\xff", 8)},
            { 4,
              QByteArray("msg1\0\0\0\1", 8) + QByteArray(64 * 1024 * 1024, 'x') }};
        for (const auto& [peers, bytes] : crowds) {
            const auto instance = start(); // The one before, which was killed, leaves nothing behind.
            QCOMPARE(instance->part(), QByteArray("instance"));
            std::vector<std::unique_ptr<QLocalSocket>> sockets;
            for (int i = 0; i < peers; ++i) {
                sockets.emplace_back(new QLocalSocket);
                sockets.back()->connectToServer(server());
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
#endif

#if !defined(ZEL_LEAVE_OUT_clientWaitsUntilTheInstanceListens)
    void clientWaitsUntilTheInstanceListens()
    {
        QCOMPARE(start()->part(), QByteArray("instance"));
        // Now this process has the lock, as an instance has before it listens.
        const int lock = ::open(QFile::encodeName(find(m_runtime, "*.lock")).constData(), O_RDWR | O_CLOEXEC);
        QCOMPARE(::flock(lock, LOCK_EX | LOCK_NB), 0);
        const QString place = server();
        QCOMPARE(send("hasty", {"300"}), QByteArray("failed"));
        for (const bool isWrong : {true, false}) { // What answers, and in parts.
            QLocalServer other;
            QLocalServer::removeServer(place);
            QVERIFY(other.listen(place));
            const auto client = start("", isWrong ? QStringList("300") : Patient);
            QCOMPARE(client->part(), QByteArray("client"));
            QVERIFY(other.waitForNewConnection(Patience));
            QLocalSocket* const answer = other.nextPendingConnection();
            QVERIFY(answer->waitForReadyRead(Patience));
            for (const QByteArray part : {"tak", isWrong ? "e!" : "en"}) {
                QVERIFY(answer->write(part) && answer->waitForBytesWritten(Patience));
                QTest::qWait(50);
            }
            QCOMPARE(client->line(), QByteArray(isWrong ? "failed" : "sent"));
        }
        const auto patient = start("patient");
        QCOMPARE(patient->part(), QByteArray("client"));
        ::close(lock);
        const auto instance = start();
        QCOMPARE(instance->part(), QByteArray("instance"));
        QCOMPARE(patient->line(), QByteArray("sent"));
        QCOMPARE(instance->line(), QByteArray("patient").toHex());
        // Of a stopped instance the system still takes what is sent.
        QCOMPARE(QProcess::execute("kill", QStringList() << "-STOP" << QString::number(idOf(*instance))), 0);
        QCOMPARE(send("unheard", {"300"}), QByteArray("failed"));
    }

    void placeIsPrivate()
    {
        const QString name = "single-instance-" + QString::number(::geteuid()),
                      own = m_folder->filePath(name);
        // A path of 108 bytes is too long for a socket.
        const QString tooLong = m_folder->filePath(QString(63 - m_folder->path().size(), 'l'));
        const QString link = m_folder->filePath("link"), file = m_folder->filePath("file");
        QStringList unfit({m_folder->path(), "run", tooLong, link, file});
        const QString foreign = m_folder->filePath("foreign");
        if (::geteuid() == 0 && ::mkdir(qPrintable(foreign), 0700) == 0 &&
            ::chown(qPrintable(foreign), 65534, 65534) == 0)
            unfit << foreign;
        QVERIFY(QDir().mkdir(tooLong) && ::chmod(qPrintable(tooLong), 0700) == 0 && QFile::link("run", link));
        QVERIFY(QFile(file).open(QIODevice::WriteOnly) && ::chmod(qPrintable(file), 0700) == 0);
        for (const QString& place : unfit) {
            m_environment.insert("XDG_RUNTIME_DIR", place);
            const auto instance = start();
            QCOMPARE(instance->part(), QByteArray("instance"));
            QCOMPARE(int(QFile::permissions(own)), 0x7700); // What its owner may, and this user.
            QCOMPARE(QDir(own).entryList({"*.socket"}, QDir::System).size(), 1);
            QCOMPARE(QProcess::execute("rm", {"-r", own}), 0);
        }
        QVERIFY(QDir().mkdir(own) && ::chmod(qPrintable(own), 0750) == 0);
        QCOMPARE(start()->part(), QByteArray("instance"));
        QVERIFY(QDir(own).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).isEmpty());
    }
#endif
};

QTEST_GUILESS_MAIN(tst_QtSingleApplication)
#include "tst_QtSingleApplication.moc"
