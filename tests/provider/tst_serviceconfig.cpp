#include "serviceconfig.h"

#include <QSettings>
#include <QtTest>

class TestServiceConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { init(); }

    void names_data();
    void names();
    void everyKeyIsUniqueAndOnlyCredentialsLackADefault();
    void environmentBeforeSettingsBeforeDefault();
    void urlJoinsHostAndPath_data();
    void urlJoinsHostAndPath();
};

void TestServiceConfig::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName("QuillonTests");
    QCoreApplication::setApplicationName("tst_serviceconfig");
}

void TestServiceConfig::init()
{
    QSettings().clear();
    for (int index = 0; index < ServiceConfig::KeyCount; ++index)
        qunsetenv(ServiceConfig::environmentName(static_cast<ServiceConfig::Key>(index)).toLatin1().constData());
}

void TestServiceConfig::names_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("names"); // key name, environment variable, setting, default

    QTest::newRow("dailymotion api") << int(ServiceConfig::DailyMotionApi)
                                     << "dailymotion.api QUILLON_DAILYMOTION_API ql.service.dailymotion.api "
                                        "https://api.dailymotion.com";
    QTest::newRow("redirect") << int(ServiceConfig::OAuthRedirect)
                              << "oauth.redirect QUILLON_OAUTH_REDIRECT ql.service.oauth.redirect "
                                 "http://localhost/oauth2callback";
    QTest::newRow("hitbox revoke") << int(ServiceConfig::HitboxRevokeApi)
                                   << "hitbox.revokeapi QUILLON_HITBOX_REVOKEAPI ql.service.hitbox.revokeapi "
                                      "https://api.smashcast.tv";
}

void TestServiceConfig::names()
{
    QFETCH(int, key);
    QFETCH(QString, names);

    const auto k = static_cast<ServiceConfig::Key>(key);
    QCOMPARE(QStringList({ServiceConfig::keyName(k), ServiceConfig::environmentName(k), ServiceConfig::settingsKey(k),
                          ServiceConfig::value(k)})
                 .join(' '),
             names);
}

void TestServiceConfig::everyKeyIsUniqueAndOnlyCredentialsLackADefault()
{
    QSet<QString> names;
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        const QString name = ServiceConfig::keyName(key);
        QVERIFY2(name.contains('.') && !names.contains(name), qPrintable(name));
        names.insert(name);
        // No registered client id or secret is built in; every host is.
        const bool credential = name.endsWith(".clientid") || name.endsWith(".clientsecret");
        QVERIFY2(ServiceConfig::defaultValue(key).isEmpty() == credential, qPrintable(name));
    }
}

void TestServiceConfig::environmentBeforeSettingsBeforeDefault()
{
    const auto key = ServiceConfig::DailyMotionApi;
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
    // Other keys are untouched.
    QCOMPARE(ServiceConfig::value(ServiceConfig::DailyMotionWeb), QStringLiteral("https://www.dailymotion.com"));
}

void TestServiceConfig::urlJoinsHostAndPath_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("url"); // of the path "/videos?"

    QTest::newRow("plain") << "http://127.0.0.1:8080" << "http://127.0.0.1:8080/videos?";
    QTest::newRow("trailing slash") << "http://127.0.0.1:8080/" << "http://127.0.0.1:8080/videos?";
    QTest::newRow("host with a base path") << "http://127.0.0.1:8080/api/" << "http://127.0.0.1:8080/api/videos?";
}

void TestServiceConfig::urlJoinsHostAndPath()
{
    QFETCH(QString, host);
    QFETCH(QString, url);

    qputenv("QUILLON_HITBOX_API", host.toUtf8());
    QCOMPARE(ServiceConfig::url(ServiceConfig::HitboxApi, "/videos?").toString(), url);
}

QTEST_MAIN(TestServiceConfig)
#include "tst_serviceconfig.moc"
