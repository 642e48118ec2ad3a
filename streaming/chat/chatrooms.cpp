#include "chat/chatrooms.h"

#include "chat/chattwitch.h"
#include "chat/chatyoutube.h"
#include "provider/savedaccount.h"
#include "stores/streamingmanager.h"

namespace {

// The names the streaming dialog keeps the accounts under.
const QString twitchAccount = QStringLiteral("Twitch");
const QString youTubeAccount = QStringLiteral("YouTube API");

const ServerInfo* account(const QString& provider)
{
    const StreamingManager* store = StreamingManager::getInstancePtr();
    if (!store)
        return nullptr;
    for (const ServerInfo& info : store->accounts())
        if (info.oauth.provider == provider && !info.oauth.accessToken.isEmpty())
            return &info;
    return nullptr;
}

} // namespace

QList<ChatRoom> ChatRooms::signedIn()
{
    QList<ChatRoom> rooms;
    if (const ServerInfo* info = account(twitchAccount)) {
        Twitch twitch(nullptr);
        SavedAccount::apply(*info, &twitch);
        if (!twitch.channelName().isEmpty())
            rooms.append({QStringLiteral("Twitch"), tr("Twitch: #%1").arg(twitch.channelName()), twitch.channelName(),
                          twitch.channelName()});
    }
    if (const ServerInfo* info = account(youTubeAccount)) {
        YouTube youTube(nullptr);
        SavedAccount::apply(*info, &youTube);
        for (const LiveChannel& broadcast : youTube.channels())
            if (!broadcast.chatId.isEmpty())
                rooms.append({QStringLiteral("YouTube"), tr("YouTube: %1").arg(broadcast.name), youTube.displayName(),
                              broadcast.chatId});
    }
    return rooms;
}

std::unique_ptr<ChatProvider> ChatRooms::open(const ChatRoom& room, ViewInterface* view)
{
    if (room.service == QLatin1String("Twitch")) {
        const ServerInfo* info = account(twitchAccount);
        if (!info)
            return nullptr;
        auto chat = std::make_unique<ChatTwitch>(view);
        SavedAccount::apply(*info, chat.get());
        return chat;
    }
    if (room.service == QLatin1String("YouTube")) {
        const ServerInfo* info = account(youTubeAccount);
        if (!info)
            return nullptr;
        auto chat = std::make_unique<ChatYouTube>(view);
        SavedAccount::apply(*info, chat.get());
        return chat;
    }
    return nullptr;
}
