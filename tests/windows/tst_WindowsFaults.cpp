#include "../support/Files.h"
#include "SettingsKeys.h"
#include "ZelSettingsFile.h"

#include <memory>
#include <random>
#include <windows.h>

using namespace zel;

namespace {

const QByteArray Before = "[General]\nengine=deferred\nsettingsVersion=2\n\n[Foreign]\nthing=\xc3\xbc\n";
const int Patience = 60000; // ms

const auto with = [](const char* engine) { return QByteArray(Before).replace("deferred", engine); };

bool write(QSettings& settings, const QString& engine, QString& error)
{
    const auto change = [&](QSettings& changed, QString&) {
        changed.setValue(keys::Engine, engine);
        return true;
    };
    return ZelSettingsFile::Write(settings, change, error);
}

/// What the other process does: "hold <path> <sharing> <milliseconds>", or "write <path>" until it is killed.
int beAnother(const QStringList& arguments)
{
    const QString path = arguments[1];
    if (arguments[0] == "write") {
        const auto settings = ZelSettingsFile::Open(path);
        QString error;
        while (write(*settings, "software", error) && write(*settings, "deferred", error))
            ;
        return 1;
    }
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ,
                                    arguments[2].toUInt(), nullptr, OPEN_EXISTING, 0, nullptr);
    puts(file == INVALID_HANDLE_VALUE ? "not held" : "held");
    fflush(stdout);
    QTest::qSleep(arguments[3].toInt());
    return CloseHandle(file) ? 0 : 1;
}

} // namespace

/// What Windows does to a settings file, with other processes that do it.
class tst_WindowsFaults : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QProcess> another(const QStringList& arguments) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(ForwardedErrors);
        process->start(QCoreApplication::applicationFilePath(), arguments);
        return process;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir(QDir::tempPath() + QString::fromUtf8("/\xe5\xb1\xb1 XXXXXX")));
        m_path = m_folder->filePath("Settings.ini");
        store(m_path, Before);
    }

    void waitsForAHeldFile()
    {
        // What the holder shares, how long (ms), and whether the file is written.
        const std::tuple<int, int, bool> rows[] = {
            {FILE_SHARE_READ, 200, true}, {FILE_SHARE_READ, 8000, false}, {0, 200, true}, {0, 8000, false}};
        for (const auto& [sharing, time, written] : rows) {
            init();
            const auto settings = ZelSettingsFile::Open(m_path);
            QCOMPARE(settings->value(keys::Engine).toString(), QString("deferred"));
            const auto holder = another({"hold", m_path, QString::number(sharing), QString::number(time)});
            QVERIFY(holder->waitForReadyRead(Patience));
            QCOMPARE(holder->readAll().trimmed(), QByteArray("held"));

            QElapsedTimer clock;
            clock.start();
            QString error;
            QCOMPARE(write(*settings, "software", error), written);
            QVERIFY2(clock.elapsed() < 5000, "it waits longer than a second");
            QCOMPARE(bool(error.contains(m_path)), !written);
            QVERIFY(holder->waitForFinished(Patience));
            QCOMPARE(contentOf(m_path), written ? with("software") : Before);
            QCOMPARE(settings->value(keys::Engine).toString(), QString(written ? "software" : "deferred"));
            // Nothing is left for later.
            QCoreApplication::processEvents();
            settings->sync();
            QCOMPARE(contentOf(m_path), written ? with("software") : Before);
        }
    }

    void heldLockIsTold()
    {
        const QString lock = m_path + ".lock";
        store(lock, "1\n");
        const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(lock.utf16()), GENERIC_WRITE, 0,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        const FILETIME longAgo = {0, 1 << 24};
        QVERIFY(SetFileTime(file, nullptr, nullptr, &longAgo) && CloseHandle(file));
        const auto holder = another({"hold", lock, QString::number(FILE_SHARE_READ), "8000"});
        QVERIFY(holder->waitForReadyRead(Patience));
        QElapsedTimer clock;
        clock.start();
        QString error;
        QVERIFY(!write(*ZelSettingsFile::Open(m_path), "software", error) && error.contains(m_path));
        QVERIFY2(clock.elapsed() < 5000, "it waits for a lock that is not released");
        holder->kill();
        QVERIFY(holder->waitForFinished(Patience));
    }

    void readOnlyPlacesStay()
    {
        const auto name = reinterpret_cast<const wchar_t*>(m_path.utf16());
        QVERIFY(SetFileAttributesW(name, FILE_ATTRIBUTE_READONLY));
        const auto settings = ZelSettingsFile::Open(m_path);
        QString error;
        QVERIFY(!write(*settings, "software", error));
        QVERIFY2(error.contains(m_path), qPrintable(error));
        QCOMPARE(contentOf(m_path), Before);
        QElapsedTimer clock;
        clock.start();
        for (int round = 0; round < 10; ++round) {
            for (const char* place : {"Q:Settings.ini", "Q:/a/Settings.ini"})
                QVERIFY2(!ZelSettingsFile::IsWritable(place, error) && error.contains(place), place);
        }
        QVERIFY2(clock.elapsed() < 5000, "it waits for a drive that does not exist");
        QVERIFY(ZelSettingsFile::IsWritable(m_folder->path() + "/new/new/Settings.ini", error));
        SetFileAttributesW(name, FILE_ATTRIBUTE_NORMAL);
        QVERIFY2(write(*settings, "software", error), qPrintable(error));
        QCOMPARE(contentOf(m_path), with("software"));
    }

    void killedWriterLeavesAWholeFile()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 40; ++round) {
            const auto writer = another({"write", m_path});
            QVERIFY(writer->waitForStarted(Patience));
            const QDateTime before = writtenAt();
            QTRY_VERIFY_WITH_TIMEOUT(writtenAt() > before, Patience); // By now it writes.
            QTest::qSleep(std::uniform_int_distribution<int>(1, 20)(random));
            writer->kill();
            QVERIFY(writer->waitForFinished(Patience));
            const QByteArray content = contentOf(m_path);
            QVERIFY2(content == Before || content == with("software"), content);

            QElapsedTimer clock;
            clock.start();
            QString error;
            QVERIFY2(write(*ZelSettingsFile::Open(m_path), "gl", error), qPrintable(error));
            QVERIFY2(clock.elapsed() < 5000, "the lock of a killed process holds others up");
            QCOMPARE(contentOf(m_path), with("gl"));
        }
    }

private:
    QDateTime writtenAt() const { return QFileInfo(m_path).lastModified(); }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (QStringList({"hold", "write"}).contains(arguments.value(0)))
        return beAnother(arguments);
    tst_WindowsFaults test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_WindowsFaults.moc"
