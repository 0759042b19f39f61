#pragma once

#include "foundation/Signal.h"

#include <map>
#include <string>
#include <string_view>

namespace cuebright {

/// Passes named messages between pieces that do not hold each other. Delivery is synchronous, in the order of
/// observing; a name that nobody observes is not an error.
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
