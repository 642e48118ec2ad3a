#include "provider/youtube.h"

#include "provider/jsonreader.h"
#include "provider/oauthredirect.h"
#include "provider/serviceconfig.h"
#include "provider/viewinterface.h"
#include "provider/youtubebodies.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

namespace {

const QString scope = QStringLiteral("https://www.googleapis.com/auth/youtube");
const QString broadcastsPath = QStringLiteral("/youtube/v3/liveBroadcasts?part=id,snippet,contentDetails,status&"
                                              "fields=contentDetails,id,snippet,statistics,status&access_token=%1");

QByteArray compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Ids joined with "," for a query; the commas stay as they are.
QString idList(const QStringList& ids)
{
    QStringList encoded;
    for (const QString& id : ids)
        encoded.append(QString::fromLatin1(QUrl::toPercentEncoding(id)));
    return encoded.join(QLatin1Char(','));
}

} // namespace

YouTube::YouTube(ViewInterface* view)
    : YouTube(view, QStringLiteral("YouTube API"))
{
}

YouTube::YouTube(ViewInterface* view, const QString& name)
    : Provider(view, name)
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::YouTubeHome)));
    setClientId(ServiceConfig::value(ServiceConfig::YouTubeClientId));
    setClientSecret(ServiceConfig::value(ServiceConfig::YouTubeClientSecret));
}

YouTube::~YouTube() = default;

QUrl YouTube::redirectTarget()
{
    return QUrl(ServiceConfig::redirectUrl());
}

QUrl YouTube::apiUrl(const QString& pathAndQuery)
{
    return ServiceConfig::url(ServiceConfig::YouTubeApi, pathAndQuery);
}

bool YouTube::authorize(const QUrl& redirect)
{
    const QString tag = QStringLiteral("authorize");
    if (redirect.isEmpty()) {
        if (m_clientId.isEmpty() || m_clientSecret.isEmpty())
            return refuseUnconfigured({ServiceConfig::settingsKey(ServiceConfig::YouTubeClientId),
                                       ServiceConfig::settingsKey(ServiceConfig::YouTubeClientSecret)});
        const QUrl page = ServiceConfig::url(ServiceConfig::YouTubeOAuth,
                                             QStringLiteral("/o/oauth2/auth?client_id=%1&redirect_uri=").arg(encoded(m_clientId))
                                                 + ServiceConfig::redirectUrl() + QStringLiteral("&scope=") + scope
                                                 + QStringLiteral("&response_type=code"));
        if (view())
            view()->openWebAuthorize(page);
        return true;
    }
    if (!OAuthRedirect::reaches(redirect, redirectTarget()))
        return true;
    const QUrlQuery items = OAuthRedirect::items(redirect);
    const QJsonObject denial = OAuthRedirect::denial(items);
    const QString code = items.queryItemValue(QStringLiteral("code"), QUrl::FullyDecoded);
    if (denial.isEmpty() && code.isEmpty())
        return true;

    if (view())
        view()->closeWebAuthorize();
    if (!denial.isEmpty())
        return !parseError(denial, tag);
    QString form = QStringLiteral("code=%1&").arg(encoded(code));
    form += QStringLiteral("client_id=%1&").arg(encoded(m_clientId));
    form += QStringLiteral("client_secret=%1&").arg(encoded(m_clientSecret));
    form += QStringLiteral("redirect_uri=%1&").arg(encoded(ServiceConfig::redirectUrl()));
    form += QStringLiteral("grant_type=authorization_code");
    const QJsonObject token = post(
        formRequest(ServiceConfig::url(ServiceConfig::YouTubeOAuth, QStringLiteral("/o/oauth2/token?"))), form.toUtf8());
    if (!checkReply(token, tag))
        return false;
    QString accessToken;
    if (!JsonReader::requiredText(token, QStringLiteral("access_token"), &accessToken))
        return unexpectedReply(tag);
    m_accessToken = accessToken;
    return loadChannels();
}

