#include "store/UndoManager.h"

#include <gtest/gtest.h>

namespace cuebright::test {

namespace {

/// Something to undo: each step registers its opposite, as the store's operations do.
class UndoManagerTest : public testing::Test {
protected:
    void step(int by, const std::string& name)
    {
        value += by;
        undoManager.registerUndo([this, by, name] { step(-by, name); });
        undoManager.setActionName(name);
    }
    [[nodiscard]] std::string state() const
    {
        return std::to_string(value) + " undo '" + undoManager.undoActionName() + "' redo '"
            + undoManager.redoActionName() + "'";
    }
    /// That is so, and the menus were told.
    void expectTold(const std::string& expected)
    {
        EXPECT_EQ(state(), expected);
        EXPECT_EQ(told, expected);
    }

    int value = 0;
    UndoManager undoManager;
    std::string told;
    Subscription subscription = undoManager.changed.subscribe([this] { told = state(); });
};

TEST_F(UndoManagerTest, WithNothingToDoNothingHappens)
{
    undoManager.undo();
    undoManager.redo();
    undoManager.setActionName("Nothing");
    EXPECT_EQ(state(), "0 undo '' redo ''");
    EXPECT_FALSE(undoManager.canUndo());
    EXPECT_FALSE(undoManager.canRedo());
}

TEST_F(UndoManagerTest, UndoesFromTheLatestBackAndRedoesForward)
{
    step(1, "One");
    step(10, "Ten");
    expectTold("11 undo 'Ten' redo ''");
    undoManager.undo();
    expectTold("1 undo 'One' redo 'Ten'");
    undoManager.undo();
    expectTold("0 undo '' redo 'One'");
    undoManager.redo();
    expectTold("1 undo 'One' redo 'Ten'");
    undoManager.redo();
    expectTold("11 undo 'Ten' redo ''");
}

TEST_F(UndoManagerTest, ANewActionEmptiesTheRedoStack)
{
    step(1, "One");
    undoManager.undo();
    step(5, "Five");
    expectTold("5 undo 'Five' redo ''");
    EXPECT_FALSE(undoManager.canRedo());
}

TEST_F(UndoManagerTest, OppositesKeepTheNameOfWhatIsBeingPerformed)
{
    undoManager.registerUndo([this] { step(1, "Down"); });
    undoManager.setActionName("Up");
    undoManager.undo();
    expectTold("1 undo '' redo 'Up'");
    undoManager.redo();
    expectTold("0 undo 'Up' redo ''");
}

TEST_F(UndoManagerTest, AnActionWithoutAnOppositeIsUsedUp)
{
    undoManager.registerUndo([this] { ++value; });
    undoManager.setActionName("Rename");
    undoManager.undo();
    expectTold("1 undo '' redo ''");
    undoManager.undo();
    undoManager.redo();
    EXPECT_EQ(value, 1);
}

TEST_F(UndoManagerTest, RemoveAllActionsEmptiesBothStacks)
{
    step(1, "One");
    step(10, "Ten");
    undoManager.undo();
    undoManager.removeAllActions();
    expectTold("1 undo '' redo ''");
    undoManager.undo();
    undoManager.redo();
    EXPECT_EQ(value, 1);
}

} // namespace

} // namespace cuebright::test
