#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

namespace {

LibraryState state("kqSceneGraph");

} // namespace

void kq::initializeKqSceneGraph()
{
    state.start();
}

void kq::terminateKqSceneGraph()
{
    state.stop();
}
