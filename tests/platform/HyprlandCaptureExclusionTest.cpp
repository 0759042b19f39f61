#include "platform/linux/HyprlandCaptureExclusion.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

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

class HyprlandCaptureExclusionTest : public testing::Test {
protected:
    void start(Answers answers)
    {
        ipc->answers = std::move(answers);
        exclusion.start();
        ipc->answerAll();
    }
    void expect(State state, bool isSettled = true)
    {
        EXPECT_EQ(exclusion.state(), state);
        EXPECT_EQ(exclusion.isSettled(), isSettled);
    }

    FakePlatform platform;
    FakeHyprlandIpc* ipc = new FakeHyprlandIpc;
    HyprlandCaptureExclusion exclusion {std::unique_ptr<HyprlandIpc>(ipc), platform.mainQueue};
};

struct Conversation {
    const char* name;
    std::string version;
    Answers differently;
    State state;
    std::vector<std::string> commands; ///< what is sent, without the rule
};

void PrintTo(const Conversation& conversation, std::ostream* out) { *out << conversation.name; }

class HyprlandConversationTest : public HyprlandCaptureExclusionTest,
                                 public testing::WithParamInterface<Conversation> { };

} // namespace

TEST_P(HyprlandConversationTest, EndsInWhatTheCompositorConfirmed)
{
    auto answers = answersOf(GetParam().version);
    for (const auto& [command, answer] : GetParam().differently)
        answers[command] = answer;
    start(std::move(answers));
    expect(GetParam().state);
    std::vector<std::string> commands;
    for (const auto& request : ipc->requests)
        commands.push_back(request.starts_with("/getprop") ? request : request.substr(0, request.find(' ')));
    EXPECT_EQ(commands, GetParam().commands);
}

INSTANTIATE_TEST_SUITE_P(Hyprland, HyprlandConversationTest,
    testing::Values(Conversation {"TooOld", "0.49.0", {}, State::Visible, {"j/version"}},
        Conversation {"NoVersion", "?", {}, State::Unknown, {"j/version"}},
        Conversation {"Mute", "0.52", {{"j/version", std::nullopt}}, State::Unknown, {"j/version"}},
        Conversation {"FirstForm", "0.52.1", {}, State::Blackout, {"j/version", "/keyword"}},
        Conversation {
            "FirstFormRefused", "0.50.0", {{"/keyword", "invalid rule"}}, State::Visible, {"j/version", "/keyword"}},
        Conversation {"Verified", "0.53.0", {}, State::Blackout, {"j/version", "/keyword", "j/clients", kQuestion}},
        Conversation {"NoWindowToVerify", "0.53.0", {{"j/clients", "[]"}}, State::Blackout,
            {"j/version", "/keyword", "j/clients"}},
        Conversation {"Contradicted", "0.54.3", {{"/getprop", "false"}}, State::Visible,
            {"j/version", "/keyword", "j/clients", kQuestion}},
        Conversation {"VerificationUnclear", "0.54.3", {{"/getprop", "prop not found"}}, State::Unknown,
            {"j/version", "/keyword", "j/clients", kQuestion}},
        Conversation {"WindowsUnclear", "0.53.0", {{"j/clients", std::nullopt}}, State::Unknown,
            {"j/version", "/keyword", "j/clients"}},
        Conversation {
            "Classic", "0.55.0", {}, State::Blackout, {"j/version", "j/status", "/keyword", "j/clients", kQuestion}},
        Conversation {"Lua", "0.55.0", {{"j/status", R"({"configProvider":"lua"})"}}, State::Blackout,
            {"j/version", "j/status", "/eval", "j/clients", kQuestion}},
        Conversation {"LanguageUnclear", "0.56.0", {{"j/status", "{}"}}, State::Unknown, {"j/version", "j/status"}}),
    [](const auto& test) { return std::string(test.param.name); });

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
