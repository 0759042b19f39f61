#include "platform/linux/ApplicationBusName.h"

#include "platform/TemporaryFolder.h"
#include "platform/linux/ApplicationInterface.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/StartupNotification.h"
#include "support/EventLoop.h"
#include "support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <ostream>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;
using Action = RemoteRequest::Action;

const QString kInterface = QString::fromLatin1(kApplicationInterface);

class ApplicationBusNameTest : public testing::Test {
protected:
    PrivateBus bus;
    ApplicationBusName name {bus.address().toStdString()};
    std::vector<RemoteRequest> requests;

    void SetUp() override { ASSERT_EQ(name.claim({}), InstanceClaim::Granted); }
    void deliver()
    {
        name.deliver([this](const RemoteRequest& request) { requests.push_back(request); });
    }

    QDBusPendingCall call(const QString& interface, const QString& method, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(
            QString::fromLatin1(kApplicationName), QString::fromLatin1(kApplicationPath), interface, method);
        message.setArguments(arguments);
        return bus.connect().asyncCall(message);
    }

    /// From a thread of its own, as from a process of its own.
    InstanceClaim furtherLaunch(const ApplicationBusName::PlatformData& data) const
    {
        std::atomic<bool> hasEnded = false;
        auto outcome = InstanceClaim::Unavailable;
        std::thread launch([&] {
            outcome = ApplicationBusName(bus.address().toStdString()).claim(data, 5s);
            hasEnded = true;
        });
        EXPECT_TRUE(waitUntil([&] { return hasEnded.load(); }));
        launch.join();
        return outcome;
    }
};

struct Call {
    const char* name;
    const char* method;
    QVariantList arguments;
    std::vector<RemoteRequest> requests;
    const char* error = "";

    friend void PrintTo(const Call& call, std::ostream* out) { *out << call.name; }
};

QVariantMap platformData(const char* key, const QVariant& value) { return {{QString::fromLatin1(key), value}}; }

QVariantList action(const char* name, const QVariantList& parameters = {}, const QVariantMap& data = {})
{
    return {QString::fromLatin1(name), parameters, data};
}

constexpr auto kBadArguments = "org.freedesktop.DBus.Error.InvalidArgs";

class ApplicationCalls : public ApplicationBusNameTest, public testing::WithParamInterface<Call> { };

TEST_P(ApplicationCalls, AreCarriedOutOrRefused)
{
    deliver();
    const auto reply = call(kInterface, QString::fromLatin1(GetParam().method), GetParam().arguments);
    ASSERT_TRUE(waitUntil([&] { return reply.isFinished(); }));
    EXPECT_EQ(reply.error().name().toStdString(), GetParam().error);
    EXPECT_EQ(requests, GetParam().requests);
}

const QString kText = QStringLiteral("x_TIME7");

INSTANTIATE_TEST_SUITE_P(All, ApplicationCalls,
    testing::Values(Call {"Activate", "Activate", {QVariantMap()}, {{}}},
        Call {"WithAToken", "Activate", {platformData("activation-token", kText)}, {{Action::Activate, "x_TIME7"}}},
        Call {
            "WithAStartupId", "Activate", {platformData("desktop-startup-id", kText)}, {{Action::Activate, "x_TIME7"}}},
        Call {"WithATokenThatIsNone", "Activate", {platformData("activation-token", 7)}, {{}}},
        Call {"Files", "Open", {QStringList {QStringLiteral("file:///a.md")}, QVariantMap()}, {{}}},
        Call {"Toggle", "ActivateAction", action("toggle-panel"), {{Action::TogglePanel}}},
        Call {"Next", "ActivateAction", action("next-card", {}, platformData("activation-token", kText)),
            {{Action::NextCard, "x_TIME7"}}},
        Call {"Previous", "ActivateAction", action("previous-card"), {{Action::PreviousCard}}},
        Call {"UnknownAction", "ActivateAction", action("quit"), {}, kBadArguments},
        Call {"AParameterTooMuch", "ActivateAction", action("next-card", {1}), {}, kBadArguments},
        Call {"TooFewArguments", "ActivateAction", {QStringLiteral("next-card")}, {}, kBadArguments},
        Call {"NoArguments", "Activate", {}, {}, kBadArguments},
        Call {"OtherArguments", "Open", {1, 2}, {}, kBadArguments},
        Call {"UnknownMethod", "Quit", {}, {}, "org.freedesktop.DBus.Error.UnknownMethod"}),
    [](const auto& call) { return call.param.name; });

TEST_F(ApplicationBusNameTest, IntrospectionNamesTheMethods)
{
    deliver();
    const auto reply = call(QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"), {});
    ASSERT_TRUE(waitUntil([&] { return reply.isFinished(); }));
    const auto text = reply.reply().arguments().value(0).toString();
    for (const char* method : {"Activate", "Open", "ActivateAction"})
        EXPECT_TRUE(text.contains(QStringLiteral("<method name=\"%1\">").arg(QLatin1String(method)))) << method;
}

TEST_F(ApplicationBusNameTest, AFurtherLaunchHandsItsTokenToTheOwner)
{
    deliver();
    EXPECT_EQ(furtherLaunch({{"desktop-startup-id", "id"}, {"activation-token", "token"}}), InstanceClaim::HandedOver);
    EXPECT_EQ(furtherLaunch({{"activation-token", "not \xff text"}}), InstanceClaim::HandedOver);
    EXPECT_EQ(requests, (std::vector<RemoteRequest> {{Action::Activate, "token"}, {}}));
}

TEST_F(ApplicationBusNameTest, ARequestToOneThatDoesNotAnswerWaitsForIt)
{
    EXPECT_EQ(ApplicationBusName(bus.address().toStdString()).claim({}, 60ms), InstanceClaim::Queued);
    deliver();
    EXPECT_TRUE(waitUntil([&] { return requests == std::vector<RemoteRequest> {{}}; }));
}

TEST(ApplicationBusNameWithoutABus, IsUnavailable)
{
    for (const auto& address : {std::optional<std::string>(), std::optional<std::string>("unix:path=/nowhere"),
             std::optional<std::string>("no address")})
        EXPECT_EQ(ApplicationBusName(address).claim({}), InstanceClaim::Unavailable) << address.value_or("none");
}

TEST(ApplicationBusNameWithoutABus, DoesNotWaitForOneThatHangs)
{
    const TemporaryFolder folder;
    const auto path = folder.file("bus").string();
    sockaddr_un address {AF_UNIX, {}};
    std::ranges::copy(path, address.sun_path);
    const FileDescriptor hung(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::bind(hung.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(hung.get(), 1), 0);
    EXPECT_EQ(ApplicationBusName("unix:path=" + path).claim({}, 60ms), InstanceClaim::Unavailable);
}

TEST(StartupNotification, IdsCarryTheTimeOfTheLaunch)
{
    const std::vector<std::pair<const char*, std::uint32_t>> cases {{"shell-12-host-panel-3_TIME81234", 81234U},
        {"a_TIME1_TIME2", 2U}, {"", 0U}, {"_TIME", 0U}, {"x_TIME12b", 0U}, {"x_TIME99999999999", 0U}, {"token", 0U}};
    for (const auto& [id, time] : cases)
        EXPECT_EQ(startupTime(id), time) << id;
    EXPECT_EQ(startupEndMessage(R"(a"b\c d)"), R"(remove: ID="a\"b\\c d")");
}

} // namespace
} // namespace cuebright::test
