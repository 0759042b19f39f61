#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

namespace cuebright {

/// Frees what libxcb allocates.
struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply> using XcbReply = std::unique_ptr<Reply, FreeReply>;

/// Qt's connection to the X server, with the requests that several classes need. Requests for windows that no longer
/// exist return empty values and do nothing.
class X11Connection final {
public:
    /// Null where the program does not run on an X server.
    [[nodiscard]] static std::unique_ptr<X11Connection> ofApplication();

    [[nodiscard]] xcb_connection_t* get() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_screen->root; }
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }

    [[nodiscard]] xcb_atom_t atom(const char* name) const;

    /// The 32-bit items of a property, at most 1024; empty where it has another format.
    [[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name) const;
    void setProperty(
        xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::initializer_list<std::uint32_t> items) const;
    void deleteProperty(xcb_window_t window, xcb_atom_t name) const;

    /// Sends the window manager a request about a window.
    void askWindowManager(xcb_window_t window, xcb_atom_t request, const std::array<std::uint32_t, 5>& data) const;

    /// The events that this program receives from a window.
    [[nodiscard]] std::uint32_t events(xcb_window_t window) const;
    void selectEvents(xcb_window_t window, std::uint32_t mask) const;

private:
    X11Connection(xcb_connection_t* connection, xcb_screen_t* screen, int screenNumber)
        : m_connection(connection)
        , m_screen(screen)
        , m_screenNumber(screenNumber)
    {
    }

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
    int m_screenNumber;
};

} // namespace cuebright
