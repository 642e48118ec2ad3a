#include "webbrowser/webenginebrowser.h"

#include "webbrowser/mainframerequestcounter.h"
#include "webbrowser/signinpage.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QWebEngineView>
#include <QWheelEvent>

namespace {
Q_LOGGING_CATEGORY(lcBrowser, "host.webbrowser")

// The engine gives up after 20 redirects; a failed load that asked for that many
// documents kept redirecting.
constexpr int redirectLimit = 20;
} // namespace

WebEngineBrowser::WebEngineBrowser(ICefCaptureCallback* callback, QWebEngineProfile* profile, int loadTimeoutMs)
    : BrowserManager(callback)
    , m_view(std::make_unique<QWebEngineView>())
{
    // Drawn, but never shown on a screen; it must not keep the application from quitting.
    m_view->setAttribute(Qt::WA_DontShowOnScreen);
    m_view->setAttribute(Qt::WA_QuitOnClose, false);
    m_page = new SignInPage(profile, m_view.get());
    m_requests = new MainFrameRequestCounter(m_page);
    m_page->setUrlRequestInterceptor(m_requests);
    if (callback->isTransparent())
        m_page->setBackgroundColor(Qt::transparent);
    m_view->setPage(m_page);
    m_view->resize(callback->size());
    m_view->installEventFilter(this);
    m_view->show();

    m_loadTimer.setSingleShot(true);
    m_loadTimer.setInterval(loadTimeoutMs);
    connect(&m_loadTimer, &QTimer::timeout, this, &WebEngineBrowser::loadTimedOut);
    // Frames go out at most at the callback's rate, the last change always among them.
    m_frameTimer.setSingleShot(true);
    m_frameTimer.setInterval(1000 / qMax(1, callback->frameRate()));
    connect(&m_frameTimer, &QTimer::timeout, this, &WebEngineBrowser::deliverFrame);

    connect(m_page, &QWebEnginePage::loadStarted, this, &WebEngineBrowser::loadStarted);
    connect(m_page, &QWebEnginePage::loadFinished, this, &WebEngineBrowser::loadFinished);
    connect(m_page, &QWebEnginePage::urlChanged, this, &WebEngineBrowser::urlChanged);
    connect(m_page, &QWebEnginePage::titleChanged, this,
            [this](const QString& title) { this->callback()->onTitleChanged(title); });
    connect(m_page, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status, int) { renderProcessTerminated(status); });
}

WebEngineBrowser::~WebEngineBrowser()
{
    detach();
}

QString WebEngineBrowser::currentUrl() const
{
    return m_page->url().toString(QUrl::FullyEncoded);
}

bool WebEngineBrowser::isLoading() const
{
    return m_loading;
}

void WebEngineBrowser::load(const QString& url)
{
    m_page->load(QUrl(url));
}

void WebEngineBrowser::resize()
{
    m_view->resize(callback()->size());
    scheduleFrame();
}

void WebEngineBrowser::sendMouseEvent(const QMouseEvent* event)
{
    QWidget* target = inputTarget();
    if (!target)
        return;
    QMouseEvent copy(event->type(), event->localPos(), event->localPos(),
                     target->mapToGlobal(event->localPos().toPoint()), event->button(), event->buttons(),
                     event->modifiers(), event->source());
    QCoreApplication::sendEvent(target, &copy);
}

void WebEngineBrowser::sendWheelEvent(const QWheelEvent* event)
{
    QWidget* target = inputTarget();
    if (!target)
        return;
    QWheelEvent copy(event->position(), target->mapToGlobal(event->position().toPoint()), event->pixelDelta(),
                     event->angleDelta(), event->buttons(), event->modifiers(), event->phase(), event->inverted(),
                     event->source());
    QCoreApplication::sendEvent(target, &copy);
}

void WebEngineBrowser::sendKeyEvent(const QKeyEvent* event)
{
    QWidget* target = inputTarget();
    if (!target)
        return;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent copy(type, event->key(), event->modifiers(), event->nativeScanCode(), event->nativeVirtualKey(),
                       event->nativeModifiers(), event->text(), event->isAutoRepeat(), event->count());
        QCoreApplication::sendEvent(target, &copy);
    }
}

