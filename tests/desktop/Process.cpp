#include "desktop/Process.h"

#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cuebright::test {

namespace {

/// Runs the program in the forked process.
[[noreturn]] void become(Process::Start program, pid_t test)
{
    prctl(PR_SET_PDEATHSIG, program.lastSignal);
    const auto redirect = [](int stream, const std::filesystem::path& file) {
        return dup2(open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600), stream) >= 0;
    };
    clearenv();
    for (const auto& [name, value] : program.environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> arguments;
    for (auto& argument : program.command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    if (getppid() == test && redirect(STDOUT_FILENO, program.output)
        && redirect(STDERR_FILENO, program.errors.empty() ? program.output : program.errors))
        execvp(arguments.front(), arguments.data());
    _exit(127);
}

} // namespace

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

Process::Process(Start start)
    : m_start(std::move(start))
{
    const pid_t test = getpid();
    m_pid = fork();
    if (m_pid < 0)
        throw std::runtime_error("cannot start " + m_start.command.front());
    if (m_pid == 0)
        become(m_start, test);
}

Process::~Process()
{
    for (const int signal : {m_start.lastSignal, SIGKILL}) {
        send(signal);
        if (waitUntil([this] { return hasEnded(); }, std::chrono::seconds(5)))
            return;
    }
}

std::string Process::firstLine() const
{
    if (!waitUntil([this] { return output().find('\n') != std::string::npos; }))
        throw std::runtime_error(m_start.command.front() + " does not come up: " + output() + readFile(m_start.errors));
    const auto text = output();
    return text.substr(0, text.find('\n'));
}

void Process::send(int signal) const
{
    if (!m_status)
        kill(m_pid, signal);
}

std::optional<int> Process::exitStatus()
{
    (void)waitUntil([this] { return hasEnded(); });
    return m_status;
}

bool Process::hasEnded()
{
    int status = 0;
    if (!m_status && waitpid(m_pid, &status, WNOHANG) == m_pid)
        m_status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return m_status.has_value();
}

} // namespace cuebright::test
