#include "desktop/DesktopDisplay.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

#include <unistd.h>

#include <X11/Xutil.h>

namespace cuebright::test {

namespace {

constexpr std::chrono::milliseconds kMoment {200};
constexpr const char* kReady = "_NET_CLIENT_LIST"; // a window manager is at work
constexpr const char* kScreen = "3000x1800x24"; // holds a panel of 1400 points at double size

// Left to its own devices the window manager keeps some of our shortcuts for itself.
constexpr std::string_view kWindowManagerSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <placement><policy>Smart</policy></placement>
  <theme><name>Clearlooks</name></theme>
  <desktops><number>1</number><popupTime>0</popupTime></desktops>
  <keyboard></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)";

/// The environment of the tests without anything that leads to the desktop they were started on.
Environment detachedEnvironment(const std::filesystem::path& folder)
{
    constexpr std::string_view kPrefixes[] = {
        "QT_", "XDG_", "DBUS_", "AT_SPI_", "WAYLAND_", "XAUTHORITY", "SESSION_MANAGER", "LC_", "LANG"};
    Environment environment {{"HOME", folder / "home"}, {"XDG_RUNTIME_DIR", folder / "run"}, {"LC_ALL", "C.UTF-8"},
        {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}};
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view text = *entry;
        const auto isOfDesktop = [&](std::string_view prefix) { return text.starts_with(prefix); };
        const auto equals = text.find('=');
        if (equals != std::string_view::npos && std::ranges::none_of(kPrefixes, isOfDesktop))
            environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    std::filesystem::create_directories(folder / "home");
    std::filesystem::create_directories(folder / "run");
    std::filesystem::permissions(folder / "run", std::filesystem::perms::owner_all);
    return environment;
}

} // namespace

Desktop::Desktop()
    : m_environment(detachedEnvironment(m_folder.path()))
    , m_server(start({"Xvfb", "-displayfd", "1", "-screen", "0", kScreen, "-nolisten", "tcp", "-noreset"}))
    , m_bus(start({"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"}))
{
    m_environment["DISPLAY"] = ":" + m_server->firstLine();
    m_environment["DBUS_SESSION_BUS_ADDRESS"] = m_bus->firstLine();
    m_display = std::make_unique<Display>(m_environment["DISPLAY"]);
    m_folder.write("openbox.xml", kWindowManagerSettings);
    startWindowManager();
}

Desktop::~Desktop() = default;

std::unique_ptr<Process> Desktop::start(std::vector<std::string> command) const
{
    const auto output = m_folder.file(command.front());
    return std::make_unique<Process>(
        Process::Start {std::move(command), m_environment, output, output.string() + ".log"});
}

void Desktop::startWindowManager()
{
    m_windowManager = start({"openbox", "--config-file", m_folder.file("openbox.xml")});
    // While it comes up it overlooks new windows, though it has named itself already.
    if (!waitUntil([this] { return hasProperty(m_display->root, kReady) && managesNewWindows(); }))
        throw std::runtime_error("the window manager does not come up: " + readFile(m_folder.file("openbox.log")));
}

void Desktop::restartWindowManager()
{
    m_windowManager.reset();
    // The former one leaves it behind.
    XDeleteProperty(m_display->connection, m_display->root, m_display->atom(kReady));
    startWindowManager();
}

bool Desktop::managesNewWindows() const
{
    const WindowId probe = XCreateSimpleWindow(m_display->connection, m_display->root, 0, 0, 1, 1, 0, 0, 0);
    XMapWindow(m_display->connection, probe);
    const bool isManaged =
        waitUntil([&] { return hasProperty(probe, "_NET_FRAME_EXTENTS") && isOnScreen(probe); }, kMoment);
    XDestroyWindow(m_display->connection, probe);
    XSync(m_display->connection, False);
    return isManaged;
}

std::unique_ptr<Process> Desktop::startCompositor() const
{
    auto compositor = start({"xcompmgr"});
    const Atom selection = m_display->atom("_NET_WM_CM_S0");
    if (!waitUntil([&] { return XGetSelectionOwner(m_display->connection, selection) != None; }))
        throw std::runtime_error("the compositor does not come up: " + readFile(m_folder.file("xcompmgr.log")));
    return compositor;
}

