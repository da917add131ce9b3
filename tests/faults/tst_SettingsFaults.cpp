#include "Announcement.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "UnfinishedWrite.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace zel;

namespace {

typedef std::function<bool(const QString& path)> Operation;

#if defined(__SANITIZE_ADDRESS__)
const int Kills = 60;
#else
const int Kills = 1000;
#endif
const int UndisturbedRounds = 5;
const int Patience = 5000; // ms; a lock that is taken for a living one blocks for 30 s.
const char* const ForeignGroup = "[Foreign]\nemoji=\360\237\231\202\nlist=a, b\n";
const char* const OtherGroup = "[%E6%97%A5]\nkey%20=\303\274\n";
const QByteArray Foreign = QByteArray(ForeignGroup) + '\n' + OtherGroup;

bool holdsForeign(const QByteArray& content)
{
    return content.contains(ForeignGroup) && content.contains(OtherGroup);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void store(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/// Makes the file an hour old, so that nobody waits for the clock to go on.
void makeOld(const QString& path)
{
    std::filesystem::last_write_time(path.toStdString(),
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
}

pid_t startChild(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        announceInLogOnly();
        ::_exit(work() ? 0 : 1);
    }
    return child;
}

bool succeeds(pid_t child)
{
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool change(const QString& path, const QVariantMap& values, QString& error)
{
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    for (const QString& key : values.keys())
        settings.setValue(key, values[key]);
    return ZelSettingsFile::Sync(settings, error);
}

bool apply(const QString& path)
{
    QString error;
    return change(path, {{"engine", "software"}, {"DBCache/cacheSize", 512}, {"new/key", "text"}}, error);
}

bool validate(const QString& path)
{
    QString error;
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    return ZelSettingsFile::PrepareWriting(path, error) &&
           ZelSettingsRegistry::EnsureSettings(settings, error) && ZelSettingsFile::Sync(settings, error);
}

bool migrate(const QString& path)
{
    QString error;
    return migrateSettings(path, "fr", error);
}

} // namespace

Q_DECLARE_METATYPE(Operation)

/// What is left of the settings file after a fault that really happens.
class tst_SettingsFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void killedAtAnyMoment_data();
    void killedAtAnyMoment();
    void lockOfNobody();
    void killedWhileRewritingInPlace();
    void writersAtTheSameTime();
    void fullDisk();
    void folderWithoutWritePermission();
    void replacedOrVanished();
    void linkStaysALink();
    void copyOfWhatIsGivenUp_data();
    void copyOfWhatIsGivenUp();
    void lastThreeCopies();

private:
    QStringList copies() const
    {
        return QDir(m_folder->path()).entryList({"Settings.ini.2*.bak"}, QDir::Files);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void tst_SettingsFaults::initTestCase()
{
    ZelSettingsRegistry::RegisterSetting("DBCache/cacheSize", "4096",
                                         &ZelSettingsValidators::ensureCacheSize);
    ZelSettingsRegistry::RegisterSetting("settingsVersion", "2",
                                         &ZelSettingsValidators::ensureSettingsVersion);
    std::srand(unsigned(::getpid()));
}

void tst_SettingsFaults::init()
{
    // In memory where there is such a disk: fast, and many writes fall into one tick of the clock.
    m_folder = std::make_unique<QTemporaryDir>((QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) +
                                               "/tst_SettingsFaults-XXXXXX");
    m_path = m_folder->filePath("Settings.ini");
}

void tst_SettingsFaults::killedAtAnyMoment_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("general");
    QTest::newRow("Apply") << Operation(&apply) << QByteArray("[General]\nsettingsVersion=2\n\n");
    QTest::newRow("validation pass") << Operation(&validate) << QByteArray("[DBCache]\ncacheSize=1\n\n");
    QTest::newRow("migration") << Operation(&migrate) << QByteArray("[General]\nsettingsVersion=1\n\n");
    QTest::newRow("too old") << Operation(&migrate) << QByteArray("[General]\nengine=software\n\n");
}

void tst_SettingsFaults::killedAtAnyMoment()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, general);
    const QByteArray before = general + Foreign;
    QByteArray after;
    qint64 duration = Patience; // Microseconds of an operation that nobody disturbs.
    int unchanged = 0, changed = 0, locked = 0;
    for (int round = 0; round < UndisturbedRounds + Kills / 4; ++round) {
        init();
        store(m_path, before);
        makeOld(m_path);
        QElapsedTimer clock;
        clock.start();
        const pid_t child = startChild([&] { return operation(m_path); });
        if (round < UndisturbedRounds) {
            QVERIFY(succeeds(child));
            duration = std::min(duration, clock.nsecsElapsed() / 1000);
            after = contentOf(m_path);
            QVERIFY(after != before);
            continue;
        }
        ::usleep(useconds_t(std::rand() % (duration * 3 / 2)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);

        const QByteArray left = contentOf(m_path);
        QVERIFY2(left == before || left == after, left.constData());
        (left == before ? unchanged : changed) += 1;
        locked += QFile::exists(m_path + ".lock") ? 1 : 0;
        QVERIFY(holdsForeign(after) || left == before ||
                contentOf(m_folder->filePath(copies().value(0))) == before);

        makeOld(m_path);
        clock.restart();
        QVERIFY(succeeds(startChild([&] { return operation(m_path); })));
        QVERIFY2(clock.elapsed() < Patience, "the next writer is blocked");
        QCOMPARE(contentOf(m_path), after);
    }
    qInfo("%d unchanged, %d changed, %d with a lock left", unchanged, changed, locked);
    // Else the moments are not those that matter; a few rounds may miss them.
    QVERIFY(Kills < 1000 || (unchanged > 0 && changed > 0 && locked > 0));
}

void tst_SettingsFaults::lockOfNobody()
{
    store(m_path, Foreign);
    store(m_path + ".lock", "");
    QElapsedTimer clock;
    clock.start();
    QVERIFY(apply(m_path));
    QVERIFY(clock.elapsed() < Patience);
    QVERIFY(contentOf(m_path).contains("cacheSize=512"));
}

void tst_SettingsFaults::killedWhileRewritingInPlace()
{
    store(m_path, Foreign);
    const pid_t child = startChild([this] {
        QString error;
        UnfinishedWrite::begin(m_path, error);
        store(m_path, "[Fore");
        ::raise(SIGKILL);
        return false;
    });
    QVERIFY(!succeeds(child));
    QCOMPARE(contentOf(m_path), QByteArray("[Fore"));
    UnfinishedWrite::recover(m_path);
    QCOMPARE(contentOf(m_path), Foreign);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("Settings.ini"));

    QString error;
    QVERIFY(UnfinishedWrite::begin(m_path, error));
    store(m_path, "[Fore");
    UnfinishedWrite::end(m_path, false);
    QCOMPARE(contentOf(m_path), Foreign);

    // A program that knows nothing of the copy has written the file since.
    QVERIFY(UnfinishedWrite::begin(m_path, error));
    makeOld(m_path + ".unfinished");
    store(m_path, "[General]\n");
    UnfinishedWrite::recover(m_path);
    QCOMPARE(contentOf(m_path), QByteArray("[General]\n"));
    QVERIFY(!QFile::exists(m_path + ".unfinished"));
}

void tst_SettingsFaults::writersAtTheSameTime()
{
    store(m_path, Foreign);
    const int writers = 3, writes = Kills / 10;
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        children.push_back(startChild([this, writer] {
            std::srand(unsigned(writer));
            QSettings settings(m_path, QSettings::IniFormat);
            ZelSettingsFile::UseFileEncoding(settings);
            const QString key = QString("writer%1/key%2").arg(writer);
            QString error;
            for (int i = 100; i < 100 + writes; ++i) {
                settings.setValue(key.arg(i % 3), i);
                if (!ZelSettingsFile::Sync(settings, error))
                    return false;
                ::usleep(useconds_t(std::rand() % 3000));
                // The others may write, but not over this one's values.
                const QByteArray content = contentOf(m_path);
                for (int j = std::max(100, i - 2); j <= i; ++j) {
                    if (!content.contains(QString("key%1=%2\n").arg(j % 3).arg(j).toUtf8()))
                        return false;
                }
            }
            return true;
        }));
    }
    for (const pid_t child : children)
        QVERIFY(succeeds(child));
    QSettings settings(m_path, QSettings::IniFormat);
    for (int writer = 0; writer < writers; ++writer)
        QCOMPARE(settings.value(QString("writer%1/key%2").arg(writer).arg((99 + writes) % 3)).toInt(),
                 99 + writes);
    QVERIFY(holdsForeign(contentOf(m_path)));
}

