#include "platform/linux/instance/InstanceLock.h"

#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
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

constexpr std::size_t kLongestToken = 1024;
constexpr int kPollInterval = 20; ///< milliseconds between two attempts to take the lock

FileDescriptor openFolder(const std::filesystem::path& folder)
{
    std::error_code ignored;
    std::filesystem::create_directories(folder.parent_path(), ignored);
    ::mkdir(folder.c_str(), S_IRWXU);
    return FileDescriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

FileDescriptor openLockFile(const FileDescriptor& folder)
{
    return FileDescriptor(::openat(folder.get(), "lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
}

FileDescriptor openSocket() { return FileDescriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)); }

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address {AF_UNIX, {}};
    std::ranges::copy(path, address.sun_path);
    return address;
}

/// False where nobody listens. The answer arrives at the same socket.
bool trySend(const FileDescriptor& socket, std::string_view token, const std::string& path)
{
    const sockaddr_un unnamed {AF_UNIX, {}}; // has the kernel give the socket a name; fails if it has one
    ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&unnamed), sizeof unnamed.sun_family);
    const auto address = addressOf(path);
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0
        && ::send(socket.get(), token.data(), token.size(), MSG_NOSIGNAL) >= 0;
}

bool isAnswered(const FileDescriptor& socket)
{
    pollfd waiting {socket.get(), POLLIN, 0};
    char nothing = 0;
    return ::poll(&waiting, 1, kPollInterval) == 1 && ::recv(socket.get(), &nothing, sizeof nothing, 0) >= 0;
}

} // namespace

std::vector<std::filesystem::path> InstanceLock::defaultFolders()
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
{
    for (const auto& folder : folders) {
        m_folder.emplace(openFolder(folder));
        m_lock.emplace(openLockFile(*m_folder));
        if (m_lock->get() < 0)
            continue;
        // Through the open folder, because a socket's address holds only 107 bytes.
        m_socketPath = "/proc/self/fd/" + std::to_string(m_folder->get()) + "/instance";
        return;
    }
    m_lock.reset();
}

InstanceLock::~InstanceLock() = default;

InstanceClaim InstanceLock::claim(std::string_view token, Seconds timeout)
{
    if (!m_lock)
        return InstanceClaim::Unavailable;
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const auto request = openSocket();
    bool isSent = false;
    do {
        // In every round, because the other instance may be ending.
        if (::flock(m_lock->get(), LOCK_EX | LOCK_NB) == 0) {
            listen();
            return InstanceClaim::Granted;
        }
        if (errno != EWOULDBLOCK && errno != EINTR) // a file system without locks
            return InstanceClaim::Unavailable;
        isSent = isSent || trySend(request, token.substr(0, kLongestToken), m_socketPath);
        if (!isSent) // the other instance has its lock but not yet its socket
            ::poll(nullptr, 0, 1);
        else if (isAnswered(request))
            return InstanceClaim::HandedOver;
    } while (Clock::now() - start < timeout);
    return isSent ? InstanceClaim::Queued : InstanceClaim::Unreachable;
}

void InstanceLock::listen()
{
    ::unlink(m_socketPath.c_str()); // left behind by an instance that crashed
    auto socket = openSocket();
    const auto address = addressOf(m_socketPath);
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
