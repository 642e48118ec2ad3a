#include "capture/deviceoutputs.h"

#include "capture/capturemanager.h"
#include "capture/displaymode.h"
#include "capture/displayoutputwindow.h"
#include "capture/ndioutput.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>

Q_DECLARE_LOGGING_CATEGORY(lcCapture)

namespace {

QString driverName(VideoDevice::Kind kind)
{
    switch (kind) {
    case VideoDevice::Sdi:
        return DeviceOutputs::tr("SDI card");
    case VideoDevice::Ndi:
        return DeviceOutputs::tr("NDI");
    default:
        return DeviceOutputs::tr("virtual camera");
    }
}

} // namespace

DeviceOutputs::DeviceOutputs(QObject* parent) : QObject(parent)
{
}

DeviceOutputs::~DeviceOutputs() = default;

bool DeviceOutputs::refuse(QString* message, const QString& text) const
{
    qCWarning(lcCapture).noquote() << text;
    if (message)
        *message = text;
    return false;
}

bool DeviceOutputs::start(const Request& request, QString* message)
{
    const VideoDevice device = CaptureManager::instance().videoDevice(request.deviceName);
    if (!device.isValid())
        return refuse(message, tr("%1 is not connected.").arg(request.deviceName));
    if (!device.canOutput())
        return refuse(message, tr("%1 cannot send a picture.").arg(request.deviceName));
    const DisplayMode mode = DisplayMode::fromName(request.modeName);
    const bool modeOffered = device.kind() == VideoDevice::Ndi ? NdiOutput::supportsFormat(request.modeName)
                                                               : device.supportsMode(request.modeName);
    if (!mode.isValid() || !modeOffered)
        return refuse(message, tr("%1 does not offer the format \"%2\".").arg(request.deviceName, request.modeName));
    for (auto it = m_running.cbegin(); it != m_running.cend(); ++it)
        if (it.key() != request.key && it.value()->request.deviceName == request.deviceName)
            return refuse(message, tr("%1 is already in use by %2.").arg(request.deviceName, it.key()));

    auto running = std::make_shared<Running>();
    running->request = request;
    QString text;
    if (device.kind() == VideoDevice::Display) {
        const QList<QScreen*> screens = QGuiApplication::screens();
        if (device.displayNumber() < 1 || device.displayNumber() > screens.size())
            return refuse(message, tr("%1 is not connected.").arg(request.deviceName));
        running->window = std::make_unique<DisplayOutputWindow>(screens.at(device.displayNumber() - 1), mode,
                                                                request.picture);
        running->window->show();
        text = tr("%1 shows %2 at %3.").arg(request.deviceName, request.sourceName, request.modeName);
    } else {
        running->standIn = true;
        text = tr("%1 (stand-in): this machine has no %2 driver; %3 is accepted and nothing is sent.")
                   .arg(request.deviceName, driverName(device.kind()), request.modeName);
    }
    qCInfo(lcCapture).noquote() << text;
    if (message)
        *message = text;
    m_running.insert(request.key, running);
    emit changed();
    return true;
}

bool DeviceOutputs::stop(const QString& key)
{
    if (!m_running.remove(key))
        return false;
    qCInfo(lcCapture) << "stopped" << key;
    emit changed();
    return true;
}

void DeviceOutputs::stopAll()
{
    if (m_running.isEmpty())
        return;
    m_running.clear();
    emit changed();
}

bool DeviceOutputs::isStandIn(const QString& key) const
{
    return m_running.contains(key) && m_running.value(key)->standIn;
}

DisplayOutputWindow* DeviceOutputs::window(const QString& key) const
{
    return m_running.contains(key) ? m_running.value(key)->window.get() : nullptr;
}
