#include "provider/webview.h"
#include "setup/webdialog.h"
#include "support/fakecefmanager.h"

#include <QTest>
#include <QThread>

#include <memory>

class TestWebDialog : public QObject
{
    Q_OBJECT
private slots:
    void loadHandsTheFullAddressToTheBrowser_data();
    void loadHandsTheFullAddressToTheBrowser();
    void everyPageChangeIsReported();
    void clearingClosesThePage();
};

void TestWebDialog::loadHandsTheFullAddressToTheBrowser_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QStringList>("calls");

    // Pages of services that would skip the account choice start without their cookies.
    const auto row = [](const char* name, const char* url, bool cookies, const char* loaded) {
        const QStringList calls{"createBrowser", loaded};
        QTest::newRow(name) << QUrl(url) << (cookies ? QStringList{"deleteCookies"} + calls : calls);
    };
    row("plain service keeps its session", "https://accounts.google.example/auth?redirect_uri=http://127.0.0.1&s=a b",
        false, "loadUrl https://accounts.google.example/auth?redirect_uri=http://127.0.0.1&s=a%20b");
    row("facebook", "https://www.facebook.example/v2.8/dialog/oauth?client_id=1", true,
        "loadUrl https://www.facebook.example/v2.8/dialog/oauth?client_id=1");
    row("dailymotion, any case", "https://www.DailyMotion.example/oauth/authorize", true,
        "loadUrl https://www.dailymotion.example/oauth/authorize");
    row("twitch", "https://id.twitch.example/kraken/oauth2/authorize", true,
        "loadUrl https://id.twitch.example/kraken/oauth2/authorize");
    row("keyword only in the path does not count", "https://example.test/facebook", false,
        "loadUrl https://example.test/facebook");
}

void TestWebDialog::loadHandsTheFullAddressToTheBrowser()
{
    QFETCH(QUrl, url);
    QFETCH(QStringList, calls);
    FakeCefManager cef;
    WebDialog dialog;
    QVERIFY(cef.calls().isEmpty()); // nothing is loaded before load()
    dialog.load(url);
    QCOMPARE(cef.calls(), calls);
}

void TestWebDialog::everyPageChangeIsReported()
{
    FakeCefManager cef;
    WebDialog dialog;
    dialog.load(QUrl("https://accounts.google.example/o/oauth2/auth"));
    QList<QUrl> received;
    QObject setup;
    connect(&dialog, &WebDialog::urlChanged, &setup, [&](const QUrl& url) { received << url; });
    const QStringList pages{"https://accounts.google.example/signin",
                            "http://127.0.0.1:8085/oauth2callback?code=4/AB_cd&scope=x",
                            "https://www.facebook.example/connect/login_success.html#code=AQx"};
    auto* view = dialog.findChild<WebView*>("webView");
    // The last page arrives from the browser's own thread.
    for (const QString& page : pages.mid(0, 2))
        cef.navigate(view, page);
    std::unique_ptr<QThread> browser(QThread::create([&] { view->onUrlChanged(pages.last()); }));
    browser->start();
    QVERIFY(browser->wait(5000));
    QTRY_COMPARE(received.size(), pages.size());
    for (int i = 0; i < pages.size(); ++i)
        QCOMPARE(received.at(i), QUrl(pages.at(i)));
    QCOMPARE(received.at(1).host() + received.at(1).path(), QStringLiteral("127.0.0.1/oauth2callback"));
}

void TestWebDialog::clearingClosesThePage()
{
    FakeCefManager cef;
    WebDialog dialog;
    dialog.load(QUrl("https://accounts.google.example/o/oauth2/auth"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(cef.browserCount(), 1);
    dialog.clear();
    dialog.hide();
    QCOMPARE(cef.browserCount(), 0);

    // Opened again for the next authorisation: a fresh browser.
    dialog.load(QUrl("https://accounts.google.example/o/oauth2/auth?again"));
    QCOMPARE(cef.calls().mid(cef.calls().size() - 3),
             QStringList({"deleteBrowser", "createBrowser",
                          "loadUrl https://accounts.google.example/o/oauth2/auth?again"}));
}

QTEST_MAIN(TestWebDialog)
#include "tst_webdialog.moc"
