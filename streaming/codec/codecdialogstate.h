#pragma once

#include "codec/sizedefinition.h"
#include "records/codecpreset.h"

// The codec dialog's last accepted choices, kept per user in QSettings "ql.codec.state"
// as one compact JSON object; a new preset starts from them.
class CodecDialogState
{
public:
    CodecPreset preset;      // codec fields only
    bool customSize = false; // the size list stood on "CUSTOM"
    SizeDefinition custom{1920, 1080};
    bool valid = false;      // false: nothing stored yet (or unreadable)

    static CodecDialogState load();
    void save() const;
};
