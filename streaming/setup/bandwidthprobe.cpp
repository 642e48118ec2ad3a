#include "setup/bandwidthprobe.h"

#include "setup/ingestaddress.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTcpSocket>

#include <cmath>

Q_LOGGING_CATEGORY(lcBandwidth, "streaming.bandwidth")

BandwidthProbe::BandwidthProbe(const QList<LabelPair>& servers)
    : m_servers(servers)
{
}

BandwidthProbe::~BandwidthProbe() = default;

void BandwidthProbe::run()
{
    const int count = m_servers.size();
    qint64 best = initialBest;
    QString bestLabel;
    bool found = false;
    for (int index = 0; index < count; ++index) {
        if (m_stopped)
            return;
        const LabelPair& server = m_servers.at(index);
        const QString host = IngestAddress::host(server.second);
        QElapsedTimer timer;
        timer.start();
        QTcpSocket socket;
        socket.connectToHost(host, port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
        if (socket.waitForConnected(connectTimeout)) {
            const qint64 elapsed = timer.elapsed();
            if (isBetter(elapsed, best)) {
                best = elapsed;
                bestLabel = server.first;
                found = true;
            }
            emit measured(QStringLiteral("%1 %2 ms").arg(server.first).arg(elapsed), progress(index + 1, count));
        } else {
            qCDebug(lcBandwidth) << server.first << host << socket.errorString();
        }
        socket.disconnectFromHost();
        socket.close();
    }
    if (found && !m_stopped)
        emit bestServerFound(bestLabel);
}

void BandwidthProbe::stop()
{
    m_stopped = true;
}

bool BandwidthProbe::isStopped() const
{
    return m_stopped;
}

int BandwidthProbe::progress(int position, int count)
{
    if (count <= 0)
        return 0;
    const long percent = std::lround(position * 100.0 / count);
    return static_cast<int>(qBound(0L, percent, 100L));
}

bool BandwidthProbe::isBetter(qint64 elapsed, qint64 best)
{
    return elapsed < best;
}
