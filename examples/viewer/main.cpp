#include "ModelView.h"
#include "ViewerApplication.h"
#include "ViewerSettings.h"
#include "ViewerWindow.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QMessageBox>
#include <QStringList>
#include <QTranslator>

#include <cstdio>
#include <zel/SettingsKeys.h>
#include <zel/ZelControlCenter.h>
#include <zel/ZelSettingsFile.h>
#include <zel/platform/MTLogger.h>
#include <zel/platform/kqDirUtils.h>
#include <zel/platform/kqLibraries.h>

namespace keys = zel::keys;

namespace {

const char* const ApplicationName = "TorvaneViewer";

const char* const Usage = "usage: torvane-viewer [--once]\n"
                          "  --once  end as soon as the first frame has been painted\n"
                          "  --help  show this text\n";

std::string utf8(const QString& text)
{
    return text.toUtf8().constData();
}

int showFatalError(const QString& error)
{
    QMessageBox::information(
        nullptr, QCoreApplication::translate("ZelControlCenterStandAloneWidget", "Torvane - Fatal Error"),
        error);
    return 1;
}

int runViewer(const QString& folder, bool once)
{
    QString error;
    if (!zel::ZelSettingsFile::IsUsable(folder + "/Settings.ini", error))
        return showFatalError(error);
    ViewerApplication application(folder);
    QSettings& settings = application.getSettings();

    QTranslator translator, qtTranslator;
    const QString language = settings.value(keys::Language, "en").toString();
    if (translator.load("Torvane_" + language, VIEWER_LANGUAGE_FOLDER))
        QCoreApplication::installTranslator(&translator);
    if (qtTranslator.load("Toolkit_" + language, VIEWER_LANGUAGE_FOLDER))
        QCoreApplication::installTranslator(&qtTranslator);
    QLocale::setDefault(QLocale(language)); // Decides how numbers are written.

    ViewerSettings::Register(ApplicationName, folder);
    if (!zel::ZelSettingsFile::Repair(settings, error))
        return showFatalError(error);
    MTLogger::InstallFileHandler(utf8(settings.value(keys::LogFile).toString()),
                                 application.isDiagModeEnable(),
                                 utf8(settings.value(keys::LogTypeBlackList).toString()));

    application.applicationStarted();
    ViewerWindow window(&application);
    if (once)
        QObject::connect(window.view(), SIGNAL(framePainted()), qApp, SLOT(quit()), Qt::QueuedConnection);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication qt(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.contains("--help")) {
        std::fputs(Usage, stdout);
        return 0;
    }

    kq::initializeKqSystem(kq::InitApplication, false);
    kq::initializeKqSceneGraph();
    kq::initializeKqMeshLibrary();
    kq::initializeKqSimplificationLibrary();
    zel::zelInitializeKernelLibrary();

    const QString folder =
        QString::fromUtf8(kqDirUtils::GetAppDataFolderUtf8().c_str()) + "/" + ApplicationName;
    QDir().mkpath(folder);
    const int result = runViewer(folder, arguments.contains("--once"));
    zel::ZelControlCenter::ClearSettingsValues();

    zel::zelTerminateKernelLibrary();
    kq::terminateKqSimplificationLibrary();
    kq::terminateKqMeshLibrary();
    kq::terminateKqSceneGraph();
    kq::terminateKqSystem();
    return result;
}
