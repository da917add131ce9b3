#include "Announcement.h"
#include "CheckReport.h"
#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "SettingsMigration.h"
#include "SettingsValidation.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "base/ZelQtCompat.h"

#include "platform/kqLibraries.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

using namespace zel;

const int UsageError = 3;
const int MostPasses = 8;

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
    "  2  the file cannot be read or cannot be repaired, or this report cannot be written\n"
    "  3  wrong usage, or a name that is not UTF-8 text\n"
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
    return options.help || (options.files.size() == 1 && !options.files.first().isEmpty());
}

/// True when every argument can be turned back into what has been given: else it would name another file.
bool areUnderstood(const QStringList& arguments, char** given)
{
    for (const QString& argument : arguments) {
        if (QFile::encodeName(argument) != *given++)
            return false;
    }
    return true;
}

/// True for a file of another user than the one who runs this, to whom what is created now belongs.
bool belongsToAnother(const QString& path)
{
    const QFileInfo file(path);
    QTemporaryFile probe(file.canonicalFilePath() + ".XXXXXX");
    return file.exists() && probe.open() && QFileInfo(probe.fileName()).ownerId() != file.ownerId();
}

/// Creates the folders that the validators need, and tells whether they will let the pass through: it would
/// leave half a repair behind if it had to stop.
bool createFolders(const QString& path, QString& error)
{
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    return validateSettings(settings, error, [](const auto&, const QVariant&, const QString&) {});
}

bool runPass(const QString& path, QString& error)
{
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    return ZelSettingsFile::Repair(settings, error);
}

/// Adds what one more pass changes to what the former ones have changed.
void add(const SettingsInspection& inspection, CheckReport& report)
{
    if (report.damage.isEmpty())
        report.damage = inspection.damage();
    for (const SettingsChange& change : inspection.changes()) {
        const auto former =
            std::find_if(report.changes.begin(), report.changes.end(),
                         [&change](const SettingsChange& other) { return other.key == change.key; });
        if (former == report.changes.end())
            report.changes.push_back(change);
        else
            former->newText = change.newText;
    }
    report.folders += inspection.folders();
    report.error = inspection.error();
}

bool repair(const QString& path, SettingsInspection inspection, CheckReport& report)
{
    if (belongsToAnother(path)) {
        report.error = "It belongs to another user, whose default folders are others: run this as that user";
        return false;
    }
    if (!createFolders(path, report.error))
        return false;
    // A pass may leave something to the next one: it takes one slash off the end of a folder, for instance.
    for (int pass = 0; !inspection.isClean(); ++pass) {
        if (pass == MostPasses) {
            report.error = "It still changes whenever it is repaired: repair it again";
            return false;
        }
        QString copy; // Kept here only to learn its name: the pass finds it there.
        if (!SettingsBackup::keepIfDamaged(path, copy, report.error) ||
            (inspection.isOlderVersion() && !migrateSettings(path, QString(), report.error)) ||
            !runPass(path, report.error))
            return false;
        if (report.copy.isEmpty())
            report.copy = copy;
        inspection = SettingsInspection(path);
        add(inspection, report);
    }
    return true;
}

CheckReport check(const QString& path, bool mayRepair)
{
    CheckReport report;
    report.file = path;
    report.state = CheckState::NotRepairable;
    if (!ZelSettingsFile::IsUsable(path, report.error))
        return report;
    const SettingsInspection inspection(path);
    add(inspection, report);
    if (inspection.isClean())
        report.state = CheckState::Clean;
    else if (report.error.isEmpty() && !mayRepair)
        report.state = CheckState::NeedsRepair;
    else if (report.error.isEmpty() && repair(path, inspection, report))
        report.state = CheckState::Repaired;
    return report;
}

/// Prints a text, and returns the exit code for it.
int print(const QByteArray& text, CheckState state)
{
    if (std::fputs(text.constData(), stdout) >= 0 && std::fflush(stdout) == 0)
        return int(state);
    std::fprintf(stderr, "torvane-settings-check: the report cannot be written: %s\n", std::strerror(errno));
    return int(CheckState::NotRepairable);
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
    return print(options.json ? report.toJson() : report.toText(), report.state);
}

} // namespace

int main(int argc, char** argv)
{
    useUtf8FileNames();
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    Options options;
    if (!areUnderstood(arguments, argv + 1) || !parse(arguments, options)) {
        std::fputs(Usage, stderr);
        return UsageError;
    }
    return options.help ? print(QByteArray(Usage) + Help, CheckState::Clean) : run(options);
}
