#include "quillon/isorecorder.h"

#include "capture/capturemanager.h"
#include "engine/quillonengine.h"
#include "engine/testpicture.h"
#include "quillon/activitylog.h"

#include <QDir>
#include <QFileInfo>

IsoRecorder::IsoRecorder(ActivityLog* log, const ProjectPreset& project, QObject* parent)
    : QObject(parent), m_log(log), m_cameras(CaptureManager::instance().videoDevices(), project)
{
}

// Leaving the host ends the recordings with the rest of the engine's outputs.
IsoRecorder::~IsoRecorder() = default;

int IsoRecorder::start(const CodecPreset& codec, const QList<QPair<QString, Media*>>& sources)
{
    if (isRunning()) {
        m_log->info(tr("ISO recording runs already; the new settings apply when it is stopped and started again."));
        return 0;
    }
    if (sources.isEmpty()) {
        m_log->info(tr("ISO recording: no source is selected; nothing started."));
        return 0;
    }
    const ProjectPreset::VideoOutput video = QuillonEngine::projectPreset().videoOutput();
    for (const QPair<QString, Media*>& source : sources) {
        const int index = m_cameras.indexOf(source.second);
        if (index < 0) {
            m_log->warning(tr("ISO recording: \"%1\" is not a camera of this switcher; skipped.").arg(source.first));
            continue;
        }
        // The camera's own picture and format; the file name says which camera it is.
        CodecPreset preset = codec;
        preset.setName(source.first);
        preset.setSourceName(source.first);
        preset.setId(QStringLiteral("iso:%1").arg(index + 1));
        preset.videoSource() = {{TestPicture::Camera, index}};
        preset.videoCodec().width = video.width;
        preset.videoCodec().height = video.height;
        preset.local().enabled = true;
        preset.streaming().enabled = false;
        if (!QuillonEngine::encoding(&preset, true)) {
            m_log->warning(tr("ISO recording of \"%1\" did not start.").arg(source.first));
            continue;
        }
        QString file;
        for (const EngineOutput& output : QuillonEngine::outputs())
            if (output.key == preset.id())
                file = QFileInfo(output.target).fileName();
        m_log->info(file.isEmpty() ? tr("Start ISO recording \"%1\"").arg(source.first)
                                   : tr("Start ISO recording \"%1\" -> %2").arg(source.first, file));
        m_running.append(preset);
    }
    if (!m_running.isEmpty())
        emit runningChanged(true);
    return m_running.size();
}

void IsoRecorder::stop()
{
    if (m_running.isEmpty())
        return;
    for (CodecPreset& preset : m_running)
        QuillonEngine::encoding(&preset, false);
    m_log->info(tr("Stop ISO recording: %n file(s).", nullptr, m_running.size()));
    m_running.clear();
    emit runningChanged(false);
}
