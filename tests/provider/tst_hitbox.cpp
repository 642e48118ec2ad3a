#include "fakeview.h"
#include "hitbox.h"
#include "httpserver.h"
#include "serviceenvironment.h"

#include <QtTest>

class TestHitbox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void constructorValues();
    void loginLoadsIngestsAndKey();
    void loginFailures_data();
    void loginFailures();
    void revokeSendsTokenAndForgetsIt();
    void revokeErrorKeepsToken();

private:
    void serveHappyAccount();

    std::unique_ptr<HttpServer> m_server;
    std::unique_ptr<FakeView> m_view;
};

void TestHitbox::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestHitbox::init()
{
    m_server = std::make_unique<HttpServer>();
    m_view = std::make_unique<FakeView>();
    ServiceEnvironment::pointAt(m_server->baseUrl());
    qputenv("QUILLON_HITBOX_INGEST", "rtmp://127.0.0.1:1935");
}

void TestHitbox::cleanup()
{
    ServiceEnvironment::reset();
    m_view.reset();
    m_server.reset();
}

void TestHitbox::serveHappyAccount()
{
    m_server->onJson("POST", "/auth/login", R"({"user_name":"kai","authToken":"auth-7"})");
    m_server->onJson("GET", "/ingests/default_list",
                     R"({"list":[{"ingest_location":"EU West","ingest_url":"rtmp://eu.ingest.test/push"},
                                 {"ingest_location":"US East","ingest_url":"rtmp://us.ingest.test/push"}]})");
    m_server->onJson("GET", "/mediakey/kai", R"({"user_name":"kai","streamKey":"sk-99"})");
}

void TestHitbox::constructorValues()
{
    Hitbox provider(m_view.get());
    QCOMPARE(provider.name(), QStringLiteral("Smashcast API"));
    QCOMPARE(provider.features(), 0x00300EA1u);
    QVERIFY(provider.icon().isNull());
    QVERIFY(provider.clientId().isEmpty());
    QVERIFY(!provider.isAuthorized());
}

void TestHitbox::loginLoadsIngestsAndKey()
{
    serveHappyAccount();
    Hitbox provider(m_view.get());
    QVERIFY2(provider.login(QStringLiteral("kai"), QStringLiteral("pa ss")), qPrintable(provider.lastError()));
    QVERIFY(provider.isAuthorized());
    QCOMPARE(provider.accessToken(), QStringLiteral("auth-7"));

    const QList<HttpServer::Request> requests = m_server->requests();
    QCOMPARE(requests.size(), 3);
    QCOMPARE(requests.at(0).method, QByteArray("POST"));
    QCOMPARE(requests.at(0).path, QStringLiteral("/auth/login"));
    QCOMPARE(requests.at(0).header("Content-Type"), QByteArray("application/x-www-form-urlencoded"));
    QCOMPARE(requests.at(0).body, QByteArray("login=kai&pass=pa%20ss&app=desktop"));
    QCOMPARE(requests.at(1).method, QByteArray("GET"));
    QCOMPARE(requests.at(1).path, QStringLiteral("/ingests/default_list"));
    QCOMPARE(requests.at(2).path, QStringLiteral("/mediakey/kai"));
    QCOMPARE(requests.at(2).query, QStringLiteral("authToken=auth-7"));
    QCOMPARE(m_view->tags(), QStringList({"authorizeObj", "serverArray", "streamKeyObj"}));

    const QList<LabelPair> servers = provider.servers();
    QCOMPARE(servers.size(), 2);
    QCOMPARE(servers.at(0), LabelPair(QStringLiteral("EU West"), QStringLiteral("rtmp://eu.ingest.test/push")));
    QCOMPARE(servers.at(1).first, QStringLiteral("US East"));

    QCOMPARE(provider.channels().size(), 1);
    const LiveChannel channel = provider.channels().first();
    QCOMPARE(channel.watchUrl, m_server->baseUrl() + QStringLiteral("/kai"));
    QCOMPARE(channel.streamUrl, QStringLiteral("rtmp://127.0.0.1:1935/push"));
    QCOMPARE(channel.streamKey, QStringLiteral("kai?key=sk-99"));

    // Logging in again replaces, never appends.
    QVERIFY(provider.login(QStringLiteral("kai"), QStringLiteral("pa ss")));
    QCOMPARE(provider.servers().size(), 2);
    QCOMPARE(provider.channels().size(), 1);
}

