#pragma once

#include "capture/videodevice.h"
#include "host_export.h"

#include <QList>
#include <QObject>
#include <QSize>

// The video devices the host sees. Without device drivers, the host starts with a
// plausible machine: two UHD SDI ports (the first keys), one HD SDI port, two NDI
// senders, one display per screen and the virtual camera.
class HOST_EXPORT CaptureManager : public QObject
{
    Q_OBJECT
public:
    static CaptureManager& instance();

    QList<VideoDevice> videoDevices() const { return m_devices; }
    // Devices of the given kinds (a bit set of VideoDevice::Kind) that can output, in list order.
    QList<VideoDevice> outputDevices(int kinds) const;
    // An invalid device when there is none of that name.
    VideoDevice videoDevice(const QString& name) const;
    QStringList displayModes(const QString& deviceName) const;

    void setVideoDevices(const QList<VideoDevice>& devices);
    // Back to the default devices, with one display per current screen.
    void resetToDefaults();
    // Replaces the display devices by the current screens, keeping every other device.
    void refreshDisplays();

    // The default device list for the given screen sizes.
    static QList<VideoDevice> defaultVideoDevices(const QList<QSize>& screens);
    // The screens of the running application; one full HD screen when there is no GUI.
    static QList<QSize> currentScreens();
    // The progressive standard modes a screen of that size shows unscaled (at least the smallest).
    static QStringList displayModesFor(const QSize& screen);

signals:
    void videoDevicesChanged();

private:
    CaptureManager();

    QList<VideoDevice> m_devices;
};
