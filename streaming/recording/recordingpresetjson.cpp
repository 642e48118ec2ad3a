#include "recording/recordingpresetjson.h"

#include "codec/codecjson.h"
#include "codec/codectables.h"
#include "records/licensemodel.h"

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
    const CodecModel::Local& local = preset.local();
    QJsonObject o{
        {QStringLiteral("VideoQuality"), preset.videoCodec().quality},
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
    CodecJson::write(o, preset);
    return o;
}

CodecPreset RecordingPresetJson::fromJson(const QJsonObject& o)
{
    CodecPreset preset;
    CodecJson::read(o, preset);
    preset.videoCodec().quality = o.value(QLatin1String("VideoQuality")).toInt();
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
