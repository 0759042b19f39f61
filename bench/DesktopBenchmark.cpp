// The running program on a private display: from the hot key to the window, and what it does while nothing happens.
// bench/desktop_benchmark [SECONDS of idleness, 60 unless given]
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
#include <poll.h>
#include <xcb/damage.h>

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

/// Records when a window paints.
class PaintWatch final {
public:
    explicit PaintWatch(Desktop::WindowId window)
        : m_connection(xcb_connect(desktop().environment().at("DISPLAY").c_str(), nullptr))
    {
        std::free(xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
        m_paint = xcb_get_extension_data(m_connection, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
        xcb_damage_create(m_connection, xcb_generate_id(m_connection), static_cast<xcb_drawable_t>(window),
            XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        while (const auto event = xcb_poll_for_event(m_connection)) // discards earlier events
            std::free(event);
    }
    ~PaintWatch() { xcb_disconnect(m_connection); }
    PaintWatch(const PaintWatch&) = delete;
    PaintWatch& operator=(const PaintWatch&) = delete;

    /// The times of paints in the next `seconds`; those within 0.1 s count as one.
    std::vector<Milliseconds> watch(int seconds)
    {
        const auto start = Clock::now();
        std::vector<Milliseconds> times;
        while (Clock::now() - start < std::chrono::seconds(seconds)) {
            pollfd waiting {xcb_get_file_descriptor(m_connection), POLLIN, 0};
            ::poll(&waiting, 1, 20);
            while (const auto event = xcb_poll_for_event(m_connection)) {
                const Milliseconds now = Clock::now() - start;
                if ((event->response_type & 0x7f) == m_paint && (times.empty() || (now - times.back()).count() > 100))
                    times.push_back(now);
                std::free(event);
            }
        }
        return times;
    }

private:
    xcb_connection_t* m_connection;
    int m_paint;
};

/// The context switches of each thread.
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

/// Paints in that time.
std::vector<Milliseconds> idle(const char* what, const RunningPanel& panel, int seconds)
{
    // Qt's painting threads end 30 s after their last use.
    std::this_thread::sleep_for(std::chrono::seconds(35));
    PaintWatch paints(panel.window());
    const auto before = turns(panel.process());
    auto times = paints.watch(seconds);
    std::printf("%-44s", what);
    long count = 0;
    std::string each;
    for (const auto& [thread, number] : turns(panel.process())) {
        const auto more = number - (before.contains(thread) ? before.at(thread) : 0);
        count += more;
        each += more > 0 ? " " + std::to_string(more) : "";
    }
    std::printf(" %6ld in %d s (by thread:%s), %zu paints\n", count, seconds, each.empty() ? " none" : each.c_str(),
        times.size());
    std::fflush(stdout);
    return times;
}

/// The jitter of paints relative to whole seconds.
void printAlignment(const std::vector<Milliseconds>& paints)
{
    double earliest = 0;
    double latest = 0;
    for (std::size_t i = 0; i < paints.size(); ++i) {
        const double late = (paints[i] - paints[0]).count() - 1000.0 * static_cast<double>(i);
        earliest = std::min(earliest, late);
        latest = std::max(latest, late);
    }
    std::printf("%-44s %6.1f ms over all of them\n", "  they keep to whole seconds within", latest - earliest);
}

} // namespace

int main(int argc, char* argv[])
{
    constexpr int kPresses = 21;
    const int seconds = argc > 1 ? std::atoi(argv[1]) : 60;
    const Home home;
    const RunningPanel panel(home, {{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "0"}});
    idle("wake-ups, panel shown", panel, seconds);
    panel.press("Tab"); // from the card to the timer
    panel.press("space");
    const auto ticks = idle("wake-ups, timer running", panel, seconds);
    printAlignment(ticks);
    panel.press("space");
    idle("wake-ups, timer paused", panel, seconds);
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
    (void)watch.pressAndWaitFor(UnmapNotify);
    idle("wake-ups, panel hidden", panel, seconds);
    return ticks.empty() ? 1 : 0; // the timer never ran
}
