#include "CheckOptions.h"
#include "FileCheck.h"
#include "SettingsKeys.h"
#include "ZelSettingsCatalogue.h"
#include "ZelSettingsRegistry.h"
#include "base/StandardStreams.h"
#include "base/SystemCompat.h"

#include "platform/kqLibraries.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

using namespace zel;

const int UsageError = 3;

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
        const CheckReport report = checkFile(file, options.repair);
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
