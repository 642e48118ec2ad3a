#pragma once

#include <QString>

// The values of the live event dialog, handed to a provider's createEvent and
// updateEvent. Times are UTC texts "yyyy-MM-ddTHH:mm:ss.zzzZ"; an empty end
// time means the event has none.
struct EventInfo {
    QString id;          // the event at the service; empty for a new one
    QString title;
    QString description;
    QString privacy;     // text of the privacy choice ("public", "EVERYONE", ...)
    QString startTime;
    QString endTime;
    QString tags;        // comma separated
    QString category;    // the service's category identifier
    QString streamType;  // "REGULAR" or "AMBIENT"
};
