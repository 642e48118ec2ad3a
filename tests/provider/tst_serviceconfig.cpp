#include "provider/serviceconfig.h"

#include <QSettings>
#include <QtTest>

class TestServiceConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase() { init(); }

    void names();
    void everyKeyIsUniqueAndOnlyCredentialsAndTablesLackADefault();
    void environmentBeforeSettingsBeforeDefault();
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

void TestServiceConfig::names()
{
    // key name, environment variable, setting, default
    const auto names = [](ServiceConfig::Key k) {
        return QStringList{ServiceConfig::keyName(k), ServiceConfig::environmentName(k), ServiceConfig::settingsKey(k),
                           ServiceConfig::value(k)};
    };
    QCOMPARE(names(ServiceConfig::DailyMotionApi), QStringList({"dailymotion.api", "QUILLON_DAILYMOTION_API",
                                                                "ql.service.dailymotion.api",
                                                                "https://api.dailymotion.com"}));
    QCOMPARE(names(ServiceConfig::OAuthRedirect), QStringList({"oauth.redirect", "QUILLON_OAUTH_REDIRECT",
                                                               "ql.service.oauth.redirect",
                                                               "http://localhost/oauth2callback"}));
    QCOMPARE(names(ServiceConfig::HitboxRevokeApi), QStringList({"hitbox.revokeapi", "QUILLON_HITBOX_REVOKEAPI",
                                                                 "ql.service.hitbox.revokeapi",
                                                                 "https://api.smashcast.tv"}));
}

void TestServiceConfig::everyKeyIsUniqueAndOnlyCredentialsAndTablesLackADefault()
{
    QSet<QString> names;
    for (int index = 0; index < ServiceConfig::KeyCount; ++index) {
        const auto key = static_cast<ServiceConfig::Key>(index);
        const QString name = ServiceConfig::keyName(key);
        QVERIFY2(name.contains('.') && !names.contains(name), qPrintable(name));
        names.insert(name);
        // No registered client id or secret is built in; every host is. An ingest table
        // override is empty unless a deployment replaces the built-in table.
        const bool empty = name.endsWith(".clientid") || name.endsWith(".clientsecret") || name.endsWith(".servers");
        QVERIFY2(ServiceConfig::defaultValue(key).isEmpty() == empty, qPrintable(name));
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

void TestServiceConfig::urlJoinsHostAndPath()
{
    const QString plain = "http://127.0.0.1:8080/videos?";
    const QList<QPair<QByteArray, QString>> hosts{{"http://127.0.0.1:8080", plain},
                                                  {"http://127.0.0.1:8080/", plain},
                                                  {"http://127.0.0.1:8080/api/", "http://127.0.0.1:8080/api/videos?"}};
    for (const auto& [host, url] : hosts) {
        qputenv("QUILLON_HITBOX_API", host);
        QCOMPARE(ServiceConfig::url(ServiceConfig::HitboxApi, "/videos?").toString(), url);
    }
}

QTEST_MAIN(TestServiceConfig)
#include "tst_serviceconfig.moc"
