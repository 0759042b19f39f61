#pragma once

#include "platform/RemoteRequest.h"
#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/instance/InstanceClaim.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QSocketNotifier;

namespace cuebright {

/// Whoever holds a lock on a file in the user's folder is the one instance; the kernel releases the lock when the
/// process ends, however it ends. A further launch sends its activation token to the datagram socket beside the file,
/// and receives an empty datagram when it has been handled. Needs neither Qt nor a message bus to decide.
class InstanceLock final {
public:
    /// In the user's runtime directory, else in the cache folder.
    [[nodiscard]] static std::vector<std::filesystem::path> defaultFolders();

    /// Uses the first folder in which it can open the file.
    explicit InstanceLock(const std::vector<std::filesystem::path>& folders = defaultFolders());
    ~InstanceLock();

    [[nodiscard]] InstanceClaim claim(std::string_view token, Seconds timeout = kReplyTimeout);

    /// Passes requests on, those that are waiting immediately and later ones from the event loop. Does nothing unless
    /// the claim was granted.
    void deliver(std::function<void(const RemoteRequest&)> perform);

private:
    void listen();
    void receive() const;

    std::optional<FileDescriptor> m_folder;
    std::string m_socketPath;
    std::optional<FileDescriptor> m_lock;
    std::optional<FileDescriptor> m_socket;
    std::function<void(const RemoteRequest&)> m_perform;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cuebright
