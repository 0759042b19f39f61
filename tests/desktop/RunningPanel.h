#pragma once

#include "desktop/Desktop.h"
#include "desktop/ScreenReader.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace cuebright::test {

/// The folders of a user who has never started Cuebright.
class Home final {
public:
    [[nodiscard]] std::filesystem::path stateFolder() const { return m_folder.path() / "data" / "Cuebright"; }
    [[nodiscard]] std::filesystem::path stateFile() const { return stateFolder() / "state.json"; }
    [[nodiscard]] std::filesystem::path preferencesFile() const;
    [[nodiscard]] std::filesystem::path console() const { return m_folder.path() / "console"; }
    [[nodiscard]] Environment environment(Environment desktop) const;

    /// Writes a file, with the folders that lead to it.
    static void write(const std::filesystem::path& path, std::string_view text);

private:
    TemporaryFolder m_folder;
};

/// Cuebright as a user meets it: started, on the screen and with the keyboard.
///
/// What `shows` and its kind look for is waited for.
class RunningPanel final {
public:
    explicit RunningPanel(const Home& home);

    [[nodiscard]] std::string title() const;
    [[nodiscard]] Desktop::Area area() const;
    [[nodiscard]] testing::AssertionResult hasTitle(std::string_view title) const;
    /// Something on the panel has that accessible name.
    [[nodiscard]] testing::AssertionResult shows(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsNoLonger(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult showsButton(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult hasDisabled(std::string_view name) const;
    [[nodiscard]] testing::AssertionResult editorHolds(std::string_view part) const;

    /// The keys go to the panel, as long as it has the keyboard.
    void press(std::string_view chord) const;
    void type(std::string_view text) const;
    /// The way of a screen reader; false where there is no such button.
    [[nodiscard]] bool pressButton(std::string_view name) const;

    void send(int signal) const { m_program.send(signal); }
    /// Waits for the end of the program.
    [[nodiscard]] std::optional<int> exitStatus() { return m_program.exitStatus(); }
    /// Everything it has printed.
    [[nodiscard]] std::string console() const { return m_program.output(); }

private:
    testing::AssertionResult outcome(bool seen, std::string_view what) const;

    Process m_program;
    Desktop::WindowId m_window = 0;
};

} // namespace cuebright::test
