#pragma once

#include "streaming_export.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <memory>

class ChatProvider;
class ViewInterface;

// A chat the operator can open: the channel of a signed-in Twitch account, or a broadcast
// of a signed-in YouTube account that has a live chat.
struct ChatRoom {
    QString service; // "Twitch" or "YouTube"
    QString title;   // as the operator sees it
    QString nick;    // the account's name in the chat
    QString room;    // Twitch channel name, YouTube live chat id
};

// The chats of the accounts the streaming dialog keeps signed in (the streaming store's
// accounts), and a chat provider for one of them with its account's token.
class STREAMING_EXPORT ChatRooms
{
    Q_DECLARE_TR_FUNCTIONS(ChatRooms)

public:
    static QList<ChatRoom> signedIn();
    // Null when the room's account is no longer kept.
    static std::unique_ptr<ChatProvider> open(const ChatRoom& room, ViewInterface* view);
};
