#include "platform/qt/StdoutLog.h"

#include <cstdio>
#include <string>

namespace cuebright {

void StdoutLog::writeLine(std::string_view line)
{
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
    std::clearerr(stdout);
}

} // namespace cuebright
