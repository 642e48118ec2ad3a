#include "capture/videodevice.h"

VideoDevice::VideoDevice(const QString& name, Kind kind, const QStringList& displayModes)
    : m_name(name), m_kind(kind), m_displayModes(displayModes)
{
}

void VideoDevice::setDisplay(int number, const QSize& size)
{
    m_displayNumber = number;
    m_displaySize = size;
}

bool VideoDevice::operator==(const VideoDevice& other) const
{
    return m_name == other.m_name && m_alias == other.m_alias && m_kind == other.m_kind
        && m_directions == other.m_directions && m_supportsKeying == other.m_supportsKeying
        && m_displayModes == other.m_displayModes && m_displayNumber == other.m_displayNumber
        && m_displaySize == other.m_displaySize;
}
