#include "fakecefmanager.h"

#include "fakebrowsermanager.h"
#include "icefcapturecallback.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

FakeCefManager::FakeCefManager()
{
    CefManager::setInstance(this);
}

FakeCefManager::~FakeCefManager()
{
    CefManager::setInstance(nullptr);
}

bool FakeCefManager::hasEngine() const
{
    return true;
}

BrowserManager* FakeCefManager::createBrowser(ICefCaptureCallback* callback)
{
    m_calls << QStringLiteral("createBrowser");
    auto browser = std::make_shared<FakeBrowserManager>(callback);
    m_browsers.insert(callback, browser);
    return browser.get();
}

void FakeCefManager::deleteBrowser(ICefCaptureCallback* callback)
{
    if (m_browsers.remove(callback))
        m_calls << QStringLiteral("deleteBrowser");
}

BrowserManager* FakeCefManager::findBrowser(ICefCaptureCallback* callback) const
{
    const auto found = m_browsers.constFind(callback);
    return found == m_browsers.constEnd() ? nullptr : found.value().get();
}

void FakeCefManager::loadUrl(ICefCaptureCallback* callback, const QString& url)
{
    const auto found = m_browsers.constFind(callback);
    if (found == m_browsers.constEnd())
        return;
    found.value()->setCurrentUrl(url);
    m_calls << QStringLiteral("loadUrl ") + url;
}

void FakeCefManager::resized(ICefCaptureCallback* callback)
{
    const QSize size = callback->size();
    m_calls << QStringLiteral("resized %1x%2").arg(size.width()).arg(size.height());
}

void FakeCefManager::mousePressEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << QStringLiteral("mousePress %1,%2").arg(event->x()).arg(event->y());
}

void FakeCefManager::mouseReleaseEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << QStringLiteral("mouseRelease %1,%2").arg(event->x()).arg(event->y());
}

void FakeCefManager::mouseMoveEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << QStringLiteral("mouseMove %1,%2").arg(event->x()).arg(event->y());
}

void FakeCefManager::mouseDoubleClickEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << QStringLiteral("mouseDoubleClick %1,%2").arg(event->x()).arg(event->y());
}

void FakeCefManager::wheelEvent(ICefCaptureCallback*, QWheelEvent* event)
{
    m_calls << QStringLiteral("wheel %1").arg(event->angleDelta().y());
}

void FakeCefManager::keyPressEvent(ICefCaptureCallback*, QKeyEvent* event)
{
    m_calls << QStringLiteral("keyPress ") + event->text();
}

void FakeCefManager::deleteCookies()
{
    m_calls << QStringLiteral("deleteCookies");
}

QStringList FakeCefManager::calls() const
{
    return m_calls;
}

void FakeCefManager::clearCalls()
{
    m_calls.clear();
}

int FakeCefManager::browserCount() const
{
    return m_browsers.size();
}

void FakeCefManager::deliverFrame(ICefCaptureCallback* callback, const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    // The engine hands over tightly packed rows.
    QByteArray packed;
    packed.reserve(argb.width() * argb.height() * 4);
    for (int y = 0; y < argb.height(); ++y)
        packed.append(reinterpret_cast<const char*>(argb.constScanLine(y)), argb.width() * 4);
    callback->onPaint(packed.constData(), argb.width(), argb.height());
}

void FakeCefManager::navigate(ICefCaptureCallback* callback, const QString& url)
{
    const auto found = m_browsers.constFind(callback);
    if (found != m_browsers.constEnd())
        found.value()->setCurrentUrl(url);
    callback->onUrlChanged(url);
}
