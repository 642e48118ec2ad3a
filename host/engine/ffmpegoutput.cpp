#include "engine/ffmpegoutput.h"

#include "engine/ffmpegstreamtarget.h"
#include "engine/guardedprocess.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcEngine)

namespace {

// Long enough for a ProRes file's index on a slow disk; FFmpeg is killed after it.
const int stopGraceMs = 8000;

} // namespace

FfmpegOutput::FfmpegOutput(const QString& program, const FfmpegJob& job, const EngineOutput& identity,
                           const RetryPolicy& policy, QObject* parent)
    : QObject(parent), m_program(program), m_job(job), m_status(identity), m_policy(policy)
{
    m_status.target = job.target;
    m_status.maxAttempts = job.network ? policy.maxAttempts : 0;
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &FfmpegOutput::launch);
    m_killTimer.setSingleShot(true);
    connect(&m_killTimer, &QTimer::timeout, this, &FfmpegOutput::kill);
}

FfmpegOutput::~FfmpegOutput()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->disconnect(this);
        m_process->kill();
        m_process->waitForFinished(2000);
    }
}

void FfmpegOutput::start()
{
    m_since.start();
    launch();
}

QString FfmpegOutput::label() const
{
    switch (m_status.kind) {
    case EngineOutput::Kind::Streaming:
        return tr("Stream \"%1\"").arg(m_status.name);
    case EngineOutput::Kind::StreamSave:
        return tr("Stream file \"%1\"").arg(m_status.name);
    case EngineOutput::Kind::Recording:
        break;
    }
    return tr("Recording \"%1\"").arg(m_status.name);
}

void FfmpegOutput::launch()
{
    m_stdout.clear();
    m_stderr.clear();
    m_progress.clear();
    m_lastSize = -1;
    m_status.state = m_status.attempt > 0 ? EngineOutput::State::Retrying : EngineOutput::State::Starting;
    m_status.retryInMs = 0;
    m_status.fps = 0;
    m_status.bitRateKbps = 0;
    if (m_process)
        m_process->deleteLater();
    m_process = new GuardedProcess(this);
    m_process->setStandardInputFile(QProcess::nullDevice());
    connect(m_process, &QProcess::readyReadStandardOutput, this, &FfmpegOutput::readProgress);
    connect(m_process, &QProcess::readyReadStandardError, this, &FfmpegOutput::readErrors);
    connect(m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) { processEnded(code, status == QProcess::CrashExit); });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            processEnded(-1, true);
    });
    m_runSince.start();
    m_process->start(m_program, m_job.arguments);
    emit changed();
}

void FfmpegOutput::readProgress()
{
    m_stdout += m_process->readAllStandardOutput();
    int end;
    while ((end = m_stdout.indexOf('\n')) >= 0) {
        const QByteArray line = m_stdout.left(end).trimmed();
        m_stdout.remove(0, end + 1);
        const int eq = line.indexOf('=');
        if (eq <= 0)
            continue;
        const QByteArray key = line.left(eq);
        m_progress.insert(key, line.mid(eq + 1).trimmed());
        if (key == "progress")
            commitProgress();
    }
}

void FfmpegOutput::commitProgress()
{
    const qint64 size = m_progress.value("total_size").toLongLong();
    const qint64 frames = m_progress.value("frame").toLongLong();
    const qint64 outTime = m_progress.value("out_time_us").toLongLong();
    m_status.fps = m_progress.value("fps").toDouble();
    m_status.droppedFrames = m_progress.value("drop_frames").toLongLong();
    // The rate of the last second; FFmpeg's own figure is the average since the start.
    if (m_lastSize >= 0 && m_lastProgress.isValid() && m_lastProgress.elapsed() > 0 && size >= m_lastSize)
        m_status.bitRateKbps = double(size - m_lastSize) * 8.0 / double(m_lastProgress.elapsed());
    else
        m_status.bitRateKbps = QByteArray(m_progress.value("bitrate")).replace("kbits/s", "").toDouble();
    m_lastSize = size;
    m_lastProgress.start();
    if ((frames > 0 || outTime > 0 || size > 0) && m_status.state != EngineOutput::State::Running && !m_stopping) {
        const bool again = m_wasRunning || m_status.attempt > 0;
        m_status.state = EngineOutput::State::Running;
        m_status.reason.clear();
        m_wasRunning = true;
        emit message(again ? tr("%1 is running again: %2").arg(label(), m_status.target)
                           : tr("%1 is running: %2").arg(label(), m_status.target),
                     false);
    }
    if (m_status.state == EngineOutput::State::Running && m_runSince.elapsed() >= m_policy.recoveredAfterMs)
        m_status.attempt = 0;
    renameFirstSplit();
    emit changed();
}

