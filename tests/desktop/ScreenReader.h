#pragma once

#include "desktop/Process.h"

#include <string>
#include <string_view>
#include <vector>

namespace cuebright::test {

/// What a screen reader gets to know of a program, over the accessibility bus.
///
/// Only elements that are on the screen are found. One per process: the library behind it has one connection.
class ScreenReader final {
public:
    /// The environment is taken over into this process, which is how the library finds its bus.
    explicit ScreenReader(const Environment& desktop);

    struct Element {
        std::string role;
        std::string hint;
        bool isEnabled;
    };
    /// All elements of exactly that name, in the order of the tree.
    [[nodiscard]] std::vector<Element> find(pid_t program, std::string_view name) const;
    /// Does what Return on the element would do; false where there is none or it offers no action.
    bool press(pid_t program, std::string_view name) const;
    /// The text of the first field that can be written into; empty where there is none.
    [[nodiscard]] std::string editableText(pid_t program) const;
    /// Every element on a line of its own, for messages of failed tests.
    [[nodiscard]] std::string describe(pid_t program) const;
};

} // namespace cuebright::test
