#include "FileCheck.h"

#include "CheckOptions.h"
#include "FileAccess.h"
#include "SettingsBackup.h"
#include "SettingsInspection.h"
#include "SettingsLock.h"
#include "SettingsReasons.h"
#include "ZelSettingsFile.h"
#include "base/SystemFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <vector>

namespace zel {

namespace {

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

} // namespace

CheckReport checkFile(const FileName& name, bool mayRepair)
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

} // namespace zel