bool YouTube::loadChannels()
{
    m_account.channels.clear();
    m_account.events.clear();
    m_account.servers.clear();
    m_account.categories.clear();
    m_account.privacies.clear();

    const QString tag = QStringLiteral("channelObj");
    const QJsonObject list = get(QNetworkRequest(apiUrl(
        QStringLiteral("/youtube/v3/liveBroadcasts?part=snippet,contentDetails,status&broadcastStatus=all&"
                       "broadcastType=all&maxResults=%1&fields=items(contentDetails/boundStreamId,id,"
                       "snippet(description,isDefaultBroadcast,scheduledEndTime,scheduledStartTime,channelId,title,"
                       "liveChatId),status/privacyStatus)&access_token=%2")
            .arg(maxBroadcasts)
            .arg(tokenItem()))));
    if (!checkReply(list, tag))
        return false;
    QList<QJsonObject> items;
    if (!JsonReader::objects(list, QStringLiteral("items"), &items))
        return unexpectedReply(tag);

    QList<LiveChannel> channels;
    QList<EventInfo> events;
    QStringList boundIds; // per channel
    for (const QJsonObject& item : items.mid(0, maxBroadcasts)) {
        const QJsonObject details = item.value(QStringLiteral("contentDetails")).toObject();
        const QJsonObject snippet = item.value(QStringLiteral("snippet")).toObject();
        QString boundId;
        if (!JsonReader::text(details, QStringLiteral("boundStreamId"), &boundId))
            return unexpectedReply(tag);
        if (boundId.isEmpty())
            continue; // no stream to send to
        LiveChannel channel;
        EventInfo event;
        if (!JsonReader::requiredText(item, QStringLiteral("id"), &channel.id)
            || !JsonReader::text(snippet, QStringLiteral("title"), &channel.name)
            || !JsonReader::text(snippet, QStringLiteral("description"), &channel.description)
            || !JsonReader::text(snippet, QStringLiteral("liveChatId"), &channel.chatId)
            || !JsonReader::text(snippet, QStringLiteral("scheduledStartTime"), &event.startTime)
            || !JsonReader::text(snippet, QStringLiteral("scheduledEndTime"), &event.endTime)
            || !JsonReader::text(item.value(QStringLiteral("status")).toObject(), QStringLiteral("privacyStatus"),
                                 &event.privacy))
            return unexpectedReply(tag);
        if (snippet.value(QStringLiteral("isDefaultBroadcast")).toBool())
            channel.flags |= LiveChannel::DefaultBroadcast;
        event.id = channel.id;
        event.title = channel.name;
        event.description = channel.description;
        channels.append(channel);
        events.append(event);
        boundIds.append(boundId);
    }

    if (!channels.isEmpty()) {
        QStringList streamIds = boundIds;
        streamIds.removeDuplicates();
        if (!loadStreams(streamIds, boundIds, &channels) || !loadVideos(&channels, &events))
            return false;
    }
    m_account.channels = channels;
    m_account.events = events;
    if (!loadCategories())
        return false;
    for (const char* privacy : {"public", "private", "unlisted"})
        m_account.privacies.append({QLatin1String(privacy), QLatin1String(privacy)});
    return true;
}

