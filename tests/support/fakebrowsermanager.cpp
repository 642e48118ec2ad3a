#include "fakebrowsermanager.h"

FakeBrowserManager::FakeBrowserManager(ICefCaptureCallback* callback)
    : BrowserManager(callback)
{
}

QString FakeBrowserManager::currentUrl() const
{
    return m_currentUrl;
}

bool FakeBrowserManager::isLoading() const
{
    return false;
}

void FakeBrowserManager::setCurrentUrl(const QString& url)
{
    m_currentUrl = url;
}
