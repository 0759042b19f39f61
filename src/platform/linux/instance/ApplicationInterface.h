#pragma once

#include "platform/RemoteRequest.h"

#include <variant>

#include <dbus/dbus.h>

namespace cuebright {

// The interface org.freedesktop.Application of the Desktop Entry Specification, as this program answers it.

constexpr const char* kApplicationName = "app.cuebright.Cuebright";
constexpr const char* kApplicationPath = "/app/cuebright/Cuebright";
constexpr const char* kApplicationInterface = "org.freedesktop.Application";

/// What is sent back instead of an answer.
struct DBusRefusal {
    const char* error;
    const char* text;
};

/// What a call to the object asks for, or why that cannot be had. Files to be opened are passed over.
[[nodiscard]] std::variant<RemoteRequest, DBusRefusal> requestIn(DBusMessage* call);

[[nodiscard]] bool isIntrospection(DBusMessage* call);
[[nodiscard]] const char* applicationIntrospection();

} // namespace cuebright
