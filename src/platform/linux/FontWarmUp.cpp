#include "platform/linux/FontWarmUp.h"

#include <fontconfig/fontconfig.h>

namespace cuebright {

FontWarmUp::FontWarmUp()
    : m_thread([] { FcInit(); }) // safe from any thread, and does nothing the second time
{
}

FontWarmUp::~FontWarmUp() { m_thread.join(); }

} // namespace cuebright
