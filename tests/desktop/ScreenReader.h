#pragma once

#include "desktop/Process.h"

#include <functional>
#include <memory>
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

    /// True when the program shows an element of exactly that name.
    [[nodiscard]] bool finds(pid_t program, std::string_view name) const;
    /// The roles of all elements of that name, in the order of the tree.
    [[nodiscard]] std::vector<std::string> roles(pid_t program, std::string_view name) const;
    /// The description of the first element of that name; empty where there is none.
    [[nodiscard]] std::string hint(pid_t program, std::string_view name) const;
    /// True when the first element of that name can be used.
    [[nodiscard]] bool isEnabled(pid_t program, std::string_view name) const;
    /// Does what Return on the element would do; false where there is none or it offers no action.
    bool press(pid_t program, std::string_view name) const;
    /// The text of the first field that can be written into; empty where there is none.
    [[nodiscard]] std::string editableText(pid_t program) const;
    /// Every element on a line of its own, for messages of failed tests.
    [[nodiscard]] std::string describe(pid_t program) const;

private:
    struct Element;
    using Visitor = std::function<bool(const Element&)>;
    static void visit(pid_t program, const Visitor& goesOn);
    static bool visitBelow(const Element& element, int depth, const Visitor& goesOn);
};

} // namespace cuebright::test
