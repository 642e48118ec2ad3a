#include "serviceconfig.h"

#include <QSettings>
#include <QtTest>

class TestServiceConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void names_data();
    void names();
    void everyKeyHasAUniqueName();
    void credentialsHaveNoDefault();
    void lookupOrder();
    void urlJoinsHostAndPath_data();
    void urlJoinsHostAndPath();
};

void TestServiceConfig::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("QuillonTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_serviceconfig"));
}

void TestServiceConfig::init()
{
    QSettings().clear();
    for (int index = 0; index < ServiceConfig::KeyCount; ++index)
        qunsetenv(ServiceConfig::environmentName(static_cast<ServiceConfig::Key>(index)).toLatin1().constData());
}

void TestServiceConfig::cleanupTestCase()
{
    init();
}

void TestServiceConfig::names_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("defaultValue");

    QTest::newRow("dailymotion api") << int(ServiceConfig::DailyMotionApi) << "dailymotion.api"
                                     << "QUILLON_DAILYMOTION_API" << "ql.service.dailymotion.api"
                                     << "https://api.dailymotion.com";
    QTest::newRow("redirect") << int(ServiceConfig::OAuthRedirect) << "oauth.redirect" << "QUILLON_OAUTH_REDIRECT"
                              << "ql.service.oauth.redirect" << "http://localhost/oauth2callback";
    QTest::newRow("hitbox revoke") << int(ServiceConfig::HitboxRevokeApi) << "hitbox.revokeapi"
                                   << "QUILLON_HITBOX_REVOKEAPI" << "ql.service.hitbox.revokeapi"
                                   << "https://api.smashcast.tv";
    QTest::newRow("ustream web") << int(ServiceConfig::UStreamWeb) << "ustream.web" << "QUILLON_USTREAM_WEB"
                                 << "ql.service.ustream.web" << "https://www.ustream.tv";
    QTest::newRow("twitch irc") << int(ServiceConfig::TwitchIrc) << "twitch.irc" << "QUILLON_TWITCH_IRC"
                                << "ql.service.twitch.irc" << "irc.chat.twitch.tv";
}

void TestServiceConfig::names()
{
    QFETCH(int, key);
    QFETCH(QString, name);
    QFETCH(QString, environment);
    QFETCH(QString, setting);
    QFETCH(QString, defaultValue);

    const auto configKey = static_cast<ServiceConfig::Key>(key);
    QCOMPARE(ServiceConfig::keyName(configKey), name);
    QCOMPARE(ServiceConfig::environmentName(configKey), environment);
    QCOMPARE(ServiceConfig::settingsKey(configKey), setting);
    QCOMPARE(ServiceConfig::defaultValue(configKey), defaultValue);
    QCOMPARE(ServiceConfig::value(configKey), defaultValue);
}

void TestServiceConfig::everyKeyHasAUniqueName()
{
    QSet<QString> names;
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const QString name = ServiceConfig::keyName(static_cast<ServiceConfig::Key>(index));
        QVERIFY2(name.contains(QLatin1Char('.')), qPrintable(name));
        QVERIFY2(!names.contains(name), qPrintable(name));
        names.insert(name);
    }
}

void TestServiceConfig::credentialsHaveNoDefault()
{
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        const QString name = ServiceConfig::keyName(key);
        if (name.endsWith(QLatin1String(".clientid")) || name.endsWith(QLatin1String(".clientsecret")))
            QVERIFY2(ServiceConfig::defaultValue(key).isEmpty(), qPrintable(name));
        else
            QVERIFY2(!ServiceConfig::defaultValue(key).isEmpty(), qPrintable(name));
    }
}

void TestServiceConfig::lookupOrder()
{
    const auto key = ServiceConfig::DailyMotionApi;
    QSettings().setValue(ServiceConfig::settingsKey(key), QStringLiteral("http://127.0.0.1:9001"));
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
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("url");

    QTest::newRow("plain") << "http://127.0.0.1:8080" << "/video/x1?fields=a" << "http://127.0.0.1:8080/video/x1?fields=a";
    QTest::newRow("trailing slash") << "http://127.0.0.1:8080/" << "/videos?" << "http://127.0.0.1:8080/videos?";
    QTest::newRow("host with a base path") << "http://127.0.0.1:8080/api/" << "/auth/login"
                                           << "http://127.0.0.1:8080/api/auth/login";
}

void TestServiceConfig::urlJoinsHostAndPath()
{
    QFETCH(QString, host);
    QFETCH(QString, path);
    QFETCH(QString, url);

    qputenv("QUILLON_HITBOX_API", host.toUtf8());
    QCOMPARE(ServiceConfig::url(ServiceConfig::HitboxApi, path).toString(), url);
}

QTEST_MAIN(TestServiceConfig)
#include "tst_serviceconfig.moc"
