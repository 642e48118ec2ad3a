#include "webbrowser/webenginecefmanager.h"

#include "webbrowser/browserenvironment.h"
#include "webbrowser/webenginebrowser.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QList>
#include <QLoggingCategory>
#include <QPointer>
#include <QWebEngineCookieStore>
#include <QWebEngineProfile>

namespace {
Q_LOGGING_CATEGORY(lcManager, "host.webbrowser")

std::unique_ptr<QWebEngineProfile> makeProfile(const QString& storageDirectory)
{
    if (storageDirectory.isEmpty())
        return std::make_unique<QWebEngineProfile>(); // off the record: memory only
    auto profile = std::make_unique<QWebEngineProfile>(QStringLiteral("SignIn"));
    // The cookies are the operator's signed-in sessions: for the owner's eyes only.
    if (!QDir().mkpath(storageDirectory)
        || !QFile::setPermissions(storageDirectory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        qCWarning(lcManager) << "Couldn't make the browser's folder" << storageDirectory << "owner-only.";
    profile->setPersistentStoragePath(storageDirectory);
    profile->setCachePath(QDir(storageDirectory).filePath(QStringLiteral("cache")));
    return profile;
}
} // namespace

struct WebEngineCefManager::Private {
    std::unique_ptr<QWebEngineProfile> profile;
    QHash<ICefCaptureCallback*, WebEngineBrowser*> browsers;
    // Deleted browsers whose page may still be in a call of its own; gone before the profile.
    QList<QPointer<WebEngineBrowser>> retired;
    int loadTimeout = 30000;

    WebEngineBrowser* browser(ICefCaptureCallback* callback) const { return browsers.value(callback); }
};

WebEngineCefManager::WebEngineCefManager(const QString& storageDirectory)
    : d(std::make_unique<Private>())
{
    d->profile = makeProfile(storageDirectory);
    BrowserEnvironment::logSandbox();
}

WebEngineCefManager::~WebEngineCefManager()
{
    // The engine wants every page gone before its profile.
    qDeleteAll(d->browsers);
    d->browsers.clear();
    for (const QPointer<WebEngineBrowser>& browser : qAsConst(d->retired))
        delete browser.data();
    d->profile.reset();
}

void WebEngineCefManager::setLoadTimeout(int milliseconds)
{
    d->loadTimeout = milliseconds;
}

bool WebEngineCefManager::hasEngine() const
{
    return true;
}

BrowserManager* WebEngineCefManager::createBrowser(ICefCaptureCallback* callback)
{
    if (WebEngineBrowser* existing = d->browser(callback))
        return existing;
    auto* browser = new WebEngineBrowser(callback, d->profile.get(), d->loadTimeout);
    d->browsers.insert(callback, browser);
    return browser;
}

void WebEngineCefManager::deleteBrowser(ICefCaptureCallback* callback)
{
    WebEngineBrowser* browser = d->browsers.take(callback);
    if (!browser)
        return;
    // Often called from the page's own signal (its redirect ended the sign-in): the page
    // goes once that call has returned.
    browser->detach();
    browser->deleteLater();
    d->retired.removeAll(nullptr);
    d->retired.append(browser);
}

BrowserManager* WebEngineCefManager::findBrowser(ICefCaptureCallback* callback) const
{
    return d->browser(callback);
}

void WebEngineCefManager::loadUrl(ICefCaptureCallback* callback, const QString& url)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->load(url);
}

void WebEngineCefManager::resized(ICefCaptureCallback* callback)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->resize();
}

void WebEngineCefManager::mousePressEvent(ICefCaptureCallback* callback, QMouseEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendMouseEvent(event);
}

void WebEngineCefManager::mouseReleaseEvent(ICefCaptureCallback* callback, QMouseEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendMouseEvent(event);
}

void WebEngineCefManager::mouseMoveEvent(ICefCaptureCallback* callback, QMouseEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendMouseEvent(event);
}

void WebEngineCefManager::mouseDoubleClickEvent(ICefCaptureCallback* callback, QMouseEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendMouseEvent(event);
}

void WebEngineCefManager::wheelEvent(ICefCaptureCallback* callback, QWheelEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendWheelEvent(event);
}

void WebEngineCefManager::keyPressEvent(ICefCaptureCallback* callback, QKeyEvent* event)
{
    if (WebEngineBrowser* browser = d->browser(callback))
        browser->sendKeyEvent(event);
}

void WebEngineCefManager::deleteCookies()
{
    d->profile->cookieStore()->deleteAllCookies();
}
