#include "CheckReport.h"
#include "FileAccess.h"
#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "SettingsLock.h"
#include "SettingsReasons.h"
#include "SettingsValidation.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "base/StandardStreams.h"
#include "base/SystemCompat.h"
#include "base/SystemFiles.h"
#include "base/VersionNumbers.h"

#include "platform/kqLibraries.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

using namespace zel;

const int UsageError = 3;
const int MaximumPasses = 8;

const char* const Usage = "usage: torvane-settings-check [--repair] [--json] [--] FILE...\n";

const char* const Version = "torvane-settings-check " ZEL_MAJOR_MINOR_RELEASE_REVISION "\n";

const char* const Help = R"(
Shows what the viewer and its settings editor will change in settings files when they start: missing and
invalid values, lines that cannot be read, and folders that they have to create. Touches nothing without
--repair. "-" stands for a list of names on standard input: each ends with a zero byte if the list has any
(find -print0), or else with its line.

  --repair    make these changes now; a dated copy of a damaged file is kept beside it
  --json      print one JSON object for each file, on a line of its own
  -h, --help  print this text
  --version   print the version

Exit codes, of which the worst of all files counts; from good to bad:
  0  the file is clean
  4  the file has been repaired
  1  the file needs a repair; nothing has been changed
  2  the file cannot be read, written or repaired, or this report cannot be written
  3  wrong usage

The members of the JSON object, all always there:
  file         the name, with U+FFFD for what is not UTF-8 text
  state        "clean", "needs repair", "repaired" or "not repairable"
  freshStart   true if the editor keeps only the language of the file, and a copy; a repair keeps its values
  damage       what of the file is lost, or that a write was cut short; null if neither
  changes      for each changed value an object of texts: key, old (null if the key is missing), new, reason
  folders      the folders that are missing, or were created
  copy         the copy that holds what the file held before the repair, or null
  error        why the file is not repairable, or null
Later versions may add members, and change texts that are not quoted here.

Only the keys that the library itself registers are checked, not those of the pages
(resources/Defaults.ini). The viewer checks more when it starts, and keys that are unknown here stay as they
are. In a file that does not exist every key is missing; only the editor creates it. The default folders are
those of the user who runs the check: run it as the owner of the file.
)";

/// A name as the user gave it. Decoding changes one that is not UTF-8, so that it names another file.
struct Name
{
    QString text;
    bool isText;
};

struct Options
{
    bool repair = false;
    bool json = false;
    QByteArray answer; ///< What to print instead of a check.
    std::vector<Name> files;
    bool isComplete = true; ///< False when the list of files cannot be read to its end.
};

Name decoded(const QByteArray& name)
{
    const QString text = QFile::decodeName(name);
    return {text, QFile::encodeName(text) == name};
}

/// Adds the names on standard input.
void readNames(Options& options)
{
    // Not with QFile: it does not wait for a slow writer, and takes that for an error of the stream.
    QByteArray list;
    char part[4096];
    while (const size_t length = std::fread(part, 1, sizeof part, stdin))
        list.append(part, static_cast<int>(length));
    for (const QByteArray& name : list.split(list.contains('\0') ? '\0' : '\n')) {
        if (!name.isEmpty())
            options.files.push_back(decoded(name));
    }
    if (std::ferror(stdin)) {
        std::fputs("torvane-settings-check: the list of files cannot be read\n", stderr);
        options.isComplete = false;
    }
}

/// False when an option is unknown, or there is nothing to do.
bool parse(const std::vector<Name>& arguments, Options& options)
{
    bool mayBeOption = true;
    std::vector<Name> files;
    for (const Name& argument : arguments) {
        const QString& text = argument.text;
        if (!mayBeOption || !text.startsWith('-') || text == "-")
            files.push_back(argument);
        else if (text == "--")
            mayBeOption = false;
        else if (text == "--repair")
            options.repair = true;
        else if (text == "--json")
            options.json = true;
        else if (text == "--help" || text == "-h")
            options.answer = QByteArray(Usage) + Help;
        else if (text == "--version")
            options.answer = Version;
        else
            return false;
    }
    if (!options.answer.isEmpty())
        return true;
    for (const Name& file : files) {
        if (file.text.isEmpty())
            return false;
        if (file.text == "-")
            readNames(options);
        else
            options.files.push_back(file);
    }
    return !files.empty();
}

/// Stores the changes, also those of a migration.
bool storeChanges(const QString& path, const std::vector<SettingsChange>& changes, QString& error)
{
    const auto store = [&](QSettings& settings, QString&) {
        for (const SettingsChange& change : changes) {
            if (settings.value(change.key) == change.old) // Else another program has just written it.
                settings.setValue(change.key, change.newText);
        }
        return true;
    };
    return ZelSettingsFile::Write(*ZelSettingsFile::Open(path), store, error);
}

