#include "chat/chatimageloader.h"

#include "provider/viewinterface.h"

#include <QBuffer>
#include <QImageReader>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrl>

Q_LOGGING_CATEGORY(lcChat, "streaming.chat")

namespace {
const QString tag = QStringLiteral("imageDownloader");
constexpr int maxFailed = 1024;
} // namespace

ChatImageLoader::ChatImageLoader(ViewInterface* view, QObject* parent) : QObject(parent), m_view(view)
{
    m_cache.setMaxCost(maxCacheBytes);
}

ChatImageLoader::~ChatImageLoader()
{
    abort();
}

void ChatImageLoader::request(const QString& url)
{
    if (url.isEmpty() || m_cache.contains(url) || m_pending.contains(url) || m_failed.contains(url))
        return;
    QNetworkAccessManager* manager = m_view ? m_view->networkAccessManager() : nullptr;
    const QUrl address(url);
    const QString scheme = address.scheme();
    if (!manager || m_pending.size() >= maxPending || (scheme != QLatin1String("http") && scheme != QLatin1String("https")))
        return;
    QNetworkRequest request(address);
    request.setTransferTimeout(requestTimeout);
    QNetworkReply* reply = manager->get(request);
    m_pending.insert(url);
    m_replies.append(reply);
    connect(reply, &QNetworkReply::downloadProgress, this, [reply](qint64 received, qint64) {
        if (received > maxDownloadBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply, url] { finished(reply, url); });
}

QImage ChatImageLoader::image(const QString& url) const
{
    const QImage* image = m_cache.object(url);
    return image ? *image : QImage();
}

void ChatImageLoader::abort()
{
    const QList<QPointer<QNetworkReply>> replies = m_replies;
    m_replies.clear();
    m_pending.clear();
    for (const QPointer<QNetworkReply>& reply : replies) {
        if (!reply)
            continue;
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void ChatImageLoader::finished(QNetworkReply* reply, const QString& url)
{
    m_replies.removeAll(reply);
    m_pending.remove(url);
    reply->deleteLater();
    const QImage image = reply->error() == QNetworkReply::NoError ? decode(reply->readAll()) : QImage();
    if (m_view)
        m_view->debugMessage(tag, QStringList{url, image.isNull() ? reply->errorString() : QStringLiteral("OK")});
    if (image.isNull()) {
        if (m_failed.size() >= maxFailed)
            m_failed.clear();
        m_failed.insert(url);
        return;
    }
    m_cache.insert(url, new QImage(image), static_cast<int>(qMin<qint64>(image.sizeInBytes(), maxCacheBytes)));
    emit arrived(url, image);
}

QImage ChatImageLoader::decode(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    // A picture that claims to be huge is not one the chat shows.
    if (!size.isValid() || size.width() > 4096 || size.height() > 4096)
        return QImage();
    if (size.width() > maxSide || size.height() > maxSide)
        reader.setScaledSize(size.scaled(maxSide, maxSide, Qt::KeepAspectRatio));
    return reader.read();
}
