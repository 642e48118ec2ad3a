#pragma once

#include "stores/chatdesc.h"

#include <QJsonObject>
#include <QList>
#include <QString>

// One page of a YouTube live chat as the service sent it: the messages, the token of the
// next page and how long to wait for it.
struct YouTubeChatPage {
    // The chat is asked no more often than once a second, and at least once a minute,
    // whatever interval a page gives.
    static constexpr int minInterval = 1000;
    static constexpr int maxInterval = 60000;
    // The newest of a longer page are shown.
    static constexpr int maxMessages = 200;
    static constexpr int maxTextLength = 2000;

    QList<ChatDesc> messages; // oldest first; colours and pictures are not filled in
    QString nextPageToken;
    int pollingInterval = minInterval;

    // False for a reply that is not a page ("items" not a list, no next page token).
    // Items of the wrong shape or without text are left out.
    static bool read(const QJsonObject& reply, YouTubeChatPage* page);
};