bool YouTube::loadStreams(const QStringList& streamIds, const QStringList& boundIds, QList<LiveChannel>* channels)
{
    const QString tag = QStringLiteral("streamKeyObj");
    const QJsonObject reply = get(QNetworkRequest(apiUrl(QStringLiteral("/youtube/v3/liveStreams?part=id,cdn&id=%1&access_token=%2")
                                                             .arg(idList(streamIds), tokenItem()))));
    if (!checkReply(reply, tag))
        return false;
    QList<QJsonObject> streams;
    if (!JsonReader::objects(reply, QStringLiteral("items"), &streams))
        return unexpectedReply(tag);
    for (const QJsonObject& stream : streams) {
        const QJsonObject ingestion =
            stream.value(QStringLiteral("cdn")).toObject().value(QStringLiteral("ingestionInfo")).toObject();
        QString id;
        QString address;
        QString backup;
        QString name;
        if (!JsonReader::requiredText(stream, QStringLiteral("id"), &id)
            || !JsonReader::text(ingestion, QStringLiteral("ingestionAddress"), &address)
            || !JsonReader::text(ingestion, QStringLiteral("backupIngestionAddress"), &backup)
            || !JsonReader::text(ingestion, QStringLiteral("streamName"), &name))
            return unexpectedReply(tag);
        m_account.servers.append({QCoreApplication::translate("BaseWidget", "Main Server"), address});
        m_account.servers.append({QCoreApplication::translate("BaseWidget", "Backup Server"), backup});
        // One stream may be bound to several broadcasts.
        for (int i = 0; i < channels->size(); ++i) {
            if (boundIds.at(i) != id)
                continue;
            LiveChannel& channel = (*channels)[i];
            channel.streamUrl = address;
            channel.streamKey = name;
            channel.watchUrl =
                ServiceConfig::url(ServiceConfig::YouTubeWeb, QStringLiteral("/watch?v=%1").arg(encoded(channel.id)))
                    .toString();
        }
    }
    return true;
}

bool YouTube::loadVideos(QList<LiveChannel>* channels, QList<EventInfo>* events)
{
    const QString tag = QStringLiteral("videoObj");
    QStringList ids;
    for (const LiveChannel& channel : qAsConst(*channels))
        ids.append(channel.id);
    const QJsonObject reply = get(QNetworkRequest(
        apiUrl(QStringLiteral("/youtube/v3/videos?part=snippet&id=%1&fields=items(id,snippet(categoryId,channelId,tags))&"
                              "access_token=%2")
                   .arg(idList(ids), tokenItem()))));
    if (!checkReply(reply, tag))
        return false;
    QList<QJsonObject> videos;
    if (!JsonReader::objects(reply, QStringLiteral("items"), &videos))
        return unexpectedReply(tag);
    for (const QJsonObject& video : videos) {
        const QJsonObject snippet = video.value(QStringLiteral("snippet")).toObject();
        QString id;
        QString category;
        if (!JsonReader::requiredText(video, QStringLiteral("id"), &id)
            || !JsonReader::text(snippet, QStringLiteral("categoryId"), &category))
            return unexpectedReply(tag);
        QStringList tags;
        for (const QJsonValue& value : snippet.value(QStringLiteral("tags")).toArray())
            tags.append(value.toString());
        const int index = ids.indexOf(id);
        if (index < 0)
            continue;
        (*channels)[index].category = category;
        (*events)[index].category = category;
        (*events)[index].tags = tags.join(QLatin1Char(','));
    }
    return true;
}

bool YouTube::loadCategories()
{
    const QString tag = QStringLiteral("categoryObj");
    const QJsonObject reply = get(QNetworkRequest(apiUrl(
        QStringLiteral("/youtube/v3/videoCategories?part=snippet&regionCode=%1&fields=items(id,snippet(assignable,title))&"
                       "access_token=%2")
            .arg(encoded(YouTubeBodies::regionCode(QLocale().name())), tokenItem()))));
    if (!checkReply(reply, tag))
        return false;
    QList<QJsonObject> categories;
    if (!JsonReader::objects(reply, QStringLiteral("items"), &categories))
        return unexpectedReply(tag);
    for (const QJsonObject& category : categories) {
        const QJsonObject snippet = category.value(QStringLiteral("snippet")).toObject();
        LabelPair pair;
        if (!JsonReader::requiredText(category, QStringLiteral("id"), &pair.second)
            || !JsonReader::text(snippet, QStringLiteral("title"), &pair.first))
            return unexpectedReply(tag);
        if (snippet.value(QStringLiteral("assignable")).toBool())
            m_account.categories.append(pair);
    }
    return true;
}

