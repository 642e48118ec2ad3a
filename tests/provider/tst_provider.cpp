#include "provider/custom.h"
#include "provider/dailymotion.h"
#include "provider/hitbox.h"
#include "provider/simpleprovider.h"
#include "provider/ustream.h"
#include "support/servicefixture.h"

#include <QJsonDocument>
#include <QNetworkReply>
#include <QSettings>
#include <QtTest>

namespace {

// Reaches the protected helpers the services use.
class OpenProvider : public Provider
{
public:
    using Provider::Provider;
    using Provider::deleteResource;
    using Provider::get;
    using Provider::parseError;
    using Provider::post;
    using Provider::put;
    using Provider::setLastError;
};

QJsonObject object(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

// name|features|features(true)|icon|client id:secret|stream URL
QString identity(const Provider& p)
{
    return QStringList{p.name(), QString::number(p.features(), 16), QString::number(p.features(true), 16),
                       p.icon().isNull() ? "" : "icon", p.clientId() + ':' + p.clientSecret(), p.streamUrl()}
        .join('|');
}

} // namespace

class TestProvider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void parseError_data();
    void parseError();
    void requestHelpers_data();
    void requestHelpers();
    void noManagerOrNoServerGivesEmptyObject();
    void findChannelReturnsFirstMatch();

    void serviceIdentities();
    void streamKeyFromSettings();
    void providersWithoutApiSendNothing();
};

void TestProvider::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("QuillonTests");
    QCoreApplication::setApplicationName("tst_provider");
}

void TestProvider::parseError_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("lastError"); // empty: no error, the earlier text stays

    const auto row = [](const char* name, const char* reply, const char* tag, const char* lastError) {
        QTest::newRow(name) << QByteArray(reply) << tag << lastError;
    };
    row("error and description", R"({"error":"X","error_description":"Y"})", "channelObj", "channelObj,X\nY");
    row("error string alone", R"({"error":"invalid_grant"})", "authorize", "authorize,invalid_grant\n");
    row("description alone", R"({"error_description":"Y"})", "videoObj", "videoObj,\nY");
    row("error_msg alone keeps empty error", R"({"error_msg":"M"})", "streamKeyObj", "streamKeyObj,\nM");
    row("error string wins over error_msg", R"({"error":"X","error_msg":"M"})", "t", "t,X\n");
    row("description wins over error_msg", R"({"error_description":"D","error_msg":"M"})", "t", "t,\nD");
    row("object error with error_msg", R"({"error":{"message":"inner"},"error_msg":"M"})", "t", "t,\nM");
    row("object with description", R"({"error":{"error_description":"D"}})", "revokeObj", "revokeObj,D");
    row("object with message", R"({"error":{"code":401,"message":"M"}})", "revokeObj", "revokeObj,M");
    row("object description before message", R"({"error":{"error_description":"D","message":"M"}})", "t", "t,D");
    row("object empty description uses message", R"({"error":{"error_description":"","message":"M"}})", "t", "t,M");
    row("empty object", R"({"error":{}})", "t", "");
    row("empty reply", "{}", "t", "");
    row("object with empty message", R"({"error":{"message":""}})", "t", "");
    row("object with numeric message", R"({"error":{"message":42}})", "t", "");
    row("numeric error", R"({"error":401})", "t", "");
    row("array error", R"({"error":["X"]})", "t", "");
    row("null error", R"({"error":null})", "t", "");
    row("numeric description", R"({"error_description":5})", "t", "");
    row("success data", R"({"access_token":"abc","error_count":0})", "t", "");
}

void TestProvider::parseError()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, tag);
    QFETCH(QString, lastError);

    OpenProvider provider(nullptr, "Test");
    provider.setLastError("earlier", "unchanged");
    QCOMPARE(provider.parseError(object(reply), tag), !lastError.isEmpty());
    QCOMPARE(provider.lastError(), lastError.isEmpty() ? QStringLiteral("earlier,unchanged") : lastError);
}

void TestProvider::requestHelpers_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("expected");

    const QByteArray item = R"({"id":"7","list":[1,2]})";
    QTest::newRow("get") << QByteArray("GET") << QByteArray() << 200 << item << item;
    QTest::newRow("delete") << QByteArray("DELETE") << QByteArray() << 200 << item << item;
    QTest::newRow("post") << QByteArray("POST") << QByteArray("a=1&b=two") << 200 << item << item;
    QTest::newRow("put") << QByteArray("PUT") << QByteArray(R"({"k":"v"})") << 200 << item << item;
    const QByteArray error = R"({"error":"invalid_token"})";
    QTest::newRow("error status keeps its JSON") << QByteArray("GET") << QByteArray() << 401 << error << error;
    const auto empty = [](const char* name, int status, const QByteArray& reply) {
        QTest::newRow(name) << QByteArray("GET") << QByteArray() << status << reply << QByteArray("{}");
    };
    empty("not JSON", 200, "<html>gateway</html>");
    empty("array document", 200, R"([{"id":1}])");
    empty("empty body", 204, QByteArray());
    empty("truncated", 200, R"({"id":"1",)");
    empty("megabytes of text", 200, QByteArray(4 * 1024 * 1024, 'x'));
}

