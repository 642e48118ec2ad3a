#include "chat/chathtml.h"

#include "stores/chatdesc.h"

#include <QUrl>
#include <QVector>

#include <algorithm>

const QString ChatHtml::fallbackColor = QStringLiteral("#808080");

namespace {

struct Emote {
    int begin;
    int length;
    QString url;
};

bool isImageUrl(const QString& url)
{
    return url.startsWith(QLatin1String("https://")) || url.startsWith(QLatin1String("http://"));
}

// The message's emotes that fit its text, in order and apart.
QVector<Emote> emotes(const ChatDesc& message)
{
    QVector<Emote> list;
    for (const QVariant& value : message.attributes.value(QStringLiteral("emotes")).toList()) {
        const QVariantMap emote = value.toMap();
        const int begin = emote.value(QStringLiteral("begin"), -1).toInt();
        const int length = emote.value(QStringLiteral("length")).toInt();
        const QString url = emote.value(QStringLiteral("url")).toString();
        if (begin >= 0 && length > 0 && begin <= message.message.size() - length && isImageUrl(url))
            list.append(Emote{begin, length, url});
    }
    std::stable_sort(list.begin(), list.end(), [](const Emote& a, const Emote& b) { return a.begin < b.begin; });
    QVector<Emote> apart;
    for (const Emote& emote : qAsConst(list))
        if (apart.isEmpty() || emote.begin >= apart.last().begin + apart.last().length)
            apart.append(emote);
    return apart;
}

// Text as HTML: escaped, control characters left out.
QString escaped(const QString& text)
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar c : text)
        if (c.unicode() >= 0x20 && c.unicode() != 0x7F)
            clean.append(c);
    return clean.toHtmlEscaped();
}

QString image(const QString& url, int size, const QString& title = QString())
{
    return QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%2\" align=\"middle\" title=\"%3\">")
        .arg(url.toHtmlEscaped())
        .arg(size)
        .arg(escaped(title));
}

QStringList badgeUrls(const ChatDesc& message)
{
    QStringList urls;
    for (const QString& url : message.attributes.value(QStringLiteral("badgeUrls")).toStringList())
        if (isImageUrl(url))
            urls.append(url);
    return urls;
}

} // namespace

bool ChatHtml::isColor(const QString& text)
{
    if ((text.size() != 7 && text.size() != 4) || !text.startsWith(QLatin1Char('#')))
        return false;
    return std::all_of(text.begin() + 1, text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || (c >= QLatin1Char('a') && c <= QLatin1Char('f'))
               || (c >= QLatin1Char('A') && c <= QLatin1Char('F'));
    });
}

QString ChatHtml::render(const ChatDesc& message)
{
    const QString color = isColor(message.color) ? message.color : fallbackColor;
    QString html = QStringLiteral("<span style=\"color:%1\">").arg(color);
    const QString picture = message.pictureUrl.toString();
    if (isImageUrl(picture))
        html += image(picture, pictureSize) + QLatin1Char(' ');
    for (const QString& url : badgeUrls(message))
        html += image(url, badgeSize) + QLatin1Char(' ');
    html += QStringLiteral("<b>%1</b></span>").arg(escaped(message.author));
    if (message.type == ChatDesc::SuperChat)
        html += QStringLiteral(" <b>%1</b>").arg(escaped(message.attributes.value(QStringLiteral("amount")).toString()));

    const bool action = message.attributes.value(QStringLiteral("action")).toBool();
    html += action ? QStringLiteral(" <span style=\"color:%1\"><i>").arg(color) : QStringLiteral(": ");
    int at = 0;
    for (const Emote& emote : emotes(message)) {
        html += escaped(message.message.mid(at, emote.begin - at));
        html += image(emote.url, emoteSize, message.message.mid(emote.begin, emote.length));
        at = emote.begin + emote.length;
    }
    html += escaped(message.message.mid(at));
    if (action)
        html += QStringLiteral("</i></span>");
    return html;
}

QStringList ChatHtml::imageUrls(const ChatDesc& message)
{
    QStringList urls = badgeUrls(message);
    const QString picture = message.pictureUrl.toString();
    if (isImageUrl(picture))
        urls.append(picture);
    for (const Emote& emote : emotes(message))
        urls.append(emote.url);
    return urls;
}
