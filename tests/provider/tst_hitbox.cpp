#include "hitbox.h"
#include "servicefixture.h"

#include <QtTest>

namespace {
void serveAccount(ServiceFixture& f)
{
    qputenv("QUILLON_HITBOX_INGEST", "rtmp://127.0.0.1:1935");
    f.serve({{"POST /auth/login", R"({"user_name":"kai","authToken":"auth-7"})"},
             {"GET /ingests/default_list",
              R"({"list":[{"ingest_location":"EU West","ingest_url":"rtmp://eu.ingest.test/push"},)"
              R"(          {"ingest_location":"US East","ingest_url":"rtmp://us.ingest.test/push"}]})"},
             {"GET /mediakey/kai", R"({"user_name":"kai","streamKey":"sk-99"})"}});
}
} // namespace

class TestHitbox : public QObject
{
    Q_OBJECT

private slots:
    void loginLoadsIngestsAndKey();
    void loginFailures_data();
    void loginFailures();
    void revoke_data();
    void revoke();
};

void TestHitbox::loginLoadsIngestsAndKey()
{
    ServiceFixture f;
    serveAccount(f);
    Hitbox provider(&f.view);
    QVERIFY2(provider.login("kai", "pa ss"), qPrintable(provider.lastError()));
    QVERIFY(provider.isAuthorized());
    QCOMPARE(provider.accessToken(), QStringLiteral("auth-7"));
    QCOMPARE(f.requestLines(), QStringList({"POST /auth/login | form login=kai&pass=pa%20ss&app=desktop",
                                            "GET /ingests/default_list", "GET /mediakey/kai?authToken=auth-7"}));
    QCOMPARE(f.view.tags(), QStringList({"authorizeObj", "serverArray", "streamKeyObj"}));

    const QList<LabelPair> servers{{"EU West", "rtmp://eu.ingest.test/push"}, {"US East", "rtmp://us.ingest.test/push"}};
    const QStringList channels{"kai|kai||" + f.server.baseUrl() + "/kai|rtmp://127.0.0.1:1935/push|kai?key=sk-99"};
    QCOMPARE(provider.servers(), servers);
    QCOMPARE(describe(provider.channels()), channels);

    // Logging in again replaces, never appends.
    QVERIFY(provider.login("kai", "pa ss"));
    QCOMPARE(provider.servers(), servers);
    QCOMPARE(describe(provider.channels()), channels);
}

void TestHitbox::loginFailures_data()
{
    QTest::addColumn<QString>("route");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError");

    const QString login = "POST /auth/login", ingests = "GET /ingests/default_list", key = "GET /mediakey/kai";
    const QString badLogin = "authorizeObj" + unreadableReply, badIngests = "serverArray" + unreadableReply;
    QTest::newRow("wrong password") << login << QByteArray(R"({"error_msg":"auth_failed"})") << "authorizeObj,\nauth_failed";
    QTest::newRow("token missing") << login << QByteArray(R"({"success":true})") << badLogin;
    QTest::newRow("token is an object") << login << QByteArray(R"({"authToken":{"v":"x"}})") << badLogin;
    QTest::newRow("ingests missing") << ingests << QByteArray("{}") << badIngests;
    QTest::newRow("ingests is an object") << ingests << QByteArray(R"({"list":{"ingest_location":"EU"}})") << badIngests;
    QTest::newRow("ingest is a string") << ingests << QByteArray(R"({"list":["rtmp://x"]})") << badIngests;
    QTest::newRow("ingest url is a number")
        << ingests << QByteArray(R"({"list":[{"ingest_location":"EU","ingest_url":1}]})") << badIngests;
    QTest::newRow("top-level array")
        << ingests << QByteArray(R"([{"ingest_location":"EU","ingest_url":"rtmp://x"}])") << badIngests;
    QTest::newRow("media key error") << key << QByteArray(R"({"error":"X","error_description":"no key"})")
                                     << "streamKeyObj,X\nno key";
    QTest::newRow("media key empty") << key << QByteArray(R"({"streamKey":""})") << "streamKeyObj" + unreadableReply;
}

void TestHitbox::loginFailures()
{
    QFETCH(QString, route);
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

    ServiceFixture f;
    serveAccount(f);
    f.serve({{route, reply}});
    Hitbox provider(&f.view);
    QVERIFY(!provider.login("kai", "pw"));
    QCOMPARE(provider.lastError(), lastError);
    QVERIFY(provider.channels().isEmpty());
    QVERIFY(!provider.isLoggedIn());
    QVERIFY(f.requestLines().last().startsWith(route));
}

void TestHitbox::revoke_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("lastError"); // empty: revoked, token forgotten

    QTest::newRow("revoked") << QByteArray(R"({"success":true})") << QString();
    QTest::newRow("refused keeps the token") << QByteArray(R"({"error":{"message":"unknown token"}})")
                                             << "revokeObj,unknown token";
}

void TestHitbox::revoke()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, lastError);

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

QTEST_MAIN(TestHitbox)
#include "tst_hitbox.moc"
