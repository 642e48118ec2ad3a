#include "chat/chatprovider.h"

#include "chat/chatlistener.h"
#include "stores/chatdesc.h"
#include "stores/streamingmanager.h"

#include <QDateTime>
#include <QtGlobal>

const QString ChatProvider::readLineTag = QStringLiteral("m_readLine");
const QString ChatProvider::messageTag = QStringLiteral("message");
const QString ChatProvider::failedTag = QStringLiteral("Connect Failed");
const QString ChatProvider::connectedTag = QStringLiteral("Connected");
const QString ChatProvider::noticeTag = QStringLiteral("Notice");
const QString ChatProvider::imageTag = QStringLiteral("imageDownloader");
const QString ChatProvider::sendFailedTag = QStringLiteral("Send Failed");

const QStringList& ChatProvider::colorTable()
{
    static const QStringList table{"#FF3232", "#0AC9FF", "#00FF00", "#B22222", "#FF7F50",
                                   "#9ACD32", "#FF4500", "#2E8B57", "#DAA520", "#D2691E",
                                   "#5F9EA0", "#1E90FF", "#FF69B4", "#8A2BE2", "#00FF7F"};
    return table;
}

ChatProvider::ChatProvider(const QString& displayName) : m_displayName(displayName) {}

ChatProvider::~ChatProvider()
{
    // The store lists providers it does not own; it must not keep a dangling one.
    if (StreamingManager* store = StreamingManager::getInstancePtr()) {
        QList<ChatProvider*> providers = store->chatProviders();
        if (providers.removeAll(this) > 0)
            store->setChatProviders(providers);
    }
}

bool ChatProvider::loadSuperChats(QList<ChatDesc>*, QString* error)
{
    error->clear();
    return false;
}

QString ChatProvider::colorFor(const QString& user)
{
    return colorFor(user, QDateTime::currentMSecsSinceEpoch());
}

QString ChatProvider::colorFor(const QString& user, qint64 msecsSinceEpoch)
{
    // Reseeded at every call with the whole second, as the chat always did.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    qsrand(static_cast<uint>(msecsSinceEpoch / 1000));
    const int index = qrand() % colorTable().size();
    QT_WARNING_POP
    auto it = m_userColors.constFind(user);
    if (it == m_userColors.constEnd())
        it = m_userColors.insert(user, colorTable().at(index));
    return it.value();
}

void ChatProvider::addListener(ChatListener* listener)
{
    if (listener && !m_listeners.contains(listener))
        m_listeners.append(listener);
}

void ChatProvider::removeListener(ChatListener* listener)
{
    m_listeners.removeAll(listener);
}

void ChatProvider::notify(const QString& tag, const QVariant& data)
{
    // A listener may remove itself (or another) while it is told.
    const QList<ChatListener*> listeners = m_listeners;
    for (ChatListener* listener : listeners)
        if (m_listeners.contains(listener))
            listener->chatEvent(tag, data);
}

void ChatProvider::deliver(const ChatDesc& message)
{
    notify(messageTag, QVariant::fromValue(message));
    if (StreamingManager* store = StreamingManager::getInstancePtr())
        store->setChatBuffer(message);
}

QString ChatProvider::singleLine(const QString& text, int maxLength)
{
    QString line = text;
    for (QChar& c : line)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            c = QLatin1Char(' ');
    line = line.trimmed();
    if (line.size() > maxLength) {
        line.truncate(maxLength);
        if (line.at(maxLength - 1).isHighSurrogate())
            line.chop(1);
    }
    return line;
}
