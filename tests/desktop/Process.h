#pragma once

#include "support/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace cuebright::test {

/// The complete environment of a process.
using Environment = std::map<std::string, std::string>;

/// Generous, because sanitizer runs are slow.
constexpr std::chrono::seconds kTimeout {20};

/// Polls until `condition` holds; false after `timeout`.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout = kTimeout);

/// A child process. Terminated with its owner, and by the kernel if the test is killed.
class Process final {
public:
    struct Start {
        std::vector<std::string> command;
        Environment environment;
        std::filesystem::path output; ///< standard output
        std::filesystem::path errors {}; ///< standard error; empty: the same file
        int lastSignal = SIGTERM; ///< sent to end it
    };

    explicit Process(Start start);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] pid_t pid() const { return m_pid; }
    /// The output so far.
    [[nodiscard]] std::string output() const { return readFile(m_start.output); }
    /// Waits for the first line of the output; throws after the timeout.
    [[nodiscard]] std::string firstLine() const;

    void send(int signal) const;
    [[nodiscard]] bool hasEnded();
    /// Waits for the end: the exit status, or 128 + the signal; absent after the timeout.
    [[nodiscard]] std::optional<int> exitStatus();

private:
    Start m_start;
    pid_t m_pid;
    std::optional<int> m_status;
};

} // namespace cuebright::test
