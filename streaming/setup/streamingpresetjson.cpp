#include "setup/streamingpresetjson.h"

#include "codec/codecjson.h"
#include "codec/codectables.h"
#include "records/licensemodel.h"
#include "setup/servicetables.h"

#include <QJsonArray>
#include <QUuid>

namespace {

const QLatin1String videoTypeKey("VideoSourceType");
const QLatin1String videoIndexKey("VideoSourceIndex");
const QLatin1String audioTypeKey("AudioSourceType");
const QLatin1String audioIndexKey("AudioSourceIndex");

QJsonArray keysOf(const QMap<int, int>& map)
{
    QJsonArray array;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        array.append(it.key());
    return array;
}

QJsonArray valuesOf(const QMap<int, int>& map)
{
    QJsonArray array;
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        array.append(it.value());
    return array;
}

QMap<int, int> mapOf(const QJsonObject& object, QLatin1String typeKey, QLatin1String indexKey)
{
    const QJsonArray types = object.value(typeKey).toArray();
    const QJsonArray indexes = object.value(indexKey).toArray();
    if (types.size() != indexes.size())
        qCWarning(lcStreamingSetup) << "source arrays" << typeKey << "and" << indexKey
                                    << "differ in length; the unpaired entries are dropped";
    QMap<int, int> map;
    for (int i = 0; i < types.size() && i < indexes.size(); ++i) {
        if (!types.at(i).isDouble() || !indexes.at(i).isDouble()) {
            qCWarning(lcStreamingSetup) << "source entry" << i << "of" << typeKey << "is not a number; dropped";
            continue;
        }
        map.insert(types.at(i).toInt(), indexes.at(i).toInt());
    }
    return map;
}

} // namespace

QJsonObject StreamingPresetJson::toJson(const CodecPreset& preset)
{
    const CodecModel::Streaming& s = preset.streaming();
    const CodecModel::Local& local = preset.local();
    QJsonObject o{
        {videoTypeKey, keysOf(preset.videoSource())},
        {videoIndexKey, valuesOf(preset.videoSource())},
        {audioTypeKey, keysOf(preset.audioSource())},
        {audioIndexKey, valuesOf(preset.audioSource())},
        {QStringLiteral("PresetName"), preset.name()},
        {QStringLiteral("Url"), s.url},
        {QStringLiteral("Key"), s.key},
        {QStringLiteral("Authrized"), s.authorized},
        {QStringLiteral("Username"), s.username},
        {QStringLiteral("Password"), s.password},
        {QStringLiteral("Provider"), s.provider},
        {QStringLiteral("ServerName"), s.serverName},
        {QStringLiteral("PageName"), s.pageName},
        {QStringLiteral("ChannelName"), s.channelName},
        {QStringLiteral("Mode"), s.mode},
        {QStringLiteral("Port"), s.port},
        {QStringLiteral("Latency"), s.latency},
        {QStringLiteral("Passphrase"), s.passphrase},
        {QStringLiteral("KeyLength"), s.keyLength},
        {QStringLiteral("StreamID"), s.streamId},
        {QStringLiteral("Filter"), s.filter},
        // "Save": the stream is recorded to a file as well, where and how the row says.
        {QStringLiteral("Save"), local.enabled},
        {QStringLiteral("Path"), local.path},
        {QStringLiteral("FileTag"), local.fileTag},
        {QStringLiteral("ContainerName"), preset.container().name},
        {QStringLiteral("SplitTime"), local.splitTime},
    };
    CodecJson::write(o, preset);
    return o;
}

CodecPreset StreamingPresetJson::fromJson(const QJsonObject& o)
{
    const auto text = [&o](const char* key) { return o.value(QLatin1String(key)).toString(); };
    const auto number = [&o](const char* key) { return o.value(QLatin1String(key)).toInt(); };

    CodecPreset preset;
    CodecJson::read(o, preset);
    preset.videoSource() = mapOf(o, videoTypeKey, videoIndexKey);
    preset.audioSource() = mapOf(o, audioTypeKey, audioIndexKey);
    preset.setName(text("PresetName"));
    preset.setId(QUuid::createUuid().toString());

    CodecModel::Streaming& s = preset.streaming();
    s.enabled = true;
    s.url = text("Url");
    s.key = text("Key");
    s.authorized = o.value(QLatin1String("Authrized")).toBool();
    s.username = text("Username");
    s.password = text("Password");
    s.provider = text("Provider");
    s.serverName = text("ServerName");
    s.pageName = text("PageName");
    s.channelName = text("ChannelName");
    s.mode = text("Mode");
    s.port = number("Port");
    s.latency = number("Latency");
    s.passphrase = text("Passphrase");
    s.keyLength = number("KeyLength");
    s.streamId = text("StreamID");
    s.filter = text("Filter");

    CodecModel::Local& local = preset.local();
    local.enabled = o.value(QLatin1String("Save")).toBool();
    local.path = text("Path");
    local.fileTag = text("FileTag");
    local.splitTime = number("SplitTime");
    preset.container().name = text("ContainerName");
    preset.container().id = CodecTables::licenseModel().containers().key(preset.container().name, 0);
    return preset;
}
