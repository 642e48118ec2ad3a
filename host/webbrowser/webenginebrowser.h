#pragma once

#include "browser/browsermanager.h"
#include "browser/icefcapturecallback.h"
#include "browser_export.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

class MainFrameRequestCounter;
class QKeyEvent;
class QMouseEvent;
class QQuickWidget;
class QWebEngineProfile;
class QWebEngineView;
class QWheelEvent;
class SignInPage;

// One page of the Qt WebEngine browser, drawn off screen. Its frames, addresses and
// failures go to the callback on the GUI thread until detach().
class BROWSER_EXPORT WebEngineBrowser : public QObject, public BrowserManager
{
    Q_OBJECT
public:
    WebEngineBrowser(ICefCaptureCallback* callback, QWebEngineProfile* profile, int loadTimeoutMs);
    ~WebEngineBrowser() override;

    QString currentUrl() const override;
    bool isLoading() const override;

    void load(const QString& url);
    // Renders at the callback's size from now on.
    void resize();
    void sendMouseEvent(const QMouseEvent* event);
    void sendWheelEvent(const QWheelEvent* event);
    // A press and its release: the view only forwards presses.
    void sendKeyEvent(const QKeyEvent* event);
    // No call reaches the callback after this; the page stops and may then be deleted.
    void detach();
    // The process drawing the page, 0 while there is none.
    qint64 renderProcessId() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void loadStarted();
    void loadFinished(bool ok);
    void urlChanged(const QUrl& url);
    void renderProcessTerminated(int status);
    void loadTimedOut();
    void fail(ICefCaptureCallback::LoadFailure failure);
    void watchRenderer();
    void scheduleFrame();
    void deliverFrame();
    QWidget* inputTarget() const;

    std::unique_ptr<QWebEngineView> m_view;
    SignInPage* m_page = nullptr;
    MainFrameRequestCounter* m_requests = nullptr;
    QTimer m_loadTimer;
    QTimer m_frameTimer;
    QPointer<QQuickWidget> m_renderer;
    bool m_attached = true;
    bool m_loading = false;
    bool m_failed = false;
    bool m_grabbing = false;
};
