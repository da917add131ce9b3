// Starts a program and measures the time until its window is painted, and its memory:
//   first_frame COMMAND [ARGUMENT...]
// prints the time in milliseconds and, one second later, the peak of the resident memory in kilobytes.
//
// A new Qt window shows what was on the screen before, because it has no background. So this program fills
// the screen with a colour that nothing else uses. The first frame is complete when that colour is gone from
// the middle row and the middle column of the window. A window manager would add a frame, so there must be
// none.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::system_clock;

const uint32_t Unpainted = 0xff00ff;
const int MinimumWindowSize = 100; // pixels; smaller windows are helpers of Qt
const auto PollInterval = std::chrono::microseconds(500);
const auto Timeout = std::chrono::seconds(30);
const auto SlideTime = std::chrono::milliseconds(1000); // more than the 350 ms of the slides

template <class T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

void fillScreen(xcb_connection_t* display, const xcb_screen_t* screen)
{
    const uint32_t values[] = {Unpainted, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(display, screen->root, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    xcb_clear_area(display, 0, screen->root, 0, 0, 0, 0);
    xcb_flush(display);
}

pid_t start(char** command)
{
    const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(Clock::now().time_since_epoch());
    setenv("BENCHMARK_START", std::to_string(now.count()).c_str(), 1);
    const pid_t process = fork();
    if (process == 0) {
        execvp(command[0], command);
        std::perror(command[0]);
        _exit(127);
    }
    return process;
}

bool hasEnded(pid_t process)
{
    return waitpid(process, nullptr, WNOHANG) == process;
}

/// Waits for the window of the program. False when the program ends first or takes too long.
bool awaitWindow(xcb_connection_t* display, pid_t process, xcb_get_geometry_reply_t& geometry,
                 xcb_window_t& window)
{
    const auto deadline = Clock::now() + Timeout;
    while (Clock::now() < deadline && !hasEnded(process)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(display), &std::free}) {
            if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
                continue;
            window = reinterpret_cast<xcb_map_notify_event_t*>(event.get())->window;
            const Reply<xcb_get_geometry_reply_t> reply{
                xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr), &std::free};
            if (!reply || reply->width < MinimumWindowSize || reply->height < MinimumWindowSize)
                continue;
            geometry = *reply;
            return true;
        }
        std::this_thread::sleep_for(PollInterval);
    }
    return false;
}

bool isPainted(xcb_connection_t* display, xcb_window_t window, int x, int y, int width, int height)
{
    const Reply<xcb_get_image_reply_t> image{
        xcb_get_image_reply(display,
                            xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<int16_t>(x),
                                          static_cast<int16_t>(y), static_cast<uint16_t>(width),
                                          static_cast<uint16_t>(height), ~0U),
                            nullptr),
        &std::free};
    if (!image)
        return false;
    const auto* pixels = reinterpret_cast<const uint32_t*>(xcb_get_image_data(image.get()));
    return std::none_of(pixels,
                        pixels + xcb_get_image_data_length(image.get()) / static_cast<int>(sizeof(uint32_t)),
                        [](uint32_t pixel) { return (pixel & 0xffffff) == Unpainted; });
}

bool awaitFirstFrame(xcb_connection_t* display, pid_t process)
{
    xcb_get_geometry_reply_t area;
    xcb_window_t window = XCB_NONE;
    if (!awaitWindow(display, process, area, window))
        return false;
    const auto deadline = Clock::now() + Timeout;
    while (Clock::now() < deadline && !hasEnded(process)) {
        if (isPainted(display, window, 0, area.height / 2, area.width, 1) &&
            isPainted(display, window, area.width / 2, 0, 1, area.height))
            return true;
        std::this_thread::sleep_for(PollInterval);
    }
    return false;
}

std::string peakMemory(pid_t process)
{
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:" && status >> word)
            return word;
    return "0";
}

} // namespace

int main(int argc, char** argv)
{
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (argc < 2 || xcb_connection_has_error(display)) {
        std::fputs("usage: first_frame COMMAND [ARGUMENT...], on an X display\n", stderr);
        return 2;
    }
    fillScreen(display, xcb_setup_roots_iterator(xcb_get_setup(display)).data);

    const auto before = Clock::now();
    const pid_t process = start(argv + 1);
    const bool painted = awaitFirstFrame(display, process);
    const std::chrono::duration<double, std::milli> elapsed = Clock::now() - before;
    if (painted) {
        std::this_thread::sleep_for(SlideTime);
        std::printf("%.1f %s\n", elapsed.count(), peakMemory(process).c_str());
    } else {
        std::fprintf(stderr, "first_frame: %s shows no window\n", argv[1]);
    }
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    xcb_disconnect(display);
    return painted ? 0 : 1;
}
