#include "launch.h"

#include "Log.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelPageDefaults.h"
#include "ZelRendererSelector.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"
#include "base/QtCompat.h"
#include "base/SystemCompat.h"
#include "base/WindowCompat.h"

#include "platform/MTLogger.h"
#include "platform/kqDMIApplication.h"
#include "platform/kqDirUtils.h"
#include "platform/kqLibraries.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QMessageBox>
#include <QSettings>
#include <QTranslator>
#include <QtSingleApplication>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <optional>

namespace {

using namespace zel;

const char* const FallbackLanguage = "en";
const int SendTimeout = 5000; // ms

// Exit codes; a host has 2 for its own errors.
const int RendererChosen = 1;
const int Refused = 3;

/// The viewer's libraries, in the order of their start.
const struct
{
    const char* name;
    void (*start)();
    void (*stop)();
} PlatformLibraries[] = {
    {"kqSystem", [] { kq::initializeKqSystem(kq::InitApplication, false); }, &kq::terminateKqSystem},
    {"kqSceneGraph", &kq::initializeKqSceneGraph, &kq::terminateKqSceneGraph},
    {"kqMeshLib", &kq::initializeKqMeshLibrary, &kq::terminateKqMeshLibrary},
    {"kqSimplificationLib", &kq::initializeKqSimplificationLibrary, &kq::terminateKqSimplificationLibrary},
    {"ZelKernel", &zelInitializeKernelLibrary, &zelTerminateKernelLibrary},
};

void writeMessage(const QString& text)
{
    if (text.startsWith("QGLShader"))
        return;
    std::puts(text.toUtf8().constData());
    std::fflush(stdout);
}

void startPlatformLibraries()
{
    for (const auto& library : PlatformLibraries) {
        library.start();
        logInfo(QString("Started library %1").arg(library.name));
    }
}

void stopPlatformLibraries()
{
    // Logged before, because the library with the log stops first.
    logInfo("Stopping the libraries");
    std::for_each(std::rbegin(PlatformLibraries), std::rend(PlatformLibraries),
                  [](const auto& library) { library.stop(); });
}

QString commandLineMessage(int argc, char** argv)
{
    QString message;
    for (int i = 1; i < argc; ++i)
        message += QString::fromLocal8Bit(argv[i]) + "?";
    return message;
}

QString createSettingsFolder()
{
    QString folder =
        QString::fromUtf8(kqDirUtils::GetAppDataFolderUtf8().c_str()) + "/" + StandAloneApplicationName;
    folder.replace('\\', '/');
    QDir().mkpath(folder);
    return folder;
}

/// Makes the fonts known that the runnable tree brings, as it does on Windows.
void installFonts()
{
    const QDir folder("resources/fonts");
    for (const QString& name : folder.entryList(QStringList("*.ttf")))
        QFontDatabase::addApplicationFont(folder.filePath(name));
}

QString translationFile(const char* origin, const QString& language)
{
    return QString("resources/languages/%1_%2.qm").arg(origin, language);
}

void installTranslation(const char* origin, const QString& language, QTranslator& translator)
{
    const QString file = translationFile(origin, language);
    if (QFile::exists(file) && translator.load(file))
        QCoreApplication::installTranslator(&translator);
}

QString loadTranslation(const QString& settingsFile, QTranslator& translator)
{
    const auto settings = ZelSettingsFile::Open(settingsFile);
    QString language = settings->value(keys::Language, FallbackLanguage).toString();
    if (!QFile::exists(translationFile("Torvane", language)))
        language = FallbackLanguage;
    installTranslation("Torvane", language, translator);
    return language;
}

/// Asks the user for the engine if the settings have none, and sets it. False when the user cancels.
bool chooseEngine(const QString& settingsFile, const char*& chosenEngine)
{
    const QString engine = ZelSettingsFile::Open(settingsFile)->value(keys::Engine).toString();
    if (engine == engines::Deferred || engine == engines::Software)
        return true;
    ZelRendererSelector selector(nullptr, Qt::WindowFlags());
    if (selector.exec() != QDialog::Accepted)
        return false;
    chosenEngine = selector.useGPURenderer() ? engines::Deferred : engines::Software;
    return true;
}

void installLog(ZelSettingsApplication& application)
{
    QSettings& settings = application.getSettings();
    MTLogger::InstallFileHandler(settings.value(keys::LogFile).toString().toUtf8().constData(),
                                 application.isDiagModeEnable(),
                                 settings.value(keys::LogTypeBlackList).toString().toUtf8().constData());
    logInfo(QString("Applied the settings of %1").arg(settings.fileName()));
}

int runWindow(QtSingleApplication& singleApplication, ZelSettingsApplication& application)
{
    ZelControlCenterStandAloneWidget window(&application, nullptr, Qt::FramelessWindowHint);
    QObject::connect(&singleApplication, SIGNAL(messageReceived(QString)), &window,
                     SLOT(parseMessage(QString)));
    singleApplication.setActivationWindow(&window);
    window.show();
    window.openMenu();
    return QtSingleApplication::exec();
}

void showFatalError(const QString& error)
{
    QMessageBox box(QMessageBox::Information,
                    QCoreApplication::translate("ZelControlCenterStandAloneWidget", "Torvane - Fatal Error"),
                    error, QMessageBox::Ok);
    box.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
    box.setTextFormat(Qt::PlainText); // A path may contain markup.
    box.exec();
}

/// Stores the chosen engine, if any, and repairs the settings. Opens the window unless an engine was chosen.
/// Returns the exit code.
int runApplication(QtSingleApplication& singleApplication, ZelSettingsApplication& application,
                   const char* chosenEngine)
{
    ZelControlCenter::InitDefaultSettingsValues(StandAloneApplicationName);
    QSettings& settings = application.getSettings();
    const auto storeEngine = [chosenEngine](QSettings& changed, QString&) {
        changed.setValue(keys::Engine, chosenEngine);
        return true;
    };
    QString error;
    if ((chosenEngine && !ZelSettingsFile::Write(settings, storeEngine, error)) ||
        !ZelSettingsFile::Repair(settings, error)) {
        showFatalError(error);
        return 0;
    }
    installLog(application);
    return chosenEngine ? RendererChosen : runWindow(singleApplication, application);
}

/// Runs the editor on the user's settings. Returns the exit code; none when the user cancels the choice of
/// the engine.
std::optional<int> runEditor(QtSingleApplication& singleApplication)
{
    const QString folder = createSettingsFolder();
    const QString file = folder + "/" + SettingsFileName;
    QString error;
    if (!ZelSettingsFile::IsUsable(file, error)) {
        showFatalError(error);
        return 0;
    }
    // QTranslator removes itself from the application when it is destroyed.
    QTranslator translator, qtTranslator;
    const QString language = loadTranslation(file, translator);
    installTranslation("Toolkit", language, qtTranslator); // Qt's own texts.
    if (!migrateSettings(file, language, error)) {
        showFatalError(error);
        return 0;
    }
    const char* chosenEngine = nullptr;
    if (!chooseEngine(file, chosenEngine))
        return std::nullopt;
    ZelSettingsApplication application(folder);
    application.setLanguageCode(language);
    return runApplication(singleApplication, application, chosenEngine);
}

} // namespace

