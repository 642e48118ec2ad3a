#pragma once

#include "browser/cefmanager.h"

#include <QImage>
#include <QMap>
#include <QStringList>

#include <memory>

class FakeBrowserManager;

// A browser engine for tests: installs itself for its lifetime, records every call
// as a line ("createBrowser", "loadUrl <url>", "mousePress 10,20", ...) and lets the
// test play the browser's side (frames, address changes).
class FakeCefManager : public CefManager
{
public:
    FakeCefManager();
    ~FakeCefManager() override;

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

    QStringList calls() const;
    void clearCalls();
    int browserCount() const;

    // The browser's side, as the engine would play it (any thread for deliverFrame).
    static void deliverFrame(ICefCaptureCallback* callback, const QImage& image);
    void navigate(ICefCaptureCallback* callback, const QString& url);

private:
    QMap<ICefCaptureCallback*, std::shared_ptr<FakeBrowserManager>> m_browsers;
    QStringList m_calls;
};