void TestProvider::requestHelpers()
{
    QFETCH(QByteArray, method);
    QFETCH(QByteArray, body);
    QFETCH(int, status);
    QFETCH(QByteArray, reply);
    QFETCH(QByteArray, expected);

    HttpServer server;
    FakeView view;
    server.onJson(method, "/items/7", reply, status);
    OpenProvider provider(&view, "Test");
    QNetworkRequest request(QUrl(server.baseUrl() + "/items/7?x=1&y=two"));
    request.setRawHeader("Authorization", "Bearer tok");
    const QJsonObject answer = method == "GET"      ? provider.get(request)
                               : method == "DELETE" ? provider.deleteResource(request)
                               : method == "POST"   ? provider.post(request, body)
                                                    : provider.put(request, body);
    QCOMPARE(answer, object(expected));
    QCOMPARE(server.requests().size(), 1);
    const HttpServer::Request& seen = server.requests().first();
    QCOMPARE(seen.method + ' ' + seen.target, method + " /items/7?x=1&y=two");
    QCOMPARE(seen.header("Authorization"), QByteArray("Bearer tok"));
    QCOMPARE(seen.body, body);
    // The finished reply is released once control returns to the event loop.
    QTRY_VERIFY(view.networkAccessManager()->findChildren<QNetworkReply*>().isEmpty());
}

void TestProvider::noManagerOrNoServerGivesEmptyObject()
{
    auto server = std::make_unique<HttpServer>();
    const QUrl url(server->baseUrl());
    OpenProvider detached(nullptr, "Test");
    QVERIFY(detached.get(QNetworkRequest(url)).isEmpty());

    FakeView view;
    view.resetManager();
    OpenProvider provider(&view, "Test");
    QVERIFY(provider.post(QNetworkRequest(url), "a=b").isEmpty());
    QVERIFY(server->requests().isEmpty());

    // A refused connection ends like a missing reply.
    server.reset();
    FakeView other;
    OpenProvider refused(&other, "Test");
    QVERIFY(refused.get(QNetworkRequest(url)).isEmpty());
}

void TestProvider::findChannelReturnsFirstMatch()
{
    OpenProvider provider(nullptr, "Base");
    LiveChannel other, first, second;
    other.name = "Other";
    first.name = second.name = "Show";
    first.id = "1";
    second.id = "2";
    provider.setChannels({other, first, second});

    LiveChannel* found = provider.findChannel("Show");
    QVERIFY(found && found->id == "1");
    found->streamKey = "changed"; // the entry itself, not a copy
    QCOMPARE(provider.channels().at(1).streamKey, QStringLiteral("changed"));
    QVERIFY(!provider.findChannel("show"));
    QVERIFY(!provider.findChannel(QString()));
}

void TestProvider::serviceIdentities()
{
    ServiceFixture f;
    QCOMPARE(identity(UStream(&f.view)), QStringLiteral("UStream|3102a4|3102a4|icon|test-client:test-secret|"));
    QCOMPARE(identity(DailyMotion(&f.view)),
             QStringLiteral("DailyMotion|213f03a4|213f03a4|icon|test-client:test-secret|"));
    QCOMPARE(identity(Hitbox(&f.view)), QStringLiteral("Smashcast API|300ea1|300ea1||:|"));
    QCOMPARE(identity(Custom(&f.view)), QStringLiteral("Custom|f00a|f00a||:|"));
    // The stream URL of a service without API is its channel's.
    QCOMPARE(identity(SimpleProvider(&f.view, 3601, "Restream", QUrl(), "rtmps://live.test:443/app", {})),
             QStringLiteral("Restream|e11|e11||:|rtmps://live.test:443/app"));
}

void TestProvider::streamKeyFromSettings()
{
    // What "ql.stream.key" holds, and the key a service named "Twitch" starts with.
    const QList<QPair<QVariant, QString>> cases{
        {QVariantMap{{"Twitch", "live_123_abc"}, {"Mixer", "other"}}, "live_123_abc"},
        {QVariantMap{{"Mixer", "other"}}, QString()},
        {QVariantMap{{"twitch", "lower"}}, QString()}, // the name differs in case
        {QVariant(), QString()},
        {QVariant("live_123_abc"), QString()}}; // not a map
    for (const auto& [stored, key] : cases) {
        QSettings().setValue(SimpleProvider::streamKeySetting, stored);
        QCOMPARE(SimpleProvider(nullptr, 3601, "Twitch", QUrl(), QString(), {}).streamKey(), key);
    }
    QSettings().clear();
}

void TestProvider::providersWithoutApiSendNothing()
{
    ServiceFixture f;
    Custom custom(&f.view);
    SimpleProvider simple(&f.view, 3601, "Restream", QUrl(), QString(), {});
    for (Provider* provider : {static_cast<Provider*>(&custom), static_cast<Provider*>(&simple)}) {
        // Every operation succeeds without asking anything of the service or the view.
        QVERIFY(provider->login("user", "pw") && provider->authorize(QUrl())
                && provider->authorize(QUrl("http://localhost/oauth2callback?code=1")) && provider->loadChannels()
                && provider->createEvent(EventInfo(), LiveChannel())
                && provider->updateEvent(EventInfo(), LiveChannel()) && provider->deleteEvent(LiveChannel())
                && provider->revoke());
        QCOMPARE(provider->username() + ':' + provider->password(), QStringLiteral("user:pw"));
        QVERIFY(!provider->isAuthorized() && !provider->isLoggedIn());
    }
    QVERIFY(f.view.openedUrls.isEmpty());
    QVERIFY(f.view.messages.isEmpty());
    QVERIFY(f.server.requests().isEmpty());
}

QTEST_MAIN(TestProvider)
#include "tst_provider.moc"
