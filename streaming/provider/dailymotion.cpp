#include "provider/dailymotion.h"

#include "provider/jsonreader.h"
#include "provider/serviceconfig.h"
#include "provider/viewinterface.h"

#include <QUrlQuery>

DailyMotion::DailyMotion(ViewInterface* view)
    : Provider(view, QStringLiteral("DailyMotion"))
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setIcon(QPixmap(QStringLiteral(":/resources/dailymotion.png")));
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::DailyMotionHome)));
    setClientId(ServiceConfig::value(ServiceConfig::DailyMotionClientId));
    setClientSecret(ServiceConfig::value(ServiceConfig::DailyMotionClientSecret));
}

DailyMotion::~DailyMotion() = default;

bool DailyMotion::authorize(const QUrl& redirect)
{
    const QString tag = QStringLiteral("authorize");
    if (redirect.isEmpty()) {
        if (m_clientId.isEmpty() || m_clientSecret.isEmpty())
            return refuseUnconfigured({ServiceConfig::settingsKey(ServiceConfig::DailyMotionClientId),
                                       ServiceConfig::settingsKey(ServiceConfig::DailyMotionClientSecret)});
        const QUrl page = ServiceConfig::url(ServiceConfig::DailyMotionWeb,
                                             QStringLiteral("/oauth/authorize?response_type=code&client_id=%1&redirect_uri=")
                                                     .arg(m_clientId)
                                                 + ServiceConfig::redirectUrl()
                                                 + QStringLiteral("&scope=userinfo+manage_videos"));
        if (view())
            view()->openWebAuthorize(page);
        return true;
    }
    if (!redirect.isValid()) {
        setLastError(tag, tr("The authorization page went to an address that is not valid."));
        return false;
    }

    const QUrlQuery query(redirect);
    if (query.hasQueryItem(QStringLiteral("error"))) {
        // The user turned the request down; the service says why in the redirect.
        QJsonObject denial;
        for (const auto& item : query.queryItems(QUrl::FullyDecoded))
            denial.insert(item.first, item.second);
        return !parseError(denial, tag);
    }
    const QString code = query.queryItemValue(QStringLiteral("code"), QUrl::FullyDecoded);
    if (code.isEmpty())
        return true;

    if (view())
        view()->closeWebAuthorize();
    QString form = QStringLiteral("code=%1&").arg(encoded(code));
    form += QStringLiteral("client_id=%1&").arg(encoded(m_clientId));
    form += QStringLiteral("client_secret=%1&").arg(encoded(m_clientSecret));
    form += QStringLiteral("redirect_uri=%1&").arg(encoded(ServiceConfig::redirectUrl()));
    form += QStringLiteral("grant_type=authorization_code");
    const QJsonObject token = post(formRequest(ServiceConfig::url(ServiceConfig::DailyMotionApi, QStringLiteral("/oauth/token?"))),
                                   form.toUtf8());
    if (!checkReply(token, tag))
        return false;
    QString accessToken;
    QString uid;
    if (!JsonReader::requiredText(token, QStringLiteral("access_token"), &accessToken)
        || !JsonReader::identifier(token, QStringLiteral("uid"), &uid))
        return unexpectedReply(tag);
    m_accessToken = accessToken;
    m_username = uid;
    m_loggedIn = true;
    return loadChannels();
}

bool DailyMotion::loadChannels()
{
    m_account.channels.clear();
    m_account.events.clear();
    m_account.categories.clear();

    const QString channelTag = QStringLiteral("channelObj");
    const QJsonObject videos = get(bearerRequest(
        ServiceConfig::url(ServiceConfig::DailyMotionApi, QStringLiteral("/user/%1/videos").arg(encoded(m_username)))));
    if (!checkReply(videos, channelTag))
        return false;
    QList<QJsonObject> list;
    if (!JsonReader::objects(videos, QStringLiteral("list"), &list))
        return unexpectedReply(channelTag);

    QList<LiveChannel> channels;
    QList<EventInfo> events;
    for (const QJsonObject& video : list) {
        QString id;
        QString title;
        QString category;
        if (!JsonReader::requiredText(video, QStringLiteral("id"), &id)
            || !JsonReader::text(video, QStringLiteral("title"), &title)
            || !JsonReader::text(video, QStringLiteral("channel"), &category))
            return unexpectedReply(channelTag);
        LiveChannel channel;
        bool found = false;
        if (!publishChannel(id, title, category, &channel, &found))
            return false;
        if (!found)
            continue;
        channels.append(channel);
        EventInfo event;
        event.id = id;
        event.title = title;
        event.category = category;
        events.append(event);
    }

    const QString categoryTag = QStringLiteral("categoryObj");
    const QJsonObject reply = get(QNetworkRequest(ServiceConfig::url(
        ServiceConfig::DailyMotionApi,
        QStringLiteral("/channels?fields=created_time,id,name,updated_time&sort=popular&page=1&limit=50"))));
    if (!checkReply(reply, categoryTag))
        return false;
    QList<QJsonObject> categoryList;
    if (!JsonReader::objects(reply, QStringLiteral("list"), &categoryList))
        return unexpectedReply(categoryTag);
    QList<LabelPair> categories;
    for (const QJsonObject& entry : categoryList) {
        LabelPair category;
        if (!JsonReader::text(entry, QStringLiteral("name"), &category.first)
            || !JsonReader::requiredText(entry, QStringLiteral("id"), &category.second))
            return unexpectedReply(categoryTag);
        categories.append(category);
    }

    m_account.channels = channels;
    m_account.events = events;
    m_account.categories = categories;
    return true;
}

