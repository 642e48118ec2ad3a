#include "records/projectpreset.h"

ProjectPreset ProjectPreset::fromJson(const QJsonObject& object)
{
    ProjectPreset p;
    const QJsonObject device = object.value(QStringLiteral("DeviceInfo")).toObject();
    p.m_deviceInfo.programOutputs = qBound(1, device.value(QStringLiteral("ProgramOutputs")).toInt(p.m_deviceInfo.programOutputs), 3);
    const QJsonObject processing = object.value(QStringLiteral("Processing")).toObject();
    p.m_processing.busAEnabled = processing.value(QStringLiteral("BusAEnabled")).toBool(p.m_processing.busAEnabled);
    p.m_processing.busBEnabled = processing.value(QStringLiteral("BusBEnabled")).toBool(p.m_processing.busBEnabled);
    const QJsonObject video = object.value(QStringLiteral("VideoOutput")).toObject();
    // Sizes and rates the engine cannot run keep the default rather than reaching a divisor.
    const auto positiveInt = [](const QJsonValue& value, int fallback) {
        const int v = value.toInt(fallback);
        return v > 0 ? v : fallback;
    };
    p.m_videoOutput.width = positiveInt(video.value(QStringLiteral("Width")), p.m_videoOutput.width);
    p.m_videoOutput.height = positiveInt(video.value(QStringLiteral("Height")), p.m_videoOutput.height);
    const double rate = video.value(QStringLiteral("FrameRate")).toDouble(p.m_videoOutput.frameRate);
    if (rate > 0.0 && rate <= 240.0)
        p.m_videoOutput.frameRate = rate;
    p.m_videoOutput.interlaced = video.value(QStringLiteral("Interlaced")).toBool(p.m_videoOutput.interlaced);
    const QJsonObject audio = object.value(QStringLiteral("AudioOutput")).toObject();
    p.m_audioOutput.sampleRate = positiveInt(audio.value(QStringLiteral("SampleRate")), p.m_audioOutput.sampleRate);
    p.m_audioOutput.channels = positiveInt(audio.value(QStringLiteral("Channels")), p.m_audioOutput.channels);
    return p;
}

QJsonObject ProjectPreset::toJson() const
{
    return QJsonObject{
        {QStringLiteral("DeviceInfo"), QJsonObject{{QStringLiteral("ProgramOutputs"), m_deviceInfo.programOutputs}}},
        {QStringLiteral("Processing"), QJsonObject{{QStringLiteral("BusAEnabled"), m_processing.busAEnabled},
                                                   {QStringLiteral("BusBEnabled"), m_processing.busBEnabled}}},
        {QStringLiteral("VideoOutput"), QJsonObject{{QStringLiteral("Width"), m_videoOutput.width},
                                                    {QStringLiteral("Height"), m_videoOutput.height},
                                                    {QStringLiteral("FrameRate"), m_videoOutput.frameRate},
                                                    {QStringLiteral("Interlaced"), m_videoOutput.interlaced}}},
        {QStringLiteral("AudioOutput"), QJsonObject{{QStringLiteral("SampleRate"), m_audioOutput.sampleRate},
                                                    {QStringLiteral("Channels"), m_audioOutput.channels}}},
    };
}
