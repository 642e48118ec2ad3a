#pragma once

#include "streaming_export.h"

#include <QString>
#include <QStringList>

// A source or output "layout" is a type and an instance index (-1 for a single one).
// The type numbers are those of the source maps.
namespace LayoutType {
enum : int {
    None = 0, Cam = 1, Clip = 2, Still = 3, MixEffect = 4, Audio = 5, Black = 6, Program = 7,
    CleanProgram = 8, DelayProgram = 9, Preview = 10, Multiview = 11, Dsk = 12, Switcher = 13,
    System = 14, Ptz = 15, AudioMixer = 16, BusA = 17, BusB = 18, VideoHub = 19,
};
}

// "NONE" ... "VIDEO HUB", by type number.
STREAMING_EXPORT const QStringList& layoutTypeNames();
// Types that exist once and never carry an instance number.
STREAMING_EXPORT bool isSingleLayout(int type);

// The type name (when withName), followed by index + 1: always with numberAlways, and for
// the types that exist more than once with numberSingles. Empty for a negative type.
STREAMING_EXPORT const QString DisplayLayoutName(int type, int index, bool withName, bool numberSingles,
                                                 bool numberAlways);
// "CAM 3" gives 2; a name without a trailing number gives -1.
STREAMING_EXPORT int layoutIndexFromString(const QString& text);
// "CAM 3" gives 1, "PROGRAM(CLEAN)" 8; -1 when no type has that name.
STREAMING_EXPORT int layoutTypeFromString(const QString& text);
