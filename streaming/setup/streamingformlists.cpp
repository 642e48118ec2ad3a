#include "streamingformlists.h"

#include "licensemodel.h"
#include "projectpreset.h"

#include <QComboBox>

namespace {

using SourceMap = QMap<int, int>;

struct SplitInterval {
    const char* text;
    int seconds;
};
const SplitInterval splitIntervals[] = {
    {QT_TRANSLATE_NOOP("StreamingSetup", "5 minutes"), 300},   {QT_TRANSLATE_NOOP("StreamingSetup", "15 minutes"), 900},
    {QT_TRANSLATE_NOOP("StreamingSetup", "30 minutes"), 1800}, {QT_TRANSLATE_NOOP("StreamingSetup", "45 minutes"), 2700},
    {QT_TRANSLATE_NOOP("StreamingSetup", "1 hour"), 3600},     {QT_TRANSLATE_NOOP("StreamingSetup", "2 hours"), 7200},
    {QT_TRANSLATE_NOOP("StreamingSetup", "4 hours"), 14400},   {QT_TRANSLATE_NOOP("StreamingSetup", "8 hours"), 28800},
    {QT_TRANSLATE_NOOP("StreamingSetup", "12 hours"), 43200},  {QT_TRANSLATE_NOOP("StreamingSetup", "24 hours"), 86400},
};

void add(QComboBox* list, const QString& text, const SourceMap& map)
{
    list->addItem(text, QVariant::fromValue(map));
}

} // namespace

void StreamingFormLists::fillSources(QComboBox* video, QComboBox* audio, const LicenseModel& license,
                                     const ProjectPreset& project)
{
    const int outputs = qBound(1, project.deviceInfo().programOutputs, 3);
    const QList<QPair<QString, SourceMap>> programme = {
        {tr("PGM"), {{Program, -1}}}, {tr("PGM(Clean)"), {{CleanProgram, -1}}}, {tr("PVW"), {{Preview, -1}}}};
    for (int i = 0; i < outputs; ++i) {
        add(video, programme.at(i).first, programme.at(i).second);
        add(audio, programme.at(i).first, programme.at(i).second);
    }
    // Buses carry sound only: they are offered where the audio is chosen.
    if (!license.audioBusEnabled())
        return;
    const bool a = project.processing().busAEnabled;
    const bool b = project.processing().busBEnabled;
    if (a)
        add(audio, tr("BUS A"), {{BusA, -1}});
    if (b)
        add(audio, tr("BUS B"), {{BusB, -1}});
    if (a && b)
        add(audio, tr("BUS A+B"), {{BusA, -1}, {BusB, -1}});
    if (a)
        add(audio, tr("PGM+A"), {{Program, -1}, {BusA, -1}});
    if (b)
        add(audio, tr("PGM+B"), {{Program, -1}, {BusB, -1}});
    if (a && b)
        add(audio, tr("PGM+A+B"), {{Program, -1}, {BusA, -1}, {BusB, -1}});
}

void StreamingFormLists::fillSplitTimes(QComboBox* list)
{
    for (const SplitInterval& interval : splitIntervals)
        list->addItem(tr(interval.text), interval.seconds);
    list->setCurrentIndex(list->findData(defaultSplitSeconds));
}

void StreamingFormLists::selectSource(QComboBox* list, const QMap<int, int>& map)
{
    for (int i = 0; i < list->count(); ++i) {
        if (list->itemData(i).value<SourceMap>() == map) {
            list->setCurrentIndex(i);
            return;
        }
    }
}
