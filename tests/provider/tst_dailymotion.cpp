#include "dailymotion.h"
#include "servicefixture.h"

#include <QtTest>

namespace {
const QString redirect = QStringLiteral("http://localhost/oauth2callback");
const QString cooking = QStringLiteral("x1|Cooking|lifestyle|%1/video/x1_Cooking_lifestyle|rtmp://publish.test/publish-dm|"
                                       "x1?auth=abc");

// An account with two videos (x2 not live), two categories, and the event routes.
void serveAccount(ServiceFixture& f, const QByteArray& publishUrl = "rtmp://publish.test/publish-dm/x1?auth=abc")
{
    f.serve({{"POST /oauth/token", R"({"access_token":"dm-tok","uid":"uid1","expires_in":36000})"},
             {"GET /user/uid1/videos", R"({"page":1,"list":[{"id":"x1","title":"Cooking","channel":"lifestyle"},)"
                                       R"(                  {"id":"x2","title":"Old","channel":"news"}]})"},
             {"GET /video/x1", R"({"live_publish_url":")" + publishUrl + R"("})"},
             {"GET /video/x2", R"({"live_publish_url":null})"},
             {"GET /channels", R"({"list":[{"id":"news","name":"News","created_time":1},{"id":"music","name":"Music"}]})"},
             {"POST /videos", R"({"id":"x9","title":"Big Game"})"},
             {"GET /video/x9", R"({"live_publish_url":"rtmp://pub.test/live/x9?auth=9"})"},
             {"POST /video/x1", R"({"id":"x1"})"},
             {"DELETE /video/x1", "{}"}});
}

std::unique_ptr<DailyMotion> authorizedProvider(ServiceFixture& f)
{
    auto provider = std::make_unique<DailyMotion>(&f.view);
    provider->setAccessToken("dm-tok");
    provider->setUsername("uid1");
    return provider;
}

// Runs one operation ("authorize", "load", "create", "update" or "delete") on the video x1.
bool run(DailyMotion& provider, const QString& operation)
{
    LiveChannel channel;
    channel.id = QStringLiteral("x1");
    EventInfo event;
    event.title = QStringLiteral("Big Game & more");
    event.category = QStringLiteral("sport");
    if (operation == QLatin1String("authorize"))
        return provider.authorize(QUrl(redirect + QStringLiteral("?code=abc")));
    if (operation == QLatin1String("load"))
        return provider.loadChannels();
    if (operation == QLatin1String("create"))
        return provider.createEvent(event, channel);
    if (operation == QLatin1String("update"))
        return provider.updateEvent(event, channel);
    return provider.deleteEvent(channel);
}
} // namespace

class TestDailyMotion : public QObject
{
    Q_OBJECT

private slots:
    void emptyUrlOpensAuthorizationPage();
    void codeIsExchangedAndChannelsLoaded();
    void redirectsWithoutUsableCode_data();
    void redirectsWithoutUsableCode();
    void publishUrlSplitting_data();
    void publishUrlSplitting();
    void eventsAreSentAndReloaded_data();
    void eventsAreSentAndReloaded();
    void failures_data();
    void failures();
};

void TestDailyMotion::emptyUrlOpensAuthorizationPage()
{
    ServiceFixture f;
    DailyMotion provider(&f.view);
    QVERIFY(provider.authorize(QUrl()));
    QCOMPARE(f.view.openedUrls, QList<QUrl>({QUrl(f.server.baseUrl()
                                                  + "/oauth/authorize?response_type=code&client_id=test-client"
                                                    "&redirect_uri=http://localhost/oauth2callback"
                                                    "&scope=userinfo+manage_videos")}));
    QVERIFY(f.server.requests().isEmpty());
}

void TestDailyMotion::codeIsExchangedAndChannelsLoaded()
{
    ServiceFixture f;
    serveAccount(f);
    DailyMotion provider(&f.view);
    QVERIFY2(provider.authorize(QUrl(redirect + "?code=c0de%2B1&state=s")), qPrintable(provider.lastError()));
    QCOMPARE(f.view.closeCount, 1);
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.accessToken(), QStringLiteral("dm-tok"));
    QCOMPARE(provider.username(), QStringLiteral("uid1"));

    QCOMPARE(f.requestLines(),
             QStringList({"POST /oauth/token? | form code=c0de%2B1&client_id=test-client&client_secret=test-secret&"
                          "redirect_uri=http%3A%2F%2Flocalhost%2Foauth2callback&grant_type=authorization_code",
                          "GET /user/uid1/videos | Bearer dm-tok",
                          "GET /video/x1?fields=live_publish_url&access_token=dm-tok",
                          "GET /video/x2?fields=live_publish_url&access_token=dm-tok",
                          "GET /channels?fields=created_time,id,name,updated_time&sort=popular&page=1&limit=50"}));
    QCOMPARE(f.view.tags(), QStringList({"authorize", "channelObj", "streamKeyObj", "streamKeyObj", "categoryObj"}));

