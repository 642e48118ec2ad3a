#include "fakecefmanager.h"
#include "webdialog.h"
#include "webview.h"

#include <QLayout>
#include <QTest>
#include <QThread>

#include <memory>

class TestWebDialog : public QObject
{
    Q_OBJECT
private slots:
    void form();
    void constructionLoadsNothing();
    void loadHandsTheFullAddressToTheBrowser_data();
    void loadHandsTheFullAddressToTheBrowser();
    void everyPageChangeIsReported_data();
    void everyPageChangeIsReported();
    void clearingClosesThePage();
};

void TestWebDialog::form()
{
    WebDialog dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Authorize"));
    auto* view = dialog.findChild<WebView*>(QStringLiteral("webView"));
    QVERIFY(view);
    const QList<QWidget*> children = dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(children, QList<QWidget*>({view}));
    QLayout* layout = dialog.layout();
    QVERIFY(qobject_cast<QVBoxLayout*>(layout));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(view->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(view->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void TestWebDialog::constructionLoadsNothing()
{
    FakeCefManager cef;
    WebDialog dialog;
    QCOMPARE(cef.browserCount(), 0);
    QVERIFY(cef.calls().isEmpty());
}

void TestWebDialog::loadHandsTheFullAddressToTheBrowser_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QStringList>("calls");

    const QString google = QStringLiteral("https://accounts.google.example/o/oauth2/auth?client_id=7&redirect_uri="
                                          "http://127.0.0.1/oauth2callback&scope=a b&response_type=code");
    QTest::newRow("plain service keeps its session")
        << QUrl(google)
        << QStringList{"createBrowser", "loadUrl https://accounts.google.example/o/oauth2/auth?client_id=7&redirect_uri="
                                        "http://127.0.0.1/oauth2callback&scope=a%20b&response_type=code"};
    QTest::newRow("facebook starts without its login cookie")
        << QUrl(QStringLiteral("https://www.facebook.example/v2.8/dialog/oauth?client_id=1"))
        << QStringList{"deleteCookies", "createBrowser", "loadUrl https://www.facebook.example/v2.8/dialog/oauth?client_id=1"};
    QTest::newRow("dailymotion, any case")
        << QUrl(QStringLiteral("https://www.DailyMotion.example/oauth/authorize"))
        << QStringList{"deleteCookies", "createBrowser", "loadUrl https://www.dailymotion.example/oauth/authorize"};
    QTest::newRow("twitch")
        << QUrl(QStringLiteral("https://id.twitch.example/kraken/oauth2/authorize"))
        << QStringList{"deleteCookies", "createBrowser", "loadUrl https://id.twitch.example/kraken/oauth2/authorize"};
    QTest::newRow("keyword only in the path does not count")
        << QUrl(QStringLiteral("https://example.test/facebook"))
        << QStringList{"createBrowser", "loadUrl https://example.test/facebook"};
}

void TestWebDialog::loadHandsTheFullAddressToTheBrowser()
{
    QFETCH(QUrl, url);
    QFETCH(QStringList, calls);
    FakeCefManager cef;
    WebDialog dialog;
    dialog.load(url);
    QCOMPARE(cef.calls(), calls);
}

void TestWebDialog::everyPageChangeIsReported_data()
{
    QTest::addColumn<bool>("fromBrowserThread");
    QTest::newRow("GUI thread") << false;
    QTest::newRow("browser thread") << true;
}

void TestWebDialog::everyPageChangeIsReported()
{
    QFETCH(bool, fromBrowserThread);
    FakeCefManager cef;
    WebDialog dialog;
    dialog.load(QUrl(QStringLiteral("https://accounts.google.example/o/oauth2/auth")));
    auto* view = dialog.findChild<WebView*>(QStringLiteral("webView"));

    QList<QUrl> received;
    QObject setup;
    connect(&dialog, &WebDialog::urlChanged, &setup, [&](const QUrl& url) {
        QCOMPARE(QThread::currentThread(), qApp->thread());
        received << url;
    });
    const QStringList pages{QStringLiteral("https://accounts.google.example/signin"),
                            QStringLiteral("http://127.0.0.1:8085/oauth2callback?code=4/AB_cd&scope=x"),
                            QStringLiteral("https://www.facebook.example/connect/login_success.html#code=AQx")};
    if (fromBrowserThread) {
        std::unique_ptr<QThread> browser(QThread::create([&] {
            for (const QString& page : pages)
                view->onUrlChanged(page);
        }));
        browser->start();
        QVERIFY(browser->wait(5000));
    } else {
        for (const QString& page : pages)
            cef.navigate(view, page);
    }
    QTRY_COMPARE(received.size(), pages.size());
    for (int i = 0; i < pages.size(); ++i)
        QCOMPARE(received.at(i), QUrl(pages.at(i)));
    QCOMPARE(received.at(1).host(), QStringLiteral("127.0.0.1"));
    QCOMPARE(received.at(1).path(), QStringLiteral("/oauth2callback"));
}

void TestWebDialog::clearingClosesThePage()
{
    FakeCefManager cef;
    WebDialog dialog;
    dialog.load(QUrl(QStringLiteral("https://accounts.google.example/o/oauth2/auth")));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(cef.browserCount(), 1);

    dialog.clear();
    dialog.hide();
    QCOMPARE(cef.browserCount(), 0);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(cef.calls().last(), QStringLiteral("deleteBrowser"));

    // Opened again for the next authorisation: a fresh browser.
    cef.clearCalls();
    dialog.load(QUrl(QStringLiteral("https://accounts.google.example/o/oauth2/auth?again")));
    QCOMPARE(cef.calls(),
             QStringList({"createBrowser", "loadUrl https://accounts.google.example/o/oauth2/auth?again"}));
}

QTEST_MAIN(TestWebDialog)
#include "tst_webdialog.moc"
