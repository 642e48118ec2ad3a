#include "recordingpresetjson.h"

#include "codectables.h"
#include "licensemodel.h"

#include <QUuid>

namespace {

int firstKey(const QMap<int, int>& map)
{
    return map.isEmpty() ? 0 : map.firstKey();
}

int firstValue(const QMap<int, int>& map)
{
    return map.isEmpty() ? 0 : map.first();
}

// The older single key counted programme, clean programme and preview from 0.
int sourceTypeFromLegacy(int value)
{
    switch (value) {
    case 0:
        return 7;
    case 1:
        return 8;
    case 2:
        return 10;
    default:
        return value;
    }
}

} // namespace

QJsonObject RecordingPresetJson::toJson(const CodecPreset& preset)
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    const CodecModel::AudioCodec& a = preset.audioCodec();
    const CodecModel::Local& local = preset.local();
    return QJsonObject{
        {QStringLiteral("VideoCodec"), v.codec},
        {QStringLiteral("VideoWidth"), v.width},
        {QStringLiteral("VideoHeight"), v.height},
        {QStringLiteral("VideoFrameRate"), v.frameRate},
        {QStringLiteral("VideoField"), v.field},
        {QStringLiteral("VideoKeyFrame"), v.keyFrame},
        {QStringLiteral("VideoBitRate"), v.bitRate},
        {QStringLiteral("VideoQuality"), v.quality},
        {QStringLiteral("VideoPreset"), v.preset},
        {QStringLiteral("VideoTune"), v.tune},
        {QStringLiteral("VideoProfile"), v.profile},
        {QStringLiteral("VideoBframes"), v.bframes},
        {QStringLiteral("AudioEnabled"), a.enabled},
        {QStringLiteral("AudioCodec"), a.codec},
        {QStringLiteral("AudioChannels"), a.channels},
        {QStringLiteral("AudioSampleRate"), a.sampleRate},
        {QStringLiteral("AudioBitRate"), a.bitRate},
        {QStringLiteral("AudioBitPerSamples"), a.bitPerSamples},
        {QStringLiteral("PresetName"), preset.name()},
        {QStringLiteral("VideoSourceType"), firstKey(preset.videoSource())},
        {QStringLiteral("VideoSourceIndex"), firstValue(preset.videoSource())},
        {QStringLiteral("AudioSourceType"), firstKey(preset.audioSource())},
        {QStringLiteral("AudioSourceIndex"), firstValue(preset.audioSource())},
        {QStringLiteral("ContainerName"), preset.container().name},
        {QStringLiteral("Path"), local.path},
        {QStringLiteral("FileTag"), local.fileTag},
        {QStringLiteral("SplitTime"), local.splitTime},
        {QStringLiteral("MediaToBin"), local.mediaToBin},
    };
}

CodecPreset RecordingPresetJson::fromJson(const QJsonObject& o)
{
    CodecPreset preset;
    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = o.value(QLatin1String("VideoCodec")).toString();
    v.width = o.value(QLatin1String("VideoWidth")).toInt();
    v.height = o.value(QLatin1String("VideoHeight")).toInt();
    v.frameRate = o.value(QLatin1String("VideoFrameRate")).toDouble();
    v.field = o.value(QLatin1String("VideoField")).toInt();
    v.keyFrame = o.value(QLatin1String("VideoKeyFrame")).toInt();
    v.bitRate = o.value(QLatin1String("VideoBitRate")).toInt();
    v.quality = o.value(QLatin1String("VideoQuality")).toInt();
    v.preset = o.value(QLatin1String("VideoPreset")).toString();
    v.tune = o.value(QLatin1String("VideoTune")).toString();
    v.profile = o.value(QLatin1String("VideoProfile")).toInt();
    v.bframes = o.value(QLatin1String("VideoBframes")).toInt();
    CodecModel::AudioCodec& a = preset.audioCodec();
    a.enabled = o.value(QLatin1String("AudioEnabled")).toBool();
    a.codec = o.value(QLatin1String("AudioCodec")).toString();
    a.channels = o.value(QLatin1String("AudioChannels")).toInt();
    a.sampleRate = o.value(QLatin1String("AudioSampleRate")).toInt();
    a.bitRate = o.value(QLatin1String("AudioBitRate")).toInt();
    a.bitPerSamples = o.value(QLatin1String("AudioBitPerSamples")).toInt();
    preset.setName(o.value(QLatin1String("PresetName")).toString());
    preset.setId(QUuid::createUuid().toString());

    const QJsonValue legacy = o.value(QLatin1String("VideoSource"));
    if (legacy.isUndefined())
        preset.videoSource().insert(o.value(QLatin1String("VideoSourceType")).toInt(),
                                    o.value(QLatin1String("VideoSourceIndex")).toInt());
    else
        preset.videoSource().insert(sourceTypeFromLegacy(legacy.toInt()), -1);
    preset.audioSource().insert(o.value(QLatin1String("AudioSourceType")).toInt(),
                                o.value(QLatin1String("AudioSourceIndex")).toInt());

    preset.container().name = o.value(QLatin1String("ContainerName")).toString();
    preset.container().id = CodecTables::licenseModel().containers().key(preset.container().name, 0);
    CodecModel::Local& local = preset.local();
    local.enabled = true;
    local.path = o.value(QLatin1String("Path")).toString();
    local.fileTag = o.value(QLatin1String("FileTag")).toString();
    local.splitTime = o.value(QLatin1String("SplitTime")).toInt();
    local.mediaToBin = o.value(QLatin1String("MediaToBin")).toString();
    preset.streaming().enabled = false;
    return preset;
}
