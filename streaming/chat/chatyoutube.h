#pragma once

#include "chat/chatprovider.h"
#include "provider/youtube.h"

#include <QTimer>

class ChatImageLoader;

// The live chat of a YouTube broadcast, read page by page at the interval the service
// asks for and written with text messages, with the YouTube account's token.
class ChatYouTube : public YouTube, public ChatProvider
{
    Q_OBJECT
public:
    // YouTube takes at most this many characters in one message.
    static constexpr int maxMessageLength = 200;

    explicit ChatYouTube(ViewInterface* view);
    ~ChatYouTube() override;

    // Reads the chat whose live chat id is `room`; `nick` is not used.
    bool chatConnect(const QString& nick, const QString& room) override;
    void sendMessage(const QString& text) override;
    void chatDisconnect() override;
    QPixmap chatIcon() const override { return m_chatIcon; }
    QImage chatImage(const QString& url) const override;
    bool hasSuperChats() const override { return true; }
    // With the YouTube account's token.
    bool loadSuperChats(QList<ChatDesc>* events, QString* error) override;

    // Exchanges the code a Streamlabs sign-in sent to the loopback redirect address for the
    // Streamlabs token, kept in streamlabsToken(). False with lastError() when it fails,
    // or when this installation has no Streamlabs client.
    bool exchangeStreamlabsCode(const QString& code);
    const QString& streamlabsToken() const { return m_streamlabsToken; }

    const QString& chatId() const { return m_chatId; }
    const QString& nextPageToken() const { return m_pageToken; }
    // Milliseconds until the next page is asked for.
    int pollingInterval() const { return m_interval; }

public slots:
    void nextPageCall();

private:
    bool readPage(const QJsonObject& reply, const QString& tag);
    void failed();
    // Colour and picture: the picture as far as it has arrived, otherwise asked for.
    void complete(ChatDesc* desc);

    QPixmap m_chatIcon;
    QTimer m_timer;
    QString m_pageToken;
    int m_interval;
    QString m_chatId;
    QString m_streamlabsToken;
    ChatImageLoader* m_images;
    // Counts connections, so a page that arrives for an old one is dropped.
    quint64 m_session = 0;
};
