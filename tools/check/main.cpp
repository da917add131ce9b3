#include "CheckOptions.h"
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

CheckReport check(const FileName& name, bool mayRepair)
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
CheckState run(const CheckOptions& options)
{
    CheckState worst = options.isComplete ? CheckState::Clean : CheckState::NotRepairable;
    for (const FileName& file : options.files) {
        const CheckReport report = check(file, options.repair);
        worst = worseOf(worst, report.state);
        if (!print(options.json ? report.toJson() : report.toText()))
            worst = CheckState::NotRepairable;
    }
    return worst;
}

CheckState runWithPlatform(const CheckOptions& options)
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
    std::vector<FileName> arguments;
    for (const QString& argument : programArguments())
        arguments.push_back({argument, QFile::encodeName(argument) == *++argv});
    CheckOptions options;
    if (!parse(arguments, options)) {
        std::fputs(Usage, stderr);
        return UsageError;
    }
    if (options.answer.isEmpty())
        return static_cast<int>(runWithPlatform(options));
    return static_cast<int>(print(options.answer) ? CheckState::Clean : CheckState::NotRepairable);
}
