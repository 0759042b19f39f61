#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace cuebright {

/// Keeps one listener connected to a `Signal` while it exists. Movable; may outlive the signal.
class [[nodiscard]] Subscription final {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end)
        : m_end(std::move(end))
    {
    }
    Subscription(Subscription&& other) noexcept
        : m_end(std::exchange(other.m_end, nullptr))
    {
    }
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            end();
            m_end = std::exchange(other.m_end, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { end(); }

    /// Disconnects the listener, which is then no longer called, not even by a notification in progress.
    void end()
    {
        if (auto endNow = std::exchange(m_end, nullptr))
            endNow();
    }

private:
    std::function<void()> m_end;
};

/// A list of listeners that are called in the order in which they subscribed.
///
/// A listener may do anything during a notification: subscribe (it is called from the next notification on), end any
/// subscription, notify again, destroy the signal (the remaining listeners are then not called). One thread only.
template <typename... Args> class Signal final {
public:
    using Listener = std::function<void(Args...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    ~Signal() { m_state->alive = false; }

    [[nodiscard]] Subscription subscribe(Listener listener)
    {
        auto slot = std::make_shared<Slot>(std::move(listener));
        m_state->slots.push_back(slot);
        return Subscription([state = std::weak_ptr<State>(m_state), slot] {
            slot->connected = false;
            if (const auto s = state.lock(); s && s->depth == 0)
                s->dropEnded();
        });
    }

    void notify(Args... args) const
    {
        const auto state = m_state; // a listener may destroy the signal
        const auto count = state->slots.size();
        ++state->depth;
        for (std::size_t i = 0; i < count && state->alive; ++i) {
            const auto slot = state->slots[i];
            if (slot->connected)
                slot->listener(args...);
        }
        if (--state->depth == 0)
            state->dropEnded();
    }

private:
    struct Slot {
        explicit Slot(Listener l)
            : listener(std::move(l))
        {
        }
        Listener listener;
        bool connected = true;
    };
    struct State {
        std::vector<std::shared_ptr<Slot>> slots;
        int depth = 0;
        bool alive = true;

        void dropEnded()
        {
            std::erase_if(slots, [](const auto& slot) { return !slot->connected; });
        }
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace cuebright
