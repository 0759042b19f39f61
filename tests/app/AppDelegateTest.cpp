#include "app/AppDelegate.h"

#include "model/StateFile.h"
#include "support/FakePlatform.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace cuebright::test {

class AppDelegateTest : public testing::Test {
protected:
    FakePlatform fake;
    const bool isNoFirstRun = (fake.preferences.setBoolean(preferenceKeys::kOnboardingDone, true), true);
    std::unique_ptr<AppDelegate> delegate = std::make_unique<AppDelegate>(fake.platform(), fake.desktop());

    void SetUp() override { delegate->applicationDidFinishLaunching(); }

    std::optional<AppState> saved() { return decodeState(fake.fileSystem.files["/support/Cuebright/state.json"]); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        const auto panel = delegate->panelWindow();
        panel->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(panel));
        QTest::keyClick(panel->windowHandle(), key, modifiers);
        fake.mainQueue.runPosted();
    }
};

TEST_F(AppDelegateTest, LeavingKeepsAnOpenEditAndWritesTheFile)
{
    key(Qt::Key_E, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Kept"));
    delegate->applicationWillTerminate();
    ASSERT_TRUE(saved());
    EXPECT_TRUE(saved()->decks[0].cards[0].content.starts_with("# Kept\n"));
}

TEST_F(AppDelegateTest, MenuKeysReachTheStore)
{
    key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    key(Qt::Key_N, Qt::ControlModifier);
    key(Qt::Key_Escape, Qt::NoModifier);
    key(Qt::Key_Up, Qt::ControlModifier | Qt::AltModifier);
    delegate->applicationWillTerminate();
    ASSERT_TRUE(saved());
    ASSERT_EQ(saved()->decks.size(), 4U);
    EXPECT_EQ(saved()->decks[3].name, "New Deck");
    EXPECT_EQ(saved()->decks[3].cards[0].content, "# New Card\n\nStart writing here.");
    EXPECT_EQ(saved()->activeCardIndex, 0);
}

TEST_F(AppDelegateTest, DeletingACardAsksFirst)
{
    const auto button = [&](const QString& text) -> QAbstractButton* {
        for (const auto candidate : delegate->panelWindow()->findChildren<QAbstractButton*>()) {
            if (candidate->text() == text && candidate->window()->isModal() && candidate->isVisible())
                return candidate;
        }
        return nullptr;
    };
    const auto cardCount = [&] {
        delegate->applicationWillTerminate();
        return saved()->decks[0].cards.size();
    };
    key(Qt::Key_D, Qt::ControlModifier);
    ASSERT_TRUE(button(QStringLiteral("Cancel")));
    button(QStringLiteral("Cancel"))->click();
    EXPECT_EQ(cardCount(), 5U);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    key(Qt::Key_D, Qt::ControlModifier);
    ASSERT_TRUE(button(QStringLiteral("Delete")));
    button(QStringLiteral("Delete"))->click();
    EXPECT_EQ(cardCount(), 4U);
}

} // namespace cuebright::test