void tst_SettingsFaults::fullDisk()
{
    // In a mount namespace of its own, so that nothing is left mounted.
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", m_folder->path().toUtf8().constData(), "tmpfs", 0, "size=64k") != 0)
        QSKIP("not allowed to mount a small disk");
    for (const QByteArray& content : {Foreign, QByteArray("no settings\n") + Foreign}) {
        store(m_path, content);
        QFile filler(m_folder->filePath("filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096)
            continue;
        QSettings settings(m_path, QSettings::IniFormat);
        ZelSettingsFile::UseFileEncoding(settings);
        QString error;
        if (content == Foreign)
            settings.setValue("new/key", "text");
        QVERIFY(!(content == Foreign ? ZelSettingsFile::Sync(settings, error)
                                     : ZelSettingsFile::PrepareWriting(m_path, error)));
        QVERIFY2(error.contains(m_path) && error.contains("No space left"), qPrintable(error));
        QCOMPARE(contentOf(m_path), content);
        QVERIFY(copies().isEmpty());

        // As soon as there is room the change is written, and nobody complains of the past any more.
        QVERIFY(filler.remove());
        settings.setValue("new/key", "text");
        QVERIFY2(ZelSettingsFile::Sync(settings, error), qPrintable(error));
        QVERIFY(holdsForeign(contentOf(m_path)) && contentOf(m_path).contains("[new]\nkey=text\n"));
    }
    ::umount(m_folder->path().toUtf8().constData());
}

void tst_SettingsFaults::folderWithoutWritePermission()
{
    store(m_path, Foreign);
    ::chmod(m_path.toUtf8().constData(), 0666);
    ::chmod(m_folder->path().toUtf8().constData(), 0555);
    const bool told = succeeds(startChild([this] {
        // Permissions do not bind the administrator.
        if (::geteuid() == 0 &&
            (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0))
            return false;
        QString error;
        return !change(m_path, {{"key", "value"}}, error) && error.contains(m_path) &&
               error.contains("Permission denied");
    }));
    ::chmod(m_folder->path().toUtf8().constData(), 0755);
    QVERIFY(told);
    QCOMPARE(contentOf(m_path), Foreign);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("Settings.ini"));
}

void tst_SettingsFaults::replacedOrVanished()
{
    const QString folder = m_folder->filePath("sub");
    m_path = folder + "/Settings.ini";
    QVERIFY(QDir().mkpath(folder));
    store(m_path, Foreign);
    QSettings settings(m_path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    QString error;

    QVERIFY(QFile::remove(m_path) && QDir().mkpath(m_path));
    settings.setValue("key", "value");
    QVERIFY(!ZelSettingsFile::Sync(settings, error));
    QVERIFY2(error.contains(m_path), qPrintable(error));
    QVERIFY(QFileInfo(m_path).isDir());

    // What is gone comes back with everything, not only with the change.
    QVERIFY(QDir(folder).removeRecursively());
    QVERIFY2(ZelSettingsFile::Sync(settings, error), qPrintable(error));
    QVERIFY(contentOf(m_path).startsWith("[General]\nkey=value\n\n"));
    QVERIFY2(holdsForeign(contentOf(m_path)), contentOf(m_path).constData());
}

void tst_SettingsFaults::linkStaysALink()
{
    const QString target = m_folder->filePath("elsewhere/target.ini");
    QVERIFY(QDir(m_folder->path()).mkdir("elsewhere"));
    store(target, "no settings\n");
    QVERIFY(QFile::link("elsewhere/target.ini", m_path));
    for (const Operation& operation : {Operation(&migrate), Operation(&apply), Operation(&validate)}) {
        const QByteArray before = contentOf(target);
        QVERIFY(operation(m_path));
        QCOMPARE(QFile::symLinkTarget(m_path), target);
        QVERIFY(contentOf(target) != before);
    }
    QCOMPARE(copies().size(), 1);
    QCOMPARE(QDir(m_folder->filePath("elsewhere")).entryList(QDir::Files), QStringList("target.ini"));
}

void tst_SettingsFaults::copyOfWhatIsGivenUp_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("kept");
    const QByteArray version2("[General]\nsettingsVersion=2\n");
    QTest::newRow("parse error") << Operation(&validate) << version2 + "no settings\n" << true;
    QTest::newRow("parse error, Apply") << Operation(&apply) << version2 + "[open\n" << true;
    QTest::newRow("parse error, migration")
        << Operation(&migrate) << QByteArray("settingsVersion=1\nx\n") << true;
    QTest::newRow("zero bytes") << Operation(&validate) << version2 + "key=a" + QByteArray(9, '\0') << true;
    QTest::newRow("nothing but zero bytes") << Operation(&migrate) << QByteArray(4096, '\0') << true;
    QTest::newRow("other encoding") << Operation(&validate) << version2 + "key=\374\n" << true;
    QTest::newRow("too old") << Operation(&migrate) << QByteArray("[General]\nengine=software\n") << true;
    QTest::newRow("old but kept") << Operation(&migrate) << QByteArray("[General]\nsettingsVersion=1\n")
                                  << false;
    QTest::newRow("invalid value") << Operation(&validate) << QByteArray("[DBCache]\ncacheSize=1\n") << false;
    QTest::newRow("empty") << Operation(&migrate) << QByteArray("") << false;
}

void tst_SettingsFaults::copyOfWhatIsGivenUp()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, content);
    QFETCH(bool, kept);
    store(m_path, content);
    QVERIFY(operation(m_path));
    QVERIFY(contentOf(m_path) != content);
    QCOMPARE(copies().size(), kept ? 1 : 0);
    if (kept)
        QCOMPARE(contentOf(m_folder->filePath(copies().first())), content);
    QVERIFY(validate(m_path));
    QCOMPARE(copies().size(), kept ? 1 : 0);
}

void tst_SettingsFaults::lastThreeCopies()
{
    store(m_path + ".my own.bak", "mine");
    QList<QByteArray> contents;
    for (int i = 0; i < 5; ++i) {
        contents += "damage " + QByteArray::number(i);
        // The second time it is kept already.
        for (int twice = 0; twice < 2; ++twice) {
            store(m_path, contents.last());
            QVERIFY(apply(m_path));
        }
    }
    QCOMPARE(copies().size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(contentOf(m_folder->filePath(copies()[i])), contents[i + 2]);
    QCOMPARE(contentOf(m_path + ".my own.bak"), QByteArray("mine"));
}

QTEST_GUILESS_MAIN(tst_SettingsFaults)
#include "tst_SettingsFaults.moc"
