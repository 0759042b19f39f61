#include "platform/linux/capture/UnixConnection.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace cuebright {

namespace {

std::optional<FileDescriptor> tryConnect(const std::filesystem::path& socket)
{
    const auto& path = socket.native();
    sockaddr_un address {};
    if (path.size() >= sizeof address.sun_path)
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::ranges::copy(path, address.sun_path);
    FileDescriptor descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    // A Unix socket connects immediately or fails; it is never "in progress".
    if (::connect(descriptor.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        return std::nullopt;
    return descriptor;
}

} // namespace

UnixConnection::UnixConnection(const std::filesystem::path& socket)
{
    if (auto descriptor = tryConnect(socket))
        m_descriptor.emplace(std::move(*descriptor));
    if (!m_descriptor)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor->get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { readAll(); });
}

UnixConnection::~UnixConnection() { close(); }

bool UnixConnection::write(std::string_view text)
{
    return m_descriptor
        && ::send(m_descriptor->get(), text.data(), text.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(text.size());
}

void UnixConnection::readAll()
{
    char buffer[4096];
    ssize_t count = 0;
    while ((count = ::read(m_descriptor->get(), buffer, sizeof buffer)) > 0) {
        if (received)
            received({buffer, static_cast<std::size_t>(count)});
    }
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return; // the notifier fires again
    close();
    if (ended)
        ended(count == 0 ? End::Complete : End::Broken);
}

void UnixConnection::close()
{
    if (m_notifier)
        m_notifier->setEnabled(false);
    m_descriptor.reset();
}

} // namespace cuebright
