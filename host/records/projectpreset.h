#pragma once

#include "host_export.h"

#include <QJsonObject>
#include <QString>

// The project's settings as the engine runs them.
class HOST_EXPORT ProjectPreset
{
public:
    struct DeviceInfo {
        int programOutputs = 3; // PGM, PGM(Clean), PVW available to outputs
    };
    struct Processing {
        bool busAEnabled = true;
        bool busBEnabled = true;
    };
    struct VideoOutput {
        int width = 1920;
        int height = 1080;
        double frameRate = 29.97;
        bool interlaced = false;
    };
    struct AudioOutput {
        int sampleRate = 48000;
        int channels = 2;
    };

    DeviceInfo& deviceInfo() { return m_deviceInfo; }
    const DeviceInfo& deviceInfo() const { return m_deviceInfo; }
    Processing& processing() { return m_processing; }
    const Processing& processing() const { return m_processing; }
    VideoOutput& videoOutput() { return m_videoOutput; }
    const VideoOutput& videoOutput() const { return m_videoOutput; }
    AudioOutput& audioOutput() { return m_audioOutput; }
    const AudioOutput& audioOutput() const { return m_audioOutput; }

    // Missing, mistyped or unusable (zero, negative) members keep their defaults.
    static ProjectPreset fromJson(const QJsonObject& object);
    QJsonObject toJson() const;

private:
    DeviceInfo m_deviceInfo;
    Processing m_processing;
    VideoOutput m_videoOutput;
    AudioOutput m_audioOutput;
};
