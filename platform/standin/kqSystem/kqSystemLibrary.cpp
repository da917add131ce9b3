#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

namespace {

LibraryState state("kqSystem");

} // namespace

void kq::initializeKqSystem(InitType, bool)
{
    state.start();
}

void kq::terminateKqSystem()
{
    state.stop();
}
