#pragma once

#include <memory>
#include <optional>
#include <string>

#include <sys/types.h>

struct DBusConnection;

namespace cuebright::test {

/// Somebody else on the message bus, who asks programs for their actions.
class BusClient final {
public:
    explicit BusClient(const std::string& address);
    ~BusClient();
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;

    /// By org.freedesktop.Application; starts the program where it does not run. True once it has answered.
    [[nodiscard]] bool activateAction(const std::string& program, const char* action) const;
    [[nodiscard]] std::optional<pid_t> owner(const char* name) const;
    /// The bus looks again which programs it can start.
    void reloadServices() const;

private:
    DBusConnection* m_connection;
};

} // namespace cuebright::test
