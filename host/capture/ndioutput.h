#pragma once

#include "host_export.h"

#include <QString>
#include <QStringList>

// The host's NDI sender. Formats are those the sender can encode; any of them
// can go out of any NDI output, independent of the switcher's own format.
class HOST_EXPORT NdiOutput
{
public:
    static QStringList supportFormats();
    static bool supportsFormat(const QString& modeName);
};
