#include "launch.h"

#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelRendererSelector.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"
#include "base/ZelQtCompat.h"
#include "base/ZelSystemCompat.h"

#include "platform/MTLogger.h"
#include "platform/kqDMIApplication.h"
#include "platform/kqDirUtils.h"
#include "platform/kqLibraries.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTranslator>
#include <QtSingleApplication>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

using namespace zel;

const char* const FallbackLanguage = "en";
const int SendTimeout = 5000; // ms
const int FirstStart = 1;     // Exit code that tells the host of a renderer chosen just now.
const int Refused = 3; // Exit code of a call that could not work; hosts use 2 for troubles of their own.

/// The viewer's libraries in the order in which they are started.
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

void logInfo(const QString& text)
{
    MTLogger::Log("info", text.toUtf8().constData());
}

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
    // Said beforehand: the log belongs to the last library, which is the first to stop.
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

/// Asks for the renderer unless the settings name one. Sets the engine that has been chosen, if any; false
/// when the user cancels.
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
    settings.sync(); // What an end check has changed.
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
    box.setTextFormat(Qt::PlainText); // A path may hold what looks like markup.
    box.exec();
}

/// What follows the choice of the renderer: validates the settings, then opens the window unless the choice
/// has just been made. Returns the exit code.
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
    return chosenEngine ? FirstStart : runWindow(singleApplication, application);
}

} // namespace

int launch(int argc, char** argv)
{
    static bool isSpent = false;
    if (isSpent || QCoreApplication::instance()) {
        qWarning("launch() refuses: %s", isSpent ? "it has been called in this process before"
                                                 : "this process has an application object already");
        return Refused;
    }
    isSpent = true;

    const QtMessageSink<writeMessage> messageSink;
    useUtf8FileNames();
    followScreenScale();
    QCoreApplication::setLibraryPaths(QStringList("bin"));

    QtSingleApplication singleApplication(argc, argv);
    if (singleApplication.isRunning()) {
        singleApplication.sendMessage(commandLineMessage(argc, argv), SendTimeout);
        return 0;
    }

    startPlatformLibraries();
    const QString settingsFolder = createSettingsFolder();
    const QString settingsFile = settingsFolder + "/Settings.ini";

    int exitCode = 0;
    QString error;
    if (ZelSettingsFile::IsUsable(settingsFile, error)) {
        // They remove themselves when they go.
        QTranslator translator, toolkitTranslator;
        const QString language = loadTranslation(settingsFile, translator);
        installTranslation("Toolkit", language, toolkitTranslator);
        const char* chosenEngine = nullptr;
        if (!migrateSettings(settingsFile, language, error)) {
            showFatalError(error);
        } else if (chooseEngine(settingsFile, chosenEngine)) {
            ZelSettingsApplication application(settingsFolder);
            application.setLanguageCode(language);
            exitCode = runApplication(singleApplication, application, chosenEngine);
        } else {
            // The libraries stay as they are: nothing has used them yet, and the process is about to end.
            return 0;
        }
    } else {
        showFatalError(error);
    }

    ZelControlCenter::ClearSettingsValues();
    stopPlatformLibraries();
    return exitCode;
}
