#include "fakeview.h"
#include "httpserver.h"
#include "provider.h"

#include <QJsonDocument>
#include <QNetworkReply>
#include <QtTest>

namespace {

// Reaches the protected helpers the services use.
class OpenProvider : public Provider
{
public:
    using Provider::Provider;
    using Provider::checkReply;
    using Provider::deleteResource;
    using Provider::encoded;
    using Provider::formRequest;
    using Provider::get;
    using Provider::parseError;
    using Provider::post;
    using Provider::put;
    using Provider::setLastError;
    using Provider::unexpectedReply;
};

QJsonObject object(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class TestProvider : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void parseError_data();
    void parseError();
    void checkReplyLogsBeforeChecking();
    void unexpectedReplySetsTaggedText();

    void requestHelpers_data();
    void requestHelpers();
    void helpersParseErrorBodies_data();
    void helpersParseErrorBodies();
    void helperWithoutManagerGivesEmptyObject();
    void formRequestAndEncoding();

    void baseOperationsDoNothing();
    void streamUrlAndKeyAreTheCurrentChannels();
    void findChannelReturnsFirstMatch();

private:
    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<FakeView> m_view;
};

void TestProvider::init()
{
    m_server = std::make_unique<HttpServer>();
    m_view = std::make_unique<FakeView>();
    QVERIFY(m_server->port() != 0);
}

void TestProvider::cleanup()
{
    m_view.reset();
    m_server.reset();
}

void TestProvider::parseError_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<bool>("isError");
    QTest::addColumn<QString>("lastError");

    const QString unchanged = QStringLiteral("earlier,unchanged");
    QTest::newRow("error and description") << QByteArray(R"({"error":"X","error_description":"Y"})")
                                           << "channelObj" << true << "channelObj,X\nY";
    QTest::newRow("error string alone") << QByteArray(R"({"error":"invalid_grant"})") << "authorize" << true
                                        << "authorize,invalid_grant\n";
    QTest::newRow("description alone") << QByteArray(R"({"error_description":"Y"})") << "videoObj" << true
                                       << "videoObj,\nY";
    QTest::newRow("error_msg alone keeps empty error") << QByteArray(R"({"error_msg":"M"})") << "streamKeyObj"
                                                       << true << "streamKeyObj,\nM";
    QTest::newRow("error string wins over error_msg") << QByteArray(R"({"error":"X","error_msg":"M"})") << "t"
                                                      << true << "t,X\n";
    QTest::newRow("description wins over error_msg") << QByteArray(R"({"error_description":"D","error_msg":"M"})")
                                                     << "t" << true << "t,\nD";
    QTest::newRow("object error with error_msg") << QByteArray(R"({"error":{"message":"inner"},"error_msg":"M"})")
                                                 << "t" << true << "t,\nM";
    QTest::newRow("object with description") << QByteArray(R"({"error":{"error_description":"D"}})") << "revokeObj"
                                             << true << "revokeObj,D";
    QTest::newRow("object with message") << QByteArray(R"({"error":{"code":401,"message":"M"}})") << "revokeObj"
                                         << true << "revokeObj,M";
    QTest::newRow("object description before message")
        << QByteArray(R"({"error":{"error_description":"D","message":"M"}})") << "t" << true << "t,D";
    QTest::newRow("object with empty description uses message")
        << QByteArray(R"({"error":{"error_description":"","message":"M"}})") << "t" << true << "t,M";
    QTest::newRow("empty object") << QByteArray(R"({"error":{}})") << "t" << false << unchanged;
    QTest::newRow("empty reply") << QByteArray("{}") << "t" << false << unchanged;
    QTest::newRow("object with empty message") << QByteArray(R"({"error":{"message":""}})") << "t" << false
                                               << unchanged;
    QTest::newRow("object with numeric message") << QByteArray(R"({"error":{"message":42}})") << "t" << false
                                                 << unchanged;
    QTest::newRow("numeric error") << QByteArray(R"({"error":401})") << "t" << false << unchanged;
    QTest::newRow("array error") << QByteArray(R"({"error":["X"]})") << "t" << false << unchanged;
    QTest::newRow("null error") << QByteArray(R"({"error":null})") << "t" << false << unchanged;
    QTest::newRow("numeric description") << QByteArray(R"({"error_description":5})") << "t" << false << unchanged;
    QTest::newRow("success data") << QByteArray(R"({"access_token":"abc","error_count":0})") << "t" << false
                                  << unchanged;
}

