#pragma once

#include <memory>
#include <utility>

namespace cuebright {

/// Lets deferred work hold its target weakly: what `guard` returns does nothing once this object is gone.
/// Keep it as a member of the target.
class WeakTarget final {
public:
    WeakTarget() = default;
    WeakTarget(const WeakTarget&) = delete;
    WeakTarget& operator=(const WeakTarget&) = delete;

    template <typename Work> [[nodiscard]] auto guard(Work work) const
    {
        return [alive = std::weak_ptr<const char>(m_alive), work = std::move(work)] {
            if (!alive.expired())
                work();
        };
    }

private:
    std::shared_ptr<const char> m_alive = std::make_shared<const char>('\0');
};

} // namespace cuebright
