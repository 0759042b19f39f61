#include "desktop/ScreenReader.h"

#include <cstdlib>
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

} // namespace

struct ScreenReader::Element {
    AtspiAccessible* accessible;
    int depth;

    std::string name() const { return taken(atspi_accessible_get_name(accessible, nullptr)); }
    std::string hint() const { return taken(atspi_accessible_get_description(accessible, nullptr)); }
    std::string role() const { return taken(atspi_accessible_get_role_name(accessible, nullptr)); }
    bool is(AtspiStateType state) const { return hasState(accessible, state); }

    bool press() const
    {
        const Owned<AtspiAction> action(atspi_accessible_get_action_iface(accessible));
        if (!action)
            return false;
        const int count = atspi_action_get_n_actions(action.get(), nullptr);
        for (int i = 0; i < count; ++i)
            if (taken(atspi_action_get_action_name(action.get(), i, nullptr)) == "Press")
                return atspi_action_do_action(action.get(), i, nullptr);
        return false;
    }

    std::string text() const
    {
        const Owned<AtspiText> text(atspi_accessible_get_text_iface(accessible));
        if (!text)
            return {};
        const int length = atspi_text_get_character_count(text.get(), nullptr);
        return taken(atspi_text_get_text(text.get(), 0, length, nullptr));
    }
};

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

bool ScreenReader::finds(pid_t program, std::string_view name) const { return !roles(program, name).empty(); }

std::vector<std::string> ScreenReader::roles(pid_t program, std::string_view name) const
{
    std::vector<std::string> found;
    visit(program, [&](const Element& element) {
        if (element.name() == name)
            found.push_back(element.role());
        return true;
    });
    return found;
}

std::string ScreenReader::hint(pid_t program, std::string_view name) const
{
    std::string hint;
    visit(program, [&](const Element& element) {
        if (element.name() != name)
            return true;
        hint = element.hint();
        return false;
    });
    return hint;
}

bool ScreenReader::isEnabled(pid_t program, std::string_view name) const
{
    bool enabled = false;
    visit(program, [&](const Element& element) {
        if (element.name() != name)
            return true;
        enabled = element.is(ATSPI_STATE_ENABLED);
        return false;
    });
    return enabled;
}

bool ScreenReader::press(pid_t program, std::string_view name) const
{
    bool pressed = false;
    visit(program, [&](const Element& element) {
        pressed = element.name() == name && element.press();
        return !pressed;
    });
    return pressed;
}

std::string ScreenReader::editableText(pid_t program) const
{
    std::string text;
    visit(program, [&](const Element& element) {
        if (!element.is(ATSPI_STATE_EDITABLE))
            return true;
        text = element.text();
        return false;
    });
    return text;
}

std::string ScreenReader::describe(pid_t program) const
{
    std::string lines;
    visit(program, [&](const Element& element) {
        lines += std::string(static_cast<std::size_t>(element.depth) * 2, ' ') + element.role() + ": " + element.name()
            + (element.is(ATSPI_STATE_ENABLED) ? "\n" : " (off)\n");
        return true;
    });
    return lines.empty() ? "the program shows nothing to a screen reader" : lines;
}

void ScreenReader::visit(pid_t program, const Visitor& goesOn)
{
    while (g_main_context_iteration(nullptr, FALSE)) { }
    const Owned<AtspiAccessible> root(atspi_get_desktop(0));
    const int count = atspi_accessible_get_child_count(root.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        const Owned<AtspiAccessible> application(atspi_accessible_get_child_at_index(root.get(), i, nullptr));
        if (application && atspi_accessible_get_process_id(application.get(), nullptr) == static_cast<guint>(program))
            visitBelow({application.get(), 0}, 0, goesOn);
    }
}

bool ScreenReader::visitBelow(const Element& element, int depth, const Visitor& goesOn)
{
    constexpr int kDeepest = 40;
    const int count = depth < kDeepest ? atspi_accessible_get_child_count(element.accessible, nullptr) : 0;
    for (int i = 0; i < count; ++i) {
        const Owned<AtspiAccessible> child(atspi_accessible_get_child_at_index(element.accessible, i, nullptr));
        if (!child || !hasState(child.get(), ATSPI_STATE_SHOWING))
            continue;
        const Element next {child.get(), depth + 1};
        if (!goesOn(next) || !visitBelow(next, depth + 1, goesOn))
            return false;
    }
    return true;
}

} // namespace cuebright::test
