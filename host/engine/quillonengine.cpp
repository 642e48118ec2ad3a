#include "engine/quillonengine.h"

#include <QLoggingCategory>

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
    if (on)
        engine.m_running.append(*preset);
    qCInfo(lcEngine) << (on ? "start" : "stop") << preset->name() << preset->videoCodec().codec
                     << preset->videoCodec().frameRate;
    emit engine.encodingRequested(*preset, on);
    return true;
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
