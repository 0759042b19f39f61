#include "platform/linux/capture/HyprlandCaptureExclusion.h"

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/capture/HyprlandMessages.h"
#include "platform/linux/capture/HyprlandSocket.h"
#include "support/EventLoop.h"
#include "support/FakePlatform.h"
#include "support/TemporaryFolder.h"

#include <QSocketNotifier>
#include <QTimer>

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

/// The compositor, which answers by the first word of a request. One that has no answer waits.
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
        const auto text = answer->second.value_or("");
        say(waiting.back(), text.substr(0, text.size() / 2));
        QTimer::singleShot(0, &m_notifier, [this, place = waiting.size() - 1, rest = text.substr(text.size() / 2)] {
            say(waiting[place], rest);
            ::shutdown(waiting[place].get(), SHUT_WR);
        });
    }

    FileDescriptor m_commands;
    QSocketNotifier m_notifier;
};

const std::string kQuestion = "/getprop address:0xab no_screen_share";

Answers answersOf(const std::string& version)
{
    const std::string filling(10'000, ' '); // more than comes in one piece
    return {{"j/version", R"({"version":")" + version + "\"}" + filling},
        {"j/status", R"({"configProvider":"hyprlang"})"}, {"/keyword", "ok"}, {"/eval", "ok"}, {"/getprop", "true\n"},
        {"j/clients",
            R"([{"address":"0xab","pid":)" + std::to_string(::getpid()) + R"(},{"address":"0xcd","pid":1}])"}};
}

/// An exclusion with the compositor that it talks to.
struct Request {
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
    /// Whether the connection of the first request has no other end any more.
    [[nodiscard]] bool isHungUp() const
    {
        char nothing = 0;
        return ::recv(compositor.waiting.front().get(), &nothing, 1, MSG_DONTWAIT) == 0;
    }

    TemporaryFolder folder;
    FakeHyprland compositor {folder.path()};
    FileDescriptor events = listenAt(folder.file(".socket2.sock"));
    FakePlatform platform;
    HyprlandCaptureExclusion exclusion {std::make_unique<HyprlandSocket>(folder.path()), platform.mainQueue};
};

class HyprlandCaptureExclusionTest : public testing::Test, protected Request { };

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
        {R"({"version":"1.2"})", HyprlandVersion {1, 2}},
        {R"({"version":"0.530"})", HyprlandVersion {0, 530}},
        {R"({"version":52})", std::nullopt},
        {R"({"version":"unknown","tag":"0"})", std::nullopt},
        {"Hyprland 0.52.1", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [reply, version] : cases)
        EXPECT_EQ(hyprlandVersion(reply), version) << reply;
    EXPECT_LT((HyprlandVersion {0, 50}), (HyprlandVersion {1, 0}));
}

TEST(HyprlandConversation, UsesTheRuleOfEachVersionAndEndsInWhatTheCompositorConfirmed)
{
    const Answers lua {{"j/status", R"({"configProvider":"lua"})"}};
    const auto none = std::nullopt;
    const std::tuple<const char*, std::string, Answers, State, std::vector<std::string>> conversations[] = {
        {"too old", "0.49.0", {}, State::Visible, {"j/version"}},
        {"no version", "?", {}, State::Unknown, {"j/version"}},
        {"mute", "0.52", {{"j/version", none}}, State::Unknown, {"j/version"}},
        {"first form", "0.52.1", {}, State::Blackout, {"j/version", kFirst}},
        {"refused", "0.50.0", {{"/keyword", "invalid rule"}}, State::Visible, {"j/version", kFirst}},
        {"verified", "0.53.0", {}, State::Blackout, {"j/version", kSecond, "j/clients", kQuestion}},
        {"no window", "0.53.0", {{"j/clients", "[]"}}, State::Blackout, {"j/version", kSecond, "j/clients"}},
        {"windows unclear", "0.53.0", {{"j/clients", none}}, State::Unknown, {"j/version", kSecond, "j/clients"}},
        {"contradicted", "0.54.3", {{"/getprop", "false"}}, State::Visible,
            {"j/version", kSecond, "j/clients", kQuestion}},
        {"verification unclear", "0.54.3", {{"/getprop", "prop not found"}}, State::Unknown,
            {"j/version", kSecond, "j/clients", kQuestion}},
        {"classic", "0.55.0", {}, State::Blackout, {"j/version", "j/status", kSecond, "j/clients", kQuestion}},
        {"Lua", "0.55.0", lua, State::Blackout, {"j/version", "j/status", kLua, "j/clients", kQuestion}},
        {"language unclear", "0.56.0", {{"j/status", "{}"}}, State::Unknown, {"j/version", "j/status"}},
    };
    for (const auto& [name, version, differently, state, requests] : conversations) {
        SCOPED_TRACE(name);
        auto answers = differently;
        answers.merge(answersOf(version));
        Request conversation;
        conversation.start(std::move(answers));
        EXPECT_TRUE(conversation.reaches(state));
        EXPECT_EQ(conversation.compositor.requests, requests);
        EXPECT_TRUE(conversation.isHungUp());
    }
}

