#include "browser/browsermanager.h"

BrowserManager::BrowserManager(ICefCaptureCallback* callback)
    : m_callback(callback)
{
}

BrowserManager::~BrowserManager() = default;

ICefCaptureCallback* BrowserManager::callback() const
{
    return m_callback;
}
