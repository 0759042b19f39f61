#pragma once

namespace cuebright {

/// Gives the program's windows the accessible role of a window from now on. Qt does so only for dialogs, and presents
/// all others as containers.
void presentWindowsToScreenReaders();

} // namespace cuebright
