#include "../support/Files.h"
#include "Editor.h"
#include "ZelPageDefaults.h"
#include "ZelSettingsRegistry.h"

#include <pwd.h>
#include <unistd.h>

namespace {

const char* const Selector = "Torvane - Please select your display type";
const char* const Window = "Torvane - Control Center";
const char* const Question = "Settings Modification";

// What the user does, in the words of xdotool.
const char* const ChooseLowAndCancel = "mousemove --window %1 130 150 click 1 key Escape";
const char* const ChooseLowAndOk =
    "mousemove --window %1 130 150 click 1 mousemove --window %1 440 224 click 1";
const char* const CloseSelector = "mousemove --window %1 489 28 click 1";
const char* const Minimize = "mousemove --window %1 734 15 click 1";
const char* const Close = "mousemove --window %1 782 15 click 1";
const char* const OpenFolders = "mousemove --window %1 50 117 click 1";
const QString TypeCacheSize = "mousemove --window %1 530 325 click 1 key ctrl+a type ";
const char* const Apply = "mousemove --window %1 184 265 click 1";
const char* const ChooseLowMode = "mousemove --window %1 275 183 click 1";

const char* const Version1 = "[General]\nengine=gl\nsettingsVersion=1\nlanguage=xx\n[Own]\nthing=\303\274\n";
const QString Umlaut = QString::fromUtf8("\303\274");
const char* const NoVersion = "[General]\nengine=software\nlanguage=fr\n[Own]\nthing=1\n";
const char* const Newer =
    "[General]\nsettingsVersion=7\nengine=software\ndebuglogtypeblacklist=info\n[DBCache]\ncacheSize=77\n";
const QByteArray Binary = QByteArray("\0\xFF[\xFE]\n=\x01\0=[[%\\x\n\"", 18).repeated(500);
const char* const FrenchSelector = "Torvane - Veuillez choisir .*";
const char* const FrenchWindow = "Torvane - Centre de contr.*le";

using Texts = std::map<QString, QString>;
const Texts NewerTexts = {
    {"engine", "software"}, {"DBCache/cacheSize", "77"}, {"debuglogtypeblacklist", "info"}};

const struct Start
{
    const char* name;
    QByteArray before; ///< The settings file; none when empty.
    QString selector;  ///< The window in which a first start asks, if it does.
    QString action;    ///< What the user does there.
    QString window;    ///< The next one that is shown.
    Texts kept;        ///< Beside, or instead of, what a new file holds.
} Starts[] = {
    {"Enter", "", Selector, "key Return", Window, {{"engine", "deferred"}}},
    {"Low", "", Selector, ChooseLowAndOk, Window, {{"engine", "software"}}},
    {"Escape", "", Selector, ChooseLowAndCancel, Selector, {}},
    {"close button", "", Selector, CloseSelector, Selector, {}},
    {"version 1", Version1, "", "", Window, {{"language", "xx"}, {"Own/thing", Umlaut}}},
    {"no version", NoVersion, FrenchSelector, "key Return", FrenchWindow, {{"language", "fr"}}},
    {"newer version", Newer, "", "", Window, NewerTexts},
    {"unknown language", "[General]\nlanguage=xx\n", Selector, "key Return", Window, {{"language", "en"}}},
    {"binary", Binary, Selector, "key Return", Window, {{"language", "en"}}},
};

const auto userName = [] { return QString::fromUtf8(::getpwuid(::geteuid())->pw_name); };

} // namespace