std::optional<Desktop::WindowId> Desktop::windowOf(pid_t process) const
{
    for (const WindowId window : m_display->property<WindowId>(m_display->root, "_NET_CLIENT_LIST")) {
        const auto pid = m_display->property<long>(window, "_NET_WM_PID");
        if (!pid.empty() && pid.front() == process)
            return window;
    }
    return {};
}

std::string Desktop::title(WindowId window) const
{
    const auto text = m_display->property<char>(window, "_NET_WM_NAME");
    return {text.begin(), text.end()};
}

Desktop::Area Desktop::clientArea(WindowId window) const
{
    XWindowAttributes attributes {};
    ::Window child = None;
    Area area;
    if (XGetWindowAttributes(m_display->connection, window, &attributes)
        && XTranslateCoordinates(m_display->connection, window, m_display->root, 0, 0, &area.x, &area.y, &child)) {
        area.width = attributes.width;
        area.height = attributes.height;
    }
    return area;
}

bool Desktop::isActive(WindowId window) const
{
    // The window manager may tell of it before the keyboard has come.
    ::Window focused = None;
    int whereItReturns = 0;
    XGetInputFocus(m_display->connection, &focused, &whereItReturns);
    const auto active = m_display->property<WindowId>(m_display->root, "_NET_ACTIVE_WINDOW");
    return focused == window && !active.empty() && active.front() == window;
}

bool Desktop::isOnScreen(WindowId window) const
{
    XWindowAttributes attributes {};
    return XGetWindowAttributes(m_display->connection, window, &attributes) && attributes.map_state == IsViewable;
}

bool Desktop::isAbove(WindowId upper, WindowId lower) const
{
    const auto stack = m_display->property<WindowId>(m_display->root, "_NET_CLIENT_LIST_STACKING");
    const auto upperPlace = std::ranges::find(stack, upper);
    const auto lowerPlace = std::ranges::find(stack, lower);
    return upperPlace != stack.end() && lowerPlace != stack.end() && upperPlace > lowerPlace;
}

bool Desktop::hasProperty(WindowId window, const char* name) const
{
    int count = 0;
    Atom* const atoms = XListProperties(m_display->connection, window, &count);
    const bool isThere = std::find(atoms, atoms + count, m_display->atom(name)) != atoms + count;
    XFree(atoms);
    return isThere;
}

int Desktop::brightness(WindowId window, int x, int y) const
{
    const auto area = clientArea(window);
    XImage* const image =
        XGetImage(m_display->connection, m_display->root, area.x + x, area.y + y, 1, 1, AllPlanes, ZPixmap);
    if (!image)
        return -1;
    const auto colour = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return static_cast<int>(colour >> 8 & 0xff);
}

void Desktop::resize(WindowId window, int width, int height)
{
    XResizeWindow(m_display->connection, window, static_cast<unsigned>(width), static_cast<unsigned>(height));
    XSync(m_display->connection, False);
    const auto has = [&](const Area& area) { return area.width == width && area.height == height; };
    if (!waitUntil([&] { return has(clientArea(window)); }))
        throw std::runtime_error("the window does not take its new size");
}

void Desktop::takePicture(WindowId window, const std::filesystem::path& file) const
{
    constexpr int kStill = 3;
    const std::vector<std::string> command {
        "import", "-silent", "-window", std::to_string(window), "-define", "png:exclude-chunks=date,time", file};
    std::string last;
    int same = 0;
    const bool taken = waitUntil([&] {
        auto picture = start(command)->exitStatus() == 0 ? readFile(file) : std::string();
        same = !picture.empty() && picture == last ? same + 1 : 0;
        last = std::move(picture);
        return same == kStill;
    });
    if (!taken)
        throw std::runtime_error("no picture could be taken: " + readFile(m_folder.file("import.log")));
}

} // namespace cuebright::test