void zelRegisterPageDefaults()
{
    useUtf8FileNames();
    QSettings defaults("resources/Defaults.ini", QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(defaults);
    ZelPageDefaults::Register(defaults);
}

int launch(int argc, char** argv)
{
    static bool wasCalled = false;
    if (wasCalled || QCoreApplication::instance()) {
        qWarning("launch() refuses: %s", wasCalled ? "it has been called in this process before"
                                                   : "this process has an application object already");
        return Refused;
    }
    wasCalled = true;

    const QtMessageSink<writeMessage> messageSink;
    useUtf8FileNames();
    followScreenScale();
    QCoreApplication::setLibraryPaths(QStringList("bin"));

    QtSingleApplication singleApplication(argc, argv);
    if (singleApplication.isRunning()) {
        passForegroundOn();
        if (!singleApplication.sendMessage(commandLineMessage(argc, argv), SendTimeout))
            std::fputs("The settings editor is running already, and has not taken this command line: "
                       "it does not answer, or the command line is too long.\n",
                       stderr);
        return 0;
    }

    startPlatformLibraries();
    installFonts();
    const std::optional<int> exitCode = runEditor(singleApplication);
    // After a cancelled choice the process ends at once, with the libraries as they are.
    if (!exitCode)
        return 0;
    ZelControlCenter::ClearSettingsValues();
    stopPlatformLibraries();
    return *exitCode;
}
