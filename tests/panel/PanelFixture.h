#pragma once

#include "foundation/NotificationCenter.h"
#include "panel/PanelContext.h"
#include "store/CardStore.h"
#include "support/FakePlatform.h"

#include <QAccessible>
#include <QWidget>

#include <gtest/gtest.h>

namespace cuebright::test {

/// A store with the sample decks on fake surroundings, for views to show.
class PanelFixture : public testing::Test {
protected:
    FakePlatform fake;
    NotificationCenter notifications;
    CardStore store {fake.platform()};
    PanelContext context {store, notifications, fake.platform(), fake.desktop()};

    /// Replaces all decks by one with these cards.
    void setCards(const std::vector<std::string>& contents);
    /// Lets the views take in what has changed.
    void refresh() { fake.mainQueue.runPosted(); }

    /// The visible widget under `root` that a screen reader calls `name`; fails the test where there is none.
    static QWidget* find(QWidget& root, const QString& name);
    static bool isShown(QWidget& root, const QString& name);
    /// Presses a button as a screen reader does.
    static void press(QWidget& root, const QString& name);
};

} // namespace cuebright::test
