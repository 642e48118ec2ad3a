#pragma once

#include "engine/engineoutput.h"
#include "engine/ffmpegcommand.h"
#include "engine/retrypolicy.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class GuardedProcess;

// One output of the engine: its FFmpeg process, its progress as the console shows it, and,
// for a stream, the tries after a failure.
class FfmpegOutput : public QObject
{
    Q_OBJECT
public:
    FfmpegOutput(const QString& program, const FfmpegJob& job, const EngineOutput& identity,
                 const RetryPolicy& policy, QObject* parent = nullptr);
    ~FfmpegOutput() override;

    void start();
    // Asks FFmpeg to end its files (SIGTERM); kills it when it has not ended after a while.
    void stop();
    void kill();
    bool isFinished() const;
    bool waitForFinished(int msecs);
    EngineOutput status() const;
    qint64 processId() const;
    const FfmpegJob& job() const { return m_job; }

signals:
    void changed();
    void finished();
    void message(const QString& text, bool warning);

private:
    void launch();
    void readProgress();
    void readErrors();
    void processEnded(int exitCode, bool crashed);
    void commitProgress();
    void renameFirstSplit();
    QString label() const;

    QString m_program;
    FfmpegJob m_job;
    EngineOutput m_status;
    RetryPolicy m_policy;
    GuardedProcess* m_process = nullptr;
    QTimer m_retryTimer;
    QTimer m_killTimer;
    QElapsedTimer m_since;   // since the operator started the output
    QElapsedTimer m_runSince; // since the current process started
    QElapsedTimer m_lastProgress;
    QByteArray m_stdout;
    QByteArray m_stderr;
    QHash<QByteArray, QByteArray> m_progress;
    qint64 m_lastSize = -1;
    bool m_stopping = false;
    bool m_wasRunning = false;
    bool m_renamed = false;
};
