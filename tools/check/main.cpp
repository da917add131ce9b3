#include "CheckReport.h"
#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "SettingsValidation.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "base/StandardStreams.h"
#include "base/SystemFiles.h"
#include "base/ZelSystemCompat.h"

#include "platform/kqLibraries.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <system_error>

namespace {

using namespace zel;

const int UsageError = 3;
const int MaximumPasses = 8;

const char* const Usage = "usage: torvane-settings-check [--repair] [--json] [--] FILE...\n";

const char* const Help = R"(
Shows what the viewer and its settings editor will change in settings files when they start: missing and
invalid values, lines that cannot be read, and folders that they have to create. Changes nothing without
--repair. "-" stands for a list of names on standard input, one on each line.

  --repair    make these changes now; a dated copy of a damaged file is kept beside it
  --json      print one JSON object for each file instead of lines
  -h, --help  print this text

Exit codes, of which the worst of all files counts; from good to bad:
  0  the file is clean
  4  the file has been repaired
  1  the file needs a repair; nothing has been changed
  2  the file cannot be read, written or repaired, or this report cannot be written
  3  wrong usage, or a name that is not UTF-8 text

Only the keys that the library itself registers are checked, not those of the pages
(resources/Defaults.ini). The viewer checks more when it starts, and keys that are unknown here stay as they
are. In a file that does not exist every key is missing. The default folders are those of the user who runs
the check: run it as the owner of the file. Of a file whose "settingsVersion" is below 1 the editor keeps
only the language, and a copy: the report calls this a fresh start. A repair keeps its values.
)";

struct Options
{
    bool repair = false;
    bool json = false;
    bool help = false;
    QStringList files;
    bool isComplete = true; ///< False when the list of files cannot be read to its end.
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
        else if (argument == "--help" || argument == "-h")
            options.help = true;
        else if (argument.startsWith('-') && argument != "-")
            return false;
        else
            options.files += argument;
    }
    return options.help || (!options.files.isEmpty() && !options.files.contains(QString()));
}

/// False when decoding has changed an argument, which then names another file.
bool areDecoded(const QStringList& arguments, char** given)
{
    for (const QString& argument : arguments) {
        if (QFile::encodeName(argument) != *given++)
            return false;
    }
    return true;
}

/// Replaces "-" by the names on standard input, one on each line. False when a name is not UTF-8 text.
bool readNames(Options& options)
{
    QStringList all;
    for (const QString& file : options.files) {
        if (file != "-") {
            all += file;
            continue;
        }
        QFile input;
        input.open(stdin, QIODevice::ReadOnly);
        // readLine() is empty at the end and after an error.
        for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine()) {
            if (line.endsWith('\n'))
                line.chop(1);
            const QString name = QFile::decodeName(line);
            if (QFile::encodeName(name) != line || line.contains('\0'))
                return false;
            if (!name.isEmpty())
                all += name;
        }
        if (std::ferror(stdin)) { // QFile does not tell.
            std::fputs("torvane-settings-check: the list of files cannot be read\n", stderr);
            options.isComplete = false;
        }
    }
    options.files = all;
    return true;
}

/// Creates the folders that the validators need. False when a validator would stop the pass, which would
/// leave half of a repair in the file.
bool createFolders(const QString& path, QString& error)
{
    return validateSettings(*ZelSettingsFile::Open(path), error,
                            [](const auto&, const QVariant&, const QString&) {});
}

bool runPass(const QString& path, QString& error)
{
    return ZelSettingsFile::Repair(*ZelSettingsFile::Open(path), error);
}

/// Adds the changes of one more pass to those of the earlier passes.
void add(const SettingsInspection& inspection, CheckReport& report)
{
    if (report.damage.isEmpty())
        report.damage = inspection.damage();
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
    if (!createFolders(path, report.error))
        return false;
    // A pass may leave work for the next one: it removes only one slash from the end of a folder, for
    // instance.
    for (int pass = 0; !inspection.isClean(); ++pass) {
        if (pass == MaximumPasses) {
            report.error = "It still changes whenever it is repaired: repair it again";
            return false;
        }
        if ((inspection.migration() == Migration::Upgrade &&
             !migrateSettings(path, QString(), report.error)) ||
            !runPass(path, report.error))
            return false;
        inspection = SettingsInspection(path);
        add(inspection, report);
    }
    return true;
}

QString latestCopy(const QString& path)
{
    const QStringList copies = backupsOf(path);
    return copies.isEmpty() ? QString() : copies.last();
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
    const bool exists = QFile::exists(path);
    const QString previousCopy = latestCopy(path);
    if (inspection.isClean())
        report.state = CheckState::Clean;
    else if (report.error.isEmpty() && !mayRepair)
        report.state = CheckState::NeedsRepair;
    else if (report.error.isEmpty() && repair(path, inspection, report))
        report.state = CheckState::Repaired;
    report.isFreshStart =
        exists && inspection.migration() == Migration::FreshStart && report.state != CheckState::Repaired;
    if (latestCopy(path) != previousCopy)
        report.copy = latestCopy(path);
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
    for (const QString& file : options.files) {
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
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    Options options;
    if (!areDecoded(arguments, argv + 1) || !parse(arguments, options) ||
        (!options.help && !readNames(options))) {
        std::fputs(Usage, stderr);
        return UsageError;
    }
    if (!options.help)
        return static_cast<int>(runWithPlatform(options));
    return static_cast<int>(print(QByteArray(Usage) + Help) ? CheckState::Clean : CheckState::NotRepairable);
}
