#include "provider/ustream.h"

#include "provider/jsonreader.h"
#include "provider/serviceconfig.h"

UStream::UStream(ViewInterface* view)
    : Provider(view, QStringLiteral("UStream"))
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setIcon(QPixmap(QStringLiteral(":/resources/ustream.png")));
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::UStreamHome)));
    setClientId(ServiceConfig::value(ServiceConfig::UStreamClientId));
    setClientSecret(ServiceConfig::value(ServiceConfig::UStreamClientSecret));
}

UStream::~UStream() = default;

bool UStream::login(const QString& username, const QString& password)
{
    Provider::login(username, password);
    m_loggedIn = false;
    m_account.channels.clear();

    const QString tokenTag = QStringLiteral("authorizeObj");
    QNetworkRequest tokenRequest = formRequest(ServiceConfig::url(ServiceConfig::UStreamWeb, QStringLiteral("/oauth2/token")));
    tokenRequest.setRawHeader("Authorization",
                              QStringLiteral("Basic %1")
                                  .arg(QString::fromLatin1((m_clientId + QLatin1Char(':') + m_clientSecret).toUtf8().toBase64()))
                                  .toLatin1());
    QString form = QStringLiteral("grant_type=password&");
    form += QStringLiteral("client_id=%1&").arg(encoded(m_clientId));
    form += QStringLiteral("client_secret=%1&").arg(encoded(m_clientSecret));
    form += QStringLiteral("username=%1&").arg(encoded(username));
    form += QStringLiteral("password=%1&").arg(encoded(password));
    form += QStringLiteral("device_name=quillon&");
    form += QStringLiteral("token_type=bearer&");
    form += QStringLiteral("scope=offline broadcaster");
    const QJsonObject token = post(tokenRequest, form.toUtf8());
    if (!checkReply(token, tokenTag))
        return false;
    QString accessToken;
    if (!JsonReader::requiredText(token, QStringLiteral("access_token"), &accessToken))
        return unexpectedReply(tokenTag);
    m_accessToken = accessToken;

    const QString channelsTag = QStringLiteral("channelsObj");
    QNetworkRequest channelsRequest(ServiceConfig::url(ServiceConfig::UStreamApi, QStringLiteral("/users/self/channels.json")));
    channelsRequest.setRawHeader("Authorization", QStringLiteral("Bearer %1").arg(m_accessToken).toUtf8());
    const QJsonObject reply = get(channelsRequest);
    if (!checkReply(reply, channelsTag))
        return false;
    QList<QJsonObject> members;
    if (!JsonReader::members(reply, QStringLiteral("channels"), &members))
        return unexpectedReply(channelsTag);

    QList<LiveChannel> channels;
    for (const QJsonObject& member : members) {
        if (!loadChannel(member, &channels))
            return false;
    }
    m_account.channels = channels;
    m_loggedIn = true;
    return true;
}

bool UStream::loadChannel(const QJsonObject& member, QList<LiveChannel>* channels)
{
    LiveChannel channel;
    if (!JsonReader::identifier(member, QStringLiteral("id"), &channel.id)
        || !JsonReader::text(member, QStringLiteral("title"), &channel.name)
        || !JsonReader::text(member, QStringLiteral("url"), &channel.watchUrl))
        return unexpectedReply(QStringLiteral("channelsObj"));

    const QString keyTag = QStringLiteral("streamKeyObj");
    QNetworkRequest keyRequest(ServiceConfig::url(
        ServiceConfig::UStreamApi,
        QStringLiteral("/channels/%1/authorizations/broadcasting/channel_key.json").arg(encoded(channel.id))));
    keyRequest.setRawHeader("Authorization", QStringLiteral("Bearer %1").arg(m_accessToken).toUtf8());
    const QJsonObject key = get(keyRequest);
    if (!checkReply(key, keyTag))
        return false;
    QString broadcastUrl;
    // The ingest address comes with the key; older replies kept it on the channel.
    if (!JsonReader::requiredText(key, QStringLiteral("channel_key"), &channel.streamKey)
        || !(JsonReader::requiredText(key, QStringLiteral("broadcast_url"), &broadcastUrl)
             || JsonReader::requiredText(member, QStringLiteral("broadcast_url"), &broadcastUrl)))
        return unexpectedReply(keyTag);
    channel.streamUrl = broadcastUrl + QStringLiteral("/ustreamVideo/") + channel.id;
    channels->append(channel);
    return true;
}