    // x2 has no publish address: no channel and no event for it.
    QCOMPARE(describe(provider.channels()), QStringList({cooking.arg(f.server.baseUrl())}));
    QCOMPARE(provider.events().size(), 1);
    QCOMPARE(provider.events().first().id + provider.events().first().title, QStringLiteral("x1Cooking"));
    QCOMPARE(provider.categories(), QList<LabelPair>({{"News", "news"}, {"Music", "music"}}));
}

void TestDailyMotion::redirectsWithoutUsableCode_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("lastError"); // empty: ignored, authorize() gives true

    QTest::newRow("redirect without code") << QUrl(redirect) << QString();
    QTest::newRow("empty code") << QUrl(redirect + "?code=") << QString();
    QTest::newRow("page of the service") << QUrl("https://www.dailymotion.test/signin?next=%2F") << QString();
    QTest::newRow("code in the fragment") << QUrl(redirect + "#code=abc") << QString();
    QTest::newRow("script url") << QUrl("javascript:alert(1)") << QString();
    QTest::newRow("data url") << QUrl("data:text/html,<b>code=1</b>") << QString();
    QTest::newRow("invalid url") << QUrl("http://[::1/oauth2callback?code=abc")
                                 << "authorize,The authorization page went to an address that is not valid.";
    QTest::newRow("user declined") << QUrl(redirect + "?error=access_denied&error_description=The%20user%20declined")
                                   << "authorize,access_denied\nThe user declined";
}

void TestDailyMotion::redirectsWithoutUsableCode()
{
    QFETCH(QUrl, url);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccount(f);
    DailyMotion provider(&f.view);
    QCOMPARE(provider.authorize(url), lastError.isEmpty());
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(f.server.requests().isEmpty());
    QCOMPARE(f.view.closeCount, 0);
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.accessToken().isEmpty());
}

void TestDailyMotion::publishUrlSplitting_data()
{
    QTest::addColumn<QByteArray>("publishUrl");
    QTest::addColumn<QString>("streamUrlAndKey"); // empty: not listed

    QTest::newRow("id then query") << QByteArray("rtmp://pub.test/live/x1?auth=1") << "rtmp://pub.test/live|x1?auth=1";
    QTest::newRow("id at the end") << QByteArray("rtmp://pub.test/live/x1") << "rtmp://pub.test/live|x1";
    QTest::newRow("id missing") << QByteArray("rtmp://pub.test/live/other?auth=1") << QString();
    QTest::newRow("id twice") << QByteArray("rtmp://pub.test/x1/x1?auth=1") << QString();
    QTest::newRow("id first") << QByteArray("x1?auth=1") << QString();
    QTest::newRow("empty") << QByteArray("") << QString();
}

void TestDailyMotion::publishUrlSplitting()
{
    QFETCH(QByteArray, publishUrl);
    QFETCH(QString, streamUrlAndKey);

    ServiceFixture f;
    serveAccount(f, publishUrl);
    auto provider = authorizedProvider(f);
    QVERIFY(provider->loadChannels());
    QStringList channels = describe(provider->channels());
    for (QString& channel : channels)
        channel = channel.section('|', 4);
    QCOMPARE(channels, streamUrlAndKey.isEmpty() ? QStringList() : QStringList{streamUrlAndKey});
    QCOMPARE(provider->events().size(), channels.size());
    QCOMPARE(provider->categories().size(), 2);
}

void TestDailyMotion::eventsAreSentAndReloaded_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("requests"); // before the reload
    QTest::addColumn<QStringList>("tags");

    QTest::newRow("create") << "create"
                            << QStringList{"POST /videos? | Bearer dm-tok | form mode=live&title=Big%20Game%20%26%20more"
                                           "&channel=sport",
                                           "GET /video/x9?fields=live_publish_url&access_token=dm-tok"}
                            << QStringList{"createObj", "streamKeyObj"};
    QTest::newRow("update") << "update"
                            << QStringList{"POST /video/x1? | Bearer dm-tok | form title=Big%20Game%20%26%20more"
                                           "&channel=sport"}
                            << QStringList{"updateVideo"};
    QTest::newRow("delete") << "delete" << QStringList{"DELETE /video/x1?access_token=dm-tok"}
                            << QStringList{"deleteStream"};
}

