#pragma once

#include "browser/icefcapturecallback.h"

#include <QByteArray>
#include <QImage>
#include <QMutex>
#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QUrl;

// Shows a page rendered by the host's off-screen browser and forwards input to it.
// Without a browser engine it shows the address to open elsewhere and takes the address
// that browser ended on, pasted by the operator, as the page's own (urlChanged).
// Frames may arrive on the browser's own thread; they are copied under m_frameMutex
// and painted on the GUI thread.
class WebView : public QWidget, public ICefCaptureCallback
{
    Q_OBJECT
public:
    explicit WebView(QWidget* parent = nullptr);
    ~WebView() override;

    // An empty URL closes the browser; any other creates one when needed and loads it.
    void loadUrl(const QUrl& url);
    // Forgets the services' login sessions of every browser.
    void deleteCookies();
    // A deep copy of the last frame (null before the first one).
    QImage frameImage() const;

    void onPaint(const void* buffer, int width, int height) override;
    void onLoadingStateChanged(bool loading) override;
    QSize size() const override;
    int frameRate() const override;
    QString url() const override;
    quintptr parentWindowHandle() const override;
    bool isTransparent() const override;
    void onUrlChanged(const QString& url) override;
    void onTitleChanged(const QString& title) override;
    void onLoadFailed(LoadFailure failure, const QString& url) override;

signals:
    void urlChanged(const QString& url);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // Tab and Backtab move between the page's fields, not out of the view.
    bool focusNextPrevChild(bool next) override;

private:
    void updateNoBrowserText();
    void showFailure(LoadFailure failure, const QString& url);

    QString m_url;
    mutable QMutex m_frameMutex;
    QByteArray m_frameBytes;
    QImage m_frame;
    QLabel* m_noBrowserLabel = nullptr;
    QLineEdit* m_pastedAddress = nullptr;
    // Why the page cannot be shown, over the page; hidden until then.
    QLabel* m_failureLabel = nullptr;
};
