#pragma once

#include <QCoreApplication>
#include <QMap>

class LicenseModel;
class ProjectPreset;
class QComboBox;

// The fixed choices of the streaming dialog: the picture and sound sources (each item
// carries its source map, type to index) and the split intervals (seconds).
class StreamingFormLists
{
    Q_DECLARE_TR_FUNCTIONS(StreamingSetup)

public:
    enum SourceType { Program = 7, CleanProgram = 8, Preview = 10, BusA = 17, BusB = 18 };
    static constexpr int defaultSplitSeconds = 43200;

    // "PGM", "PGM(Clean)", "PVW" as far as the project has programme outputs; the audio
    // list also offers the buses the licence and the project enable.
    static void fillSources(QComboBox* video, QComboBox* audio, const LicenseModel& license,
                            const ProjectPreset& project);
    static void fillSplitTimes(QComboBox* list);
    // Selects the first item whose source map equals `map`; no match keeps the selection.
    static void selectSource(QComboBox* list, const QMap<int, int>& map);
};
