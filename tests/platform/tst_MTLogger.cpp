#include "../support/Files.h"
#include "../support/Rows.h"

#include "platform/MTLogger.h"

/// What a user finds in the log file of an editor that runs without the viewer.
class tst_MTLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventIsOneLineUnlessItsTypeIsLeftOut_data()
    {
        const std::tuple<const char*, bool, QByteArray, QString> rows[] = {
            {"no diagnostics", false, "", "[info] [Load Time] "},
            {"diagnostics", true, "", "[Debug] [info] [Load Time] "},
            {"types left out", true, "debug, INFO ;load time;", ""},
            {"no such types", false, " ,; ,inf,error1", "[info] [Load Time] "}};
        addRows({"diagnostics", "blackList", "expected"}, rows);
    }

    void eventIsOneLineUnlessItsTypeIsLeftOut()
    {
        QFETCH(bool, diagnostics);
        QFETCH(QByteArray, blackList);
        QFETCH(QString, expected);
        const QTemporaryDir folder(QDir::tempPath() + QString::fromUtf8("/l\xc3\xb6g-XXXXXX"));
        QLocale::setDefault(QLocale("ar_EG")); // With digits of its own.
        const QString path = folder.filePath("log.txt");
        MTLogger::Log("Debug", ""); // Is kept until there is a file; the rules hold for it too.
        MTLogger::InstallFileHandler(path.toUtf8().constData(), diagnostics, blackList.constData());
        for (const char* type : {"info", "Load Time "})
            MTLogger::Log(type, "");
        MTLogger::Log("er\nror", "l\xc3\xb6st\r\ntwo\tC:\\new \x1b\xe2\x80\xa8\xe2\x80\xa9 cut:\xff");
        // The handler has the file open: events are written at once.
        const QString events = QString::fromUtf8(contentOf(path))
                                   .replace(QRegExp("(^|\n)([0-9-]{10}T[0-9:.]{12} |$)"), "")
                                   .trimmed();
        const char error[] =
            "[er\\nror] l\xc3\xb6st\\r\\ntwo\tC:\\new \\u001b\\u2028\\u2029 cut:\xef\xbf\xbd";
        QCOMPARE(events, expected + QString::fromUtf8(error));
        MTLogger::RemoveFileHandler();
    }

    void latestEventsAreKeptUntilThereIsAFile()
    {
        const QTemporaryDir folder;
        if (QProcess::execute("mkfifo", {folder.filePath("pipe")}) == 0) // Not on Windows. It gets no reader.
            MTLogger::InstallFileHandler(folder.filePath("pipe").toStdString(), false, "");
        for (const char* path : {"", "/gone/log.txt"}) // Neither can be opened.
            MTLogger::InstallFileHandler(folder.path().toStdString() + path, false, "");
        for (int event = 0; event <= 1000; ++event)
            MTLogger::Log("info", event == 0 ? "first" : "later");
        const QString log = folder.filePath("log.txt");
        store(log + ".1", "older");
        store(log, QByteArray(5 * 1024 * 1024 + 1, 'x')); // Too large to go on.
        for (int twice = 0; twice < 2; ++twice)
            MTLogger::InstallFileHandler(log.toStdString(), false, "");
        const QByteArray events = contentOf(log);
        QVERIFY(events.count("later") == 1000 && !events.contains("first") && !events.startsWith('x'));
        QVERIFY(contentOf(log + ".1").startsWith('x'));
        MTLogger::RemoveFileHandler();
        store(log, QByteArray(5 * 1024 * 1024, 'y')); // Just small enough.
        MTLogger::InstallFileHandler(log.toStdString(), false, "");
        MTLogger::Log("info", "last");
        MTLogger::RemoveFileHandler();
        const QByteArray more = contentOf(log);
        QVERIFY(more.startsWith('y') && more.trimmed().endsWith("[info] last"));
    }

    void logThatCannotBeOpenedIsTold()
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"latestEventsAreKeptUntilThereIsAFile"});
        QVERIFY(process.waitForFinished());
        const QByteArray output = process.readAllStandardOutput();
        QVERIFY2(output.contains("\" cannot be opened: it is not a file"), output);
        QVERIFY2(output.contains("/gone/log.txt\" cannot be opened: "), output);
    }
};

QTEST_GUILESS_MAIN(tst_MTLogger)
#include "tst_MTLogger.moc"