void TestHitbox::loginFailures_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("lastError");

    const QString unreadable = QStringLiteral(",The service sent a reply that could not be read.");
    QTest::newRow("wrong password") << QByteArray("POST") << "/auth/login"
                                    << QByteArray(R"({"error_msg":"auth_failed"})") << "authorizeObj,\nauth_failed";
    QTest::newRow("token missing") << QByteArray("POST") << "/auth/login" << QByteArray(R"({"success":true})")
                                   << "authorizeObj" + unreadable;
    QTest::newRow("token is an object") << QByteArray("POST") << "/auth/login"
                                        << QByteArray(R"({"authToken":{"v":"x"}})") << "authorizeObj" + unreadable;
    QTest::newRow("ingests missing") << QByteArray("GET") << "/ingests/default_list" << QByteArray("{}")
                                     << "serverArray" + unreadable;
    QTest::newRow("ingests is an object") << QByteArray("GET") << "/ingests/default_list"
                                          << QByteArray(R"({"list":{"ingest_location":"EU"}})")
                                          << "serverArray" + unreadable;
    QTest::newRow("ingest is a string") << QByteArray("GET") << "/ingests/default_list"
                                        << QByteArray(R"({"list":["rtmp://x"]})") << "serverArray" + unreadable;
    QTest::newRow("ingest url is a number") << QByteArray("GET") << "/ingests/default_list"
                                            << QByteArray(R"({"list":[{"ingest_location":"EU","ingest_url":1}]})")
                                            << "serverArray" + unreadable;
    QTest::newRow("top-level array") << QByteArray("GET") << "/ingests/default_list"
                                     << QByteArray(R"([{"ingest_location":"EU","ingest_url":"rtmp://x"}])")
                                     << "serverArray" + unreadable;
    QTest::newRow("media key error") << QByteArray("GET") << "/mediakey/kai"
                                     << QByteArray(R"({"error":"X","error_description":"no key"})")
                                     << "streamKeyObj,X\nno key";
    QTest::newRow("media key empty") << QByteArray("GET") << "/mediakey/kai" << QByteArray(R"({"streamKey":""})")
                                     << "streamKeyObj" + unreadable;
}

void TestHitbox::loginFailures()
{
    QFETCH(QByteArray, method);
    QFETCH(QString, path);
    QFETCH(QByteArray, body);
    QFETCH(QString, lastError);

    serveHappyAccount();
    m_server->onJson(method, path, body);
    Hitbox provider(m_view.get());
    QVERIFY(!provider.login(QStringLiteral("kai"), QStringLiteral("pw")));
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(provider.channels().isEmpty());
    QVERIFY(!provider.isLoggedIn());
}

void TestHitbox::revokeSendsTokenAndForgetsIt()
{
    m_server->onJson("DELETE", "/oauthapps/masta/1", R"({"success":true})");
    Hitbox provider(m_view.get());
    provider.setAccessToken(QStringLiteral("auth-7"));
    QVERIFY(provider.isAuthorized());
    QVERIFY(provider.revoke());
    QVERIFY(!provider.isAuthorized());
    QVERIFY(provider.accessToken().isEmpty());

    QCOMPARE(m_server->requests().size(), 1);
    const HttpServer::Request& request = m_server->requests().first();
    QCOMPARE(request.method, QByteArray("DELETE"));
    QCOMPARE(request.target, QByteArray("/oauthapps/masta/1?authToken=auth-7"));
    QCOMPARE(m_view->tags(), QStringList({"revokeObj"}));
}

void TestHitbox::revokeErrorKeepsToken()
{
    m_server->onJson("DELETE", "/oauthapps/masta/1", R"({"error":{"message":"unknown token"}})", 404);
    Hitbox provider(m_view.get());
    provider.setAccessToken(QStringLiteral("auth-7"));
    QVERIFY(!provider.revoke());
    QCOMPARE(provider.lastError(), QStringLiteral("revokeObj,unknown token"));
    QCOMPARE(provider.accessToken(), QStringLiteral("auth-7"));
}

QTEST_MAIN(TestHitbox)
#include "tst_hitbox.moc"
