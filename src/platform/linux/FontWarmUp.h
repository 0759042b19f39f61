#pragma once

#include <thread>

namespace cuebright {

/// Reads the system's font configuration on a thread of its own while the toolkit connects to the display, which it
/// would else do afterwards: up to a tenth of the time until the first card shows. Make it before the application
/// object.
class FontWarmUp final {
public:
    FontWarmUp();
    FontWarmUp(const FontWarmUp&) = delete;
    FontWarmUp& operator=(const FontWarmUp&) = delete;

private:
    std::jthread m_thread;
};

} // namespace cuebright
