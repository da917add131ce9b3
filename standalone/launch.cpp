#include "launch.h"

#include "SettingsKeys.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelRendererSelector.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"

#include "platform/MTLogger.h"
#include "platform/ZelQtCompat.h"
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

const char* const ApplicationName = "TorvaneBoundless"
                                    "X64";
const char* const FallbackLanguage = "en";
const int SendTimeout = 5000; // ms
const int FirstStart = 1;     // Exit code that tells the host of a renderer chosen just now.

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
    QString folder = QString::fromUtf8(kqDirUtils::GetAppDataFolderUtf8().c_str()) + "/" + ApplicationName;
    folder.replace('\\', '/');
    QDir().mkpath(folder);
    return folder;
}

QString translationFile(const QString& language)
{
    return QString("resources/languages/Torvane_%1.qm").arg(language);
}

QString loadTranslation(const QString& settingsFile, QTranslator& translator)
{
    QSettings settings(settingsFile, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    QString language = settings.value(keys::Language, FallbackLanguage).toString();
    if (!QFile::exists(translationFile(language)))
        language = FallbackLanguage;
    if (QFile::exists(translationFile(language)) && translator.load(translationFile(language)))
        QCoreApplication::installTranslator(&translator);
    return language;
}

/// Brings the file of an older version up to date, or starts it afresh: its layout is then too old to be
/// kept. Returns whether the engine is known.
bool migrateSettings(const QString& settingsFile, const QString& language)
{
    if (!QFile::exists(settingsFile))
        return false;
    QString error;
    {
        QSettings settings(settingsFile, QSettings::IniFormat);
        ZelSettingsFile::UseFileEncoding(settings);
        const int version = settings.value(keys::SettingsVersion, 0).toInt();
        if (version == 1) {
            settings.setValue(keys::SettingsVersion, CurrentSettingsVersion);
            settings.setValue(keys::Engine, engines::Deferred);
            ZelSettingsFile::Sync(settings, error);
        }
        if (version >= 1) {
            const QString engine = settings.value(keys::Engine).toString();
            return engine == engines::Deferred || engine == engines::Software;
        }
    }
    QFile::remove(settingsFile);
    QSettings settings(settingsFile, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    settings.clear();
    settings.setValue(keys::Language, language);
    ZelSettingsFile::Sync(settings, error);
    return false;
}

void installLog(ZelSettingsApplication& application)
{
    const QSettings& settings = application.getSettings();
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
    QMessageBox::information(
        nullptr, QCoreApplication::translate("ZelControlCenterStandAloneWidget", "Torvane - Fatal Error"),
        error);
}

/// What follows the choice of the renderer: validates the settings, then opens the window unless the choice
/// has just been made. Returns the exit code.
int runApplication(QtSingleApplication& singleApplication, ZelSettingsApplication& application,
                   const char* chosenEngine)
{
    ZelControlCenter::InitDefaultSettingsValues(ApplicationName);
    QSettings& settings = application.getSettings();
    if (chosenEngine)
        settings.setValue(keys::Engine, chosenEngine);
    QString error;
    if (!ZelControlCenter::EnsureSettings(settings, error) || !ZelSettingsFile::Sync(settings, error)) {
        showFatalError(error);
        return 0;
    }
    installLog(application);
    return chosenEngine ? FirstStart : runWindow(singleApplication, application);
}

} // namespace

int launch(int argc, char** argv)
{
    installToolkitMessageSink<writeMessage>();
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

    QTranslator translator;
    int exitCode = 0;
    QString error;
    if (ZelSettingsFile::IsUsable(settingsFile, error)) {
        const QString language = loadTranslation(settingsFile, translator);
        const char* chosenEngine = nullptr;
        if (!migrateSettings(settingsFile, language)) {
            ZelRendererSelector selector(nullptr, Qt::WindowFlags());
            // The libraries stay as they are: nothing has used them yet, and the process is about to end.
            if (selector.exec() != QDialog::Accepted)
                return 0;
            chosenEngine = selector.useGPURenderer() ? engines::Deferred : engines::Software;
        }
        ZelSettingsApplication application(settingsFolder);
        application.setLanguageCode(language);
        exitCode = runApplication(singleApplication, application, chosenEngine);
    } else {
        showFatalError(error);
    }

    QCoreApplication::removeTranslator(&translator);
    ZelControlCenter::ClearSettingsValues();
    stopPlatformLibraries();
    return exitCode;
}
