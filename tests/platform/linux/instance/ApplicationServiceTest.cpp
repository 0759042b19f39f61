#include "platform/linux/instance/ApplicationService.h"

#include "platform/ApplicationId.h"
#include "platform/linux/instance/FurtherLaunch.h"
#include "support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <tuple>
#include <vector>

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;
using Action = RemoteRequest::Action;
using Requests = std::vector<RemoteRequest>;

class ApplicationServiceTest : public testing::Test {
protected:
    PrivateBus bus;
    ApplicationService service {bus.connect()};
    Requests requests;

    void SetUp() override { ASSERT_EQ(service.claim({}), InstanceClaim::Granted); }
    void deliver()
    {
        service.deliver([this](const RemoteRequest& request) { requests.push_back(request); });
    }
    InstanceClaim handOver(const QVariantMap& data)
    {
        const auto connection = bus.connect();
        return furtherLaunch([&] { return ApplicationService(connection).claim(data, 5s); });
    }
};

QVariantMap platformData(const char* key, const QVariant& value) { return {{QString::fromLatin1(key), value}}; }

QVariantList action(const char* name, const QVariantList& parameters = {}, const QVariantMap& data = {})
{
    return {QString::fromLatin1(name), parameters, data};
}

TEST_F(ApplicationServiceTest, CallsAreCarriedOutOrRefused)
{
    constexpr auto kBadArguments = "org.freedesktop.DBus.Error.InvalidArgs";
    constexpr auto kUnknownMethod = "org.freedesktop.DBus.Error.UnknownMethod";
    const auto text = QStringLiteral("x_TIME7");
    const RemoteRequest withToken {Action::Activate, "x_TIME7"};
    const auto token = platformData("activation-token", text);
    const std::tuple<const char*, QVariantList, Requests, const char*> calls[] = {
        {"Activate", {QVariantMap()}, {{}}, ""},
        {"Activate", {token}, {withToken}, ""},
        {"Activate", {platformData("desktop-startup-id", text)}, {withToken}, ""},
        {"Activate", {platformData("activation-token", 7)}, {{}}, ""},
        {"Open", {QStringList {QStringLiteral("file:///a.md")}, QVariantMap()}, {{}}, ""},
        {"ActivateAction", action("toggle-panel"), {{Action::TogglePanel}}, ""},
        {"ActivateAction", action("next-card", {}, token), {{Action::NextCard, "x_TIME7"}}, ""},
        {"ActivateAction", action("previous-card"), {{Action::PreviousCard}}, ""},
        {"ActivateAction", action("quit"), {}, kBadArguments},
        {"ActivateAction", action("next-card", {1}), {}, kBadArguments},
        {"ActivateAction", {QStringLiteral("next-card")}, {}, kUnknownMethod},
        {"Activate", {}, {}, kUnknownMethod},
        {"Open", {1, 2}, {}, kUnknownMethod},
        {"Quit", {}, {}, kUnknownMethod},
    };
    deliver();
    auto client = bus.connect();
    for (std::size_t row = 0; row < std::size(calls); ++row) {
        const auto& [method, arguments, expected, error] = calls[row];
        auto message = QDBusMessage::createMethodCall(QString::fromLatin1(kApplicationId),
            QStringLiteral("/app/cuebright/Cuebright"), QStringLiteral("org.freedesktop.Application"),
            QString::fromLatin1(method));
        message.setArguments(arguments);
        requests.clear();
        const auto reply = client.asyncCall(message);
        ASSERT_TRUE(waitUntil([&] { return reply.isFinished(); }));
        EXPECT_EQ(reply.error().name().toStdString(), error) << method << " in row " << row;
        EXPECT_EQ(requests, expected) << method << " in row " << row;
    }
}

TEST_F(ApplicationServiceTest, AFurtherLaunchHasTheOwnerActivateImmediatelyOrWhenItAnswers)
{
    EXPECT_EQ(ApplicationService(bus.connect()).claim({}, Seconds(0.06)), InstanceClaim::Queued);
    deliver();
    EXPECT_TRUE(waitUntil([&] { return requests == Requests {{}}; }));
    EXPECT_EQ(handOver(platformData("activation-token", QStringLiteral("token"))), InstanceClaim::HandedOver);
    EXPECT_EQ(requests, (Requests {{}, {Action::Activate, "token"}}));
}

TEST(ApplicationServiceWithoutABus, IsUnavailable)
{
    EXPECT_EQ(ApplicationService(QDBusConnection(QStringLiteral("no bus"))).claim({}), InstanceClaim::Unavailable);
}

} // namespace
} // namespace cuebright::test