void FfmpegOutput::readErrors()
{
    m_stderr += m_process->readAllStandardError();
    // A long run keeps its first lines (a failed start explains itself there) and its last.
    if (m_stderr.size() > 16384)
        m_stderr = m_stderr.left(2048) + '\n' + m_stderr.right(4096);
}

void FfmpegOutput::renameFirstSplit()
{
    if (m_renamed || m_job.splitFirst.isEmpty() || !QFile::exists(m_job.splitFirst) || QFile::exists(m_job.file))
        return;
    m_renamed = QFile::rename(m_job.splitFirst, m_job.file);
}

void FfmpegOutput::processEnded(int exitCode, bool crashed)
{
    m_killTimer.stop();
    if (m_process)
        readErrors();
    renameFirstSplit();
    if (m_stopping) {
        m_status.state = EngineOutput::State::Stopped;
        emit message(tr("%1 stopped: %2").arg(label(), m_status.target), false);
        emit changed();
        emit finished();
        return;
    }
    QString reason = FfmpegCommand::errorReason(m_stderr);
    if (reason.isEmpty())
        reason = crashed ? (exitCode == -1 ? tr("The encoder %1 could not be started.").arg(m_program)
                                           : tr("The encoder stopped unexpectedly."))
                         : tr("The encoder ended with code %1.").arg(exitCode);
    else if (exitCode == 0 && !crashed)
        reason = tr("The encoder ended by itself: %1").arg(reason);
    m_status.reason = FfmpegStreamTarget::mask(reason, m_job.secrets);
    m_status.fps = 0;
    m_status.bitRateKbps = 0;
    qCWarning(lcEngine) << label() << "ended:" << m_status.reason;

    if (m_job.network) {
        if (m_wasRunning && m_runSince.elapsed() >= m_policy.recoveredAfterMs)
            m_status.attempt = 0;
        if (m_status.attempt < m_policy.maxAttempts) {
            ++m_status.attempt;
            const int delay = m_policy.delayFor(m_status.attempt);
            m_status.state = EngineOutput::State::Retrying;
            m_status.retryInMs = delay;
            emit message(tr("%1 failed: %2 Try %3 of %4 in %5 s.")
                             .arg(label(), m_status.reason)
                             .arg(m_status.attempt)
                             .arg(m_policy.maxAttempts)
                             .arg(delay / 1000.0, 0, 'g', 3),
                         true);
            m_retryTimer.start(delay);
            emit changed();
            return;
        }
        m_status.state = EngineOutput::State::Failed;
        emit message(tr("%1 failed: %2 Gave up after %3 tries.").arg(label(), m_status.reason).arg(m_policy.maxAttempts),
                     true);
    } else {
        m_status.state = EngineOutput::State::Failed;
        const QString file = !m_job.splitFirst.isEmpty() && !QFile::exists(m_job.file) ? m_job.splitFirst : m_job.file;
        emit message(QFile::exists(file)
                         ? tr("%1 failed: %2 The file so far is kept: %3").arg(label(), m_status.reason, QDir::toNativeSeparators(file))
                         : tr("%1 failed: %2").arg(label(), m_status.reason),
                     true);
    }
    emit changed();
}

void FfmpegOutput::stop()
{
    if (m_stopping)
        return;
    m_stopping = true;
    m_retryTimer.stop();
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->terminate();
        m_killTimer.start(stopGraceMs);
        return;
    }
    m_status.state = EngineOutput::State::Stopped;
    emit changed();
    emit finished();
}

void FfmpegOutput::kill()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        qCWarning(lcEngine) << label() << "did not end in time; killed";
        m_process->kill();
    }
}

bool FfmpegOutput::isFinished() const
{
    return !m_process || m_process->state() == QProcess::NotRunning;
}

bool FfmpegOutput::waitForFinished(int msecs)
{
    if (isFinished())
        return true;
    return m_process->waitForFinished(msecs);
}

EngineOutput FfmpegOutput::status() const
{
    EngineOutput s = m_status;
    s.elapsedMs = m_since.isValid() ? m_since.elapsed() : 0;
    if (s.state == EngineOutput::State::Retrying && m_retryTimer.isActive())
        s.retryInMs = m_retryTimer.remainingTime();
    return s;
}

qint64 FfmpegOutput::processId() const
{
    return m_process && m_process->state() != QProcess::NotRunning ? m_process->processId() : 0;
}
