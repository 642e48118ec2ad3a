#pragma once

#include "host_export.h"

#include <QString>
#include <QStringList>

// A video format as devices name it: lines, scan and frame rate, e.g. "1080i59.94".
class HOST_EXPORT DisplayMode
{
public:
    DisplayMode() = default;
    DisplayMode(int lines, bool interlaced, double frameRate);

    // An invalid mode when the name does not read as <lines><p|i><rate>.
    static DisplayMode fromName(const QString& name);
    // The broadcast formats an SDI card of the host offers, smallest first.
    static QStringList standardModes();

    bool isValid() const { return m_lines > 0 && m_frameRate > 0.0; }
    QString name() const;
    int width() const;
    int height() const { return m_lines; }
    bool isInterlaced() const { return m_interlaced; }
    double frameRate() const { return m_frameRate; }
    bool fitsWithin(int maxWidth, int maxHeight) const;

    bool operator==(const DisplayMode& other) const;
    bool operator!=(const DisplayMode& other) const { return !(*this == other); }

private:
    int m_lines = 0;
    bool m_interlaced = false;
    double m_frameRate = 0.0;
};
