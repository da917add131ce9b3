#include "platform/ZelDirectory.h"
#include "platform/kqDirUtils.h"
#include "platform/kqSystemUtils.h"

#include <QtTest>

class tst_Directories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void userFolders_data();
    void userFolders();
    void accountKnowsWhatTheEnvironmentDoesNot();
};

void tst_Directories::userFolders_data()
{
    QTest::addColumn<QByteArray>("value");  // Null: not set.
    QTest::addColumn<QByteArray>("folder"); // Null: below the home folder.
    QTest::newRow("unset") << QByteArray() << QByteArray();
    QTest::newRow("empty") << QByteArray("") << QByteArray();
    QTest::newRow("absolute") << QByteArray("/data/of me") << QByteArray("/data/of me");
    QTest::newRow("slashes at the end") << QByteArray("/data//") << QByteArray("/data");
    QTest::newRow("relative") << QByteArray("data") << QByteArray();
    QTest::newRow("not expanded") << QByteArray("~/data") << QByteArray();
    QTest::newRow("beyond ASCII") << QByteArray("/d\xc3\xa4ta/\xe5\xb1\xb1")
                                  << QByteArray("/d\xc3\xa4ta/\xe5\xb1\xb1");
}

void tst_Directories::userFolders()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, folder);
    qputenv("HOME", "/home/\xe5\xb1\xb1/");
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
    const QByteArray settings = folder.isNull() ? QByteArray("/home/\xe5\xb1\xb1/.config") : folder;
    const QByteArray cache = folder.isNull() ? QByteArray("/home/\xe5\xb1\xb1/.cache") : folder;
    QCOMPARE(QByteArray::fromStdString(kqDirUtils::GetAppDataFolderUtf8()), settings);
    QCOMPARE(QByteArray::fromStdString(ZelDirectory::GetTempFolderUtf8("\xc3\x84pp")), cache + "/\xc3\x84pp");
}

void tst_Directories::accountKnowsWhatTheEnvironmentDoesNot()
{
    for (const char* variable : {"HOME", "USER", "LOGNAME", "XDG_CONFIG_HOME"})
        qputenv(variable, "somebody-else");
    QProcess shell;
    shell.start("sh", {"-c", "name=$(id -un); eval \"echo $name ~$name/.config\""});
    QVERIFY(shell.waitForFinished());
    const std::string facts =
        kqSystemUtils::GetCurrentUserNameUtf8() + ' ' + kqDirUtils::GetAppDataFolderUtf8();
    QCOMPARE(QByteArray::fromStdString(facts), shell.readAll().trimmed());
}

QTEST_APPLESS_MAIN(tst_Directories)
#include "tst_Directories.moc"
