#include "platform/linux/instance/ApplicationBusName.h"

#include "platform/linux/instance/ApplicationInterface.h"

#include <QSocketNotifier>

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include <dbus/dbus.h>

namespace cuebright {

namespace {

struct Unreference {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
    void operator()(DBusConnection* connection) const
    {
        dbus_connection_close(connection);
        dbus_connection_unref(connection);
    }
};
using Message = std::unique_ptr<DBusMessage, Unreference>;
using Connection = std::unique_ptr<DBusConnection, Unreference>;

class Error final {
public:
    Error() { dbus_error_init(&m_error); }
    ~Error() { dbus_error_free(&m_error); }
    Error(const Error&) = delete;
    Error& operator=(const Error&) = delete;
    DBusError* get() { return &m_error; }
    bool is(const char* name) const { return dbus_error_has_name(&m_error, name) != 0; }

private:
    DBusError m_error;
};

Message busCall(const char* member)
{
    return Message(dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, member));
}

Message send(DBusConnection* connection, const Message& call, std::chrono::milliseconds timeout, Error& error)
{
    return Message(dbus_connection_send_with_reply_and_block(
        connection, call.get(), static_cast<int>(timeout.count()), error.get()));
}

/// libdbus waits for the other side's half of the handshake for ever when a call is sent before it.
bool isAdmitted(DBusConnection* connection, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (dbus_connection_get_is_connected(connection) && !dbus_connection_get_is_authenticated(connection)) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            return false;
        dbus_connection_read_write(connection, static_cast<int>(left.count()));
    }
    return dbus_connection_get_is_connected(connection);
}

/// Not `dbus_bus_get`, which would start a bus where there is none, and wait for one that hangs.
Connection connectTo(const std::string& address, std::chrono::milliseconds timeout)
{
    Error error;
    Connection connection(dbus_connection_open_private(address.c_str(), error.get()));
    if (!connection)
        return nullptr;
    dbus_connection_set_exit_on_disconnect(connection.get(), FALSE);
    if (!isAdmitted(connection.get(), timeout) || !send(connection.get(), busCall("Hello"), timeout, error))
        return nullptr;
    return connection;
}

/// The bus's answer to the wish for the program's name.
std::optional<dbus_uint32_t> requestName(DBusConnection* connection, std::chrono::milliseconds timeout)
{
    const char* const name = kApplicationName;
    const dbus_uint32_t flags = DBUS_NAME_FLAG_DO_NOT_QUEUE;
    const auto call = busCall("RequestName");
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &name, DBUS_TYPE_UINT32, &flags, DBUS_TYPE_INVALID);
    Error error;
    const auto reply = send(connection, call, timeout, error);
    dbus_uint32_t answer = 0;
    if (!reply || !dbus_message_get_args(reply.get(), error.get(), DBUS_TYPE_UINT32, &answer, DBUS_TYPE_INVALID))
        return std::nullopt;
    return answer;
}

Message activateCall(const ApplicationBusName::PlatformData& data)
{
    Message call(dbus_message_new_method_call(kApplicationName, kApplicationPath, kApplicationInterface, "Activate"));
    dbus_message_set_auto_start(call.get(), FALSE); // should the owner be gone, this launch is the one
    DBusMessageIter arguments;
    DBusMessageIter entries;
    dbus_message_iter_init_append(call.get(), &arguments);
    dbus_message_iter_open_container(&arguments, DBUS_TYPE_ARRAY, "{sv}", &entries);
    for (const auto& [key, text] : data) {
        const char* const value = text.c_str();
        if (!dbus_validate_utf8(value, nullptr))
            continue;
        DBusMessageIter entry;
        DBusMessageIter variant;
        dbus_message_iter_open_container(&entries, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
        dbus_message_iter_append_basic(&entry, DBUS_TYPE_STRING, &key);
        dbus_message_iter_open_container(&entry, DBUS_TYPE_VARIANT, "s", &variant);
        dbus_message_iter_append_basic(&variant, DBUS_TYPE_STRING, &value);
        dbus_message_iter_close_container(&entry, &variant);
        dbus_message_iter_close_container(&entries, &entry);
    }
    dbus_message_iter_close_container(&arguments, &entries);
    return call;
}

/// Nothing where the owner of the name has gone meanwhile.
std::optional<InstanceClaim> handOver(
    DBusConnection* connection, const ApplicationBusName::PlatformData& data, std::chrono::milliseconds timeout)
{
    Error error;
    if (send(connection, activateCall(data), timeout, error))
        return InstanceClaim::HandedOver;
    if (error.is(DBUS_ERROR_SERVICE_UNKNOWN) || error.is(DBUS_ERROR_NAME_HAS_NO_OWNER))
        return std::nullopt;
    return error.is(DBUS_ERROR_NO_REPLY) ? InstanceClaim::Queued : InstanceClaim::Unreachable;
}

} // namespace

