#include "provider/dailymotion.h"
#include "provider/webview.h"
#include "setup/webdialog.h"
#include "support/fakeview.h"
#include "support/httpserver.h"
#include "support/serviceenvironment.h"
#include "webbrowser/browserenvironment.h"
#include "webbrowser/webenginebrowser.h"
#include "webbrowser/webenginecefmanager.h"

#include <QLabel>
#include <QStandardPaths>
#include <QTcpServer>
#include <QtTest>

#include <signal.h>

// The Qt WebEngine browser behind the authorisation dialog, against pages on 127.0.0.1.
// Runs under Xvfb (ctest label "browser"); the engine cannot draw on the offscreen platform.
namespace {
const QByteArray signInPage = R"(<html><body style="margin:0;background:#2060a0">
<form method="post" action="/login" onkeyup="keyups.value++">
<input name="user" autofocus style="position:absolute;left:20px;top:20px;width:200px;height:30px">
<input name="password" type="password" style="position:absolute;left:20px;top:70px;width:200px;height:30px">
<input type="submit" value="Allow" style="position:absolute;left:20px;top:120px;width:100px;height:30px">
<input type="hidden" name="keyups" value="0">
</form></body></html>)";
// The sign-in page's colour, then another one further down.
const QByteArray longPage = R"(<html><body style="margin:0"><div style="height:300px;background:#2060a0"></div>
<div style="height:3000px;background:#e0a020"></div></body></html>)";
const QColor pageColour(0x20, 0x60, 0xa0);
constexpr int pageTimeout = 30000;

HttpServer::Reply page(const QByteArray& html, const QList<QPair<QByteArray, QByteArray>>& headers = {})
{
    HttpServer::Reply reply;
    reply.body = html;
    reply.contentType = "text/html";
    reply.headers = headers;
    return reply;
}

HttpServer::Reply redirect(const QByteArray& location)
{
    HttpServer::Reply reply;
    reply.status = 302;
    reply.contentType = "text/html";
    reply.headers = {{"Location", location}};
    return reply;
}

// The sign-in page is on screen: a frame of the view's size, in the page's colour.
bool showsSignInPage(const WebView* view)
{
    const QImage frame = view->frameImage();
    return frame.size() == view->size() && frame.pixelColor(5, 5) == pageColour;
}

// What the streaming dialog does for a provider: shows the page and hands it every address.
class SignInView : public FakeView
{
public:
    void openWebAuthorize(const QUrl& url) override
    {
        FakeView::openWebAuthorize(url);
        m_connection =
            QObject::connect(&dialog, &WebDialog::urlChanged, [this](const QUrl& at) { provider->authorize(at); });
        dialog.load(url);
        dialog.show();
    }
    void closeWebAuthorize() override
    {
        FakeView::closeWebAuthorize();
        QObject::disconnect(m_connection);
        dialog.clear();
        dialog.hide();
    }

    WebDialog dialog;
    Provider* provider = nullptr;

private:
    QMetaObject::Connection m_connection;
};
} // namespace

class TestWebEngineCefManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (!BrowserEnvironment::canRender())
            QSKIP("Qt WebEngine cannot draw on this platform: run under xvfb-run (ctest does).");
        QStandardPaths::setTestModeEnabled(true);
        // Sessions on disk, as the reference host keeps them: owner-only.
        QVERIFY(m_sessions.isValid());
        const QString folder = m_sessions.filePath("browser");
        m_manager = std::make_unique<WebEngineCefManager>(folder);
        QCOMPARE(int(QFile::permissions(folder) & 0x0077), 0); // no group or other bits
        m_manager->setLoadTimeout(3000);
        CefManager::setInstance(m_manager.get());
    }
    void cleanupTestCase() { m_manager.reset(); }

    void signInCompletesAndCookiesAreForgotten()
    {
        HttpServer server;
        ServiceEnvironment::pointAt(server.baseUrl());
        qputenv("QUILLON_OAUTH_REDIRECT", (server.baseUrl() + "/oauth2callback").toUtf8());
        server.on("GET", "/oauth/authorize", page(signInPage, {{"Set-Cookie", "session=s-77; Path=/; Max-Age=3600"}}));
        server.on("POST", "/login", redirect("/oauth2callback?code=c0de-42"));
        server.on("GET", "/oauth2callback", page("<html><body>Signed in</body></html>"));
        server.on("GET", "/check", page("<html><body>Check</body></html>"));
        server.onJson("POST", "/oauth/token", R"({"access_token":"dm-tok","uid":"uid1"})");
        server.onJson("GET", "/user/uid1/videos", R"({"list":[]})");
        server.onJson("GET", "/channels", R"({"list":[]})");

        SignInView view;
        DailyMotion provider(&view);
        view.provider = &provider;
        QVERIFY(provider.authorize(QUrl()));
        auto* webView = view.dialog.findChild<WebView*>("webView");
        QTRY_VERIFY_WITH_TIMEOUT(showsSignInPage(webView), pageTimeout);

        // The operator types into the page's first field, tabs to the password and clicks "Allow".
        QTest::keyClicks(webView, "kai");
        QTest::keyClick(webView, Qt::Key_Tab);
        QTest::keyClicks(webView, "pa ss");
        QTest::mouseClick(webView, Qt::LeftButton, Qt::NoModifier, QPoint(60, 135));
        QTRY_COMPARE_WITH_TIMEOUT(provider.accessToken(), QString("dm-tok"), pageTimeout);
        QCOMPARE(server.requests("POST", "/login").value(0).body, QByteArray("user=kai&password=pa+ss&keyups=9"));
        QVERIFY(server.requests("POST", "/oauth/token").value(0).body.startsWith("code=c0de-42&"));
        QVERIFY(!view.dialog.isVisible());
        QCOMPARE(m_manager->findBrowser(webView), nullptr);
        QCOMPARE(server.requests("GET", "/oauth2callback").value(0).header("Cookie"), QByteArray("session=s-77"));

        // Deauthorising forgets the service's session: the next page goes without it.
        webView->deleteCookies();
        view.dialog.load(QUrl(server.baseUrl() + "/check"));
        QTRY_COMPARE_WITH_TIMEOUT(server.requests("GET", "/check").size(), 1, pageTimeout);
        QCOMPARE(server.requests("GET", "/check").value(0).header("Cookie"), QByteArray());
        view.dialog.clear();
        ServiceEnvironment::reset();
        qunsetenv("QUILLON_OAUTH_REDIRECT");
    }

    void resizeAndWheelReachThePage()
    {
        HttpServer server;
        server.on("GET", "/long", page(longPage));
        WebDialog dialog;
        auto* webView = dialog.findChild<WebView*>("webView");
        dialog.show();
        dialog.load(QUrl(server.baseUrl() + "/long"));
        QTRY_VERIFY_WITH_TIMEOUT(showsSignInPage(webView), pageTimeout);
        dialog.resize(300, 200);
        QTRY_COMPARE_WITH_TIMEOUT(webView->frameImage().size(), QSize(300, 200), pageTimeout);
        const QPoint at(150, 100);
        QWheelEvent wheel(at, webView->mapToGlobal(at), QPoint(), QPoint(0, -1200), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(webView, &wheel);
        QTRY_COMPARE_WITH_TIMEOUT(webView->frameImage().pixelColor(5, 5), QColor(0xe0, 0xa0, 0x20), pageTimeout);
        dialog.clear();
    }

    void aPageThatCannotBeShownIsExplained_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("never loads") << "/stall" << "The page at 127.0.0.1 did not finish loading and was stopped.";
        QTest::newRow("redirect loop") << "/loop" << "The page at 127.0.0.1 kept redirecting and could not be shown.";
        QTest::newRow("page process ends")
            << "/signin" << "The page at 127.0.0.1 stopped working because the browser process showing it ended.";
        QTest::newRow("nobody listens") << "closed port" << "The page at 127.0.0.1 could not be loaded.";
    }
    void aPageThatCannotBeShownIsExplained()
    {
        QFETCH(QString, path);
        QFETCH(QString, sentence);
        HttpServer server;
        HttpServer::Reply stall;
        stall.silent = true;
        server.on("GET", "/stall", stall);
        server.on("GET", "/loop", redirect("/loop"));
        server.on("GET", "/signin", page(signInPage));
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const QString closedUrl = QStringLiteral("http://127.0.0.1:%1/").arg(closed.serverPort());
        closed.close();

        WebDialog dialog;
        auto* webView = dialog.findChild<WebView*>("webView");
        auto* failure = dialog.findChild<QLabel*>("failureLabel");
        dialog.show();
        dialog.load(QUrl(path == "closed port" ? closedUrl : server.baseUrl() + path));
        if (path == "/signin") {
            QTRY_VERIFY_WITH_TIMEOUT(showsSignInPage(webView), pageTimeout);
            auto* browser = dynamic_cast<WebEngineBrowser*>(m_manager->findBrowser(webView));
            QVERIFY(browser && browser->renderProcessId() > 0);
            QCOMPARE(::kill(pid_t(browser->renderProcessId()), SIGKILL), 0);
        }
        QTRY_VERIFY_WITH_TIMEOUT(failure->isVisible(), pageTimeout);
        QCOMPARE(failure->text(), sentence + "\nClose this window and try again.");
        dialog.close();
        QVERIFY(!dialog.isVisible());

        // Opened again, the dialog shows the next page.
        dialog.show();
        dialog.load(QUrl(server.baseUrl() + "/signin"));
        QVERIFY(!failure->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(showsSignInPage(webView), pageTimeout);
        dialog.clear();
    }

private:
    QTemporaryDir m_sessions;
    std::unique_ptr<WebEngineCefManager> m_manager;
};

int main(int argc, char* argv[])
{
    BrowserEnvironment::prepare();
    QApplication app(argc, argv);
    TestWebEngineCefManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_webenginecefmanager.moc"
