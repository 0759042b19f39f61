#include "platform/linux/FontWarmUp.h"

#include <system_error>

#include <fontconfig/fontconfig.h>

namespace cuebright {

FontWarmUp::FontWarmUp()
{
    try {
        m_thread = std::jthread([] { FcInit(); }); // safe from any thread, and does nothing the second time
    } catch (const std::system_error&) {
        // No thread is to be had: the toolkit reads it later.
    }
}

} // namespace cuebright
