#pragma once

#include "platform/linux/base/FileDescriptor.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

class QSocketNotifier;

namespace cuebright {

/// A connection to a Unix socket that never blocks. Closes when the peer does.
class UnixConnection final {
public:
    enum class End { Complete, Broken };

    /// Not open where nobody listens, or where the queue of connections is full.
    explicit UnixConnection(const std::filesystem::path& socket);
    ~UnixConnection();
    UnixConnection(const UnixConnection&) = delete;
    UnixConnection& operator=(const UnixConnection&) = delete;

    [[nodiscard]] bool isOpen() const { return m_descriptor.has_value(); }
    /// False unless all of it could be written immediately. Meant for a line.
    [[nodiscard]] bool write(std::string_view text);

    // Called from the event loop; neither may destroy this object.
    std::function<void(std::string_view)> received;
    std::function<void(End)> ended;

private:
    void readAll();
    void close();

    std::optional<FileDescriptor> m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace cuebright
