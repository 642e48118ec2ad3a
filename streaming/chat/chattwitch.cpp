#include "chat/chattwitch.h"

#include "chat/chatimageloader.h"
#include "provider/serviceconfig.h"
#include "provider/viewinterface.h"
#include "stores/chatdesc.h"

#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>

const QString ChatTwitch::capabilityNamespace = QStringLiteral("twitch.tv");

namespace {

constexpr quint16 defaultPort = 6667;
constexpr int readChunk = 64 * 1024;
// The badge list is asked for this channel, whichever is joined.
const QString badgesPath = QStringLiteral("/kraken/chat/44322889/badges?client_id=%1");

QString utf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
}

// A name for the log-in lines: no spaces, line breaks or '#'.
QString ircName(const QString& name)
{
    QString clean;
    for (const QChar c : name)
        if (!c.isSpace() && c != QLatin1Char('#') && c.unicode() >= 0x20 && c != QLatin1Char(':') && c != QLatin1Char(';'))
            clean.append(c);
    return clean;
}

} // namespace

ChatTwitch::ChatTwitch(ViewInterface* view)
    : Twitch(view, QStringLiteral("Twitch")),
      ChatProvider(QStringLiteral("Twitch")),
      m_chatIcon(QStringLiteral(":resources/twitchchat.png")),
      m_socket(new QTcpSocket(this)),
      m_serverName(QStringLiteral("tmi.twitch.tv")),
      m_images(new ChatImageLoader(view, this)),
      m_readBuffer(readChunk, Qt::Uninitialized)
{
    connect(m_socket, &QTcpSocket::readyRead, this, &ChatTwitch::ircReadData);
    connect(m_socket, &QAbstractSocket::errorOccurred, this, &ChatTwitch::socketError);
    connect(m_socket, &QAbstractSocket::connected, this, [this] {
        m_connectTimer.stop();
        write(m_logIn);
        m_logIn.clear();
    });
    m_connectTimer.setSingleShot(true);
    m_connectTimer.setInterval(connectTimeout);
    connect(&m_connectTimer, &QTimer::timeout, this, [this] {
        m_socket->abort();
        socketError(QAbstractSocket::SocketTimeoutError);
    });
    connect(m_images, &ChatImageLoader::arrived, this, &ChatTwitch::imageArrived);
}

ChatTwitch::~ChatTwitch()
{
    m_socket->disconnect(this);
    chatDisconnect();
}

