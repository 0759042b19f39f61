#pragma once

namespace cuebright {

/// From now on screen readers take the program's own windows for windows. The toolkit knows only dialogs by itself, and
/// gives every other one for a mere container.
void presentWindowsToScreenReaders();

} // namespace cuebright
