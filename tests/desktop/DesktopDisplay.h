#pragma once

#include "desktop/Desktop.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace cuebright::test {

/// A connection to the display, as another program has one. For the sources of `Desktop` only: Xlib's macros.
struct Desktop::Display {
    explicit Display(const std::string& name)
        : connection(XOpenDisplay(name.c_str()))
    {
        if (!connection)
            throw std::runtime_error("cannot reach the display " + name);
        // A window may go away between two questions; that is no reason to end the tests.
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
        // A press at the moment of the last release would be taken for a key that repeats.
        for (const KeyCode code : codes)
            XTestFakeKeyEvent(connection, code, True, 1); // a millisecond later
        std::ranges::reverse(codes);
        for (const KeyCode code : codes)
            XTestFakeKeyEvent(connection, code, False, CurrentTime);
        XSync(connection, False);
    }

    ::Display* connection;
    ::Window root = None;
};

} // namespace cuebright::test
