#include "base/ApplicationRoot.h"
#include "base/StandardStreams.h"
#include "launch.h"

#include <cstdio>

int main(int argc, char** argv)
{
    zel::protectStandardStreams();
    if (!zel::enterApplicationRoot()) {
        std::fputs("torvane-settings: cannot enter the folder of the application\n", stderr);
        return 2;
    }
    zelRegisterPageDefaults();
    return launch(argc, argv);
}
