#pragma once

#include "host_export.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

// The licence state: output limits and which codecs and containers may be used.
//
// The default unlocks every codec with these limits: 3840x2160, 4 streams,
// 4 recordings, 8 ISO recordings, 8 grabs, 4 external outputs, audio buses on.
//
// Codec availability flags: the low 16 bits are the codec's video bit, the high
// bits say where it may be used (usageRecording, usageStreaming, usageIso).
class HOST_EXPORT LicenseModel
{
public:
    enum Usage {
        usageRecording = 0x10000,
        usageStreaming = 0x20000,
        usageIso = 0x40000,
        usageAll = usageRecording | usageStreaming | usageIso,
    };

    LicenseModel();

    int maxWidth() const { return m_maxWidth; }
    int maxHeight() const { return m_maxHeight; }
    int maxStreaming() const { return m_maxStreaming; }
    int maxRecording() const { return m_maxRecording; }
    int maxIsoRecording() const { return m_maxIsoRecording; }
    int maxGrab() const { return m_maxGrab; }
    int maxOutput() const { return m_maxOutput; }
    bool audioBusEnabled() const { return m_audioBusEnabled; }

    void setMaxResolution(int width, int height) { m_maxWidth = width; m_maxHeight = height; }
    void setMaxStreaming(int count) { m_maxStreaming = count; }
    void setMaxRecording(int count) { m_maxRecording = count; }
    void setMaxIsoRecording(int count) { m_maxIsoRecording = count; }
    void setMaxGrab(int count) { m_maxGrab = count; }
    void setMaxOutput(int count) { m_maxOutput = count; }
    void setAudioBusEnabled(bool enabled) { m_audioBusEnabled = enabled; }

    // Container id to name (lower case, the file extension).
    const QMap<int, QString>& containers() const { return m_containers; }
    // Codec name to codec bit.
    const QMap<QString, int>& videoCodecs() const { return m_videoCodecs; }
    const QMap<QString, int>& audioCodecs() const { return m_audioCodecs; }
    int availableVideoMask() const { return m_availableVideoMask; }
    int availableAudioMask() const { return m_availableAudioMask; }
    void setAvailableVideoMask(int mask) { m_availableVideoMask = mask; }
    void setAvailableAudioMask(int mask) { m_availableAudioMask = mask; }
    // Video codec name to availability flags (codec bit | usage bits).
    const QMap<QString, int>& codecAvailability() const { return m_codecAvailability; }
    void setCodecAvailability(const QMap<QString, int>& map) { m_codecAvailability = map; }

    // Reads the limits a deployment may lower; missing or mistyped members keep the defaults.
    static LicenseModel fromJson(const QJsonObject& object);
    QJsonObject toJson() const;

private:
    int m_maxWidth = 3840;
    int m_maxHeight = 2160;
    int m_maxStreaming = 4;
    int m_maxRecording = 4;
    int m_maxIsoRecording = 8;
    int m_maxGrab = 8;
    int m_maxOutput = 4;
    bool m_audioBusEnabled = true;
    QMap<int, QString> m_containers;
    QMap<QString, int> m_videoCodecs;
    QMap<QString, int> m_audioCodecs;
    int m_availableVideoMask = 0;
    int m_availableAudioMask = 0;
    QMap<QString, int> m_codecAvailability;
};
