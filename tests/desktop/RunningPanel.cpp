#include "desktop/RunningPanel.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace cuebright::test {

namespace {

// One for all tests of a run: the accessibility library cannot change its bus.
Desktop& desktop()
{
    static Desktop shared;
    return shared;
}

const ScreenReader& screenReader()
{
    static const ScreenReader shared(desktop().environment());
    return shared;
}

} // namespace

std::filesystem::path Home::preferencesFile() const
{
    return m_folder.path() / "config" / "Cuebright" / "Cuebright.conf";
}

Environment Home::environment(Environment desktop) const
{
    desktop["HOME"] = m_folder.path();
    desktop["XDG_DATA_HOME"] = m_folder.path() / "data";
    desktop["XDG_CONFIG_HOME"] = m_folder.path() / "config";
    desktop["XDG_CACHE_HOME"] = m_folder.path() / "cache";
    return desktop;
}

void Home::write(const std::filesystem::path& path, std::string_view text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

RunningPanel::RunningPanel(const Home& home)
    : m_program({{CUEBRIGHT_PROGRAM}, home.environment(desktop().environment()), home.console(), {}, SIGKILL})
{
    bool up = false;
    (void)waitUntil([&] {
        m_window = desktop().windowOf(m_program.pid()).value_or(0);
        up = m_window != 0 && screenReader().finds(m_program.pid(), title());
        return up || m_program.hasEnded();
    });
    if (!up)
        throw std::runtime_error("the panel does not come up, the program printed: " + console());
    const auto place = area();
    desktop().click(place.x + place.width / 2, place.y + place.height / 2);
    if (!waitUntil([this] { return desktop().isActive(m_window); }))
        throw std::runtime_error("a click does not give the panel the keyboard");
}

std::string RunningPanel::title() const { return desktop().title(m_window); }

Desktop::Area RunningPanel::area() const { return desktop().clientArea(m_window); }

testing::AssertionResult RunningPanel::hasTitle(std::string_view wanted) const
{
    const bool seen = waitUntil([&] { return title() == wanted; });
    return seen ? testing::AssertionSuccess() : testing::AssertionFailure() << "the title is " << title();
}

testing::AssertionResult RunningPanel::shows(std::string_view name) const
{
    return outcome(waitUntil([&] { return screenReader().finds(m_program.pid(), name); }), name);
}

testing::AssertionResult RunningPanel::showsNoLonger(std::string_view name) const
{
    return outcome(waitUntil([&] { return !screenReader().finds(m_program.pid(), name); }), name);
}

testing::AssertionResult RunningPanel::showsButton(std::string_view name) const
{
    const auto isButton = [&] {
        const auto roles = screenReader().roles(m_program.pid(), name);
        return std::ranges::find(roles, "push button") != roles.end();
    };
    return outcome(waitUntil(isButton), name);
}

testing::AssertionResult RunningPanel::hasDisabled(std::string_view name) const
{
    return outcome(waitUntil([&] {
        return screenReader().finds(m_program.pid(), name) && !screenReader().isEnabled(m_program.pid(), name);
    }),
        name);
}

testing::AssertionResult RunningPanel::editorHolds(std::string_view part) const
{
    std::string text;
    const bool seen = waitUntil([&] {
        text = screenReader().editableText(m_program.pid());
        return text.find(part) != std::string::npos;
    });
    return outcome(seen, part) << "\nthe editor holds: " << text;
}

void RunningPanel::press(std::string_view chord) const { desktop().press(chord); }

void RunningPanel::type(std::string_view text) const { desktop().type(text); }

bool RunningPanel::pressButton(std::string_view name) const
{
    return waitUntil([&] { return screenReader().press(m_program.pid(), name); });
}

testing::AssertionResult RunningPanel::outcome(bool seen, std::string_view what) const
{
    if (seen)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "waited for: " << what << "\nthe panel shows:\n"
                                       << screenReader().describe(m_program.pid()) << "it printed: " << console();
}

} // namespace cuebright::test
