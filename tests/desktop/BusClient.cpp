#include "desktop/BusClient.h"

#include <algorithm>
#include <stdexcept>

#include <dbus/dbus.h>

namespace cuebright::test {

namespace {

constexpr int kPatience = 20'000; // milliseconds

struct Unreference {
    void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, Unreference>;

Message busCall(const char* member)
{
    return Message(dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, member));
}

Message answer(DBusConnection* connection, const Message& call)
{
    return Message(dbus_connection_send_with_reply_and_block(connection, call.get(), kPatience, nullptr));
}

void appendEmptyArray(DBusMessageIter& arguments, const char* items)
{
    DBusMessageIter array;
    dbus_message_iter_open_container(&arguments, DBUS_TYPE_ARRAY, items, &array);
    dbus_message_iter_close_container(&arguments, &array);
}

} // namespace

BusClient::BusClient(const std::string& address)
    : m_connection(dbus_connection_open_private(address.c_str(), nullptr))
{
    if (!m_connection || !dbus_bus_register(m_connection, nullptr))
        throw std::runtime_error("cannot reach the bus " + address);
    dbus_connection_set_exit_on_disconnect(m_connection, FALSE);
}

BusClient::~BusClient()
{
    dbus_connection_close(m_connection);
    dbus_connection_unref(m_connection);
}

bool BusClient::activateAction(const std::string& program, const char* action) const
{
    std::string path = '/' + program;
    std::ranges::replace(path, '.', '/');
    const Message call(
        dbus_message_new_method_call(program.c_str(), path.c_str(), "org.freedesktop.Application", "ActivateAction"));
    DBusMessageIter arguments;
    dbus_message_iter_init_append(call.get(), &arguments);
    dbus_message_iter_append_basic(&arguments, DBUS_TYPE_STRING, &action);
    appendEmptyArray(arguments, "v");
    appendEmptyArray(arguments, "{sv}");
    return answer(m_connection, call) != nullptr;
}

std::optional<pid_t> BusClient::owner(const char* name) const
{
    const auto call = busCall("GetConnectionUnixProcessID");
    dbus_message_append_args(call.get(), DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    const auto reply = answer(m_connection, call);
    dbus_uint32_t pid = 0;
    if (!reply || !dbus_message_get_args(reply.get(), nullptr, DBUS_TYPE_UINT32, &pid, DBUS_TYPE_INVALID))
        return std::nullopt;
    return static_cast<pid_t>(pid);
}

void BusClient::reloadServices() const { (void)answer(m_connection, busCall("ReloadConfig")); }

} // namespace cuebright::test
