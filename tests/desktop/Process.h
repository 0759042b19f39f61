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

/// Names and values, complete: a process gets nothing beside them.
using Environment = std::map<std::string, std::string>;

/// How long anything may take before a test gives up on it. Generous, because a sanitizer run is slow.
constexpr std::chrono::seconds kTimeout {20};

/// Asks again and again until `condition` holds; false when it still does not after `timeout`.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout = kTimeout);

/// A program that a test started. It ends with its owner, and by the system's hand when the test itself is killed.
class Process final {
public:
    struct Start {
        std::vector<std::string> command;
        Environment environment;
        std::filesystem::path output; ///< takes what the program prints
        std::filesystem::path errors {}; ///< empty: in with the output
        int lastSignal = SIGTERM; ///< what it gets when it has to go
    };

    explicit Process(Start start);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] pid_t pid() const { return m_pid; }
    /// What the program has printed so far.
    [[nodiscard]] std::string output() const { return readFile(m_start.output); }
    /// The first line of the output, waited for; throws where none comes.
    [[nodiscard]] std::string firstLine() const;

    void send(int signal) const;
    [[nodiscard]] bool hasEnded();
    /// Waits for the end: the exit status, or 128 + the signal that killed it; nothing where it goes on running.
    [[nodiscard]] std::optional<int> exitStatus();

private:
    Start m_start;
    pid_t m_pid;
    std::optional<int> m_status;
};

} // namespace cuebright::test
