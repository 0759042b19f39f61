#pragma once

#include <functional>

namespace cuebright {

/// Saves when exit() ends the process from within the event loop, as Qt does when the connection to the display is
/// lost. One at most exists at a time.
class ExitSave final {
public:
    /// `save` must not need the display.
    explicit ExitSave(std::function<void()> save);
    ExitSave(const ExitSave&) = delete;
    ExitSave& operator=(const ExitSave&) = delete;
    ~ExitSave();

private:
    std::function<void()> m_save;
};

} // namespace cuebright
