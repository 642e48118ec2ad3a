#include "webbrowser/mainframerequestcounter.h"

#include <QMutexLocker>

void MainFrameRequestCounter::interceptRequest(QWebEngineUrlRequestInfo& info)
{
    if (info.resourceType() != QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
        return;
    // Called on the engine's thread by older engines, on the GUI thread by newer ones.
    QMutexLocker lock(&m_mutex);
    ++m_count;
    m_lastUrl = info.requestUrl();
}

void MainFrameRequestCounter::reset()
{
    QMutexLocker lock(&m_mutex);
    m_count = 0;
    m_lastUrl.clear();
}

int MainFrameRequestCounter::count() const
{
    QMutexLocker lock(&m_mutex);
    return m_count;
}

QUrl MainFrameRequestCounter::lastUrl() const
{
    QMutexLocker lock(&m_mutex);
    return m_lastUrl;
}
