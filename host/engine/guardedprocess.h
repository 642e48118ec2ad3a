#pragma once

#include <QProcess>

// An encoder process that cannot outlive the host: the kernel sends it SIGTERM when the
// host dies, however it dies (PR_SET_PDEATHSIG, set in the child before FFmpeg starts), and
// FFmpeg ends its files on SIGTERM as on a normal stop.
class GuardedProcess : public QProcess
{
    Q_OBJECT
public:
    explicit GuardedProcess(QObject* parent = nullptr);

protected:
    void setupChildProcess() override;

private:
    qint64 m_hostPid;
};
