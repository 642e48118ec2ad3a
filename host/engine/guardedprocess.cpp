#include "engine/guardedprocess.h"

#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>

GuardedProcess::GuardedProcess(QObject* parent) : QProcess(parent), m_hostPid(::getpid())
{
}

// Runs in the child between fork and exec: async-signal-safe calls only.
void GuardedProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    // The host may have died before the line above; then nobody would send the signal.
    if (::getppid() != static_cast<pid_t>(m_hostPid))
        ::_exit(127);
}
