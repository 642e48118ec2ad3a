#pragma once

#include "host_export.h"

#include <QSize>
#include <QString>
#include <QStringList>

// One video device of the host: a card port, an NDI sender, a display or the virtual camera.
class HOST_EXPORT VideoDevice
{
public:
    // The same bits as an output's kind, so a row of one kind can pick its devices.
    enum Kind { Sdi = 1, Ndi = 2, Display = 4, VirtualCamera = 16 };
    enum Direction { Input = 1, Output = 2 };

    VideoDevice() = default;
    VideoDevice(const QString& name, Kind kind, const QStringList& displayModes);

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }
    // The operator's own name for the device; empty when it has none.
    QString alias() const { return m_alias; }
    void setAlias(const QString& alias) { m_alias = alias; }
    Kind kind() const { return m_kind; }
    void setKind(Kind kind) { m_kind = kind; }
    int directions() const { return m_directions; }
    void setDirections(int directions) { m_directions = directions; }
    bool canOutput() const { return m_directions & Output; }
    bool canCapture() const { return m_directions & Input; }
    // Whether the device keys (fill and key): internal and external keyer instead of plain alpha.
    bool supportsKeying() const { return m_supportsKeying; }
    void setSupportsKeying(bool keying) { m_supportsKeying = keying; }

    // Display mode names, as DisplayMode names them.
    QStringList displayModes() const { return m_displayModes; }
    void setDisplayModes(const QStringList& modes) { m_displayModes = modes; }
    bool supportsMode(const QString& modeName) const { return m_displayModes.contains(modeName); }

    // Displays only: the 1-based screen number and its size in pixels.
    int displayNumber() const { return m_displayNumber; }
    QSize displaySize() const { return m_displaySize; }
    void setDisplay(int number, const QSize& size);

    bool isValid() const { return !m_name.isEmpty(); }
    bool operator==(const VideoDevice& other) const;
    bool operator!=(const VideoDevice& other) const { return !(*this == other); }

private:
    QString m_name;
    QString m_alias;
    Kind m_kind = Sdi;
    int m_directions = Input | Output;
    bool m_supportsKeying = false;
    QStringList m_displayModes;
    int m_displayNumber = 0;
    QSize m_displaySize;
};
