#include "provider/facebook.h"

#include "provider/jsonreader.h"
#include "provider/oauthredirect.h"
#include "provider/serviceconfig.h"
#include "provider/viewinterface.h"

namespace {
const QString scope = QStringLiteral("manage_pages,publish_pages,public_profile,publish_actions,user_videos");
} // namespace

Facebook::Facebook(ViewInterface* view)
    : Provider(view, QStringLiteral("Facebook"))
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setIcon(QPixmap(QStringLiteral(":/resources/facebook.png")));
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::FacebookHome)));
    setClientId(ServiceConfig::value(ServiceConfig::FacebookClientId));
    setClientSecret(ServiceConfig::value(ServiceConfig::FacebookClientSecret));
}

Facebook::~Facebook() = default;

QUrl Facebook::loginSuccessPage()
{
    return ServiceConfig::url(ServiceConfig::FacebookWeb, QStringLiteral("/connect/login_success.html"));
}

QUrl Facebook::graphUrl(const QString& pathAndQuery)
{
    return ServiceConfig::url(ServiceConfig::FacebookGraph, pathAndQuery);
}

bool Facebook::authorize(const QUrl& redirect)
{
    const QString tag = QStringLiteral("userTokenObj");
    const QString successPage = loginSuccessPage().toString();
    if (redirect.isEmpty()) {
        if (m_clientId.isEmpty() || m_clientSecret.isEmpty())
            return refuseUnconfigured({ServiceConfig::settingsKey(ServiceConfig::FacebookClientId),
                                       ServiceConfig::settingsKey(ServiceConfig::FacebookClientSecret)});
        const QUrl page = ServiceConfig::url(
            ServiceConfig::FacebookWeb, QStringLiteral("/v2.8/dialog/oauth?client_id=%1&redirect_uri=").arg(encoded(m_clientId))
                                            + successPage + QStringLiteral("&response_type=code&scope=") + scope);
        if (view())
            view()->openWebAuthorize(page);
        return true;
    }
    if (!OAuthRedirect::reaches(redirect, loginSuccessPage()))
        return true;
    // The service adds "#_=_" after the code; the query and the fragment are read alike.
    const QUrlQuery items = OAuthRedirect::items(redirect);
    const QJsonObject denial = OAuthRedirect::denial(items);
    const QString code = items.queryItemValue(QStringLiteral("code"), QUrl::FullyDecoded);
    if (denial.isEmpty() && code.isEmpty())
        return true;
    if (view())
        view()->closeWebAuthorize();
    if (!denial.isEmpty())
        return !parseError(denial, tag);
    m_refreshToken = code;

    const QJsonObject token = get(QNetworkRequest(graphUrl(
        QStringLiteral("/v2.8/oauth/access_token?client_id=%1&redirect_uri=%2&client_secret=%3&code=%4")
            .arg(encoded(m_clientId), successPage, encoded(m_clientSecret), encoded(code)))));
    if (!checkReply(token, tag))
        return false;
    QString accessToken;
    if (!JsonReader::requiredText(token, QStringLiteral("access_token"), &accessToken))
        return unexpectedReply(tag);
    m_accessToken = accessToken;
    return loadChannels();
}

bool Facebook::loadChannels()
{
    m_account.pages.clear();
    m_account.channels.clear();
    m_account.events.clear();
    m_account.privacies.clear();

    const QString tag = QStringLiteral("pageTokenObj");
    const QJsonObject me =
        get(QNetworkRequest(graphUrl(QStringLiteral("/v2.8/me/?fields=accounts,name&access_token=%1").arg(encoded(m_accessToken)))));
    if (!checkReply(me, tag))
        return false;
    PageInfo user{m_accessToken, QString(), QString()};
    QList<QJsonObject> managed;
    const QJsonValue accounts = me.value(QStringLiteral("accounts"));
    if (!JsonReader::identifier(me, QStringLiteral("id"), &user.id) || !JsonReader::text(me, QStringLiteral("name"), &user.name)
        || (!accounts.isUndefined() && !JsonReader::objects(accounts.toObject(), QStringLiteral("data"), &managed)))
        return unexpectedReply(tag);
    QList<PageInfo> pages{user};
    for (const QJsonObject& account : managed) {
        PageInfo page;
        if (!JsonReader::requiredText(account, QStringLiteral("access_token"), &page.accessToken)
            || !JsonReader::identifier(account, QStringLiteral("id"), &page.id)
            || !JsonReader::text(account, QStringLiteral("name"), &page.name))
            return unexpectedReply(tag);
        pages.append(page);
    }
    m_account.userId = user.id;
    m_account.displayName = user.name;
    m_account.pages = pages;

    QList<LiveChannel> channels;
    QList<EventInfo> events;
    for (const PageInfo& owner : pages)
        listVideos(owner, &channels, &events); // one owner's failure leaves the others listed
    m_account.channels = channels;
    m_account.events = events;
    for (const char* privacy : {"EVERYONE", "ALL_FRIENDS", "FRIENDS_OF_FRIENDS", "SELF"})
        m_account.privacies.append({QLatin1String(privacy), QLatin1String(privacy)});
    return true;
}

