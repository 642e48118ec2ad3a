#include "provider/provider.h"

#include "provider/viewinterface.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonValue>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>

Q_LOGGING_CATEGORY(lcProvider, "streaming.provider")

Provider::Provider(ViewInterface* view, const QString& name)
    : m_view(view), m_name(name), m_nameBytes(name.toLocal8Bit())
{
}

Provider::~Provider() = default;

bool Provider::login(const QString& username, const QString& password)
{
    m_username = username;
    m_password = password;
    return true;
}

bool Provider::authorize(const QUrl&)
{
    return true;
}

bool Provider::isLoggedIn() const
{
    return m_loggedIn;
}

void Provider::setLoggedIn(bool loggedIn)
{
    m_loggedIn = loggedIn;
}

bool Provider::loadChannels()
{
    return true;
}

bool Provider::createEvent(const EventInfo&, const LiveChannel&)
{
    return true;
}

bool Provider::deleteEvent(const LiveChannel&)
{
    return true;
}

bool Provider::updateEvent(const EventInfo&, const LiveChannel&)
{
    return true;
}

bool Provider::isAuthorized() const
{
    return false;
}

bool Provider::revoke()
{
    return true;
}

const QString& Provider::clientId() const { return m_clientId; }
void Provider::setClientId(const QString& clientId) { m_clientId = clientId; }
const QString& Provider::clientSecret() const { return m_clientSecret; }
void Provider::setClientSecret(const QString& clientSecret) { m_clientSecret = clientSecret; }
const QString& Provider::accessToken() const { return m_accessToken; }
void Provider::setAccessToken(const QString& accessToken) { m_accessToken = accessToken; }
const QString& Provider::refreshToken() const { return m_refreshToken; }
void Provider::setRefreshToken(const QString& refreshToken) { m_refreshToken = refreshToken; }
const QString& Provider::username() const { return m_username; }
void Provider::setUsername(const QString& username) { m_username = username; }
const QString& Provider::password() const { return m_password; }
void Provider::setPassword(const QString& password) { m_password = password; }

const QUrl& Provider::homeUrl() const { return m_account.homeUrl; }
void Provider::setHomeUrl(const QUrl& homeUrl) { m_account.homeUrl = homeUrl; }
const Channel& Provider::channel() const { return m_account.channel; }
void Provider::setChannel(const Channel& channel) { m_account.channel = channel; }
const QString& Provider::userId() const { return m_account.userId; }
void Provider::setUserId(const QString& userId) { m_account.userId = userId; }
const QString& Provider::displayName() const { return m_account.displayName; }
void Provider::setDisplayName(const QString& displayName) { m_account.displayName = displayName; }
const QString& Provider::channelName() const { return m_account.channelName; }
void Provider::setChannelName(const QString& channelName) { m_account.channelName = channelName; }
const QString& Provider::pageId() const { return m_account.pageId; }
void Provider::setPageId(const QString& pageId) { m_account.pageId = pageId; }
const QString& Provider::pageToken() const { return m_account.pageToken; }
void Provider::setPageToken(const QString& pageToken) { m_account.pageToken = pageToken; }
const QList<LabelPair>& Provider::servers() const { return m_account.servers; }
void Provider::setServers(const QList<LabelPair>& servers) { m_account.servers = servers; }
const QList<LiveChannel>& Provider::channels() const { return m_account.channels; }
void Provider::setChannels(const QList<LiveChannel>& channels) { m_account.channels = channels; }
const QList<EventInfo>& Provider::events() const { return m_account.events; }
void Provider::setEvents(const QList<EventInfo>& events) { m_account.events = events; }
const QList<PageInfo>& Provider::pages() const { return m_account.pages; }
void Provider::setPages(const QList<PageInfo>& pages) { m_account.pages = pages; }
const QList<LabelPair>& Provider::categories() const { return m_account.categories; }
void Provider::setCategories(const QList<LabelPair>& categories) { m_account.categories = categories; }
const QList<LabelPair>& Provider::privacies() const { return m_account.privacies; }
void Provider::setPrivacies(const QList<LabelPair>& privacies) { m_account.privacies = privacies; }
const QString& Provider::streamUrl() const { return m_account.channel.url; }
void Provider::setStreamUrl(const QString& streamUrl) { m_account.channel.url = streamUrl; }
const QString& Provider::streamKey() const { return m_account.channel.key; }
void Provider::setStreamKey(const QString& streamKey) { m_account.channel.key = streamKey; }

LiveChannel* Provider::findChannel(const QString& name)
{
    for (LiveChannel& channel : m_account.channels) {
        if (channel.name == name)
            return &channel;
    }
    return nullptr;
}

const Account& Provider::account() const { return m_account; }
const QString& Provider::name() const { return m_name; }
const QByteArray& Provider::nameBytes() const { return m_nameBytes; }
const QPixmap& Provider::icon() const { return m_icon; }
const quint32& Provider::features() const { return m_features; }

