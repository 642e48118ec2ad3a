#include "capture/ndioutput.h"

QStringList NdiOutput::supportFormats()
{
    // Progressive and interlaced HD, and UHD up to 60 frames; no standard definition.
    return {QStringLiteral("720p50"),     QStringLiteral("720p59.94"),  QStringLiteral("720p60"),
            QStringLiteral("1080i50"),    QStringLiteral("1080i59.94"), QStringLiteral("1080p25"),
            QStringLiteral("1080p29.97"), QStringLiteral("1080p30"),    QStringLiteral("1080p50"),
            QStringLiteral("1080p59.94"), QStringLiteral("1080p60"),    QStringLiteral("2160p25"),
            QStringLiteral("2160p29.97"), QStringLiteral("2160p30"),    QStringLiteral("2160p50"),
            QStringLiteral("2160p59.94"), QStringLiteral("2160p60")};
}

bool NdiOutput::supportsFormat(const QString& modeName)
{
    return supportFormats().contains(modeName);
}