bool Facebook::listVideos(const PageInfo& owner, QList<LiveChannel>* channels, QList<EventInfo>* events)
{
    const QString tag = QStringLiteral("videoObj");
    const QJsonObject reply = get(QNetworkRequest(graphUrl(
        QStringLiteral("/v2.8/%1/?fields=live_videos{embed_html,stream_url,title,description,status}&access_token=%2")
            .arg(encoded(owner.id), encoded(owner.accessToken)))));
    if (!checkReply(reply, tag)) {
        qCWarning(lcProvider) << name() << "skips the live videos of one owner:" << tag;
        return false;
    }
    // An owner without live videos has no "live_videos" member at all.
    QList<QJsonObject> videos;
    const QJsonValue list = reply.value(QStringLiteral("live_videos"));
    if (!list.isUndefined() && !JsonReader::objects(list.toObject(), QStringLiteral("data"), &videos)) {
        unexpectedReply(tag);
        return false;
    }
    for (const QJsonObject& video : videos) {
        QString status;
        LiveChannel channel;
        QString embedHtml;
        QString streamUrl;
        if (!JsonReader::text(video, QStringLiteral("status"), &status)
            || !JsonReader::identifier(video, QStringLiteral("id"), &channel.id)
            || !JsonReader::text(video, QStringLiteral("title"), &channel.name)
            || !JsonReader::text(video, QStringLiteral("description"), &channel.description)
            || !JsonReader::text(video, QStringLiteral("embed_html"), &embedHtml)
            || !JsonReader::text(video, QStringLiteral("stream_url"), &streamUrl)) {
            unexpectedReply(tag);
            return false;
        }
        if (status != QLatin1String("LIVE_NOW") && status != QLatin1String("UNPUBLISHED"))
            continue;
        if (!splitStreamUrl(streamUrl, channel.id, &channel.streamUrl, &channel.streamKey))
            continue;
        if (channel.name.isEmpty())
            channel.name = tr("Untitled");
        channel.watchUrl = watchLink(embedHtml);
        channel.ownerId = owner.id;
        channel.ownerToken = owner.accessToken;
        if (status == QLatin1String("LIVE_NOW"))
            channel.flags |= LiveChannel::LiveNow;
        channels->append(channel);
        EventInfo event;
        event.id = channel.id;
        event.title = channel.name;
        event.description = channel.description;
        events->append(event);
    }
    return true;
}

QString Facebook::watchLink(const QString& embedHtml)
{
    const QString first = embedHtml.split(QLatin1Char('&')).first();
    return QUrl::fromPercentEncoding(first.split(QLatin1Char('=')).last().toUtf8());
}

bool Facebook::splitStreamUrl(const QString& streamUrl, const QString& id, QString* url, QString* key)
{
    const QStringList pieces = id.isEmpty() ? QStringList() : streamUrl.split(id);
    if (pieces.size() != 2 || pieces.first().isEmpty())
        return false;
    *url = pieces.first().chopped(1);
    *key = id + pieces.last();
    return true;
}

QString Facebook::tokenFor(const LiveChannel& channel) const
{
    return channel.ownerToken.isEmpty() ? m_accessToken : channel.ownerToken;
}

bool Facebook::createEvent(const EventInfo& event, const LiveChannel& channel)
{
    PageInfo owner{channel.ownerToken, channel.ownerId, QString()};
    if (!m_account.pageId.isEmpty())
        owner = PageInfo{m_account.pageToken, m_account.pageId, QString()};
    if (owner.id.isEmpty() && !m_account.pages.isEmpty())
        owner = m_account.pages.first();
    if (owner.accessToken.isEmpty())
        owner.accessToken = m_accessToken;

    QString form = QStringLiteral("title=%1&").arg(encoded(event.title));
    form += QStringLiteral("description=%1&").arg(encoded(event.description));
    form += QStringLiteral("privacy=%7B%22value%22%3A%22%1%22%7D&").arg(encoded(event.privacy));
    form += QStringLiteral("stream_type=%1&").arg(encoded(event.streamType));
    form += QStringLiteral("access_token=%1").arg(encoded(owner.accessToken));
    const QJsonObject reply =
        post(formRequest(graphUrl(QStringLiteral("/v2.8/%1/live_videos?").arg(encoded(owner.id)))), form.toUtf8());
    if (!checkReply(reply, QStringLiteral("streamKeyObj")))
        return false;
    return loadChannels();
}

bool Facebook::updateEvent(const EventInfo& event, const LiveChannel& channel)
{
    const QString id = event.id.isEmpty() ? channel.id : event.id;
    QString form = QStringLiteral("title=%1&").arg(encoded(event.title));
    form += QStringLiteral("description=%1&").arg(encoded(event.description));
    form += QStringLiteral("value=%1&").arg(encoded(event.privacy));
    form += QStringLiteral("access_token=%1").arg(encoded(tokenFor(channel)));
    const QJsonObject reply = post(formRequest(graphUrl(QStringLiteral("/v2.8/%1?").arg(encoded(id)))), form.toUtf8());
    if (!checkReply(reply, QStringLiteral("updateVideo")))
        return false;
    return loadChannels();
}

bool Facebook::deleteEvent(const LiveChannel& channel)
{
    QString form = QStringLiteral("end_live_video=true&");
    form += QStringLiteral("access_token=%1").arg(encoded(tokenFor(channel)));
    const QJsonObject reply =
        post(formRequest(graphUrl(QStringLiteral("/v2.8/%1?").arg(encoded(channel.id)))), form.toUtf8());
    if (!checkReply(reply, QStringLiteral("removeVideo")))
        return false;
    return loadChannels();
}

bool Facebook::isAuthorized() const
{
    return !m_accessToken.isEmpty();
}

bool Facebook::revoke()
{
    const QJsonObject reply = deleteResource(QNetworkRequest(graphUrl(
        QStringLiteral("/v3.0/%1/permissions?access_token=%2").arg(encoded(m_account.userId), encoded(m_accessToken)))));
    if (!checkReply(reply, QStringLiteral("revokeObj")))
        return false;
    m_accessToken.clear();
    return true;
}

quint32 Facebook::features(bool alternate) const
{
    return alternate ? updateFields : createFields;
}
