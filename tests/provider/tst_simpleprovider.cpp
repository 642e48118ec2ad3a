#include "custom.h"
#include "fakeview.h"
#include "httpserver.h"
#include "serviceenvironment.h"
#include "simpleprovider.h"

#include <QSettings>
#include <QtTest>

class TestSimpleProvider : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void keepsConstructorValues();
    void streamKeyFromSettings_data();
    void streamKeyFromSettings();
    void operationsSendNothing_data();
    void operationsSendNothing();
    void customServer();

private:
    HttpServer* m_server = nullptr;
};

void TestSimpleProvider::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("QuillonTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_simpleprovider"));
    m_server = new HttpServer(this);
    ServiceEnvironment::pointAt(m_server->baseUrl());
}

void TestSimpleProvider::init()
{
    QSettings().clear();
    m_server->clearRequests();
}

void TestSimpleProvider::cleanupTestCase()
{
    QSettings().clear();
    ServiceEnvironment::reset();
}

void TestSimpleProvider::keepsConstructorValues()
{
    FakeView view;
    const QList<LabelPair> servers = {{QStringLiteral("Main Server"), QStringLiteral("rtmp://a.test/live2")},
                                      {QStringLiteral("Backup Server"), QStringLiteral("rtmp://b.test/live2?backup=1")}};
    SimpleProvider provider(&view, 3601, QStringLiteral("YouTube"), QUrl(QStringLiteral("https://youtube.test")),
                            QString(), servers);
    QCOMPARE(provider.name(), QStringLiteral("YouTube"));
    QCOMPARE(provider.features(), 3601u);
    QCOMPARE(provider.features(true), 3601u);
    QCOMPARE(provider.homeUrl(), QUrl(QStringLiteral("https://youtube.test")));
    QCOMPARE(provider.servers(), servers);
    QVERIFY(provider.streamUrl().isEmpty());
    QVERIFY(provider.icon().isNull());

    SimpleProvider facebook(&view, 528, QStringLiteral("Facebook"), QUrl(QStringLiteral("https://facebook.test")),
                            QStringLiteral("rtmps://live.facebook.test:443/rtmp"), {});
    QCOMPARE(facebook.streamUrl(), QStringLiteral("rtmps://live.facebook.test:443/rtmp"));
    QCOMPARE(facebook.channel().url, facebook.streamUrl());
    QVERIFY(facebook.servers().isEmpty());
}

void TestSimpleProvider::streamKeyFromSettings_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("key");

    QVariantMap keys;
    keys.insert(QStringLiteral("Twitch"), QStringLiteral("live_123_abc"));
    keys.insert(QStringLiteral("Mixer"), QStringLiteral("other"));
    QTest::newRow("own entry") << QVariant(keys) << "live_123_abc";
    QVariantMap others;
    others.insert(QStringLiteral("Mixer"), QStringLiteral("other"));
    QTest::newRow("no entry for this service") << QVariant(others) << QString();
    QVariantMap caseOnly;
    caseOnly.insert(QStringLiteral("twitch"), QStringLiteral("lower"));
    QTest::newRow("name differs in case") << QVariant(caseOnly) << QString();
    QTest::newRow("nothing stored") << QVariant() << QString();
    QTest::newRow("not a map") << QVariant(QStringLiteral("live_123_abc")) << QString();
}

void TestSimpleProvider::streamKeyFromSettings()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, key);

    if (stored.isValid())
        QSettings().setValue(SimpleProvider::streamKeySetting, stored);
    FakeView view;
    SimpleProvider provider(&view, 3601, QStringLiteral("Twitch"), QUrl(), QString(), {});
    QCOMPARE(provider.streamKey(), key);
}

void TestSimpleProvider::operationsSendNothing_data()
{
    QTest::addColumn<bool>("custom");
    QTest::newRow("simple") << false;
    QTest::newRow("custom") << true;
}

void TestSimpleProvider::operationsSendNothing()
{
    QFETCH(bool, custom);
    FakeView view;
    std::unique_ptr<Provider> provider;
    if (custom)
        provider = std::make_unique<Custom>(&view);
    else
        provider = std::make_unique<SimpleProvider>(&view, 3601, QStringLiteral("Restream"), QUrl(), QString(),
                                                    QList<LabelPair>());
    QVERIFY(provider->login(QStringLiteral("user"), QStringLiteral("pw")));
    QVERIFY(provider->authorize(QUrl()));
    QVERIFY(provider->loadChannels());
    QVERIFY(provider->createEvent(EventInfo(), LiveChannel()));
    QVERIFY(provider->revoke());
    QVERIFY(!provider->isAuthorized());
    QVERIFY(!provider->isLoggedIn());
    QVERIFY(view.openedUrls.isEmpty());
    QVERIFY(view.messages.isEmpty());
    QVERIFY(m_server->requests().isEmpty());
}

void TestSimpleProvider::customServer()
{
    FakeView view;
    Custom provider(&view);
    QCOMPARE(provider.name(), QStringLiteral("Custom"));
    QCOMPARE(provider.features(), 0x0000F00Au);
    QVERIFY(provider.icon().isNull());
    QVERIFY(provider.clientId().isEmpty());
    QVERIFY(provider.clientSecret().isEmpty());
}

QTEST_MAIN(TestSimpleProvider)
#include "tst_simpleprovider.moc"
