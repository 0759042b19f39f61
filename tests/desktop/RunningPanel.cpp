#include "desktop/RunningPanel.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace cuebright::test {

namespace {

Environment with(Environment environment, const Environment& more)
{
    for (const auto& [name, value] : more)
        environment[name] = value;
    return environment;
}

const ScreenReader& screenReader()
{
    static const ScreenReader shared(desktop().environment());
    return shared;
}

} // namespace

Desktop& desktop()
{
    static Desktop shared;
    return shared;
}

Home::Home(Introduction introduction)
{
    write(preferencesFile(), "[General]\n");
    if (introduction == Introduction::Seen)
        prefer("cuebrightOnboardingDone", "true");
}

void Home::prefer(std::string_view key, std::string_view value) const
{
    std::ofstream(preferencesFile(), std::ios::app) << key << '=' << value << '\n';
}

void Home::keepDeck(std::string_view name, const std::vector<std::string_view>& cards) const
{
    constexpr std::string_view kDates = R"("createdAt":"2026-11-16T01:21:19Z","updatedAt":"2026-11-16T01:21:19Z")";
    std::ostringstream text;
    text << R"({"opacity":1,"fontSize":17,"activeCardIndex":0,"decks":[{"id":"6B0F5C1E-3D0A-4E8B-9D55-2F7A1C9E4B21",)"
         << R"("name":")" << name << "\"," << kDates << R"(,"cards":[)";
    int number = 10;
    for (const auto card : cards) {
        text << (number == 10 ? "" : ",") << R"({"id":"0C8E6A52-9B1F-4C7D-8E2A-5D3B7F1A6C)" << number
             << R"(","content":")" << card << "\"," << kDates << "}";
        ++number;
    }
    text << "]}]}";
    write(stateFile(), text.str());
}

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

RunningPanel::RunningPanel(const Home& home, const Environment& more, Keyboard keyboard)
    : m_program(
        {{CUEBRIGHT_PROGRAM}, with(home.environment(desktop().environment()), more), home.console(), {}, SIGKILL})
{
    bool up = false;
    (void)waitUntil([&] {
        m_window = desktop().windowOf(m_program.pid()).value_or(0);
        up = m_window != 0 && screenReader().finds(m_program.pid(), title());
        return up || m_program.hasEnded();
    });
    if (!up)
        throw std::runtime_error("the panel does not come up, the program printed: " + console());
    if (keyboard == Keyboard::Left)
        return;
    const auto place = area();
    // The corner is empty: in the middle there may be a link.
    desktop().click(place.x + 12, place.y + place.height - 8);
    if (!waitUntil([this] { return desktop().isActive(m_window); }))
        throw std::runtime_error("a click does not give the panel the keyboard");
}

std::string RunningPanel::title() const { return desktop().title(m_window); }

Desktop::Area RunningPanel::area() const { return desktop().clientArea(m_window); }

testing::AssertionResult RunningPanel::isOnScreen() const
{
    return outcome(waitUntil([&] { return desktop().isOnScreen(m_window); }), "the panel on the screen");
}

testing::AssertionResult RunningPanel::isOffScreen() const
{
    return outcome(waitUntil([&] { return !desktop().isOnScreen(m_window); }), "the panel off the screen");
}

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

testing::AssertionResult RunningPanel::showsButton(std::string_view name) const { return hasRole(name, "push button"); }

testing::AssertionResult RunningPanel::hasDisabled(std::string_view name) const
{
    return outcome(waitUntil([&] {
        return screenReader().finds(m_program.pid(), name) && !screenReader().isEnabled(m_program.pid(), name);
    }),
        name);
}

testing::AssertionResult RunningPanel::hints(std::string_view name, std::string_view hint) const
{
    std::string heard;
    const bool seen = waitUntil([&] {
        heard = screenReader().hint(m_program.pid(), name);
        return heard == hint;
    });
    return outcome(seen, hint) << "\nthe hint of " << name << " is: " << heard;
}

testing::AssertionResult RunningPanel::hasRole(std::string_view name, std::string_view role) const
{
    return outcome(waitUntil([&] {
        const auto roles = screenReader().roles(m_program.pid(), name);
        return std::ranges::find(roles, role) != roles.end();
    }),
        std::string(role) + " " + std::string(name));
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

testing::AssertionResult RunningPanel::pressButton(std::string_view name) const
{
    return outcome(waitUntil([&] { return screenReader().press(m_program.pid(), name); }), name);
}

void RunningPanel::resize(int width, int height) const { desktop().resize(m_window, width, height); }

void RunningPanel::takePicture(const std::filesystem::path& file) const { desktop().takePicture(m_window, file); }

testing::AssertionResult RunningPanel::outcome(bool seen, std::string_view what) const
{
    if (seen)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "waited for: " << what << "\nthe panel shows:\n"
                                       << screenReader().describe(m_program.pid()) << "it printed: " << console();
}

} // namespace cuebright::test
