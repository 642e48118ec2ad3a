#pragma once

#include "provider/eventinfo.h"

#include <QJsonObject>

// The JSON bodies the YouTube provider sends. Every boolean and number in them is fixed.
class YouTubeBodies
{
public:
    // A live broadcast; "scheduledEndTime" only when the event has an end.
    static QJsonObject broadcast(const EventInfo& event);
    // A stream for the broadcast the service answered with (its snippet's channel, title
    // and description).
    static QJsonObject stream(const QJsonObject& broadcastReply);
    // The video behind a broadcast: category, title, description, tags (split at ","), privacy.
    static QJsonObject video(const EventInfo& event);
    // The region of the categories: the country of the locale name "ll_CC"; empty otherwise.
    static QString regionCode(const QString& localeName);
};
