#include "desktop/ScreenReader.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <utility>

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

using Elements = std::vector<Owned<AtspiAccessible>>;

Elements childrenOf(AtspiAccessible* parent)
{
    Elements children;
    const int count = atspi_accessible_get_child_count(parent, nullptr);
    for (int i = 0; i < count; ++i)
        if (Owned<AtspiAccessible> child {atspi_accessible_get_child_at_index(parent, i, nullptr)})
            children.push_back(std::move(child));
    return children;
}

void addShowing(Elements& elements, AtspiAccessible* parent)
{
    for (auto& child : childrenOf(parent)) {
        if (!hasState(child.get(), ATSPI_STATE_SHOWING))
            continue;
        auto* const added = child.get();
        elements.push_back(std::move(child));
        addShowing(elements, added);
    }
}

/// All showing elements, in tree order.
Elements elementsOf(pid_t program)
{
    while (g_main_context_iteration(nullptr, FALSE)) { }
    Elements elements;
    const Owned<AtspiAccessible> root(atspi_get_desktop(0));
    for (const auto& application : childrenOf(root.get()))
        if (atspi_accessible_get_process_id(application.get(), nullptr) == static_cast<guint>(program))
            addShowing(elements, application.get());
    return elements;
}

} // namespace

ScreenReader::ScreenReader(const Environment& desktop)
{
    for (const auto& [name, value] : desktop)
        setenv(name.c_str(), value.c_str(), 1);
    if (atspi_init() > 1)
        throw std::runtime_error("the accessibility bus does not answer");
    // The cache would need a running main loop to be updated.
    const Owned<AtspiAccessible> root(atspi_get_desktop(0));
    atspi_accessible_set_cache_mask(root.get(), ATSPI_CACHE_NONE);
}

std::vector<ScreenReader::Element> ScreenReader::find(pid_t program, std::string_view name) const
{
    std::vector<Element> found;
    for (const auto& one : elementsOf(program))
        if (nameOf(one.get()) == name)
            found.push_back({roleOf(one.get()), taken(atspi_accessible_get_description(one.get(), nullptr))});
    return found;
}

bool ScreenReader::press(pid_t program, std::string_view name) const
{
    const auto isPressed = [&](const auto& one) { return nameOf(one.get()) == name && doPress(one.get()); };
    return std::ranges::any_of(elementsOf(program), isPressed);
}

std::string ScreenReader::editableText(pid_t program) const
{
    for (const auto& one : elementsOf(program)) {
        if (!hasState(one.get(), ATSPI_STATE_EDITABLE))
            continue;
        const Owned<AtspiText> text(atspi_accessible_get_text_iface(one.get()));
        const int length = text ? atspi_text_get_character_count(text.get(), nullptr) : 0;
        return text ? taken(atspi_text_get_text(text.get(), 0, length, nullptr)) : std::string();
    }
    return {};
}

std::string ScreenReader::describe(pid_t program) const
{
    std::string lines;
    for (const auto& one : elementsOf(program))
        lines += roleOf(one.get()) + ": " + nameOf(one.get())
            + (hasState(one.get(), ATSPI_STATE_ENABLED) ? "\n" : " (off)\n");
    return lines.empty() ? "nothing\n" : lines;
}

} // namespace cuebright::test