void WebEngineBrowser::detach()
{
    if (!m_attached)
        return;
    m_attached = false;
    m_loadTimer.stop();
    m_frameTimer.stop();
    disconnect(m_page, nullptr, this, nullptr);
    if (m_renderer)
        disconnect(m_renderer->quickWindow(), nullptr, this, nullptr);
    m_page->triggerAction(QWebEnginePage::Stop);
    m_view->hide();
}

qint64 WebEngineBrowser::renderProcessId() const
{
    return m_page->renderProcessPid();
}

bool WebEngineBrowser::eventFilter(QObject* watched, QEvent* event)
{
    // The engine replaces the widget it draws into when a page process starts.
    if (watched == m_view.get() && event->type() == QEvent::ChildAdded)
        QMetaObject::invokeMethod(this, &WebEngineBrowser::watchRenderer, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void WebEngineBrowser::loadStarted()
{
    m_loading = true;
    m_failed = false;
    m_requests->reset();
    m_loadTimer.start();
    watchRenderer();
    callback()->onLoadingStateChanged(true);
}

void WebEngineBrowser::loadFinished(bool ok)
{
    m_loadTimer.stop();
    m_loading = false;
    callback()->onLoadingStateChanged(false);
    if (!m_attached || ok || m_failed)
        return;
    fail(m_requests->count() >= redirectLimit ? ICefCaptureCallback::LoadFailure::TooManyRedirects
                                             : ICefCaptureCallback::LoadFailure::NotLoaded);
}

void WebEngineBrowser::urlChanged(const QUrl& url)
{
    watchRenderer();
    // The callback may delete this browser (a sign-in that reached its redirect): nothing after it.
    callback()->onUrlChanged(url.toString(QUrl::FullyEncoded));
}

void WebEngineBrowser::renderProcessTerminated(int status)
{
    if (status == QWebEnginePage::NormalTerminationStatus)
        return;
    qCWarning(lcBrowser) << "The page process of" << m_page->url().host() << "ended with status" << status;
    m_loadTimer.stop();
    m_loading = false;
    fail(ICefCaptureCallback::LoadFailure::Crashed);
}

void WebEngineBrowser::loadTimedOut()
{
    qCWarning(lcBrowser) << "Stopped loading" << m_requests->lastUrl().host() << "after" << m_loadTimer.interval()
                         << "ms";
    fail(ICefCaptureCallback::LoadFailure::TimedOut);
    if (m_attached)
        m_page->triggerAction(QWebEnginePage::Stop);
}

void WebEngineBrowser::fail(ICefCaptureCallback::LoadFailure failure)
{
    if (!m_attached)
        return;
    m_failed = true;
    const QUrl requested = m_requests->lastUrl();
    const QUrl url = requested.isEmpty() ? m_page->url() : requested;
    callback()->onLoadFailed(failure, url.toString(QUrl::FullyEncoded));
}

void WebEngineBrowser::watchRenderer()
{
    auto* renderer = qobject_cast<QQuickWidget*>(m_view->focusProxy());
    if (!m_attached || !renderer || renderer == m_renderer)
        return;
    if (m_renderer)
        disconnect(m_renderer->quickWindow(), nullptr, this, nullptr);
    m_renderer = renderer;
    // Rendering for a grab of our own is no news.
    connect(renderer->quickWindow(), &QQuickWindow::afterRendering, this,
            [this] {
                if (!m_grabbing)
                    scheduleFrame();
            },
            Qt::DirectConnection);
    scheduleFrame();
}

void WebEngineBrowser::scheduleFrame()
{
    if (m_attached && !m_frameTimer.isActive())
        m_frameTimer.start();
}

void WebEngineBrowser::deliverFrame()
{
    if (!m_attached)
        return;
    m_grabbing = true;
    QImage frame = m_view->grab().toImage();
    m_grabbing = false;
    if (frame.isNull())
        return;
    // Frames are in the view's pixels, whatever the screen's scale.
    if (frame.size() != m_view->size())
        frame = frame.scaled(m_view->size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    frame = frame.convertToFormat(QImage::Format_ARGB32);
    callback()->onPaint(frame.constBits(), frame.width(), frame.height());
}

QWidget* WebEngineBrowser::inputTarget() const
{
    // The engine draws into, and takes input from, a widget of its own inside the view.
    return m_attached ? m_view->focusProxy() : nullptr;
}
