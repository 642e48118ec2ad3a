#pragma once

#include "chat/chatprovider.h"
#include "chat/irclinereader.h"
#include "chat/twitchmessage.h"
#include "provider/twitch.h"

#include <QAbstractSocket>
#include <QHash>
#include <QPointer>
#include <QTimer>

class ChatImageLoader;
class QNetworkReply;
class QTcpSocket;

// The chat of a Twitch channel over the service's IRC gateway, logged in with the Twitch
// account's token (scope chat_login). Messages come with their colour, badges and emote
// images; the operator's own messages show at once through a local echo.
class ChatTwitch : public Twitch, public ChatProvider
{
    Q_OBJECT
public:
    // Twitch's capability namespace, its domain.
    static const QString capabilityNamespace;
    // A server that takes longer to accept the connection counts as unreachable.
    static constexpr int connectTimeout = 15000;
    // Twitch takes at most this many characters in one message.
    static constexpr int maxMessageLength = 500;

    explicit ChatTwitch(ViewInterface* view);
    ~ChatTwitch() override;

    // Logs in as `nick` and joins `channel`.
    bool chatConnect(const QString& nick, const QString& channel) override;
    void sendMessage(const QString& text) override;
    void chatDisconnect() override;
    QPixmap chatIcon() const override { return m_chatIcon; }
    QImage chatImage(const QString& url) const override;

    // The last line the server sent.
    const QString& readLine() const { return m_readLine; }
    // The chat server's own name, as its welcome line gives it.
    const QString& serverName() const { return m_serverName; }

public slots:
    void ircReadData();
    void socketError(QAbstractSocket::SocketError error);

private:
    void handleLine(std::string_view line);
    void showMessage(const TwitchMessage& message, int type);
    void write(const QByteArray& line);
    void loadBadges();
    void badgesArrived(QNetworkReply* reply);
    void imageArrived(const QString& url, const QImage& image);

    QPixmap m_chatIcon;
    QString m_host;
    QString m_nick;
    QString m_channel;
    QTcpSocket* m_socket;
    QString m_readLine;
    IrcLineReader m_reader;
    TwitchMessage m_message;
    QString m_serverName;
    QHash<QString, QString> m_badgeUrls; // badge name to picture address
    ChatImageLoader* m_images;
    QPointer<QNetworkReply> m_badgeReply;
    QTimer m_connectTimer;
    QByteArray m_readBuffer;
    QByteArray m_logIn; // until the connection stands
    // Counts connections, so lines read for an old one stop when it is replaced.
    quint64 m_session = 0;
    qint64 m_droppedLogged = 0;
    bool m_failed = false;
};
