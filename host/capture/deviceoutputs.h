#pragma once

#include "capture/programmepicture.h"
#include "host_export.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <memory>

class DisplayOutputWindow;

// The outputs that run on the capture devices, by the host's key for each. A display
// really shows the programme in a window of its own; SDI, NDI and the virtual camera need
// drivers this machine does not have, so the stand-in checks and accepts them, says so,
// and sends nothing.
class HOST_EXPORT DeviceOutputs : public QObject
{
    Q_OBJECT
public:
    struct Request {
        QString key;
        QString deviceName;
        QString modeName;
        QString sourceName; // as the operator chose it, for the messages
        ProgrammePicture picture;
    };

    explicit DeviceOutputs(QObject* parent = nullptr);
    ~DeviceOutputs() override;

    // False with *message saying why it cannot run; true with *message saying what runs.
    // A key that runs already is restarted with the new request.
    bool start(const Request& request, QString* message);
    // False when nothing ran under the key.
    bool stop(const QString& key);
    void stopAll();

    QStringList keys() const { return m_running.keys(); }
    bool isRunning(const QString& key) const { return m_running.contains(key); }
    // Whether the output under the key has no driver here and only the stand-in accepted it.
    bool isStandIn(const QString& key) const;
    // Null for outputs that are not on a display.
    DisplayOutputWindow* window(const QString& key) const;

signals:
    void changed();

private:
    struct Running {
        Request request;
        bool standIn = false;
        std::unique_ptr<DisplayOutputWindow> window;
    };

    bool refuse(QString* message, const QString& text) const;

    QMap<QString, std::shared_ptr<Running>> m_running;
};
