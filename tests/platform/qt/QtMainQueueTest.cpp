#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtWindowEvents.h"

#include "support/EventLoop.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWindow>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cuebright::test {

namespace {

class QtMainQueueTest : public testing::Test {
protected:
    std::function<void()> note(char c)
    {
        return [this, c] { ran += c; };
    }
    /// Runs the event loop for `delay`.
    [[nodiscard]] bool letPass(Seconds delay)
    {
        bool hasPassed = false;
        QtMainQueue other(windowEvents);
        const auto end = other.after(delay, [&] { hasPassed = true; });
        return waitUntil([&] { return hasPassed; });
    }

    std::string ran;
    QtWindowEvents windowEvents;
    std::optional<QtMainQueue> queue {std::in_place, windowEvents};
};

} // namespace

TEST_F(QtMainQueueTest, PostedWorkRunsLaterInOrderAndMayPostMore)
{
    PendingTask last;
    const auto first = queue->post([&] {
        ran += 'a';
        last = queue->post(note('c'));
    });
    const auto second = queue->post(note('b'));
    EXPECT_EQ(ran, "");
    EXPECT_TRUE(waitUntil([&] { return ran == "abc"; })) << ran;
}

TEST_F(QtMainQueueTest, PostedWorkRunsBeforeAWindowGetsTheNextKey)
{
    struct Window final : QWindow {
        void keyPressEvent(QKeyEvent*) override { seen = *text; }
        const std::string* text = nullptr;
        std::string seen;
    } window;
    window.text = &ran;
    const auto posted = queue->post(note('a'));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &key);
    EXPECT_EQ(window.seen, "a");
}

TEST_F(QtMainQueueTest, DelayedWorkRunsOnceInTheOrderOfItsTimesAndNotEarly)
{
    QElapsedTimer elapsed;
    elapsed.start();
    qint64 ranAfter = 0;
    auto never = queue->after(Seconds(1e300), note('x'));
    const auto third = queue->after(Seconds(0.03), [&] {
        ran += 'c';
        ranAfter = elapsed.nsecsElapsed();
    });
    const auto second = queue->after(Seconds(0.015), note('b'));
    auto first = queue->after(Seconds(-5), note('a'));
    EXPECT_TRUE(waitUntil([&] { return ran == "abc"; })) << ran;
    EXPECT_GE(ranAfter, 29'000'000);
    first.cancel(); // too late
    EXPECT_TRUE(letPass(Seconds(0.04)));
    EXPECT_EQ(ran, "abc");
    never.cancel();
}

TEST_F(QtMainQueueTest, WorkWithoutItsHandleNeverRunsAndIsReleasedImmediately)
{
    const auto held = std::make_shared<int>();
    const auto work = [this, held] { ran += 'a'; };
    for (const auto end : {+[](PendingTask& task) { task.cancel(); }, +[](PendingTask& task) { task = {}; },
             +[](PendingTask& task) { const auto destroyed = std::move(task); }}) {
        std::array tasks {queue->post(work), queue->after(Seconds(0.002), work), queue->every(Seconds(0.002), work)};
        for (auto& task : tasks) {
            end(task);
            task.cancel(); // nothing is left to cancel
        }
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_TRUE(letPass(Seconds(0.01)));
    EXPECT_EQ(ran, "");
}

TEST_F(QtMainQueueTest, WorkMayCancelItselfAndStartAnew)
{
    const auto held = std::make_shared<std::string>("still here");
    PendingTask handle;
    handle = queue->every(Seconds(0.002), [&, held] {
        ran += 'a';
        if (ran.size() < 3)
            return;
        handle.cancel();
        ran += *held; // captures live until the work ends
        handle = queue->after(Seconds(0.001), [&] {
            handle.cancel();
            handle = queue->after(Seconds(0.001), note('b'));
        });
    });
    EXPECT_TRUE(waitUntil([&] { return ran.ends_with('b'); }));
    EXPECT_TRUE(letPass(Seconds(0.01)));
    EXPECT_EQ(ran, "aaastill hereb");
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(QtMainQueueTest, WorkMayDestroyItsOwnHandle)
{
    const auto held = std::make_shared<std::string>("a");
    std::vector<PendingTask> tasks(3);
    const auto destroyHandle = [&, held](std::size_t index) {
        return [&, held, index] {
            tasks[index] = {};
            ran += *held;
        };
    };
    tasks[0] = queue->post(destroyHandle(0));
    tasks[1] = queue->after(Seconds(0), destroyHandle(1));
    tasks[2] = queue->every(Seconds(0.001), destroyHandle(2));
    EXPECT_TRUE(waitUntil([&] { return ran == "aaa"; })) << ran;
    EXPECT_TRUE(letPass(Seconds(0.005)));
    EXPECT_EQ(ran, "aaa");
    EXPECT_EQ(held.use_count(), 2);
}

} // namespace cuebright::test
