#include "projectpreset.h"

ProjectPreset ProjectPreset::fromJson(const QJsonObject& object)
{
    ProjectPreset p;
    const QJsonObject device = object.value(QStringLiteral("DeviceInfo")).toObject();
    p.m_deviceInfo.programOutputs = qBound(1, device.value(QStringLiteral("ProgramOutputs")).toInt(p.m_deviceInfo.programOutputs), 3);
    const QJsonObject processing = object.value(QStringLiteral("Processing")).toObject();
    p.m_processing.busAEnabled = processing.value(QStringLiteral("BusAEnabled")).toBool(p.m_processing.busAEnabled);
    p.m_processing.busBEnabled = processing.value(QStringLiteral("BusBEnabled")).toBool(p.m_processing.busBEnabled);
    const QJsonObject video = object.value(QStringLiteral("VideoOutput")).toObject();
    p.m_videoOutput.width = video.value(QStringLiteral("Width")).toInt(p.m_videoOutput.width);
    p.m_videoOutput.height = video.value(QStringLiteral("Height")).toInt(p.m_videoOutput.height);
    p.m_videoOutput.frameRate = video.value(QStringLiteral("FrameRate")).toDouble(p.m_videoOutput.frameRate);
    p.m_videoOutput.interlaced = video.value(QStringLiteral("Interlaced")).toBool(p.m_videoOutput.interlaced);
    const QJsonObject audio = object.value(QStringLiteral("AudioOutput")).toObject();
    p.m_audioOutput.sampleRate = audio.value(QStringLiteral("SampleRate")).toInt(p.m_audioOutput.sampleRate);
    p.m_audioOutput.channels = audio.value(QStringLiteral("Channels")).toInt(p.m_audioOutput.channels);
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
