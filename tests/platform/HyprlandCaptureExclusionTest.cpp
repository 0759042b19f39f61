#include "platform/linux/HyprlandCaptureExclusion.h"

#include "platform/linux/HyprlandMessages.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <tuple>

#include <unistd.h>

namespace cuebright::test {

namespace {

using State = CaptureExclusion::State;

/// Answers by the first word of a request; one that has no answer waits.
class FakeHyprlandIpc final : public HyprlandIpc {
public:
    void start() override
    {
        if (isDeaf)
            lost.notify();
    }
    void request(std::string_view request, Reply reply) override
    {
        requests.emplace_back(request);
        m_waiting.push_back(std::move(reply));
    }
    void abandonRequests() override { m_waiting.clear(); }

    void answerAll()
    {
        while (!m_waiting.empty()) {
            const auto& request = requests.back();
            const auto answer = answers.find(request.substr(0, request.find(' ')));
            if (answer == answers.end())
                return;
            const auto reply = std::move(m_waiting.back());
            m_waiting.pop_back();
            reply(answer->second);
        }
    }

    bool isDeaf = false;
    std::map<std::string, std::optional<std::string>> answers;
    std::vector<std::string> requests;

private:
    std::vector<Reply> m_waiting;
};

const std::string kQuestion = "/getprop address:0xab no_screen_share";

using Answers = std::map<std::string, std::optional<std::string>>;

Answers answersOf(const std::string& version)
{
    return {{"j/version", R"({"version":")" + version + "\"}"}, {"j/status", R"({"configProvider":"hyprlang"})"},
        {"/keyword", "ok"}, {"/eval", "ok"}, {"/getprop", "true\n"},
        {"j/clients",
            R"([{"address":"0xab","pid":)" + std::to_string(::getpid()) + R"(},{"address":"0xcd","pid":1}])"}};
}

/// An exclusion with the compositor that it talks to.
struct Compositor {
    void start(Answers answers)
    {
        ipc->answers = std::move(answers);
        exclusion.start();
        ipc->answerAll();
    }
    void expect(State state, bool isSettled = true)
    {
        EXPECT_EQ(std::pair(exclusion.state(), exclusion.isSettled()), std::pair(state, isSettled));
    }

    FakePlatform platform;
    FakeHyprlandIpc* ipc = new FakeHyprlandIpc;
    HyprlandCaptureExclusion exclusion {std::unique_ptr<HyprlandIpc>(ipc), platform.mainQueue};
};

class HyprlandCaptureExclusionTest : public testing::Test, protected Compositor { };

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
        Compositor compositor;
        compositor.start(std::move(answers));
        compositor.expect(state);
        EXPECT_EQ(compositor.ipc->requests, requests);
    }
}

TEST_F(HyprlandCaptureExclusionTest, WithoutAnAnswerItIsUnknownAfterThreeSeconds)
{
    start({});
    expect(State::Unknown, false);
    platform.mainQueue.advance(Seconds(3));
    expect(State::Unknown);
    ipc->answers = answersOf("0.52.0");
    ipc->answerAll(); // too late: the connection is closed
    EXPECT_EQ(ipc->requests.size(), 1U);
}

TEST_F(HyprlandCaptureExclusionTest, AfterAReloadTheRuleIsSentAgainAndUntilThenNothingIsKnown)
{
    start(answersOf("0.52.0"));
    expect(State::Blackout);
    ipc->configReloaded.notify();
    ipc->configReloaded.notify();
    expect(State::Unknown, false);
    ipc->answerAll();
    expect(State::Blackout);
    EXPECT_EQ(ipc->requests.size(), 5U);
    ipc->lost.notify(); // whether there is another one cannot be heard any more
    expect(State::Unknown);
}

TEST_F(HyprlandCaptureExclusionTest, NothingIsClaimedWhileReloadsGoUnnoticed)
{
    ipc->isDeaf = true;
    start(answersOf("0.52.0"));
    expect(State::Unknown);
    EXPECT_TRUE(ipc->requests.empty());
}

} // namespace cuebright::test
