#pragma once

#include "foundation/Signal.h"
#include "platform/linux/capture/UnixConnection.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace cuebright {

/// Hyprland's two sockets: one for requests, one for events. Never blocks.
///
/// Each request has its own connection, closed as soon as it is answered or abandoned: an open one blocks Hyprland.
/// Written from Hyprland's documentation and tested against a fake; not run with a real Hyprland yet.
class HyprlandIpc final {
public:
    /// Absent where Hyprland did not answer, or not completely.
    using Reply = std::function<void(std::optional<std::string>)>;

    /// The folder of one instance, "$XDG_RUNTIME_DIR/hypr/$HYPRLAND_INSTANCE_SIGNATURE".
    explicit HyprlandIpc(std::filesystem::path directory);
    ~HyprlandIpc();

    /// Begins to receive events; false where that is not possible. Call once.
    [[nodiscard]] bool listen();

    /// Sends `[flags]/command`. `reply` runs once, later on the main thread, unless the request is abandoned.
    void request(std::string_view request, Reply reply);

    /// Cancels all pending requests.
    void abandonRequests();

    /// The configuration was read again, which discards the rules that were sent.
    Signal<> configReloaded;
    /// Any program has opened a window.
    Signal<> windowOpened;
    /// No more events will come.
    Signal<> lost;

private:
    struct Request;

    void finish(int number, UnixConnection::End end);
    void receiveEvents(std::string_view text);

    std::filesystem::path m_directory;
    std::unique_ptr<UnixConnection> m_events;
    std::string m_eventText; ///< the incomplete last line
    std::map<int, std::unique_ptr<Request>> m_requests;
    int m_lastNumber = 0;
    QObject m_context; ///< what is posted to it is dropped with it
};

} // namespace cuebright
