#pragma once

#include <QObject>

class ActivityLog;
class CodecPreset;
class FfmpegBackend;

// Runs the console's outputs on FFmpeg: installs the backend into the engine, names the
// files exactly as the console's log names them, and writes the engine's messages to the
// log. Its end stops every output and waits until their files are closed.
class EngineHost : public QObject
{
    Q_OBJECT

public:
    explicit EngineHost(ActivityLog* log, QObject* parent = nullptr);
    ~EngineHost() override;

    FfmpegBackend* backend() const { return m_backend; }
    // Where a preset's recording goes: its folder (the movies folder when it has none) and
    // its file tag expanded with extension.
    static QString filePath(const CodecPreset& preset);

private:
    ActivityLog* m_log;
    FfmpegBackend* m_backend;
};
