#include "Announcement.h"
#include "CheckReport.h"
#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"

#include "platform/ZelQtCompat.h"
#include "platform/kqLibraries.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QTemporaryFile>

#include <cstdio>

namespace {

using namespace zel;

const int UsageError = 3;

const char* const Usage = "usage: torvane-settings-check [--repair] [--json] [--] FILE\n";

const char* const Help =
    "\n"
    "Tells what the viewer and its settings editor will change in a settings file when they start: missing "
    "and\n"
    "invalid values, lines that cannot be read, and folders that have to be created. Only looks, unless "
    "asked\n"
    "to repair.\n"
    "\n"
    "  --repair  make these changes now; a dated copy of a damaged file is kept beside it\n"
    "  --json    print one JSON object instead of lines\n"
    "  --help    print this text\n"
    "\n"
    "Exit codes:\n"
    "  0  the file is clean\n"
    "  1  the file needs a repair; nothing has been changed\n"
    "  2  the file cannot be read or cannot be repaired\n"
    "  3  wrong usage\n"
    "  4  the file has been repaired\n"
    "\n"
    "Only the keys that the editor itself registers are checked. The viewer checks more when it starts, and\n"
    "keys that are unknown here are left as they are. A file that does not exist is one in which everything "
    "is\n"
    "missing. The default folders are those of the user who runs the check: run it as the user whose file "
    "it\n"
    "is. The editor, but not this check, starts a file afresh whose \"settingsVersion\" is below 1.\n";

struct Options
{
    bool repair = false;
    bool json = false;
    bool help = false;
    QStringList files;
};

/// False when an option is unknown.
bool parse(QStringList arguments, Options& options)
{
    const int end = arguments.indexOf("--");
    if (end >= 0) {
        options.files = arguments.mid(end + 1);
        arguments = arguments.mid(0, end);
    }
    for (const QString& argument : arguments) {
        if (argument == "--repair")
            options.repair = true;
        else if (argument == "--json")
            options.json = true;
        else if (argument == "--help")
            options.help = true;
        else if (argument.startsWith('-'))
            return false;
        else
            options.files += argument;
    }
    return options.help || options.files.size() == 1;
}

/// True when a file written now would no longer belong to its owner, who could then not write it any more.
bool wouldChangeOwner(const QString& path)
{
    const QFileInfo file(path);
    QTemporaryFile probe(file.canonicalFilePath() + ".XXXXXX");
    return file.exists() && probe.open() && QFileInfo(probe.fileName()).ownerId() != file.ownerId();
}

bool repair(const QString& path, QString& copy, QString& error)
{
    if (wouldChangeOwner(path)) {
        error = "It belongs to another user, who could not write it any more: run this as that user";
        return false;
    }
    if (!SettingsBackup::keepIfDamaged(path, copy, error))
        return false;
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    if (!ZelSettingsFile::PrepareWriting(path, error) ||
        !ZelSettingsRegistry::EnsureSettings(settings, error) || !ZelSettingsFile::Sync(settings, error))
        return false;
    const bool repaired = SettingsInspection(path).isClean();
    if (!repaired)
        error = "It has been repaired, and spoilt by another program again";
    return repaired;
}

CheckReport check(const QString& path, bool mayRepair)
{
    CheckReport report;
    report.file = path;
    report.state = CheckState::NotRepairable;
    if (!ZelSettingsFile::IsUsable(path, report.error))
        return report;
    const SettingsInspection inspection(path);
    report.damage = inspection.damage();
    report.changes = inspection.changes();
    report.folders = inspection.folders();
    report.error = inspection.error();
    if (inspection.isClean())
        report.state = CheckState::Clean;
    else if (report.error.isEmpty() && !mayRepair)
        report.state = CheckState::NeedsRepair;
    else if (report.error.isEmpty() && repair(path, report.copy, report.error))
        report.state = CheckState::Repaired;
    return report;
}

int run(const Options& options)
{
    kq::initializeKqSystem(kq::InitConsole, false);
    zelInitializeKernelLibrary();
    ZelSettingsCatalogue::InitDefaultSettingsValues(StandAloneApplicationName);
    announceInLogOnly();
    const CheckReport report = check(options.files.first(), options.repair);
    ZelSettingsRegistry::ClearSettingsValues();
    zelTerminateKernelLibrary();
    kq::terminateKqSystem();
    std::fputs(options.json ? report.toJson().constData() : report.toText().constData(), stdout);
    return int(report.state);
}

} // namespace

int main(int argc, char** argv)
{
    useUtf8FileNames();
    const QCoreApplication application(argc, argv);
    Options options;
    if (!parse(QCoreApplication::arguments().mid(1), options)) {
        std::fputs(Usage, stderr);
        return UsageError;
    }
    if (!options.help)
        return run(options);
    std::printf("%s%s", Usage, Help);
    return 0;
}
