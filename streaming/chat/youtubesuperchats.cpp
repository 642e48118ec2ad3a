#include "chat/youtubesuperchats.h"

#include "chat/youtubechatpage.h"

#include <QJsonArray>

namespace {

QString member(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString().left(YouTubeChatPage::maxTextLength);
}

} // namespace

bool YouTubeSuperChats::read(const QJsonObject& reply, QList<ChatDesc>* events)
{
    const QJsonValue items = reply.value(QLatin1String("items"));
    if (!items.isArray())
        return false;
    events->clear();
    const QJsonArray list = items.toArray();
    for (int i = qMin(list.size(), maxEvents) - 1; i >= 0; --i) {
        const QJsonObject item = list.at(i).toObject();
        const QJsonObject snippet = item.value(QLatin1String("snippet")).toObject();
        const QJsonObject supporter = snippet.value(QLatin1String("supporterDetails")).toObject();
        ChatDesc desc;
        desc.type = ChatDesc::SuperChat;
        desc.author = member(supporter, "displayName");
        const QString amount = member(snippet, "displayString").left(64);
        // A Super Chat may come without a comment; never without its supporter and amount.
        if (desc.author.isEmpty() || amount.isEmpty())
            continue;
        desc.message = member(snippet, "commentText");
        desc.id = member(item, "id").toUtf8();
        desc.pictureUrl = QUrl(member(supporter, "profileImageUrl"));
        desc.attributes.insert(QStringLiteral("service"), QStringLiteral("YouTube"));
        desc.attributes.insert(QStringLiteral("amount"), amount);
        events->append(desc);
    }
    return true;
}
