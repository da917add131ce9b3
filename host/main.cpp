#include "ZelPageDefaults.h"
#include "ZelSettingsFile.h"
#include "base/ApplicationRoot.h"
#include "base/StandardStreams.h"
#include "base/ZelSystemCompat.h"
#include "launch.h"

#include <QSettings>

#include <cstdio>

namespace {

void registerDefaults()
{
    QSettings defaults("resources/Defaults.ini", QSettings::IniFormat);
    zel::ZelSettingsFile::UseFileEncoding(defaults);
    zel::ZelPageDefaults::Register(defaults);
}

} // namespace

int main(int argc, char** argv)
{
    zel::protectStandardStreams();
    if (!zel::enterApplicationRoot()) {
        std::fputs("torvane-settings: cannot enter the folder of the application\n", stderr);
        return 2;
    }
    zel::useUtf8FileNames();
    registerDefaults();
    return launch(argc, argv);
}
