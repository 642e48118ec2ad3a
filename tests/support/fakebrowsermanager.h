#pragma once

#include "browsermanager.h"

#include <QString>

// A browser of FakeCefManager: remembers what it was told to load.
class FakeBrowserManager : public BrowserManager
{
public:
    explicit FakeBrowserManager(ICefCaptureCallback* callback);

    QString currentUrl() const override;
    bool isLoading() const override;

    void setCurrentUrl(const QString& url);

private:
    QString m_currentUrl;
};
