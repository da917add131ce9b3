#include "StandardStreams.h"

#if defined(_WIN32)
#    include <cstdlib>
#    include <windows.h>
#else
#    include <cerrno>
#    include <csignal>
#    include <fcntl.h>
#    include <unistd.h>
#endif

#if defined(_WIN32)
namespace {

UINT formerCodePage = 0;

void restoreCodePage()
{
    ::SetConsoleOutputCP(formerCodePage);
}

} // namespace
#endif

void zel::protectStandardStreams()
{
#if defined(_WIN32)
    formerCodePage = ::GetConsoleOutputCP(); // 0 without a console.
    if (formerCodePage != 0 && ::SetConsoleOutputCP(CP_UTF8))
        std::atexit(&restoreCodePage);
#else
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        // open() takes the lowest free descriptor, which is this one. With the opposite mode every use of
        // the stream still fails.
        if (::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF)
            ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
    std::signal(SIGPIPE, SIG_IGN);
#endif
}
