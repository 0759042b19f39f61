#pragma once

#include <thread>

namespace cuebright {

/// Reads the font configuration on a thread while Qt connects to the display, so that Qt need not read it later: saves
/// 3 ms of 50 until the first paint where two cores are free, nothing on a busy machine. Make it before the application
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
