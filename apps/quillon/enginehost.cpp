#include "quillon/enginehost.h"

#include "engine/ffmpegbackend.h"
#include "engine/quillonengine.h"
#include "quillon/activitylog.h"
#include "records/codecpreset.h"
#include "stores/filetag.h"

#include <QDir>

EngineHost::EngineHost(ActivityLog* log, QObject* parent)
    : QObject(parent), m_log(log), m_backend(new FfmpegBackend(FfmpegCapabilities::probe(), this))
{
    m_backend->setFileNamer(&EngineHost::filePath);
    QuillonEngine::setBackend(m_backend);
    connect(&QuillonEngine::instance(), &QuillonEngine::engineMessage, this, [this](const QString& text, bool warning) {
        if (warning)
            m_log->warning(text);
        else
            m_log->info(text);
    });
    if (m_backend->capabilities().isAvailable())
        m_log->info(tr("Engine: FFmpeg at %1.").arg(QDir::toNativeSeparators(m_backend->capabilities().program())));
    else if (m_backend->capabilities().isInstalled())
        m_log->warning(tr("Engine: FFmpeg at %1 did not answer; it is asked again when an output starts.")
                           .arg(QDir::toNativeSeparators(m_backend->capabilities().installedAt())));
    else
        m_log->warning(tr("Engine: FFmpeg is not installed; outputs cannot start."));
}

EngineHost::~EngineHost()
{
    QuillonEngine::stopAll();
    QuillonEngine::setBackend(nullptr);
}

QString EngineHost::filePath(const CodecPreset& preset)
{
    const QString folder = preset.local().path.isEmpty() ? FileTag::defaultFolder() : preset.local().path;
    return QDir(folder).filePath(FileTag::fromCodecPreset(&preset, true));
}
