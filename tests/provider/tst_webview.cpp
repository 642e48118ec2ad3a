#include "provider/webview.h"
#include "support/fakecefmanager.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

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

// A view 200 x 150 on screen, showing the login page.
struct ShownView {
    ShownView()
    {
        view.resize(200, 150);
        view.loadUrl(loginPage);
        view.show();
    }
    FakeCefManager cef;
    WebView view;
};

class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};
} // namespace

class TestWebView : public QObject
{
    Q_OBJECT
private slots:
    void framesOfTwoSizes_data();
    void framesOfTwoSizes();
    void framesFromTheBrowserThreadWhilePainting();
    void browserFollowsTheUrl();
    void urlNotifications_data();
    void urlNotifications();
    void inputAndSizeAreForwarded();
    void withoutEngineTheAddressIsShown();
};

void TestWebView::framesOfTwoSizes_data()
{
    QTest::addColumn<QSize>("first");
    QTest::addColumn<QSize>("second");

    QTest::newRow("larger then smaller") << QSize(160, 120) << QSize(64, 48);
    QTest::newRow("smaller then larger") << QSize(64, 48) << QSize(160, 120);
    QTest::newRow("same size twice") << QSize(100, 50) << QSize(100, 50);
    QTest::newRow("same bytes, other shape") << QSize(100, 50) << QSize(50, 100);
}

void TestWebView::framesOfTwoSizes()
{
    QFETCH(QSize, first);
    QFETCH(QSize, second);

    ShownView shown;
    WebView& view = shown.view;
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(view.frameImage().isNull());
    QVERIFY(!view.findChild<QLabel*>("noBrowserLabel")->isVisibleTo(&view));
    QVERIFY(allPixels(view.grab().toImage(), view.rect(), Qt::white));
    PaintCounter counter;
    view.installEventFilter(&counter);

    const QImage red = filled(first, QColor(200, 0, 0));
    const QImage blue = filled(second, QColor(0, 0, 220));
    FakeCefManager::deliverFrame(&view, red);
    QCOMPARE(view.frameImage(), red);
    FakeCefManager::deliverFrame(&view, blue);
    QCOMPARE(view.frameImage(), blue);
    QTRY_VERIFY(counter.paints > 0);
    // Frames the engine could never have drawn leave the last one.
    const QByteArray pixels(16, '\x7f');
    view.onPaint(nullptr, 20, 10);
    view.onPaint(pixels.constData(), 0, 4);
    view.onPaint(pixels.constData(), -2, 2);
    QCOMPARE(view.frameImage(), blue);

    const QImage shot = view.grab().toImage();
    QVERIFY(allPixels(shot, QRect(QPoint(0, 0), second), QColor(0, 0, 220)));
    QVERIFY(allPixels(shot, QRect(second.width(), 0, 200 - second.width(), 150), Qt::white));
    QVERIFY(allPixels(shot, QRect(0, second.height(), 200, 150 - second.height()), Qt::white));
}

void TestWebView::framesFromTheBrowserThreadWhilePainting()
{
    FakeCefManager cef;
    WebView view;
    view.resize(96, 96);
    view.loadUrl(loginPage);
    const QList<QImage> frames{filled({96, 96}, Qt::green), filled({32, 64}, Qt::blue), filled({80, 8}, Qt::red)};

    std::unique_ptr<QThread> browser(QThread::create([&] {
        for (int i = 0; i < 300; ++i)
            FakeCefManager::deliverFrame(&view, frames.at(i % frames.size()));
    }));
    browser->start();
    while (!browser->isFinished()) {
        // Every grab must show one whole frame, never a torn mix of two.
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
    QCOMPARE(view.frameImage(), frames.at(299 % frames.size()));
}

void TestWebView::browserFollowsTheUrl()
{
    FakeCefManager cef;
    {
        WebView view;
        view.loadUrl(QUrl("https://accounts.example.test/o/auth?id=a b&redirect_uri=http://127.0.0.1/cb"));
        view.loadUrl(QUrl("https://accounts.example.test/next"));
        QCOMPARE(view.url(), QStringLiteral("https://accounts.example.test/next"));
        view.loadUrl(QUrl());
        QCOMPARE(cef.browserCount(), 0);
        view.loadUrl(QUrl("https://live.example.test/"));
        QCOMPARE(cef.browserCount(), 1);
    }
    QCOMPARE(cef.calls(),
             QStringList({"createBrowser",
                          "loadUrl https://accounts.example.test/o/auth?id=a%20b&redirect_uri=http://127.0.0.1/cb",
                          "loadUrl https://accounts.example.test/next", "deleteBrowser", "createBrowser",
                          "loadUrl https://live.example.test/", "deleteBrowser"}));
    QCOMPARE(cef.browserCount(), 0);
}

void TestWebView::urlNotifications_data()
{
    QTest::addColumn<bool>("fromBrowserThread");
    QTest::newRow("GUI thread") << false;
    QTest::newRow("browser thread") << true;
}

void TestWebView::urlNotifications()
{
    QFETCH(bool, fromBrowserThread);
    FakeCefManager cef;
    WebView view;
    view.loadUrl(loginPage);
    QStringList received;
    QObject receiver;
    connect(&view, &WebView::urlChanged, &receiver, [&](const QString& url) {
        QCOMPARE(QThread::currentThread(), qApp->thread());
        received << url;
    });

    const QStringList pages{"https://accounts.example.test/consent", "http://127.0.0.1:8080/oauth2callback?code=4/xyz"};
    if (fromBrowserThread) {
        std::unique_ptr<QThread> browser(QThread::create([&] {
            for (const QString& page : pages)
                view.onUrlChanged(page);
        }));
        browser->start();
        QVERIFY(browser->wait(5000));
    } else {
        for (const QString& page : pages)
            cef.navigate(&view, page);
    }
    QTRY_COMPARE(received, pages);
}

void TestWebView::inputAndSizeAreForwarded()
{
    ShownView shown;
    WebView& view = shown.view;
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    shown.cef.clearCalls();

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
    QTRY_VERIFY(shown.cef.calls().contains("resized 321x234"));
    QCOMPARE(shown.cef.calls(), QStringList({"mousePress 12,34", "mouseRelease 12,34", "mouseDoubleClick 12,34",
                                             "mouseMove 12,34", "wheel -120", "keyPress q", "resized 321x234"}));
}

void TestWebView::withoutEngineTheAddressIsShown()
{
    const QString none = QStringLiteral("No web browser is available on this system.");
    WebView view;
    auto* label = view.findChild<QLabel*>("noBrowserLabel");
    QVERIFY(label && label->isVisibleTo(&view));
    QCOMPARE(label->text(), none);

    QSignalSpy urls(&view, &WebView::urlChanged);
    view.loadUrl(QUrl("https://accounts.example.test/login?client_id=1"));
    QCOMPARE(label->text(), none + "\nOpen this address in a web browser to continue:\n"
                                   "https://accounts.example.test/login?client_id=1");
    QTest::mouseClick(&view, Qt::LeftButton);
    QTest::keyClick(&view, Qt::Key_A);
    QCOMPARE(urls.count(), 0);

    view.loadUrl(QUrl());
    QCOMPARE(label->text(), none);
}

QTEST_MAIN(TestWebView)
#include "tst_webview.moc"
