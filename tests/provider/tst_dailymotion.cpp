#include "dailymotion.h"
#include "fakeview.h"
#include "httpserver.h"
#include "serviceenvironment.h"

#include <QtTest>

namespace {
const QString redirect = QStringLiteral("http://localhost/oauth2callback");
const QString unreadable = QStringLiteral(",The service sent a reply that could not be read.");
} // namespace

class TestDailyMotion : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void constructorValues();
    void emptyUrlOpensAuthorizationPage();
    void codeIsExchangedAndChannelsLoaded();
    void redirectsWithoutUsableCode_data();
    void redirectsWithoutUsableCode();
    void exchangeFailures_data();
    void exchangeFailures();
    void publishUrlSplitting_data();
    void publishUrlSplitting();
    void loadFailures_data();
    void loadFailures();
    void createEventPostsFormAndReloads();
    void updateEventPostsFormAndReloads();
    void deleteEventDeletesAndReloads();
    void eventFailures_data();
    void eventFailures();

private:
    void serveAccount(const QByteArray& publishUrl = "rtmp://publish.test/publish-dm/x1?auth=abc");
    std::unique_ptr<DailyMotion> authorizedProvider();

    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<FakeView> m_view;
};

void TestDailyMotion::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestDailyMotion::init()
{
    m_server = std::make_unique<HttpServer>();
    m_view = std::make_unique<FakeView>();
    ServiceEnvironment::pointAt(m_server->baseUrl());
}

void TestDailyMotion::cleanup()
{
    ServiceEnvironment::reset();
    m_view.reset();
    m_server.reset();
}

void TestDailyMotion::serveAccount(const QByteArray& publishUrl)
{
    m_server->onJson("POST", "/oauth/token", R"({"access_token":"dm-tok","uid":"uid1","expires_in":36000})");
    m_server->onJson("GET", "/user/uid1/videos",
                     R"({"page":1,"list":[{"id":"x1","title":"Cooking","channel":"lifestyle"},
                                          {"id":"x2","title":"Old","channel":"news"}]})");
    m_server->onJson("GET", "/video/x1", R"({"live_publish_url":")" + publishUrl + R"("})");
    m_server->onJson("GET", "/video/x2", R"({"live_publish_url":null})");
    m_server->onJson("GET", "/channels",
                     R"({"list":[{"id":"news","name":"News","created_time":1},{"id":"music","name":"Music"}]})");
}

std::unique_ptr<DailyMotion> TestDailyMotion::authorizedProvider()
{
    auto provider = std::make_unique<DailyMotion>(m_view.get());
    provider->setAccessToken(QStringLiteral("dm-tok"));
    provider->setUsername(QStringLiteral("uid1"));
    return provider;
}

void TestDailyMotion::constructorValues()
{
    DailyMotion provider(m_view.get());
    QCOMPARE(provider.name(), QStringLiteral("DailyMotion"));
    QCOMPARE(provider.features(), 0x213F03A4u);
    QCOMPARE(provider.features(true), 0x213F03A4u);
    QVERIFY(!provider.icon().isNull());
    QCOMPARE(provider.clientId(), ServiceEnvironment::clientId());
    QCOMPARE(provider.clientSecret(), ServiceEnvironment::clientSecret());
    QVERIFY(!provider.isLoggedIn());
}

void TestDailyMotion::emptyUrlOpensAuthorizationPage()
{
    DailyMotion provider(m_view.get());
    QVERIFY(provider.authorize(QUrl()));
    QCOMPARE(m_view->openedUrls.size(), 1);
    const QUrl page = m_view->openedUrls.first();
    QCOMPARE(page.toString(), m_server->baseUrl()
                                  + QStringLiteral("/oauth/authorize?response_type=code&client_id=test-client"
                                                   "&redirect_uri=http://localhost/oauth2callback"
                                                   "&scope=userinfo+manage_videos"));
    QVERIFY(m_server->requests().isEmpty());
}

