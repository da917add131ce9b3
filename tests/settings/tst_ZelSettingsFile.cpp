#include "ZelSettingsFile.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using zel::ZelSettingsFile;

class tst_ZelSettingsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unusableFiles_data();
    void unusableFiles();
    void failedWriteIsTold();
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

QTEST_GUILESS_MAIN(tst_ZelSettingsFile)
#include "tst_ZelSettingsFile.moc"
