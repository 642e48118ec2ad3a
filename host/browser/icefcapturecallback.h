#pragma once

#include "host_export.h"

#include <QSize>
#include <QString>

// What an off-screen browser asks of the widget that shows it. The browser may call
// onPaint, onLoadingStateChanged, onUrlChanged, onTitleChanged and onLoadFailed from a
// thread of its own; it makes no call after CefManager::deleteBrowser has returned for it.
class HOST_EXPORT ICefCaptureCallback
{
public:
    // Why a page cannot be shown.
    enum class LoadFailure {
        NotLoaded,        // the page could not be loaded (no server, refused, cut off)
        TooManyRedirects, // the address kept redirecting
        TimedOut,         // the page did not finish loading in time and was stopped
        Crashed,          // the process drawing the page ended
    };

    virtual ~ICefCaptureCallback();

    // A new frame: width x height pixels, 4 bytes each (ARGB32), valid during the call only.
    virtual void onPaint(const void* buffer, int width, int height) = 0;
    virtual void onLoadingStateChanged(bool loading) = 0;
    // The size the browser renders at.
    virtual QSize size() const = 0;
    virtual int frameRate() const = 0;
    // The address the browser was last asked to load.
    virtual QString url() const = 0;
    // Native window that owns the browser's pop-ups; 0 renders them into the frame.
    virtual quintptr parentWindowHandle() const = 0;
    // Whether the page is composed over a transparent background.
    virtual bool isTransparent() const = 0;
    // Every address the browser reaches, redirects included.
    virtual void onUrlChanged(const QString& url) = 0;
    virtual void onTitleChanged(const QString& title) = 0;
    // The page at url cannot be shown; the browser stays and takes the next load.
    // Does nothing unless the widget shows it.
    virtual void onLoadFailed(LoadFailure failure, const QString& url);
};
