#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

namespace {

LibraryState state("kqSimplificationLib");

} // namespace

void kq::initializeKqSimplificationLibrary()
{
    state.start();
}

void kq::terminateKqSimplificationLibrary()
{
    state.stop();
}
