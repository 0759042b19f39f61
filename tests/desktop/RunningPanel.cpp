#include "desktop/RunningPanel.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace cuebright::test {

namespace {

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

void Home::keepDeck(std::string_view name, const std::vector<std::string_view>& cards, int activeCard) const
{
    int number = 10;
    const auto record = [&number](const char* key, std::string_view text) {
        constexpr auto kDates = R"("createdAt":"2026-11-16T01:21:19Z","updatedAt":"2026-11-16T01:21:19Z",")";
        return R"({"id":"6b0f5c1e-3d0a-4e8b-9d55-2f7a1c9e4b)" + std::to_string(++number) + "\"," + kDates + key
            + "\":\"" + std::string(text) + '"';
    };
    std::string text = R"({"opacity":1,"fontSize":17,"activeCardIndex":)" + std::to_string(activeCard) + R"(,"decks":[)"
        + record("name", name) + R"(,"cards":[)";
    const char* separator = "";
    for (const auto card : cards)
        text += std::exchange(separator, ",") + record("content", card) + '}';
    write(stateFile(), text + "]}]}");
}

std::filesystem::path Home::preferencesFile() const
{
    return m_folder.path() / "config" / "Cuebright" / "Cuebright.conf";
}

Environment Home::environment(const Environment& more) const
{
    Environment result = more;
    result.insert({{"HOME", m_folder.path()}, {"XDG_DATA_HOME", m_folder.path() / "data"},
        {"XDG_CONFIG_HOME", m_folder.path() / "config"}, {"XDG_CACHE_HOME", m_folder.path() / "cache"}});
    const auto& desktops = desktop().environment();
    result.insert(desktops.begin(), desktops.end());
    return result;
}

Process::Start Home::program(const Environment& more) const
{
    return {{CUEBRIGHT_PROGRAM}, environment(more), console(), {}, SIGKILL};
}

void Home::write(const std::filesystem::path& path, std::string_view text)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

RunningPanel::RunningPanel(const Home& home, const Environment& more, Keyboard keyboard)
    : m_program(home.program(more))
{
    const auto isUp = [&] {
        m_window = desktop().windowOf(m_program.pid()).value_or(0);
        return m_window != 0 && !screenReader().find(m_program.pid(), title()).empty();
    };
    if (!waitUntil([&] { return isUp() || m_program.hasEnded(); }) || m_program.hasEnded())
        throw std::runtime_error("the panel does not come up, the program printed: " + console());
    if (keyboard == Keyboard::Left)
        return;
    const auto place = area();
    // In the corner, where no link can be.
    desktop().click(place.x + 12, place.y + place.height - 8);
    if (!isActive())
        throw std::runtime_error("a click does not give the panel the keyboard");
}

testing::AssertionResult RunningPanel::reaches(std::string_view what, const std::function<bool()>& condition) const
{
    if (waitUntil(condition))
        return testing::AssertionSuccess();
    const auto pid = m_program.pid();
    return testing::AssertionFailure() << "waited for: " << what << "\nthe panel, " << title() << ", shows:\n"
                                       << screenReader().describe(pid)
                                       << "the editor holds: " << screenReader().editableText(pid)
                                       << "\nit printed: " << console();
}

testing::AssertionResult RunningPanel::isOnScreen(bool wanted) const
{
    return reaches(wanted ? "on screen" : "off screen", [&] { return desktop().isOnScreen(m_window) == wanted; });
}

testing::AssertionResult RunningPanel::isActive() const
{
    return reaches("focus", [&] { return desktop().isActive(m_window); });
}

testing::AssertionResult RunningPanel::hasTitle(std::string_view wanted) const
{
    return reaches(wanted, [&] { return title() == wanted; });
}

testing::AssertionResult RunningPanel::showsOne(std::string_view name, const Condition& isRight) const
{
    return reaches(name, [&] { return std::ranges::any_of(screenReader().find(m_program.pid(), name), isRight); });
}

testing::AssertionResult RunningPanel::shows(std::string_view name) const
{
    return showsOne(name, [](const auto&) { return true; });
}

testing::AssertionResult RunningPanel::showsNoLonger(std::string_view name) const
{
    return reaches(name, [&] { return screenReader().find(m_program.pid(), name).empty(); }) << " gone";
}

testing::AssertionResult RunningPanel::hints(std::string_view name, std::string_view hint) const
{
    return showsOne(name, [&](const auto& element) { return element.hint == hint; }) << " with hint " << hint;
}

testing::AssertionResult RunningPanel::hasRole(std::string_view name, std::string_view role) const
{
    return showsOne(name, [&](const auto& element) { return element.role == role; }) << " as " << role;
}

testing::AssertionResult RunningPanel::editorHolds(std::string_view part) const
{
    return reaches(part, [&] { return screenReader().editableText(m_program.pid()).find(part) != std::string::npos; });
}

testing::AssertionResult RunningPanel::hasBrightness(int least, int most) const
{
    int seen = -1;
    return reaches("another brightness",
               [&] {
                   seen = desktop().brightness(m_window, 20, 200);
                   return least <= seen && seen <= most;
               })
        << "it was " << seen;
}

testing::AssertionResult RunningPanel::pressButton(std::string_view name) const
{
    return reaches(name, [&] { return screenReader().press(m_program.pid(), name); });
}

void RunningPanel::press(std::string_view chords) const
{
    std::istringstream in {std::string(chords)};
    for (std::string chord; in >> chord;)
        desktop().press(chord);
}

void follow(const RunningPanel& panel, const std::vector<Step>& steps)
{
    for (const auto& [keys, isSeen, expected] : steps) {
        panel.press(keys);
        ASSERT_TRUE((panel.*isSeen)(expected)) << "after " << keys;
    }
}

} // namespace cuebright::test
