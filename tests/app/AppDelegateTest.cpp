#include "app/AppDelegate.h"

#include "model/StateFile.h"
#include "support/FakePlatform.h"

#include <QAbstractButton>
#include <QCoreApplication>
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

    std::size_t cardCount()
    {
        delegate->applicationWillTerminate();
        return decodeState(fake.fileSystem.files["/support/Cuebright/state.json"])->decks[0].cards.size();
    }
    /// Asks to delete the card on show.
    void answer(const QString& text)
    {
        QTest::keyClick(delegate->panelWindow()->windowHandle(), Qt::Key_D, Qt::ControlModifier);
        for (const auto button : delegate->panelWindow()->findChildren<QAbstractButton*>()) {
            if (button->text() == text && button->window()->isModal() && button->isVisible())
                return button->click();
        }
        ADD_FAILURE() << "nobody asks";
    }
};

TEST_F(AppDelegateTest, DeletingACardAsksFirst)
{
    answer(QStringLiteral("Cancel"));
    EXPECT_EQ(cardCount(), 5U);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    answer(QStringLiteral("Delete"));
    EXPECT_EQ(cardCount(), 4U);
}

} // namespace cuebright::test
