#include "engine/ffmpegbackend.h"

#include "engine/ffmpegcommand.h"
#include "engine/ffmpegoutput.h"
#include "engine/guardedprocess.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace {

// The quit of the host waits this long for every file to be closed.
const int stopAllMs = 10000;

QString defaultFile(const CodecPreset& preset)
{
    const QString folder = preset.local().path.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)
        : preset.local().path;
    const QString name = preset.name().isEmpty() ? QStringLiteral("Untitled") : preset.name();
    return QDir(folder).filePath(name + QLatin1Char('.') + preset.container().name.toLower());
}

// The same name again gets " 2", " 3", ... as the grab's images do; a split recording's
// numbered files must be free too.
QString freeFile(const QString& file)
{
    const auto taken = [](const QString& f) {
        return QFileInfo::exists(f) || QFileInfo::exists(FfmpegCommand::splitFileName(f, 1));
    };
    if (!taken(file))
        return file;
    for (int n = 2; n < 1000; ++n) {
        const QString candidate = FfmpegCommand::splitFileName(file, n);
        if (!taken(candidate))
            return candidate;
    }
    return file;
}

} // namespace

FfmpegBackend::FfmpegBackend(const FfmpegCapabilities& capabilities, QObject* parent)
    : EngineBackend(parent), m_caps(capabilities)
{
}

FfmpegBackend::~FfmpegBackend()
{
    stopAll();
}

bool FfmpegBackend::prepareRecording(const CodecPreset& preset, const ProjectPreset& project, FfmpegJob* job,
                                     QString* refusal) const
{
    if (preset.container().name.isEmpty()) {
        *refusal = tr("\"%1\" has no file format to record into.").arg(preset.name());
        return false;
    }
    QString file = m_namer ? m_namer(preset) : defaultFile(preset);
    const QString folder = QFileInfo(file).absolutePath();
    // Written by a probe file, not judged by permission bits: they say nothing for root,
    // a read-only mount or a full quota.
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".quillon-XXXXXX")));
    if (!QDir().mkpath(folder) || !probe.open()) {
        *refusal = tr("The folder %1 cannot be written; choose another location for \"%2\".")
                       .arg(QDir::toNativeSeparators(folder), preset.name());
        return false;
    }
    return FfmpegCommand::recording(preset, project, m_caps, freeFile(file), job, refusal);
}

bool FfmpegBackend::tryOnce(const FfmpegJob& job, const CodecPreset& preset, QString* refusal)
{
    if (job.trialArguments.isEmpty())
        return true;
    const QString cacheKey = job.trialArguments.join(QChar(0));
    QString error = m_trials.value(cacheKey);
    if (!m_trials.contains(cacheKey)) {
        GuardedProcess process;
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(m_caps.program(), job.trialArguments);
        const bool finished = process.waitForFinished(m_caps.answerTimeout());
        if (!finished) {
            process.kill();
            process.waitForFinished(2000);
            error = tr("the encoder did not answer");
        } else if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
            error = FfmpegCommand::errorReason(process.readAllStandardError());
            if (error.isEmpty())
                error = tr("the encoder refused them");
        }
        QFile::remove(job.trialArguments.last());
        // Only the encoder's verdict is kept: a trial cut short by load says nothing for the next start.
        if (finished && process.exitStatus() == QProcess::NormalExit)
            m_trials.insert(cacheKey, error);
    }
    if (error.isEmpty())
        return true;
    *refusal = tr("%1 cannot encode the settings of \"%2\" here: %3").arg(preset.videoCodec().codec, preset.name(), error);
    return false;
}

bool FfmpegBackend::answers()
{
    // A probe that timed out at start-up says nothing about now; ask again.
    if (!m_caps.isAvailable() && m_caps.isInstalled())
        m_caps = FfmpegCapabilities::probe(m_caps.installedAt(), m_caps.answerTimeout());
    return m_caps.isAvailable();
}

bool FfmpegBackend::start(const QString& key, const CodecPreset& preset, const ProjectPreset& project, QString* refusal)
{
    if (!answers()) {
        *refusal = m_caps.isInstalled()
            ? tr("\"%1\" cannot start: FFmpeg at %2 does not answer.")
                  .arg(preset.name(), QDir::toNativeSeparators(m_caps.installedAt()))
            : tr("\"%1\" cannot start: FFmpeg is not installed.").arg(preset.name());
        return false;
    }
    stop(key);
    FfmpegJob streamJob;
    FfmpegJob fileJob;
    const bool streaming = preset.streaming().enabled;
    const bool saving = !streaming || preset.local().enabled;
    if (streaming && !FfmpegCommand::stream(preset, project, m_caps, &streamJob, refusal))
        return false;
    if (saving && !prepareRecording(preset, project, &fileJob, refusal))
        return false;
    if ((streaming && !tryOnce(streamJob, preset, refusal)) || (saving && !tryOnce(fileJob, preset, refusal)))
        return false;
    if (streaming)
        launch(key, preset, EngineOutput::Kind::Streaming, streamJob);
    if (saving)
        launch(streaming ? key + QStringLiteral("#save") : key, preset,
               streaming ? EngineOutput::Kind::StreamSave : EngineOutput::Kind::Recording, fileJob);
    emit outputsChanged();
    return true;
}

