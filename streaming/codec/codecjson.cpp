#include "codec/codecjson.h"

void CodecJson::write(QJsonObject& o, const CodecPreset& preset)
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    const CodecModel::AudioCodec& a = preset.audioCodec();
    o.insert(QStringLiteral("VideoCodec"), v.codec);
    o.insert(QStringLiteral("VideoWidth"), v.width);
    o.insert(QStringLiteral("VideoHeight"), v.height);
    o.insert(QStringLiteral("VideoFrameRate"), v.frameRate);
    o.insert(QStringLiteral("VideoField"), v.field);
    o.insert(QStringLiteral("VideoKeyFrame"), v.keyFrame);
    o.insert(QStringLiteral("VideoBitRate"), v.bitRate);
    o.insert(QStringLiteral("VideoPreset"), v.preset);
    o.insert(QStringLiteral("VideoTune"), v.tune);
    o.insert(QStringLiteral("VideoProfile"), v.profile);
    o.insert(QStringLiteral("VideoBframes"), v.bframes);
    o.insert(QStringLiteral("AudioEnabled"), a.enabled);
    o.insert(QStringLiteral("AudioCodec"), a.codec);
    o.insert(QStringLiteral("AudioChannels"), a.channels);
    o.insert(QStringLiteral("AudioSampleRate"), a.sampleRate);
    o.insert(QStringLiteral("AudioBitRate"), a.bitRate);
    o.insert(QStringLiteral("AudioBitPerSamples"), a.bitPerSamples);
}

void CodecJson::read(const QJsonObject& o, CodecPreset& preset)
{
    const auto text = [&o](const char* key) { return o.value(QLatin1String(key)).toString(); };
    const auto number = [&o](const char* key) { return o.value(QLatin1String(key)).toInt(); };

    CodecModel::VideoCodec& v = preset.videoCodec();
    v.codec = text("VideoCodec");
    v.width = number("VideoWidth");
    v.height = number("VideoHeight");
    v.frameRate = o.value(QLatin1String("VideoFrameRate")).toDouble();
    v.field = number("VideoField");
    v.keyFrame = number("VideoKeyFrame");
    v.bitRate = number("VideoBitRate");
    v.preset = text("VideoPreset");
    v.tune = text("VideoTune");
    v.profile = number("VideoProfile");
    v.bframes = number("VideoBframes");
    CodecModel::AudioCodec& a = preset.audioCodec();
    a.enabled = o.value(QLatin1String("AudioEnabled")).toBool();
    a.codec = text("AudioCodec");
    a.channels = number("AudioChannels");
    a.sampleRate = number("AudioSampleRate");
    a.bitRate = number("AudioBitRate");
    a.bitPerSamples = number("AudioBitPerSamples");
}