bool YouTube::sendBroadcast(const EventInfo& event, QJsonObject* reply)
{
    const QNetworkRequest request = jsonRequest(apiUrl(broadcastsPath.arg(tokenItem())));
    const QByteArray body = compact(YouTubeBodies::broadcast(event));
    *reply = event.id.isEmpty() ? post(request, body) : put(request, body);
    return checkReply(*reply, QStringLiteral("createBroadcast"));
}

bool YouTube::createEvent(const EventInfo& event, const LiveChannel&)
{
    QJsonObject broadcast;
    if (!sendBroadcast(event, &broadcast))
        return false;
    QString broadcastId;
    if (!JsonReader::requiredText(broadcast, QStringLiteral("id"), &broadcastId))
        return unexpectedReply(QStringLiteral("createBroadcast"));

    const QString streamTag = QStringLiteral("createStream");
    const QJsonObject stream = post(
        jsonRequest(apiUrl(QStringLiteral("/youtube/v3/liveStreams?part=id,snippet,cdn,status&"
                                          "fields=cdn,contentDetails,etag,id,kind,snippet,status&access_token=%1")
                               .arg(tokenItem()))),
        compact(YouTubeBodies::stream(broadcast)));
    if (!checkReply(stream, streamTag))
        return false;
    QString streamId;
    if (!JsonReader::requiredText(stream, QStringLiteral("id"), &streamId))
        return unexpectedReply(streamTag);

    QString form = QStringLiteral("id=%1&").arg(encoded(broadcastId));
    form += QStringLiteral("streamId=%1").arg(encoded(streamId));
    const QJsonObject bind = post(
        formRequest(apiUrl(QStringLiteral("/youtube/v3/liveBroadcasts/bind?part=contentDetails&"
                                          "fields=contentDetails,id,snippet,status&access_token=%1")
                               .arg(tokenItem()))),
        form.toUtf8());
    if (!checkReply(bind, QStringLiteral("createBind")))
        return false;
    return loadChannels();
}

bool YouTube::updateEvent(const EventInfo& event, const LiveChannel& channel)
{
    EventInfo changed = event;
    if (changed.id.isEmpty())
        changed.id = channel.id;
    const QJsonObject video = put(
        jsonRequest(apiUrl(QStringLiteral("/youtube/v3/videos?part=snippet,contentDetails,fileDetails,player,"
                                          "processingDetails,recordingDetails,statistics,status,suggestions&"
                                          "fields=id,snippet,status&access_token=%1")
                               .arg(tokenItem()))),
        compact(YouTubeBodies::video(changed)));
    if (!checkReply(video, QStringLiteral("updateVideo")))
        return false;
    QJsonObject broadcast;
    if (!sendBroadcast(changed, &broadcast))
        return false;
    return loadChannels();
}

bool YouTube::deleteEvent(const LiveChannel& channel)
{
    const QJsonObject reply = deleteResource(QNetworkRequest(
        apiUrl(QStringLiteral("/youtube/v3/liveBroadcasts?id=%1&access_token=%2").arg(encoded(channel.id), tokenItem()))));
    if (!checkReply(reply, QStringLiteral("deleteStream")))
        return false;
    return loadChannels();
}

bool YouTube::isAuthorized() const
{
    return !m_accessToken.isEmpty();
}

bool YouTube::revoke()
{
    const QJsonObject reply = get(QNetworkRequest(
        ServiceConfig::url(ServiceConfig::YouTubeOAuth, QStringLiteral("/o/oauth2/revoke?token=%1").arg(tokenItem()))));
    if (!checkReply(reply, QStringLiteral("revokeObj")))
        return false;
    m_accessToken.clear();
    return true;
}

QString YouTube::liveChatId(const QString& broadcastId) const
{
    for (const LiveChannel& channel : m_account.channels)
        if (channel.id == broadcastId)
            return channel.chatId;
    return QString();
}
