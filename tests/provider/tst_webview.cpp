#include "fakecefmanager.h"
#include "webview.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>

namespace {
QImage filled(const QSize& size, QColor colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

// Counts the paint events a widget receives.
class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return false;
    }
};

bool allPixels(const QImage& image, const QRect& area, QColor colour)
{
    for (int y = area.top(); y <= area.bottom(); y += 3)
        for (int x = area.left(); x <= area.right(); x += 3)
            if (image.pixelColor(x, y) != colour)
                return false;
    return true;
}
} // namespace

class TestWebView : public QObject
{
    Q_OBJECT
private slots:
    void whiteBeforeTheFirstFrame();
    void framesOfTwoSizes_data();
    void framesOfTwoSizes();
    void framesFromTheBrowserThreadWhilePainting();
    void brokenFramesAreIgnored();
    void loadingCreatesAndEmptyUrlRemovesTheBrowser();
    void urlNotifications_data();
    void urlNotifications();
    void inputIsForwarded_data();
    void inputIsForwarded();
    void resizeIsForwarded();
    void callbackQueries();
    void destructionRemovesTheBrowser();
    void withoutEngineTheAddressIsShown();
};

void TestWebView::whiteBeforeTheFirstFrame()
{
    FakeCefManager cef;
    WebView view;
    view.resize(120, 80);
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    QVERIFY(view.frameImage().isNull());
    QVERIFY(!view.findChild<QLabel*>(QStringLiteral("noBrowserLabel"))->isVisibleTo(&view));
    const QImage shot = view.grab().toImage();
    QVERIFY(allPixels(shot, shot.rect(), Qt::white));
    QCOMPARE(view.focusPolicy(), Qt::StrongFocus);
}

void TestWebView::framesOfTwoSizes_data()
{
    QTest::addColumn<QSize>("first");
    QTest::addColumn<QSize>("second");
    QTest::addColumn<bool>("fromBrowserThread");

    QTest::newRow("larger then smaller") << QSize(160, 120) << QSize(64, 48) << false;
    QTest::newRow("smaller then larger") << QSize(64, 48) << QSize(160, 120) << false;
    QTest::newRow("same size twice") << QSize(100, 50) << QSize(100, 50) << false;
    QTest::newRow("same bytes, other shape") << QSize(100, 50) << QSize(50, 100) << false;
    QTest::newRow("two sizes from the browser thread") << QSize(160, 120) << QSize(30, 90) << true;
}

void TestWebView::framesOfTwoSizes()
{
    QFETCH(QSize, first);
    QFETCH(QSize, second);
    QFETCH(bool, fromBrowserThread);

    FakeCefManager cef;
    WebView view;
    view.resize(200, 150);
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    PaintCounter counter;
    view.installEventFilter(&counter);

    const QImage red = filled(first, QColor(200, 0, 0));
    const QImage blue = filled(second, QColor(0, 0, 220));
    if (fromBrowserThread) {
        std::unique_ptr<QThread> browser(QThread::create([&] {
            FakeCefManager::deliverFrame(&view, red);
            FakeCefManager::deliverFrame(&view, blue);
        }));
        browser->start();
        QVERIFY(browser->wait(5000));
    } else {
        FakeCefManager::deliverFrame(&view, red);
        QCOMPARE(view.frameImage(), red);
        FakeCefManager::deliverFrame(&view, blue);
    }
    QCOMPARE(view.frameImage(), blue);
    QTRY_VERIFY(counter.paints > 0);

    const QImage shot = view.grab().toImage();
    QVERIFY(allPixels(shot, QRect(QPoint(0, 0), second), QColor(0, 0, 220)));
    QVERIFY(allPixels(shot, QRect(second.width(), 0, 200 - second.width(), 150), Qt::white));
    QVERIFY(allPixels(shot, QRect(0, second.height(), 200, 150 - second.height()), Qt::white));
    view.close();
}

