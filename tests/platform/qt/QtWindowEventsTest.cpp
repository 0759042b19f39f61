#include "platform/qt/QtWindowEvents.h"

#include "support/EventLoop.h"

#include <QMenu>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace cuebright::test {

namespace {

class QtWindowEventsTest : public testing::Test {
protected:
    [[nodiscard]] bool hasAppeared(const QWidget& widget) const
    {
        return std::ranges::find(appeared, widget.winId()) != appeared.end();
    }

    QtWindowEvents events;
    std::vector<WindowSystem::WindowId> appeared;
    std::vector<WindowSystem::WindowId> gone;
    Subscription appears = events.topLevelAppears.subscribe([this](auto window) { appeared.push_back(window); });
    Subscription goes = events.topLevelGoes.subscribe([this](auto window) { gone.push_back(window); });
};

TEST_F(QtWindowEventsTest, SignalsAWindowBeforeItIsExposedAndWhenItIsDestroyed)
{
    auto widget = std::make_unique<QWidget>();
    std::optional<bool> wasExposed;
    const auto looks = events.topLevelAppears.subscribe([&](auto) {
        if (!wasExposed)
            wasExposed = widget && widget->windowHandle() && widget->windowHandle()->isExposed();
    });
    for (int show = 0; show < 2; ++show) {
        widget->hide();
        processEvents();
        appeared.clear();
        wasExposed.reset();
        widget->show();
        EXPECT_TRUE(waitUntil([&] { return widget->windowHandle()->isExposed(); }));
        EXPECT_EQ(wasExposed, false);
    }
    const WindowSystem::WindowId id = widget->winId();
    EXPECT_EQ(appeared, std::vector(2, id)) << "about to be shown, and on screen";
    EXPECT_TRUE(gone.empty());
    widget.reset();
    EXPECT_EQ(gone, std::vector {id});
}

TEST_F(QtWindowEventsTest, SignalsMenusAndNoWindowsInsideOthers)
{
    QWidget widget;
    QWidget inside(&widget);
    inside.setAttribute(Qt::WA_NativeWindow);
    widget.show();
    ASSERT_NE(inside.windowHandle(), nullptr);
    EXPECT_FALSE(hasAppeared(inside));

    QMenu menu;
    menu.addAction(QStringLiteral("An action"));
    menu.popup({});
    EXPECT_TRUE(hasAppeared(menu));
}

} // namespace

} // namespace cuebright::test
