#pragma once

#include "provider/account.h"
#include "provider/eventinfo.h"
#include "provider/livechannel.h"

#include <QByteArray>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QNetworkRequest>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QUrl>

class QNetworkReply;
class ViewInterface;

Q_DECLARE_LOGGING_CATEGORY(lcProvider)

// A streaming service the streaming dialog can publish to. Every request is
// synchronous: the helpers wait in a local event loop (user input excluded)
// for at most requestTimeout ms, so callers see plain bool results.
class Provider : public QObject
{
    Q_OBJECT
public:
    static constexpr int requestTimeout = 30000;

    Provider(ViewInterface* view, const QString& name);
    ~Provider() override;

    virtual bool login(const QString& username, const QString& password);
    // Called with an empty URL to open the service's page, then with every
    // URL that page reaches.
    virtual bool authorize(const QUrl& redirect);
    virtual bool isLoggedIn() const;
    virtual void setLoggedIn(bool loggedIn);
    virtual bool loadChannels();
    // `channel` is the selected channel; services that publish for an owner
    // (user or page) read its ownerId and ownerToken.
    virtual bool createEvent(const EventInfo& event, const LiveChannel& channel);
    virtual bool deleteEvent(const LiveChannel& channel);
    // Changes the event behind `channel` (its id) to the dialog's values.
    virtual bool updateEvent(const EventInfo& event, const LiveChannel& channel);
    virtual bool isAuthorized() const;
    virtual bool revoke();

    virtual const QString& clientId() const;
    virtual void setClientId(const QString& clientId);
    virtual const QString& clientSecret() const;
    virtual void setClientSecret(const QString& clientSecret);
    virtual const QString& accessToken() const;
    virtual void setAccessToken(const QString& accessToken);
    virtual const QString& refreshToken() const;
    virtual void setRefreshToken(const QString& refreshToken);
    virtual const QString& username() const;
    virtual void setUsername(const QString& username);
    virtual const QString& password() const;
    virtual void setPassword(const QString& password);

    virtual const QUrl& homeUrl() const;
    virtual void setHomeUrl(const QUrl& homeUrl);
    virtual const Channel& channel() const;
    virtual void setChannel(const Channel& channel);
    virtual const QString& userId() const;
    virtual void setUserId(const QString& userId);
    virtual const QString& displayName() const;
    virtual void setDisplayName(const QString& displayName);
    virtual const QString& channelName() const;
    virtual void setChannelName(const QString& channelName);
    virtual const QString& pageId() const;
    virtual void setPageId(const QString& pageId);
    virtual const QString& pageToken() const;
    virtual void setPageToken(const QString& pageToken);
    virtual const QList<LabelPair>& servers() const;
    virtual void setServers(const QList<LabelPair>& servers);
    virtual const QList<LiveChannel>& channels() const;
    virtual void setChannels(const QList<LiveChannel>& channels);
    virtual const QList<EventInfo>& events() const;
    virtual void setEvents(const QList<EventInfo>& events);
    virtual const QList<PageInfo>& pages() const;
    virtual void setPages(const QList<PageInfo>& pages);
    virtual const QList<LabelPair>& categories() const;
    virtual void setCategories(const QList<LabelPair>& categories);
    virtual const QList<LabelPair>& privacies() const;
    virtual void setPrivacies(const QList<LabelPair>& privacies);
    // The current channel's stream URL and key.
    virtual const QString& streamUrl() const;
    virtual void setStreamUrl(const QString& streamUrl);
    virtual const QString& streamKey() const;
    virtual void setStreamKey(const QString& streamKey);

    // The first channel whose name equals `name`, or null.
    virtual LiveChannel* findChannel(const QString& name);
    virtual const Account& account() const;
    virtual const QString& name() const;
    virtual const QByteArray& nameBytes() const;
    virtual const QPixmap& icon() const;
    virtual const quint32& features() const;
    // The event dialog asks with its own flag; most services ignore it.
    virtual quint32 features(bool alternate) const;
    // "tag,detail" of the last failed request.
    virtual const QString& lastError() const;

protected:
    QJsonObject get(const QNetworkRequest& request);
    QJsonObject deleteResource(const QNetworkRequest& request);
    QJsonObject post(const QNetworkRequest& request, const QByteArray& body);
    QJsonObject put(const QNetworkRequest& request, const QByteArray& body);

    // True when the reply carries a service error; lastError then holds it.
    bool parseError(const QJsonObject& reply, const QString& tag);
    // Hands the reply to the view's log, then checks it: true when it is no error.
    bool checkReply(const QJsonObject& reply, const QString& tag);
    // For a reply that lacks what the request should return: sets lastError and gives false.
    bool unexpectedReply(const QString& tag);
    void setLastError(const QString& tag, const QString& detail);
    // For a sign-in this installation has no registered client for (the named settings are
    // empty): tells the operator so in lastError, logs the settings, gives false. `service`
    // names another service than this provider (a chat's helper service).
    bool refuseUnconfigured(const QStringList& emptySettings, const QString& service = QString());

    ViewInterface* view() const { return m_view; }
    void addFeatures(quint32 features) { m_features |= features; }
    void setIcon(const QPixmap& icon) { m_icon = icon; }

    // A request whose body is a form ("application/x-www-form-urlencoded").
    static QNetworkRequest formRequest(const QUrl& url);
    // A request whose body is compact JSON ("application/json").
    static QNetworkRequest jsonRequest(const QUrl& url);
    // A form or path value, percent-encoded.
    static QString encoded(const QString& value);

    bool m_loggedIn = false;
    Account m_account;
    QString m_clientId;
    QString m_clientSecret;
    QString m_accessToken;
    QString m_refreshToken;
    QString m_username;
    QString m_password;

private:
    QJsonObject waitForReply(QNetworkReply* reply, const char* method, const QUrl& url);

    ViewInterface* m_view;
    quint32 m_features = 0;
    QPixmap m_icon;
    QString m_lastError;
    QString m_name;
    QByteArray m_nameBytes;
};
