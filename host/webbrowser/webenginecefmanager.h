#pragma once

#include "browser/cefmanager.h"
#include "browser_export.h"

#include <memory>

// The host's browser engine on Qt WebEngine: one off-screen page per widget, drawn into
// the widget's callback, with the widget's input forwarded to it. Needs a platform that
// can draw (BrowserEnvironment::canRender()) and BrowserEnvironment::prepare() before the
// QApplication is created. The host installs it with CefManager::setInstance.
class BROWSER_EXPORT WebEngineCefManager : public CefManager
{
public:
    // Sign-in sessions are kept in storageDirectory (made owner-only) between runs, or in
    // memory only when it is empty.
    explicit WebEngineCefManager(const QString& storageDirectory = QString());
    ~WebEngineCefManager() override;

    // How long a page may take to load before it is stopped and reported (30000 ms, as
    // long as a service request may take).
    void setLoadTimeout(int milliseconds);

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

private:
    struct Private;
    std::unique_ptr<Private> d;
};
