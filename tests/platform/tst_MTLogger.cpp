#include "platform/MTLogger.h"

#include <QtTest>

#include <atomic>
#include <thread>

/// Each test has a log file of its own, in a folder with a name beyond ASCII.
class tst_MTLogger : public QObject
{
    Q_OBJECT

private:
    void install(bool diagnostics = false, const char* blackList = "")
    {
        MTLogger::InstallFileHandler(m_path.toStdString(), diagnostics, blackList);
    }

    /// The lines of a log without their times.
    static QStringList eventsIn(const QString& path)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly | QIODevice::Text);
        QStringList events = QString::fromUtf8(file.readAll()).trimmed().split('\n');
        return events.replaceInStrings(QRegExp("^\\S+ "), "");
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        const QString name = QString::fromUtf8("/l\xc3\xb6g-\xe5\xb1\xb1-XXXXXX");
        m_folder.reset(new QTemporaryDir(QDir::tempPath() + name));
        QVERIFY(m_folder->isValid());
        m_path = m_folder->filePath("log.txt");
    }
    void cleanup() { MTLogger::RemoveFileHandler(); }

    void eventIsOneLine()
    {
        install();
        MTLogger::Log("warning", "l\xc3\xb6st\r\ntwo\tC:\\new \x1b[31m\xe2\x80\xa8 broken:\xff");
        const char expected[] =
            "[warning] l\xc3\xb6st\\r\\ntwo\tC:\\new \\u001b[31m\\u2028 broken:\xef\xbf\xbd";
        // The handler has the file open: events are written at once.
        QCOMPARE(eventsIn(m_path), QStringList(QString::fromUtf8(expected)));
    }

    void typesLeftOut()
    {
        const std::tuple<bool, const char*, QString> rows[] = {
            {false, "", "info,Load Time,error"},
            {true, "", "debug,info,Load Time,error"},
            {true, "debug, INFO ;load time;", "error"},
            {false, " ,; ,inf,error1", "info,Load Time,error"}};
        for (const auto& [diagnostics, blackList, expected] : rows) {
            init();
            MTLogger::Log("debug", "kept"); // The rules hold for earlier events too.
            install(diagnostics, blackList);
            for (const char* type : {"info", "Load Time", "error"})
                MTLogger::Log(type, "");
            cleanup();
            QCOMPARE(eventsIn(m_path).replaceInStrings(QRegExp("\\[(.*)\\].*"), "\\1").join(','), expected);
        }
    }

    void eventsBeforeTheHandlerAreKept()
    {
        for (int i = 0; i < 1200; ++i)
            MTLogger::Log("info", std::to_string(i));
        install();
        QCOMPARE(eventsIn(m_path).size(), 1000);
        QCOMPARE(eventsIn(m_path).first(), QString("[info] 200"));
    }

    void fullFileIsSetAside()
    {
        const int limit = 5 * 1024 * 1024;
        for (const int size : {limit + 2, limit + 1, limit}) {
            QVERIFY(QFile(m_path).open(QIODevice::WriteOnly) && QFile::resize(m_path, size));
            install();
            MTLogger::Log("info", "new");
            cleanup();
            QCOMPARE(QFileInfo(m_path + ".1").size(), qint64(qMax(size, limit + 1)));
            QCOMPARE(QFileInfo(m_path).size() < limit, size > limit);
        }
    }

    void threadsLoseNoEvents()
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
};

QTEST_GUILESS_MAIN(tst_MTLogger)
#include "tst_MTLogger.moc"
