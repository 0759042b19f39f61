#include "app/OnboardingOverlay.h"

#include "panel/PanelFixture.h"
#include "panel/PanelLabel.h"
#include "panel/ShareNotice.h"
#include "support/EventLoop.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace cuebright::test {

namespace {

const QString kAdvice = QStringLiteral("This desktop cannot hide a window from a shared screen. Share a single window "
                                       "or tab instead of the whole screen.");

} // namespace

class OnboardingOverlayTest : public PanelFixture {
protected:
    QWidget panel;
    QLineEdit below {&panel};
    OnboardingOverlay* overlay = nullptr;
    int finishes = 0;

    void open(CaptureExclusion::State state = CaptureExclusion::State::Excluded)
    {
        fake.captureExclusion.known = state;
        panel.resize(480, 360);
        below.setAccessibleName(QStringLiteral("below"));
        overlay = new OnboardingOverlay(context, &panel);
        overlay->finished = [this] { ++finishes; };
        panel.show();
        panel.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    }
    QWidget& button() { return *find(*overlay, buttonName()); }
    QString buttonName()
    {
        return overlay->currentPage() < 3 ? QStringLiteral("Next page") : QStringLiteral("Get started");
    }
    bool isDone() { return fake.preferences.boolean(preferenceKeys::kOnboardingDone).value_or(false); }
};

TEST_F(OnboardingOverlayTest, ItLeadsThroughFourPagesAndIsDoneOnlyAtTheEnd)
{
    open();
    const char* titles[] = {
        "Cue cards your audience can't see", "Invisible to screen share", "Quick shortcuts", "Write in markdown"};
    for (int page = 0; page < 4; ++page) {
        EXPECT_EQ(overlay->currentPage(), page);
        EXPECT_TRUE(isShown(*overlay, QLatin1String(titles[page])));
        EXPECT_TRUE(isShown(*overlay, QStringLiteral("Page %1 of 4").arg(page + 1)));
        EXPECT_TRUE(OnboardingOverlay::isDue(context));
        EXPECT_EQ(finishes, 0);
        press(*overlay, page < 3 ? QStringLiteral("Next page") : QStringLiteral("Get started"));
    }
    EXPECT_FALSE(OnboardingOverlay::isDue(context));
    EXPECT_TRUE(isDone());
    EXPECT_EQ(finishes, 1);
    EXPECT_TRUE(overlay->isHidden());
}

TEST_F(OnboardingOverlayTest, ReturnAndSpaceAdvance)
{
    open();
    EXPECT_EQ(QApplication::focusWidget(), &button());
    QTest::keyClick(&button(), Qt::Key_Return);
    EXPECT_EQ(overlay->currentPage(), 1);
    QTest::keyClick(&button(), Qt::Key_Space);
    EXPECT_EQ(overlay->currentPage(), 2);
    QTest::keyClick(&button(), Qt::Key_Enter);
    QTest::keyClick(&button(), Qt::Key_Return);
    EXPECT_TRUE(isDone());
}

TEST_F(OnboardingOverlayTest, AHeldKeyDoesNotRunThroughThePages)
{
    open();
    for (int i = 0; i < 5; ++i) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
        QApplication::sendEvent(&button(), &repeated);
    }
    EXPECT_EQ(overlay->currentPage(), 0);
}

TEST_F(OnboardingOverlayTest, TheFocusStaysOnIt)
{
    open();
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(QApplication::focusWidget(), &button());
    below.setFocus(); // as a command would that opens an edit
    EXPECT_EQ(QApplication::focusWidget(), &button());
}

TEST_F(OnboardingOverlayTest, AScreenReaderSeesNothingElseUntilItIsFinished)
{
    ASSERT_GT(QAccessible::queryAccessibleInterface(&panel)->childCount(), 0) << "asked before it opens";
    open();
    const auto root = [&] { return QAccessible::queryAccessibleInterface(&panel); };
    ASSERT_EQ(root()->childCount(), 1);
    EXPECT_EQ(root()->child(0)->object(), overlay);
    EXPECT_EQ(root()->indexOfChild(root()->child(0)), 0);
    for (int page = 0; page < 4; ++page)
        overlay->advance();
    EXPECT_TRUE(waitUntil([&] { return root()->childCount() == 2; }));
    EXPECT_EQ(root()->child(0)->text(QAccessible::Name), QStringLiteral("below"));
}

TEST_F(OnboardingOverlayTest, WhereThePanelCanBeSeenTheSecondPageSaysSo)
{
    using enum CaptureExclusion::State;
    for (const auto state : {Blackout, Visible, Unknown, Excluded}) {
        const auto pages = onboardingPages(shareAdvice(state));
        EXPECT_EQ(pages[1].advice, state == Excluded ? QString() : kAdvice);
        for (const int other : {0, 2, 3})
            EXPECT_TRUE(pages[static_cast<std::size_t>(other)].advice.isEmpty());
    }
    open(Visible);
    overlay->advance();
    const auto advice = find(*overlay, kAdvice);
    const auto body = find(*overlay, onboardingPages(shareAdvice(Visible))[1].body);
    EXPECT_LT(advice->geometry().bottom(), body->geometry().top());
    fake.captureExclusion.known = Excluded;
    fake.captureExclusion.changed.notify();
    EXPECT_FALSE(isShown(*overlay, kAdvice)) << "found out later";
    EXPECT_EQ(overlay->currentPage(), 1);
}

TEST_F(OnboardingOverlayTest, EveryPageFitsIntoTheSmallestPanel)
{
    open(CaptureExclusion::State::Visible);
    const int buttonTop = button().geometry().top();
    for (int page = 0; page < 4; ++page) {
        int bottom = 0;
        for (const auto label : overlay->findChildren<PanelLabel*>()) {
            if (!label->isVisible())
                continue;
            const QRect place(label->mapTo(overlay, QPoint()), label->size());
            EXPECT_TRUE(overlay->rect().contains(place)) << label->text().toStdString();
            const int needed =
                label->hasHeightForWidth() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << label->text().toStdString();
            bottom = std::max(bottom, place.bottom());
        }
        const auto dots = find(*overlay, QStringLiteral("Page %1 of 4").arg(page + 1))->geometry();
        EXPECT_LT(bottom, dots.top());
        EXPECT_LT(dots.bottom(), button().geometry().top());
        EXPECT_LE(button().geometry().bottom(), 360 - 12);
        EXPECT_EQ(button().geometry().top(), buttonTop) << "stays under the pointer";
        overlay->advance();
    }
}

} // namespace cuebright::test
