#pragma once

#include "platform/linux/capture/HyprlandIpc.h"
#include "platform/linux/capture/UnixConnection.h"

#include <QObject>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace cuebright {

/// The sockets of a running Hyprland. A request has a connection of its own, closed at once when it is answered or
/// abandoned: an open one holds the compositor up.
///
/// Made from Hyprland's documentation and tried against a stand-in only: it has not been run on a real Hyprland.
class HyprlandSocket final : public HyprlandIpc {
public:
    /// The folder of one instance of Hyprland, "$XDG_RUNTIME_DIR/hypr/$HYPRLAND_INSTANCE_SIGNATURE".
    explicit HyprlandSocket(std::filesystem::path directory);
    ~HyprlandSocket() override;

    void start() override;
    void request(std::string_view request, Reply reply) override;
    void abandonRequests() override;

private:
    struct Request;

    void finish(int number, UnixConnection::End end);
    void takeEvents(std::string_view text);

    std::filesystem::path m_directory;
    std::unique_ptr<UnixConnection> m_events;
    std::string m_eventText; ///< the line that is not complete yet
    std::map<int, std::unique_ptr<Request>> m_requests;
    int m_lastNumber = 0;
    QObject m_self; ///< what is posted to it is dropped when it goes
};

} // namespace cuebright
