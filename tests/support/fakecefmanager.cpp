#include "support/fakecefmanager.h"

#include "browser/browsermanager.h"
#include "browser/icefcapturecallback.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

// A browser of FakeCefManager: remembers what it was told to load.
class FakeBrowserManager : public BrowserManager
{
public:
    using BrowserManager::BrowserManager;
    QString currentUrl() const override { return url; }
    bool isLoading() const override { return false; }
    QString url;
};

namespace {
QString at(const char* what, const QMouseEvent* event)
{
    return QStringLiteral("%1 %2,%3").arg(QLatin1String(what)).arg(event->x()).arg(event->y());
}
} // namespace

FakeCefManager::FakeCefManager() { CefManager::setInstance(this); }
FakeCefManager::~FakeCefManager() { CefManager::setInstance(nullptr); }
bool FakeCefManager::hasEngine() const { return true; }

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
    return m_browsers.value(callback).get();
}

void FakeCefManager::loadUrl(ICefCaptureCallback* callback, const QString& url)
{
    if (FakeBrowserManager* browser = m_browsers.value(callback).get()) {
        browser->url = url;
        m_calls << QStringLiteral("loadUrl ") + url;
    }
}

void FakeCefManager::resized(ICefCaptureCallback* callback)
{
    m_calls << QStringLiteral("resized %1x%2").arg(callback->size().width()).arg(callback->size().height());
}

void FakeCefManager::mousePressEvent(ICefCaptureCallback*, QMouseEvent* event) { m_calls << at("mousePress", event); }
void FakeCefManager::mouseReleaseEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << at("mouseRelease", event);
}
void FakeCefManager::mouseMoveEvent(ICefCaptureCallback*, QMouseEvent* event) { m_calls << at("mouseMove", event); }
void FakeCefManager::mouseDoubleClickEvent(ICefCaptureCallback*, QMouseEvent* event)
{
    m_calls << at("mouseDoubleClick", event);
}
void FakeCefManager::wheelEvent(ICefCaptureCallback*, QWheelEvent* event)
{
    m_calls << QStringLiteral("wheel %1").arg(event->angleDelta().y());
}
void FakeCefManager::keyPressEvent(ICefCaptureCallback*, QKeyEvent* event) { m_calls << "keyPress " + event->text(); }
void FakeCefManager::deleteCookies() { m_calls << QStringLiteral("deleteCookies"); }

QStringList FakeCefManager::calls() const { return m_calls; }
void FakeCefManager::clearCalls() { m_calls.clear(); }
int FakeCefManager::browserCount() const { return m_browsers.size(); }

void FakeCefManager::deliverFrame(ICefCaptureCallback* callback, const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    // The engine hands over tightly packed rows.
    QByteArray packed;
    for (int y = 0; y < argb.height(); ++y)
        packed.append(reinterpret_cast<const char*>(argb.constScanLine(y)), argb.width() * 4);
    callback->onPaint(packed.constData(), argb.width(), argb.height());
}

void FakeCefManager::navigate(ICefCaptureCallback* callback, const QString& url)
{
    if (FakeBrowserManager* browser = m_browsers.value(callback).get())
        browser->url = url;
    callback->onUrlChanged(url);
}
