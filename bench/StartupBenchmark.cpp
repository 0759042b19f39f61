// Start of a program until its window is mapped and until it has painted, against an empty Qt window and one that draws
// the same texts, in turns.
// Needs an X display without a window manager: xvfb-run build/bench/startup_benchmark [RUNS]
#include "support/Median.h"

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto kDeadline = std::chrono::seconds(20);
constexpr int kSmallestPanel = 300; ///< narrower windows are Qt's helpers

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Reply = std::unique_ptr<T, Free>;

struct Run {
    Milliseconds mapped {};
    Milliseconds painted {};
    std::size_t colours = 0; ///< in the first frame: an unpainted window has one
    long proportionalKib = 0;
};

class Display final {
public:
    Display()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection)) {
            std::fputs("no X display\n", stderr);
            std::exit(1);
        }
        const auto setup = xcb_get_setup(m_connection);
        m_root = xcb_setup_roots_iterator(setup).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &events);
        m_damageEvent = xcb_get_extension_data(m_connection, &xcb_damage_id)->first_event;
        Reply<xcb_damage_query_version_reply_t>(
            xcb_damage_query_version_reply(m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display() { xcb_disconnect(m_connection); }

    /// Watches the window that maps until it has painted for the first time.
    std::optional<Run> watch(Clock::time_point start)
    {
        Run run;
        xcb_window_t window = 0;
        while (Clock::now() - start < kDeadline) {
            const auto event = next();
            if (!event)
                continue;
            const auto type = event->response_type & 0x7f;
            if (type == XCB_CREATE_NOTIFY) {
                const auto created = reinterpret_cast<const xcb_create_notify_event_t*>(event.get());
                if (created->width >= kSmallestPanel)
                    xcb_damage_create(m_connection, xcb_generate_id(m_connection), created->window,
                        XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
                xcb_flush(m_connection);
            } else if (type == XCB_MAP_NOTIFY && window == 0) {
                window = reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
                run.mapped = Clock::now() - start;
            } else if (type == m_damageEvent + XCB_DAMAGE_NOTIFY && window != 0) {
                run.painted = Clock::now() - start;
                run.colours = coloursOf(window);
                if (run.colours > 0)
                    return run;
            }
        }
        return std::nullopt;
    }

private:
    Reply<xcb_generic_event_t> next()
    {
        pollfd waiting {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        auto event = Reply<xcb_generic_event_t>(xcb_poll_for_event(m_connection));
        if (!event)
            ::poll(&waiting, 1, 100);
        return event;
    }

    std::size_t coloursOf(xcb_window_t window)
    {
        const auto geometry = Reply<xcb_get_geometry_reply_t>(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        if (!geometry)
            return 0;
        const auto image = Reply<xcb_get_image_reply_t>(xcb_get_image_reply(m_connection,
            xcb_get_image(
                m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, geometry->width, geometry->height, ~0U),
            nullptr));
        if (!image)
            return 0;
        const auto pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        return std::set<std::uint32_t>(pixels, pixels + xcb_get_image_data_length(image.get()) / 4).size();
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_root;
    int m_damageEvent;
};

/// Proportional set size of a process.
long proportionalKib(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; file >> word;) {
        if (long kib = 0; word == "Pss:" && file >> kib)
            return kib;
    }
    return 0;
}

std::optional<Run> start(const std::string& program)
{
    Display display;
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    pid_t process = 0;
    const auto begin = Clock::now();
    if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        return std::nullopt;
    auto run = display.watch(begin);
    if (run) {
        ::usleep(700'000); // memory includes what is done after the first frame
        run->proportionalKib = proportionalKib(process);
    }
    ::kill(process, SIGTERM);
    ::waitpid(process, nullptr, 0);
    return run;
}

template <typename Field> double medianOf(const std::vector<Run>& runs, Field field)
{
    std::vector<double> values;
    for (const auto& run : runs)
        values.push_back(field(run));
    return cuebright::bench::median(std::move(values));
}

} // namespace

int main(int argc, char* argv[])
{
    const int runCount = argc > 1 ? std::atoi(argv[1]) : 11;
    const std::string folder = std::string(argv[0]).substr(0, std::string(argv[0]).rfind('/'));
    const std::string programs[] = {
        folder + "/empty_qt_window", folder + "/qt_window_with_text", folder + "/cuebright"};
    std::vector<Run> runs[3];
    const Display keepsServerAlive; // the server resets when its last client disconnects
    for (int i = 0; i <= runCount; ++i) {
        for (int p = 0; p < 3; ++p) {
            const auto run = start(programs[p]);
            if (!run) {
                std::fprintf(stderr, "%s shows no window\n", programs[p].c_str());
                return 1;
            }
            if (i > 0) // the first run warms the caches
                runs[p].push_back(*run);
        }
    }
    const auto print = [&](const char* what, auto field) {
        const double empty = medianOf(runs[0], field);
        const double text = medianOf(runs[1], field);
        const double ours = medianOf(runs[2], field);
        std::printf("%-22s %10.1f %10.1f %10.1f %8.2f %8.2f\n", what, empty, text, ours, ours / empty, ours / text);
    };
    std::printf("%-22s %10s %10s %10s %8s %8s\n", "median", "empty", "with text", "cuebright", "/ empty", "/ text");
    print("mapped, ms", [](const Run& run) { return run.mapped.count(); });
    print("first paint, ms", [](const Run& run) { return run.painted.count(); });
    print("colours in that frame", [](const Run& run) { return static_cast<double>(run.colours); });
    print("memory (PSS), KiB", [](const Run& run) { return static_cast<double>(run.proportionalKib); });
    return 0;
}
