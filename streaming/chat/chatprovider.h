#pragma once

#include "streaming_export.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariant>

class ChatListener;
struct ChatDesc;

// A service's live chat: what the chat view and the streaming store see of ChatTwitch and
// ChatYouTube. It keeps the listeners, which receive every event, and gives each user a
// colour of the table.
class STREAMING_EXPORT ChatProvider
{
public:
    // The events, each with its data:
    static const QString readLineTag;   // "m_readLine": QString, every line a server sent
    static const QString messageTag;    // "message": ChatDesc, a received (or own) message
    static const QString failedTag;     // "Connect Failed": int (socket error) or QString (service error)
    static const QString connectedTag;  // "Connected": QString, the room joined
    static const QString noticeTag;     // "Notice": QString, a service notice for the operator
    static const QString imageTag;      // "imageDownloader": QVariantMap{"url", "image"}, an image arrived
    static const QString sendFailedTag; // "Send Failed": QString, the service's error

    // The 15 user colours, in order.
    static const QStringList& colorTable();

    explicit ChatProvider(const QString& displayName);
    virtual ~ChatProvider();
    ChatProvider(const ChatProvider&) = delete;
    ChatProvider& operator=(const ChatProvider&) = delete;

    const QString& chatName() const { return m_displayName; }

    // Connects to a room and starts reading it: a Twitch channel as `nick`, or a YouTube
    // live chat id. False when it cannot even start; later failures come as failedTag.
    virtual bool chatConnect(const QString& nick, const QString& room) = 0;
    // Sends to the room.
    virtual void sendMessage(const QString& text) = 0;
    virtual void chatDisconnect() = 0;
    virtual QPixmap chatIcon() const = 0;
    // An emote, badge or author picture that has arrived; a null image otherwise.
    virtual QImage chatImage(const QString& url) const = 0;
    // Whether the service lists the paid messages of the channel's supporters (YouTube's
    // Super Chats), which loadSuperChats() fetches.
    virtual bool hasSuperChats() const { return false; }
    // The channel's recent paid messages, oldest first, as messages of type SuperChat with
    // their "amount". False with the reason in `error` when they could not be read.
    virtual bool loadSuperChats(QList<ChatDesc>* events, QString* error);

    // The user's colour: drawn from the table on first sight, then kept.
    QString colorFor(const QString& user);
    // The same at a given time (milliseconds since the epoch): the draw is seeded with
    // the time in whole seconds, so users first seen in the same second share a colour.
    QString colorFor(const QString& user, qint64 msecsSinceEpoch);

    void addListener(ChatListener* listener);
    void removeListener(ChatListener* listener);
    const QList<ChatListener*>& listeners() const { return m_listeners; }

protected:
    // Text to send as one line: breaks and other control characters become spaces, and
    // it ends after `maxLength` UTF-16 units (never inside a character).
    static QString singleLine(const QString& text, int maxLength);
    void notify(const QString& tag, const QVariant& data);
    // A received message: to the listeners and to the streaming store's buffer.
    void deliver(const ChatDesc& message);

private:
    QString m_displayName;
    QHash<QString, QString> m_userColors;
    QList<ChatListener*> m_listeners;
};
