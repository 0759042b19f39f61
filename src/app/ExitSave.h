#pragma once

#include <functional>

namespace cuebright {

/// The last chance to save, where something ends the process by exit() without leaving the event loop: the toolkit does
/// that when the display goes away. There is one at most.
class ExitSave final {
public:
    /// `save` runs at such an exit, and not once this is gone. It must not need the display.
    explicit ExitSave(std::function<void()> save);
    ExitSave(const ExitSave&) = delete;
    ExitSave& operator=(const ExitSave&) = delete;
    ~ExitSave();

private:
    std::function<void()> m_save;
};

} // namespace cuebright