FfmpegOutput* FfmpegBackend::launch(const QString& key, const CodecPreset& preset, EngineOutput::Kind kind,
                                    const FfmpegJob& job)
{
    EngineOutput identity;
    identity.key = key;
    identity.name = preset.name();
    identity.kind = kind;
    auto* output = new FfmpegOutput(m_caps.program(), job, identity, m_policy, this);
    connect(output, &FfmpegOutput::changed, this, &EngineBackend::outputsChanged);
    connect(output, &FfmpegOutput::message, this, &EngineBackend::message);
    connect(output, &FfmpegOutput::finished, this, [this, output] { retire(output); });
    m_outputs.append(output);
    output->start();
    return output;
}

void FfmpegBackend::retire(FfmpegOutput* output)
{
    if (m_closing.removeOne(output) || m_outputs.removeOne(output))
        output->deleteLater();
    emit outputsChanged();
}

void FfmpegBackend::stop(const QString& key)
{
    const QString save = key + QStringLiteral("#save");
    for (FfmpegOutput* output : QList<FfmpegOutput*>(m_outputs)) {
        const QString k = output->status().key;
        if (k != key && k != save)
            continue;
        m_outputs.removeOne(output);
        m_closing.append(output);
        output->stop();
    }
}

void FfmpegBackend::stopAll()
{
    for (FfmpegOutput* output : QList<FfmpegOutput*>(m_outputs)) {
        m_outputs.removeOne(output);
        m_closing.append(output);
        output->stop();
    }
    QElapsedTimer clock;
    clock.start();
    for (FfmpegOutput* output : QList<FfmpegOutput*>(m_closing)) {
        if (!output->waitForFinished(int(qMax<qint64>(1, stopAllMs - clock.elapsed())))) {
            output->kill();
            output->waitForFinished(2000);
        }
    }
    for (GuardedProcess* process : QList<GuardedProcess*>(m_grabs))
        if (!process->waitForFinished(int(qMax<qint64>(1, stopAllMs - clock.elapsed()))))
            process->kill();
    qDeleteAll(m_closing);
    m_closing.clear();
    qDeleteAll(m_grabs);
    m_grabs.clear();
}

QList<EngineOutput> FfmpegBackend::outputs() const
{
    QList<EngineOutput> list;
    for (const FfmpegOutput* output : m_outputs)
        list.append(output->status());
    return list;
}

QList<qint64> FfmpegBackend::processIds() const
{
    QList<qint64> ids;
    for (const QList<FfmpegOutput*>* group : {&m_outputs, &m_closing})
        for (const FfmpegOutput* output : *group)
            if (output->processId() > 0)
                ids.append(output->processId());
    for (const GuardedProcess* process : m_grabs)
        if (process->state() != QProcess::NotRunning)
            ids.append(process->processId());
    return ids;
}

bool FfmpegBackend::grab(int source, const QString& path, const ProjectPreset& project, QString* refusal)
{
    if (!answers()) {
        *refusal = m_caps.isInstalled()
            ? tr("The still cannot be grabbed: FFmpeg at %1 does not answer.")
                  .arg(QDir::toNativeSeparators(m_caps.installedAt()))
            : tr("The still cannot be grabbed: FFmpeg is not installed.");
        return false;
    }
    QStringList arguments;
    if (!FfmpegCommand::grab(source, project, path, &arguments, refusal))
        return false;
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        *refusal = tr("The folder %1 cannot be written.").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    auto* process = new GuardedProcess(this);
    process->setStandardInputFile(QProcess::nullDevice());
    m_grabs.append(process);
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this, process, path](int code, QProcess::ExitStatus status) {
                QString error;
                if (status != QProcess::NormalExit || code != 0 || !QFileInfo::exists(path)) {
                    error = FfmpegCommand::errorReason(process->readAllStandardError());
                    if (error.isEmpty())
                        error = tr("The still could not be written to %1.").arg(QDir::toNativeSeparators(path));
                    emit message(error, true);
                }
                m_grabs.removeOne(process);
                process->deleteLater();
                emit grabFinished(path, error);
            });
    process->start(m_caps.program(), arguments);
    return true;
}
