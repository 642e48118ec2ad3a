#include "servicefixture.h"
#include "ustream.h"

#include <QtTest>

namespace {
const QString key11 = QStringLiteral("/channels/11/authorizations/broadcasting/channel_key.json");

void serveAccount(ServiceFixture& f)
{
    f.serve({{"POST /oauth2/token", R"({"access_token":"tok-1","token_type":"bearer"})"},
             {"GET /users/self/channels.json",
              R"({"channels":{"11":{"id":11,"title":"Morning Show","url":"http://ustream.test/morning"},)"
              R"(             "12":{"id":"12","title":"Late Show","url":"http://ustream.test/late"}}})"},
             {"GET " + key11, R"({"channel_key":"key-11","broadcast_url":"rtmp://ingest.test/live"})"},
             {"GET /channels/12/authorizations/broadcasting/channel_key.json",
              R"({"channel_key":"key-12","broadcast_url":"rtmp://ingest.test/live2"})"}});
}
} // namespace

class TestUStream : public QObject
{
    Q_OBJECT

private slots:
    void loginLoadsEveryChannel();
    void loginFailsOrFindsNoChannel_data();
    void loginFailsOrFindsNoChannel();
};

void TestUStream::loginLoadsEveryChannel()
{
    ServiceFixture f;
    serveAccount(f);
    UStream provider(&f.view);
    QVERIFY2(provider.login("ann@example.test", "p&ss word"), qPrintable(provider.lastError()));
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.accessToken(), QStringLiteral("tok-1"));

    QCOMPARE(f.requestLines(),
             QStringList({"POST /oauth2/token | Basic " + QByteArray("test-client:test-secret").toBase64()
                              + " | form grant_type=password&client_id=test-client&client_secret=test-secret&"
                                "username=ann%40example.test&password=p%26ss%20word&device_name=quillon&"
                                "token_type=bearer&scope=offline broadcaster",
                          "GET /users/self/channels.json | Bearer tok-1", "GET " + key11 + " | Bearer tok-1",
                          "GET /channels/12/authorizations/broadcasting/channel_key.json | Bearer tok-1"}));
    QCOMPARE(f.view.tags(), QStringList({"authorizeObj", "channelsObj", "streamKeyObj", "streamKeyObj"}));
    const QStringList channels{
        "11|Morning Show||http://ustream.test/morning|rtmp://ingest.test/live/ustreamVideo/11|key-11",
        "12|Late Show||http://ustream.test/late|rtmp://ingest.test/live2/ustreamVideo/12|key-12"};
    QCOMPARE(describe(provider.channels()), channels);

    // A second login starts from an empty list.
    QVERIFY(provider.login("ann@example.test", "p&ss word"));
    QCOMPARE(describe(provider.channels()), channels);
}

void TestUStream::loginFailsOrFindsNoChannel_data()
{
    QTest::addColumn<QString>("route");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError"); // empty: logged in without channels; a tag alone: unreadable reply

    const auto row = [](const char* name, const QString& route, const QByteArray& reply, const char* lastError) {
        QTest::newRow(name) << route << reply << lastError;
    };
    const QString token = "POST /oauth2/token", channels = "GET /users/self/channels.json", key = "GET " + key11;
    row("no channels, empty map", channels, R"({"channels":{}})", "");
    row("no channels, empty list", channels, R"({"channels":[]})", "");
    row("wrong password", token, R"({"error":"invalid_grant","error_description":"Bad credentials"})",
        "authorizeObj,invalid_grant\nBad credentials");
    row("token missing", token, R"({"token_type":"x"})", "authorizeObj");
    row("token is a number", token, R"({"access_token":12345})", "authorizeObj");
    row("token reply is an array", token, R"([{"access_token":"t"}])", "authorizeObj");
    row("megabytes of text", token, QByteArray(3 << 20, 'a'), "authorizeObj");
    row("channels error", channels, R"({"error":{"message":"token expired"}})", "channelsObj,token expired");
    row("channels missing", channels, "{}", "channelsObj");
    row("channels is a string", channels, R"({"channels":"none"})", "channelsObj");
    row("channels list of objects", channels, R"({"channels":[{"id":11}]})", "channelsObj");
    row("channel is a number", channels, R"({"channels":{"11":11}})", "channelsObj");
    row("channel without id", channels, R"({"channels":{"11":{"title":"x"}}})", "channelsObj");
    row("title is a number", channels, R"({"channels":{"11":{"id":11,"title":7}}})", "channelsObj");
    row("key error", key, R"({"error":"forbidden","error_description":"not a broadcaster"})",
        "streamKeyObj,forbidden\nnot a broadcaster");
    row("key missing", key, R"({"broadcast_url":"rtmp://x"})", "streamKeyObj");
    row("broadcast address missing", key, R"({"channel_key":"k"})", "streamKeyObj");
}

void TestUStream::loginFailsOrFindsNoChannel()
{
    QFETCH(QString, route);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccount(f);
    f.serve({{route, reply}});
    UStream provider(&f.view);
    QCOMPARE(provider.login("ann", "pw"), lastError.isEmpty());
    QCOMPARE(provider.lastError(), expectedError(lastError));
    QCOMPARE(provider.isLoggedIn(), lastError.isEmpty());
    QVERIFY(provider.channels().isEmpty());
    // Nothing is asked after the request that failed.
    QVERIFY(f.requestLines().last().startsWith(route));
}

QTEST_MAIN(TestUStream)
#include "tst_ustream.moc"
