#include "store/UndoManager.h"

#include <gtest/gtest.h>

namespace cuebright::test {

namespace {

/// Something to undo: each step registers its opposite, as the store's operations do.
struct Counter {
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

    int value = 0;
    UndoManager undoManager;
};

TEST(UndoManager, StartsWithNothingToDo)
{
    UndoManager undoManager;
    EXPECT_FALSE(undoManager.canUndo());
    EXPECT_FALSE(undoManager.canRedo());
    undoManager.undo();
    undoManager.redo();
    undoManager.setActionName("Nothing");
    EXPECT_EQ(undoManager.undoActionName(), "");
    EXPECT_EQ(undoManager.redoActionName(), "");
}

TEST(UndoManager, UndoesFromTheLatestBackAndRedoesForward)
{
    Counter counter;
    counter.step(1, "One");
    counter.step(10, "Ten");
    EXPECT_EQ(counter.state(), "11 undo 'Ten' redo ''");
    counter.undoManager.undo();
    EXPECT_EQ(counter.state(), "1 undo 'One' redo 'Ten'");
    counter.undoManager.undo();
    EXPECT_EQ(counter.state(), "0 undo '' redo 'One'");
    counter.undoManager.redo();
    EXPECT_EQ(counter.state(), "1 undo 'One' redo 'Ten'");
    counter.undoManager.redo();
    EXPECT_EQ(counter.state(), "11 undo 'Ten' redo ''");
}

TEST(UndoManager, ANewActionEmptiesTheRedoStack)
{
    Counter counter;
    counter.step(1, "One");
    counter.undoManager.undo();
    counter.step(5, "Five");
    EXPECT_EQ(counter.state(), "5 undo 'Five' redo ''");
    EXPECT_FALSE(counter.undoManager.canRedo());
}

TEST(UndoManager, OppositesKeepTheNameOfWhatIsBeingPerformed)
{
    UndoManager undoManager;
    undoManager.registerUndo([&] {
        undoManager.registerUndo([&] {
            undoManager.registerUndo([] {});
            undoManager.setActionName("Up");
        });
        undoManager.setActionName("Down");
    });
    undoManager.setActionName("Up");
    undoManager.undo();
    EXPECT_EQ(undoManager.redoActionName(), "Up");
    undoManager.redo();
    EXPECT_EQ(undoManager.undoActionName(), "Up");
}

TEST(UndoManager, AnActionWithoutAnOppositeIsUsedUp)
{
    Counter counter;
    counter.undoManager.registerUndo([&] { ++counter.value; });
    counter.undoManager.setActionName("Rename");
    std::string told;
    const auto subscription = counter.undoManager.changed.subscribe([&] { told = counter.state(); });
    counter.undoManager.undo();
    EXPECT_EQ(told, "1 undo '' redo ''");
    counter.undoManager.undo();
    counter.undoManager.redo();
    EXPECT_EQ(counter.value, 1);
}

TEST(UndoManager, RemoveAllActionsEmptiesBothStacks)
{
    Counter counter;
    counter.step(1, "One");
    counter.step(10, "Ten");
    counter.undoManager.undo();
    counter.undoManager.removeAllActions();
    EXPECT_EQ(counter.state(), "1 undo '' redo ''");
    counter.undoManager.undo();
    counter.undoManager.redo();
    EXPECT_EQ(counter.value, 1);
}

TEST(UndoManager, EveryChangeOfTheMenuTextsIsTold)
{
    Counter counter;
    std::string told;
    const auto subscription = counter.undoManager.changed.subscribe([&] { told = counter.state(); });
    counter.step(1, "One");
    EXPECT_EQ(told, "1 undo 'One' redo ''");
    counter.undoManager.undo();
    EXPECT_EQ(told, "0 undo '' redo 'One'");
    counter.undoManager.redo();
    EXPECT_EQ(told, "1 undo 'One' redo ''");
    counter.undoManager.removeAllActions();
    EXPECT_EQ(told, "1 undo '' redo ''");
}

} // namespace

} // namespace cuebright::test
