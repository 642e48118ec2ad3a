#pragma once

#include "stores/snapshot.h"
#include "streaming_export.h"

#include <QString>

// Still-image grabs: file names of grabbed images.
class STREAMING_EXPORT ImageSetup
{
public:
    // The grab's file tag expanded (date, time, name, source).
    static QString tagFromName(const Snapshot& shot, bool withExtension);
    // The next free image path in the grab's directory ("name.png", "name 2.png", ...);
    // its directory is created when missing.
    static QString localPath(const Snapshot& shot);
};
