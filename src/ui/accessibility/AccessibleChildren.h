#pragma once

#include <QAccessible>

#include <cstddef>
#include <vector>

namespace cuebright {

/// Owns the children of an accessible element that stand for no QObject. Each is made when it is first asked for.
class AccessibleChildren final {
public:
    AccessibleChildren() = default;
    AccessibleChildren(const AccessibleChildren&) = delete;
    AccessibleChildren& operator=(const AccessibleChildren&) = delete;
    ~AccessibleChildren() { clear(); }

    /// The child of that index, which `make` returns if it does not exist yet.
    template <typename Make> [[nodiscard]] QAccessibleInterface* at(int index, Make make)
    {
        const auto place = static_cast<std::size_t>(index);
        if (place >= m_ids.size())
            m_ids.resize(place + 1);
        if (m_ids[place] == 0)
            m_ids[place] = QAccessible::registerAccessibleInterface(make());
        return QAccessible::accessibleInterface(m_ids[place]);
    }
    /// −1 if it is none of these.
    [[nodiscard]] int indexOf(const QAccessibleInterface* child) const;
    void clear();

private:
    std::vector<QAccessible::Id> m_ids; ///< 0 = not made yet
};

/// The first child that contains a place on the screen; null if there is none.
[[nodiscard]] QAccessibleInterface* childContaining(const QAccessibleInterface& parent, int x, int y);

} // namespace cuebright
