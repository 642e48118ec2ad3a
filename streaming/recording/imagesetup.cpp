#include "recording/imagesetup.h"

#include "stores/filetag.h"

QString ImageSetup::tagFromName(const Snapshot& shot, bool withExtension)
{
    return FileTag::fromSnapshot(shot, withExtension);
}

QString ImageSetup::localPath(const Snapshot& shot)
{
    return FileTag::imagePath(shot);
}
