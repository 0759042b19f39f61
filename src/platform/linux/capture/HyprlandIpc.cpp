#include "platform/linux/capture/HyprlandIpc.h"

#include <QMetaObject>

#include <utility>

namespace cuebright {

struct HyprlandIpc::Request {
    Request(const std::filesystem::path& socket, Reply whenAnswered)
        : connection(socket)
        , reply(std::move(whenAnswered))
    {
    }

    UnixConnection connection;
    std::string text;
    Reply reply;
};

HyprlandIpc::HyprlandIpc(std::filesystem::path directory)
    : m_directory(std::move(directory))
{
}

HyprlandIpc::~HyprlandIpc() = default;

bool HyprlandIpc::listen()
{
    m_events = std::make_unique<UnixConnection>(m_directory / ".socket2.sock");
    m_events->received = [this](std::string_view text) { receiveEvents(text); };
    m_events->ended = [this](UnixConnection::End) { lost.notify(); };
    return m_events->isOpen();
}

void HyprlandIpc::request(std::string_view request, Reply reply)
{
    const int number = ++m_lastNumber;
    auto& added = *(m_requests[number] = std::make_unique<Request>(m_directory / ".socket.sock", std::move(reply)));
    added.connection.received = [&added](std::string_view text) { added.text += text; };
    // Posted, because the handler must not destroy the connection.
    added.connection.ended = [this, number](UnixConnection::End end) {
        QMetaObject::invokeMethod(
            &m_context, [this, number, end] { finish(number, end); }, Qt::QueuedConnection);
    };
    if (!added.connection.write(request))
        added.connection.ended(UnixConnection::End::Broken);
}

void HyprlandIpc::abandonRequests() { m_requests.clear(); }

void HyprlandIpc::finish(int number, UnixConnection::End end)
{
    const auto node = m_requests.extract(number);
    if (node.empty())
        return;
    auto& request = *node.mapped();
    const bool isAnswered = end == UnixConnection::End::Complete && !request.text.empty();
    request.reply(isAnswered ? std::optional(std::move(request.text)) : std::nullopt);
}

void HyprlandIpc::receiveEvents(std::string_view text)
{
    m_eventText += text;
    std::size_t begin = 0;
    for (std::size_t end; (end = m_eventText.find('\n', begin)) != std::string::npos; begin = end + 1) {
        const auto line = std::string_view(m_eventText).substr(begin, end - begin);
        if (line.starts_with("configreloaded>>"))
            configReloaded.notify();
        else if (line.starts_with("openwindow>>"))
            windowOpened.notify();
    }
    m_eventText.erase(0, begin);
}

} // namespace cuebright
