#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// nginx with its RTMP module, live application "live" on 127.0.0.1:1935 and the module's
// statistics page on a free loopback port. Runs as the current user from a temporary
// prefix with its own configuration, in the foreground, and is stopped by its process id.
// Tests that use it are serial: the port is fixed.
class NginxRtmp
{
public:
    NginxRtmp();
    ~NginxRtmp();

    // The Debian packages that are missing for it; empty when it can run.
    static QString missingPackages();

    bool start();
    // SIGKILL: the server vanishes as after a crash.
    void kill();
    QString url() const { return QStringLiteral("rtmp://127.0.0.1:1935/live"); }
    // The statistics page (XML), empty when nginx does not answer.
    QByteArray statistics() const;

private:
    QTemporaryDir m_prefix;
    QProcess m_process;
    quint16 m_statPort = 0;
};
