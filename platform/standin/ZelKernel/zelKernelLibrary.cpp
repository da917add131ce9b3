#include "platform/MTLogger.h"
#include "platform/kqLibraries.h"
#include "platform/standin/LibraryState.h"

namespace {

LibraryState state("ZelKernel");

} // namespace

void zel::zelInitializeKernelLibrary()
{
    if (state.start())
        MTLogger::Log("info", "Kernel started");
}

void zel::zelTerminateKernelLibrary()
{
    if (state.stop())
        MTLogger::Log("info", "Kernel stopped");
    MTLogger::RemoveFileHandler();
}
