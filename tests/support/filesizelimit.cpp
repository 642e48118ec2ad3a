#include "support/filesizelimit.h"

#include <csignal>

FileSizeLimit::FileSizeLimit(rlim_t bytes)
{
    if (getrlimit(RLIMIT_FSIZE, &m_saved) != 0)
        return;
    // Past the limit the kernel raises SIGXFSZ; ignored, the write returns EFBIG.
    m_savedHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limited = m_saved;
    limited.rlim_cur = bytes;
    m_active = setrlimit(RLIMIT_FSIZE, &limited) == 0;
}

FileSizeLimit::~FileSizeLimit()
{
    if (m_active)
        setrlimit(RLIMIT_FSIZE, &m_saved);
    std::signal(SIGXFSZ, m_savedHandler == SIG_ERR ? SIG_DFL : m_savedHandler);
}
