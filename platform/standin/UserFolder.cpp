#include "platform/standin/UserFolder.h"

#include <cstdlib>

#if defined(_WIN32)
#    include <QString>

#    include <shlobj.h>
#    include <vector>
#    include <windows.h>
#else
#    include <pwd.h>
#    include <unistd.h>
#endif

namespace {

std::string withoutSlashAtEnd(std::string path)
{
    while (!path.empty() && (path.back() == '/' || path.back() == '\\'))
        path.pop_back();
    return path;
}

#if defined(_WIN32)

std::string utf8(const wchar_t* text)
{
    return QString::fromWCharArray(text).toUtf8().constData();
}

std::string folderUtf8(const wchar_t* variable, int systemFolder)
{
    // Not _wgetenv(), which may know only what the code page of the system can express.
    std::vector<wchar_t> path(32768); // The longest path of the system.
    const DWORD length = GetEnvironmentVariableW(variable, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length >= path.size())
        SHGetFolderPathW(nullptr, systemFolder, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return utf8(path.data());
}

#else

/// Empty if the path is not absolute: a relative one would depend on the working directory.
std::string absolutePathFrom(const char* variable)
{
    const char* value = std::getenv(variable);
    return value && *value == '/' ? value : "";
}

std::string homeFolder()
{
    const std::string home = absolutePathFrom("HOME");
    if (!home.empty())
        return home;
    const passwd* account = ::getpwuid(::geteuid());
    return account && account->pw_dir ? account->pw_dir : "";
}

std::string folderUtf8(const char* variable, const char* belowHome)
{
    const std::string path = absolutePathFrom(variable);
    return path.empty() ? withoutSlashAtEnd(homeFolder()) + belowHome : path;
}

#endif

} // namespace

std::string userFolderUtf8(UserFolder folder)
{
    const bool settings = folder == UserFolder::Settings;
#if defined(_WIN32)
    const std::string path = settings ? folderUtf8(L"APPDATA", CSIDL_APPDATA)
                                      : folderUtf8(L"LOCALAPPDATA", CSIDL_LOCAL_APPDATA) + "/Temp";
#else
    const std::string path =
        settings ? folderUtf8("XDG_CONFIG_HOME", "/.config") : folderUtf8("XDG_CACHE_HOME", "/.cache");
#endif
    return withoutSlashAtEnd(path);
}
