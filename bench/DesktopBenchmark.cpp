// The running program on a private display: from the hot key to the window, and what it does while nothing happens.
// bench/desktop_benchmark [SECONDS of idleness, 30 unless given]
#include "desktop/RunningPanel.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

using namespace cuebright::test;

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// Presses the hot key and waits for the window.
class HotKeyWatch final {
public:
    explicit HotKeyWatch(Desktop::WindowId window)
        : m_display(XOpenDisplay(desktop().environment().at("DISPLAY").c_str()))
        , m_window(window)
    {
        XSelectInput(m_display, window, StructureNotifyMask);
        XSync(m_display, False);
    }
    ~HotKeyWatch() { XCloseDisplay(m_display); }
    HotKeyWatch(const HotKeyWatch&) = delete;
    HotKeyWatch& operator=(const HotKeyWatch&) = delete;

    Milliseconds pressAndWaitFor(int event)
    {
        const auto start = Clock::now();
        for (const Bool down : {True, False}) {
            for (const KeySym key : {XK_Control_L, XK_Shift_L, XK_s})
                XTestFakeKeyEvent(m_display, XKeysymToKeycode(m_display, key), down, down ? 1 : 0);
        }
        XFlush(m_display);
        for (XEvent seen;;) {
            XNextEvent(m_display, &seen);
            if (seen.type == event && seen.xany.window == m_window)
                return Clock::now() - start;
        }
    }

private:
    static constexpr KeySym XK_Control_L = 0xffe3;
    static constexpr KeySym XK_Shift_L = 0xffe1;
    static constexpr KeySym XK_s = 0x73;

    ::Display* m_display;
    Desktop::WindowId m_window;
};

/// How often each thread of a process has been given the processor.
std::map<std::string, long> turns(pid_t process)
{
    std::map<std::string, long> counts;
    for (const auto& task : std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        std::ifstream status(task.path() / "status");
        for (std::string word; status >> word;) {
            long number = 0;
            if ((word == "voluntary_ctxt_switches:" || word == "nonvoluntary_ctxt_switches:") && status >> number)
                counts[task.path().filename()] += number;
        }
    }
    return counts;
}

void idle(const char* what, pid_t process, int seconds)
{
    // The toolkit's helper threads for painting go half a minute after they were last used.
    std::this_thread::sleep_for(std::chrono::seconds(35));
    const auto before = turns(process);
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    long count = 0;
    for (const auto& [thread, number] : turns(process))
        count += number - (before.contains(thread) ? before.at(thread) : 0);
    std::printf("%-44s %6ld in %d s\n", what, count, seconds);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    constexpr int kPresses = 21;
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 30;
    const Home home;
    const RunningPanel panel(home, {{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "0"}}, RunningPanel::Keyboard::Left);
    HotKeyWatch watch(panel.window());
    std::vector<Milliseconds> times;
    for (int i = 0; i < kPresses; ++i) {
        (void)watch.pressAndWaitFor(UnmapNotify);
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        times.push_back(watch.pressAndWaitFor(MapNotify));
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
    }
    std::ranges::sort(times);
    std::printf("%-44s %6.1f ms (slowest %.1f), 3 ms of it the key's own pace\n", "hot key press to MapNotify, median",
        times[times.size() / 2].count(), times.back().count());
    idle("wake-ups, panel shown", panel.process(), seconds);
    (void)watch.pressAndWaitFor(UnmapNotify);
    idle("wake-ups, panel hidden", panel.process(), seconds);
    return 0;
}
