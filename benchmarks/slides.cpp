// Measures the stand-alone window: the time until the drawer appears for the first time, and how smoothly
// menu and drawer slide.
//   slides WIDTH HEIGHT [--plain]
// prints "name <tab> milliseconds" for the first opening, and for every frame of the slides its cost
// (processor time) and the interval since the previous frame. --plain slides as many plain Qt widgets
// instead.

#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"
#include "launch.h"

#include <QtWidgets>

#include <ctime>

using namespace zel;

namespace {

const int SlideTime = 350; // ms
const int RestTime = 250;  // ms
const int Repetitions = 3;

/// The processor time of this thread in milliseconds, which does not depend on other processes.
double processorTime()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Records the frames of a window. A frame ends when the event loop waits after a paint event.
class FrameWatch : public QObject
{
public:
    explicit FrameWatch(const QScrollArea& drawer)
        : m_drawer(drawer)
    {
        qApp->installEventFilter(this);
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &FrameWatch::endFrame);
        m_clock.start();
        m_cost = processorTime();
    }

    struct Frame
    {
        double end, cost;
    };
    QVector<Frame> frames;
    double drawerSeen = 0;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        m_painted = true;
        m_drawerPainted = m_drawerPainted || m_drawer.isAncestorOf(qobject_cast<QWidget*>(watched));
        return false;
    }

    void endFrame()
    {
        if (!m_painted)
            return;
        const double cost = processorTime(), now = static_cast<double>(m_clock.nsecsElapsed()) / 1e6;
        frames.append({now, cost - m_cost});
        m_cost = cost;
        if (m_drawerPainted && drawerSeen == 0)
            drawerSeen = now;
        m_painted = false;
    }

    const QScrollArea& m_drawer;
    QElapsedTimer m_clock;
    double m_cost;
    bool m_painted = false, m_drawerPainted = false;
};

void processEventsFor(int milliseconds)
{
    QTimer::singleShot(milliseconds, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
}

void print(const char* name, double milliseconds)
{
    std::printf("%s\t%.3f\n", name, milliseconds);
}

void printFrames(const QVector<FrameWatch::Frame>& frames)
{
    for (int i = 0; i < frames.size(); ++i) {
        print("cost", frames[i].cost);
        if (i > 0)
            print("interval", frames[i].end - frames[i - 1].end);
    }
}

void measure(QWidget& window, QScrollArea& drawer, const QSize& size,
             const std::function<void(bool open)>& slide)
{
    window.resize(size);
    window.show();
    processEventsFor(SlideTime + RestTime);
    for (int repetition = 0; repetition < Repetitions; ++repetition) {
        FrameWatch watch(drawer);
        slide(true);
        processEventsFor(SlideTime + RestTime);
        if (repetition == 0)
            print("opening", watch.drawerSeen);
        printFrames(watch.frames);
        FrameWatch closing(drawer);
        slide(false);
        processEventsFor(SlideTime + RestTime);
        printFrames(closing.frames);
    }
}

void measureControlCenter(kqDMIApplication& application, const QSize& size)
{
    ZelControlCenterStandAloneWidget window(&application, nullptr, Qt::FramelessWindowHint);
    auto* controlCenter = window.findChild<ZelControlCenter*>();
    measure(window, *controlCenter->settingsWidget(), size, [&](bool open) {
        if (open)
            window.openMenu();
        else
            controlCenter->openMenu(false);
    });
}

int widgetsOfPages(kqDMIApplication& application)
{
    const ZelControlCenterStandAloneWidget window(&application, nullptr, Qt::FramelessWindowHint);
    return window.findChild<QScrollArea*>()->widget()->findChildren<QWidget*>().size();
}

void measurePlain(int widgets, const QSize& size)
{
    QWidget window;
    QHBoxLayout layout(&window);
    QFrame column;
    QScrollArea drawer;
    layout.addWidget(&column);
    layout.addWidget(&drawer);
    layout.addStretch();

    auto* content = new QWidget;
    auto* rows = new QFormLayout(content);
    // A row has three widgets: a label, a spin box and its line edit.
    for (int row = 0; row < widgets / 3; ++row)
        rows->addRow(QString("Row %1").arg(row), new QSpinBox);
    drawer.setWidget(content);
    drawer.setWidgetResizable(true);

    QVariantAnimation animation;
    animation.setDuration(SlideTime);
    animation.setStartValue(0.);
    animation.setEndValue(1.);
    QObject::connect(&animation, &QVariantAnimation::valueChanged, &window, [&](const QVariant& part) {
        column.setFixedWidth(qRound(250 * part.toReal()));
        drawer.setFixedWidth(qRound(450 * part.toReal()));
        drawer.setVisible(drawer.width() > 0);
    });
    drawer.hide();
    column.setFixedWidth(0);
    measure(window, drawer, size, [&](bool open) {
        animation.setDirection(open ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
        animation.start();
    });
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setLibraryPaths({"bin"});
    const QApplication qt(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QSize size(arguments.value(1).toInt(), arguments.value(2).toInt());

    const QTemporaryDir folder;
    ZelSettingsApplication application(folder.path());
    zelRegisterPageDefaults();
    ZelControlCenter::InitDefaultSettingsValues("TorvaneBoundlessX64");
    QString error;
    if (!ZelSettingsFile::Repair(application.getSettings(), error))
        qFatal("%s", qPrintable(error));
    if (arguments.contains("--plain"))
        measurePlain(widgetsOfPages(application), size);
    else
        measureControlCenter(application, size);
}
