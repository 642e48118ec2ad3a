#include "chat/youtubechatpage.h"

#include <QJsonArray>

namespace {

QString member(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

// YouTube's roles as the chat's badges.
QStringList badges(const QJsonObject& author)
{
    QStringList names;
    if (author.value(QLatin1String("isChatOwner")).toBool())
        names.append(QStringLiteral("broadcaster"));
    if (author.value(QLatin1String("isChatModerator")).toBool())
        names.append(QStringLiteral("mod"));
    if (author.value(QLatin1String("isChatSponsor")).toBool())
        names.append(QStringLiteral("subscriber"));
    return names;
}

} // namespace

bool YouTubeChatPage::read(const QJsonObject& reply, YouTubeChatPage* page)
{
    const QJsonValue items = reply.value(QLatin1String("items"));
    const QJsonValue token = reply.value(QLatin1String("nextPageToken"));
    if (!items.isArray() || !token.isString() || token.toString().isEmpty())
        return false;
    page->nextPageToken = token.toString();
    const QJsonValue interval = reply.value(QLatin1String("pollingIntervalMillis"));
    page->pollingInterval = interval.isDouble() ? static_cast<int>(qBound<double>(minInterval, interval.toDouble(), maxInterval))
                                                : minInterval;
    page->messages.clear();
    const QJsonArray list = items.toArray();
    for (int i = qMax(0, list.size() - maxMessages); i < list.size(); ++i) {
        const QJsonObject item = list.at(i).toObject();
        const QJsonObject author = item.value(QLatin1String("authorDetails")).toObject();
        const QJsonObject snippet = item.value(QLatin1String("snippet")).toObject();
        ChatDesc desc;
        desc.message = member(snippet.value(QLatin1String("textMessageDetails")).toObject(), "messageText");
        if (desc.message.isEmpty())
            desc.message = member(snippet, "displayMessage");
        desc.author = member(author, "displayName");
        if (desc.message.isEmpty() || desc.author.isEmpty())
            continue;
        desc.message.truncate(maxTextLength);
        desc.author.truncate(maxTextLength);
        desc.id = member(item, "id").left(maxTextLength).toUtf8();
        desc.pictureUrl = QUrl(member(author, "profileImageUrl"));
        desc.badges = badges(author);
        desc.attributes.insert(QStringLiteral("service"), QStringLiteral("YouTube"));
        if (member(snippet, "type") == QLatin1String("superChatEvent")) {
            desc.type = ChatDesc::SuperChat;
            desc.attributes.insert(
                QStringLiteral("amount"),
                member(snippet.value(QLatin1String("superChatDetails")).toObject(), "amountDisplayString").left(64));
        }
        page->messages.append(desc);
    }
    return true;
}
