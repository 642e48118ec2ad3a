#pragma once

#include "host_export.h"

#include <QSize>
#include <QString>

// What an off-screen browser asks of the widget that shows it. The browser may call
// onPaint, onLoadingStateChanged, onUrlChanged and onTitleChanged from a thread of
// its own; it makes no call after CefManager::deleteBrowser has returned for it.
class HOST_EXPORT ICefCaptureCallback
{
public:
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
};
