#pragma once

#include "records/codecpreset.h"

#include <QJsonObject>

// One streaming preset as an element of the host's "STREAMING" array. Source maps
// are two parallel arrays: "...SourceType" holds the keys, "...SourceIndex" the
// values. After the tabled keys ride the SRT filter ("Filter") and the row's recording
// ("Save", "Path", "FileTag", "ContainerName", "SplitTime"), so a reloaded row streams
// and records as before.
class StreamingPresetJson
{
public:
    static QJsonObject toJson(const CodecPreset& preset);
    // Fresh id, streaming part on, recording as "Save" says; a source array pair of unequal length keeps
    // the pairs both sides have.
    static CodecPreset fromJson(const QJsonObject& object);
};
