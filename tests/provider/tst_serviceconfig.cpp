#include "provider/serviceconfig.h"

#include <QSettings>
#include <QtTest>

class TestServiceConfig : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName("tst_serviceconfig");
        QSettings().clear();
        for (int index = 0; index < ServiceConfig::KeyCount; ++index)
            qunsetenv(ServiceConfig::environmentName(static_cast<ServiceConfig::Key>(index)).toLatin1().constData());
    }
    void cleanupTestCase() { init(); }

    void onlyCredentialsAndTablesLackADefault()
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

    void environmentBeforeSettingsBeforeDefault()
    {
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
    }
};

QTEST_MAIN(TestServiceConfig)
#include "tst_serviceconfig.moc"
