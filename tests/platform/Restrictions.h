#pragma once

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

namespace cuebright::test {

/// Behaves like a disk that has room for so many bytes of each file.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        const rlimit limit {bytes, m_oldLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    void (*m_oldHandler)(int);
    rlimit m_oldLimit {};
};

/// The administrator may read and write everything; for as long as this lives, the process is nobody.
class AsOrdinaryUser final {
public:
    AsOrdinaryUser()
    {
        if (m_wasRoot && setresuid(kNobody, kNobody, 0) != 0)
            m_wasRoot = false;
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
    ~AsOrdinaryUser()
    {
        if (m_wasRoot && setresuid(0, 0, 0) != 0)
            std::abort();
    }

private:
    static constexpr uid_t kNobody = 65534;
    bool m_wasRoot = geteuid() == 0;
};

} // namespace cuebright::test
