#include "ApplicationRoot.h"

#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#    include <windows.h>
#endif

namespace zel {

namespace {

std::filesystem::path executablePath(std::error_code& error)
{
#if defined(_WIN32)
    std::wstring path(32768, L'\0'); // The longest path that Windows knows.
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    if (path.empty())
        error = std::error_code(static_cast<int>(GetLastError()), std::system_category());
    return path;
#else
    return std::filesystem::read_symlink("/proc/self/exe", error);
#endif
}

} // namespace

bool enterApplicationRoot()
{
    std::error_code error;
    const std::filesystem::path executable = executablePath(error);
    if (error)
        return false;
    std::filesystem::current_path(executable.parent_path().parent_path(), error);
    return !error;
}

} // namespace zel
