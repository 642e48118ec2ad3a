#include "provider/hitbox.h"

#include "provider/jsonreader.h"
#include "provider/serviceconfig.h"

Hitbox::Hitbox(ViewInterface* view)
    : Provider(view, QStringLiteral("Smashcast API"))
{
    addFeatures(panelFeatures);
    addFeatures(eventFeatures);
    setHomeUrl(QUrl(ServiceConfig::value(ServiceConfig::HitboxHome)));
}

Hitbox::~Hitbox() = default;

bool Hitbox::login(const QString& username, const QString& password)
{
    Provider::login(username, password);
    m_account.servers.clear();
    m_account.channels.clear();

    const QString loginTag = QStringLiteral("authorizeObj");
    QString form = QStringLiteral("login=%1&").arg(encoded(username));
    form += QStringLiteral("pass=%1&").arg(encoded(password));
    form += QStringLiteral("app=desktop");
    const QJsonObject auth = post(formRequest(ServiceConfig::url(ServiceConfig::HitboxApi, QStringLiteral("/auth/login"))),
                                  form.toUtf8());
    if (!checkReply(auth, loginTag))
        return false;
    QString token;
    if (!JsonReader::requiredText(auth, QStringLiteral("authToken"), &token))
        return unexpectedReply(loginTag);
    m_accessToken = token;

    const QString serverTag = QStringLiteral("serverArray");
    const QJsonObject ingests = get(QNetworkRequest(
        ServiceConfig::url(ServiceConfig::HitboxApi, QStringLiteral("/ingests/default_list"))));
    if (!checkReply(ingests, serverTag))
        return false;
    QList<QJsonObject> list;
    if (!JsonReader::objects(ingests, QStringLiteral("list"), &list))
        return unexpectedReply(serverTag);
    QList<LabelPair> servers;
    for (const QJsonObject& ingest : list) {
        LabelPair server;
        if (!JsonReader::text(ingest, QStringLiteral("ingest_location"), &server.first)
            || !JsonReader::text(ingest, QStringLiteral("ingest_url"), &server.second))
            return unexpectedReply(serverTag);
        servers.append(server);
    }
    m_account.servers = servers;

    const QString keyTag = QStringLiteral("streamKeyObj");
    const QJsonObject key = get(QNetworkRequest(ServiceConfig::url(
        ServiceConfig::HitboxApi,
        QStringLiteral("/mediakey/%1?authToken=%2").arg(encoded(username), encoded(m_accessToken)))));
    if (!checkReply(key, keyTag))
        return false;
    QString streamKey;
    if (!JsonReader::requiredText(key, QStringLiteral("streamKey"), &streamKey))
        return unexpectedReply(keyTag);

    LiveChannel channel;
    channel.name = username;
    channel.id = username;
    channel.watchUrl = ServiceConfig::url(ServiceConfig::HitboxWeb, QStringLiteral("/%1").arg(encoded(username))).toString();
    channel.streamUrl = ServiceConfig::value(ServiceConfig::HitboxIngest) + QStringLiteral("/push");
    channel.streamKey = QStringLiteral("%1?key=%2").arg(username, streamKey);
    m_account.channels.append(channel);
    return true;
}

bool Hitbox::isAuthorized() const
{
    return !m_accessToken.isEmpty();
}

bool Hitbox::revoke()
{
    const QString tag = QStringLiteral("revokeObj");
    // The template has only %2, so the token takes its place.
    const QString path = QStringLiteral(" /oauthapps/masta/1?authToken=%2").arg(encoded(m_accessToken)).trimmed();
    const QJsonObject reply = deleteResource(QNetworkRequest(ServiceConfig::url(ServiceConfig::HitboxRevokeApi, path)));
    if (!checkReply(reply, tag))
        return false;
    m_accessToken.clear();
    return true;
}
