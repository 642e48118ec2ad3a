#pragma once

#include "records/codecpreset.h"

#include <QJsonObject>

// The video and audio keys every stored preset layout shares ("VideoCodec" ...
// "AudioBitPerSamples"). Layouts add their own keys around them; "VideoQuality" is one
// of those, as only some layouts keep it.
class CodecJson
{
public:
    static void write(QJsonObject& object, const CodecPreset& preset);
    static void read(const QJsonObject& object, CodecPreset& preset);
};
