#include "streamingmanager.h"
#include "tempstores.h"
#include "testkit.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <sys/stat.h>

using namespace TestKit;

Q_DECLARE_METATYPE(Channel)
Q_DECLARE_METATYPE(OAuth)

namespace {

Channel srtChannel(const QString& title)
{
    return Channel{"UC123", "Custom", title, {}, "srt://ingest.example.test:9000", "key-1", {}, {}, "caller", "none",
                   9000,    120,      32,    "secret phrase", "#!::r=live"};
}

OAuth account(bool authorized)
{
    return OAuth{"account", "Custom", "access", "refresh", "operator", "p\u00e4ss\"word", authorized};
}

ChatDesc chatLine(int n)
{
    ChatDesc desc;
    desc.author = QString("viewer%1").arg(n);
    desc.message = QString("message %1").arg(n);
    return desc;
}

int modeBits(const QString& path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

} // namespace

class TestStreamingManager : public QObject
{
    Q_OBJECT

private slots:
    void roundTripKeepsTheStoredFields_data();
    void roundTripKeepsTheStoredFields();
    void handWrittenAuthrizedIsKeptOnRewrite();
    void serverFilesAreOwnerOnly();
    void linksInTheStoreAreNotWrittenThrough();
    void chatBufferKeepsTheNewest_data();
    void chatBufferKeepsTheNewest();
    void copiesLeaveTheInstanceAlone();
};

void TestStreamingManager::roundTripKeepsTheStoredFields_data()
{
    QTest::addColumn<Channel>("channel");
    QTest::addColumn<OAuth>("oauth");
    QTest::newRow("authorised SRT") << srtChannel("Main") << account(true);
    QTest::newRow("empty strings") << Channel{{}, {}, "Bare", {}, {}, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}} << OAuth{};
}

void TestStreamingManager::roundTripKeepsTheStoredFields()
{
    QFETCH(Channel, channel);
    QFETCH(OAuth, oauth);

    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    QVERIFY(manager.write(channel, oauth));
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);
    const ServerInfo info = manager.serverInfos().first();
    // Provider identities and tokens are not part of a saved server.
    Channel expected = channel;
    expected.id.clear();
    const auto fields = [](const Channel& c, const OAuth& o) {
        return QStringList{c.title,    c.url,       c.key,        c.mode,         c.filter,   QString::number(c.port),
                           QString::number(c.latency), QString::number(c.keyLength), c.passphrase, c.streamId,
                           o.username, o.password,  QString::number(o.authorized), o.accessToken, c.id};
    };
    OAuth expectedAccount{{}, {}, {}, {}, oauth.username, oauth.password, oauth.authorized};
    QCOMPARE(fields(info.channel, info.oauth), fields(expected, expectedAccount));

    // The file's members, in this order, with the system's own spelling of "Authrized".
    const QByteArray text = readFile(stores.serverDir() + '/' + channel.title + ".json");
    QStringList keys;
    for (auto it = QRegularExpression("\"(\\w+)\":").globalMatch(QString::fromUtf8(text)); it.hasNext();)
        keys << it.next().captured(1);
    QCOMPARE(keys.join(' '), QStringLiteral("Title StreamUrl StreamKey Authrized UserId UserPw Mode Filter Port "
                                            "Latency KeyLength Passphrase StreamID"));
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    QCOMPARE(object.value("Authrized"), QJsonValue(oauth.authorized));
    QCOMPARE(object.value("Port"), QJsonValue(channel.port));
}

void TestStreamingManager::handWrittenAuthrizedIsKeptOnRewrite()
{
    TempStores stores;
    stores.writeServerFile("Studio.json", R"({"Title":"Studio","StreamUrl":"rtmp://a.test/live","StreamKey":"k",
                                              "Authrized":true,"UserId":"me","UserPw":"pw"})");
    StreamingManager& manager = stores.streamingManager();
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);
    const ServerInfo info = manager.serverInfos().first();
    QVERIFY(info.oauth.authorized);
    QCOMPARE(info.oauth.username, QStringLiteral("me"));

    QVERIFY(manager.write(info.channel, info.oauth));
    const QJsonObject object = QJsonDocument::fromJson(readFile(stores.serverDir() + "/Studio.json")).object();
    QCOMPARE(object.value("Authrized"), QJsonValue(true));
    QVERIFY(!object.contains("Authorized"));
}

void TestStreamingManager::serverFilesAreOwnerOnly()
{
    TempStores stores;
    const QString path = stores.serverDir() + "/Main.json";
    QVERIFY(stores.streamingManager().write(srtChannel("Main"), account(true)));
    QCOMPARE(modeBits(path), 0600);

    // An older, world-readable file is tightened when it is saved again.
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    QCOMPARE(modeBits(path), 0644);
    QVERIFY(stores.streamingManager().write(srtChannel("Main"), account(false)));
    QCOMPARE(modeBits(path), 0600);

    // So is a title that has to be changed to make a file name.
    QVERIFY(stores.streamingManager().write(srtChannel("../a/b"), account(true)));
    for (const QString& file : entries(stores.serverDir()))
        QCOMPARE(modeBits(stores.serverDir() + '/' + file), 0600);
}

void TestStreamingManager::linksInTheStoreAreNotWrittenThrough()
{
    TempStores stores;
    const QString outside = stores.root() + "/elsewhere.txt";
    const QString link = stores.serverDir() + "/Main.json";
    QVERIFY(writeFile(outside, "not a server"));
    QVERIFY(QFile::link(outside, link));

    QVERIFY(stores.streamingManager().write(srtChannel("Main"), account(true)));
    QCOMPARE(readFile(outside), QByteArray("not a server"));
    QVERIFY(QFileInfo(link).isFile() && !QFileInfo(link).isSymLink());
    QCOMPARE(modeBits(link), 0600);

    // Removing goes no further than the store either.
    QVERIFY(QFile::remove(link));
    QVERIFY(QFile::link(outside, link));
    QVERIFY(stores.streamingManager().remove("Main"));
    QCOMPARE(readFile(outside), QByteArray("not a server"));
}

void TestStreamingManager::chatBufferKeepsTheNewest_data()
{
    QTest::addColumn<int>("pushed");
    QTest::addColumn<int>("oldest");
    QTest::newRow("twenty") << 20 << 1;
    QTest::newRow("twenty-one pushes the first out") << 21 << 2;
    QTest::newRow("fifty") << 50 << 31;
}

void TestStreamingManager::chatBufferKeepsTheNewest()
{
    QFETCH(int, pushed);
    QFETCH(int, oldest);

    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    for (int n = 1; n <= pushed; ++n)
        manager.setChatBuffer(chatLine(n));
    QCOMPARE(manager.chatDescs().size(), 20);
    QCOMPARE(manager.chatDescs().first().message, chatLine(oldest).message);
    QCOMPARE(manager.chatDescs().last().message, chatLine(pushed).message);
}

void TestStreamingManager::copiesLeaveTheInstanceAlone()
{
    QVERIFY(!StreamingManager::getInstancePtr());
    {
        TempStores stores;
        StreamingManager* const instance = &stores.streamingManager();
        QCOMPARE(&StreamingManager::getInstance(), instance);
        instance->setChatBuffer(chatLine(1));
        {
            StreamingManager copy(*instance);
            QCOMPARE(copy.chatDescs().size(), 1);
            copy = *instance;
        }
        QCOMPARE(StreamingManager::getInstancePtr(), instance);
    }
    QVERIFY(!StreamingManager::getInstancePtr());
}

QTEST_GUILESS_MAIN(TestStreamingManager)
#include "tst_streamingmanager.moc"