bool ChatTwitch::chatConnect(const QString& nick, const QString& channel)
{
    qCDebug(lcChat) << "chatConnect";
    chatDisconnect();
    m_nick = ircName(nick);
    m_channel = ircName(channel);
    if (m_nick.isEmpty() || m_channel.isEmpty()) {
        qCWarning(lcChat) << "Twitch chat needs a nick and a channel";
        return false;
    }
    m_host = ServiceConfig::value(ServiceConfig::TwitchIrc);
    bool valid = false;
    quint16 port = ServiceConfig::value(ServiceConfig::TwitchIrcPort).toUShort(&valid);
    if (!valid || port == 0)
        port = defaultPort;

    // Every line ends with a space before CR LF, as the gateway has always been sent. They
    // go out once the connection stands: a refused one then has nothing left to flush.
    m_logIn = QStringLiteral("PASS oauth:%1 \r\n").arg(m_accessToken).toUtf8();
    m_logIn += QStringLiteral("NICK %1 \r\n").arg(m_nick).toLocal8Bit();
    m_logIn += QStringLiteral("USER %1 :%2 \r\n").arg(m_nick, m_channel).toLocal8Bit();
    for (const char* capability : {"membership", "tags", "commands"})
        m_logIn += QStringLiteral("CAP REQ :%1/%2 \r\n").arg(capabilityNamespace, QLatin1String(capability)).toUtf8();
    m_logIn += QStringLiteral("JOIN #%1 \r\n").arg(m_channel).toLocal8Bit();
    m_socket->connectToHost(m_host, port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
    m_connectTimer.start();
    loadBadges();
    return true;
}

void ChatTwitch::chatDisconnect()
{
    ++m_session;
    m_failed = false;
    m_logIn.clear();
    m_connectTimer.stop();
    if (m_badgeReply) {
        m_badgeReply->disconnect(this);
        m_badgeReply->abort();
        m_badgeReply->deleteLater();
    }
    m_images->abort();
    m_socket->abort();
    m_reader.reset();
    m_droppedLogged = 0;
}

void ChatTwitch::write(const QByteArray& line)
{
    m_socket->write(line);
}

void ChatTwitch::sendMessage(const QString& text)
{
    const QString line = singleLine(text, maxMessageLength);
    if (line.isEmpty())
        return;
    if (m_socket->state() != QAbstractSocket::ConnectedState) {
        notify(sendFailedTag, tr("The chat is not connected."));
        return;
    }
    write(QStringLiteral("PRIVMSG #%1 :%2 \r\n").arg(m_channel, line).toUtf8());
    // Shown at once, as the broadcaster's, the way the server would send it to others.
    const QByteArray echo = QStringLiteral("@badges=broadcaster/1;color=#008000;display-name=%1 :%2 PRIVMSG #%3 :%4")
                                .arg(m_channel, m_serverName, m_channel, line)
                                .toUtf8();
    TwitchMessage own;
    if (TwitchMessage::parse(std::string_view(echo.constData(), static_cast<std::size_t>(echo.size())), &own))
        showMessage(own, ChatDesc::Own);
}

void ChatTwitch::ircReadData()
{
    const quint64 session = m_session;
    while (m_session == session && m_socket->bytesAvailable() > 0) {
        const qint64 read = m_socket->read(m_readBuffer.data(), m_readBuffer.size());
        if (read <= 0)
            break;
        m_reader.feed(m_readBuffer.constData(), static_cast<std::size_t>(read), [this, session](std::string_view line) {
            if (m_session == session)
                handleLine(line);
        });
    }
    if (m_reader.droppedLines() > m_droppedLogged) {
        m_droppedLogged = m_reader.droppedLines();
        qCWarning(lcChat) << "left out" << m_droppedLogged << "over-long chat line(s) so far";
    }
}

void ChatTwitch::handleLine(std::string_view line)
{
    // Everything is taken from the line before the listeners hear of it: one of them may
    // close the connection, and the line's bytes with it.
    m_readLine = utf8(line);
    const IrcLine parts = IrcLine::split(line);
    const bool ping = line.substr(0, 5) == "PING ";
    const bool message = !ping && TwitchMessage::parse(parts, &m_message);
    QString notice;
    bool joined = false;
    if (parts.command == "001" && !parts.prefix.empty())
        m_serverName = utf8(parts.prefix);
    else if (parts.command == "NOTICE")
        notice = utf8(parts.trailing);
    else if (parts.command == "JOIN")
        joined = utf8(parts.nick()).compare(m_nick, Qt::CaseInsensitive) == 0;

    const quint64 session = m_session;
    notify(readLineTag, m_readLine);
    if (m_session != session)
        return;
    if (ping)
        write("PONG :" + m_serverName.toUtf8() + " \r\n");
    else if (message)
        showMessage(m_message, ChatDesc::Message);
    else if (!notice.isEmpty())
        notify(noticeTag, notice);
    else if (joined)
        notify(connectedTag, QStringLiteral("#") + m_channel);
}

void ChatTwitch::showMessage(const TwitchMessage& message, int type)
{
    ChatDesc desc;
    desc.type = type;
    desc.author = message.displayName;
    desc.message = message.text;
    desc.color = message.color < 0 ? colorFor(message.displayName) : TwitchMessage::colorName(message.color);
    desc.id = message.id;
    desc.badges = TwitchMessage::badgeNames(message.badges);
    QStringList badgeUrls;
    for (const QString& badge : qAsConst(desc.badges))
        badgeUrls.append(m_badgeUrls.value(badge));
    QVariantList emotes;
    for (const TwitchEmote& emote : message.emotes) {
        const QString url =
            ServiceConfig::url(ServiceConfig::TwitchEmotes, QStringLiteral("/emoticons/v1/%1/1.0").arg(emote.id())).toString();
        m_images->request(url);
        emotes.append(QVariantMap{{QStringLiteral("begin"), emote.begin},
                                  {QStringLiteral("length"), emote.length},
                                  {QStringLiteral("url"), url}});
    }
    desc.attributes.insert(QStringLiteral("service"), chatName());
    desc.attributes.insert(QStringLiteral("channel"), message.channel);
    desc.attributes.insert(QStringLiteral("badgeUrls"), badgeUrls);
    desc.attributes.insert(QStringLiteral("emotes"), emotes);
    if (message.action)
        desc.attributes.insert(QStringLiteral("action"), true);
    deliver(desc);
}

void ChatTwitch::socketError(QAbstractSocket::SocketError error)
{
    // The lines still buffered may fail again; the listeners hear of the connection once.
    if (m_failed)
        return;
    m_failed = true;
    m_connectTimer.stop();
    qCWarning(lcChat) << "Twitch chat connection failed:" << error;
    // Re-established only by a new chatConnect.
    notify(failedTag, static_cast<int>(error));
}

void ChatTwitch::loadBadges()
{
    QNetworkAccessManager* manager = view() ? view()->networkAccessManager() : nullptr;
    if (!manager)
        return;
    QNetworkRequest request =
        apiRequest(badgesPath.arg(encoded(m_clientId)), "application/vnd.twitchtv.v5+json");
    request.setTransferTimeout(requestTimeout);
    QNetworkReply* reply = manager->get(request);
    m_badgeReply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply] { badgesArrived(reply); });
}

void ChatTwitch::badgesArrived(QNetworkReply* reply)
{
    reply->deleteLater();
    const QJsonObject badges = QJsonDocument::fromJson(reply->readAll()).object();
    if (!checkReply(badges, QStringLiteral("badgesObj"))) {
        qCInfo(lcChat) << "no badge pictures:" << lastError();
        return;
    }
    for (const QString& name : TwitchMessage::allBadgeNames()) {
        const QString url = badges.value(name).toObject().value(QStringLiteral("image")).toString();
        if (url.isEmpty())
            continue;
        m_badgeUrls.insert(name, url);
        m_images->request(url);
    }
}

QImage ChatTwitch::chatImage(const QString& url) const
{
    return m_images->image(url);
}

void ChatTwitch::imageArrived(const QString& url, const QImage& image)
{
    notify(imageTag, QVariantMap{{QStringLiteral("url"), url}, {QStringLiteral("image"), image}});
}
