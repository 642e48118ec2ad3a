#include "recording/isocorderjson.h"

#include "codec/codectables.h"
#include "records/licensemodel.h"

QJsonObject IsoCorderJson::codecToJson(const CodecPreset& preset)
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    const CodecModel::AudioCodec& a = preset.audioCodec();
    const QMap<int, int>& audioSource = preset.audioSource();
    return QJsonObject{
        {QStringLiteral("VideoCodec"), v.codec},
        {QStringLiteral("VideoKeyFrame"), v.keyFrame},
        {QStringLiteral("VideoBitRate"), v.bitRate},
        {QStringLiteral("VideoQuality"), v.quality},
        {QStringLiteral("VideoPreset"), v.preset},
        {QStringLiteral("VideoTune"), v.tune},
        {QStringLiteral("VideoProfile"), v.profile},
        {QStringLiteral("VideoBframes"), v.bframes},
        {QStringLiteral("AudioCodec"), a.codec},
        {QStringLiteral("AudioChannels"), a.channels},
        {QStringLiteral("AudioSampleRate"), a.sampleRate},
        {QStringLiteral("AudioBitRate"), a.bitRate},
        {QStringLiteral("AudioBitPerSamples"), a.bitPerSamples},
        {QStringLiteral("AudioSourceType"), audioSource.isEmpty() ? 0 : audioSource.firstKey()},
        {QStringLiteral("AudioSourceIndex"), audioSource.isEmpty() ? 0 : audioSource.first()},
        {QStringLiteral("ContainerName"), preset.container().name},
        {QStringLiteral("Path"), preset.local().path},
        {QStringLiteral("FileTag"), preset.local().fileTag},
        {QStringLiteral("SplitTime"), preset.local().splitTime},
    };
}

CodecPreset IsoCorderJson::codecFromJson(const QJsonObject& o)
{
    const auto text = [&o](const char* key) { return o.value(QLatin1String(key)).toString(); };
    const auto number = [&o](const char* key) { return o.value(QLatin1String(key)).toInt(); };

    CodecPreset preset;
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = text("VideoCodec");
    v.enabled = !v.codec.isEmpty();
    v.keyFrame = number("VideoKeyFrame");
    v.bitRate = number("VideoBitRate");
    v.quality = number("VideoQuality");
    v.preset = text("VideoPreset");
    v.tune = text("VideoTune");
    v.profile = number("VideoProfile");
    v.bframes = number("VideoBframes");
    CodecModel::AudioCodec& a = preset.audioCodec();
    a.codec = text("AudioCodec");
    a.enabled = !a.codec.isEmpty();
    a.channels = number("AudioChannels");
    a.sampleRate = number("AudioSampleRate");
    a.bitRate = number("AudioBitRate");
    a.bitPerSamples = number("AudioBitPerSamples");
    preset.audioSource().insert(number("AudioSourceType"), number("AudioSourceIndex"));
    preset.container().name = text("ContainerName");
    preset.container().id = CodecTables::licenseModel().containers().key(preset.container().name, 0);
    CodecModel::Local& local = preset.local();
    local.enabled = true;
    local.path = text("Path");
    local.fileTag = text("FileTag");
    local.splitTime = number("SplitTime");
    preset.streaming().enabled = false;
    return preset;
}
