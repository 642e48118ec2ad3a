#include "chat/chatyoutube.h"

#include "chat/chatimageloader.h"
#include "chat/youtubechatpage.h"
#include "chat/youtubesuperchats.h"
#include "provider/jsonreader.h"
#include "provider/serviceconfig.h"

#include <QJsonDocument>

ChatYouTube::ChatYouTube(ViewInterface* view)
    : YouTube(view, QStringLiteral("YouTube")),
      ChatProvider(QStringLiteral("YouTube")),
      m_chatIcon(QStringLiteral(":resources/youtubechat.png")),
      m_interval(YouTubeChatPage::minInterval),
      m_images(new ChatImageLoader(view, this))
{
    m_timer.setSingleShot(true);
    // A coarse timer may fire early; the interval is the service's lower bound.
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &ChatYouTube::nextPageCall);
    connect(m_images, &ChatImageLoader::arrived, this, [this](const QString& url, const QImage& image) {
        notify(imageTag, QVariantMap{{QStringLiteral("url"), url}, {QStringLiteral("image"), image}});
    });
}

ChatYouTube::~ChatYouTube()
{
    chatDisconnect();
}

bool ChatYouTube::chatConnect(const QString&, const QString& room)
{
    qCDebug(lcChat) << "chatConnect";
    chatDisconnect();
    m_chatId = room.trimmed();
    if (m_chatId.isEmpty()) {
        qCWarning(lcChat) << "YouTube chat needs a live chat id";
        return false;
    }
    const quint64 session = m_session;
    const QJsonObject reply = get(QNetworkRequest(
        apiUrl(QStringLiteral("/youtube/v3/liveChat/messages?liveChatId=%1&maxResults=200&part=id,snippet,authorDetails&"
                              "access_token=%3")
                   .arg(encoded(m_chatId), tokenItem()))));
    if (session != m_session)
        return false;
    if (!readPage(reply, QStringLiteral("liveChatObj")))
        return false;
    notify(connectedTag, m_chatId);
    return true;
}

void ChatYouTube::nextPageCall()
{
    if (m_chatId.isEmpty() || m_pageToken.isEmpty())
        return;
    const quint64 session = m_session;
    const QJsonObject reply = get(QNetworkRequest(
        apiUrl(QStringLiteral("/youtube/v3/liveChat/messages?liveChatId=%1&pageToken=%2&part=id,snippet,authorDetails&"
                              "access_token=%3")
                   .arg(encoded(m_chatId), encoded(m_pageToken), tokenItem()))));
    if (session == m_session)
        readPage(reply, QStringLiteral("nextPageObj"));
}

bool ChatYouTube::readPage(const QJsonObject& reply, const QString& tag)
{
    if (!checkReply(reply, tag)) {
        failed();
        return false;
    }
    YouTubeChatPage page;
    if (!YouTubeChatPage::read(reply, &page)) {
        unexpectedReply(tag);
        failed();
        return false;
    }
    m_pageToken = page.nextPageToken;
    m_interval = page.pollingInterval;
    const quint64 session = m_session;
    for (ChatDesc& desc : page.messages) {
        complete(&desc);
        deliver(desc);
        if (session != m_session)
            return false; // a listener closed the chat
    }
    m_timer.start(m_interval);
    return true;
}

void ChatYouTube::complete(ChatDesc* desc)
{
    desc->color = colorFor(desc->author);
    const QString picture = desc->pictureUrl.toString();
    const QImage image = m_images->image(picture);
    if (!image.isNull())
        desc->picture = QPixmap::fromImage(image);
    else
        m_images->request(picture);
}

void ChatYouTube::failed()
{
    qCWarning(lcChat) << "YouTube chat stopped:" << lastError();
    // Read again only on a new chatConnect.
    notify(failedTag, lastError());
}

void ChatYouTube::sendMessage(const QString& text)
{
    const QString line = singleLine(text, maxMessageLength);
    if (line.isEmpty())
        return;
    if (m_chatId.isEmpty()) {
        notify(sendFailedTag, tr("The chat is not connected."));
        return;
    }
    const QJsonObject body{
        {QStringLiteral("snippet"),
         QJsonObject{{QStringLiteral("liveChatId"), m_chatId},
                     {QStringLiteral("type"), QStringLiteral("textMessageEvent")},
                     {QStringLiteral("textMessageDetails"), QJsonObject{{QStringLiteral("messageText"), line}}}}}};
    const QJsonObject reply = post(
        jsonRequest(ServiceConfig::url(ServiceConfig::YouTubeContentApi,
                                       QStringLiteral("/youtube/v3/liveChat/messages?part=snippet&alt=json&access_token=%2")
                                           .arg(tokenItem()))),
        QJsonDocument(body).toJson(QJsonDocument::Compact));
    if (!checkReply(reply, QStringLiteral("chatSendObj")))
        notify(sendFailedTag, lastError());
}

void ChatYouTube::chatDisconnect()
{
    ++m_session;
    m_timer.stop();
    m_images->abort();
    m_chatId.clear();
    m_pageToken.clear();
}

QImage ChatYouTube::chatImage(const QString& url) const
{
    return m_images->image(url);
}

bool ChatYouTube::loadSuperChats(QList<ChatDesc>* events, QString* error)
{
    const QString tag = QStringLiteral("superChatObj");
    const QJsonObject reply = get(QNetworkRequest(
        apiUrl(QStringLiteral("/youtube/v3/superChatEvents?part=id,snippet&access_token=%1").arg(tokenItem()))));
    QList<ChatDesc> list;
    bool read = checkReply(reply, tag);
    if (read && !YouTubeSuperChats::read(reply, &list))
        read = unexpectedReply(tag);
    if (!read) {
        qCWarning(lcChat) << "YouTube Super Chats not read:" << lastError();
        *error = lastError();
        return false;
    }
    for (ChatDesc& desc : list)
        complete(&desc);
    *events = list;
    return true;
}

bool ChatYouTube::exchangeStreamlabsCode(const QString& code)
{
    const QString clientId = ServiceConfig::value(ServiceConfig::StreamlabsClientId);
    const QString clientSecret = ServiceConfig::value(ServiceConfig::StreamlabsClientSecret);
    if (clientId.isEmpty() || clientSecret.isEmpty())
        return refuseUnconfigured({ServiceConfig::settingsKey(ServiceConfig::StreamlabsClientId),
                                   ServiceConfig::settingsKey(ServiceConfig::StreamlabsClientSecret)},
                                  QStringLiteral("Streamlabs"));
    const QString tag = QStringLiteral("streamlabsTokenObj");
    QString form = QStringLiteral("grant_type=%1&").arg(QStringLiteral("authorization_code"));
    form += QStringLiteral("client_id=%1&").arg(encoded(clientId));
    form += QStringLiteral("client_secret=%1&").arg(encoded(clientSecret));
    form += QStringLiteral("redirect_uri=%1&").arg(encoded(ServiceConfig::redirectUrl()));
    form += QStringLiteral("code=%1").arg(encoded(code));
    const QJsonObject reply = post(
        formRequest(ServiceConfig::url(ServiceConfig::StreamlabsApi, QStringLiteral("/api/v1.0/token"))), form.toUtf8());
    if (!checkReply(reply, tag))
        return false;
    QString token;
    if (!JsonReader::requiredText(reply, QStringLiteral("access_token"), &token))
        return unexpectedReply(tag);
    m_streamlabsToken = token;
    return true;
}