/// Adds what one more pass changes to what the earlier ones have changed.
void add(const SettingsInspection& inspection, CheckReport& report)
{
    for (const SettingsChange& change : inspection.changes()) {
        const auto earlier =
            std::find_if(report.changes.begin(), report.changes.end(),
                         [&change](const SettingsChange& other) { return other.key == change.key; });
        if (earlier == report.changes.end())
            report.changes.push_back(change);
        else
            earlier->newText = change.newText;
    }
    report.folders += inspection.folders();
    report.error = inspection.error();
}

bool repair(const QString& path, SettingsInspection inspection, CheckReport& report)
{
    if (QFile::exists(path) && !isOwnFile(path)) {
        report.error = "It belongs to another user, whose default folders are others: run this as that user";
        return false;
    }
    QString reason;
    if (!finishKilledWrite(path, Deadline(), reason))
        return refuseWriting(path, reason, report.error);
    // A validator that stops the pass would leave half of a repair in the file.
    if (!ZelSettingsFile::IsUsable(path, report.error) || !createFolders(path, report.error))
        return false;
    for (int pass = 0; !inspection.isClean(); ++pass) {
        if (pass == MaximumPasses) {
            report.error = "It still changes whenever it is repaired: repair it again";
            return false;
        }
        if (!storeChanges(path, inspection.changes(), report.error))
            return false;
        inspection = SettingsInspection(path);
        add(inspection, report);
    }
    return true;
}

CheckReport check(const Name& name, bool mayRepair)
{
    const QString& path = name.text;
    CheckReport report;
    report.file = path;
    report.state = CheckState::NotRepairable;
    if (!name.isText)
        report.error = "Its name is not UTF-8 text";
    else if (mayRepair && !QFile::exists(path) && !QFileInfo(path).isSymLink())
        report.error = "It does not exist: only the editor creates it, when it starts";
    QByteArray before;
    QString reason;
    if (report.error.isEmpty() && !readFile(path, before, reason))
        refuseReading(path, reason, report.error);
    if (!report.error.isEmpty())
        return report;
    const SettingsInspection inspection(path);
    report.damage = inspection.damage();
    add(inspection, report);
    const bool exists = QFile::exists(path);
    if (inspection.isClean())
        report.state = CheckState::Clean;
    else if (report.error.isEmpty() && !mayRepair)
        report.state = CheckState::NeedsRepair;
    else if (report.error.isEmpty() && repair(path, inspection, report))
        report.state = CheckState::Repaired;
    report.isFreshStart =
        exists && inspection.migration() == Migration::FreshStart && report.state != CheckState::Repaired;
    if (mayRepair && report.state != CheckState::Clean)
        report.copy = backupWith(path, before);
    return report;
}

/// False when the text cannot be written.
bool print(const QByteArray& text)
{
    if (std::fputs(text.constData(), stdout) >= 0 && std::fflush(stdout) == 0)
        return true;
    std::fprintf(stderr, "torvane-settings-check: the report cannot be written: %s\n", std::strerror(errno));
    return false;
}

/// Checks all files, even after one that cannot be read. Returns the worst outcome.
CheckState run(const Options& options)
{
    CheckState worst = options.isComplete ? CheckState::Clean : CheckState::NotRepairable;
    for (const Name& file : options.files) {
        const CheckReport report = check(file, options.repair);
        worst = worseOf(worst, report.state);
        if (!print(options.json ? report.toJson() : report.toText()))
            worst = CheckState::NotRepairable;
    }
    return worst;
}

CheckState runWithPlatform(const Options& options)
{
    kq::initializeKqSystem(kq::InitConsole, false);
    zelInitializeKernelLibrary();
    ZelSettingsCatalogue::InitDefaultSettingsValues(StandAloneApplicationName);
    const CheckState worst = run(options);
    ZelSettingsRegistry::ClearSettingsValues();
    zelTerminateKernelLibrary();
    kq::terminateKqSystem();
    return worst;
}

} // namespace

int main(int argc, char** argv)
{
    protectStandardStreams();
    useUtf8FileNames();
    const QCoreApplication application(argc, argv);
    std::vector<Name> arguments;
    for (const QString& argument : programArguments())
        arguments.push_back({argument, QFile::encodeName(argument) == *++argv});
    Options options;
    if (!parse(arguments, options)) {
        std::fputs(Usage, stderr);
        return UsageError;
    }
    if (options.answer.isEmpty())
        return static_cast<int>(runWithPlatform(options));
    return static_cast<int>(print(options.answer) ? CheckState::Clean : CheckState::NotRepairable);
}
