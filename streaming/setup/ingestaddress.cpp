#include "setup/ingestaddress.h"

#include <QUrl>

namespace {

bool hasScheme(const QString& address)
{
    return address.contains(QLatin1String("://"));
}

// "host[:port][/path]" read as the authority of an rtmp URL.
QUrl bareUrl(const QString& address)
{
    return QUrl(QStringLiteral("rtmp://") + address.trimmed(), QUrl::StrictMode);
}

} // namespace

namespace IngestAddress {

QString host(const QString& address)
{
    return (hasScheme(address) ? QUrl(address) : bareUrl(address)).host();
}

QString chosen(const QString& server, const QString& current)
{
    if (hasScheme(server))
        return server;
    const QUrl bare = bareUrl(server);
    if (bare.host().isEmpty())
        return current;
    QUrl url(current);
    if (url.host().isEmpty())
        return bare.toString();
    url.setHost(bare.host());
    if (bare.port() > 0)
        url.setPort(bare.port());
    return url.toString();
}

} // namespace IngestAddress
