#include "app/Command.h"

#include "panel/PanelFixture.h"

#include <tuple>

namespace cuebright::test {

class CommandTest : public PanelFixture {
protected:
    /// The commands of the store that are on.
    std::string enabled()
    {
        const std::pair<Command, std::string> commands[] = {{Command::SaveCard, "save "},
            {Command::CancelEdit, "cancel "}, {Command::DeleteCard, "delete "}, {Command::DeleteDeck, "delete-deck "},
            {Command::MoveCardUp, "up "}, {Command::MoveCardDown, "down "}};
        std::string names;
        for (const auto& [command, name] : commands) {
            if (isCommandEnabled(command, store))
                names += name;
        }
        return names;
    }
};

TEST_F(CommandTest, WhatWouldDoNothingIsOff)
{
    const std::tuple<const char*, std::size_t, std::int64_t, const char*, const char*> tests[] = {
        {"the only card", 1, 0, "", "save cancel "},
        {"the first", 3, 0, "delete down ", "save cancel delete "},
        {"one between", 3, 1, "delete up down ", "save cancel delete "},
        {"the last", 3, 2, "delete up ", "save cancel delete "},
        {"a negative index is kept, never used", 3, -2, "", ""},
        {"no card at all", 0, 0, "", ""},
    };
    for (const auto& [name, cards, activeCard, resting, editing] : tests) {
        setCards(std::vector<std::string>(cards, "text"), activeCard);
        EXPECT_EQ(enabled(), resting) << name;
        store.beginEditing();
        EXPECT_EQ(enabled(), editing) << name << ", editing";
        store.cancelEdit();
    }
    store.createNewDeck("second");
    EXPECT_EQ(enabled(), "delete-deck ");
}

TEST_F(CommandTest, AtMostTheOneThemeIsChecked)
{
    const std::pair<const char*, std::vector<bool>> tests[] = {{"system", {true, false, false}},
        {"light", {false, true, false}}, {"dark", {false, false, true}}, {"Dark", {false, false, false}},
        {"", {false, false, false}}};
    for (const auto& [theme, systemLightDark] : tests) {
        store.setTheme(theme);
        std::vector<bool> checked;
        for (const auto command : {Command::SetThemeSystem, Command::SetThemeLight, Command::SetThemeDark})
            checked.push_back(isCommandChecked(command, store));
        EXPECT_EQ(checked, systemLightDark) << theme;
    }
}

} // namespace cuebright::test
