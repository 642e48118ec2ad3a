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
        return provider.authorize(QUrl(redirect + "?code=c0de%2B1&state=s"));
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
    // What each operation asks of the service (request line, then its tag) and what
    // the provider lists afterwards: channels, then servers and categories.
    void conversations_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QStringList>("requests"); // the first ones sent
        QTest::addColumn<QStringList>("account");
        const QStringList ustream{
            "11|Morning Show||http://ustream.test/morning|rtmp://ingest.test/live/ustreamVideo/11|key-11",
            "12|Late Show||http://ustream.test/late|rtmp://ingest.test/live2/ustreamVideo/12|key-12"};
        QTest::newRow("UStream login") << "UStream" << "login"
            << QStringList{"POST /oauth2/token | Basic " + QByteArray("test-client:test-secret").toBase64()
                               + " | form grant_type=password&client_id=test-client&client_secret=test-secret&"
                                 "username=kai&password=pa%20ss&device_name=quillon&"
                                 "token_type=bearer&scope=offline broadcaster #authorizeObj",
                           "GET /users/self/channels.json | Bearer tok-1 #channelsObj",
                           "GET " + ustreamKey11 + " | Bearer tok-1 #streamKeyObj",
                           "GET " + ustreamKey12 + " | Bearer tok-1 #streamKeyObj"}
            << ustream;
        QTest::newRow("Hitbox login") << "Hitbox" << "login"
            << QStringList{"POST /auth/login | form login=kai&pass=pa%20ss&app=desktop #authorizeObj",
                           "GET /ingests/default_list #serverArray", "GET /mediakey/kai?authToken=auth-7 #streamKeyObj"}
            << QStringList{"kai|kai||%1/kai|rtmp://127.0.0.1:1935/push|kai?key=sk-99",
                           "server EU West rtmp://eu.ingest.test/push", "server US East rtmp://us.ingest.test/push"};
        const QString reload = "GET /user/uid1/videos | Bearer dm-tok #channelObj";
        // x2 has no publish address: no channel for it.
        const QStringList dailyMotion{cooking, "category News news", "category Music music"};
        QTest::newRow("DailyMotion code") << "DailyMotion" << "authorize"
            << QStringList{"POST /oauth/token? | form code=c0de%2B1&client_id=test-client&client_secret=test-secret&"
                           "redirect_uri=http%3A%2F%2Flocalhost%2Foauth2callback&grant_type=authorization_code #authorize",
                           reload, "GET /video/x1?fields=live_publish_url&access_token=dm-tok #streamKeyObj",
                           "GET /video/x2?fields=live_publish_url&access_token=dm-tok #streamKeyObj",
                           "GET /channels?fields=created_time,id,name,updated_time&sort=popular&page=1&limit=50 #categoryObj"}
            << dailyMotion;
        const QString form = "form title=Big%20Game%20%26%20more&channel=sport";
        QTest::newRow("DailyMotion create") << "DailyMotion" << "create"
            << QStringList{"POST /videos? | Bearer dm-tok | form mode=live&" + form.mid(5) + " #createObj",
                           "GET /video/x9?fields=live_publish_url&access_token=dm-tok #streamKeyObj", reload}
            << dailyMotion;
        QTest::newRow("DailyMotion update") << "DailyMotion" << "update"
            << QStringList{"POST /video/x1? | Bearer dm-tok | " + form + " #updateVideo", reload} << dailyMotion;
        QTest::newRow("DailyMotion delete") << "DailyMotion" << "delete"
            << QStringList{"DELETE /video/x1?access_token=dm-tok #deleteStream", reload} << dailyMotion;
    }
    void conversations()
    {
        QFETCH(QString, service);
        QFETCH(QString, operation);
        QFETCH(QStringList, requests);
        QFETCH(QStringList, account);
        ServiceFixture f;
        serveAccounts(f);
        auto provider = make(f, service);
        // A second run replaces what the first listed, never appends to it.
        for (int run = 0; run < (operation == "login" ? 2 : 1); ++run)
            QVERIFY2(::run(*provider, operation), qPrintable(provider->lastError()));
        if (operation == "login" || operation == "authorize")
            QVERIFY(provider->isLoggedIn() || provider->isAuthorized());
        QStringList sent = f.requestLines();
        for (int i = 0; i < sent.size(); ++i)
            sent[i] += " #" + f.view.tags().value(i);
        QCOMPARE(sent.mid(0, requests.size()), requests);
        QStringList listed = describe(provider->channels());
        for (const LabelPair& server : provider->servers())
            listed << "server " + server.first + ' ' + server.second;
        for (const LabelPair& category : provider->categories())
            listed << "category " + category.first + ' ' + category.second;
        QCOMPARE(listed, account.replaceInStrings("%1", f.server.baseUrl()));
    }

    void hitboxRevoke()
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
            QCOMPARE(provider.accessToken(), lastError.isEmpty() ? QString() : QStringLiteral("auth-7"));
            QCOMPARE(f.requestLines(), QStringList({"DELETE /oauthapps/masta/1?authToken=auth-7"}));
        }
    }

    void dailyMotionRedirects_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QString>("lastError"); // empty: ignored, authorize() gives true
        QTest::newRow("empty: the service's page opens") << QUrl() << QString();
        QTest::newRow("redirect without code") << QUrl(redirect) << QString();
        QTest::newRow("page of the service") << QUrl("https://www.dailymotion.test/signin?next=%2F") << QString();
        QTest::newRow("invalid url") << QUrl("http://[::1/oauth2callback?code=abc")
                                     << "authorize,The authorization page went to an address that is not valid.";
        QTest::newRow("user declined") << QUrl(redirect + "?error=access_denied&error_description=The%20user%20declined")
                                       << "authorize,access_denied\nThe user declined";
    }
    void dailyMotionRedirects()
    {
        QFETCH(QUrl, url);
        QFETCH(QString, lastError);
        ServiceFixture f;
        DailyMotion provider(&f.view);
        QCOMPARE(provider.authorize(url), lastError.isEmpty());
        QCOMPARE(provider.lastError(), lastError);
        QVERIFY(f.server.requests().isEmpty() && f.view.closeCount == 0 && !provider.isLoggedIn());
        const QString page = f.server.baseUrl() + "/oauth/authorize?response_type=code&client_id=test-client"
                                                  "&redirect_uri=http://localhost/oauth2callback&scope=userinfo+manage_videos";
        QCOMPARE(f.view.openedUrls, url.isEmpty() ? QList<QUrl>{QUrl(page)} : QList<QUrl>());
    }

    void dailyMotionPublishUrlSplitting_data()
    {
        QTest::addColumn<QByteArray>("publishUrl");
        QTest::addColumn<QString>("streamUrlAndKey"); // empty: not listed
        QTest::newRow("id then query") << QByteArray("rtmp://pub.test/live/x1?auth=1") << "rtmp://pub.test/live|x1?auth=1";
        QTest::newRow("id missing") << QByteArray("rtmp://pub.test/live/other?auth=1") << QString();
        QTest::newRow("id twice") << QByteArray("rtmp://pub.test/x1/x1?auth=1") << QString();
    }
    void dailyMotionPublishUrlSplitting()
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
    }

    void failures_data()
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
        row("wrong password", "login", "POST /oauth2/token", R"({"error":"bad","error_description":"D"})", "authorizeObj,bad\nD");
        row("channel without id", "login", "GET /users/self/channels.json", R"({"channels":{"11":{"title":"x"}}})", "channelsObj");
        row("key error", "login", "GET " + ustreamKey11, R"({"error":"E","error_description":"D"})", "streamKeyObj,E\nD");
        service = "Hitbox";
        row("wrong password", "login", "POST /auth/login", R"({"error_msg":"auth_failed"})", "authorizeObj,\nauth_failed");
        row("ingests missing", "login", "GET /ingests/default_list", "{}", "serverArray");
        row("media key error", "login", "GET /mediakey/kai", R"({"error":"E","error_description":"D"})", "streamKeyObj,E\nD");
        service = "DailyMotion";
        row("no token", "authorize", "POST /oauth/token", R"({"uid":"uid1"})", "authorize");
        row("video id is a number", "load", "GET /user/uid1/videos", R"({"list":[{"id":7}]})", "channelObj");
        row("publish error", "load", "GET /video/x1", R"({"error_msg":"not live"})", "streamKeyObj,\nnot live");
        row("categories error", "load", "GET /channels", R"({"error":"E","error_description":"D"})", "categoryObj,E\nD");
        row("created video has no address", "create", "GET /video/x9", R"({"error_msg":"gone"})", "streamKeyObj,\ngone");
        row("update refused", "update", "POST /video/x1", R"({"error":{"message":"M"}})", "updateVideo,M");
        row("delete refused", "delete", "DELETE /video/x1", R"({"error":{"message":"M"}})", "deleteStream,M");
    }
    void failures()
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
};

QTEST_MAIN(TestServices)
#include "tst_services.moc"
