#include "provider/oauthredirect.h"

bool OAuthRedirect::reaches(const QUrl& url, const QUrl& target)
{
    const int defaultPort = target.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) == 0 ? 443 : 80;
    return url.isValid() && url.scheme().compare(target.scheme(), Qt::CaseInsensitive) == 0
           && url.host().compare(target.host(), Qt::CaseInsensitive) == 0
           && url.port(defaultPort) == target.port(defaultPort) && url.path() == target.path();
}

QUrlQuery OAuthRedirect::items(const QUrl& url)
{
    QUrlQuery all(url.query(QUrl::FullyEncoded));
    const QUrlQuery fragment(url.fragment(QUrl::FullyEncoded));
    for (const auto& item : fragment.queryItems(QUrl::FullyEncoded))
        if (!all.hasQueryItem(item.first))
            all.addQueryItem(item.first, item.second);
    return all;
}

QJsonObject OAuthRedirect::denial(const QUrlQuery& items)
{
    if (!items.hasQueryItem(QStringLiteral("error")))
        return {};
    QJsonObject reply;
    for (const char* key : {"error", "error_description"}) {
        // Form encoding: "+" stands for a blank.
        const QString value = items.queryItemValue(QLatin1String(key), QUrl::FullyEncoded).replace(QLatin1Char('+'), QLatin1Char(' '));
        reply.insert(QLatin1String(key), QUrl::fromPercentEncoding(value.toUtf8()));
    }
    return reply;
}
