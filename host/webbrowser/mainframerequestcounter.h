#pragma once

#include <QMutex>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

// Counts the requests a page makes for its own document, redirects included, so a page
// that fails after many of them is known to have kept redirecting.
class MainFrameRequestCounter : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

    // Starts counting again (a new load).
    void reset();
    int count() const;
    // The document asked for last, empty before the first.
    QUrl lastUrl() const;

private:
    mutable QMutex m_mutex;
    int m_count = 0;
    QUrl m_lastUrl;
};
