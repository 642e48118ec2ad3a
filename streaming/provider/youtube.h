#pragma once

#include "provider/provider.h"

// YouTube Live through the YouTube Data API: the OAuth code flow, the account's live
// broadcasts with their bound streams as channels, and broadcasts created, changed and
// deleted from the event dialog. Every request carries the token as "access_token".
// The live chat derives from it: the token, the broadcasts' chat ids and the request
// helpers are its too.
class YouTube : public Provider
{
    Q_OBJECT
public:
    static constexpr quint32 panelFeatures = 0x000007A5;
    static constexpr quint32 eventFeatures = 0x3F3F0000;
    // The service lists at most this many broadcasts; no further pages are asked for.
    static constexpr int maxBroadcasts = 50;

    explicit YouTube(ViewInterface* view);
    ~YouTube() override;

    bool authorize(const QUrl& redirect) override;
    bool loadChannels() override;
    // Inserts a broadcast (or changes the one the event names), gives it a stream of its
    // own and binds the two.
    bool createEvent(const EventInfo& event, const LiveChannel& channel) override;
    bool deleteEvent(const LiveChannel& channel) override;
    bool updateEvent(const EventInfo& event, const LiveChannel& channel) override;
    bool isAuthorized() const override;
    bool revoke() override;

    // The live chat of a listed broadcast; empty when the broadcast is not listed.
    QString liveChatId(const QString& broadcastId) const;
    // The address the sign-in page sends the code to.
    static QUrl redirectTarget();

protected:
    // For the live chat, which shows under a name of its own.
    YouTube(ViewInterface* view, const QString& name);
    // An address on the API host.
    static QUrl apiUrl(const QString& pathAndQuery);
    // The token as a query value.
    QString tokenItem() const { return encoded(m_accessToken); }

private:
    // Sends the broadcast JSON of `event`: POST when it has no id, PUT otherwise.
    bool sendBroadcast(const EventInfo& event, QJsonObject* reply);
    bool loadStreams(const QStringList& streamIds, const QStringList& boundIds, QList<LiveChannel>* channels);
    bool loadVideos(QList<LiveChannel>* channels, QList<EventInfo>* events);
    bool loadCategories();
};
