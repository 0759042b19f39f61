#pragma once

class QWidget;

namespace cuebright {

/// Exposes `owner`'s pop-up menus as accessible children while they are open; Qt leaves them out of the tree. `owner`
/// is a button or a plain widget that already has its menus.
void offerOpenMenusToScreenReaders(QWidget& owner);

} // namespace cuebright