quint32 Provider::features(bool) const
{
    return m_features;
}

const QString& Provider::lastError() const { return m_lastError; }

QJsonObject Provider::get(const QNetworkRequest& request)
{
    QNetworkAccessManager* manager = m_view ? m_view->networkAccessManager() : nullptr;
    return waitForReply(manager ? manager->get(request) : nullptr, "GET", request.url());
}

QJsonObject Provider::deleteResource(const QNetworkRequest& request)
{
    QNetworkAccessManager* manager = m_view ? m_view->networkAccessManager() : nullptr;
    return waitForReply(manager ? manager->deleteResource(request) : nullptr, "DELETE", request.url());
}

QJsonObject Provider::post(const QNetworkRequest& request, const QByteArray& body)
{
    QNetworkAccessManager* manager = m_view ? m_view->networkAccessManager() : nullptr;
    return waitForReply(manager ? manager->post(request, body) : nullptr, "POST", request.url());
}

QJsonObject Provider::put(const QNetworkRequest& request, const QByteArray& body)
{
    QNetworkAccessManager* manager = m_view ? m_view->networkAccessManager() : nullptr;
    return waitForReply(manager ? manager->put(request, body) : nullptr, "PUT", request.url());
}

QJsonObject Provider::waitForReply(QNetworkReply* reply, const char* method, const QUrl& url)
{
    if (!reply) {
        qCWarning(lcProvider) << m_name << "has no network access for" << method << url.path();
        return {};
    }
    QPointer<QNetworkReply> guard(reply);
    if (!reply->isFinished()) {
        QTimer timer;
        timer.setSingleShot(true);
        // A coarse timer may fire up to 5% early; the limit is a promise to the services.
        timer.setTimerType(Qt::PreciseTimer);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(requestTimeout);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!guard) // the manager went away with its replies
        return {};
    if (!guard->isFinished()) {
        // Nobody waits any more; the reply still cleans up after itself.
        qCWarning(lcProvider) << m_name << method << url.path() << "timed out after" << requestTimeout << "ms";
        connect(guard.data(), &QNetworkReply::finished, guard.data(), &QObject::deleteLater);
        return {};
    }
    const QByteArray body = guard->readAll();
    // Not errorString(): it repeats the whole address, and tokens travel in queries.
    if (guard->error() != QNetworkReply::NoError)
        qCInfo(lcProvider) << m_name << method << url.path() << "answered"
                           << guard->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() << guard->error();
    guard->deleteLater();

    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError && !body.isEmpty())
        qCInfo(lcProvider) << m_name << method << url.path() << "sent no JSON:" << error.errorString();
    return document.object();
}

bool Provider::parseError(const QJsonObject& reply, const QString& tag)
{
    const QJsonValue error = reply.value(QStringLiteral("error"));
    if (error.isString() || reply.value(QStringLiteral("error_description")).isString()) {
        setLastError(tag, error.toString() + QLatin1Char('\n')
                              + reply.value(QStringLiteral("error_description")).toString());
        return true;
    }
    if (error.isString() || reply.value(QStringLiteral("error_msg")).isString()) {
        setLastError(tag, error.toString() + QLatin1Char('\n') + reply.value(QStringLiteral("error_msg")).toString());
        return true;
    }
    const QJsonObject object = error.toObject();
    const QString description = object.value(QStringLiteral("error_description")).toString();
    if (!description.isEmpty()) {
        setLastError(tag, description);
        return true;
    }
    const QString message = object.value(QStringLiteral("message")).toString();
    if (!message.isEmpty()) {
        setLastError(tag, message);
        return true;
    }
    return false;
}

bool Provider::checkReply(const QJsonObject& reply, const QString& tag)
{
    if (m_view)
        m_view->debugMessage(tag, reply);
    return !parseError(reply, tag);
}

bool Provider::unexpectedReply(const QString& tag)
{
    setLastError(tag, tr("The service sent a reply that could not be read."));
    qCWarning(lcProvider) << m_name << tag << "reply lacks what was asked for";
    return false;
}

void Provider::setLastError(const QString& tag, const QString& detail)
{
    m_lastError = tag + QLatin1Char(',') + detail;
}

bool Provider::refuseUnconfigured(const QStringList& emptySettings, const QString& service)
{
    const QString name = service.isEmpty() ? m_name : service;
    setLastError(name, tr("Signing in to %1 is not configured for this installation.").arg(name));
    qCWarning(lcProvider).noquote() << name << "has no registered client; set" << emptySettings.join(QLatin1String(", "))
                                    << "(docs/deployment.md)";
    return false;
}

QNetworkRequest Provider::jsonRequest(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    return request;
}

QNetworkRequest Provider::formRequest(const QUrl& url)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));
    return request;
}

QString Provider::encoded(const QString& value)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(value));
}
