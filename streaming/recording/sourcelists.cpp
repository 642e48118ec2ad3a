#include "recording/sourcelists.h"

#include <QComboBox>

namespace {

using SourceMap = QMap<int, int>;

struct SplitInterval {
    const char* text;
    int seconds;
};
const SplitInterval splitIntervals[] = {
    {QT_TRANSLATE_NOOP("SourceLists", "5 minutes"), 300},   {QT_TRANSLATE_NOOP("SourceLists", "15 minutes"), 900},
    {QT_TRANSLATE_NOOP("SourceLists", "30 minutes"), 1800}, {QT_TRANSLATE_NOOP("SourceLists", "45 minutes"), 2700},
    {QT_TRANSLATE_NOOP("SourceLists", "1 hour"), 3600},     {QT_TRANSLATE_NOOP("SourceLists", "2 hours"), 7200},
    {QT_TRANSLATE_NOOP("SourceLists", "4 hours"), 14400},   {QT_TRANSLATE_NOOP("SourceLists", "8 hours"), 28800},
    {QT_TRANSLATE_NOOP("SourceLists", "12 hours"), 43200},  {QT_TRANSLATE_NOOP("SourceLists", "24 hours"), 86400},
};

void add(QComboBox* list, const QString& text, const SourceMap& map)
{
    list->addItem(text, QVariant::fromValue(map));
}

} // namespace

void SourceLists::addProgramme(QComboBox* list, int outputs)
{
    const QList<QPair<QString, SourceMap>> programme = {
        {tr("PGM"), {{Program, -1}}}, {tr("PGM(Clean)"), {{CleanProgram, -1}}}, {tr("PVW"), {{Preview, -1}}}};
    for (int i = 0; i < qBound(1, outputs, 3); ++i)
        add(list, programme.at(i).first, programme.at(i).second);
}

void SourceLists::addBuses(QComboBox* list, bool busA, bool busB)
{
    if (busA)
        add(list, tr("BUS A"), {{BusA, -1}});
    if (busB)
        add(list, tr("BUS B"), {{BusB, -1}});
    if (busA && busB)
        add(list, tr("BUS A+B"), {{BusA, -1}, {BusB, -1}});
    if (busA)
        add(list, tr("PGM+A"), {{Program, -1}, {BusA, -1}});
    if (busB)
        add(list, tr("PGM+B"), {{Program, -1}, {BusB, -1}});
    if (busA && busB)
        add(list, tr("PGM+A+B"), {{Program, -1}, {BusA, -1}, {BusB, -1}});
}

void SourceLists::fillSplitTimes(QComboBox* list)
{
    for (const SplitInterval& interval : splitIntervals)
        list->addItem(tr(interval.text), interval.seconds);
    list->setCurrentIndex(list->findData(defaultSplitSeconds));
}

void SourceLists::selectSource(QComboBox* list, const QMap<int, int>& map)
{
    for (int i = 0; i < list->count(); ++i) {
        if (list->itemData(i).value<SourceMap>() == map) {
            list->setCurrentIndex(i);
            return;
        }
    }
}
