#include "desktop/RunningPanel.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

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
    constexpr std::string_view kDates = R"("createdAt":"2026-11-16T01:21:19Z","updatedAt":"2026-11-16T01:21:19Z")";
    constexpr std::string_view kIds = R"("id":"6b0f5c1e-3d0a-4e8b-9d55-2f7a1c9e4b)";
    std::ostringstream text;
    text << R"({"opacity":1,"fontSize":17,"activeCardIndex":)" << activeCard << R"(,"decks":[{)" << kIds
         << R"(10","name":")" << name << "\"," << kDates << R"(,"cards":[)";
    int number = 10;
    for (const auto card : cards) {
        text << (number == 10 ? "{" : ",{") << kIds << number + 1 << R"(","content":")" << card << "\"," << kDates
             << "}";
        ++number;
    }
    text << "]}]}";
    write(stateFile(), text.str());
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
    bool up = false;
    (void)waitUntil([&] {
        m_window = desktop().windowOf(m_program.pid()).value_or(0);
        up = m_window != 0 && !find(title()).empty();
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

std::vector<ScreenReader::Element> RunningPanel::find(std::string_view name) const
{
    return screenReader().find(m_program.pid(), name);
}

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
    return outcome(waitUntil([&] { return !find(name).empty(); }), name);
}

testing::AssertionResult RunningPanel::showsNoLonger(std::string_view name) const
{
    return outcome(waitUntil([&] { return find(name).empty(); }), name);
}

testing::AssertionResult RunningPanel::showsButton(std::string_view name) const { return hasRole(name, "push button"); }

testing::AssertionResult RunningPanel::hasDisabled(std::string_view name) const
{
    const auto isOff = [](const ScreenReader::Element& element) { return !element.isEnabled; };
    return outcome(waitUntil([&] { return std::ranges::any_of(find(name), isOff); }), name);
}

testing::AssertionResult RunningPanel::hints(std::string_view name, std::string_view hint) const
{
    const auto hints = [&](const ScreenReader::Element& element) { return element.hint == hint; };
    return outcome(waitUntil([&] { return std::ranges::any_of(find(name), hints); }), hint);
}

testing::AssertionResult RunningPanel::hasRole(std::string_view name, std::string_view role) const
{
    const auto hasRole = [&](const ScreenReader::Element& element) { return element.role == role; };
    return outcome(waitUntil([&] { return std::ranges::any_of(find(name), hasRole); }), name) << " as " << role;
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

testing::AssertionResult RunningPanel::hasBrightness(int least, int most) const
{
    int seen = -1;
    const bool isSo = waitUntil([&] {
        seen = desktop().brightness(m_window, 20, 200);
        return least <= seen && seen <= most;
    });
    return isSo ? testing::AssertionSuccess() : testing::AssertionFailure() << "its brightness is " << seen;
}

testing::AssertionResult RunningPanel::pressButton(std::string_view name) const
{
    return outcome(waitUntil([&] { return screenReader().press(m_program.pid(), name); }), name);
}

testing::AssertionResult RunningPanel::outcome(bool seen, std::string_view what) const
{
    if (seen)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "waited for: " << what << "\nthe panel shows:\n"
                                       << screenReader().describe(m_program.pid()) << "it printed: " << console();
}

} // namespace cuebright::test
