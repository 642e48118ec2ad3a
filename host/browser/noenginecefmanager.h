#pragma once

#include "browser/cefmanager.h"

// The engine used when the host has none: it creates no browser, so every
// forwarding call finds nothing to act on.
class NoEngineCefManager : public CefManager
{
public:
    bool hasEngine() const override;

    BrowserManager* createBrowser(ICefCaptureCallback* callback) override;
    void deleteBrowser(ICefCaptureCallback* callback) override;
    BrowserManager* findBrowser(ICefCaptureCallback* callback) const override;
    void loadUrl(ICefCaptureCallback* callback, const QString& url) override;
    void resized(ICefCaptureCallback* callback) override;

    void mousePressEvent(ICefCaptureCallback* callback, QMouseEvent* event) override;
    void mouseReleaseEvent(ICefCaptureCallback* callback, QMouseEvent* event) override;
    void mouseMoveEvent(ICefCaptureCallback* callback, QMouseEvent* event) override;
    void mouseDoubleClickEvent(ICefCaptureCallback* callback, QMouseEvent* event) override;
    void wheelEvent(ICefCaptureCallback* callback, QWheelEvent* event) override;
    void keyPressEvent(ICefCaptureCallback* callback, QKeyEvent* event) override;

    void deleteCookies() override;
};
