// Measures the validation pass beside plain reading and writing of the same file, and one edit on a page
// beside the same edit of a plain spin box.

#include "ZelAboutSettingsPanel.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelImportSettingsPanel.h"
#include "ZelRendererSettingsPanel.h"
#include "ZelSettingsApplication.h"
#include "ZelSettingsFile.h"
#include "ZelSimplificationSettingsPanel.h"

#include <QtWidgets>

#include <benchmark/benchmark.h>

using namespace zel;

namespace {

using V = ZelSettingsValidators;

/// The kinds of settings, and how many of each the library has.
const struct
{
    int count;
    const char* value;
    ZelSettingsRegistry::Validator validator;
} Kinds[] = {
    {9, "true", &V::ensureBool},
    {3, "1073741824", &V::ensureMaxGPUMemory},
    {2, "0.25", &V::ensureTesselationMaxFaceSag},
    {2, "4096", &V::noOp},
    {1, "120", &V::ensureTesselationMaxFaceAngle},
    {1, "1000000", &V::ensureLODTrianglesCap},
    {1, "0.01", &V::ensureSceneUnit},
    {1, "Medium", &V::ensureRaytracerQuality},
    {1, "1/0.5/0.25/0.1/0.05", &V::ensureSimplificationRatios},
    {1, "1", &V::ensureCoreNumber},
    {1, "software", &V::ensureEngine},
    {1, "2", &V::ensureSettingsVersion},
    {1, "/tmp/log.txt", &V::ensureFile},
    {1, "/tmp", &V::ensureDMCacheFolder},
};

/// A settings file of any number of keys, all of them registered.
class ManySettings
{
public:
    explicit ManySettings(int keys)
    {
        QSettings settings(path(), QSettings::IniFormat);
        ZelSettingsRegistry::ClearSettingsValues();
        for (int i = 0; i < keys;) {
            for (const auto& kind : Kinds) {
                for (int end = qMin(keys, i + kind.count); i < end; ++i) {
                    const QString key = QString("Group%1/key%2").arg(i / 100).arg(i);
                    ZelSettingsRegistry::RegisterSetting(key, kind.value, kind.validator);
                    settings.setValue(key, kind.value);
                }
            }
        }
        settings.sync();
        QFile file(path());
        file.open(QIODevice::ReadOnly);
        m_content = file.readAll();
    }

    ~ManySettings() { ZelSettingsRegistry::ClearSettingsValues(); }

    QString path() const { return m_folder.filePath("Settings.ini"); }

    /// Writes the file again, each time with a new time stamp, so that QSettings does not answer from its
    /// cache.
    void restore() const
    {
        QFile::remove(path());
        QFile file(path());
        file.open(QIODevice::WriteOnly);
        file.write(m_content);
        file.flush();
        static int second = 0;
        file.setFileTime(QDate(2020, 1, 1).startOfDay().addSecs(++second), QFileDevice::FileModificationTime);
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_content;
};

template <void (*Run)(QSettings&)>
void readAndWrite(benchmark::State& state)
{
    const ManySettings many(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        many.restore();
        const auto start = std::chrono::steady_clock::now();
        {
            const auto settings = ZelSettingsFile::Open(many.path());
            Run(*settings);
        }
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void plain(QSettings& settings)
{
    for (const auto& setting : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        const QString value = settings.value(setting.first, setting.second.first).toString();
        settings.setValue(setting.first, value);
    }
    settings.sync();
}

void pass(QSettings& settings)
{
    QString error;
    if (!ZelSettingsRegistry::EnsureSettings(settings, error))
        qFatal("the validation pass fails");
}

/// The pass with all that protects the file, as a start runs it.
void repair(QSettings& settings)
{
    QString error;
    if (!ZelSettingsFile::Repair(settings, error))
        qFatal("the file cannot be repaired");
}

/// All five pages in an open control center.
class OpenControlCenter
{
public:
    OpenControlCenter()
        : m_application(m_folder.path())
        , m_controlCenter(&m_application, nullptr, Qt::WindowFlags())
    {
        add<ZelRendererSettingsPanel>();
        add<ZelGeneralSettingsPanel>();
        add<ZelSimplificationSettingsPanel>();
        add<ZelImportSettingsPanel>();
        add<ZelAboutSettingsPanel>();
        m_controlCenter.openMenu(true);
        m_controlCenter.setControlCenterVisible(true);
    }

    ~OpenControlCenter()
    {
        for (const auto& page : m_pages)
            m_controlCenter.unregisterSettingsPanel(page.get(), false);
    }

    QWidget& widget() { return m_controlCenter; }

private:
    template <class Page>
    void add()
    {
        m_pages.push_back(
            std::make_unique<Page>(&m_application, m_application.getSettings(), nullptr, Qt::WindowFlags()));
        m_controlCenter.registerSettingsPanel(m_pages.back().get());
    }

    QTemporaryDir m_folder;
    ZelSettingsApplication m_application;
    ZelControlCenter m_controlCenter;
    std::vector<std::unique_ptr<ZelSettingsPanel>> m_pages;
};

void edit(QSpinBox& box, benchmark::State& state)
{
    int value = 1000;
    for (auto _ : state)
        box.setValue(value ^= 1);
}

void editOnPage(benchmark::State& state)
{
    OpenControlCenter open;
    edit(*open.widget().findChild<QSpinBox*>("databaseSpinBox"), state);
    if (!open.widget().findChild<QPushButton*>("applyButton")->isEnabled())
        qFatal("the edit does not reach the Apply button");
}

void editAlone(benchmark::State& state)
{
    QSpinBox box;
    box.setRange(10, 4096);
    edit(box, state);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    for (const int keys : {10, 1000, 100000}) {
        benchmark::RegisterBenchmark("pass", readAndWrite<pass>)->Arg(keys)->UseManualTime();
        benchmark::RegisterBenchmark("repair", readAndWrite<repair>)->Arg(keys)->UseManualTime();
        benchmark::RegisterBenchmark("plain", readAndWrite<plain>)->Arg(keys)->UseManualTime();
    }
    benchmark::RegisterBenchmark("edit", editOnPage);
    benchmark::RegisterBenchmark("edit alone", editAlone);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
