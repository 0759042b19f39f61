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

/// The folders of a user who has seen the introduction but has no decks yet.
class Home {
public:
    enum class Introduction { Seen, NotSeen };
    explicit Home(Introduction introduction = Introduction::Seen);

    [[nodiscard]] std::filesystem::path stateFolder() const { return m_folder.path() / "data" / "Cuebright"; }
    [[nodiscard]] std::filesystem::path stateFile() const { return stateFolder() / "state.json"; }
    [[nodiscard]] std::filesystem::path preferencesFile() const;
    [[nodiscard]] std::filesystem::path console() const { return m_folder.path() / "console"; }
    /// With these folders on our desktop; `more` comes before either.
    [[nodiscard]] Environment environment(const Environment& more = {}) const;
    /// How the program is started with them.
    [[nodiscard]] Process::Start program(const Environment& more = {}) const;

    void prefer(std::string_view key, std::string_view value) const;
    /// The state file has one deck with these cards, written as JSON has them: \n for a line feed.
    void keepDeck(std::string_view name, const std::vector<std::string_view>& cards, int activeCard = 0) const;

    /// Writes a file, with the folders that lead to it.
    static void write(const std::filesystem::path& path, std::string_view text);

private:
    TemporaryFolder m_folder;
};

/// One for all tests of a run: the accessibility library cannot change its bus.
[[nodiscard]] Desktop& desktop();

/// Another program's window with the keyboard, for as long as the test needs it.
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
    [[nodiscard]] bool hasKeyboard() const { return desktop().isActive(m_window); }

private:
    Desktop::WindowId m_window;
};

/// Cuebright as a user meets it: started, on the screen and with the keyboard.
///
/// What `shows` and its kind look for is waited for.
class RunningPanel final {
public:
    enum class Keyboard { Taken, Left }; ///< whether a click gives the panel the keyboard at the start

    /// `more` is added to the environment of the desktop.
    explicit RunningPanel(const Home& home, const Environment& more = {}, Keyboard keyboard = Keyboard::Taken);

    [[nodiscard]] std::string title() const { return desktop().title(m_window); }
    [[nodiscard]] Desktop::Area area() const { return desktop().clientArea(m_window); }
    [[nodiscard]] Desktop::WindowId window() const { return m_window; }
    [[nodiscard]] pid_t process() const { return m_program.pid(); }
    /// Whether the condition comes true; says what was waited for where it does not.
    [[nodiscard]] testing::AssertionResult reaches(std::string_view what, const std::function<bool()>& condition) const;
    [[nodiscard]] testing::AssertionResult isOnScreen() const;
    [[nodiscard]] testing::AssertionResult isOffScreen() const;
    [[nodiscard]] testing::AssertionResult isActive() const;
    [[nodiscard]] testing::AssertionResult hasTitle(std::string_view title) const;
    /// Something on the panel has that accessible name.
    [[nodiscard]] testing::AssertionResult shows(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsNoLonger(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsButton(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult hasDisabled(std::string_view name) const;
    /// The element of that name is read with that hint.
    [[nodiscard]] testing::AssertionResult hints(std::string_view name, std::string_view hint) const;
    [[nodiscard]] testing::AssertionResult hasRole(std::string_view name, std::string_view role) const;
    [[nodiscard]] testing::AssertionResult editorHolds(std::string_view part) const;
    /// In the empty margin on its left, from 0 to 255.
    [[nodiscard]] testing::AssertionResult hasBrightness(int least, int most) const;

    /// The keys go to the panel, as long as it has the keyboard; there is a blank between them.
    void press(std::string_view chords) const;
    void type(std::string_view text) const { desktop().type(text); }
    /// The way of a screen reader; waits for the button.
    [[nodiscard]] testing::AssertionResult pressButton(std::string_view name) const;

    void send(int signal) const { m_program.send(signal); }
    /// Waits for the end of the program.
    [[nodiscard]] std::optional<int> exitStatus() { return m_program.exitStatus(); }
    /// Everything it has printed.
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

/// Keys with blanks between them, and what is to be seen after them.
struct Step {
    std::string_view keys;
    testing::AssertionResult (RunningPanel::*isSeen)(std::string_view) const;
    std::string_view expected;
};
void follow(const RunningPanel& panel, const std::vector<Step>& steps);

} // namespace cuebright::test
