#pragma once

#include "host_export.h"

#include <QString>

class BrowserManager;
class ICefCaptureCallback;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

// The host's off-screen browser engine. Every browser belongs to one callback (the
// widget showing it); calls for a callback without a browser do nothing.
// Called on the GUI thread only.
class HOST_EXPORT CefManager
{
public:
    virtual ~CefManager();

    // The engine the host installed, or the built-in one without a browser engine.
    // Never null.
    static CefManager* instance();
    // Installs the host's engine (not owned); null goes back to the built-in one.
    static void setInstance(CefManager* manager);

    // False when no browser can be created on this system.
    virtual bool hasEngine() const = 0;

    virtual BrowserManager* createBrowser(ICefCaptureCallback* callback) = 0;
    // After this returns the browser makes no further calls to the callback.
    virtual void deleteBrowser(ICefCaptureCallback* callback) = 0;
    virtual BrowserManager* findBrowser(ICefCaptureCallback* callback) const = 0;
    virtual void loadUrl(ICefCaptureCallback* callback, const QString& url) = 0;
    // The callback's size() changed.
    virtual void resized(ICefCaptureCallback* callback) = 0;

    virtual void mousePressEvent(ICefCaptureCallback* callback, QMouseEvent* event) = 0;
    virtual void mouseReleaseEvent(ICefCaptureCallback* callback, QMouseEvent* event) = 0;
    virtual void mouseMoveEvent(ICefCaptureCallback* callback, QMouseEvent* event) = 0;
    virtual void mouseDoubleClickEvent(ICefCaptureCallback* callback, QMouseEvent* event) = 0;
    virtual void wheelEvent(ICefCaptureCallback* callback, QWheelEvent* event) = 0;
    virtual void keyPressEvent(ICefCaptureCallback* callback, QKeyEvent* event) = 0;

    // Forgets every cookie of every browser (logged-in sessions of the services).
    virtual void deleteCookies() = 0;
};
