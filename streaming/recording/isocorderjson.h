#pragma once

#include "records/codecpreset.h"

#include <QJsonObject>

// The shared codec of the ISO recordings as the host's "ISOCORDER"/"CODEC" object. It has
// no size, rate or field keys: every ISO file takes its source's own format.
class IsoCorderJson
{
public:
    static QJsonObject codecToJson(const CodecPreset& preset);
    // Missing keys give the JSON defaults; audio is on when an audio codec is named.
    static CodecPreset codecFromJson(const QJsonObject& object);
};
