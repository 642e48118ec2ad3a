#pragma once

#include "provider/eventinfo.h"
#include "provider/livechannel.h"
#include "provider/pageinfo.h"
#include "stores/channel.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

using LabelPair = QPair<QString, QString>;

// What a provider knows about the user's account at its service.
struct Account {
    QUrl homeUrl;                 // the service's public home page
    Channel channel;              // the current target: stream URL and key
    QString userId;               // the user's id at the service
    QString displayName;          // the user's name as the service shows it
    QString channelName;          // the user's own channel (chat room)
    QString pageId;               // chosen page, for services that publish to pages
    QString pageToken;
    QList<LabelPair> servers;     // (label, URL) ingest servers
    QList<LiveChannel> channels;
    QList<EventInfo> events;      // what the event dialog can edit
    QList<PageInfo> pages;
    QList<LabelPair> categories;  // (title, id)
    QList<LabelPair> privacies;   // (text, value)
};