bool DailyMotion::createEvent(const EventInfo& event, const LiveChannel&)
{
    const QString tag = QStringLiteral("createObj");
    QString form = QStringLiteral("mode=%1&").arg(QStringLiteral("live"));
    form += QStringLiteral("title=%1&").arg(encoded(event.title));
    form += QStringLiteral("channel=%1").arg(encoded(event.category));
    QNetworkRequest request = bearerRequest(ServiceConfig::url(ServiceConfig::DailyMotionApi, QStringLiteral("/videos?")));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));
    const QJsonObject reply = post(request, form.toUtf8());
    if (!checkReply(reply, tag))
        return false;
    QString id;
    if (!JsonReader::requiredText(reply, QStringLiteral("id"), &id))
        return unexpectedReply(tag);

    LiveChannel channel;
    bool found = false;
    if (!publishChannel(id, event.title, event.category, &channel, &found))
        return false;
    if (found)
        m_account.channels.append(channel);
    return loadChannels();
}

bool DailyMotion::deleteEvent(const LiveChannel& channel)
{
    const QJsonObject reply = deleteResource(QNetworkRequest(ServiceConfig::url(
        ServiceConfig::DailyMotionApi,
        QStringLiteral("/video/%1?access_token=%2").arg(encoded(channel.id), encoded(m_accessToken)))));
    if (!checkReply(reply, QStringLiteral("deleteStream")))
        return false;
    return loadChannels();
}

bool DailyMotion::updateEvent(const EventInfo& event, const LiveChannel& channel)
{
    QString form = QStringLiteral("title=%1&").arg(encoded(event.title));
    form += QStringLiteral("channel=%1").arg(encoded(event.category));
    QNetworkRequest request = bearerRequest(
        ServiceConfig::url(ServiceConfig::DailyMotionApi, QStringLiteral("/video/%1?").arg(encoded(channel.id))));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));
    const QJsonObject reply = post(request, form.toUtf8());
    if (!checkReply(reply, QStringLiteral("updateVideo")))
        return false;
    return loadChannels();
}

bool DailyMotion::publishChannel(const QString& id, const QString& title, const QString& category,
                                 LiveChannel* channel, bool* found)
{
    const QString tag = QStringLiteral("streamKeyObj");
    *found = false;
    const QJsonObject reply = get(QNetworkRequest(ServiceConfig::url(
        ServiceConfig::DailyMotionApi,
        QStringLiteral("/video/%1?fields=live_publish_url&access_token=%2").arg(encoded(id), encoded(m_accessToken)))));
    if (!checkReply(reply, tag))
        return false;
    QString publishUrl;
    if (!JsonReader::text(reply, QStringLiteral("live_publish_url"), &publishUrl))
        return unexpectedReply(tag);

    // "rtmp://host/path/<id>?auth=..." gives the URL before the id and the key from it on.
    const QStringList pieces = publishUrl.split(id);
    if (pieces.size() != 2 || pieces.first().isEmpty())
        return true;
    channel->name = title;
    channel->id = id;
    channel->category = category;
    channel->streamUrl = pieces.first().chopped(1);
    channel->streamKey = id + pieces.last();
    channel->watchUrl = ServiceConfig::url(ServiceConfig::DailyMotionWeb, QStringLiteral("/video/%1_%2_%3").arg(encoded(id), encoded(title), encoded(category)))
                            .toString();
    *found = true;
    return true;
}

QNetworkRequest DailyMotion::bearerRequest(const QUrl& url) const
{
    QNetworkRequest request(url);
    request.setRawHeader("Authorization", QStringLiteral("Bearer %1").arg(m_accessToken).toUtf8());
    return request;
}
