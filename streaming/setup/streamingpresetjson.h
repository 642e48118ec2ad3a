#pragma once

#include "records/codecpreset.h"

#include <QJsonObject>

// One streaming preset as an element of the host's "STREAMING" array. Source maps
// are two parallel arrays: "...SourceType" holds the keys, "...SourceIndex" the
// values. The SRT filter rides along as "Filter" so a reloaded row streams as before.
class StreamingPresetJson
{
public:
    static QJsonObject toJson(const CodecPreset& preset);
    // Fresh id, streaming part on; a source array pair of unequal length keeps
    // the pairs both sides have.
    static CodecPreset fromJson(const QJsonObject& object);
};
