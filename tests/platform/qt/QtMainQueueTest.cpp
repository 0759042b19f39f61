#include "platform/qt/QtMainQueue.h"

#include "support/EventLoop.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

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
        auto passed = std::make_shared<bool>(false);
        QtMainQueue other;
        other.after(delay, [passed] { *passed = true; });
        return waitUntil([&] { return *passed; });
    }

    std::string ran;
    std::optional<QtMainQueue> queue {std::in_place};
};

} // namespace

TEST_F(QtMainQueueTest, PostedWorkRunsLaterInOrderAndMayPostMore)
{
    queue->post([&] {
        ran += 'a';
        queue->post(note('c'));
    });
    queue->post(note('b'));
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
    queue->post(note('a'));
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
    queue->after(Seconds(0.03), [&] {
        ran += 'c';
        ranAfter = elapsed.nsecsElapsed();
    });
    queue->after(Seconds(0.015), note('b'));
    auto first = queue->after(Seconds(-5), note('a'));
    EXPECT_TRUE(waitUntil([&] { return ran == "abc"; })) << ran;
    EXPECT_GE(ranAfter, 29'000'000);
    first.cancel(); // too late
    EXPECT_TRUE(letPass(Seconds(0.04)));
    EXPECT_EQ(ran, "abc");
    never.cancel();
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

} // namespace cuebright::test
