// Measures the stages of a start: takes the steps of launch() and prints "stage <tab> milliseconds" for each.
// first_frame starts this program and passes the time at which the first stage begins.
//   startup_stages [--pages]        measures the control center and each page instead of the window
//   startup_stages --first-frame    ends after the first frame, for scripts/instructions

#include "ZelAboutSettingsPanel.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelImportSettingsPanel.h"
#include "ZelRendererSettingsPanel.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"
#include "ZelSimplificationSettingsPanel.h"
#include "launch.h"

#include "platform/kqLibraries.h"

#include <QtSingleApplication>
#include <QtWidgets>

#include <chrono>

using namespace zel;

namespace {

class Stages
{
public:
    Stages()
        : m_last(qgetenv("BENCHMARK_START").toLongLong())
    {
    }

    void end(const QString& stage)
    {
        using namespace std::chrono;
        const qint64 now = duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
        m_lines << QString("%1\t%2").arg(stage).arg(static_cast<double>(now - m_last) / 1e6, 0, 'f', 2);
        m_last = now;
    }

    void print() const
    {
        std::puts(qPrintable(m_lines.join('\n')));
        std::fflush(stdout);
    }

private:
    qint64 m_last;
    QStringList m_lines;
};

class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& window)
    {
        window.installEventFilter(this);
        while (!m_painted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

template <class Page>
void addPage(ZelControlCenter& controlCenter, kqDMIApplication& application, Stages& stages)
{
    auto* page = new Page(&application, application.getSettings(), nullptr, Qt::WindowFlags());
    stages.end("page " + page->getPanelName() + ": construction");
    controlCenter.registerSettingsPanel(page);
    stages.end("page " + page->getPanelName() + ": registration");
}

void buildPages(kqDMIApplication& application, Stages& stages)
{
    QWidget window;
    QHBoxLayout layout(&window);
    auto* controlCenter = new ZelControlCenter(&application, nullptr, Qt::WindowFlags());
    layout.addWidget(controlCenter);
    layout.addWidget(controlCenter->settingsWidget());
    stages.end("control center");
    addPage<ZelRendererSettingsPanel>(*controlCenter, application, stages);
    addPage<ZelGeneralSettingsPanel>(*controlCenter, application, stages);
    addPage<ZelSimplificationSettingsPanel>(*controlCenter, application, stages);
    addPage<ZelImportSettingsPanel>(*controlCenter, application, stages);
    addPage<ZelAboutSettingsPanel>(*controlCenter, application, stages);
}

void openWindow(kqDMIApplication& application, Stages& stages)
{
    ZelControlCenterStandAloneWidget window(&application, nullptr, Qt::FramelessWindowHint);
    stages.end("window with its pages");
    window.show();
    stages.end("show");
    window.openMenu();
    stages.end("start of the slides");
    const PaintWatch watch(window);
    stages.end("first paint");
    stages.print();
    if (QCoreApplication::arguments().contains("--first-frame"))
        std::quick_exit(0);
    QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    Stages stages;
    stages.end("loading of the program and its libraries");
    QCoreApplication::setLibraryPaths({"bin"});
    QtSingleApplication singleApplication(argc, argv);
    stages.end("application object");
    singleApplication.isRunning();
    stages.end("search for a running instance");

    kq::initializeKqSystem(kq::InitApplication, false);
    kq::initializeKqSceneGraph();
    kq::initializeKqMeshLibrary();
    kq::initializeKqSimplificationLibrary();
    zelInitializeKernelLibrary();
    stages.end("platform libraries");

    QTranslator translators[2];
    for (const int i : {0, 1}) {
        if (translators[i].load(QString("resources/languages/%1_en.qm").arg(i ? "Toolkit" : "Torvane")))
            QCoreApplication::installTranslator(&translators[i]);
    }
    stages.end("translation");

    ZelSettingsApplication application(qEnvironmentVariable("XDG_CONFIG_HOME") + "/TorvaneBoundlessX64");
    zelRegisterPageDefaults();
    ZelControlCenter::InitDefaultSettingsValues("TorvaneBoundlessX64");
    QSettings& settings = application.getSettings();
    QString error;
    if (!ZelSettingsFile::Repair(settings, error))
        qFatal("%s", qPrintable(error));
    stages.end("settings and validation pass");

    if (QCoreApplication::arguments().contains("--pages")) {
        buildPages(application, stages);
        stages.print();
    } else {
        openWindow(application, stages);
    }
}