void TestDailyMotion::codeIsExchangedAndChannelsLoaded()
{
    serveAccount();
    DailyMotion provider(m_view.get());
    QVERIFY2(provider.authorize(QUrl(redirect + QStringLiteral("?code=c0de%2B1&state=s"))),
             qPrintable(provider.lastError()));
    QCOMPARE(m_view->closeCount, 1);
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.accessToken(), QStringLiteral("dm-tok"));
    QCOMPARE(provider.username(), QStringLiteral("uid1"));

    const QList<HttpServer::Request> requests = m_server->requests();
    QCOMPARE(requests.size(), 5);
    const HttpServer::Request& token = requests.at(0);
    QCOMPARE(token.method, QByteArray("POST"));
    QCOMPARE(token.target, QByteArray("/oauth/token?"));
    QCOMPARE(token.header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(token.body, QByteArray("code=c0de%2B1&client_id=test-client&client_secret=test-secret&"
                                    "redirect_uri=http%3A%2F%2Flocalhost%2Foauth2callback&"
                                    "grant_type=authorization_code"));
    QCOMPARE(requests.at(1).target, QByteArray("/user/uid1/videos"));
    QCOMPARE(requests.at(1).header("Authorization"), QByteArray("Bearer dm-tok"));
    QCOMPARE(requests.at(2).target, QByteArray("/video/x1?fields=live_publish_url&access_token=dm-tok"));
    QCOMPARE(requests.at(3).target, QByteArray("/video/x2?fields=live_publish_url&access_token=dm-tok"));
    QCOMPARE(requests.at(4).target,
             QByteArray("/channels?fields=created_time,id,name,updated_time&sort=popular&page=1&limit=50"));
    QCOMPARE(m_view->tags(),
             QStringList({"authorize", "channelObj", "streamKeyObj", "streamKeyObj", "categoryObj"}));

    // x2 has no publish address: no channel and no event for it.
    QCOMPARE(provider.channels().size(), 1);
    const LiveChannel channel = provider.channels().first();
    QCOMPARE(channel.id, QStringLiteral("x1"));
    QCOMPARE(channel.name, QStringLiteral("Cooking"));
    QCOMPARE(channel.category, QStringLiteral("lifestyle"));
    QCOMPARE(channel.streamUrl, QStringLiteral("rtmp://publish.test/publish-dm"));
    QCOMPARE(channel.streamKey, QStringLiteral("x1?auth=abc"));
    QCOMPARE(channel.watchUrl, m_server->baseUrl() + QStringLiteral("/video/x1_Cooking_lifestyle"));
    QCOMPARE(provider.events().size(), 1);
    QCOMPARE(provider.events().first().id, QStringLiteral("x1"));
    QCOMPARE(provider.events().first().title, QStringLiteral("Cooking"));
    QCOMPARE(provider.categories(),
             QList<LabelPair>({{QStringLiteral("News"), QStringLiteral("news")},
                               {QStringLiteral("Music"), QStringLiteral("music")}}));
}

void TestDailyMotion::redirectsWithoutUsableCode_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("lastError");

    QTest::newRow("redirect without code") << QUrl(redirect) << true << QString();
    QTest::newRow("empty code") << QUrl(redirect + QStringLiteral("?code=")) << true << QString();
    QTest::newRow("page of the service") << QUrl(QStringLiteral("https://www.dailymotion.test/signin?next=%2F"))
                                         << true << QString();
    QTest::newRow("code in the fragment") << QUrl(redirect + QStringLiteral("#code=abc")) << true << QString();
    QTest::newRow("script url") << QUrl(QStringLiteral("javascript:alert(1)")) << true << QString();
    QTest::newRow("data url") << QUrl(QStringLiteral("data:text/html,<b>code=1</b>")) << true << QString();
    QTest::newRow("invalid url") << QUrl(QStringLiteral("http://[::1/oauth2callback?code=abc")) << false
                                 << "authorize,The authorization page went to an address that is not valid.";
    QTest::newRow("user declined") << QUrl(redirect + QStringLiteral("?error=access_denied&error_description=The%20user%20declined"))
                                   << false << "authorize,access_denied\nThe user declined";
}

