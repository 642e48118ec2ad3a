#include "provider/dailymotion.h"
#include "provider/hitbox.h"
#include "provider/ustream.h"
#include "support/servicefixture.h"

#include <QtTest>

// UStream and Hitbox (password login) and DailyMotion (code flow and live videos)
// against one local server that plays all three services.
namespace {
const QString redirect = QStringLiteral("http://localhost/oauth2callback");
const QString ustreamKey11 = QStringLiteral("/channels/11/authorizations/broadcasting/channel_key.json");
const QString ustreamKey12 = QStringLiteral("/channels/12/authorizations/broadcasting/channel_key.json");
const QString cooking = QStringLiteral("x1|Cooking|lifestyle|%1/video/x1_Cooking_lifestyle|rtmp://publish.test/"
                                       "publish-dm|x1?auth=abc");

// One account at each service; their routes do not overlap. DailyMotion has two videos
// (x2 not live), two categories, and answers the event requests.
void serveAccounts(ServiceFixture& f, const QByteArray& publishUrl = "rtmp://publish.test/publish-dm/x1?auth=abc")
{
    qputenv("QUILLON_HITBOX_INGEST", "rtmp://127.0.0.1:1935");
    f.serve({{"POST /oauth2/token", R"({"access_token":"tok-1","token_type":"bearer"})"},
             {"GET /users/self/channels.json",
              R"({"channels":{"11":{"id":11,"title":"Morning Show","url":"http://ustream.test/morning"},)"
              R"(             "12":{"id":"12","title":"Late Show","url":"http://ustream.test/late"}}})"},
             {"GET " + ustreamKey11, R"({"channel_key":"key-11","broadcast_url":"rtmp://ingest.test/live"})"},
             {"GET " + ustreamKey12, R"({"channel_key":"key-12","broadcast_url":"rtmp://ingest.test/live2"})"},

             {"POST /auth/login", R"({"user_name":"kai","authToken":"auth-7"})"},
             {"GET /ingests/default_list",
              R"({"list":[{"ingest_location":"EU West","ingest_url":"rtmp://eu.ingest.test/push"},)"
              R"(         {"ingest_location":"US East","ingest_url":"rtmp://us.ingest.test/push"}]})"},
             {"GET /mediakey/kai", R"({"user_name":"kai","streamKey":"sk-99"})"},

             {"POST /oauth/token", R"({"access_token":"dm-tok","uid":"uid1","expires_in":36000})"},
             {"GET /user/uid1/videos", R"({"page":1,"list":[{"id":"x1","title":"Cooking","channel":"lifestyle"},)"
                                       R"(                  {"id":"x2","title":"Old","channel":"news"}]})"},
             {"GET /video/x1", R"({"live_publish_url":")" + publishUrl + R"("})"},
             {"GET /video/x2", R"({"live_publish_url":null})"},
             {"GET /channels",
              R"({"list":[{"id":"news","name":"News","created_time":1},{"id":"music","name":"Music"}]})"},
             {"POST /videos", R"({"id":"x9","title":"Big Game"})"},
             {"GET /video/x9", R"({"live_publish_url":"rtmp://pub.test/live/x9?auth=9"})"},
             {"POST /video/x1", R"({"id":"x1"})"},
             {"DELETE /video/x1", "{}"}});
}

// A provider of the service; a DailyMotion account has been through authorize().
std::unique_ptr<Provider> make(ServiceFixture& f, const QString& service)
{
    if (service == "UStream")
        return std::make_unique<UStream>(&f.view);
    if (service == "Hitbox")
        return std::make_unique<Hitbox>(&f.view);
    auto provider = std::make_unique<DailyMotion>(&f.view);
    provider->setAccessToken("dm-tok");
    provider->setUsername("uid1");
    return provider;
}

// One operation: "login" (UStream, Hitbox), "authorize", "load", "create", "update" or
// "delete" (DailyMotion, on the video x1).
bool run(Provider& provider, const QString& operation)
{
    LiveChannel channel;
    channel.id = QStringLiteral("x1");
    EventInfo event;
    event.title = QStringLiteral("Big Game & more");
    event.category = QStringLiteral("sport");
    if (operation == "login")
        return provider.login("kai", "pa ss");
    if (operation == "authorize")
        return provider.authorize(QUrl(redirect + "?code=abc"));
    if (operation == "load")
        return provider.loadChannels();
    if (operation == "create")
        return provider.createEvent(event, channel);
    if (operation == "update")
        return provider.updateEvent(event, channel);
    return provider.deleteEvent(channel);
}
} // namespace

class TestServices : public QObject
{
    Q_OBJECT

private slots:
    void ustreamLoginLoadsEveryChannel();
    void hitboxLoginLoadsIngestsAndKey();
    void hitboxRevoke();
    void dailyMotionCodeIsExchangedAndChannelsLoaded();
    void dailyMotionRedirectsWithoutUsableCode_data();
    void dailyMotionRedirectsWithoutUsableCode();
    void dailyMotionPublishUrlSplitting_data();
    void dailyMotionPublishUrlSplitting();
    void dailyMotionEventsAreSentAndReloaded_data();
    void dailyMotionEventsAreSentAndReloaded();
    void failures_data();
    void failures();
};

void TestServices::ustreamLoginLoadsEveryChannel()
{
    ServiceFixture f;
    serveAccounts(f);
    UStream provider(&f.view);
    QVERIFY2(provider.login("ann@example.test", "p&ss word"), qPrintable(provider.lastError()));
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.accessToken(), QStringLiteral("tok-1"));
    QCOMPARE(f.requestLines(),
             QStringList({"POST /oauth2/token | Basic " + QByteArray("test-client:test-secret").toBase64()
                              + " | form grant_type=password&client_id=test-client&client_secret=test-secret&"
                                "username=ann%40example.test&password=p%26ss%20word&device_name=quillon&"
                                "token_type=bearer&scope=offline broadcaster",
                          "GET /users/self/channels.json | Bearer tok-1", "GET " + ustreamKey11 + " | Bearer tok-1",
                          "GET " + ustreamKey12 + " | Bearer tok-1"}));
    QCOMPARE(f.view.tags(), QStringList({"authorizeObj", "channelsObj", "streamKeyObj", "streamKeyObj"}));
    const QStringList channels{
        "11|Morning Show||http://ustream.test/morning|rtmp://ingest.test/live/ustreamVideo/11|key-11",
        "12|Late Show||http://ustream.test/late|rtmp://ingest.test/live2/ustreamVideo/12|key-12"};
    QCOMPARE(describe(provider.channels()), channels);

    // A second login starts from an empty list.
    QVERIFY(provider.login("ann@example.test", "p&ss word"));
    QCOMPARE(describe(provider.channels()), channels);
    // An account without channels, sent as an empty map or an empty list, logs in all the same.
    for (const QByteArray none : {R"({"channels":{}})", R"({"channels":[]})"}) {
        f.serve({{"GET /users/self/channels.json", none}});
        UStream empty(&f.view);
        QVERIFY(empty.login("ann", "pw"));
        QVERIFY(empty.isLoggedIn());
        QVERIFY(empty.channels().isEmpty());
        QVERIFY(f.requestLines().last().startsWith("GET /users/self/channels.json"));
    }
}

void TestServices::hitboxLoginLoadsIngestsAndKey()
{
    ServiceFixture f;
    serveAccounts(f);
    Hitbox provider(&f.view);
    QVERIFY2(provider.login("kai", "pa ss"), qPrintable(provider.lastError()));
    QVERIFY(provider.isAuthorized());
    QCOMPARE(provider.accessToken(), QStringLiteral("auth-7"));
    QCOMPARE(f.requestLines(), QStringList({"POST /auth/login | form login=kai&pass=pa%20ss&app=desktop",
                                            "GET /ingests/default_list", "GET /mediakey/kai?authToken=auth-7"}));
    QCOMPARE(f.view.tags(), QStringList({"authorizeObj", "serverArray", "streamKeyObj"}));

    const QList<LabelPair> servers{{"EU West", "rtmp://eu.ingest.test/push"},
                                   {"US East", "rtmp://us.ingest.test/push"}};
    const QStringList channels{"kai|kai||" + f.server.baseUrl() + "/kai|rtmp://127.0.0.1:1935/push|kai?key=sk-99"};
    QCOMPARE(provider.servers(), servers);
    QCOMPARE(describe(provider.channels()), channels);

    // Logging in again replaces, never appends.
    QVERIFY(provider.login("kai", "pa ss"));
    QCOMPARE(provider.servers(), servers);
    QCOMPARE(describe(provider.channels()), channels);
}

void TestServices::hitboxRevoke()
{
    // The reply, and the error it gives (none: revoked, token forgotten).
    const QList<QPair<QByteArray, QString>> cases{
        {R"({"success":true})", QString()}, {R"({"error":{"message":"unknown token"}})", "revokeObj,unknown token"}};
    for (const auto& [reply, lastError] : cases) {
        ServiceFixture f;
        f.serve({{"DELETE /oauthapps/masta/1", reply}});
        Hitbox provider(&f.view);
        provider.setAccessToken("auth-7");
        QCOMPARE(provider.revoke(), lastError.isEmpty());
        QCOMPARE(provider.lastError(), lastError);
        QCOMPARE(provider.isAuthorized(), !lastError.isEmpty());
        QCOMPARE(provider.accessToken(), lastError.isEmpty() ? QString() : QStringLiteral("auth-7"));
        QCOMPARE(f.requestLines(), QStringList({"DELETE /oauthapps/masta/1?authToken=auth-7"}));
        QCOMPARE(f.view.tags(), QStringList({"revokeObj"}));
    }
}

void TestServices::dailyMotionCodeIsExchangedAndChannelsLoaded()
{
    ServiceFixture f;
    serveAccounts(f);
    DailyMotion provider(&f.view);
    // First the service's own page, through the view.
    QVERIFY(provider.authorize(QUrl()));
    QCOMPARE(f.view.openedUrls, QList<QUrl>({QUrl(f.server.baseUrl()
                                                  + "/oauth/authorize?response_type=code&client_id=test-client"
                                                    "&redirect_uri=http://localhost/oauth2callback"
                                                    "&scope=userinfo+manage_videos")}));
    QVERIFY(f.server.requests().isEmpty());

    QVERIFY2(provider.authorize(QUrl(redirect + "?code=c0de%2B1&state=s")), qPrintable(provider.lastError()));
    QCOMPARE(f.view.closeCount, 1);
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.accessToken() + ' ' + provider.username(), QStringLiteral("dm-tok uid1"));
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

void TestServices::dailyMotionRedirectsWithoutUsableCode_data()
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

void TestServices::dailyMotionRedirectsWithoutUsableCode()
{
    QFETCH(QUrl, url);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccounts(f);
    DailyMotion provider(&f.view);
    QCOMPARE(provider.authorize(url), lastError.isEmpty());
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(f.server.requests().isEmpty());
    QCOMPARE(f.view.closeCount, 0);
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.accessToken().isEmpty());
}

void TestServices::dailyMotionPublishUrlSplitting_data()
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

void TestServices::dailyMotionPublishUrlSplitting()
{
    QFETCH(QByteArray, publishUrl);
    QFETCH(QString, streamUrlAndKey);

    ServiceFixture f;
    serveAccounts(f, publishUrl);
    auto provider = make(f, "DailyMotion");
    QVERIFY(provider->loadChannels());
    QStringList channels = describe(provider->channels());
    for (QString& channel : channels)
        channel = channel.section('|', 4);
    QCOMPARE(channels, streamUrlAndKey.isEmpty() ? QStringList() : QStringList{streamUrlAndKey});
    QCOMPARE(provider->events().size(), channels.size());
    QCOMPARE(provider->categories().size(), 2);
}

void TestServices::dailyMotionEventsAreSentAndReloaded_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("requests"); // before the reload
    QTest::addColumn<QStringList>("tags");

    const QString form = "form title=Big%20Game%20%26%20more&channel=sport";
    QTest::newRow("create") << "create"
                            << QStringList{"POST /videos? | Bearer dm-tok | form mode=live&" + form.mid(5),
                                           "GET /video/x9?fields=live_publish_url&access_token=dm-tok"}
                            << QStringList{"createObj", "streamKeyObj"};
    QTest::newRow("update") << "update" << QStringList{"POST /video/x1? | Bearer dm-tok | " + form}
                            << QStringList{"updateVideo"};
    QTest::newRow("delete") << "delete" << QStringList{"DELETE /video/x1?access_token=dm-tok"}
                            << QStringList{"deleteStream"};
}

void TestServices::dailyMotionEventsAreSentAndReloaded()
{
    QFETCH(QString, operation);
    QFETCH(QStringList, requests);
    QFETCH(QStringList, tags);

    ServiceFixture f;
    serveAccounts(f);
    auto provider = make(f, "DailyMotion");
    QVERIFY2(run(*provider, operation), qPrintable(provider->lastError()));
    requests << "GET /user/uid1/videos | Bearer dm-tok";
    tags << "channelObj";
    QCOMPARE(f.requestLines().mid(0, requests.size()), requests);
    QCOMPARE(f.view.tags().mid(0, tags.size()), tags);
    // The reload lists what the service now has.
    QCOMPARE(describe(provider->channels()), QStringList({cooking.arg(f.server.baseUrl())}));
}

void TestServices::failures_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("route"); // the request that fails, and the last one sent
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError"); // a tag alone: the reply could not be read

    QString service;
    const auto row = [&](const char* name, const char* operation, const QString& route, const QByteArray& reply,
                         const char* lastError) {
        QTest::newRow(qPrintable(service + ": " + name)) << service << operation << route << reply << lastError;
    };
    service = "UStream";
    const char *token = "POST /oauth2/token", *channels = "GET /users/self/channels.json";
    const QString key = "GET " + ustreamKey11;
    row("wrong password", "login", token, R"({"error":"invalid_grant","error_description":"Bad credentials"})",
        "authorizeObj,invalid_grant\nBad credentials");
    row("token missing", "login", token, R"({"token_type":"x"})", "authorizeObj");
    row("token is a number", "login", token, R"({"access_token":12345})", "authorizeObj");
    row("token reply is an array", "login", token, R"([{"access_token":"t"}])", "authorizeObj");
    row("megabytes of text", "login", token, QByteArray(3 << 20, 'a'), "authorizeObj");
    row("channels error", "login", channels, R"({"error":{"message":"token expired"}})",
        "channelsObj,token expired");
    row("channels missing", "login", channels, "{}", "channelsObj");
    row("channels is a string", "login", channels, R"({"channels":"none"})", "channelsObj");
    row("channels list of objects", "login", channels, R"({"channels":[{"id":11}]})", "channelsObj");
    row("channel is a number", "login", channels, R"({"channels":{"11":11}})", "channelsObj");
    row("channel without id", "login", channels, R"({"channels":{"11":{"title":"x"}}})", "channelsObj");
    row("channel id is a fraction", "login", channels, R"({"channels":{"11":{"id":1.5}}})", "channelsObj");
    row("title is a number", "login", channels, R"({"channels":{"11":{"id":11,"title":7}}})", "channelsObj");
    row("key error", "login", key, R"({"error":"forbidden","error_description":"not a broadcaster"})",
        "streamKeyObj,forbidden\nnot a broadcaster");
    row("key missing", "login", key, R"({"broadcast_url":"rtmp://x"})", "streamKeyObj");
    row("broadcast address missing", "login", key, R"({"channel_key":"k"})", "streamKeyObj");

    service = "Hitbox";
    const char *login = "POST /auth/login", *ingests = "GET /ingests/default_list", *mediaKey = "GET /mediakey/kai";
    row("wrong password", "login", login, R"({"error_msg":"auth_failed"})", "authorizeObj,\nauth_failed");
    row("token missing", "login", login, R"({"success":true})", "authorizeObj");
    row("token is an object", "login", login, R"({"authToken":{"v":"x"}})", "authorizeObj");
    row("ingests missing", "login", ingests, "{}", "serverArray");
    row("ingests is an object", "login", ingests, R"({"list":{"ingest_location":"EU"}})", "serverArray");
    row("ingest is a string", "login", ingests, R"({"list":["rtmp://x"]})", "serverArray");
    row("ingest url is a number", "login", ingests, R"({"list":[{"ingest_location":"EU","ingest_url":1}]})",
        "serverArray");
    row("top-level array", "login", ingests, R"([{"ingest_location":"EU","ingest_url":"rtmp://x"}])",
        "serverArray");
    row("media key error", "login", mediaKey, R"({"error":"X","error_description":"no key"})",
        "streamKeyObj,X\nno key");
    row("media key empty", "login", mediaKey, R"({"streamKey":""})", "streamKeyObj");

    service = "DailyMotion";
    const char *code = "POST /oauth/token", *videos = "GET /user/uid1/videos", *categories = "GET /channels";
    row("token refused", "authorize", code, R"({"error":"invalid_grant","error_description":"Expired"})",
        "authorize,invalid_grant\nExpired");
    row("no token", "authorize", code, R"({"uid":"uid1"})", "authorize");
    row("no user id", "authorize", code, R"({"access_token":"t"})", "authorize");
    row("token is a number", "authorize", code, R"({"access_token":5,"uid":"u"})", "authorize");
    row("token reply is an array", "authorize", code, R"(["access_token"])", "authorize");
    row("megabytes of text", "authorize", code, QByteArray(2 << 20, '{'), "authorize");
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
    row("created video has no address", "create", "GET /video/x9", R"({"error_msg":"gone"})",
        "streamKeyObj,\ngone");
    row("update refused", "update", "POST /video/x1", R"({"error":"forbidden","error_description":"no"})",
        "updateVideo,forbidden\nno");
    row("delete refused", "delete", "DELETE /video/x1", R"({"error":{"message":"Not found"}})",
        "deleteStream,Not found");
}

void TestServices::failures()
{
    QFETCH(QString, service);
    QFETCH(QString, operation);
    QFETCH(QString, route);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccounts(f);
    f.serve({{route, reply}});
    auto provider = make(f, service);
    LiveChannel stale;
    stale.name = "stale";
    provider->setChannels({stale});
    QVERIFY(!run(*provider, operation));
    QCOMPARE(provider->lastError(), expectedError(lastError));
    QVERIFY(!provider->isLoggedIn());
    // What was listed before is gone once the list is read again.
    if (operation == "login" || operation == "load")
        QVERIFY(provider->channels().isEmpty());
    // Nothing is asked after the request that failed.
    QVERIFY(f.requestLines().last().startsWith(route));
}

QTEST_MAIN(TestServices)
#include "tst_services.moc"
