#pragma once

#include "desktop/Process.h"

#include <string>
#include <string_view>
#include <vector>

namespace cuebright::test {

/// Reads a program over the accessibility bus, as a screen reader does.
///
/// Finds only elements that are showing. One per process: the library has one connection.
class ScreenReader final {
public:
    /// Sets the environment of this process, in which the library finds its bus.
    explicit ScreenReader(const Environment& desktop);

    struct Element {
        std::string role;
        std::string hint;
    };
    /// All elements of exactly that name, in the order of the tree.
    [[nodiscard]] std::vector<Element> find(pid_t program, std::string_view name) const;
    /// Performs the element's press action; false if there is none.
    bool press(pid_t program, std::string_view name) const;
    /// The text of the first editable element; empty if there is none.
    [[nodiscard]] std::string editableText(pid_t program) const;
    /// One element per line, for failure messages.
    [[nodiscard]] std::string describe(pid_t program) const;
};

} // namespace cuebright::test
