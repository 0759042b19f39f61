#include "support/ProcessMemory.h"

#include <fstream>
#include <string>

namespace cuebright::bench {

std::optional<ProcessMemory> processMemory()
{
    std::ifstream status("/proc/self/status"); // proc(5)
    std::optional<std::size_t> resident;
    std::optional<std::size_t> peak;
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:"))
            resident = std::stoul(line.substr(6));
        else if (line.starts_with("VmHWM:"))
            peak = std::stoul(line.substr(6));
    }
    if (!resident || !peak)
        return std::nullopt;
    return ProcessMemory {*resident, *peak};
}

} // namespace cuebright::bench
