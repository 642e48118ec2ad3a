#pragma once

#include "streaming_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <functional>

class CodecPreset;
struct Snapshot;

// Expands a file tag: "%Y", "%M", "%D", "%h", "%m", "%s" (date and time), "%C",
// "%B", "%R" (codec, bit rate, resolution; recordings only), "%P" (preset or
// grab name) and "%S" (source). Anything else stays as typed.
class STREAMING_EXPORT FileTag
{
    Q_DECLARE_TR_FUNCTIONS(FileTag)

public:
    static QString fromCodecPreset(const CodecPreset* preset, bool withExtension);
    static QString fromSnapshot(const Snapshot& shot, bool withExtension);
    // The next free image path in the grab's directory ("name.png", "name 2.png", ...);
    // its directory is created when missing.
    static QString imagePath(const Snapshot& shot);
    // Where recordings go until the operator picks a folder: the user's movies folder.
    static QString defaultFolder();

    // The clock read once per expansion; tests fix the instant with it.
    static void setClock(std::function<QDateTime()> clock);
    static void resetClock();
};
