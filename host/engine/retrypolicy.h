#pragma once

#include <QList>

// When a failed stream is tried again: after 1, 2, 4, 8, 16 and then every 30 seconds, ten
// tries in all (about four minutes), as operators know from other streaming tools. A stream
// that ran for half a minute before it failed starts counting afresh.
struct RetryPolicy {
    QList<int> delaysMs{1000, 2000, 4000, 8000, 16000, 30000};
    int maxAttempts = 10;
    int recoveredAfterMs = 30000;

    // Delay before try number attempt (1 = the first retry); the last delay repeats.
    int delayFor(int attempt) const
    {
        if (delaysMs.isEmpty())
            return 0;
        return delaysMs.at(qBound(0, attempt - 1, delaysMs.size() - 1));
    }
};
