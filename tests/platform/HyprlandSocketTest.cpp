#include "platform/linux/HyprlandSocket.h"

#include "platform/TemporaryFolder.h"
#include "support/EventLoop.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace cuebright::test {

namespace {

/// One listening socket; the test takes the compositor's part step by step.
class Listener final {
public:
    explicit Listener(const std::filesystem::path& path)
    {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        std::ranges::copy(path.native(), address.sun_path);
        ::bind(m_socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
        ::listen(m_socket.get(), 4);
    }
    FileDescriptor accept() const { return FileDescriptor(::accept(m_socket.get(), nullptr, nullptr)); }

private:
    FileDescriptor m_socket {::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
};

void say(const FileDescriptor& peer, std::string_view text)
{
    ASSERT_EQ(::send(peer.get(), text.data(), text.size(), MSG_NOSIGNAL), static_cast<ssize_t>(text.size()));
}

/// What is there to be read now; "closed" when the other side is.
std::string heard(const FileDescriptor& peer)
{
    char buffer[200];
    const auto count = ::recv(peer.get(), buffer, sizeof buffer, MSG_DONTWAIT);
    return count > 0 ? std::string(buffer, static_cast<std::size_t>(count)) : count == 0 ? "closed" : "silence";
}

class HyprlandSocketTest : public testing::Test {
protected:
    void ask(HyprlandSocket& asked)
    {
        asked.request("j/version", [this](auto reply) { replies.push_back(std::move(reply)); });
    }

    TemporaryFolder folder;
    Listener commands {folder.file(".socket.sock")};
    Listener events {folder.file(".socket2.sock")};
    HyprlandSocket socket {folder.path()};
    std::vector<std::optional<std::string>> replies;
};

} // namespace

TEST_F(HyprlandSocketTest, AReplyIsReadToItsEndAndTheConnectionClosed)
{
    ask(socket);
    const auto peer = commands.accept();
    EXPECT_EQ(heard(peer), "j/version");
    say(peer, "{\"version\":");
    processEvents();
    EXPECT_TRUE(replies.empty());
    say(peer, std::string(5000, 'x'));
    ::shutdown(peer.get(), SHUT_WR);
    EXPECT_TRUE(waitUntil([&] { return heard(peer) == "closed" && !replies.empty(); }));
    EXPECT_EQ(replies, (std::vector<std::optional<std::string>> {"{\"version\":" + std::string(5000, 'x')}));
}

TEST_F(HyprlandSocketTest, AnAbandonedRequestIsClosedAtOnceAndNeverAnswered)
{
    ask(socket);
    const auto peer = commands.accept();
    EXPECT_EQ(heard(peer), "j/version");
    socket.abandonRequests();
    EXPECT_EQ(heard(peer), "closed");

    ask(socket);
    {
        const auto answered = commands.accept();
    } // no word
    EXPECT_TRUE(waitUntil([&] { return replies.size() == 1; }));
    EXPECT_EQ(replies.front(), std::nullopt);
}

TEST_F(HyprlandSocketTest, ACompositorThatIsNotThereIsAFailureThatComesLater)
{
    HyprlandSocket nobody(folder.file("nowhere"));
    bool isLost = false;
    const auto subscription = nobody.lost.subscribe([&] { isLost = true; });
    nobody.start();
    EXPECT_TRUE(isLost);
    ask(nobody);
    EXPECT_TRUE(replies.empty());
    EXPECT_TRUE(waitUntil([&] { return replies.size() == 1; }));
    EXPECT_EQ(replies.front(), std::nullopt);
}

TEST_F(HyprlandSocketTest, ReloadsAreHeardHoweverTheLinesArriveAndTheEndIsNoticed)
{
    int reloads = 0;
    bool isLost = false;
    const auto reloadSubscription = socket.configReloaded.subscribe([&] { ++reloads; });
    const auto lostSubscription = socket.lost.subscribe([&] { isLost = true; });
    socket.start();
    {
        const auto peer = events.accept();
        say(peer, "activewindow>>kitty,configreloaded>>\nconfigrel");
        processEvents();
        EXPECT_EQ(reloads, 0);
        say(peer, "oaded>>\nworkspace>>2\nconfigreloaded>>\n");
        EXPECT_TRUE(waitUntil([&] { return reloads == 2; }));
    }
    EXPECT_TRUE(waitUntil([&] { return isLost; }));
    EXPECT_EQ(reloads, 2);
}

} // namespace cuebright::test