void TestWebView::framesFromTheBrowserThreadWhilePainting()
{
    FakeCefManager cef;
    WebView view;
    view.resize(96, 96);
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
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

void TestWebView::brokenFramesAreIgnored()
{
    FakeCefManager cef;
    WebView view;
    const QImage good = filled({20, 10}, Qt::magenta);
    FakeCefManager::deliverFrame(&view, good);
    const QByteArray pixels(16, '\x7f');
    view.onPaint(nullptr, 20, 10);
    view.onPaint(pixels.constData(), 0, 4);
    view.onPaint(pixels.constData(), -2, 2);
    QCOMPARE(view.frameImage(), good);
}

void TestWebView::loadingCreatesAndEmptyUrlRemovesTheBrowser()
{
    FakeCefManager cef;
    WebView view;
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/o/auth?client_id=a b&redirect_uri=http://127.0.0.1/oauth2callback")));
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/next")));
    QCOMPARE(cef.calls(),
             QStringList({"createBrowser",
                          "loadUrl https://accounts.example.test/o/auth?client_id=a%20b&redirect_uri=http://127.0.0.1/oauth2callback",
                          "loadUrl https://accounts.example.test/next"}));
    QCOMPARE(view.url(), QStringLiteral("https://accounts.example.test/next"));

    cef.clearCalls();
    view.loadUrl(QUrl());
    QCOMPARE(cef.calls(), QStringList({"deleteBrowser"}));
    QCOMPARE(cef.browserCount(), 0);

    cef.clearCalls();
    view.loadUrl(QUrl(QStringLiteral("https://live.example.test/")));
    QCOMPARE(cef.calls(), QStringList({"createBrowser", "loadUrl https://live.example.test/"}));
    QCOMPARE(cef.browserCount(), 1);
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
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    QStringList received;
    QList<QThread*> threads;
    QObject receiver;
    connect(&view, &WebView::urlChanged, &receiver, [&](const QString& url) {
        received << url;
        threads << QThread::currentThread();
    });

    const QStringList pages{QStringLiteral("https://accounts.example.test/consent"),
                            QStringLiteral("http://127.0.0.1:8080/oauth2callback?code=4/xyz")};
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
    QCOMPARE(threads, QList<QThread*>({QThread::currentThread(), QThread::currentThread()}));
}

void TestWebView::inputIsForwarded_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("expected");
    QTest::newRow("press") << 0 << "mousePress 12,34";
    QTest::newRow("release") << 1 << "mouseRelease 12,34";
    QTest::newRow("double click") << 2 << "mouseDoubleClick 12,34";
    QTest::newRow("move") << 3 << "mouseMove 12,34";
    QTest::newRow("wheel") << 4 << "wheel -120";
    QTest::newRow("key") << 5 << "keyPress q";
}

void TestWebView::inputIsForwarded()
{
    QFETCH(int, kind);
    QFETCH(QString, expected);
    FakeCefManager cef;
    WebView view;
    view.resize(100, 100);
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    cef.clearCalls();

    const QPoint at(12, 34);
    switch (kind) {
    case 0:
        QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, at);
        break;
    case 1:
        QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, at);
        break;
    case 2:
        QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, at);
        break;
    case 3: {
        QMouseEvent move(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &move);
        break;
    }
    case 4: {
        QWheelEvent wheel(at, view.mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &wheel);
        break;
    }
    case 5:
        QTest::keyClick(&view, Qt::Key_Q);
        break;
    }
    QVERIFY2(cef.calls().contains(expected), qPrintable(cef.calls().join(QLatin1Char('|'))));
    view.close();
}

void TestWebView::resizeIsForwarded()
{
    FakeCefManager cef;
    WebView view;
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    cef.clearCalls();
    view.resize(321, 234);
    QTRY_VERIFY(cef.calls().contains(QStringLiteral("resized 321x234")));
    view.close();
}

void TestWebView::callbackQueries()
{
    FakeCefManager cef;
    WebView view;
    view.resize(300, 200);
    ICefCaptureCallback* callback = &view;
    QCOMPARE(callback->size(), QSize(300, 200));
    QCOMPARE(callback->frameRate(), 60);
    QCOMPARE(callback->url(), QString());
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
    QCOMPARE(callback->url(), QStringLiteral("https://accounts.example.test/login"));
    QCOMPARE(callback->parentWindowHandle(), quintptr(0));
    QVERIFY(!callback->isTransparent());
}

void TestWebView::destructionRemovesTheBrowser()
{
    FakeCefManager cef;
    {
        WebView view;
        view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login")));
        QCOMPARE(cef.browserCount(), 1);
    }
    QCOMPARE(cef.browserCount(), 0);
    QVERIFY(cef.calls().endsWith(QStringLiteral("deleteBrowser")));
}

void TestWebView::withoutEngineTheAddressIsShown()
{
    WebView view;
    view.resize(400, 300);
    auto* label = view.findChild<QLabel*>(QStringLiteral("noBrowserLabel"));
    QVERIFY(label);
    QVERIFY(label->isVisibleTo(&view));
    QCOMPARE(label->text(), QStringLiteral("No web browser is available on this system."));

    QSignalSpy urls(&view, &WebView::urlChanged);
    view.loadUrl(QUrl(QStringLiteral("https://accounts.example.test/login?client_id=1")));
    QCOMPARE(label->text(), QStringLiteral("No web browser is available on this system.\n"
                                           "Open this address in a web browser to continue:\n"
                                           "https://accounts.example.test/login?client_id=1"));
    QCOMPARE(view.url(), QStringLiteral("https://accounts.example.test/login?client_id=1"));
    QTest::mouseClick(&view, Qt::LeftButton);
    QTest::keyClick(&view, Qt::Key_A);
    QCOMPARE(urls.count(), 0);

    view.loadUrl(QUrl());
    QCOMPARE(label->text(), QStringLiteral("No web browser is available on this system."));
}

QTEST_MAIN(TestWebView)
#include "tst_webview.moc"