/// The staged executable as a user meets it, on a screen with a window manager, with mouse and keyboard.
class tst_EndToEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_home = m_temporary->path() +
                 QString::fromUtf8("/Gr\303\274\303\237e, \350\250\255\345\256\232 & <b>\360\237\231\202");
    }

    void starts()
    {
        for (const Start& start : Starts) {
            starts(start);
            if (QTest::currentTestFailed())
                QFAIL(start.name);
        }
    }

    void appliesAndDiscardsEdits()
    {
        Editor editor(m_home);
        QVERIFY(opensWindow(editor));
        const QImage before = editor.picture();
        editor.act(OpenFolders);
        QTRY_VERIFY_WITH_TIMEOUT(editor.picture() != before, Patience);
        editor.act(TypeCacheSize + "512");
        editor.act(Close);
        QVERIFY(editor.isAnswered(Question, "key Escape") && editor.shows(Window));
        editor.act(Apply);
        QTRY_COMPARE_WITH_TIMEOUT(stored()["DBCache/cacheSize"], QString("512"), Patience);

        editor.act(TypeCacheSize + "1024");
        editor.act("key ctrl+q");
        QVERIFY(editor.shows(Question) && !editor.picture().isNull());
        editor.act("key Tab Return");
        QCOMPARE(editor.exitCode(), 0);
        QCOMPARE(stored()["DBCache/cacheSize"], QString("512"));
        const QByteArray output = editor.output(); // X may report windows that are gone.
        QVERIFY(output.contains("Ratio changed") && !output.contains("QCssParser"));
    }

    void outlivesItsOutput()
    {
        // Closed standard streams, and a reader that is gone when the first line comes.
        for (const char* redirection : {"<&- >&- 2>&-", "> >(true)"}) {
            init();
            Editor editor(m_home);
            QVERIFY2(opensWindow(editor, redirection), redirection);
            editor.act(ChooseLowMode);
            editor.act(Apply);
            QTRY_VERIFY_WITH_TIMEOUT(stored()["engine"] == "software", Patience);
            editor.act("key alt+F4");
            QCOMPARE(editor.exitCode(), 0);
        }
    }

    void runsOnce()
    {
        Editor first(m_home), second(m_home);
        QVERIFY(opensWindow(first));
        first.act(Minimize);
        QTRY_VERIFY_WITH_TIMEOUT(first.has("WM_STATE", "Iconic"), Patience);
        second.start({QString::fromUtf8("C:\\\346\244\205 \360\237\252\221.3d"), "", "--help?"});
        QCOMPARE(second.exitCode(), 0);
        QVERIFY(first.shows(Window) && first.has("WM_STATE", "Normal"));
    }

private:
    void starts(const Start& start)
    {
        init();
        if (!start.before.isEmpty())
            store(settingsFile(), start.before);
        Editor editor(m_home);
        editor.start();
        const bool used = start.window != Selector;
        if (!start.selector.isEmpty()) {
            QVERIFY(editor.isAnswered(start.selector, start.action));
            QCOMPARE(editor.exitCode(), used ? 1 : 0);
            QVERIFY(QFile::exists(settingsFile()) == used && QDir(settingsFolder()).exists());
            editor.start();
        }
        QVERIFY(editor.shows(start.window) && !editor.picture().isNull());
        editor.act(used ? Close : CloseSelector); // Nothing is modified, so that it does not ask.
        QCOMPARE(editor.exitCode(), 0);
        QCOMPARE(stored(), used ? completed(start.kept) : Texts());
        QCOMPARE(QDir(m_home + "/cache/TorvaneBoundlessX64/" + userName()).exists(), used);
        const QByteArray log = contentOf(settingsFolder() + "/log.txt");
        const QRegExp events("library kqSystem.*ZelKernel.*Applied the settings of.*Stopping the libraries");
        QCOMPARE(events.indexIn(QString::fromUtf8(log)) > 0, used && !start.before.contains("info"));
        QCOMPARE(!log.isEmpty(), used && !start.before.contains("info"));
    }

    QString settingsFolder() const { return m_home + "/config/TorvaneBoundlessX64"; }
    QString settingsFile() const { return settingsFolder() + "/Settings.ini"; }

    Texts stored() const
    {
        QSettings settings(settingsFile(), QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        Texts texts;
        for (const QString& key : settings.allKeys())
            texts[key] = settings.value(key).toString();
        return texts;
    }

    /// What a new file holds, but for some values.
    Texts completed(const Texts& others) const
    {
        zel::ZelPageDefaults::Register(QSettings(QString(), QSettings::IniFormat));
        Texts texts = others;
        texts.insert({{"DBCache/cacheDirectory", m_home + "/cache/TorvaneBoundlessX64/" + userName()},
                      {"DBCache/cacheSize", "4096"},
                      {"Logging/logFile", settingsFolder() + "/log.txt"},
                      {"debuglogtypeblacklist", ""},
                      {"enablediag", "false"},
                      {"engine", "deferred"},
                      {"raytracer/coreNumber", QString::number(QThread::idealThreadCount())},
                      {"settingsVersion", "2"}});
        for (const auto& [key, setting] : zel::ZelSettingsRegistry::GetDefaultSettingsValues())
            texts.emplace(key, setting.first);
        return texts;
    }

    /// Starts the editor on a known renderer and waits until its drawer has opened.
    bool opensWindow(Editor& editor, const QString& redirection = QString()) const
    {
        store(settingsFile(), "[General]\nsettingsVersion=2\nengine=deferred\n"
                              "[Simplification]\nRatios=0.5/2/3/4/5\n");
        editor.start({}, redirection);
        return editor.shows(Window) && !editor.picture().isNull();
    }

    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_home;
};

QTEST_MAIN(tst_EndToEnd)
#include "tst_EndToEnd.moc"
