#pragma once

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

namespace cuebright::test {

/// Does the work with a file size limit, as on a full disk.
template <typename Work> void withRoomFor(rlim_t bytes, Work work)
{
    rlimit usual {};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit limit {bytes, usual.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    work();
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);
}

/// Does the work as user nobody: root ignores permissions.
template <typename Work> void asOrdinaryUser(Work work)
{
    constexpr uid_t kNobody = 65534;
    const bool wasRoot = geteuid() == 0 && setresuid(kNobody, kNobody, 0) == 0;
    work();
    if (wasRoot && setresuid(0, 0, 0) != 0)
        std::abort();
}

} // namespace cuebright::test
