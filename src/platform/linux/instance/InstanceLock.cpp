#include "platform/linux/instance/InstanceLock.h"

#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace cuebright {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t kLongestToken = 1024;
constexpr const char* kSocketName = "instance";
constexpr auto kInterval = 20ms; ///< between two looks at a lock that another one holds

FileDescriptor openFolder(const std::vector<std::filesystem::path>& candidates)
{
    for (const auto& path : candidates) {
        std::error_code ignored;
        std::filesystem::create_directories(path.parent_path(), ignored);
        ::mkdir(path.c_str(), S_IRWXU);
        const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder >= 0 && ::faccessat(folder, ".", W_OK | X_OK, AT_EACCESS) == 0)
            return FileDescriptor(folder);
        if (folder >= 0)
            ::close(folder);
    }
    return FileDescriptor(-1);
}

int openSocket() { return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0); }

/// By way of the open folder, whose own path may be longer than an address can be.
sockaddr_un addressIn(const FileDescriptor& folder)
{
    const auto path = "/proc/self/fd/" + std::to_string(folder.get()) + "/" + kSocketName;
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    std::ranges::copy(path, address.sun_path);
    return address;
}

/// A socket that has sent the token to the one that listens, and that the answer comes to.
std::optional<FileDescriptor> trySend(const FileDescriptor& folder, std::string_view token)
{
    FileDescriptor socket(openSocket());
    const sockaddr_un own {AF_UNIX, {}};
    const auto address = addressIn(folder);
    // Bound to no name, the kernel gives it one.
    const bool isSent = ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&own), sizeof own.sun_family) == 0
        && ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0
        && ::send(socket.get(), token.data(), token.size(), MSG_NOSIGNAL) >= 0;
    return isSent ? std::optional(std::move(socket)) : std::nullopt;
}

bool isAnswered(const FileDescriptor& socket)
{
    pollfd waiting {socket.get(), POLLIN, 0};
    char nothing = 0;
    return ::poll(&waiting, 1, static_cast<int>(kInterval.count())) == 1
        && ::recv(socket.get(), &nothing, sizeof nothing, 0) >= 0;
}

} // namespace

std::vector<std::filesystem::path> InstanceLock::usualFolders()
{
    constexpr std::array<std::array<const char*, 2>, 3> kPlaces {
        {{"XDG_RUNTIME_DIR", "cuebright"}, {"XDG_CACHE_HOME", "cuebright"}, {"HOME", ".cache/cuebright"}}};
    std::vector<std::filesystem::path> folders;
    for (const auto& [variable, folder] : kPlaces) {
        const char* const base = std::getenv(variable);
        if (base && std::filesystem::path(base).is_absolute())
            folders.push_back(std::filesystem::path(base) / folder);
    }
    return folders;
}

InstanceLock::InstanceLock(const std::vector<std::filesystem::path>& folders)
    : m_folder(openFolder(folders))
    , m_lock(::openat(m_folder.get(), "lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
}

InstanceLock::~InstanceLock() = default;

InstanceClaim InstanceLock::claim(const std::string& token, std::chrono::milliseconds timeout)
{
    if (m_lock.get() < 0)
        return InstanceClaim::Unavailable;
    const auto deadline = Clock::now() + timeout;
    std::optional<FileDescriptor> conversation;
    do {
        // Again each time: the other one may be on its way out.
        if (::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0) {
            listen();
            return InstanceClaim::Granted;
        }
        if (errno != EWOULDBLOCK && errno != EINTR) // a file system without locks
            return InstanceClaim::Unavailable;
        if (!conversation) {
            if (auto socket = trySend(m_folder, std::string_view(token).substr(0, kLongestToken)))
                conversation.emplace(std::move(*socket));
        }
        if (!conversation) // between its lock and its socket
            ::poll(nullptr, 0, 1);
        else if (isAnswered(*conversation))
            return InstanceClaim::HandedOver;
    } while (Clock::now() < deadline);
    return conversation ? InstanceClaim::Queued : InstanceClaim::Unreachable;
}

void InstanceLock::listen()
{
    ::unlinkat(m_folder.get(), kSocketName, 0); // left behind by one that crashed
    FileDescriptor socket(openSocket());
    const auto address = addressIn(m_folder);
    if (::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        m_socket.emplace(std::move(socket));
}

void InstanceLock::deliver(std::function<void(const RemoteRequest&)> perform)
{
    if (!m_socket)
        return;
    m_perform = std::move(perform);
    m_notifier = std::make_unique<QSocketNotifier>(m_socket->get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { receive(); });
    receive();
}

void InstanceLock::receive() const
{
    std::array<char, kLongestToken> buffer {};
    sockaddr_un sender {};
    socklen_t senderSize = sizeof sender;
    ssize_t size = 0;
    while ((size = ::recvfrom(
                m_socket->get(), buffer.data(), buffer.size(), 0, reinterpret_cast<sockaddr*>(&sender), &senderSize))
        >= 0) {
        m_perform({RemoteRequest::Action::Activate, std::string(buffer.data(), static_cast<std::size_t>(size))});
        ::sendto(m_socket->get(), "", 0, MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&sender), senderSize);
        senderSize = sizeof sender;
    }
}

} // namespace cuebright
