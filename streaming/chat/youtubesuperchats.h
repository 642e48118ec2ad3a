#pragma once

#include "stores/chatdesc.h"

#include <QJsonObject>
#include <QList>

// The Super Chats of a YouTube channel as the service lists them (newest first): each the
// supporter's message with the amount as the service writes it ("$5.00").
struct YouTubeSuperChats {
    // The newest of a longer list are kept.
    static constexpr int maxEvents = 50;

    // Messages of type SuperChat, oldest first, without colours. False for a reply that is
    // not such a list ("items" not a list); items of the wrong shape are left out.
    static bool read(const QJsonObject& reply, QList<ChatDesc>* events);
};
