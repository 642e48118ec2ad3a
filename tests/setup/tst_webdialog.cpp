#include "provider/webview.h"
#include "setup/webdialog.h"
#include "support/fakecefmanager.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

// The authorisation dialog and the embedded browser view it holds, against a fake engine.
namespace {
const QUrl loginPage(QStringLiteral("https://accounts.example.test/login"));

QImage filled(const QSize& size, QColor colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

bool allPixels(const QImage& image, const QRect& area, QColor colour)
{
    for (int y = area.top(); y <= area.bottom(); y += 3)
        for (int x = area.left(); x <= area.right(); x += 3)
            if (image.pixelColor(x, y) != colour)
                return false;
    return true;
}

// Runs `work` on a thread of its own, as the browser engine calls back.
void onBrowserThread(const std::function<void()>& work)
{
    std::unique_ptr<QThread> browser(QThread::create(work));
    browser->start();
    QVERIFY(browser->wait(5000));
}
} // namespace

class TestWebDialog : public QObject
{
    Q_OBJECT
private slots:
    void loadHandsTheFullAddressToTheBrowser_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QStringList>("calls");
        // Pages of services that would skip the account choice start without their cookies.
        const auto row = [](const char* url, bool cookies, const char* loaded) {
            const QStringList calls{"createBrowser", loaded};
            QTest::newRow(url) << QUrl(url) << (cookies ? QStringList{"deleteCookies"} + calls : calls);
        };
        row("https://accounts.google.example/auth?redirect_uri=http://127.0.0.1&s=a b", false,
            "loadUrl https://accounts.google.example/auth?redirect_uri=http://127.0.0.1&s=a%20b");
        row("https://www.DailyMotion.example/oauth/authorize", true,
            "loadUrl https://www.dailymotion.example/oauth/authorize");
        row("https://example.test/facebook", false, "loadUrl https://example.test/facebook");
    }
    void loadHandsTheFullAddressToTheBrowser()
    {
        QFETCH(QUrl, url);
        QFETCH(QStringList, calls);
        FakeCefManager cef;
        WebDialog dialog;
        QVERIFY(cef.calls().isEmpty()); // nothing is loaded before load()
        dialog.load(url);
        QCOMPARE(cef.calls(), calls);
        // Cleared, the page closes; the next authorisation gets a fresh browser.
        dialog.clear();
        QCOMPARE(cef.browserCount(), 0);
        dialog.load(url);
        QCOMPARE(cef.calls().mid(calls.size()), QStringList{"deleteBrowser"} + calls);
    }

    void everyPageChangeIsReportedOnTheGuiThread()
    {
        FakeCefManager cef;
        WebDialog dialog;
        dialog.load(loginPage);
        QList<QUrl> received;
        QObject setup;
        connect(&dialog, &WebDialog::urlChanged, &setup, [&](const QUrl& url) {
            QCOMPARE(QThread::currentThread(), qApp->thread());
            received << url;
        });
        const QStringList pages{"https://accounts.example.test/consent",
                                "http://127.0.0.1:8085/oauth2callback?code=4/AB_cd&scope=x",
                                "https://www.facebook.example/connect/login_success.html#code=AQx"};
        auto* view = dialog.findChild<WebView*>("webView");
        cef.navigate(view, pages.first());
        onBrowserThread([&] {
            for (const QString& page : pages.mid(1))
                view->onUrlChanged(page);
        });
        QTRY_COMPARE(received.size(), pages.size());
        for (int i = 0; i < pages.size(); ++i)
            QCOMPARE(received.at(i), QUrl(pages.at(i)));
    }

    void framesOfAnySizeFromTheBrowserThread()
    {
        FakeCefManager cef;
        WebView view;
        view.resize(200, 150);
        view.loadUrl(loginPage);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QVERIFY(allPixels(view.grab().toImage(), view.rect(), Qt::white));
        // The size changes from frame to frame; two frames hold as many bytes in other shapes.
        const QList<QImage> frames{filled({160, 120}, Qt::green), filled({100, 50}, Qt::blue), filled({50, 100}, Qt::red)};
        std::unique_ptr<QThread> browser(QThread::create([&] {
            for (int i = 0; i < 300; ++i)
                FakeCefManager::deliverFrame(&view, frames.at(i % frames.size()));
            // Frames the engine could never have drawn leave the last one.
            view.onPaint(nullptr, 20, 10);
            view.onPaint(QByteArray(16, 'x').constData(), -2, 2);
        }));
        browser->start();
        while (!browser->isFinished()) {
            // Every grab shows one whole frame, never a torn mix of two.
            const QImage shot = view.grab().toImage();
            const QColor corner = shot.pixelColor(0, 0);
            if (corner != Qt::white) {
                const auto match = std::find_if(frames.begin(), frames.end(),
                                                [&](const QImage& frame) { return frame.pixelColor(0, 0) == corner; });
                QVERIFY(match != frames.end());
                QVERIFY(allPixels(shot, match->rect(), corner));
            }
            QCoreApplication::processEvents();
        }
        QVERIFY(browser->wait(5000));
        QCOMPARE(view.frameImage(), frames.last());
        const QImage shot = view.grab().toImage();
        QVERIFY(allPixels(shot, QRect(0, 0, 50, 100), Qt::red));
        QVERIFY(allPixels(shot, QRect(50, 0, 150, 150), Qt::white) && allPixels(shot, QRect(0, 100, 50, 50), Qt::white));
    }

    void inputAndSizeAreForwarded()
    {
        FakeCefManager cef;
        WebView view;
        view.loadUrl(loginPage);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        cef.clearCalls();
        const QPoint at(12, 34);
        QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at);
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &move);
        QWheelEvent wheel(at, view.mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &wheel);
        QTest::keyClick(&view, Qt::Key_Q);
        view.resize(321, 234);
        QTRY_VERIFY(cef.calls().contains("resized 321x234"));
        QCOMPARE(cef.calls().mid(0, 6), QStringList({"mousePress 12,34", "mouseRelease 12,34", "mouseDoubleClick 12,34",
                                                     "mouseMove 12,34", "wheel -120", "keyPress q"}));
    }

    void withoutEngineTheAddressIsShown()
    {
        const QString none = QStringLiteral("No web browser is available on this system.");
        WebView view;
        auto* label = view.findChild<QLabel*>("noBrowserLabel");
        QVERIFY(label && label->isVisibleTo(&view));
        QSignalSpy urls(&view, &WebView::urlChanged);
        view.loadUrl(QUrl("https://accounts.example.test/login?client_id=1"));
        QCOMPARE(label->text(), none + "\nOpen this address in a web browser to continue:\n"
                                       "https://accounts.example.test/login?client_id=1");
        QTest::mouseClick(&view, Qt::LeftButton);
        QTest::keyClick(&view, Qt::Key_A);
        QCOMPARE(urls.count(), 0);
        // The address the other browser ended on comes back as the page's.
        QTest::keyClicks(view.findChild<QLineEdit*>("pastedAddress"), " http://localhost/cb?code=1 ");
        QTest::keyClick(view.findChild<QLineEdit*>("pastedAddress"), Qt::Key_Return);
        QCOMPARE(urls.value(0).value(0).toString(), QStringLiteral("http://localhost/cb?code=1"));
        view.loadUrl(QUrl());
        QCOMPARE(label->text(), none);
    }
};

QTEST_MAIN(TestWebDialog)
#include "tst_webdialog.moc"
