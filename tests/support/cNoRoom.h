#pragma once

#include <sys/resource.h>

#include <csignal>

// No file of this program can grow beyond some bytes for as long as this lives: what a full disk does.
class cNoRoom
{
public:
    explicit cNoRoom(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    cNoRoom(const cNoRoom&) = delete;
    cNoRoom& operator=(const cNoRoom&) = delete;
    ~cNoRoom() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};
