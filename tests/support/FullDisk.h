#pragma once

#include <csignal>

#include <sys/resource.h>

namespace quindle {

/// While it lives, no file can grow beyond that many bytes, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_formerAction(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limited{bytes, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerAction);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_former = {};
    void (*m_formerAction)(int);
};

} // namespace quindle
