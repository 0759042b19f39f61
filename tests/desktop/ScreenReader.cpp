#include "desktop/ScreenReader.h"

#include <cstdlib>
#include <functional>
#include <memory>
#include <stdexcept>

#include <atspi/atspi.h>

namespace cuebright::test {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object> using Owned = std::unique_ptr<Object, Unref>;

std::string taken(gchar* text)
{
    std::string copy = text ? text : "";
    g_free(text);
    return copy;
}

bool hasState(AtspiAccessible* accessible, AtspiStateType state)
{
    const Owned<AtspiStateSet> states(atspi_accessible_get_state_set(accessible));
    return states && atspi_state_set_contains(states.get(), state);
}

std::string nameOf(AtspiAccessible* accessible) { return taken(atspi_accessible_get_name(accessible, nullptr)); }

std::string roleOf(AtspiAccessible* accessible) { return taken(atspi_accessible_get_role_name(accessible, nullptr)); }

bool doPress(AtspiAccessible* accessible)
{
    const Owned<AtspiAction> action(atspi_accessible_get_action_iface(accessible));
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    for (int i = 0; i < count; ++i)
        if (taken(atspi_action_get_action_name(action.get(), i, nullptr)) == "Press")
            return atspi_action_do_action(action.get(), i, nullptr);
    return false;
}

std::string textOf(AtspiAccessible* accessible)
{
    const Owned<AtspiText> text(atspi_accessible_get_text_iface(accessible));
    const int length = text ? atspi_text_get_character_count(text.get(), nullptr) : 0;
    return text ? taken(atspi_text_get_text(text.get(), 0, length, nullptr)) : std::string();
}

/// Gets each element with its depth; its answer says whether to go on.
using Visitor = std::function<bool(AtspiAccessible*, std::size_t)>;

bool visitBelow(AtspiAccessible* parent, std::size_t depth, const Visitor& goesOn)
{
    constexpr std::size_t kDeepest = 40;
    const int count = depth < kDeepest ? atspi_accessible_get_child_count(parent, nullptr) : 0;
    for (int i = 0; i < count; ++i) {
        const Owned<AtspiAccessible> child(atspi_accessible_get_child_at_index(parent, i, nullptr));
        if (!child || !hasState(child.get(), ATSPI_STATE_SHOWING))
            continue;
        if (!goesOn(child.get(), depth + 1) || !visitBelow(child.get(), depth + 1, goesOn))
            return false;
    }
    return true;
}

void visit(pid_t program, const Visitor& goesOn)
{
    while (g_main_context_iteration(nullptr, FALSE)) { }
    const Owned<AtspiAccessible> root(atspi_get_desktop(0));
    const int count = atspi_accessible_get_child_count(root.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        const Owned<AtspiAccessible> application(atspi_accessible_get_child_at_index(root.get(), i, nullptr));
        if (application && atspi_accessible_get_process_id(application.get(), nullptr) == static_cast<guint>(program))
            visitBelow(application.get(), 0, goesOn);
    }
}

} // namespace

ScreenReader::ScreenReader(const Environment& desktop)
{
    for (const auto& [name, value] : desktop)
        setenv(name.c_str(), value.c_str(), 1);
    if (atspi_init() > 1)
        throw std::runtime_error("the accessibility bus does not answer");
    // Without a running main loop the library's cache would never hear of a change.
    const Owned<AtspiAccessible> root(atspi_get_desktop(0));
    atspi_accessible_set_cache_mask(root.get(), ATSPI_CACHE_NONE);
}

std::vector<ScreenReader::Element> ScreenReader::find(pid_t program, std::string_view name) const
{
    std::vector<Element> found;
    visit(program, [&](AtspiAccessible* one, std::size_t) {
        if (nameOf(one) == name)
            found.push_back({roleOf(one), taken(atspi_accessible_get_description(one, nullptr)),
                hasState(one, ATSPI_STATE_ENABLED)});
        return true;
    });
    return found;
}

bool ScreenReader::press(pid_t program, std::string_view name) const
{
    bool pressed = false;
    visit(program, [&](AtspiAccessible* one, std::size_t) {
        pressed = nameOf(one) == name && doPress(one);
        return !pressed;
    });
    return pressed;
}

std::string ScreenReader::editableText(pid_t program) const
{
    std::string text;
    visit(program, [&](AtspiAccessible* one, std::size_t) {
        const bool isField = hasState(one, ATSPI_STATE_EDITABLE);
        if (isField)
            text = textOf(one);
        return !isField;
    });
    return text;
}

std::string ScreenReader::describe(pid_t program) const
{
    std::string lines;
    visit(program, [&](AtspiAccessible* one, std::size_t depth) {
        lines += std::string(depth * 2, ' ') + roleOf(one) + ": " + nameOf(one)
            + (hasState(one, ATSPI_STATE_ENABLED) ? "\n" : " (off)\n");
        return true;
    });
    return lines.empty() ? "the program shows nothing to a screen reader" : lines;
}

} // namespace cuebright::test
