#include "capture/capturemanager.h"

#include "capture/displaymode.h"
#include "capture/ndioutput.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>

Q_LOGGING_CATEGORY(lcCapture, "quillon.capture")

namespace {

QStringList modesUpTo(int maxLines)
{
    QStringList modes;
    for (const QString& name : DisplayMode::standardModes())
        if (DisplayMode::fromName(name).height() <= maxLines)
            modes.append(name);
    return modes;
}

VideoDevice sdiPort(const QString& name, int maxLines, bool keying)
{
    VideoDevice device(name, VideoDevice::Sdi, modesUpTo(maxLines));
    device.setSupportsKeying(keying);
    return device;
}

VideoDevice displayDevice(int number, const QSize& screen)
{
    VideoDevice display(QStringLiteral("Display %1").arg(number), VideoDevice::Display,
                        CaptureManager::displayModesFor(screen));
    display.setDirections(VideoDevice::Output);
    display.setDisplay(number, screen);
    return display;
}

} // namespace

CaptureManager::CaptureManager()
{
    m_devices = defaultVideoDevices(currentScreens());
    if (qGuiApp) {
        connect(qGuiApp, &QGuiApplication::screenAdded, this, &CaptureManager::refreshDisplays);
        connect(qGuiApp, &QGuiApplication::screenRemoved, this, &CaptureManager::refreshDisplays);
    }
}

CaptureManager& CaptureManager::instance()
{
    static CaptureManager manager;
    return manager;
}

QList<VideoDevice> CaptureManager::outputDevices(int kinds) const
{
    QList<VideoDevice> devices;
    for (const VideoDevice& device : m_devices)
        if ((device.kind() & kinds) && device.canOutput())
            devices.append(device);
    return devices;
}

VideoDevice CaptureManager::videoDevice(const QString& name) const
{
    for (const VideoDevice& device : m_devices)
        if (device.name() == name)
            return device;
    return VideoDevice();
}

QStringList CaptureManager::displayModes(const QString& deviceName) const
{
    return videoDevice(deviceName).displayModes();
}

void CaptureManager::setVideoDevices(const QList<VideoDevice>& devices)
{
    m_devices = devices;
    emit videoDevicesChanged();
}

void CaptureManager::resetToDefaults()
{
    setVideoDevices(defaultVideoDevices(currentScreens()));
}

void CaptureManager::refreshDisplays()
{
    QList<VideoDevice> devices;
    int insertAt = -1;
    for (const VideoDevice& device : qAsConst(m_devices)) {
        if (device.kind() == VideoDevice::Display) {
            if (insertAt < 0)
                insertAt = devices.size();
            continue;
        }
        devices.append(device);
    }
    if (insertAt < 0)
        insertAt = devices.size();
    const QList<QSize> screens = currentScreens();
    for (int i = 0; i < screens.size(); ++i) {
        devices.insert(insertAt + i, displayDevice(i + 1, screens.at(i)));
    }
    qCDebug(lcCapture) << "displays now" << screens;
    setVideoDevices(devices);
}

QList<VideoDevice> CaptureManager::defaultVideoDevices(const QList<QSize>& screens)
{
    QList<VideoDevice> devices;
    devices.append(sdiPort(QStringLiteral("SDI 4K Port 1"), 2160, true));
    VideoDevice second = sdiPort(QStringLiteral("SDI 4K Port 2"), 2160, false);
    second.setAlias(QStringLiteral("Stage Monitor"));
    devices.append(second);
    devices.append(sdiPort(QStringLiteral("SDI HD Port 1"), 1080, false));

    for (int i = 1; i <= 2; ++i) {
        VideoDevice ndi(QStringLiteral("NDI Output %1").arg(i), VideoDevice::Ndi, NdiOutput::supportFormats());
        ndi.setDirections(VideoDevice::Output);
        devices.append(ndi);
    }

    for (int i = 0; i < screens.size(); ++i) {
        devices.append(displayDevice(i + 1, screens.at(i)));
    }

    VideoDevice camera(QStringLiteral("VirtualCam"), VideoDevice::VirtualCamera,
                       {QStringLiteral("720p29.97"), QStringLiteral("1080p29.97"), QStringLiteral("1080p59.94")});
    camera.setDirections(VideoDevice::Output);
    devices.append(camera);
    return devices;
}

QList<QSize> CaptureManager::currentScreens()
{
    QList<QSize> sizes;
    if (qGuiApp) {
        for (const QScreen* screen : QGuiApplication::screens())
            sizes.append(screen->size() * screen->devicePixelRatio());
    }
    if (sizes.isEmpty())
        sizes.append(QSize(1920, 1080));
    return sizes;
}

QStringList CaptureManager::displayModesFor(const QSize& screen)
{
    QStringList modes;
    QString smallest;
    for (const QString& name : DisplayMode::standardModes()) {
        const DisplayMode mode = DisplayMode::fromName(name);
        if (mode.isInterlaced())
            continue;
        if (smallest.isEmpty())
            smallest = name;
        if (mode.fitsWithin(screen.width(), screen.height()))
            modes.append(name);
    }
    // A small screen still shows the smallest format, scaled down.
    if (modes.isEmpty() && !smallest.isEmpty())
        modes.append(smallest);
    return modes;
}
