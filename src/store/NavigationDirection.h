#pragma once

namespace cuebright {

/// The direction of the last move between cards.
enum class NavigationDirection { Forward, Backward };

} // namespace cuebright
