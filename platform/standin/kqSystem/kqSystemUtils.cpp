#include "platform/kqSystemUtils.h"

#if defined(_WIN32)
#    include <QString>

#    include <lmcons.h>
#    include <windows.h>
#else
#    include <pwd.h>
#    include <unistd.h>
#endif

std::string kqSystemUtils::GetCurrentUserNameUtf8()
{
#if defined(_WIN32)
    wchar_t name[UNLEN + 1] = L"";
    DWORD size = UNLEN + 1;
    if (GetUserNameW(name, &size) && *name)
        return QString::fromWCharArray(name).toUtf8().constData();
    return "user";
#else
    // In containers the user id often has no account.
    const passwd* account = ::getpwuid(::geteuid());
    return account && *account->pw_name ? account->pw_name : "user" + std::to_string(::geteuid());
#endif
}
