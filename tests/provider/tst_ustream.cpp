#include "fakeview.h"
#include "httpserver.h"
#include "serviceenvironment.h"
#include "ustream.h"

#include <QtTest>

class TestUStream : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void constructorValues();
    void loginLoadsEveryChannel();
    void loginWithoutChannels_data();
    void loginWithoutChannels();
    void loginFailures_data();
    void loginFailures();

private:
    void serveHappyAccount();

    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<FakeView> m_view;
};

void TestUStream::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestUStream::init()
{
    m_server = std::make_unique<HttpServer>();
    m_view = std::make_unique<FakeView>();
    ServiceEnvironment::pointAt(m_server->baseUrl());
}

void TestUStream::cleanup()
{
    ServiceEnvironment::reset();
    m_view.reset();
    m_server.reset();
}

void TestUStream::serveHappyAccount()
{
    m_server->onJson("POST", "/oauth2/token", R"({"access_token":"tok-1","token_type":"bearer"})");
    m_server->onJson("GET", "/users/self/channels.json",
                     R"({"channels":{"11":{"id":11,"title":"Morning Show","url":"http://ustream.test/morning"},
                                     "12":{"id":"12","title":"Late Show","url":"http://ustream.test/late"}}})");
    m_server->onJson("GET", "/channels/11/authorizations/broadcasting/channel_key.json",
                     R"({"channel_key":"key-11","broadcast_url":"rtmp://ingest.test/live"})");
    m_server->onJson("GET", "/channels/12/authorizations/broadcasting/channel_key.json",
                     R"({"channel_key":"key-12","broadcast_url":"rtmp://ingest.test/live2"})");
}

void TestUStream::constructorValues()
{
    UStream provider(m_view.get());
    QCOMPARE(provider.name(), QStringLiteral("UStream"));
    QCOMPARE(provider.features(), 0x003102A4u);
    QCOMPARE(provider.features(false), 0x003102A4u);
    QVERIFY(!provider.icon().isNull());
    QCOMPARE(provider.clientId(), ServiceEnvironment::clientId());
    QCOMPARE(provider.clientSecret(), ServiceEnvironment::clientSecret());
    QCOMPARE(provider.homeUrl(), QUrl(m_server->baseUrl()));
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(!provider.isAuthorized());
}

void TestUStream::loginLoadsEveryChannel()
{
    serveHappyAccount();
    UStream provider(m_view.get());
    QVERIFY2(provider.login(QStringLiteral("ann@example.test"), QStringLiteral("p&ss word")),
             qPrintable(provider.lastError()));
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.username(), QStringLiteral("ann@example.test"));
    QCOMPARE(provider.password(), QStringLiteral("p&ss word"));
    QCOMPARE(provider.accessToken(), QStringLiteral("tok-1"));

    const QList<HttpServer::Request> requests = m_server->requests();
    QCOMPARE(requests.size(), 4);
    const HttpServer::Request& token = requests.at(0);
    QCOMPARE(token.method, QByteArray("POST"));
    QCOMPARE(token.path, QStringLiteral("/oauth2/token"));
    QCOMPARE(token.header("Authorization"), "Basic " + QByteArray("test-client:test-secret").toBase64());
    QCOMPARE(token.header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(token.body, QByteArray("grant_type=password&client_id=test-client&client_secret=test-secret&"
                                    "username=ann%40example.test&password=p%26ss%20word&device_name=quillon&"
                                    "token_type=bearer&scope=offline broadcaster"));
    QCOMPARE(requests.at(1).method, QByteArray("GET"));
    QCOMPARE(requests.at(1).path, QStringLiteral("/users/self/channels.json"));
    QCOMPARE(requests.at(1).header("Authorization"), QByteArray("Bearer tok-1"));
    QCOMPARE(requests.at(2).path, QStringLiteral("/channels/11/authorizations/broadcasting/channel_key.json"));
    QCOMPARE(requests.at(2).header("Authorization"), QByteArray("Bearer tok-1"));
    QCOMPARE(requests.at(3).path, QStringLiteral("/channels/12/authorizations/broadcasting/channel_key.json"));

    QCOMPARE(m_view->tags(), QStringList({"authorizeObj", "channelsObj", "streamKeyObj", "streamKeyObj"}));

    const QList<LiveChannel> channels = provider.channels();
    QCOMPARE(channels.size(), 2);
    QCOMPARE(channels.at(0).id, QStringLiteral("11"));
    QCOMPARE(channels.at(0).name, QStringLiteral("Morning Show"));
    QCOMPARE(channels.at(0).watchUrl, QStringLiteral("http://ustream.test/morning"));
    QCOMPARE(channels.at(0).streamUrl, QStringLiteral("rtmp://ingest.test/live/ustreamVideo/11"));
    QCOMPARE(channels.at(0).streamKey, QStringLiteral("key-11"));
    QCOMPARE(channels.at(1).streamUrl, QStringLiteral("rtmp://ingest.test/live2/ustreamVideo/12"));
    QCOMPARE(channels.at(1).streamKey, QStringLiteral("key-12"));
    QCOMPARE(provider.findChannel(QStringLiteral("Late Show"))->id, QStringLiteral("12"));

    // A second login starts from an empty list.
    QVERIFY(provider.login(QStringLiteral("ann@example.test"), QStringLiteral("p&ss word")));
    QCOMPARE(provider.channels().size(), 2);
}

void TestUStream::loginWithoutChannels_data()
{
    QTest::addColumn<QByteArray>("channels");
    QTest::newRow("empty map") << QByteArray(R"({"channels":{}})");
    QTest::newRow("empty list") << QByteArray(R"({"channels":[]})");
}

void TestUStream::loginWithoutChannels()
{
    QFETCH(QByteArray, channels);
    m_server->onJson("POST", "/oauth2/token", R"({"access_token":"tok-1"})");
    m_server->onJson("GET", "/users/self/channels.json", channels);
    UStream provider(m_view.get());
    QVERIFY(provider.login(QStringLiteral("ann"), QStringLiteral("pw")));
    QVERIFY(provider.isLoggedIn());
    QVERIFY(provider.channels().isEmpty());
    QCOMPARE(m_server->requests().size(), 2);
}

void TestUStream::loginFailures_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("lastError");

    const QString unreadable = QStringLiteral(",The service sent a reply that could not be read.");
    const QString key11 = QStringLiteral("/channels/11/authorizations/broadcasting/channel_key.json");
    QTest::newRow("wrong password") << QByteArray("POST") << "/oauth2/token"
                                    << QByteArray(R"({"error":"invalid_grant","error_description":"Bad credentials"})")
                                    << 400 << "authorizeObj,invalid_grant\nBad credentials";
    QTest::newRow("token missing") << QByteArray("POST") << "/oauth2/token" << QByteArray(R"({"token_type":"x"})")
                                   << 200 << "authorizeObj" + unreadable;
    QTest::newRow("token is a number") << QByteArray("POST") << "/oauth2/token"
                                       << QByteArray(R"({"access_token":12345})") << 200 << "authorizeObj" + unreadable;
    QTest::newRow("token reply is an array") << QByteArray("POST") << "/oauth2/token"
                                             << QByteArray(R"([{"access_token":"t"}])") << 200
                                             << "authorizeObj" + unreadable;
    QTest::newRow("megabytes of text") << QByteArray("POST") << "/oauth2/token" << QByteArray(3 << 20, 'a') << 200
                                       << "authorizeObj" + unreadable;
    QTest::newRow("channels error") << QByteArray("GET") << "/users/self/channels.json"
                                    << QByteArray(R"({"error":{"message":"token expired"}})") << 401
                                    << "channelsObj,token expired";
    QTest::newRow("channels missing") << QByteArray("GET") << "/users/self/channels.json" << QByteArray("{}") << 200
                                      << "channelsObj" + unreadable;
    QTest::newRow("channels is a string") << QByteArray("GET") << "/users/self/channels.json"
                                          << QByteArray(R"({"channels":"none"})") << 200 << "channelsObj" + unreadable;
    QTest::newRow("channels list of objects") << QByteArray("GET") << "/users/self/channels.json"
                                              << QByteArray(R"({"channels":[{"id":11}]})") << 200
                                              << "channelsObj" + unreadable;
    QTest::newRow("channel is a number") << QByteArray("GET") << "/users/self/channels.json"
                                         << QByteArray(R"({"channels":{"11":11}})") << 200
                                         << "channelsObj" + unreadable;
    QTest::newRow("channel without id") << QByteArray("GET") << "/users/self/channels.json"
                                        << QByteArray(R"({"channels":{"11":{"title":"x"}}})") << 200
                                        << "channelsObj" + unreadable;
    QTest::newRow("title is a number") << QByteArray("GET") << "/users/self/channels.json"
                                       << QByteArray(R"({"channels":{"11":{"id":11,"title":7}}})") << 200
                                       << "channelsObj" + unreadable;
    QTest::newRow("key error") << QByteArray("GET") << key11
                               << QByteArray(R"({"error":"forbidden","error_description":"not a broadcaster"})")
                               << 403 << "streamKeyObj,forbidden\nnot a broadcaster";
    QTest::newRow("key missing") << QByteArray("GET") << key11 << QByteArray(R"({"broadcast_url":"rtmp://x"})")
                                 << 200 << "streamKeyObj" + unreadable;
    QTest::newRow("broadcast address missing") << QByteArray("GET") << key11
                                               << QByteArray(R"({"channel_key":"k"})") << 200
                                               << "streamKeyObj" + unreadable;
}

void TestUStream::loginFailures()
{
    QFETCH(QByteArray, method);
    QFETCH(QString, path);
    QFETCH(QByteArray, body);
    QFETCH(int, status);
    QFETCH(QString, lastError);

    serveHappyAccount();
    m_server->onJson(method, path, body, status);
    UStream provider(m_view.get());
    QVERIFY(!provider.login(QStringLiteral("ann"), QStringLiteral("pw")));
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.channels().isEmpty());
}

QTEST_MAIN(TestUStream)
#include "tst_ustream.moc"
