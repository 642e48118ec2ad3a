#pragma once

#include <QString>

// One external or playout output.
struct OutputInfo {
    enum Kind { Sdi = 1, Ndi = 2, Display = 4, Audio = 8, VirtualCamera = 16 };

    int kind = 0;       // bit set of Kind
    int number = 0;     // 1-based
    QString deviceName;
    QString audioDeviceName;
    QString displayModeName;
    int colorFormat = 0; // index into the pixel format table
    int keyer = 0;       // 0 none
    int videoSourceType = 0;
    int videoSourceIndex = -1;
    int audioSourceType = 0;
    int audioSourceIndex = -1;

    // The same output: kind and number are equal.
    bool sameOutput(const OutputInfo& other) const { return kind == other.kind && number == other.number; }
};
