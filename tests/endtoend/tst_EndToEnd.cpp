#include "Editor.h"

#include "platform/kqDMIApplication.h"

#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>

#include <pwd.h>
#include <unistd.h>

namespace {

const char* const Selector = "Torvane - Please select your display type";
const char* const Window = "Torvane - Control Center";
const char* const FatalError = "Torvane - Fatal Error";
const char* const Question = "Settings Modification";

// What the user does, and where that is in the layout of the windows.
const char* const ChooseLow = "mousemove --window %1 130 150 click 1";
const char* const ClickOk = "mousemove --window %1 440 224 click 1";
const char* const CloseSelector = "mousemove --window %1 489 28 click 1";
const char* const Minimize = "mousemove --window %1 749 15 click 1";
const char* const Close = "mousemove --window %1 785 15 click 1";
const char* const OpenFolders = "mousemove --window %1 50 117 click 1";
const QString TypeCacheSize = "mousemove --window %1 530 248 click 1 key ctrl+a type ";
const char* const Apply = "mousemove --window %1 184 265 click 1";

QString userName()
{
    return QString::fromUtf8(::getpwuid(::geteuid())->pw_name);
}

} // namespace

/// The staged executable as a user meets it, on a screen with a window manager, with mouse and keyboard.
class tst_EndToEnd : public QObject
{
    Q_OBJECT

public:
    explicit tst_EndToEnd(const Desktop& desktop)
        : m_desktop(desktop)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_home = m_temporary->path();
    }

    void firstStart_data()
    {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QString>("engine"); // Nothing when no choice is made.
        QTest::addColumn<QString>("folder");
        const auto row = [](const char* name, const QStringList& actions, const char* engine,
                            const char* folder = "") {
            QTest::newRow(name) << actions << QString(engine) << QString::fromUtf8(folder);
        };
        row("Enter", {"key Return"}, "deferred");
        row("Low", {ChooseLow, ClickOk}, "software");
        row("Escape", {ChooseLow, "key Escape"}, "");
        row("close button", {CloseSelector}, "");
        row("Unicode", {"key Return"}, "deferred",
            "/Gr\303\274\303\237e, \350\250\255\345\256\232 & \360\237\231\202");
    }

    void firstStart()
    {
        QFETCH(QStringList, actions);
        QFETCH(QString, engine);
        QFETCH(QString, folder);
        m_home += folder;
        Editor editor(m_desktop, m_home);
        editor.start();
        QVERIFY(editor.shows(Selector));
        for (const QString& action : actions)
            editor.act(action);
        const bool chosen = !engine.isEmpty();
        QCOMPARE(editor.exitCode(), chosen ? 1 : 0);
        QCOMPARE(stored(), chosen ? completed({"engine=" + engine}) : QStringList());
        QCOMPARE(QDir(m_home + "/cache/TorvaneBoundlessX64/" + userName()).exists(), chosen);
        QCOMPARE(QFile::exists(settingsFolder() + "/log.txt"), chosen);

        editor.start();
        QVERIFY(editor.shows(chosen ? Window : Selector));
    }

    void migration_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QStringList>("windows"); // Those that are shown, one after the other.
        QTest::addColumn<QStringList>("kept");    // Beside, or instead of, what a new file holds.
        const QStringList both = {Selector, Window};
        const auto file = [](const char* name, const QByteArray& before, const QStringList& windows,
                             const QStringList& kept) { QTest::newRow(name) << before << windows << kept; };
        file("version 1", "[General]\nengine=gl\nsettingsVersion=1\nlanguage=xx\n[Own]\nthing=\303\274\n",
             {Window}, {"language=xx", "Own/thing=\303\274"});
        file("no version", "[General]\nengine=software\nlanguage=fr\n[Own]\nthing=1\n",
             {"Torvane - Veuillez choisir .*", "Torvane - Centre de contr.*le"}, {"language=fr"});
        file("newer version", "[General]\nsettingsVersion=7\nengine=software\n[DBCache]\ncacheSize=77\n",
             {Window}, {"engine=software", "DBCache/cacheSize=77"});
        file("binary", QByteArray("\0\xFF[\xFE]\n=\x01\0=[[%\\x\n\"", 18).repeated(500), both,
             {"language=en"});
    }

    void migration()
    {
        QFETCH(QByteArray, before);
        QFETCH(QStringList, windows);
        QFETCH(QStringList, kept);
        store(before);
        Editor editor(m_desktop, m_home);
        editor.start();
        if (windows.size() > 1) {
            QVERIFY(editor.isAnswered(windows.first(), "key Return"));
            QCOMPARE(editor.exitCode(), 1);
            editor.start();
        }
        QVERIFY(editor.shows(windows.last()));
        QCOMPARE(stored(), completed(kept));
    }

    void fatalError_data()
    {
        QTest::addColumn<QString>("obstacle"); // A folder or a file below the home folder.
        QTest::addColumn<QString>("text");
        QTest::newRow("unusable settings")
            << "config/TorvaneBoundlessX64/Settings.ini/"
            << "Could not read the Torvane settings file "
               "\"%1/config/TorvaneBoundlessX64/Settings.ini\": it is not a file";
        QTest::newRow("no cache folder") << "cache"
                                         << "Could not use the 3D database cache, folder "
                                            "\"%1/cache/TorvaneBoundlessX64/%2\" could not be created";
    }

    void fatalError()
    {
        QFETCH(QString, obstacle);
        QFETCH(QString, text);
        QDir(m_home).mkpath(obstacle.section('/', 0, -2));
        const bool readable = QFile(m_home + '/' + obstacle).open(QIODevice::WriteOnly);
        Editor editor(m_desktop, m_home);
        editor.start();
        if (readable) {
            QVERIFY(editor.isAnswered(Selector, "key Return"));
        }
        QVERIFY(editor.shows(FatalError));
        editor.act("mousemove 0 0");
        const QImage box = editor.picture();
        editor.act("key Return");
        QCOMPARE(editor.exitCode(), 0);

        text.replace("%1", m_home).replace("%2", userName());
        QMessageBox expected(QMessageBox::Information, FatalError, text, QMessageBox::Ok);
        expected.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
        expected.show();
        QVERIFY(QTest::qWaitForWindowActive(&expected));
        QVERIFY2(m_desktop.picture(QString::number(expected.winId())) == box, "the box has another text");
    }

    void appliesAndDiscardsEdits()
    {
        Editor editor(m_desktop, m_home);
        QVERIFY(opensWindow(editor));
        const auto cacheSize = [this] { return stored().filter("cacheSize").join("").section('=', 1); };
        const QImage before = editor.picture();
        editor.act(OpenFolders);
        QTRY_VERIFY_WITH_TIMEOUT(editor.picture() != before, Patience);
        editor.act(TypeCacheSize + "512");
        editor.act(Close);
        QVERIFY(editor.isAnswered(Question, "key Escape"));
        QVERIFY(editor.shows(Window));
        editor.act(Apply);
        QTRY_COMPARE_WITH_TIMEOUT(cacheSize(), QString("512"), Patience);

        editor.act(TypeCacheSize + "1024");
        editor.act("key alt+F4");
        QVERIFY(editor.isAnswered(Question, "key Return"));
        QCOMPARE(editor.exitCode(), 0);
        QCOMPARE(cacheSize(), QString("512"));
    }

    void runsOnce()
    {
        // The second round meets what a killed instance leaves behind.
        for (int round = 0; round < 2; ++round) {
            Editor first(m_desktop, m_home);
            QVERIFY(opensWindow(first));
            first.act(Minimize);
            QTRY_VERIFY_WITH_TIMEOUT(first.has("WM_STATE", "Iconic"), Patience);

            QElapsedTimer clock;
            clock.start();
            Editor second(m_desktop, m_home);
            second.start({QString::fromUtf8("C:\\\346\244\205 \360\237\252\221.3d"), "", "--help?"});
            QCOMPARE(second.exitCode(), 0);
            QVERIFY2(clock.elapsed() < 5000, "the running instance does not answer");
            QVERIFY(first.shows(Window));
            QVERIFY(first.has("WM_STATE", "Normal"));
        }
    }

