#pragma once

#include "foundation/NotificationCenter.h"
#include "store/CardStore.h"
#include "support/FakePlatform.h"
#include "ui/base/UiContext.h"

#include <QAccessible>
#include <QMenu>
#include <QWidget>

#include <gtest/gtest.h>

namespace cuebright::test {

using namespace Qt::StringLiterals;

/// A store with the sample decks on a fake platform.
class PanelFixture : public testing::Test {
protected:
    FakePlatform fake;
    NotificationCenter notifications;
    CardStore store {fake.platform()};
    UiContext context {store, notifications, fake.platform(), fake.desktop()};

    /// Replaces all decks by one with these cards.
    void setCards(const std::vector<std::string>& contents, std::int64_t activeCard = 0);
    /// Runs posted work, so that the views show the latest state.
    void refresh() { fake.mainQueue.runPosted(); }

    /// The visible widget under `root` with that accessible name; fails the test if there is none.
    static QWidget* find(QWidget& root, QAnyStringView name);
    static bool isShown(QWidget& root, QAnyStringView name);
    /// Presses a button as a screen reader does.
    static void press(QWidget& root, QAnyStringView name);

    /// Shows and activates a window.
    static void activate(QWidget& window);
    static QMenu* openMenu();
    /// The items of a menu, separated by "|".
    static QString textsOf(const QMenu& menu);
};

} // namespace cuebright::test
