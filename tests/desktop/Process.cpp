#include "desktop/Process.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cuebright::test {

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

int openForOutput(const std::filesystem::path& path)
{
    return open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
}

} // namespace

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds patience)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Process::Process(Start start)
    : m_start(std::move(start))
{
    std::vector<std::string> arguments = m_start.command;
    std::vector<std::string> variables;
    for (const auto& [name, value] : m_start.environment)
        variables.push_back(name + "=" + value);
    const auto argv = pointersTo(arguments);
    const auto envp = pointersTo(variables);
    const int output = openForOutput(m_start.output);
    const int errors = m_start.errors.empty() ? dup(output) : openForOutput(m_start.errors);
    const pid_t test = getpid();

    m_pid = fork();
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, m_start.lastSignal);
        if (getppid() != test)
            _exit(127);
        dup2(output, STDOUT_FILENO);
        dup2(errors, STDERR_FILENO);
        execvpe(argv.front(), argv.data(), envp.data());
        _exit(127);
    }
    close(output);
    close(errors);
    if (m_pid < 0)
        throw std::runtime_error("cannot start " + m_start.command.front());
}

Process::~Process()
{
    if (hasEnded())
        return;
    send(m_start.lastSignal);
    if (!waitUntil([this] { return hasEnded(); }, std::chrono::seconds(5))) {
        send(SIGKILL);
        (void)waitUntil([this] { return hasEnded(); });
    }
}

std::string Process::firstLine() const
{
    std::string text;
    const bool came = waitUntil([&] {
        text = output();
        return text.find('\n') != std::string::npos;
    });
    if (!came)
        throw std::runtime_error(m_start.command.front() + " does not come up: " + text + readFile(m_start.errors));
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
