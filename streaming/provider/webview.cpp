#include "provider/webview.h"

#include "browser/browsermanager.h"
#include "browser/cefmanager.h"

#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMutexLocker>
#include <QPainter>
#include <QThread>
#include <QUrl>
#include <QVBoxLayout>

#include <cstring>
#include <limits>

namespace {
Q_LOGGING_CATEGORY(lcWebView, "streaming.provider.webview")
}

WebView::WebView(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // Pages react to hovering, not only to drags.
    setMouseTracking(true);
    setAutoFillBackground(true);
    QPalette white = palette();
    white.setBrush(QPalette::All, QPalette::Window, QBrush(Qt::white, Qt::SolidPattern));
    setPalette(white);

    // Without a browser engine the operator still gets the address to open elsewhere.
    m_noBrowserLabel = new QLabel(this);
    m_noBrowserLabel->setObjectName(QStringLiteral("noBrowserLabel"));
    m_noBrowserLabel->setAlignment(Qt::AlignCenter);
    m_noBrowserLabel->setWordWrap(true);
    m_noBrowserLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_noBrowserLabel->setTextFormat(Qt::PlainText);
    // ...and hands back the address that browser ended on (the sign-in's redirect).
    m_pastedAddress = new QLineEdit(this);
    m_pastedAddress->setObjectName(QStringLiteral("pastedAddress"));
    m_pastedAddress->setPlaceholderText(tr("Paste the address the web browser ended on and press Enter"));
    connect(m_pastedAddress, &QLineEdit::returnPressed, this, [this] {
        const QString address = m_pastedAddress->text().trimmed();
        m_pastedAddress->clear();
        if (!address.isEmpty())
            emit urlChanged(address);
    });
    m_failureLabel = new QLabel(this);
    m_failureLabel->setObjectName(QStringLiteral("failureLabel"));
    m_failureLabel->setAlignment(Qt::AlignCenter);
    m_failureLabel->setWordWrap(true);
    m_failureLabel->setTextFormat(Qt::PlainText);
    m_failureLabel->setAutoFillBackground(true);
    m_failureLabel->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_noBrowserLabel);
    layout->addWidget(m_pastedAddress);
    layout->addWidget(m_failureLabel);
    updateNoBrowserText();
}

WebView::~WebView()
{
    CefManager::instance()->deleteBrowser(this);
}

void WebView::loadUrl(const QUrl& url)
{
    CefManager* manager = CefManager::instance();
    m_failureLabel->hide();
    if (url.isEmpty()) {
        manager->deleteBrowser(this);
        m_url.clear();
        updateNoBrowserText();
        return;
    }
    m_url = url.toString(QUrl::FullyEncoded);
    updateNoBrowserText();
    if (!manager->findBrowser(this) && !manager->createBrowser(this)) {
        qCWarning(lcWebView) << "No browser to load" << m_url;
        return;
    }
    manager->loadUrl(this, m_url);
}

void WebView::deleteCookies()
{
    CefManager::instance()->deleteCookies();
}

QImage WebView::frameImage() const
{
    QMutexLocker lock(&m_frameMutex);
    return m_frame.copy();
}

void WebView::onPaint(const void* buffer, int width, int height)
{
    const qint64 bytes = qint64(width) * height * 4;
    if (!buffer || width <= 0 || height <= 0 || bytes > std::numeric_limits<int>::max()) {
        qCWarning(lcWebView) << "Ignored a frame of" << width << "x" << height;
        return;
    }
    {
        QMutexLocker lock(&m_frameMutex);
        if (m_frameBytes.size() != bytes)
            m_frameBytes.resize(int(bytes));
        std::memcpy(m_frameBytes.data(), buffer, size_t(bytes));
        m_frame = QImage(reinterpret_cast<const uchar*>(m_frameBytes.constData()), width, height, width * 4,
                         QImage::Format_ARGB32);
    }
    if (QThread::currentThread() == thread())
        update();
    else
        QMetaObject::invokeMethod(this, qOverload<>(&QWidget::update), Qt::QueuedConnection);
}

void WebView::onLoadingStateChanged(bool) {}

QSize WebView::size() const
{
    return QWidget::size();
}

int WebView::frameRate() const
{
    return 60;
}

QString WebView::url() const
{
    return m_url;
}

quintptr WebView::parentWindowHandle() const
{
    return 0;
}

bool WebView::isTransparent() const
{
    return false;
}

void WebView::onUrlChanged(const QString& url)
{
    emit urlChanged(url);
}

void WebView::onTitleChanged(const QString&) {}

void WebView::onLoadFailed(LoadFailure failure, const QString& url)
{
    // Shown on the GUI thread, whichever thread the browser calls from.
    QMetaObject::invokeMethod(this, [this, failure, url] { showFailure(failure, url); });
}

void WebView::paintEvent(QPaintEvent*)
{
    QMutexLocker lock(&m_frameMutex);
    if (m_frame.isNull())
        return;
    QPainter painter(this);
    painter.drawImage(0, 0, m_frame);
}

void WebView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    CefManager::instance()->resized(this);
}

void WebView::mousePressEvent(QMouseEvent* event)
{
    CefManager::instance()->mousePressEvent(this, event);
}

void WebView::mouseReleaseEvent(QMouseEvent* event)
{
    CefManager::instance()->mouseReleaseEvent(this, event);
}

void WebView::mouseMoveEvent(QMouseEvent* event)
{
    CefManager::instance()->mouseMoveEvent(this, event);
}

void WebView::mouseDoubleClickEvent(QMouseEvent* event)
{
    CefManager::instance()->mouseDoubleClickEvent(this, event);
}

void WebView::wheelEvent(QWheelEvent* event)
{
    CefManager::instance()->wheelEvent(this, event);
}

void WebView::keyPressEvent(QKeyEvent* event)
{
    CefManager::instance()->keyPressEvent(this, event);
}

bool WebView::focusNextPrevChild(bool)
{
    return false;
}

void WebView::showFailure(LoadFailure failure, const QString& url)
{
    const QUrl address(url);
    const QString site = address.host().isEmpty() ? url : address.host();
    QString text;
    switch (failure) {
    case LoadFailure::NotLoaded:
        text = tr("The page at %1 could not be loaded.").arg(site);
        break;
    case LoadFailure::TooManyRedirects:
        text = tr("The page at %1 kept redirecting and could not be shown.").arg(site);
        break;
    case LoadFailure::TimedOut:
        text = tr("The page at %1 did not finish loading and was stopped.").arg(site);
        break;
    case LoadFailure::Crashed:
        text = tr("The page at %1 stopped working because the browser process showing it ended.").arg(site);
        break;
    }
    m_failureLabel->setText(text + QLatin1Char('\n') + tr("Close this window and try again."));
    m_failureLabel->show();
    qCWarning(lcWebView).noquote() << text;
}

void WebView::updateNoBrowserText()
{
    const bool engine = CefManager::instance()->hasEngine();
    m_noBrowserLabel->setVisible(!engine);
    m_pastedAddress->setVisible(!engine && !m_url.isEmpty());
    if (engine)
        return;
    QString text = tr("No web browser is available on this system.");
    if (!m_url.isEmpty())
        text += QLatin1Char('\n') + tr("Open this address in a web browser to continue:") + QLatin1Char('\n') + m_url;
    m_noBrowserLabel->setText(text);
}