void TestDailyMotion::eventsAreSentAndReloaded()
{
    QFETCH(QString, operation);
    QFETCH(QStringList, requests);
    QFETCH(QStringList, tags);

    ServiceFixture f;
    serveAccount(f);
    auto provider = authorizedProvider(f);
    QVERIFY2(run(*provider, operation), qPrintable(provider->lastError()));
    requests << "GET /user/uid1/videos | Bearer dm-tok";
    tags << "channelObj";
    QCOMPARE(f.requestLines().mid(0, requests.size()), requests);
    QCOMPARE(f.view.tags().mid(0, tags.size()), tags);
    // The reload lists what the service now has.
    QCOMPARE(describe(provider->channels()), QStringList({cooking.arg(f.server.baseUrl())}));
}

void TestDailyMotion::failures_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("route"); // the request that fails, and the last one sent
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError"); // a tag alone: the reply could not be read

    const auto row = [](const char* name, const char* operation, const char* route, const QByteArray& reply,
                        const char* lastError) { QTest::newRow(name) << operation << route << reply << lastError; };
    const char *token = "POST /oauth/token", *videos = "GET /user/uid1/videos", *categories = "GET /channels";
    row("token refused", "authorize", token, R"({"error":"invalid_grant","error_description":"Code expired"})",
        "authorize,invalid_grant\nCode expired");
    row("no token", "authorize", token, R"({"uid":"uid1"})", "authorize");
    row("no user id", "authorize", token, R"({"access_token":"t"})", "authorize");
    row("token is a number", "authorize", token, R"({"access_token":5,"uid":"u"})", "authorize");
    row("token reply is an array", "authorize", token, R"(["access_token"])", "authorize");
    row("megabytes of text", "authorize", token, QByteArray(2 << 20, '{'), "authorize");
    row("videos error", "load", videos, R"({"error":{"code":403,"message":"Insufficient scope"}})",
        "channelObj,Insufficient scope");
    row("videos missing list", "load", videos, R"({"page":1})", "channelObj");
    row("videos list is an object", "load", videos, R"({"list":{"id":"x1"}})", "channelObj");
    row("video is a number", "load", videos, R"({"list":[1,2]})", "channelObj");
    row("video id is a number", "load", videos, R"({"list":[{"id":7}]})", "channelObj");
    row("video title is an array", "load", videos, R"({"list":[{"id":"x1","title":["a"]}]})", "channelObj");
    row("publish error", "load", "GET /video/x1", R"({"error_msg":"not live"})", "streamKeyObj,\nnot live");
    row("publish url is a number", "load", "GET /video/x1", R"({"live_publish_url":42})", "streamKeyObj");
    row("categories error", "load", categories, R"({"error":"down","error_description":"later"})",
        "categoryObj,down\nlater");
    row("categories missing", "load", categories, "{}", "categoryObj");
    row("category without id", "load", categories, R"({"list":[{"name":"News"}]})", "categoryObj");
    row("categories not JSON", "load", categories, "<html></html>", "categoryObj");
    row("create refused", "create", "POST /videos", R"({"error":{"message":"Quota exceeded"}})",
        "createObj,Quota exceeded");
    row("create without id", "create", "POST /videos", R"({"ok":1})", "createObj");
    row("create id is a list", "create", "POST /videos", R"({"id":["x9"]})", "createObj");
    row("created video has no address", "create", "GET /video/x9", R"({"error_msg":"gone"})", "streamKeyObj,\ngone");
    row("update refused", "update", "POST /video/x1", R"({"error":"forbidden","error_description":"not yours"})",
        "updateVideo,forbidden\nnot yours");
    row("delete refused", "delete", "DELETE /video/x1", R"({"error":{"message":"Not found"}})", "deleteStream,Not found");
}

void TestDailyMotion::failures()
{
    QFETCH(QString, operation);
    QFETCH(QString, route);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccount(f);
    f.serve({{route, reply}});
    auto provider = operation == "authorize" ? std::make_unique<DailyMotion>(&f.view) : authorizedProvider(f);
    LiveChannel stale;
    stale.name = QStringLiteral("stale");
    provider->setChannels({stale});
    QVERIFY(!run(*provider, operation));
    QCOMPARE(provider->lastError(), expectedError(lastError));
    QVERIFY(!provider->isLoggedIn());
    QVERIFY(f.requestLines().last().startsWith(route));
    if (operation == "load")
        QVERIFY(provider->channels().isEmpty());
}

QTEST_MAIN(TestDailyMotion)
#include "tst_dailymotion.moc"
