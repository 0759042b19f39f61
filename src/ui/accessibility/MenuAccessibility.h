#pragma once

class QWidget;

namespace cuebright {

/// Makes the pop-up menus whose parent is `owner` children of it for screen readers too, as long as they are open: what
/// goes through the tree of elements would not find them otherwise. The owner is a button or a plain widget, and its
/// menus are there when this is called.
void offerOpenMenusToScreenReaders(QWidget& owner);

} // namespace cuebright
