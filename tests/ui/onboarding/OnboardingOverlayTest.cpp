#include "ui/onboarding/OnboardingOverlay.h"

#include "support/EventLoop.h"
#include "ui/base/ShareStatus.h"
#include "ui/panel/PanelFixture.h"
#include "ui/widgets/Label.h"

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
        below.setAccessibleName(u"below"_s);
        overlay = new OnboardingOverlay(context, &panel);
        QObject::connect(overlay, &OnboardingOverlay::finished, overlay, [this] { ++finishes; });
        activate(panel);
    }
    QWidget& button() { return *find(*overlay, overlay->currentPage() < 3 ? "Next page" : "Get started"); }
};

TEST_F(OnboardingOverlayTest, ReturnAndSpaceAdvanceOnePageEach)
{
    open();
    for (QWidget* const target : {&button(), static_cast<QWidget*>(overlay)}) {
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(target, &held);
    }
    EXPECT_EQ(overlay->currentPage(), 0);
    for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter, Qt::Key_Return}) {
        EXPECT_TRUE(OnboardingOverlay::isDue(context) && finishes == 0);
        QTest::keyClick(&button(), key);
    }
    EXPECT_FALSE(OnboardingOverlay::isDue(context));
    EXPECT_EQ(finishes, 1);
    EXPECT_TRUE(overlay->isHidden());
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
    EXPECT_EQ(root()->child(0)->text(QAccessible::Name), u"below"_s);
}

TEST_F(OnboardingOverlayTest, WhereThePanelCanBeSeenTheSecondPageSaysSo)
{
    using enum CaptureExclusion::State;
    open(Visible);
    overlay->advance();
    const auto advice = find(*overlay, kAdvice);
    const auto body = find(*overlay, onboardingPages(shareAdvice(fake.captureExclusion))[1].body);
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
        for (const auto label : overlay->findChildren<Label*>()) {
            if (!label->isVisible())
                continue;
            const QRect place(label->mapTo(overlay, QPoint()), label->size());
            EXPECT_TRUE(overlay->rect().contains(place)) << label->text().toStdString();
            const int needed =
                label->hasHeightForWidth() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << label->text().toStdString();
            bottom = std::max(bottom, place.bottom());
        }
        const auto dots = find(*overlay, u"Page %1 of 4"_s.arg(page + 1))->geometry();
        EXPECT_LT(bottom, dots.top());
        EXPECT_LT(dots.bottom(), button().geometry().top());
        EXPECT_LE(button().geometry().bottom(), 360 - 12);
        EXPECT_EQ(button().geometry().top(), buttonTop) << "stays under the pointer";
        overlay->advance();
    }
}

} // namespace cuebright::test
