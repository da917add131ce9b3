#include "platform/MTLogger.h"

#include <QtTest>

#include <atomic>
#include <thread>
#include <unistd.h>

/// Each test has a log file of its own, in a folder whose name goes beyond ASCII.
class tst_MTLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { MTLogger::RemoveFileHandler(); }
    void eventIsOneLine();
    void typesLeftOut_data();
    void typesLeftOut();
    void eventsBeforeTheHandlerAreKept();
    void fullFileIsKeptOnce();
    void threadsLoseNoEvents();
    void unusableFileIsReported();

private:
    void install(bool diagnostics = false, const std::string& blackList = "")
    {
        MTLogger::InstallFileHandler(m_path.toStdString(), diagnostics, blackList);
    }

    /// The lines of a log without their times.
    static QStringList eventsIn(const QString& path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QStringList events;
        for (const QByteArray& line : file.readAll().trimmed().split('\n'))
            events += QString::fromUtf8(line).section(' ', 1);
        return events;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

void tst_MTLogger::init()
{
    m_folder.reset(
        new QTemporaryDir(QDir::tempPath() + QString::fromUtf8("/l\xc3\xb6g-\xe5\xb1\xb1-XXXXXX")));
    QVERIFY(m_folder->isValid());
    m_path = m_folder->filePath("log.txt");
}

void tst_MTLogger::eventIsOneLine()
{
    install();
    MTLogger::Log("warning", "l\xc3\xb6st\r\ntwo\tC:\\new \x1b[31m\xe2\x80\xa8 broken:\xff");
    QFile file(m_path); // The handler still has it: what was logged is there all the same.
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString line = QString::fromUtf8(file.readAll());
    const char expected[] =
        "[warning] l\xc3\xb6st\\r\\ntwo\tC:\\new \\u001b[31m\\u2028 broken:\xef\xbf\xbd\n";
    QCOMPARE(line.section(' ', 1), QString::fromUtf8(expected));
    const QDateTime time = QDateTime::fromString(line.section(' ', 0, 0), Qt::ISODateWithMs);
    QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTime())) < 60);
}

void tst_MTLogger::typesLeftOut_data()
{
    QTest::addColumn<bool>("diagnostics");
    QTest::addColumn<QString>("blackList");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << false << ""
                           << "info,Load Time,error";
    QTest::newRow("diagnostics") << true << ""
                                 << "debug,info,Load Time,error";
    QTest::newRow("both separators") << true << "debug, INFO ;load time;"
                                     << "error";
    QTest::newRow("separators alone") << false << " ,; ,"
                                      << "info,Load Time,error";
    QTest::newRow("part of a type") << false << "inf,error1"
                                    << "info,Load Time,error";
}

void tst_MTLogger::typesLeftOut()
{
    QFETCH(bool, diagnostics);
    QFETCH(QString, blackList);
    QFETCH(QString, expected);
    MTLogger::Log("debug", "kept"); // The handler decides on events before it as well.
    install(diagnostics, blackList.toStdString());
    for (const char* type : {"info", "Load Time", "error"})
        MTLogger::Log(type, "");
    QStringList types;
    for (const QString& event : eventsIn(m_path))
        types += event.section(']', 0, 0).mid(1);
    QCOMPARE(types.join(','), expected);
}

void tst_MTLogger::eventsBeforeTheHandlerAreKept()
{
    for (int i = 0; i < 1200; ++i)
        MTLogger::Log("info", std::to_string(i));
    install();
    QCOMPARE(eventsIn(m_path).size(), 1000);
    QCOMPARE(eventsIn(m_path).first(), QString("[info] 200"));
}

void tst_MTLogger::fullFileIsKeptOnce()
{
    const int limit = 5 * 1024 * 1024;
    const QString kept = m_path + ".1";
    QVERIFY(QFile(m_path).open(QIODevice::WriteOnly) && QFile::resize(m_path, limit + 1));
    install();
    MTLogger::Log("info", "begun anew");
    QCOMPARE(QFileInfo(kept).size(), qint64(limit + 1));
    QCOMPARE(eventsIn(m_path), QStringList("[info] begun anew"));
    MTLogger::Log("info", std::string(limit, 'x'));
    MTLogger::Log("info", "and again");
    QCOMPARE(eventsIn(kept).value(0), QString("[info] begun anew"));
    QCOMPARE(eventsIn(m_path), QStringList("[info] and again"));
}

void tst_MTLogger::threadsLoseNoEvents()
{
    std::atomic<int> running(4);
    std::vector<std::thread> threads;
    for (char letter : {'a', 'b', 'c', 'd'})
        threads.emplace_back([letter, &running] {
            for (int i = 0; i < 250; ++i)
                MTLogger::Log("info", std::string(100, letter));
            --running;
        });
    while (running > 0) {
        install();
        MTLogger::RemoveFileHandler();
    }
    for (std::thread& thread : threads)
        thread.join();
    install();
    QCOMPARE(eventsIn(m_path).filter(QRegExp("^\\[info\\] (a{100}|b{100}|c{100}|d{100})$")).size(), 1000);
}

void tst_MTLogger::unusableFileIsReported()
{
    QTemporaryFile output;
    QVERIFY(output.open());
    const int console = ::dup(STDOUT_FILENO);
    ::dup2(output.handle(), STDOUT_FILENO);
    MTLogger::InstallFileHandler(m_folder->path().toStdString(), false, "");
    MTLogger::Log("error", "goes nowhere");
    ::dup2(console, STDOUT_FILENO);
    ::close(console);
    QVERIFY(output.seek(0));
    const QString report = QString::fromUtf8(output.readAll());
    QVERIFY2(report.contains('"' + m_folder->path() + '"') && report.count('\n') == 1, qPrintable(report));
}

QTEST_GUILESS_MAIN(tst_MTLogger)
#include "tst_MTLogger.moc"
