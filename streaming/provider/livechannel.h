#pragma once

#include "stores/channel.h"

#include <QString>

// One thing a provider can stream to: a channel, a broadcast or a live video,
// as the service listed it.
struct LiveChannel {
    enum Flag {
        DefaultBroadcast = 0x1, // the account's always-present broadcast
        LiveNow = 0x2           // already on air
    };

    QString name;        // shown in the channel list; findChannel() matches it
    QString id;          // channel, broadcast or video id at the service
    QString description;
    QString watchUrl;    // public page of the stream
    QString streamUrl;
    QString streamKey;
    QString ownerId;     // user or page the channel was listed under
    QString ownerToken;  // the token that acts for that owner
    QString chatId;      // live chat of the broadcast
    int flags = 0;
    QString category;    // the service's category identifier

    // The record the streaming store keeps for a chosen channel.
    Channel toChannel(const QString& providerName) const
    {
        Channel channel;
        channel.id = id;
        channel.provider = providerName;
        channel.title = name;
        channel.description = description;
        channel.url = streamUrl;
        channel.key = streamKey;
        return channel;
    }
};
