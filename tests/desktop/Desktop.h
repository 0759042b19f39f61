#pragma once

#include "desktop/Process.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright::test {

/// A private desktop: a virtual display, a window manager without key bindings, a message bus, and simulated
/// keyboard and mouse input. Independent of the desktop on which the tests are started.
///
/// Positions are pixels of the display. Queries about a closed window return empty values.
class Desktop final {
public:
    using WindowId = unsigned long;
    struct Area {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        friend bool operator==(const Area&, const Area&) = default;
    };

    Desktop();
    ~Desktop();

    /// For programs to be started on this desktop.
    [[nodiscard]] const Environment& environment() const { return m_environment; }

    /// The first window of the process in the window manager's list.
    [[nodiscard]] std::optional<WindowId> windowOf(pid_t process) const;
    [[nodiscard]] std::string title(WindowId window) const;
    /// Without the window manager's frame.
    [[nodiscard]] Area clientArea(WindowId window) const;
    /// Active, with keyboard focus.
    [[nodiscard]] bool isActive(WindowId window) const;
    /// Neither hidden nor minimised.
    [[nodiscard]] bool isOnScreen(WindowId window) const;
    /// In the window manager's stacking order.
    [[nodiscard]] bool isAbove(WindowId upper, WindowId lower) const;
    [[nodiscard]] bool hasProperty(WindowId window, const char* name) const;
    /// The green component, 0 to 255, of a pixel of the window; −1 on failure.
    [[nodiscard]] int brightness(WindowId window, int x, int y) const;

    /// Opens and activates a window of another program.
    enum class Size { Small, FullScreen };
    [[nodiscard]] WindowId openWindow(Size size);
    /// Waits until the window manager has removed it.
    void closeWindow(WindowId window);
    void leaveFullScreen(WindowId window);
    void minimise(WindowId window);
    /// Closes the display connection of the window's program.
    void cutOff(WindowId window);
    /// As the close button does.
    void askToClose(WindowId window);
    /// Another program grabs Ctrl+Shift+S while the result lives.
    [[nodiscard]] std::shared_ptr<void> grabHotKey();

    void restartWindowManager();
    /// Runs while the result lives.
    [[nodiscard]] std::unique_ptr<Process> startCompositor() const;

    /// Presses and releases the left button.
    void click(int x, int y);
    /// Presses the left button, moves in small steps, releases.
    void drag(int fromX, int fromY, int toX, int toY);
    /// A key with modifiers, by its X11 name: "Right", "ctrl+e", "ctrl+shift+Return".
    void press(std::string_view chord);
    /// Types lower-case letters, digits, spaces and line feeds.
    void type(std::string_view text);

private:
    struct Display;
    /// Its output goes to a file of its name in `m_folder`.
    [[nodiscard]] std::unique_ptr<Process> start(std::vector<std::string> command) const;
    void startWindowManager();
    [[nodiscard]] bool managesNewWindows() const;
    void askWindowManager(WindowId window, const char* request, const std::vector<long>& data) const;

    TemporaryFolder m_folder;
    Environment m_environment;
    std::unique_ptr<Process> m_server;
    std::unique_ptr<Process> m_bus;
    std::unique_ptr<Process> m_windowManager;
    std::unique_ptr<Display> m_display;
};

} // namespace cuebright::test