void TestDailyMotion::redirectsWithoutUsableCode()
{
    QFETCH(QUrl, url);
    QFETCH(bool, result);
    QFETCH(QString, lastError);

    serveAccount();
    DailyMotion provider(m_view.get());
    QCOMPARE(provider.authorize(url), result);
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(m_server->requests().isEmpty());
    QCOMPARE(m_view->closeCount, 0);
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.accessToken().isEmpty());
}

void TestDailyMotion::exchangeFailures_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError");

    QTest::newRow("service error") << QByteArray(R"({"error":"invalid_grant","error_description":"Code expired"})")
                                   << "authorize,invalid_grant\nCode expired";
    QTest::newRow("no token") << QByteArray(R"({"uid":"uid1"})") << "authorize" + unreadable;
    QTest::newRow("no user id") << QByteArray(R"({"access_token":"t"})") << "authorize" + unreadable;
    QTest::newRow("token is a number") << QByteArray(R"({"access_token":5,"uid":"u"})") << "authorize" + unreadable;
    QTest::newRow("array") << QByteArray(R"(["access_token"])") << "authorize" + unreadable;
    QTest::newRow("megabytes of text") << QByteArray(2 << 20, '{') << "authorize" + unreadable;
}

void TestDailyMotion::exchangeFailures()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    serveAccount();
    m_server->onJson("POST", "/oauth/token", reply);
    DailyMotion provider(m_view.get());
    QVERIFY(!provider.authorize(QUrl(redirect + QStringLiteral("?code=abc"))));
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(!provider.isLoggedIn());
    QCOMPARE(m_server->requests().size(), 1);
}

void TestDailyMotion::publishUrlSplitting_data()
{
    QTest::addColumn<QByteArray>("publishUrl");
    QTest::addColumn<bool>("listed");
    QTest::addColumn<QString>("streamUrl");
    QTest::addColumn<QString>("streamKey");

    QTest::newRow("id then query") << QByteArray("rtmp://pub.test/live/x1?auth=1") << true
                                   << "rtmp://pub.test/live" << "x1?auth=1";
    QTest::newRow("id at the end") << QByteArray("rtmp://pub.test/live/x1") << true << "rtmp://pub.test/live"
                                   << "x1";
    QTest::newRow("id missing") << QByteArray("rtmp://pub.test/live/other?auth=1") << false << QString()
                                << QString();
    QTest::newRow("id twice") << QByteArray("rtmp://pub.test/x1/x1?auth=1") << false << QString() << QString();
    QTest::newRow("id first") << QByteArray("x1?auth=1") << false << QString() << QString();
    QTest::newRow("empty") << QByteArray("") << false << QString() << QString();
}

void TestDailyMotion::publishUrlSplitting()
{
    QFETCH(QByteArray, publishUrl);
    QFETCH(bool, listed);
    QFETCH(QString, streamUrl);
    QFETCH(QString, streamKey);

    serveAccount(publishUrl);
    auto provider = authorizedProvider();
    QVERIFY(provider->loadChannels());
    QCOMPARE(provider->channels().size(), listed ? 1 : 0);
    QCOMPARE(provider->events().size(), listed ? 1 : 0);
    if (listed) {
        QCOMPARE(provider->channels().first().streamUrl, streamUrl);
        QCOMPARE(provider->channels().first().streamKey, streamKey);
    }
    QCOMPARE(provider->categories().size(), 2);
}

