#pragma once

#include "engine/enginebackend.h"
#include "engine/ffmpegcapabilities.h"
#include "engine/retrypolicy.h"

#include <QHash>
#include <QList>

#include <functional>

class FfmpegOutput;
class GuardedProcess;
struct FfmpegJob;

// The engine on Debian's FFmpeg: one `ffmpeg` process per output, fed the test programme.
// A crash or a hang of an encoder stays in its process; the host reads the progress FFmpeg
// prints each second and ends each process with SIGTERM, which closes its files properly.
class HOST_EXPORT FfmpegBackend : public EngineBackend
{
    Q_OBJECT
public:
    // The full path of a recording's file for a preset; by default its folder and name.
    using FileNamer = std::function<QString(const CodecPreset&)>;

    explicit FfmpegBackend(const FfmpegCapabilities& capabilities, QObject* parent = nullptr);
    ~FfmpegBackend() override;

    void setFileNamer(FileNamer namer) { m_namer = std::move(namer); }
    void setRetryPolicy(const RetryPolicy& policy) { m_policy = policy; }
    RetryPolicy retryPolicy() const { return m_policy; }
    const FfmpegCapabilities& capabilities() const { return m_caps; }
    // Process ids of the encoders alive now, those still closing their files included.
    QList<qint64> processIds() const;

    bool start(const QString& key, const CodecPreset& preset, const ProjectPreset& project,
               QString* refusal) override;
    void stop(const QString& key) override;
    void stopAll() override;
    QList<EngineOutput> outputs() const override;
    bool grab(int source, const QString& path, const ProjectPreset& project, QString* refusal) override;

private:
    bool answers();
    bool prepareRecording(const CodecPreset& preset, const ProjectPreset& project, FfmpegJob* job,
                          QString* refusal) const;
    bool tryOnce(const FfmpegJob& job, const CodecPreset& preset, QString* refusal);
    FfmpegOutput* launch(const QString& key, const CodecPreset& preset, EngineOutput::Kind kind,
                         const FfmpegJob& job);
    void retire(FfmpegOutput* output);

    FfmpegCapabilities m_caps;
    RetryPolicy m_policy;
    FileNamer m_namer;
    QList<FfmpegOutput*> m_outputs;  // as the operator started them
    QList<FfmpegOutput*> m_closing;  // stopped, still closing their files
    QList<GuardedProcess*> m_grabs;
    QHash<QString, QString> m_trials; // arguments to refusal ("" when they worked)
};
