// Runs the settings editor with the same arguments. Its first start only asks for the renderer and returns 1;
// this program then runs it again.

#include <string>
#include <windows.h>

namespace {

const DWORD RendererChosen = 1;
const DWORD NotStarted = 2;

std::wstring editorPath()
{
    std::wstring path(32768, L'\0'); // The longest path that Windows knows.
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\') + 1) + L"torvane-settings.exe";
}

/// The command line without the name of the program.
std::wstring arguments()
{
    const std::wstring line = GetCommandLineW();
    const bool quoted = line.compare(0, 1, L"\"") == 0;
    const std::size_t end = quoted ? line.find(L'"', 1) : line.find_first_of(L" \t");
    return end == std::wstring::npos ? std::wstring() : line.substr(quoted ? end + 1 : end);
}

DWORD runEditor(const std::wstring& path)
{
    std::wstring line = L'"' + path + L'"' + arguments();
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return NotStarted;
    DWORD exitCode = NotStarted;
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return exitCode;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int)
{
    const std::wstring path = editorPath();
    const DWORD exitCode = runEditor(path);
    return static_cast<int>(exitCode == RendererChosen ? runEditor(path) : exitCode);
}
