#include "provider/custom.h"
#include "provider/savedaccount.h"
#include "provider/serviceconfig.h"
#include "provider/simpleprovider.h"
#include "support/servicefixture.h"

#include <QJsonDocument>
#include <QSettings>
#include <QNetworkReply>
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

} // namespace

class TestProvider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName("tst_provider");
    }
    void parseError_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("lastError"); // empty: no error, the earlier text stays

        const auto row = [](const char* reply, const char* lastError) { QTest::newRow(reply) << QByteArray(reply) << lastError; };
        row(R"({"error":"X","error_description":"Y"})", "tag,X\nY");
        row(R"({"error_description":"Y"})", "tag,\nY");
        row(R"({"error_msg":"M"})", "tag,\nM");
        row(R"({"error":"X","error_msg":"M"})", "tag,X\n");
        row(R"({"error":{"message":"inner"},"error_msg":"M"})", "tag,\nM");
        row(R"({"error":{"error_description":"D","message":"M"}})", "tag,D");
        for (const char* reply : {R"({"error":{}})", "{}", R"({"error":{"message":42}})", R"({"access_token":"abc","error_count":0})"})
            row(reply, "");
    }
    void parseError()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QString, lastError);
        OpenProvider provider(nullptr, "Test");
        provider.setLastError("earlier", "unchanged");
        QCOMPARE(provider.parseError(object(reply), "tag"), !lastError.isEmpty());
        QCOMPARE(provider.lastError(), lastError.isEmpty() ? QStringLiteral("earlier,unchanged") : lastError);
    }
    void noManagerOrNoServerGivesEmptyObject()
    {
        auto server = std::make_unique<HttpServer>();
        const QUrl url(server->baseUrl());
        // A finished reply is released once control returns to the event loop.
        FakeView used;
        QVERIFY(OpenProvider(&used, "Test").get(QNetworkRequest(url)).isEmpty());
        QTRY_VERIFY(used.networkAccessManager()->findChildren<QNetworkReply*>().isEmpty());
        server->clearRequests();
        QVERIFY(OpenProvider(nullptr, "Test").get(QNetworkRequest(url)).isEmpty());
        FakeView view;
        view.resetManager();
        QVERIFY(OpenProvider(&view, "Test").post(QNetworkRequest(url), "a=b").isEmpty());
        QVERIFY(server->requests().isEmpty());
        // A refused connection ends like a missing reply.
        server.reset();
        FakeView other;
        QVERIFY(OpenProvider(&other, "Test").get(QNetworkRequest(url)).isEmpty());
    }
    void providersWithoutApiSendNothing()
    {
        ServiceFixture f;
        Custom custom(&f.view);
        SimpleProvider simple(&f.view, 3601, "Restream", QUrl(), "rtmps://live.test:443/app", {});
        QCOMPARE(simple.streamUrl(), QStringLiteral("rtmps://live.test:443/app"));
        for (Provider* provider : {static_cast<Provider*>(&custom), static_cast<Provider*>(&simple)}) {
            // Every operation succeeds without asking anything of the service or the view.
            QVERIFY(provider->login("user", "pw") && provider->authorize(QUrl())
                    && provider->authorize(QUrl("http://localhost/oauth2callback?code=1")) && provider->loadChannels()
                    && provider->createEvent(EventInfo(), LiveChannel()) && provider->updateEvent(EventInfo(), LiveChannel())
                    && provider->deleteEvent(LiveChannel()) && provider->revoke());
            QCOMPARE(provider->username() + ':' + provider->password(), QStringLiteral("user:pw"));
            QVERIFY(!provider->isAuthorized() && !provider->isLoggedIn());
        }
        QVERIFY(f.view.openedUrls.isEmpty() && f.view.messages.isEmpty() && f.server.requests().isEmpty());
    }

    // A deployment registers its own clients: none is built in.
    void noClientCredentialIsBuiltIn()
    {
        for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
            const auto key = static_cast<ServiceConfig::Key>(index);
            const QString name = ServiceConfig::keyName(key);
            if (name.endsWith(".clientid") || name.endsWith(".clientsecret"))
                QVERIFY2(ServiceConfig::defaultValue(key).isEmpty(), qPrintable(name));
        }
    }

    void environmentBeforeSettingsBeforeDefault()
    {
        ServiceEnvironment::reset();
        const auto key = ServiceConfig::DailyMotionApi;
        QCOMPARE(ServiceConfig::settingsKey(key), QStringLiteral("ql.service.dailymotion.api"));
        QSettings().setValue(ServiceConfig::settingsKey(key), "http://127.0.0.1:9001");
        QCOMPARE(ServiceConfig::value(key), QStringLiteral("http://127.0.0.1:9001"));
        qputenv("QUILLON_DAILYMOTION_API", "http://127.0.0.1:9002");
        QCOMPARE(ServiceConfig::value(key), QStringLiteral("http://127.0.0.1:9002"));
        // An empty variable still overrides: it is how a deployment switches a value off.
        qputenv("QUILLON_DAILYMOTION_API", "");
        QCOMPARE(ServiceConfig::value(key), QString());
        qunsetenv("QUILLON_DAILYMOTION_API");
        QSettings().remove(ServiceConfig::settingsKey(key));
        QCOMPARE(ServiceConfig::value(key), QStringLiteral("https://api.dailymotion.com"));
    }

    void urlJoinsHostAndPath()
    {
        const QString plain = "http://127.0.0.1:8080/videos?";
        const QList<QPair<QByteArray, QString>> hosts{{"http://127.0.0.1:8080", plain},
                                                      {"http://127.0.0.1:8080/", plain},
                                                      {"http://127.0.0.1:8080/api/", "http://127.0.0.1:8080/api/videos?"}};
        for (const auto& [host, url] : hosts) {
            qputenv("QUILLON_HITBOX_API", host);
            QCOMPARE(ServiceConfig::url(ServiceConfig::HitboxApi, "/videos?").toString(), url);
        }
        qunsetenv("QUILLON_HITBOX_API");
    }

    void savedAccountComesBackWhole()
    {
        OpenProvider signedIn(nullptr, "Service");
        signedIn.setAccessToken("tok");
        signedIn.setRefreshToken("ref");
        signedIn.setUserId("u1");
        signedIn.setStreamKey("key");
        signedIn.setPageToken("pt");
        LiveChannel channel;
        channel.name = "Show";
        channel.ownerToken = "owner";
        channel.flags = LiveChannel::LiveNow;
        signedIn.setChannels({channel});
        signedIn.setPages({{"page-token", "7", "Page"}});
        signedIn.setEvents({EventInfo{"e1", "Show", "d", "SELF", "2025-01-01T10:00:00.000Z", "", "t", "25", "REGULAR"}});
        signedIn.setServers({{"EU", "rtmp://127.0.0.1/live"}});
        OpenProvider restored(nullptr, "Service");
        SavedAccount::apply(SavedAccount::toServerInfo(signedIn), &restored);
        QCOMPARE(SavedAccount::toServerInfo(restored).details, SavedAccount::toServerInfo(signedIn).details);
        QCOMPARE(restored.accessToken() + restored.refreshToken() + restored.userId() + restored.streamKey(),
                 QStringLiteral("tokrefu1key"));
        // A damaged file gives back what it can, and nothing of the wrong shape.
        ServerInfo damaged;
        damaged.details = object(R"({"Channels":[1,"x",{"Name":7}],"Pages":{},"Servers":[["only"]],"LoggedIn":"yes"})");
        SavedAccount::apply(damaged, &restored);
        QCOMPARE(restored.channels().size(), 1);
        QVERIFY(restored.channels().first().name.isEmpty() && restored.pages().isEmpty());
        QVERIFY(restored.servers().isEmpty() && !restored.isLoggedIn() && restored.accessToken().isEmpty());
    }
};

QTEST_MAIN(TestProvider)
#include "tst_provider.moc"
