#pragma once

#include "records/codecpreset.h"

#include <QJsonObject>

// One recording preset as an element of the host's "RECORDING" array. Only the first
// entry of each source map is kept; ids are not stored.
class RecordingPresetJson
{
public:
    static QJsonObject toJson(const CodecPreset& preset);
    // Fresh id, local part on, streaming part off; the older "VideoSource" key wins.
    static CodecPreset fromJson(const QJsonObject& object);
};
