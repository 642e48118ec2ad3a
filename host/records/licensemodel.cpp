#include "records/licensemodel.h"

#include <QJsonArray>

namespace {

struct VideoCodecEntry {
    const char* name;
    int bit;
    int usage;
};

// Hardware encoders and the delivery codecs may stream; mastering codecs only record.
const VideoCodecEntry videoCodecTable[] = {
    {"H.264", 0x0001, LicenseModel::usageAll},
    {"H.264 NVENC", 0x0002, LicenseModel::usageAll},
    {"H.264 QSV", 0x0004, LicenseModel::usageAll},
    {"H.264 AMF", 0x0008, LicenseModel::usageAll},
    {"HEVC", 0x0010, LicenseModel::usageAll},
    {"HEVC NVENC", 0x0020, LicenseModel::usageAll},
    {"HEVC AMF", 0x0040, LicenseModel::usageAll},
    {"MPEG-2", 0x0080, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"DV25", 0x0100, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"WMV", 0x0200, LicenseModel::usageRecording},
    {"DNxHD", 0x0400, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"MJPEG", 0x0800, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"Apple ProRes", 0x1000, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"XDCAM HD", 0x2000, LicenseModel::usageRecording | LicenseModel::usageIso},
    {"AV1", 0x4000, LicenseModel::usageAll},
};

const struct {
    const char* name;
    int bit;
} audioCodecTable[] = {
    {"AAC", 0x01}, {"MP3", 0x02}, {"Opus", 0x04}, {"AC3", 0x08}, {"PCM", 0x10},
};

const struct {
    int id;
    const char* name;
} containerTable[] = {
    {1, "flv"}, {2, "mp4"}, {4, "mov"}, {8, "ts"}, {16, "mxf"}, {64, "mkv"}, {128, "avi"},
};

} // namespace

LicenseModel::LicenseModel()
{
    for (const auto& c : containerTable)
        m_containers.insert(c.id, QString::fromLatin1(c.name));
    for (const auto& v : videoCodecTable) {
        const QString name = QString::fromLatin1(v.name);
        m_videoCodecs.insert(name, v.bit);
        m_codecAvailability.insert(name, v.bit | v.usage);
        m_availableVideoMask |= v.bit;
    }
    for (const auto& a : audioCodecTable) {
        m_audioCodecs.insert(QString::fromLatin1(a.name), a.bit);
        m_availableAudioMask |= a.bit;
    }
}

LicenseModel LicenseModel::fromJson(const QJsonObject& object)
{
    LicenseModel m;
    auto readInt = [&object](const char* key, int& field, int minimum) {
        const QJsonValue v = object.value(QLatin1String(key));
        if (v.isDouble())
            field = qMax(minimum, v.toInt(field));
    };
    readInt("MaxWidth", m.m_maxWidth, 1);
    readInt("MaxHeight", m.m_maxHeight, 1);
    readInt("MaxStreaming", m.m_maxStreaming, 0);
    readInt("MaxRecording", m.m_maxRecording, 0);
    readInt("MaxIsoRecording", m.m_maxIsoRecording, 0);
    readInt("MaxGrab", m.m_maxGrab, 0);
    readInt("MaxOutput", m.m_maxOutput, 0);
    const QJsonValue bus = object.value(QStringLiteral("AudioBus"));
    if (bus.isBool())
        m.m_audioBusEnabled = bus.toBool();
    // A list of codec names narrows what is unlocked.
    const QJsonValue disabled = object.value(QStringLiteral("DisabledCodecs"));
    if (disabled.isArray()) {
        for (const QJsonValue& name : disabled.toArray()) {
            const QString codec = name.toString();
            if (m.m_videoCodecs.contains(codec)) {
                m.m_availableVideoMask &= ~m.m_videoCodecs.value(codec);
                m.m_codecAvailability.remove(codec);
            } else if (m.m_audioCodecs.contains(codec)) {
                m.m_availableAudioMask &= ~m.m_audioCodecs.value(codec);
            }
        }
    }
    return m;
}

QJsonObject LicenseModel::toJson() const
{
    QJsonArray disabled;
    for (auto it = m_videoCodecs.cbegin(); it != m_videoCodecs.cend(); ++it)
        if (!(m_availableVideoMask & it.value()))
            disabled.append(it.key());
    for (auto it = m_audioCodecs.cbegin(); it != m_audioCodecs.cend(); ++it)
        if (!(m_availableAudioMask & it.value()))
            disabled.append(it.key());
    return QJsonObject{
        {QStringLiteral("MaxWidth"), m_maxWidth},
        {QStringLiteral("MaxHeight"), m_maxHeight},
        {QStringLiteral("MaxStreaming"), m_maxStreaming},
        {QStringLiteral("MaxRecording"), m_maxRecording},
        {QStringLiteral("MaxIsoRecording"), m_maxIsoRecording},
        {QStringLiteral("MaxGrab"), m_maxGrab},
        {QStringLiteral("MaxOutput"), m_maxOutput},
        {QStringLiteral("AudioBus"), m_audioBusEnabled},
        {QStringLiteral("DisabledCodecs"), disabled},
    };
}
