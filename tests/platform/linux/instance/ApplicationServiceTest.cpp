#include "platform/linux/instance/ApplicationBusName.h"

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/instance/ApplicationInterface.h"
#include "platform/linux/instance/FurtherLaunch.h"
#include "platform/linux/x11/StartupNotification.h"
#include "support/PrivateBus.h"
#include "support/TemporaryFolder.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

#include <algorithm>
#include <tuple>

#include <sys/socket.h>
#include <sys/un.h>

namespace cuebright::test {
namespace {

using namespace std::chrono_literals;
using Action = RemoteRequest::Action;
using Requests = std::vector<RemoteRequest>;

class ApplicationBusNameTest : public testing::Test {
protected:
    PrivateBus bus;
    ApplicationBusName name {bus.address().toStdString()};
    Requests requests;

    void SetUp() override { ASSERT_EQ(name.claim({}), InstanceClaim::Granted); }
    void deliver()
    {
        name.deliver([this](const RemoteRequest& request) { requests.push_back(request); });
    }
    InstanceClaim handOver(const ApplicationBusName::PlatformData& data) const
    {
        return furtherLaunch([&] { return ApplicationBusName(bus.address().toStdString()).claim(data, 5s); });
    }
};

QVariantMap platformData(const char* key, const QVariant& value) { return {{QString::fromLatin1(key), value}}; }

QVariantList action(const char* name, const QVariantList& parameters = {}, const QVariantMap& data = {})
{
    return {QString::fromLatin1(name), parameters, data};
}

TEST_F(ApplicationBusNameTest, CallsAreCarriedOutOrRefused)
{
    constexpr auto kBadArguments = "org.freedesktop.DBus.Error.InvalidArgs";
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
        {"ActivateAction", {QStringLiteral("next-card")}, {}, kBadArguments},
        {"Activate", {}, {}, kBadArguments},
        {"Open", {1, 2}, {}, kBadArguments},
        {"Quit", {}, {}, "org.freedesktop.DBus.Error.UnknownMethod"},
    };
    deliver();
    auto client = bus.connect();
    for (std::size_t row = 0; row < std::size(calls); ++row) {
        const auto& [method, arguments, expected, error] = calls[row];
        auto message =
            QDBusMessage::createMethodCall(QString::fromLatin1(kApplicationName), QString::fromLatin1(kApplicationPath),
                QString::fromLatin1(kApplicationInterface), QString::fromLatin1(method));
        message.setArguments(arguments);
        requests.clear();
        const auto reply = client.asyncCall(message);
        ASSERT_TRUE(waitUntil([&] { return reply.isFinished(); }));
        EXPECT_EQ(reply.error().name().toStdString(), error) << method << " in row " << row;
        EXPECT_EQ(requests, expected) << method << " in row " << row;
    }
}

TEST_F(ApplicationBusNameTest, AFurtherLaunchHandsItsTokenToTheOwnerAtOnceOrWhenItAnswers)
{
    EXPECT_EQ(ApplicationBusName(bus.address().toStdString()).claim({}, 60ms), InstanceClaim::Queued);
    deliver();
    EXPECT_TRUE(waitUntil([&] { return requests == Requests {{}}; }));
    EXPECT_EQ(handOver({{"desktop-startup-id", "id"}, {"activation-token", "token"}}), InstanceClaim::HandedOver);
    EXPECT_EQ(handOver({{"activation-token", "not \xff text"}}), InstanceClaim::HandedOver);
    EXPECT_EQ(requests, (Requests {{}, {Action::Activate, "token"}, {}}));
}

TEST(ApplicationBusNameWithoutABus, IsUnavailableAndDoesNotWaitForOneThatHangs)
{
    const TemporaryFolder folder;
    const auto path = folder.file("bus").string();
    sockaddr_un address {AF_UNIX, {}};
    std::ranges::copy(path, address.sun_path);
    const FileDescriptor hung(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::bind(hung.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(hung.get(), 1), 0);
    const std::optional<std::string> addresses[] = {{}, "unix:path=/nowhere", "no address", "unix:path=" + path};
    for (const auto& busAddress : addresses)
        EXPECT_EQ(ApplicationBusName(busAddress).claim({}, 60ms), InstanceClaim::Unavailable)
            << busAddress.value_or("none");
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
