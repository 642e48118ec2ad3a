#pragma once

#include "host_export.h"

#include <QString>

class ICefCaptureCallback;

// One off-screen browser, owned by the CefManager that created it.
class HOST_EXPORT BrowserManager
{
public:
    explicit BrowserManager(ICefCaptureCallback* callback);
    virtual ~BrowserManager();

    BrowserManager(const BrowserManager&) = delete;
    BrowserManager& operator=(const BrowserManager&) = delete;

    // The widget the browser paints into.
    ICefCaptureCallback* callback() const;
    // The address the browser shows now (after redirects), empty before the first load.
    virtual QString currentUrl() const = 0;
    virtual bool isLoading() const = 0;

private:
    ICefCaptureCallback* m_callback;
};
