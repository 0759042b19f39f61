#pragma once

#include "foundation/Signal.h"

#include <map>
#include <string>
#include <string_view>

namespace cuebright {

/// Delivers named notifications between objects that do not know each other: synchronously, in the order of
/// subscription. Posting a name without observers does nothing.
class NotificationCenter final {
public:
    [[nodiscard]] Subscription observe(std::string_view name, std::function<void()> observer)
    {
        return m_signals[std::string(name)].subscribe(std::move(observer));
    }

    void post(std::string_view name)
    {
        if (const auto it = m_signals.find(name); it != m_signals.end())
            it->second.notify();
    }

private:
    std::map<std::string, Signal<>, std::less<>> m_signals;
};

} // namespace cuebright
