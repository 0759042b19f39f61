#pragma once

#include "desktop/Process.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cuebright::test {

/// A desktop of our own: a virtual display, a window manager without key bindings, a message bus, and the hands of a
/// user on keyboard and mouse. Nothing of it touches the desktop on which the tests are started.
///
/// Positions are pixels of the display. What is asked of a window that is gone answers empty.
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

    /// What a program needs in order to find this desktop.
    [[nodiscard]] const Environment& environment() const { return m_environment; }

    /// The first window that the process has put on the screen, as the window manager lists them.
    [[nodiscard]] std::optional<WindowId> windowOf(pid_t process) const;
    [[nodiscard]] std::string title(WindowId window) const;
    /// Without the frame that the window manager draws around it.
    [[nodiscard]] Area clientArea(WindowId window) const;
    /// It has the keyboard.
    [[nodiscard]] bool isActive(WindowId window) const;
    /// Neither hidden nor minimised.
    [[nodiscard]] bool isOnScreen(WindowId window) const;
    /// In the order in which the window manager stacks them.
    [[nodiscard]] bool isAbove(WindowId upper, WindowId lower) const;
    [[nodiscard]] bool hasProperty(WindowId window, const char* name) const;
    /// Of the green on the screen, 0 to 255, at a place in the window; −1 where there is nothing.
    [[nodiscard]] int brightness(WindowId window, int x, int y) const;

    /// Another program's window with the keyboard, as large as the screen where that is asked for.
    enum class Size { Small, FullScreen };
    [[nodiscard]] WindowId openWindow(Size size);
    /// Waits until the window manager has let it go.
    void closeWindow(WindowId window);
    void leaveFullScreen(WindowId window);
    void minimise(WindowId window);
    /// Breaks the connection of the window's program to the display.
    void cutOff(WindowId window);
    /// Asks as a window's own close button does.
    void askToClose(WindowId window);
    /// Another program takes Ctrl+Shift+S for itself, as long as the result lives.
    [[nodiscard]] std::shared_ptr<void> grabHotKey();

    void restartWindowManager();
    /// Runs as long as the result lives.
    [[nodiscard]] std::unique_ptr<Process> startCompositor() const;

    /// Gives the client area another size, and waits until it has it.
    void resize(WindowId window, int width, int height);
    /// Saves what the window shows as a PNG file, once it stands still.
    void takePicture(WindowId window, const std::filesystem::path& file) const;

    /// Presses and releases the left button.
    void click(int x, int y);
    /// Presses the left button, moves in small steps, releases.
    void drag(int fromX, int fromY, int toX, int toY);
    /// A key with its modifiers, as in "Right", "ctrl+e", "ctrl+shift+Return": the key has its X11 name.
    void press(std::string_view chord);
    /// Small letters, digits, blanks and line feeds, as on a US keyboard.
    void type(std::string_view text);

private:
    struct Display;
    /// Prints to a file of its name in our folder.
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
