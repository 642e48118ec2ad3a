#include "engine/quillonengine.h"

#include "engine/enginebackend.h"
#include "engine/testpicture.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTimer>

Q_LOGGING_CATEGORY(lcEngine, "quillon.engine")

namespace {
QString encoderKey(const CodecPreset& preset)
{
    return preset.id().isEmpty() ? preset.name() : preset.id();
}
} // namespace

QuillonEngine& QuillonEngine::instance()
{
    static QuillonEngine engine;
    return engine;
}

ProjectPreset QuillonEngine::projectPreset()
{
    return instance().m_projectPreset;
}

void QuillonEngine::setProjectPreset(const ProjectPreset& preset)
{
    instance().m_projectPreset = preset;
}

QStringList QuillonEngine::audioDevices()
{
    return instance().m_audioDevices;
}

void QuillonEngine::setAudioDevices(const QStringList& devices)
{
    instance().m_audioDevices = devices;
}

bool QuillonEngine::encoding(CodecPreset* preset, bool on)
{
    if (!preset)
        return false;
    QuillonEngine& engine = instance();
    engine.m_calls.append(EncodingCall{*preset, on});
    const QString key = encoderKey(*preset);
    for (int i = engine.m_running.size() - 1; i >= 0; --i)
        if (encoderKey(engine.m_running.at(i)) == key)
            engine.m_running.removeAt(i);
    bool accepted = true;
    if (engine.m_backend) {
        if (on) {
            QString refusal;
            accepted = engine.m_backend->start(key, *preset, engine.m_projectPreset, &refusal);
            if (!accepted)
                emit engine.engineMessage(refusal, true);
        } else {
            engine.m_backend->stop(key);
        }
    }
    if (on && accepted)
        engine.m_running.append(*preset);
    qCInfo(lcEngine) << (on ? "start" : "stop") << preset->name() << preset->videoCodec().codec
                     << preset->videoCodec().frameRate << (accepted ? "" : "refused");
    emit engine.encodingRequested(*preset, on);
    return accepted;
}

QList<QuillonEngine::EncodingCall> QuillonEngine::encodingCalls()
{
    return instance().m_calls;
}

void QuillonEngine::clearEncodingCalls()
{
    instance().m_calls.clear();
    instance().m_running.clear();
}

QList<CodecPreset> QuillonEngine::runningEncoders()
{
    return instance().m_running;
}

void QuillonEngine::setBackend(EngineBackend* backend)
{
    QuillonEngine& engine = instance();
    if (engine.m_backend)
        engine.m_backend->disconnect(&engine);
    engine.m_backend = backend;
    if (!backend)
        return;
    connect(backend, &EngineBackend::outputsChanged, &engine, &QuillonEngine::outputsChanged);
    connect(backend, &EngineBackend::message, &engine, &QuillonEngine::engineMessage);
    connect(backend, &EngineBackend::grabFinished, &engine, &QuillonEngine::grabFinished);
}

EngineBackend* QuillonEngine::backend()
{
    return instance().m_backend;
}

QList<EngineOutput> QuillonEngine::outputs()
{
    QuillonEngine& engine = instance();
    if (engine.m_backend)
        return engine.m_backend->outputs();
    QList<EngineOutput> list;
    for (const CodecPreset& preset : engine.m_running) {
        EngineOutput output;
        output.key = encoderKey(preset);
        output.name = preset.name();
        output.kind = preset.streaming().enabled ? EngineOutput::Kind::Streaming : EngineOutput::Kind::Recording;
        output.state = EngineOutput::State::Running;
        list.append(output);
    }
    return list;
}

bool QuillonEngine::grab(int source, const QString& path)
{
    QuillonEngine& engine = instance();
    if (!engine.m_backend)
        return engine.standInGrab(source, path);
    QString refusal;
    if (engine.m_backend->grab(source, path, engine.m_projectPreset, &refusal))
        return true;
    emit engine.engineMessage(refusal, true);
    return false;
}

void QuillonEngine::stopAll()
{
    QuillonEngine& engine = instance();
    if (engine.m_backend)
        engine.m_backend->stopAll();
    engine.m_running.clear();
}

// Without a backend the still is the same test picture, drawn here.
bool QuillonEngine::standInGrab(int source, const QString& path)
{
    const QFileInfo info(path);
    QString error;
    if (!QDir().mkpath(info.absolutePath()) || !TestPicture::still(m_projectPreset, source).save(path))
        error = tr("The still could not be written to %1.").arg(QDir::toNativeSeparators(path));
    if (!error.isEmpty()) {
        emit engineMessage(error, true);
        return false;
    }
    QTimer::singleShot(0, this, [this, path] { emit grabFinished(path, QString()); });
    return true;
}
