#include "provider/savedaccount.h"

#include "provider/provider.h"
#include "stores/streamingmanager.h"

#include <QJsonArray>

namespace {

QJsonArray pairsToJson(const QList<LabelPair>& pairs)
{
    QJsonArray array;
    for (const LabelPair& pair : pairs)
        array.append(QJsonArray{pair.first, pair.second});
    return array;
}

QList<LabelPair> pairsFromJson(const QJsonValue& value)
{
    QList<LabelPair> pairs;
    for (const QJsonValue& entry : value.toArray()) {
        const QJsonArray pair = entry.toArray();
        if (pair.size() == 2)
            pairs.append({pair.at(0).toString(), pair.at(1).toString()});
    }
    return pairs;
}

// Every member of a list entry is a string but "Flags"; an entry that is no object is skipped.
template <typename T>
QList<T> listFromJson(const QJsonValue& value, T (*fromJson)(const QJsonObject&))
{
    QList<T> list;
    for (const QJsonValue& entry : value.toArray())
        if (entry.isObject())
            list.append(fromJson(entry.toObject()));
    return list;
}

QJsonObject channelToJson(const LiveChannel& c)
{
    return QJsonObject{{"Name", c.name},           {"Id", c.id},           {"Description", c.description},
                       {"WatchUrl", c.watchUrl},   {"StreamUrl", c.streamUrl}, {"StreamKey", c.streamKey},
                       {"OwnerId", c.ownerId},     {"OwnerToken", c.ownerToken}, {"ChatId", c.chatId},
                       {"Flags", c.flags},         {"Category", c.category}};
}

LiveChannel channelFromJson(const QJsonObject& o)
{
    LiveChannel c;
    c.name = o.value("Name").toString();
    c.id = o.value("Id").toString();
    c.description = o.value("Description").toString();
    c.watchUrl = o.value("WatchUrl").toString();
    c.streamUrl = o.value("StreamUrl").toString();
    c.streamKey = o.value("StreamKey").toString();
    c.ownerId = o.value("OwnerId").toString();
    c.ownerToken = o.value("OwnerToken").toString();
    c.chatId = o.value("ChatId").toString();
    c.flags = o.value("Flags").toInt();
    c.category = o.value("Category").toString();
    return c;
}

QJsonObject eventToJson(const EventInfo& e)
{
    return QJsonObject{{"Id", e.id},         {"Title", e.title},     {"Description", e.description},
                       {"Privacy", e.privacy}, {"StartTime", e.startTime}, {"EndTime", e.endTime},
                       {"Tags", e.tags},     {"Category", e.category}, {"StreamType", e.streamType}};
}

EventInfo eventFromJson(const QJsonObject& o)
{
    EventInfo e;
    e.id = o.value("Id").toString();
    e.title = o.value("Title").toString();
    e.description = o.value("Description").toString();
    e.privacy = o.value("Privacy").toString();
    e.startTime = o.value("StartTime").toString();
    e.endTime = o.value("EndTime").toString();
    e.tags = o.value("Tags").toString();
    e.category = o.value("Category").toString();
    e.streamType = o.value("StreamType").toString();
    return e;
}

QJsonObject pageToJson(const PageInfo& p)
{
    return QJsonObject{{"Id", p.id}, {"Name", p.name}, {"AccessToken", p.accessToken}};
}

PageInfo pageFromJson(const QJsonObject& o)
{
    return PageInfo{o.value("AccessToken").toString(), o.value("Id").toString(), o.value("Name").toString()};
}

template <typename T>
QJsonArray listToJson(const QList<T>& list, QJsonObject (*toJson)(const T&))
{
    QJsonArray array;
    for (const T& entry : list)
        array.append(toJson(entry));
    return array;
}

} // namespace

bool SavedAccount::isSignedIn(const Provider& provider)
{
    return provider.isAuthorized() || provider.isLoggedIn();
}

ServerInfo SavedAccount::toServerInfo(const Provider& provider)
{
    ServerInfo info;
    info.channel = provider.channel();
    info.channel.title = provider.name();
    info.channel.provider = provider.name();
    info.oauth.id = provider.userId();
    info.oauth.provider = provider.name();
    info.oauth.accessToken = provider.accessToken();
    info.oauth.refreshToken = provider.refreshToken();
    info.oauth.username = provider.username();
    info.oauth.password = provider.password();
    // As for a server: the service asks for a user name and password.
    info.oauth.authorized = !provider.password().isEmpty();
    info.details = QJsonObject{
        {"LoggedIn", provider.isLoggedIn()},
        {"DisplayName", provider.displayName()},
        {"ChannelName", provider.channelName()},
        {"PageId", provider.pageId()},
        {"PageToken", provider.pageToken()},
        {"Servers", pairsToJson(provider.servers())},
        {"Channels", listToJson(provider.channels(), &channelToJson)},
        {"Events", listToJson(provider.events(), &eventToJson)},
        {"Pages", listToJson(provider.pages(), &pageToJson)},
        {"Categories", pairsToJson(provider.categories())},
        {"Privacies", pairsToJson(provider.privacies())},
    };
    return info;
}

void SavedAccount::apply(const ServerInfo& info, Provider* provider)
{
    const QJsonObject& d = info.details;
    Channel channel = info.channel;
    channel.title.clear();
    provider->setChannel(channel);
    provider->setUserId(info.oauth.id);
    provider->setAccessToken(info.oauth.accessToken);
    provider->setRefreshToken(info.oauth.refreshToken);
    provider->setUsername(info.oauth.username);
    provider->setPassword(info.oauth.password);
    provider->setDisplayName(d.value("DisplayName").toString());
    provider->setChannelName(d.value("ChannelName").toString());
    provider->setPageId(d.value("PageId").toString());
    provider->setPageToken(d.value("PageToken").toString());
    // A service whose servers are its own table (not the account's) keeps them.
    if (d.contains("Servers"))
        provider->setServers(pairsFromJson(d.value("Servers")));
    provider->setChannels(listFromJson(d.value("Channels"), &channelFromJson));
    provider->setEvents(listFromJson(d.value("Events"), &eventFromJson));
    provider->setPages(listFromJson(d.value("Pages"), &pageFromJson));
    provider->setCategories(pairsFromJson(d.value("Categories")));
    provider->setPrivacies(pairsFromJson(d.value("Privacies")));
    provider->setLoggedIn(d.value("LoggedIn").toBool());
}

bool SavedAccount::sync(const Provider& provider)
{
    StreamingManager* store = StreamingManager::getInstancePtr();
    if (!store)
        return false;
    if (!isSignedIn(provider))
        return store->removeAccount(provider.name());
    qCInfo(lcProvider) << "keeping the signed-in account of" << provider.name();
    return store->writeAccount(toServerInfo(provider));
}

bool SavedAccount::restore(Provider* provider)
{
    const StreamingManager* store = StreamingManager::getInstancePtr();
    if (!store || !provider)
        return false;
    for (const ServerInfo& info : store->accounts()) {
        if (info.oauth.provider == provider->name()) {
            apply(info, provider);
            return true;
        }
    }
    return false;
}
