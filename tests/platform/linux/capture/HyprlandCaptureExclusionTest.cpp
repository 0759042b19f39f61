#include "platform/linux/capture/HyprlandCaptureExclusion.h"

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/capture/HyprlandMessages.h"
#include "support/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"

#include <QSocketNotifier>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace cuebright::test {

namespace {

using State = CaptureExclusion::State;
using Answers = std::map<std::string, std::optional<std::string>>;

FileDescriptor listenAt(const std::filesystem::path& path)
{
    FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address {AF_UNIX, {}};
    std::ranges::copy(path.native(), address.sun_path);
    EXPECT_EQ(::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(::listen(socket.get(), 4), 0);
    return socket;
}

FileDescriptor accept(const FileDescriptor& socket) { return FileDescriptor(::accept(socket.get(), nullptr, nullptr)); }

void say(const FileDescriptor& peer, std::string_view text)
{
    ::send(peer.get(), text.data(), text.size(), MSG_NOSIGNAL);
}

/// Answers by the first word of a request; without an entry in `answers`, not at all.
class FakeHyprland final {
public:
    explicit FakeHyprland(const std::filesystem::path& folder)
        : m_commands(listenAt(folder / ".socket.sock"))
        , m_notifier(m_commands.get(), QSocketNotifier::Read)
    {
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { take(accept(m_commands)); });
    }

    Answers answers;
    std::vector<std::string> requests;
    std::vector<FileDescriptor> waiting;

private:
    void take(FileDescriptor peer)
    {
        char buffer[200];
        const auto size = ::recv(peer.get(), buffer, sizeof buffer, 0);
        const auto& request = requests.emplace_back(buffer, static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
        const auto answer = answers.find(request.substr(0, request.find(' ')));
        waiting.push_back(std::move(peer));
        if (answer == answers.end())
            return;
        say(waiting.back(), answer->second.value_or(""));
        ::shutdown(waiting.back().get(), SHUT_WR);
    }

    FileDescriptor m_commands;
    QSocketNotifier m_notifier;
};

const std::string kQuestion = "/getprop address:0xab no_screen_share";

Answers answersOf(const std::string& version)
{
    const std::string filling(10'000, ' '); // more than one read returns
    return {{"j/version", R"({"version":")" + version + "\"}" + filling},
        {"j/status", R"({"configProvider":"hyprlang"})"}, {"/keyword", "ok"}, {"/eval", "ok"}, {"/getprop", "true\n"},
        {"j/clients",
            R"([{"address":"0xab","pid":)" + std::to_string(::getpid()) + R"(},{"address":"0xcd","pid":1}])"}};
}

/// An exclusion and its compositor.
struct Connection {
    void start(Answers answers)
    {
        compositor.answers = std::move(answers);
        exclusion.start();
    }
    [[nodiscard]] bool reaches(State state, bool isSettled = true)
    {
        return waitUntil(
            [&] { return std::pair(exclusion.state(), exclusion.isSettled()) == std::pair(state, isSettled); });
    }
    /// The connection of the first request is closed.
    [[nodiscard]] bool isHungUp() const
    {
        char nothing = 0;
        return ::recv(compositor.waiting.front().get(), &nothing, 1, MSG_DONTWAIT) == 0;
    }

    TemporaryFolder folder;
    FakeHyprland compositor {folder.path()};
    FileDescriptor events = listenAt(folder.file(".socket2.sock"));
    FakePlatform platform;
    HyprlandCaptureExclusion exclusion {folder.path(), platform.mainQueue};
};

class HyprlandCaptureExclusionTest : public testing::Test, protected Connection { };

const std::string kPattern = "^(Cuebright|cuebright|app[.]cuebright[.]Cuebright)$";
const std::string kFirst = "/keyword windowrule noscreenshare, class:" + kPattern;
const std::string kSecond = "/keyword windowrule match:class " + kPattern + ", no_screen_share on";
const std::string kLua =
    R"(/eval hl.window_rule({ name="cuebright", match={ class=")" + kPattern + R"(" }, no_screen_share=true }))";

} // namespace

TEST(HyprlandMessages, VersionsAreReadFromEitherMember)
{
    using Version = std::optional<HyprlandVersion>;
    const std::pair<std::string_view, Version> cases[] = {
        {R"({"branch":"main","tag":"v0.52.1","version":"0.52.1"})", HyprlandVersion {0, 52}},
        {R"({"tag":"v0.53.0-12-gabcdef","version":""})", HyprlandVersion {0, 53}},
        {R"({"version":"0.530"})", HyprlandVersion {0, 530}},
        {R"({"version":52})", std::nullopt},
        {"Hyprland 0.52.1", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [reply, version] : cases)
        EXPECT_EQ(hyprlandVersion(reply), version) << reply;
    EXPECT_LT((HyprlandVersion {0, 50}), (HyprlandVersion {1, 0}));
}

TEST(HyprlandRequests, UsesTheRuleOfEachVersionAndEndsInWhatTheCompositorConfirmed)
{
    const Answers lua {{"j/status", R"({"configProvider":"lua"})"}};
    const auto none = std::nullopt;
    const std::tuple<const char*, std::string, Answers, State, std::vector<std::string>> cases[] = {
        {"too old", "0.49.0", {}, State::Visible, {"j/version"}},
        {"mute", "0.52", {{"j/version", none}}, State::Unknown, {"j/version"}},
        {"first form", "0.52.1", {}, State::Blackout, {"j/version", kFirst}},
        {"refused", "0.50.0", {{"/keyword", "invalid rule"}}, State::Visible, {"j/version", kFirst}},
        {"verified", "0.53.0", {}, State::Blackout, {"j/version", kSecond, "j/clients", kQuestion}},
        {"no window", "0.53.0", {{"j/clients", "[]"}}, State::Blackout, {"j/version", kSecond, "j/clients"}},
        {"contradicted", "0.54.3", {{"/getprop", "false"}}, State::Visible,
            {"j/version", kSecond, "j/clients", kQuestion}},
        {"verification unclear", "0.54.3", {{"/getprop", "prop not found"}}, State::Unknown,
            {"j/version", kSecond, "j/clients", kQuestion}},
        {"classic", "0.55.0", {}, State::Blackout, {"j/version", "j/status", kSecond, "j/clients", kQuestion}},
        {"Lua", "0.55.0", lua, State::Blackout, {"j/version", "j/status", kLua, "j/clients", kQuestion}},
        {"language unclear", "0.56.0", {{"j/status", "{}"}}, State::Unknown, {"j/version", "j/status"}},
    };
    for (const auto& [name, version, differently, state, requests] : cases) {
        SCOPED_TRACE(name);
        auto answers = differently;
        answers.merge(answersOf(version));
        Connection connection;
        connection.start(std::move(answers));
        EXPECT_TRUE(connection.reaches(state));
        EXPECT_EQ(connection.compositor.requests, requests);
        EXPECT_TRUE(connection.isHungUp());
    }
}

TEST_F(HyprlandCaptureExclusionTest, NothingIsClaimedWithoutAnAnswerACompositorOrItsEvents)
{
    start({});
    ASSERT_TRUE(waitUntil([&] { return compositor.requests.size() == 1; }));
    EXPECT_FALSE(exclusion.isSettled());
    platform.mainQueue.advance(Seconds(3));
    EXPECT_TRUE(reaches(State::Unknown) && isHungUp());
    for (const auto* const socket : {".socket.sock", ".socket2.sock"}) {
        Connection broken;
        std::filesystem::remove(broken.folder.file(socket));
        broken.start(answersOf("0.52.0"));
        EXPECT_TRUE(broken.reaches(State::Unknown));
    }
}

TEST_F(HyprlandCaptureExclusionTest, AfterAReloadTheRuleIsSentAgain)
{
    start(answersOf("0.52.0"));
    EXPECT_TRUE(reaches(State::Blackout));
    std::vector<std::pair<State, bool>> told;
    const auto subscription =
        exclusion.changed.subscribe([&] { told.emplace_back(exclusion.state(), exclusion.isSettled()); });
    auto peer = std::make_optional(accept(events));
    say(*peer, "activewindow>>kitty,configreloaded>>\nconfigrel");
    processEvents();
    EXPECT_TRUE(told.empty());
    say(*peer, "oaded>>\nworkspace>>2\nconfigreloaded>>\n");
    EXPECT_TRUE(waitUntil([&] { return told.size() == 2; }));
    EXPECT_EQ(told, (std::vector {std::pair(State::Unknown, false), std::pair(State::Blackout, true)}));
    EXPECT_EQ(compositor.requests.size(), 5U);
    peer.reset(); // the next reload would go unnoticed
    EXPECT_TRUE(reaches(State::Unknown));
}

TEST_F(HyprlandCaptureExclusionTest, AWindowOpenedAfterTheRuleIsCheckedOnce)
{
    auto answers = answersOf("0.53.0");
    const auto withWindows = std::exchange(answers["j/clients"], "[]");
    start(answers);
    EXPECT_TRUE(reaches(State::Blackout));
    auto peer = accept(events);
    compositor.answers["j/clients"] = withWindows;
    compositor.answers["/getprop"] = "false";
    say(peer, "openwindow>>cd,1,app.cuebright.Cuebright,Cuebright\n");
    EXPECT_TRUE(reaches(State::Visible));
    say(peer, "openwindow>>ef,1,kitty,kitty\nconfigreloaded>>\n"); // the first is another program's
    EXPECT_TRUE(reaches(State::Unknown, false) && reaches(State::Visible));
    EXPECT_EQ(compositor.requests,
        (std::vector<std::string> {
            "j/version", kSecond, "j/clients", "j/clients", kQuestion, "j/version", kSecond, "j/clients", kQuestion}));
}

} // namespace cuebright::test
