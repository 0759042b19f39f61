#pragma once

#include "desktop/Desktop.h"
#include "desktop/ScreenReader.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace cuebright::test {

/// A user's folders, without decks.
class Home {
public:
    enum class Introduction { Seen, NotSeen };
    explicit Home(Introduction introduction = Introduction::Seen);

    [[nodiscard]] std::filesystem::path stateFolder() const { return m_folder.path() / "data" / "Cuebright"; }
    [[nodiscard]] std::filesystem::path stateFile() const { return stateFolder() / "state.json"; }
    [[nodiscard]] std::filesystem::path preferencesFile() const;
    [[nodiscard]] std::filesystem::path console() const { return m_folder.path() / "console"; }
    /// For a program that uses these folders on the private desktop; `more` overrides both.
    [[nodiscard]] Environment environment(const Environment& more = {}) const;
    /// Starts the program with them.
    [[nodiscard]] Process::Start program(const Environment& more = {}) const;

    void prefer(std::string_view key, std::string_view value) const;
    /// Writes a state file with one deck of these cards, escaped as in JSON.
    void keepDeck(std::string_view name, const std::vector<std::string_view>& cards, int activeCard = 0) const;

    /// Writes a file and creates its folders.
    static void write(const std::filesystem::path& path, std::string_view text);

private:
    TemporaryFolder m_folder;
};

/// One for all tests: the accessibility library cannot change its bus.
[[nodiscard]] Desktop& desktop();

/// Another program's active window, until destroyed.
class OtherWindow final {
public:
    explicit OtherWindow(Desktop::Size size = Desktop::Size::Small)
        : m_window(desktop().openWindow(size))
    {
    }
    ~OtherWindow() { desktop().closeWindow(m_window); }
    OtherWindow(const OtherWindow&) = delete;
    OtherWindow& operator=(const OtherWindow&) = delete;

    [[nodiscard]] Desktop::WindowId id() const { return m_window; }
    [[nodiscard]] bool hasFocus() const { return desktop().isActive(m_window); }

private:
    Desktop::WindowId m_window;
};

/// The program, started, with its panel on screen and active.
///
/// All checks wait for what they look for.
class RunningPanel final {
public:
    enum class Keyboard { Taken, Left }; ///< whether the panel is activated by a click after the start

    /// `more` is added to the environment.
    explicit RunningPanel(const Home& home, const Environment& more = {}, Keyboard keyboard = Keyboard::Taken);

    [[nodiscard]] std::string title() const { return desktop().title(m_window); }
    [[nodiscard]] Desktop::Area area() const { return desktop().clientArea(m_window); }
    [[nodiscard]] Desktop::WindowId window() const { return m_window; }
    [[nodiscard]] pid_t process() const { return m_program.pid(); }
    /// Waits for the condition; `what` is for the failure message.
    [[nodiscard]] testing::AssertionResult reaches(std::string_view what, const std::function<bool()>& condition) const;
    [[nodiscard]] testing::AssertionResult isOnScreen(bool wanted = true) const;
    [[nodiscard]] testing::AssertionResult isOffScreen() const { return isOnScreen(false); }
    [[nodiscard]] testing::AssertionResult isActive() const;
    [[nodiscard]] testing::AssertionResult hasTitle(std::string_view title) const;
    /// Some element has that accessible name.
    [[nodiscard]] testing::AssertionResult shows(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsNoLonger(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsButton(std::string_view name) const
    {
        return hasRole(name, "push button");
    }
    /// The element of that name has that description.
    [[nodiscard]] testing::AssertionResult hints(std::string_view name, std::string_view hint) const;
    [[nodiscard]] testing::AssertionResult hasRole(std::string_view name, std::string_view role) const;
    [[nodiscard]] testing::AssertionResult editorHolds(std::string_view part) const;
    /// Of a pixel in the left margin, from 0 to 255.
    [[nodiscard]] testing::AssertionResult hasBrightness(int least, int most) const;

    /// Presses keys, separated by spaces; they go to the active window.
    void press(std::string_view chords) const;
    void type(std::string_view text) const { desktop().type(text); }
    /// Waits for the button and presses it as a screen reader does.
    [[nodiscard]] testing::AssertionResult pressButton(std::string_view name) const;

    void send(int signal) const { m_program.send(signal); }
    /// Waits until the program has ended.
    [[nodiscard]] std::optional<int> exitStatus() { return m_program.exitStatus(); }
    /// All output so far.
    [[nodiscard]] std::string console() const { return m_program.output(); }

private:
    using Condition = std::function<bool(const ScreenReader::Element&)>;
    [[nodiscard]] testing::AssertionResult showsOne(std::string_view name, const Condition& isRight) const;

    Process m_program;
    Desktop::WindowId m_window = 0;
};

constexpr auto kShows = &RunningPanel::shows;
constexpr auto kShowsNoLonger = &RunningPanel::showsNoLonger;
constexpr auto kHasTitle = &RunningPanel::hasTitle;
constexpr auto kEditorHolds = &RunningPanel::editorHolds;

/// Keys to press, and a check to make afterwards.
struct Step {
    std::string_view keys;
    testing::AssertionResult (RunningPanel::*isSeen)(std::string_view) const;
    std::string_view expected;
};
void follow(const RunningPanel& panel, const std::vector<Step>& steps);

} // namespace cuebright::test
