#pragma once

#include "capture/deviceoutputs.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QStringList>

#include <map>
#include <memory>

class ActivityLog;
class ToneOutput;
struct OutputInfo;

// What the console does when asked to start or stop an output: displays open a window with
// the programme, audio outputs play its tone, SDI, NDI and the virtual camera go to the
// capture stand-in. Playout rows come through playout(); the external outputs of an accepted
// dialog through applyExternal(). Every start, stop and refusal is written to the log.
class PlayoutHost : public QObject
{
    Q_OBJECT
public:
    explicit PlayoutHost(ActivityLog* log, QObject* parent = nullptr);
    ~PlayoutHost() override;

    // The host's answer to OutputInterface::playout: true when the output started or stopped.
    bool playout(OutputInfo* output, bool on);
    // The outputs of an accepted external output dialog replace the ones running.
    void applyExternal(const QList<OutputInfo>& outputs);
    // "SDI 1 - SDI 4K Port 1 1080p59.94 PROGRAM", one per running output, by key.
    QStringList runningLines() const { return m_lines.values(); }
    const DeviceOutputs& devices() const { return m_devices; }

    // The host's key of a playout output: its kind and number ("DISPLAY 2").
    static QString playoutKey(const OutputInfo& output);

signals:
    void changed();

private:
    bool start(const QString& key, const OutputInfo& output);
    bool startTone(const QString& key, const QString& device, const QString& format, int source, QString* message);
    void stop(const QString& key);

    ActivityLog* m_log;
    DeviceOutputs m_devices;
    std::map<QString, std::unique_ptr<ToneOutput>> m_tones;
    QMap<QString, QString> m_lines;
};
