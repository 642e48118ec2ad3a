#pragma once

#include "provider/account.h"

#include <QList>
#include <QObject>
#include <QString>

#include <atomic>

// One run of the best-server test. It lives apart from the widget so that a
// widget closed mid-run leaves the worker something valid to report to.
class BandwidthProbe : public QObject
{
    Q_OBJECT
public:
    static constexpr quint16 port = 1935;     // every server is tried here, whatever its URL says
    static constexpr int connectTimeout = 2000;
    static constexpr int initialBest = 10000;

    explicit BandwidthProbe(const QList<LabelPair>& servers);
    ~BandwidthProbe() override;

    // Blocking: measures each server in turn. Runs on a pool thread.
    void run();
    // Ends the run before the next server.
    void stop();
    bool isStopped() const;

    // Percentage after `position` of `count` servers, rounded and clamped.
    static int progress(int position, int count);
    // Only a strictly faster server replaces the best so far.
    static bool isBetter(qint64 elapsed, qint64 best);

signals:
    void measured(const QString& text, int progress);
    void bestServerFound(const QString& label);

private:
    const QList<LabelPair> m_servers;
    std::atomic<bool> m_stopped{false};
};