void TestProvider::parseError()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, tag);
    QFETCH(bool, isError);
    QFETCH(QString, lastError);

    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    provider.setLastError(QStringLiteral("earlier"), QStringLiteral("unchanged"));
    QCOMPARE(provider.parseError(object(reply), tag), isError);
    QCOMPARE(provider.lastError(), lastError);
}

void TestProvider::checkReplyLogsBeforeChecking()
{
    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    const QJsonObject failed = object(R"({"error":"X","error_description":"Y"})");
    QVERIFY(!provider.checkReply(failed, QStringLiteral("channelObj")));
    QVERIFY(provider.checkReply(object(R"({"id":"1"})"), QStringLiteral("videoObj")));

    QCOMPARE(m_view->tags(), QStringList({"channelObj", "videoObj"}));
    QCOMPARE(m_view->messages.first().second.value<QJsonObject>(), failed);
    QCOMPARE(provider.lastError(), QStringLiteral("channelObj,X\nY"));
}

void TestProvider::unexpectedReplySetsTaggedText()
{
    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    QVERIFY(!provider.unexpectedReply(QStringLiteral("serverArray")));
    QCOMPARE(provider.lastError(), QStringLiteral("serverArray,The service sent a reply that could not be read."));
    // The dialog splits the text at "," and needs exactly two parts.
    QCOMPARE(provider.lastError().split(QLatin1Char(',')).size(), 2);
}

void TestProvider::requestHelpers_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("body");

    QTest::newRow("get") << QByteArray("GET") << QByteArray();
    QTest::newRow("delete") << QByteArray("DELETE") << QByteArray();
    QTest::newRow("post") << QByteArray("POST") << QByteArray("a=1&b=two");
    QTest::newRow("put") << QByteArray("PUT") << QByteArray(R"({"k":"v"})");
}

void TestProvider::requestHelpers()
{
    QFETCH(QByteArray, method);
    QFETCH(QByteArray, body);

    m_server->onJson(method, QStringLiteral("/items/7"), R"({"id":"7","list":[1,2]})");
    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    QNetworkRequest request(QUrl(m_server->baseUrl() + QStringLiteral("/items/7?x=1&y=two")));
    request.setRawHeader("Authorization", "Bearer tok");
    if (!body.isEmpty())
        request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/x-www-form-urlencoded"));

    QJsonObject reply;
    if (method == "GET")
        reply = provider.get(request);
    else if (method == "DELETE")
        reply = provider.deleteResource(request);
    else if (method == "POST")
        reply = provider.post(request, body);
    else
        reply = provider.put(request, body);

    QCOMPARE(reply.value(QStringLiteral("id")).toString(), QStringLiteral("7"));
    QCOMPARE(m_server->requests().size(), 1);
    const HttpServer::Request& seen = m_server->requests().first();
    QCOMPARE(seen.method, method);
    QCOMPARE(seen.path, QStringLiteral("/items/7"));
    QCOMPARE(seen.query, QStringLiteral("x=1&y=two"));
    QCOMPARE(seen.header("Authorization"), QByteArray("Bearer tok"));
    QCOMPARE(seen.body, body);
    // The finished reply is released once control returns to the event loop.
    QTRY_VERIFY(m_view->networkAccessManager()->findChildren<QNetworkReply*>().isEmpty());
}

void TestProvider::helpersParseErrorBodies_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("error status keeps its JSON") << 401 << QByteArray(R"({"error":"invalid_token"})")
                                                 << QByteArray(R"({"error":"invalid_token"})");
    QTest::newRow("not JSON") << 200 << QByteArray("<html>gateway</html>") << QByteArray("{}");
    QTest::newRow("array document") << 200 << QByteArray(R"([{"id":1}])") << QByteArray("{}");
    QTest::newRow("empty body") << 204 << QByteArray() << QByteArray("{}");
    QTest::newRow("truncated") << 200 << QByteArray(R"({"id":"1",)") << QByteArray("{}");
    QTest::newRow("megabytes of text") << 200 << QByteArray(4 * 1024 * 1024, 'x') << QByteArray("{}");
}

void TestProvider::helpersParseErrorBodies()
{
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, expected);

    m_server->onJson("GET", QStringLiteral("/thing"), body, status);
    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    QCOMPARE(provider.get(QNetworkRequest(QUrl(m_server->baseUrl() + QStringLiteral("/thing")))), object(expected));
}

