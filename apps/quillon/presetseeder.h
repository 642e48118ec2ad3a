#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

class CodecManager;
class CodecPreset;

// Gives a new data location a handful of useful codec presets, once: a marker file
// remembers it, so presets the operator deleted do not come back.
class PresetSeeder
{
    Q_DECLARE_TR_FUNCTIONS(PresetSeeder)

public:
    static QList<CodecPreset> starterPresets();

    // Writes the starter presets unless the marker exists; a preset whose file is
    // already there is left alone. Returns how many were written (0 when seeded
    // before); -1 with *error set when a preset or the marker could not be written.
    static int seedOnce(CodecManager& store, const QString& markerFile, QString* error);
};
