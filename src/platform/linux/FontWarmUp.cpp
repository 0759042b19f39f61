#include "platform/linux/FontWarmUp.h"

#include <system_error>

#include <fontconfig/fontconfig.h>

namespace cuebright {

FontWarmUp::FontWarmUp()
{
    try {
        m_thread = std::jthread([] { FcInit(); }); // thread-safe; later calls do nothing
    } catch (const std::system_error&) {
        // Qt reads it later.
    }
}

} // namespace cuebright
