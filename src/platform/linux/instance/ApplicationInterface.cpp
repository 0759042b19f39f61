#include "platform/linux/instance/ApplicationInterface.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace cuebright {

namespace {

using Action = RemoteRequest::Action;

struct Method {
    std::string_view name;
    const char* signature;
};
constexpr std::array<Method, 3> kMethods {{{"Activate", "a{sv}"}, {"Open", "asa{sv}"}, {"ActivateAction", "sava{sv}"}}};

struct NamedAction {
    std::string_view name;
    Action action;
};
constexpr std::array<NamedAction, 3> kActions {
    {{"toggle-panel", Action::TogglePanel}, {"next-card", Action::NextCard}, {"previous-card", Action::PreviousCard}}};

/// The first argument is the action, the second its parameters.
std::variant<Action, DBusRefusal> actionIn(DBusMessageIter argument)
{
    const char* name = nullptr;
    dbus_message_iter_get_basic(&argument, &name);
    const auto known = std::ranges::find(kActions, std::string_view(name), &NamedAction::name);
    if (known == kActions.end())
        return DBusRefusal {DBUS_ERROR_INVALID_ARGS, "There is no such action"};
    dbus_message_iter_next(&argument);
    if (dbus_message_iter_get_element_count(&argument) != 0)
        return DBusRefusal {DBUS_ERROR_INVALID_ARGS, "The action takes no parameter"};
    return known->action;
}

/// The text at a key of a dictionary from texts to variants; empty where there is none.
std::string textAt(std::string_view key, DBusMessageIter dictionary)
{
    DBusMessageIter entries;
    for (dbus_message_iter_recurse(&dictionary, &entries);
         dbus_message_iter_get_arg_type(&entries) == DBUS_TYPE_DICT_ENTRY; dbus_message_iter_next(&entries)) {
        DBusMessageIter entry;
        DBusMessageIter value;
        const char* text = nullptr;
        dbus_message_iter_recurse(&entries, &entry);
        dbus_message_iter_get_basic(&entry, &text);
        dbus_message_iter_next(&entry);
        dbus_message_iter_recurse(&entry, &value);
        if (key != text || dbus_message_iter_get_arg_type(&value) != DBUS_TYPE_STRING)
            continue;
        dbus_message_iter_get_basic(&value, &text);
        return text;
    }
    return {};
}

/// The platform data is the last argument of every method.
std::string tokenIn(DBusMessageIter argument)
{
    while (dbus_message_iter_has_next(&argument))
        dbus_message_iter_next(&argument);
    const auto token = textAt("activation-token", argument);
    return token.empty() ? textAt("desktop-startup-id", argument) : token;
}

} // namespace

std::variant<RemoteRequest, DBusRefusal> requestIn(DBusMessage* call)
{
    const char* const interface = dbus_message_get_interface(call);
    if (interface && std::string_view(interface) != kApplicationInterface)
        return DBusRefusal {DBUS_ERROR_UNKNOWN_INTERFACE, "There is no such interface here"};
    const auto method = std::ranges::find(kMethods, std::string_view(dbus_message_get_member(call)), &Method::name);
    if (method == kMethods.end())
        return DBusRefusal {DBUS_ERROR_UNKNOWN_METHOD, "There is no such method"};
    if (!dbus_message_has_signature(call, method->signature))
        return DBusRefusal {DBUS_ERROR_INVALID_ARGS, "The method has other arguments"};

    DBusMessageIter arguments;
    dbus_message_iter_init(call, &arguments);
    if (method->name != "ActivateAction")
        return RemoteRequest {Action::Activate, tokenIn(arguments)};
    const auto action = actionIn(arguments);
    if (const auto* const refusal = std::get_if<DBusRefusal>(&action))
        return *refusal;
    return RemoteRequest {std::get<Action>(action), tokenIn(arguments)};
}

bool isIntrospection(DBusMessage* call)
{
    return dbus_message_is_method_call(call, DBUS_INTERFACE_INTROSPECTABLE, "Introspect") != 0;
}

const char* applicationIntrospection()
{
    return DBUS_INTROSPECT_1_0_XML_DOCTYPE_DECL_NODE R"xml(<node>
  <interface name="org.freedesktop.Application">
    <method name="Activate">
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="Open">
      <arg name="uris" type="as" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
    <method name="ActivateAction">
      <arg name="action_name" type="s" direction="in"/>
      <arg name="parameter" type="av" direction="in"/>
      <arg name="platform_data" type="a{sv}" direction="in"/>
    </method>
  </interface>
  <interface name="org.freedesktop.DBus.Introspectable">
    <method name="Introspect">
      <arg name="data" type="s" direction="out"/>
    </method>
  </interface>
  <interface name="org.freedesktop.DBus.Peer">
    <method name="Ping"/>
    <method name="GetMachineId">
      <arg name="machine_uuid" type="s" direction="out"/>
    </method>
  </interface>
</node>
)xml";
}

} // namespace cuebright
