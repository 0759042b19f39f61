#include "platform/linux/portal/PortalHotKeys.h"

#include "support/EventLoop.h"
#include "support/FakePortal.h"
#include "support/PrivateBus.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

namespace cuebright::test {

namespace {

constexpr HotKey kKey {0x43554542, 1, 'S', "toggle-panel", "Show or hide the panel"};
constexpr HotKey kOtherKey {0x43554542, 2, 'T', "other", "Something else"};

const QStringList kCallsForOneKey {QStringLiteral("Register app.cuebright.Cuebright"), QStringLiteral("CreateSession"),
    QStringLiteral("BindShortcuts toggle-panel CTRL+SHIFT+s Show or hide the panel")};

class PortalHotKeysTest : public testing::Test {
protected:
    PortalHotKeysTest() { QGuiApplication::setDesktopFileName(QStringLiteral("app.cuebright.Cuebright")); }

    FakePortal& startPortal() { return portal.emplace(bus.connect()); }
    std::unique_ptr<HotKeyRegistration> registerKey(const HotKey& key = kKey)
    {
        return hotKeys.registerHotKey(key, [this] { ++presses; });
    }
    /// Starts with a portal that binds the key.
    std::unique_ptr<HotKeyRegistration> startBound()
    {
        if (!portal)
            startPortal();
        auto registration = registerKey();
        EXPECT_TRUE(connections == 0 && !registration->isSystemWide()) << "not before the start";
        hotKeys.start();
        EXPECT_TRUE(becomesBound(registration));
        return registration;
    }
    static bool becomesBound(const std::unique_ptr<HotKeyRegistration>& registration, bool isBound = true)
    {
        return waitUntil([&] { return registration->isSystemWide() == isBound; });
    }

    PrivateBus bus;
    std::optional<FakePortal> portal;
    int connections = 0;
    PortalHotKeys hotKeys {[this] {
        ++connections;
        return bus.connect();
    }};
    int presses = 0;
};

} // namespace

TEST_F(PortalHotKeysTest, OnlyItsOwnActivationPressesTheKey)
{
    const auto registration = startBound();
    const auto id = QStringLiteral("toggle-panel");
    for (int expected = 1; expected <= 2; ++expected) {
        portal->sendActivated(portal->sessions[0].path, QStringLiteral("other"));
        portal->sendActivated(portal->sessions[0].path + QLatin1Char('2'), id);
        ASSERT_TRUE(portal->activate(id));
        EXPECT_TRUE(waitUntil([&] { return presses == expected; })) << presses;
    }
}

TEST_F(PortalHotKeysTest, WhatThePortalDoesNotGrantIsNotSystemWide)
{
    const std::tuple<const char*, void (*)(FakePortal&), int> cases[] = {
        {"session refused by the user", [](FakePortal& p) { p.responseToCreate = 1; }, 2},
        {"session ended otherwise", [](FakePortal& p) { p.responseToCreate = 2; }, 2},
        {"binding refused by the user", [](FakePortal& p) { p.responseToBind = 1; }, 3},
        {"binding ended otherwise", [](FakePortal& p) { p.responseToBind = 2; }, 3},
        {"bound to no key", [](FakePortal& p) { p.triggerDescription.clear(); }, 3},
        {"no global shortcuts", [](FakePortal& p) { p.hasShortcuts = false; }, 2},
    };
    for (const auto& [name, prepare, calls] : cases) {
        SCOPED_TRACE(name);
        prepare(startPortal());
        PortalHotKeys keys([this] { return bus.connect(); });
        const auto refused = keys.registerHotKey(kKey, [] {});
        keys.start();
        ASSERT_TRUE(waitUntil([&, expected = calls] { return portal->calls.size() == expected; }));
        // Once a later request is granted, the refusal has arrived.
        portal->hasShortcuts = true;
        portal->responseToCreate = portal->responseToBind = 0;
        portal->triggerDescription = QStringLiteral("Ctrl+T");
        const auto granted = keys.registerHotKey(kOtherKey, [] {});
        ASSERT_TRUE(becomesBound(granted));
        EXPECT_FALSE(refused->isSystemWide());
        EXPECT_EQ(portal->calls.size(), calls + 3) << "a refusal is final";
    }
}

TEST_F(PortalHotKeysTest, AKeyIsRegisteredThenGivenASessionThenBoundAndGivenBackClosesItsSession)
{
    registerKey(kOtherKey).reset(); // never started
    startBound().reset();
    EXPECT_TRUE(waitUntil([&] { return portal->sessions.isEmpty(); }));
    EXPECT_EQ(portal->calls, kCallsForOneKey + QStringList {QStringLiteral("Close")});
}

TEST_F(PortalHotKeysTest, LateAndRestartedPortalsAreAskedUntilTheSessionIsClosed)
{
    const auto registration = registerKey();
    hotKeys.start();
    startPortal();
    ASSERT_TRUE(becomesBound(registration));
    portal->leave();
    ASSERT_TRUE(becomesBound(registration, false));
    startPortal();
    ASSERT_TRUE(becomesBound(registration));
    EXPECT_EQ(portal->calls, kCallsForOneKey);
    ASSERT_TRUE(portal->activate(QStringLiteral("toggle-panel")));
    EXPECT_TRUE(waitUntil([&] { return presses == 1; }));
    portal->closeSession(portal->sessions[0].path);
    EXPECT_TRUE(becomesBound(registration, false));
}

} // namespace cuebright::test
