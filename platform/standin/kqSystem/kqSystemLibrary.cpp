#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

LibraryState state("kqSystem");
std::terminate_handler formerHandler = nullptr;

[[noreturn]] void reportCrash()
{
    std::fputs("The application ends: an exception was not handled.\n", stderr);
    std::abort();
}

} // namespace

void kq::initializeKqSystem(InitType, bool reportCrashes)
{
    if (state.start() && reportCrashes)
        formerHandler = std::set_terminate(&reportCrash);
}

void kq::terminateKqSystem()
{
    state.stop();
    if (formerHandler)
        std::set_terminate(formerHandler);
    formerHandler = nullptr;
}