void TestDailyMotion::loadFailures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError");

    QTest::newRow("videos error") << "/user/uid1/videos"
                                  << QByteArray(R"({"error":{"code":403,"message":"Insufficient scope"}})")
                                  << "channelObj,Insufficient scope";
    QTest::newRow("videos missing list") << "/user/uid1/videos" << QByteArray(R"({"page":1})")
                                         << "channelObj" + unreadable;
    QTest::newRow("videos list is an object") << "/user/uid1/videos" << QByteArray(R"({"list":{"id":"x1"}})")
                                              << "channelObj" + unreadable;
    QTest::newRow("video is a number") << "/user/uid1/videos" << QByteArray(R"({"list":[1,2]})")
                                       << "channelObj" + unreadable;
    QTest::newRow("video id is a number") << "/user/uid1/videos" << QByteArray(R"({"list":[{"id":7}]})")
                                          << "channelObj" + unreadable;
    QTest::newRow("video title is an array") << "/user/uid1/videos"
                                             << QByteArray(R"({"list":[{"id":"x1","title":["a"]}]})")
                                             << "channelObj" + unreadable;
    QTest::newRow("publish error") << "/video/x1" << QByteArray(R"({"error_msg":"not live"})")
                                   << "streamKeyObj,\nnot live";
    QTest::newRow("publish url is a number") << "/video/x1" << QByteArray(R"({"live_publish_url":42})")
                                             << "streamKeyObj" + unreadable;
    QTest::newRow("categories error") << "/channels" << QByteArray(R"({"error":"down","error_description":"later"})")
                                      << "categoryObj,down\nlater";
    QTest::newRow("categories missing") << "/channels" << QByteArray("{}") << "categoryObj" + unreadable;
    QTest::newRow("category without id") << "/channels" << QByteArray(R"({"list":[{"name":"News"}]})")
                                         << "categoryObj" + unreadable;
    QTest::newRow("not JSON") << "/channels" << QByteArray("<html></html>") << "categoryObj" + unreadable;
}

void TestDailyMotion::loadFailures()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    serveAccount();
    m_server->onJson("GET", path, reply);
    auto provider = authorizedProvider();
    LiveChannel stale;
    stale.name = QStringLiteral("stale");
    provider->setChannels({stale});
    QVERIFY(!provider->loadChannels());
    QCOMPARE(provider->lastError(), lastError);
    QVERIFY(provider->channels().isEmpty());
}

