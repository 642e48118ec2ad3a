#pragma once

#include <QCoreApplication>
#include <QMap>

class QComboBox;

// The fixed choices the output dialogs share: picture and sound sources (each item
// carries its source map, type to index) and the split intervals (seconds).
class SourceLists
{
    Q_DECLARE_TR_FUNCTIONS(SourceLists)

public:
    enum SourceType { Program = 7, CleanProgram = 8, Preview = 10, BusA = 17, BusB = 18 };
    static constexpr int defaultSplitSeconds = 43200;

    // "PGM", "PGM(Clean)", "PVW": the first `outputs` of them (1 to 3).
    static void addProgramme(QComboBox* list, int outputs = 3);
    // "BUS A" ... "PGM+A+B" as far as the project enables bus A and bus B.
    static void addBuses(QComboBox* list, bool busA, bool busB);
    static void fillSplitTimes(QComboBox* list);
    // Selects the first item whose source map equals `map`; no match keeps the selection.
    static void selectSource(QComboBox* list, const QMap<int, int>& map);
};