TEST_F(HyprlandCaptureExclusionTest, WithoutAnAnswerItIsUnknownAfterThreeSecondsAndTheConnectionClosed)
{
    start({});
    EXPECT_TRUE(waitUntil([&] { return compositor.requests.size() == 1; }));
    EXPECT_FALSE(exclusion.isSettled() || isHungUp());
    platform.mainQueue.advance(Seconds(3));
    EXPECT_TRUE(exclusion.isSettled() && isHungUp());
    EXPECT_EQ(exclusion.state(), State::Unknown);
}

TEST_F(HyprlandCaptureExclusionTest, AfterAReloadTheRuleIsSentAgainHoweverTheLinesOfTheNewsArrive)
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
    peer.reset(); // whether there is another reload cannot be heard any more
    EXPECT_TRUE(reaches(State::Unknown));
}

TEST_F(HyprlandCaptureExclusionTest, AWindowThatComesAfterTheRuleIsAskedTooOnce)
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
    say(peer, "openwindow>>ef,1,kitty,kitty\nconfigreloaded>>\n"); // the first is nothing new
    EXPECT_TRUE(reaches(State::Unknown, false) && reaches(State::Visible));
    EXPECT_EQ(compositor.requests,
        (std::vector<std::string> {
            "j/version", kSecond, "j/clients", "j/clients", kQuestion, "j/version", kSecond, "j/clients", kQuestion}));
}

TEST_F(HyprlandCaptureExclusionTest, AWindowThatComesWhileTheWindowsAreLookedUpIsNotMissed)
{
    auto answers = answersOf("0.53.0");
    answers.erase("j/clients");
    start(answers);
    auto peer = accept(events);
    EXPECT_TRUE(waitUntil([&] { return compositor.requests.size() == 3; }));
    say(peer, "openwindow>>ab,1,Cuebright,Cuebright\n");
    processEvents();
    compositor.answers = answersOf("0.53.0");
    say(compositor.waiting.back(), "[]"); // as it was before
    ::shutdown(compositor.waiting.back().get(), SHUT_WR);
    EXPECT_TRUE(reaches(State::Blackout));
    EXPECT_EQ(compositor.requests.back(), kQuestion);
}

TEST_F(HyprlandCaptureExclusionTest, NothingIsClaimedWhereACompositorCannotBeReachedOrHeard)
{
    std::filesystem::remove(folder.file(".socket.sock"));
    start({});
    EXPECT_FALSE(exclusion.isSettled()) << "a failure comes later, as an answer would";
    EXPECT_TRUE(reaches(State::Unknown));

    Request deaf;
    std::filesystem::remove(deaf.folder.file(".socket2.sock"));
    deaf.start(answersOf("0.52.0"));
    EXPECT_TRUE(deaf.exclusion.isSettled());
    EXPECT_EQ(deaf.exclusion.state(), State::Unknown);
    processEvents();
    EXPECT_TRUE(deaf.compositor.requests.empty());
}

} // namespace cuebright::test
