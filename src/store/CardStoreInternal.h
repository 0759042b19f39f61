#pragma once

#include "platform/Accessibility.h"
#include "store/CardStore.h"
#include "store/UndoManager.h"

#include <utility>

/// Shared by the store's sources; not for any other file.
namespace cuebright {

/// While it exists, changes carry the animation, unless the user asked for reduced motion.
class CardStore::AnimatedTransaction final {
public:
    AnimatedTransaction(CardStore& store, Animation animation)
        : m_store(store)
    {
        if (!store.m_platform.accessibility.reduceMotion())
            store.m_animation = animation;
    }
    AnimatedTransaction(const AnimatedTransaction&) = delete;
    AnimatedTransaction& operator=(const AnimatedTransaction&) = delete;
    ~AnimatedTransaction() { m_store.m_animation.reset(); }

private:
    CardStore& m_store;
};

template <typename Value> void CardStore::set(Value& member, std::type_identity_t<Value> value, Property property)
{
    notifyWillChange(property);
    member = std::move(value);
}

} // namespace cuebright
