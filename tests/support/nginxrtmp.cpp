#include "support/nginxrtmp.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

namespace {

const char* const modulePath = "/usr/lib/nginx/modules/ngx_rtmp_module.so";

QString nginxProgram()
{
    QString program = QStandardPaths::findExecutable(QStringLiteral("nginx"));
    if (program.isEmpty())
        program = QStandardPaths::findExecutable(QStringLiteral("nginx"), {QStringLiteral("/usr/sbin")});
    return program;
}

bool accepts(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), port);
    return socket.waitForConnected(200);
}

} // namespace

NginxRtmp::NginxRtmp() = default;

NginxRtmp::~NginxRtmp()
{
    kill();
}

QString NginxRtmp::missingPackages()
{
    QStringList missing;
    if (nginxProgram().isEmpty())
        missing << QStringLiteral("nginx");
    if (!QFile::exists(QLatin1String(modulePath)))
        missing << QStringLiteral("libnginx-mod-rtmp");
    return missing.join(QStringLiteral(", "));
}

bool NginxRtmp::start()
{
    if (m_process.state() != QProcess::NotRunning)
        return true;
    if (m_statPort == 0) {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        m_statPort = probe.serverPort();
    }
    const QString dir = m_prefix.path();
    const QString config = QStringLiteral(
        "load_module %1;\n"
        "daemon off;\nmaster_process off;\nworker_processes 1;\n"
        "error_log %2/error.log warn;\npid %2/nginx.pid;\n"
        "events { worker_connections 64; }\n"
        "rtmp { server { listen 127.0.0.1:1935; application live { live on; record off; } } }\n"
        "http {\n  access_log off;\n  client_body_temp_path %2/body;\n  proxy_temp_path %2/proxy;\n"
        "  fastcgi_temp_path %2/fastcgi;\n  uwsgi_temp_path %2/uwsgi;\n  scgi_temp_path %2/scgi;\n"
        "  server { listen 127.0.0.1:%3; location /stat { rtmp_stat all; } }\n}\n")
                               .arg(QLatin1String(modulePath), dir)
                               .arg(m_statPort);
    QFile file(dir + QStringLiteral("/nginx.conf"));
    if (!file.open(QIODevice::WriteOnly) || file.write(config.toUtf8()) < 0)
        return false;
    file.close();
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(nginxProgram(), {QStringLiteral("-p"), dir, QStringLiteral("-c"), dir + QStringLiteral("/nginx.conf"),
                                     QStringLiteral("-e"), dir + QStringLiteral("/error.log")});
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 5000 && m_process.state() != QProcess::NotRunning) {
        if (accepts(1935) && accepts(m_statPort))
            return true;
        QThread::msleep(50);
    }
    return false;
}

void NginxRtmp::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(5000);
}

QByteArray NginxRtmp::statistics() const
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), m_statPort);
    if (!socket.waitForConnected(1000))
        return {};
    socket.write("GET /stat HTTP/1.0\r\nHost: 127.0.0.1\r\n\r\n");
    QByteArray reply;
    while (socket.waitForReadyRead(1000))
        reply += socket.readAll();
    const int body = reply.indexOf("\r\n\r\n");
    return body < 0 ? QByteArray() : reply.mid(body + 4);
}
