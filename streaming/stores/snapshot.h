#pragma once

#include <QString>

// A still-image grab preset.
struct Snapshot {
    int source = 0;     // 0 programme, 1 clean programme, 2 preview, 3 clean preview
    QString extension;  // image format: "jpg", "png", "bmp", "tiff"
    QString name;
    QString directory;
    QString fileTag;
    QString mediaToBin; // "None", "STILL 1", "STILL 2"
};
