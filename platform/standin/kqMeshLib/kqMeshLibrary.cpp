#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

namespace {

LibraryState state("kqMeshLib");

} // namespace

void kq::initializeKqMeshLibrary()
{
    state.start();
}

void kq::terminateKqMeshLibrary()
{
    state.stop();
}
