#include "provider/twitch.h"

#include "provider/jsonreader.h"
#include "provider/oauthredirect.h"
#include "provider/serviceconfig.h"
#include "provider/viewinterface.h"

Twitch::Twitch(ViewInterface* view)
    : Twitch(view, QStringLiteral("Twitch"))
{
}

Twitch::Twitch(ViewInterface* view, const QString& name)
    : Provider(view, name)
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setIcon(QPixmap(QStringLiteral(":/resources/twitch.png")));
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::TwitchHome)));
    setClientId(ServiceConfig::value(ServiceConfig::TwitchClientId));
}

Twitch::~Twitch() = default;

QString Twitch::ingestUrl(const QString& urlTemplate)
{
    return QString(urlTemplate).remove(QStringLiteral("/{stream_key}"));
}

QNetworkRequest Twitch::apiRequest(const QString& pathAndQuery, const QByteArray& accept) const
{
    QNetworkRequest request(ServiceConfig::url(ServiceConfig::TwitchApi, pathAndQuery));
    request.setRawHeader("Authorization", QStringLiteral("OAuth %1").arg(m_accessToken).toUtf8());
    request.setRawHeader("Accept", accept);
    return request;
}

bool Twitch::authorize(const QUrl& redirect)
{
    const QString tag = QStringLiteral("authorize");
    if (redirect.isEmpty()) {
        if (m_clientId.isEmpty())
            return refuseUnconfigured({ServiceConfig::settingsKey(ServiceConfig::TwitchClientId)});
        const QUrl page = ServiceConfig::url(ServiceConfig::TwitchApi,
                                             QStringLiteral("/kraken/oauth2/authorize?response_type=token&client_id=%1&"
                                                            "redirect_uri=")
                                                     .arg(encoded(m_clientId))
                                                 + ServiceConfig::redirectUrl()
                                                 + QStringLiteral("&scope=user_read+channel_read+chat_login"));
        if (view())
            view()->openWebAuthorize(page);
        return true;
    }
    if (!OAuthRedirect::reaches(redirect, QUrl(ServiceConfig::redirectUrl())))
        return true;
    const QUrlQuery items = OAuthRedirect::items(redirect);
    const QJsonObject denial = OAuthRedirect::denial(items);
    const QString token = items.queryItemValue(QStringLiteral("access_token"), QUrl::FullyDecoded);
    if (denial.isEmpty() && token.isEmpty())
        return true; // not approved yet
    if (view())
        view()->closeWebAuthorize();
    if (!denial.isEmpty())
        return !parseError(denial, tag);
    m_accessToken = token;
    m_account.servers.clear();
    m_account.channels.clear();

    const QString serverTag = QStringLiteral("serverObj");
    const QJsonObject ingests = get(QNetworkRequest(
        ServiceConfig::url(ServiceConfig::TwitchApi, QStringLiteral("/kraken/ingests?client_id=%1").arg(encoded(m_clientId)))));
    if (!checkReply(ingests, serverTag))
        return false;
    QList<QJsonObject> list;
    if (!JsonReader::objects(ingests, QStringLiteral("ingests"), &list))
        return unexpectedReply(serverTag);
    QList<LabelPair> servers;
    for (const QJsonObject& ingest : list) {
        LabelPair server;
        if (!JsonReader::text(ingest, QStringLiteral("name"), &server.first)
            || !JsonReader::requiredText(ingest, QStringLiteral("url_template"), &server.second))
            return unexpectedReply(serverTag);
        server.second = ingestUrl(server.second);
        servers.append(server);
    }
    m_account.servers = servers;

    const QString channelTag = QStringLiteral("streamKeyObj");
    const QJsonObject reply = get(apiRequest(QStringLiteral("/kraken/channel"), "application/vnd.twitchtv.v3+json"));
    if (!checkReply(reply, channelTag))
        return false;
    LiveChannel channel;
    QString displayName;
    if (!JsonReader::requiredText(reply, QStringLiteral("name"), &channel.id)
        || !JsonReader::requiredText(reply, QStringLiteral("stream_key"), &channel.streamKey)
        || !JsonReader::text(reply, QStringLiteral("display_name"), &displayName))
        return unexpectedReply(channelTag);
    channel.name = displayName.isEmpty() ? channel.id : displayName;
    channel.watchUrl = ServiceConfig::url(ServiceConfig::TwitchWeb, QStringLiteral("/%1").arg(encoded(channel.id))).toString();
    channel.streamUrl = ServiceConfig::value(ServiceConfig::TwitchIngest) + QStringLiteral("/app");
    m_account.channels.append(channel);
    m_account.channelName = channel.id;
    m_account.displayName = displayName;
    JsonReader::identifier(reply, QStringLiteral("_id"), &m_account.userId);
    return true;
}

bool Twitch::isAuthorized() const
{
    return !m_accessToken.isEmpty();
}

bool Twitch::revoke()
{
    QString form = QStringLiteral("client_id=%1&").arg(encoded(m_clientId));
    form += QStringLiteral("token=%1&").arg(encoded(m_accessToken));
    const QJsonObject reply = post(
        formRequest(ServiceConfig::url(ServiceConfig::TwitchIdentity, QStringLiteral("/oauth2/revoke?"))), form.toUtf8());
    if (!checkReply(reply, QStringLiteral("revokeObj")))
        return false;
    m_accessToken.clear();
    return true;
}
