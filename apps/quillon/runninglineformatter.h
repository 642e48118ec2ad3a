#pragma once

#include "engine/engineoutput.h"

#include <QCoreApplication>
#include <QString>

// One line of the console's running list: name, state, elapsed time and, while it runs, the
// frame rate, bit rate and dropped frames; after a failure the reason and the next try.
class RunningLineFormatter
{
    Q_DECLARE_TR_FUNCTIONS(RunningLineFormatter)

public:
    static QString line(const EngineOutput& output);
    static QString elapsed(qint64 ms);
};