struct ApplicationBusName::Bus {
    Connection connection;
    std::function<void(const RemoteRequest&)> perform {};

    static DBusHandlerResult receive(DBusConnection* connection, DBusMessage* message, void* bus)
    {
        if (dbus_message_get_type(message) != DBUS_MESSAGE_TYPE_METHOD_CALL)
            return DBUS_HANDLER_RESULT_NOT_YET_HANDLED;
        const auto reply = static_cast<Bus*>(bus)->answerTo(message);
        if (!dbus_message_get_no_reply(message))
            dbus_connection_send(connection, reply.get(), nullptr);
        return DBUS_HANDLER_RESULT_HANDLED;
    }

    Message answerTo(DBusMessage* call) const
    {
        if (isIntrospection(call)) {
            Message reply(dbus_message_new_method_return(call));
            const char* const text = applicationIntrospection();
            dbus_message_append_args(reply.get(), DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
            return reply;
        }
        const auto request = requestIn(call);
        if (const auto* const refusal = std::get_if<DBusRefusal>(&request))
            return Message(dbus_message_new_error(call, refusal->error, refusal->text));
        perform(std::get<RemoteRequest>(request));
        return Message(dbus_message_new_method_return(call));
    }
};

std::optional<std::string> ApplicationBusName::sessionBus()
{
    if (const char* const address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address && *address != '\0')
        return std::string_view(address).starts_with("autolaunch:") ? std::nullopt : std::optional(address);
    const char* const runtimeDirectory = std::getenv("XDG_RUNTIME_DIR");
    if (!runtimeDirectory)
        return std::nullopt;
    const auto socket = std::filesystem::path(runtimeDirectory) / "bus";
    std::error_code ignored;
    if (!std::filesystem::is_socket(socket, ignored))
        return std::nullopt;
    const std::unique_ptr<char, decltype(&dbus_free)> escaped(dbus_address_escape_value(socket.c_str()), &dbus_free);
    return "unix:path=" + std::string(escaped.get());
}

ApplicationBusName::ApplicationBusName(std::optional<std::string> busAddress)
    : m_address(std::move(busAddress))
{
}

ApplicationBusName::~ApplicationBusName() = default;

InstanceClaim ApplicationBusName::claim(const PlatformData& data, std::chrono::milliseconds timeout)
{
    auto connection = m_address ? connectTo(*m_address, timeout) : nullptr;
    if (!connection)
        return InstanceClaim::Unavailable;
    bool isQueued = false;
    for (int attempt = 0; attempt < 3; ++attempt) {
        const auto answer = requestName(connection.get(), timeout);
        if (!answer)
            return InstanceClaim::Unavailable;
        if (*answer == DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER) {
            m_bus = std::make_unique<Bus>(Bus {std::move(connection)});
            return InstanceClaim::Granted;
        }
        if (isQueued)
            return InstanceClaim::Queued;
        const auto outcome = handOver(connection.get(), data, timeout);
        isQueued = outcome == InstanceClaim::Queued; // or the owner went instead of answering, and the name is free
        if (outcome && !isQueued)
            return *outcome;
    }
    return InstanceClaim::Unreachable;
}

void ApplicationBusName::deliver(std::function<void(const RemoteRequest&)> perform)
{
    int descriptor = -1;
    if (!m_bus || !dbus_connection_get_unix_fd(m_bus->connection.get(), &descriptor))
        return;
    m_bus->perform = std::move(perform);
    DBusObjectPathVTable object {};
    object.message_function = &Bus::receive;
    dbus_connection_register_object_path(m_bus->connection.get(), kApplicationPath, &object, m_bus.get());
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
    read();
}

void ApplicationBusName::read()
{
    const auto connection = m_bus->connection.get();
    m_notifier->setEnabled(false); // libdbus cannot dispatch within a dispatch
    dbus_connection_read_write(connection, 0);
    while (dbus_connection_dispatch(connection) == DBUS_DISPATCH_DATA_REMAINS) { }
    // Should the bus go, the program goes on without it.
    m_notifier->setEnabled(dbus_connection_get_is_connected(connection) != 0);
}

} // namespace cuebright
