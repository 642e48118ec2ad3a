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
    QTest::addColumn<QString>("lastError"); // a tag alone: the reply could not be read

    const auto row = [](const char* name, const char* route, const QByteArray& reply, const char* lastError) {
        QTest::newRow(name) << route << reply << lastError;
    };
    const char *login = "POST /auth/login", *ingests = "GET /ingests/default_list", *key = "GET /mediakey/kai";
    row("wrong password", login, R"({"error_msg":"auth_failed"})", "authorizeObj,\nauth_failed");
    row("token missing", login, R"({"success":true})", "authorizeObj");
    row("token is an object", login, R"({"authToken":{"v":"x"}})", "authorizeObj");
    row("ingests missing", ingests, "{}", "serverArray");
    row("ingests is an object", ingests, R"({"list":{"ingest_location":"EU"}})", "serverArray");
    row("ingest is a string", ingests, R"({"list":["rtmp://x"]})", "serverArray");
    row("ingest url is a number", ingests, R"({"list":[{"ingest_location":"EU","ingest_url":1}]})", "serverArray");
    row("top-level array", ingests, R"([{"ingest_location":"EU","ingest_url":"rtmp://x"}])", "serverArray");
    row("media key error", key, R"({"error":"X","error_description":"no key"})", "streamKeyObj,X\nno key");
    row("media key empty", key, R"({"streamKey":""})", "streamKeyObj");
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
    QCOMPARE(provider.lastError(), expectedError(lastError));
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
