#pragma once

#include <QCache>
#include <QLoggingCategory>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

class QNetworkReply;
class ViewInterface;

// The chat's log.
Q_DECLARE_LOGGING_CATEGORY(lcChat)

// Fetches the chat's pictures (emotes, badges, author pictures) once each, without
// waiting for them, and keeps the newest within a budget. A picture that failed is not
// asked for again; a hostile line cannot start more than a few downloads at a time.
class ChatImageLoader : public QObject
{
    Q_OBJECT
public:
    static constexpr int maxPending = 32;
    static constexpr qint64 maxDownloadBytes = 1 << 20;
    static constexpr int maxCacheBytes = 16 << 20;
    // Pictures are scaled down to fit this square.
    static constexpr int maxSide = 112;
    static constexpr int requestTimeout = 10000;

    explicit ChatImageLoader(ViewInterface* view, QObject* parent = nullptr);
    ~ChatImageLoader() override;

    // Starts fetching an http or https picture unless it is kept, on its way or failed.
    void request(const QString& url);
    QImage image(const QString& url) const;
    // Stops the downloads on their way.
    void abort();

signals:
    void arrived(const QString& url, const QImage& image);

private:
    void finished(QNetworkReply* reply, const QString& url);
    static QImage decode(const QByteArray& bytes);

    ViewInterface* m_view;
    QCache<QString, QImage> m_cache;
    QSet<QString> m_pending;
    QSet<QString> m_failed;
    QList<QPointer<QNetworkReply>> m_replies;
};
