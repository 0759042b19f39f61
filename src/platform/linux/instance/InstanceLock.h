#pragma once

#include "platform/RemoteRequest.h"
#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/instance/InstanceClaim.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QSocketNotifier;

namespace cuebright {

/// One instance for each user, by a locked file and a socket beside it. The lock goes with its process, however that
/// ends. Further launches send a datagram with their token, and get one back when it has been read.
class InstanceLock final {
public:
    /// In the user's runtime directory, or the cache folder where there is none.
    [[nodiscard]] static std::vector<std::filesystem::path> usualFolders();

    /// Takes the first of the folders that can be had.
    explicit InstanceLock(const std::vector<std::filesystem::path>& folders = usualFolders());
    ~InstanceLock();

    [[nodiscard]] InstanceClaim claim(
        const std::string& token, std::chrono::milliseconds timeout = kInstanceReplyTimeout);

    /// Passes on what further launches ask for, from now on from the event loop. Does nothing where the claim was not
    /// granted.
    void deliver(std::function<void(const RemoteRequest&)> perform);

private:
    void listen();
    void receive() const;

    FileDescriptor m_folder;
    FileDescriptor m_lock;
    std::optional<FileDescriptor> m_socket;
    std::function<void(const RemoteRequest&)> m_perform;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cuebright
