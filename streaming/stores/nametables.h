#pragma once

#include "streaming_export.h"

#include <QStringList>

// The fixed name tables every setup dialog shares. An enumeration's value is its index.
namespace NameTables {

STREAMING_EXPORT const QStringList& pixelFormats();
STREAMING_EXPORT const QStringList& videoConnectors();
STREAMING_EXPORT const QStringList& audioConnectors();
STREAMING_EXPORT const QStringList& audioApis();
STREAMING_EXPORT const QStringList& proResProfiles();
// Single space-separated strings; split on spaces where a filter is needed.
STREAMING_EXPORT QString audioFileExtensions();
STREAMING_EXPORT QString imageFileExtensions();
STREAMING_EXPORT QString videoFileExtensions();
STREAMING_EXPORT QString projectFileExtension();
// The ProRes profile name at index, clamped into [low, high].
STREAMING_EXPORT QString proResProfile(int index, int low = 0, int high = 5);

} // namespace NameTables