void TestDailyMotion::createEventPostsFormAndReloads()
{
    serveAccount();
    m_server->onJson("POST", "/videos", R"({"id":"x9","title":"Big Game"})");
    m_server->onJson("GET", "/video/x9", R"({"live_publish_url":"rtmp://pub.test/live/x9?auth=9"})");
    auto provider = authorizedProvider();

    EventInfo event;
    event.title = QStringLiteral("Big Game & more");
    event.category = QStringLiteral("sport");
    QVERIFY2(provider->createEvent(event, LiveChannel()), qPrintable(provider->lastError()));

    const QList<HttpServer::Request> requests = m_server->requests();
    QCOMPARE(requests.at(0).method, QByteArray("POST"));
    QCOMPARE(requests.at(0).target, QByteArray("/videos?"));
    QCOMPARE(requests.at(0).header("Authorization"), QByteArray("Bearer dm-tok"));
    QCOMPARE(requests.at(0).header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(requests.at(0).body, QByteArray("mode=live&title=Big%20Game%20%26%20more&channel=sport"));
    QCOMPARE(requests.at(1).target, QByteArray("/video/x9?fields=live_publish_url&access_token=dm-tok"));
    QCOMPARE(requests.at(2).target, QByteArray("/user/uid1/videos"));
    QCOMPARE(m_view->tags().mid(0, 3), QStringList({"createObj", "streamKeyObj", "channelObj"}));
    // The reload lists what the service now has.
    QCOMPARE(provider->channels().size(), 1);
    QCOMPARE(provider->channels().first().id, QStringLiteral("x1"));
}

void TestDailyMotion::updateEventPostsFormAndReloads()
{
    serveAccount();
    m_server->onJson("POST", "/video/x1", R"({"id":"x1"})");
    auto provider = authorizedProvider();
    QVERIFY(provider->loadChannels());
    m_server->clearRequests();
    m_view->messages.clear();

    EventInfo event;
    event.title = QStringLiteral("Cooking live");
    event.category = QStringLiteral("lifestyle");
    QVERIFY2(provider->updateEvent(event, *provider->findChannel(QStringLiteral("Cooking"))),
             qPrintable(provider->lastError()));
    const HttpServer::Request update = m_server->requests().first();
    QCOMPARE(update.method, QByteArray("POST"));
    QCOMPARE(update.target, QByteArray("/video/x1?"));
    QCOMPARE(update.header("Authorization"), QByteArray("Bearer dm-tok"));
    QCOMPARE(update.body, QByteArray("title=Cooking%20live&channel=lifestyle"));
    QCOMPARE(m_view->tags().mid(0, 2), QStringList({"updateVideo", "channelObj"}));
}

void TestDailyMotion::deleteEventDeletesAndReloads()
{
    serveAccount();
    m_server->onJson("DELETE", "/video/x1", "{}");
    auto provider = authorizedProvider();
    LiveChannel channel;
    channel.id = QStringLiteral("x1");
    QVERIFY2(provider->deleteEvent(channel), qPrintable(provider->lastError()));
    const HttpServer::Request removal = m_server->requests().first();
    QCOMPARE(removal.method, QByteArray("DELETE"));
    QCOMPARE(removal.target, QByteArray("/video/x1?access_token=dm-tok"));
    QCOMPARE(m_view->tags().mid(0, 2), QStringList({"deleteStream", "channelObj"}));
}

void TestDailyMotion::eventFailures_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError");
    QTest::addColumn<int>("requestCount");

    QTest::newRow("create refused") << "create" << QByteArray("POST") << "/videos"
                                    << QByteArray(R"({"error":{"message":"Quota exceeded"}})")
                                    << "createObj,Quota exceeded" << 1;
    QTest::newRow("create without id") << "create" << QByteArray("POST") << "/videos" << QByteArray(R"({"ok":1})")
                                       << "createObj" + unreadable << 1;
    QTest::newRow("create id is a list") << "create" << QByteArray("POST") << "/videos"
                                         << QByteArray(R"({"id":["x9"]})") << "createObj" + unreadable << 1;
    QTest::newRow("created video has no address")
        << "create" << QByteArray("GET") << "/video/x9" << QByteArray(R"({"error_msg":"gone"})")
        << "streamKeyObj,\ngone" << 2;
    QTest::newRow("update refused") << "update" << QByteArray("POST") << "/video/x1"
                                    << QByteArray(R"({"error":"forbidden","error_description":"not yours"})")
                                    << "updateVideo,forbidden\nnot yours" << 1;
    QTest::newRow("delete refused") << "delete" << QByteArray("DELETE") << "/video/x1"
                                    << QByteArray(R"({"error":{"message":"Not found"}})") << "deleteStream,Not found"
                                    << 1;
}

void TestDailyMotion::eventFailures()
{
    QFETCH(QString, operation);
    QFETCH(QByteArray, method);
    QFETCH(QString, path);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);
    QFETCH(int, requestCount);

    serveAccount();
    m_server->onJson("POST", "/videos", R"({"id":"x9"})");
    m_server->onJson("GET", "/video/x9", R"({"live_publish_url":"rtmp://pub.test/live/x9"})");
    m_server->onJson(method, path, reply);
    auto provider = authorizedProvider();
    LiveChannel channel;
    channel.id = QStringLiteral("x1");
    EventInfo event;
    event.title = QStringLiteral("Show");

    bool result = true;
    if (operation == QLatin1String("create"))
        result = provider->createEvent(event, channel);
    else if (operation == QLatin1String("update"))
        result = provider->updateEvent(event, channel);
    else
        result = provider->deleteEvent(channel);
    QVERIFY(!result);
    QCOMPARE(provider->lastError(), lastError);
    QCOMPARE(m_server->requests().size(), requestCount);
}

QTEST_MAIN(TestDailyMotion)
#include "tst_dailymotion.moc"
