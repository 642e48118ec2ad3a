#pragma once

#include "host_export.h"

#include <QString>

// How a media source (camera, clip, NDI input) is captured.
class HOST_EXPORT MediaPreset
{
public:
    MediaPreset() = default;
    MediaPreset(const QString& name, const QString& videoDevice) : m_name(name), m_videoDevice(videoDevice) {}

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    // The device and format as shown to the operator, e.g. "Capture 1 1920x1080 59.94i".
    QString videoDevice() const { return m_videoDevice; }
    void setVideoDevice(const QString& videoDevice) { m_videoDevice = videoDevice; }

private:
    QString m_name;
    QString m_videoDevice;
};
