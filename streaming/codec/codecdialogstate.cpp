#include "codec/codecdialogstate.h"

#include "codec/codectables.h"
#include "stores/privatesettings.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace {
const char stateKey[] = "ql.codec.state";
const char customText[] = "CUSTOM";
} // namespace

CodecDialogState CodecDialogState::load()
{
    CodecDialogState state;
    const QString text = QSettings().value(QLatin1String(stateKey)).toString();
    if (text.isEmpty())
        return state;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (!document.isObject()) {
        qCWarning(lcCodec) << "ignoring unreadable" << stateKey << error.errorString();
        return state;
    }
    const QJsonObject o = document.object();
    CodecModel::VideoCodec& v = state.preset.videoCodec();
    v.codec = o.value(QLatin1String("VideoCodec")).toString();
    v.width = o.value(QLatin1String("Width")).toInt();
    v.height = o.value(QLatin1String("Height")).toInt();
    v.frameRate = o.value(QLatin1String("FrameRate")).toDouble();
    v.field = o.value(QLatin1String("Field")).toInt();
    v.keyFrame = o.value(QLatin1String("KeyFrame")).toInt();
    v.bitRate = o.value(QLatin1String("BitRate")).toInt();
    v.quality = o.value(QLatin1String("Quality")).toInt(-1);
    v.preset = o.value(QLatin1String("Preset")).toString();
    v.tune = o.value(QLatin1String("Tune")).toString();
    v.profile = o.value(QLatin1String("Profile")).toInt(-1);
    v.bframes = o.value(QLatin1String("Bframes")).toInt(-1);
    CodecModel::AudioCodec& a = state.preset.audioCodec();
    a.enabled = o.value(QLatin1String("AudioEnabled")).toBool(true);
    a.codec = o.value(QLatin1String("AudioCodec")).toString();
    a.channels = o.value(QLatin1String("Channels")).toInt();
    a.sampleRate = o.value(QLatin1String("SampleRate")).toInt();
    a.bitRate = o.value(QLatin1String("AudioBitRate")).toInt();
    state.customSize = o.value(QLatin1String("Size")).toString() == QLatin1String(customText);
    state.custom.width = o.value(QLatin1String("CustomWidth")).toInt(1920);
    state.custom.height = o.value(QLatin1String("CustomHeight")).toInt(1080);
    state.valid = true;
    return state;
}

void CodecDialogState::save() const
{
    const CodecModel::VideoCodec& v = preset.videoCodec();
    const CodecModel::AudioCodec& a = preset.audioCodec();
    const QString size = customSize ? QString::fromLatin1(customText) : QStringLiteral("%1x%2").arg(v.width).arg(v.height);
    const QJsonObject o{
        {QLatin1String("VideoCodec"), v.codec},
        {QLatin1String("Size"), size},
        {QLatin1String("Width"), v.width},
        {QLatin1String("Height"), v.height},
        {QLatin1String("CustomWidth"), custom.width},
        {QLatin1String("CustomHeight"), custom.height},
        {QLatin1String("FrameRate"), v.frameRate},
        {QLatin1String("Field"), v.field},
        {QLatin1String("KeyFrame"), v.keyFrame},
        {QLatin1String("BitRate"), v.bitRate},
        {QLatin1String("Quality"), v.quality},
        {QLatin1String("Preset"), v.preset},
        {QLatin1String("Tune"), v.tune},
        {QLatin1String("Profile"), v.profile},
        {QLatin1String("Bframes"), v.bframes},
        {QLatin1String("AudioEnabled"), a.enabled},
        {QLatin1String("AudioCodec"), a.codec},
        {QLatin1String("Channels"), a.channels},
        {QLatin1String("SampleRate"), a.sampleRate},
        {QLatin1String("AudioBitRate"), a.bitRate},
    };
    PrivateSettings settings; // the file also holds stream keys
    settings.setValue(QLatin1String(stateKey), QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)));
    settings.sync();
}
