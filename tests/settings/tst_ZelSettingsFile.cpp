#include "ZelSettingsFile.h"

#include "platform/MTLogger.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using zel::ZelSettingsFile;

class tst_ZelSettingsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFiles_data();
    void unusableFiles();
    void failedWriteIsTold();
    void everyCharacterIsKept_data();
    void everyCharacterIsKept();
    void keptCopyIsNamed();
};

void tst_ZelSettingsFile::unusableFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("usable");
    QTest::newRow("missing") << "missing" << true;
    QTest::newRow("empty") << "empty" << true;
    QTest::newRow("binary") << "binary" << true;
    QTest::newRow("folder") << "folder" << false;
    QTest::newRow("pipe that nobody writes to") << "pipe" << false;
    QTest::newRow("gigabytes") << "huge" << false;
}

void tst_ZelSettingsFile::unusableFiles()
{
    QFETCH(QString, kind);
    QFETCH(bool, usable);
    QTemporaryDir folder;
    const QString path = folder.filePath("Settings.ini");
    QFile file(path);
    if (kind == "folder")
        QVERIFY(QDir(folder.path()).mkdir("Settings.ini"));
    else if (kind == "pipe")
        QVERIFY(mkfifo(QFile::encodeName(path).constData(), 0600) == 0);
    else if (kind != "missing") {
        QVERIFY(file.open(QIODevice::WriteOnly));
        if (kind == "binary")
            file.write(QByteArray(4096, '\xff') + QByteArray(4096, '\0'));
        if (kind == "huge")
            QVERIFY(file.resize(qint64(4) * 1024 * 1024 * 1024));
        file.close();
    }

    QString error;
    QCOMPARE(ZelSettingsFile::IsUsable(path, error), usable);
    QCOMPARE(error.contains(path), !usable);
    if (!usable)
        return;
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    settings.setValue("group/key", "value");
    QVERIFY2(ZelSettingsFile::Sync(settings, error), qPrintable(error));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("[group]\nkey=value\n"));
}

void tst_ZelSettingsFile::failedWriteIsTold()
{
    // A folder that does not exist and cannot be made, because its name is that of a file.
    QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString path = folder.filePath("file/Settings.ini");
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue("key", "value");
    QString error;
    QVERIFY(!ZelSettingsFile::Sync(settings, error));
    QVERIFY2(error.contains(path), qPrintable(error));
}

void tst_ZelSettingsFile::everyCharacterIsKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("umlaut") << QString::fromUtf8("\303\274");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("a\360\237\231\202\360\240\256\267f");
    QTest::newRow("quoted") << QString::fromUtf8(" \360\237\231\202, \"\303\274\"; \n\t\\=");
}

void tst_ZelSettingsFile::everyCharacterIsKept()
{
    QFETCH(QString, text);
    QTemporaryDir folder;
    QSettings settings(folder.filePath("Settings.ini"), QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    settings.setValue("key", text);
    settings.setValue("list", QStringList({text, text}));
    QString error;
    QVERIFY(ZelSettingsFile::Sync(settings, error));

    // Under another name, as the toolkit remembers files, and by the toolkit's own means.
    QVERIFY(QFile::copy(settings.fileName(), folder.filePath("copy.ini")));
    QSettings copy(folder.filePath("copy.ini"), QSettings::IniFormat);
    copy.setIniCodec("UTF-8");
    QCOMPARE(copy.value("key").toString(), text);
    QCOMPARE(copy.value("list").toStringList(), QStringList({text, text}));
}

void tst_ZelSettingsFile::keptCopyIsNamed()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("Settings.ini");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no settings\n") > 0);
    file.close();
    QFile output(folder.filePath("stdout"));
    QVERIFY(output.open(QIODevice::ReadWrite));
    MTLogger::InstallFileHandler(folder.filePath("log.txt").toStdString(), false, "");
    std::fflush(stdout);
    const int terminal = ::dup(STDOUT_FILENO);
    ::dup2(output.handle(), STDOUT_FILENO);
    QString error;
    const bool prepared = ZelSettingsFile::PrepareWriting(path, error);
    ::dup2(terminal, STDOUT_FILENO);
    ::close(terminal);
    MTLogger::RemoveFileHandler();

    QVERIFY(prepared);
    const QStringList copies = QDir(folder.path()).entryList({"Settings.ini.*.bak"}, QDir::Files);
    QCOMPARE(copies.size(), 1);
    QFile log(folder.filePath("log.txt"));
    QVERIFY(log.open(QIODevice::ReadOnly) && output.seek(0));
    for (const QByteArray& told : {log.readAll(), output.readAll()}) {
        QVERIFY(told.contains(path.toUtf8()));
        QVERIFY(told.contains(copies.first().toUtf8()));
    }
}

QTEST_GUILESS_MAIN(tst_ZelSettingsFile)
#include "tst_ZelSettingsFile.moc"
