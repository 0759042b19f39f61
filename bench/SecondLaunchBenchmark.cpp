// Start to exit of a second launch, alternating with a Qt program that only starts and ends.
// Needs a display, and no Cuebright running: dbus-run-session xvfb-run build/bench/second_launch_benchmark [RUNS]
#include "support/Median.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using cuebright::bench::median;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

std::optional<pid_t> start(const std::string& program)
{
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    pid_t process = 0;
    const int error = posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ);
    return error == 0 ? std::optional(process) : std::nullopt;
}

/// Absent if the program does not start or fails.
std::optional<double> timeToExit(const std::string& program)
{
    const auto begin = Clock::now();
    const auto process = start(program);
    int status = 0;
    if (!process || waitpid(*process, &status, 0) != *process || status != 0)
        return std::nullopt;
    return Milliseconds(Clock::now() - begin).count();
}

} // namespace

int main(int argc, char* argv[])
{
    const int runCount = argc > 1 ? std::atoi(argv[1]) : 11;
    const std::string folder = std::string(argv[0]).substr(0, std::string(argv[0]).rfind('/'));
    const std::string programs[] = {folder + "/empty_qt_program", folder + "/cuebright"};
    const auto first = start(programs[1]);
    if (!first)
        return 1;
    ::sleep(2); // until it is idle
    std::vector<double> times[2];
    for (int i = 0; i <= runCount && waitpid(*first, nullptr, WNOHANG) == 0; ++i) {
        for (int p = 0; p < 2; ++p) {
            const auto time = timeToExit(programs[p]);
            if (i > 0 && time) // the first run warms the caches
                times[p].push_back(*time);
        }
    }
    ::kill(*first, SIGTERM);
    ::waitpid(*first, nullptr, 0);
    if (std::ssize(times[0]) != runCount || std::ssize(times[1]) != runCount) {
        std::fputs("not every launch ended well\n", stderr);
        return 1;
    }
    std::printf("%-22s %10s %10s\n", "median", "empty", "second");
    std::printf("%-22s %10.1f %10.1f\n", "start to exit, ms", median(times[0]), median(times[1]));
    return 0;
}
