#include <cstdlib>
#include <fstream>

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

/// Preloaded into the program: its clock stands still at the seconds that a file holds, and at 1000 while there is
/// none. All other clocks go on.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock != CLOCK_BOOTTIME)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    *time = {1000, 0};
    if (const char* file = std::getenv("STILL_CLOCK"))
        std::ifstream(file) >> time->tv_sec;
    return 0;
}