private:
    QString settingsFolder() const { return m_home + "/config/TorvaneBoundlessX64"; }
    QString settingsFile() const { return settingsFolder() + "/Settings.ini"; }

    void store(const QByteArray& text) const
    {
        QDir().mkpath(settingsFolder());
        QFile file(settingsFile());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QStringList stored() const
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        QStringList lines;
        for (const QString& key : settings.allKeys())
            lines << key + '=' + settings.value(key).toString();
        lines.sort();
        return lines;
    }

    /// What a new file holds, but for some values.
    QStringList completed(const QStringList& others) const
    {
        QStringList lines = {"DBCache/cacheDirectory=" + m_home + "/cache/TorvaneBoundlessX64/" + userName(),
                             "DBCache/cacheSize=4096",
                             "Logging/logFile=" + settingsFolder() + "/log.txt",
                             "debuglogtypeblacklist=",
                             "enablediag=false",
                             "engine=deferred",
                             "settingsVersion=2"};
        for (const QString& other : others)
            lines = lines.filter(QRegularExpression("^(?!" + other.section('=', 0, 0) + "=)")) << other;
        lines.sort();
        return lines;
    }

    /// Starts the editor on a known renderer and waits until its drawer has opened.
    bool opensWindow(Editor& editor) const
    {
        store("[General]\nsettingsVersion=2\nengine=deferred\n");
        editor.start();
        return editor.shows(Window) && !editor.picture().isNull();
    }

    const Desktop& m_desktop;
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_home;
};

int main(int argc, char** argv)
{
    return runOnDesktop<tst_EndToEnd>(argc, argv);
}

#include "tst_EndToEnd.moc"