void TestProvider::helperWithoutManagerGivesEmptyObject()
{
    OpenProvider detached(nullptr, QStringLiteral("Test"));
    QVERIFY(detached.get(QNetworkRequest(QUrl(m_server->baseUrl()))).isEmpty());

    m_view->resetManager();
    OpenProvider provider(m_view.get(), QStringLiteral("Test"));
    QVERIFY(provider.post(QNetworkRequest(QUrl(m_server->baseUrl())), "a=b").isEmpty());
    QVERIFY(m_server->requests().isEmpty());

    // A refused connection ends like a missing reply.
    const quint16 closedPort = m_server->port();
    m_server.reset();
    FakeView view;
    OpenProvider refused(&view, QStringLiteral("Test"));
    QVERIFY(refused.get(QNetworkRequest(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(closedPort)))).isEmpty());
    m_server = std::make_unique<HttpServer>();
}

void TestProvider::formRequestAndEncoding()
{
    const QNetworkRequest request = OpenProvider::formRequest(QUrl(QStringLiteral("http://127.0.0.1/x")));
    QCOMPARE(request.header(QNetworkRequest::ContentTypeHeader).toString(),
             QStringLiteral("application/x-www-form-urlencoded"));
    QCOMPARE(OpenProvider::encoded(QStringLiteral("a&b=c d/é")), QStringLiteral("a%26b%3Dc%20d%2F%C3%A9"));
}

void TestProvider::baseOperationsDoNothing()
{
    OpenProvider provider(m_view.get(), QStringLiteral("Base"));
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.login(QStringLiteral("user"), QStringLiteral("secret")));
    QCOMPARE(provider.username(), QStringLiteral("user"));
    QCOMPARE(provider.password(), QStringLiteral("secret"));
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(provider.authorize(QUrl()));
    QVERIFY(provider.authorize(QUrl(QStringLiteral("http://localhost/oauth2callback?code=1"))));
    QVERIFY(provider.loadChannels());
    QVERIFY(provider.createEvent(EventInfo(), LiveChannel()));
    QVERIFY(provider.deleteEvent(LiveChannel()));
    QVERIFY(provider.updateEvent(EventInfo(), LiveChannel()));
    provider.setAccessToken(QStringLiteral("token"));
    QVERIFY(!provider.isAuthorized());
    QVERIFY(provider.revoke());
    QCOMPARE(provider.accessToken(), QStringLiteral("token"));
    provider.setLoggedIn(true);
    QVERIFY(provider.isLoggedIn());
    QCOMPARE(provider.features(), 0u);
    QCOMPARE(provider.features(true), 0u);
    QVERIFY(provider.icon().isNull());
    QVERIFY(provider.lastError().isEmpty());
    QCOMPARE(provider.nameBytes(), QByteArray("Base"));
    QVERIFY(m_view->openedUrls.isEmpty());
    QVERIFY(m_server->requests().isEmpty());
}

void TestProvider::streamUrlAndKeyAreTheCurrentChannels()
{
    OpenProvider provider(m_view.get(), QStringLiteral("Base"));
    provider.setStreamUrl(QStringLiteral("rtmp://a/live"));
    provider.setStreamKey(QStringLiteral("key"));
    QCOMPARE(provider.channel().url, QStringLiteral("rtmp://a/live"));
    QCOMPARE(provider.channel().key, QStringLiteral("key"));
    Channel channel;
    channel.key = QStringLiteral("other");
    provider.setChannel(channel);
    QCOMPARE(provider.streamKey(), QStringLiteral("other"));
    QVERIFY(provider.streamUrl().isEmpty());
}

void TestProvider::findChannelReturnsFirstMatch()
{
    OpenProvider provider(m_view.get(), QStringLiteral("Base"));
    LiveChannel first;
    first.name = QStringLiteral("Show");
    first.id = QStringLiteral("1");
    LiveChannel second = first;
    second.id = QStringLiteral("2");
    LiveChannel other;
    other.name = QStringLiteral("Other");
    provider.setChannels({other, first, second});

    LiveChannel* found = provider.findChannel(QStringLiteral("Show"));
    QVERIFY(found);
    QCOMPARE(found->id, QStringLiteral("1"));
    found->streamKey = QStringLiteral("changed");
    QCOMPARE(provider.channels().at(1).streamKey, QStringLiteral("changed"));
    QVERIFY(!provider.findChannel(QStringLiteral("show")));
    const Channel stored = found->toChannel(provider.name());
    QCOMPARE(stored.title, QStringLiteral("Show"));
    QCOMPARE(stored.id, QStringLiteral("1"));
    QCOMPARE(stored.provider, QStringLiteral("Base"));
    QCOMPARE(stored.key, QStringLiteral("changed"));
    QVERIFY(!provider.findChannel(QString()));
}

QTEST_MAIN(TestProvider)
#include "tst_provider.moc"
