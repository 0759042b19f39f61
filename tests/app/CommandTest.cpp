#include "app/Command.h"

#include "model/StateFile.h"
#include "panel/PanelFixture.h"

namespace cuebright::test {

class CommandTest : public PanelFixture {
protected:
    void load(int cards, std::int64_t activeCard)
    {
        setCards(std::vector<std::string>(static_cast<std::size_t>(cards), "text"));
        auto state = *decodeState(fake.fileSystem.files[store.stateUrl().string()]);
        const auto json = encodeState({state.decks, state.activeDeckId, activeCard, 1, 17});
        fake.fileSystem.files[store.stateUrl().string()] = std::get<std::string>(json);
        store.loadFromDisk();
    }
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
    const struct {
        const char* name;
        int cards;
        std::int64_t activeCard;
        const char* resting;
        const char* editing;
    } tests[] = {
        {"the only card", 1, 0, "", "save cancel "},
        {"the first", 3, 0, "delete down ", "save cancel delete "},
        {"one between", 3, 1, "delete up down ", "save cancel delete "},
        {"the last", 3, 2, "delete up ", "save cancel delete "},
        {"a negative index is kept, never used", 3, -2, "", ""},
        {"no card at all", 0, 0, "", ""},
    };
    for (const auto& test : tests) {
        load(test.cards, test.activeCard);
        EXPECT_EQ(enabled(), test.resting) << test.name;
        store.beginEditing();
        EXPECT_EQ(enabled(), test.editing) << test.name << ", editing";
        store.cancelEdit();
    }
    store.createNewDeck("second");
    EXPECT_EQ(enabled(), "delete-deck ");
}

TEST_F(CommandTest, AtMostTheOneThemeIsChecked)
{
    const struct {
        const char* theme;
        std::vector<bool> systemLightDark;
    } tests[] = {
        {"system", {true, false, false}},
        {"light", {false, true, false}},
        {"dark", {false, false, true}},
        {"Dark", {false, false, false}},
        {"", {false, false, false}},
    };
    for (const auto& test : tests) {
        store.setTheme(test.theme);
        EXPECT_EQ(isCommandChecked(Command::SetThemeSystem, store), test.systemLightDark[0]) << test.theme;
        EXPECT_EQ(isCommandChecked(Command::SetThemeLight, store), test.systemLightDark[1]) << test.theme;
        EXPECT_EQ(isCommandChecked(Command::SetThemeDark, store), test.systemLightDark[2]) << test.theme;
    }
}

} // namespace cuebright::test
