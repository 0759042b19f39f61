#include "platform/linux/capture/HyprlandSocket.h"

#include <QMetaObject>

#include <utility>

namespace cuebright {

struct HyprlandSocket::Request {
    Request(const std::filesystem::path& socket, Reply whenAnswered)
        : connection(socket)
        , reply(std::move(whenAnswered))
    {
    }

    UnixConnection connection;
    std::string text;
    Reply reply;
};

HyprlandSocket::HyprlandSocket(std::filesystem::path directory)
    : m_directory(std::move(directory))
{
}

HyprlandSocket::~HyprlandSocket() = default;

void HyprlandSocket::start()
{
    m_events = std::make_unique<UnixConnection>(m_directory / ".socket2.sock");
    if (!m_events->isOpen())
        return lost.notify();
    m_events->received = [this](std::string_view text) { takeEvents(text); };
    m_events->ended = [this](UnixConnection::End) { lost.notify(); };
}

void HyprlandSocket::request(std::string_view request, Reply reply)
{
    const int number = ++m_lastNumber;
    auto& made = *(m_requests[number] = std::make_unique<Request>(m_directory / ".socket.sock", std::move(reply)));
    made.connection.received = [&made](std::string_view text) { made.text += text; };
    // Later, because a connection outlives its own call.
    made.connection.ended = [this, number](UnixConnection::End end) {
        QMetaObject::invokeMethod(
            &m_self, [this, number, end] { finish(number, end); }, Qt::QueuedConnection);
    };
    if (!made.connection.write(request))
        made.connection.ended(UnixConnection::End::Broken);
}

void HyprlandSocket::abandonRequests() { m_requests.clear(); }

void HyprlandSocket::finish(int number, UnixConnection::End end)
{
    const auto node = m_requests.extract(number);
    if (node.empty())
        return;
    auto& request = *node.mapped();
    const bool isAnswered = end == UnixConnection::End::Complete && !request.text.empty();
    request.reply(isAnswered ? std::optional(std::move(request.text)) : std::nullopt);
}

void HyprlandSocket::takeEvents(std::string_view text)
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
