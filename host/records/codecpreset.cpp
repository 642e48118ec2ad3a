#include "records/codecpreset.h"

#include <tuple>

namespace {

auto fields(const CodecModel::VideoCodec& v)
{
    return std::tie(v.enabled, v.codec, v.bitRate, v.frameRate, v.field, v.width, v.height, v.quality,
                    v.keyFrame, v.profile, v.bframes, v.preset, v.tune);
}
auto fields(const CodecModel::AudioCodec& a)
{
    return std::tie(a.enabled, a.codec, a.sampleRate, a.bitRate, a.bitPerSamples, a.channels);
}
auto fields(const CodecModel::Streaming& s)
{
    return std::tie(s.enabled, s.url, s.key, s.provider, s.serverName, s.pageName, s.channelName,
                    s.authorized, s.username, s.password, s.mode, s.filter, s.port, s.latency,
                    s.keyLength, s.passphrase, s.streamId);
}
auto fields(const CodecModel::Local& l)
{
    return std::tie(l.enabled, l.path, l.fileTag, l.splitTime, l.mediaToBin);
}

// Registered under the name the item data of the lists carries.
const int codecPresetTypeId = qRegisterMetaType<CodecPreset>("CodecPreset");

} // namespace

CodecPreset::~CodecPreset() = default;

bool CodecPreset::operator==(const CodecPreset& other) const
{
    Q_UNUSED(codecPresetTypeId)
    return fields(m_videoCodec) == fields(other.m_videoCodec)
        && fields(m_audioCodec) == fields(other.m_audioCodec)
        && fields(m_streaming) == fields(other.m_streaming)
        && fields(m_local) == fields(other.m_local)
        && m_container.name == other.m_container.name && m_container.id == other.m_container.id
        && m_videoSource == other.m_videoSource && m_audioSource == other.m_audioSource
        && m_name == other.m_name && m_id == other.m_id && m_sourceName == other.m_sourceName;
}
