#include "app/AppDelegate.h"

#include "store/PreferenceKeys.h"
#include "support/EventLoop.h"
#include "support/FakePlatform.h"
#include "ui/panel/NotesPanel.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace cuebright::test {

TEST(AppDelegate, ACardIsDeletedOnlyWhenTheUserConfirmsIt)
{
    FakePlatform fake;
    fake.accessibility.motionReduced = true;
    fake.preferences.setBoolean(preferenceKeys::kOnboardingDone, true);
    AppDelegate delegate(fake.platform(), fake.desktop());
    delegate.applicationDidFinishLaunching();
    for (const auto& [answer, cardCount] : {std::pair("Cancel", 5), std::pair("Delete", 4)}) {
        delegate.perform(Command::DeleteCard);
        const auto sheet = delegate.panelWindow().findChild<QMessageBox*>();
        ASSERT_TRUE(sheet);
        EXPECT_EQ(delegate.store().cardCount(), 5);
        for (const auto button : sheet->buttons()) {
            if (button->text() == QLatin1String(answer))
                button->click();
        }
        EXPECT_EQ(delegate.store().cardCount(), cardCount);
        processEvents();
    }
}

} // namespace cuebright::test
