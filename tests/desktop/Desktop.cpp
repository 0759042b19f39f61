#include "desktop/Desktop.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include <unistd.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

namespace cuebright::test {

namespace {

constexpr std::chrono::milliseconds kMoment {200};
constexpr const char* kReady = "_NET_CLIENT_LIST"; // set by a running window manager
constexpr const char* kScreen = "3000x1800x24"; // fits a panel of 1400 points at scale 2

// The default configuration grabs some of the program's shortcuts.
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

/// The environment without variables of the desktop on which the tests were started.
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

KeySym keyNamed(std::string_view name)
{
    const std::map<std::string_view, const char*> modifiers {
        {"ctrl", "Control_L"}, {"alt", "Alt_L"}, {"shift", "Shift_L"}};
    const auto modifier = modifiers.find(name);
    const KeySym key = XStringToKeysym(modifier == modifiers.end() ? std::string(name).c_str() : modifier->second);
    if (key == NoSymbol)
        throw std::runtime_error("no key is called " + std::string(name));
    return key;
}

} // namespace

/// A connection to the display.
struct Desktop::Display {
    explicit Display(const std::string& name)
        : connection(XOpenDisplay(name.c_str()))
    {
        if (!connection)
            throw std::runtime_error("cannot reach the display " + name);
        // A window may be closed between two requests.
        XSetErrorHandler([](::Display*, XErrorEvent*) { return 0; });
        root = DefaultRootWindow(connection);
    }
    ~Display() { XCloseDisplay(connection); }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    [[nodiscard]] Atom atom(const char* name) const { return XInternAtom(connection, name, False); }

    template <typename Item> std::vector<Item> property(WindowId window, const char* name) const
    {
        Atom type = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        std::vector<Item> items;
        XGetWindowProperty(
            connection, window, atom(name), 0, 4096, False, AnyPropertyType, &type, &format, &count, &left, &data);
        if (const auto* const first = reinterpret_cast<const Item*>(data))
            items.assign(first, first + count);
        XFree(data);
        return items;
    }

    void tap(const std::vector<KeySym>& keys)
    {
        std::vector<KeyCode> codes;
        for (const KeySym key : keys)
            codes.push_back(XKeysymToKeycode(connection, key));
        // A press in the same millisecond as the last release counts as key repeat.
        for (const KeyCode code : codes)
            XTestFakeKeyEvent(connection, code, True, 1);
        std::ranges::reverse(codes);
        for (const KeyCode code : codes)
            XTestFakeKeyEvent(connection, code, False, CurrentTime);
        XSync(connection, False);
    }

    ::Display* connection;
    ::Window root = None;
};

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
    // It sets the property before it manages new windows.
    if (!waitUntil([this] { return hasProperty(m_display->root, kReady) && managesNewWindows(); }))
        throw std::runtime_error("the window manager does not come up: " + readFile(m_folder.file("openbox.log")));
}

void Desktop::restartWindowManager()
{
    m_windowManager.reset();
    // The previous one does not remove it.
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
    // The property may change before the focus does.
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

void Desktop::askWindowManager(WindowId window, const char* request, const std::vector<long>& data) const
{
    XEvent event {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = m_display->atom(request);
    event.xclient.format = 32;
    std::ranges::copy(data, event.xclient.data.l);
    XSendEvent(
        m_display->connection, m_display->root, False, SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XSync(m_display->connection, False);
}

Desktop::WindowId Desktop::openWindow(Size size)
{
    const WindowId window =
        XCreateSimpleWindow(m_display->connection, m_display->root, 20, 20, 300, 200, 0, 0, 0x336699);
    if (size == Size::FullScreen) {
        const Atom fullScreen = m_display->atom("_NET_WM_STATE_FULLSCREEN");
        XChangeProperty(m_display->connection, window, m_display->atom("_NET_WM_STATE"), XA_ATOM, 32, PropModeReplace,
            reinterpret_cast<const unsigned char*>(&fullScreen), 1);
    }
    XMapWindow(m_display->connection, window);
    if (!waitUntil([&] { return isOnScreen(window); }))
        throw std::runtime_error("the window does not come up");
    askWindowManager(window, "_NET_ACTIVE_WINDOW", {2, 0, 0, 0, 0}); // 2: requested by the user
    if (!waitUntil([&] { return isActive(window); }))
        throw std::runtime_error("the window does not get the keyboard");
    return window;
}

void Desktop::closeWindow(WindowId window)
{
    XDestroyWindow(m_display->connection, window);
    XSync(m_display->connection, False);
    (void)waitUntil([&] {
        const auto managed = m_display->property<WindowId>(m_display->root, "_NET_CLIENT_LIST");
        return std::ranges::find(managed, window) == managed.end();
    });
}

void Desktop::leaveFullScreen(WindowId window)
{
    const Atom fullScreen = m_display->atom("_NET_WM_STATE_FULLSCREEN");
    askWindowManager(window, "_NET_WM_STATE", {0, static_cast<long>(fullScreen), 0, 2, 0}); // 0: remove
}

void Desktop::minimise(WindowId window)
{
    XIconifyWindow(m_display->connection, window, DefaultScreen(m_display->connection));
    XSync(m_display->connection, False);
}

void Desktop::cutOff(WindowId window)
{
    XKillClient(m_display->connection, window);
    XSync(m_display->connection, False);
}

void Desktop::askToClose(WindowId window) { askWindowManager(window, "_NET_CLOSE_WINDOW", {0, 2, 0, 0, 0}); }

std::shared_ptr<void> Desktop::grabHotKey()
{
    auto other = std::make_shared<Display>(m_environment.at("DISPLAY"));
    XGrabKey(other->connection, XKeysymToKeycode(other->connection, XStringToKeysym("s")), ControlMask | ShiftMask,
        other->root, False, GrabModeAsync, GrabModeAsync);
    XSync(other->connection, False);
    return other;
}

void Desktop::click(int x, int y)
{
    XTestFakeMotionEvent(m_display->connection, -1, x, y, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, True, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, False, CurrentTime);
    XSync(m_display->connection, False);
}

void Desktop::drag(int fromX, int fromY, int toX, int toY)
{
    constexpr int kSteps = 20;
    XTestFakeMotionEvent(m_display->connection, -1, fromX, fromY, CurrentTime);
    XTestFakeButtonEvent(m_display->connection, Button1, True, CurrentTime);
    for (int step = 1; step <= kSteps; ++step) {
        XTestFakeMotionEvent(m_display->connection, -1, fromX + (toX - fromX) * step / kSteps,
            fromY + (toY - fromY) * step / kSteps, 10); // milliseconds per step
    }
    XTestFakeButtonEvent(m_display->connection, Button1, False, 50);
    XSync(m_display->connection, False);
}

void Desktop::press(std::string_view chord)
{
    std::vector<KeySym> keys;
    for (auto plus = chord.find('+'); plus != std::string_view::npos; plus = chord.find('+')) {
        keys.push_back(keyNamed(chord.substr(0, plus)));
        chord.remove_prefix(plus + 1);
    }
    keys.push_back(keyNamed(chord));
    m_display->tap(keys);
}

void Desktop::type(std::string_view text)
{
    for (const char letter : text)
        m_display->tap({letter == '\n' ? keyNamed("Return") : static_cast<unsigned char>(letter)});
}

} // namespace cuebright::test
