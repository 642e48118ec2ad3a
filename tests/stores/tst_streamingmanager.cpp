#include "filesizelimit.h"
#include "streamingmanager.h"
#include "tempstores.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <sys/stat.h>

namespace {

Channel makeChannel(const QString& title, const QString& key = QStringLiteral("key-1"))
{
    Channel channel;
    channel.id = QStringLiteral("UC123");
    channel.provider = QStringLiteral("Custom");
    channel.title = title;
    channel.url = QStringLiteral("srt://ingest.example.test:9000");
    channel.key = key;
    channel.mode = QStringLiteral("caller");
    channel.filter = QStringLiteral("none");
    channel.port = 9000;
    channel.latency = 120;
    channel.keyLength = 32;
    channel.passphrase = QStringLiteral("secret phrase");
    channel.streamId = QStringLiteral("#!::r=live");
    return channel;
}

OAuth makeAccount(bool authorized)
{
    OAuth oauth;
    oauth.id = QStringLiteral("account");
    oauth.accessToken = QStringLiteral("access");
    oauth.refreshToken = QStringLiteral("refresh");
    oauth.username = QStringLiteral("operator");
    oauth.password = QStringLiteral("p\u00e4ss\"word");
    oauth.authorized = authorized;
    return oauth;
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList entries(const QString& dir)
{
    return QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

int modeBits(const QString& path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

ChatDesc chatLine(int n)
{
    ChatDesc desc;
    desc.author = QStringLiteral("viewer%1").arg(n);
    desc.message = QStringLiteral("message %1").arg(n);
    return desc;
}

} // namespace

class TestStreamingManager : public QObject
{
    Q_OBJECT

private slots:
    void roundTripKeepsTheStoredFields_data();
    void roundTripKeepsTheStoredFields();
    void fileMembersComeInFixedOrder();
    void handWrittenAuthrizedIsKeptOnRewrite();
    void serverFilesAreOwnerOnly();
    void sameTitleReplacesTheFile();
    void titlesNeverLeaveTheStore_data();
    void titlesNeverLeaveTheStore();
    void linksInTheStoreAreNotWrittenThrough();
    void removeReturnsTrueAlways();
    void uncreatableDirectoryFailsWrite();
    void failedWriteKeepsThePreviousFile();
    void chatBufferKeepsTheNewest_data();
    void chatBufferKeepsTheNewest();
    void copiesLeaveTheInstanceAlone();
};

void TestStreamingManager::roundTripKeepsTheStoredFields_data()
{
    QTest::addColumn<Channel>("channel");
    QTest::addColumn<OAuth>("oauth");
    QTest::newRow("authorised SRT") << makeChannel(QStringLiteral("Main SRT")) << makeAccount(true);
    QTest::newRow("plain RTMP") << makeChannel(QStringLiteral("Backup")) << makeAccount(false);
    QTest::newRow("empty strings") << Channel{{}, {}, QStringLiteral("Bare"), {}, {}, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}}
                                   << OAuth{};
}

void TestStreamingManager::roundTripKeepsTheStoredFields()
{
    QFETCH(Channel, channel);
    QFETCH(OAuth, oauth);

    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    QVERIFY(manager.write(channel, oauth));
    QVERIFY(manager.serverInfos().isEmpty()); // only a reload reads files
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);

    const ServerInfo info = manager.serverInfos().first();
    QCOMPARE(info.channel.title, channel.title);
    QCOMPARE(info.channel.url, channel.url);
    QCOMPARE(info.channel.key, channel.key);
    QCOMPARE(info.channel.mode, channel.mode);
    QCOMPARE(info.channel.filter, channel.filter);
    QCOMPARE(info.channel.port, channel.port);
    QCOMPARE(info.channel.latency, channel.latency);
    QCOMPARE(info.channel.keyLength, channel.keyLength);
    QCOMPARE(info.channel.passphrase, channel.passphrase);
    QCOMPARE(info.channel.streamId, channel.streamId);
    QCOMPARE(info.oauth.username, oauth.username);
    QCOMPARE(info.oauth.password, oauth.password);
    QCOMPARE(info.oauth.authorized, oauth.authorized);
    // Provider identities and tokens are not part of a saved server.
    QVERIFY(info.channel.id.isEmpty());
    QVERIFY(info.oauth.accessToken.isEmpty());
}

void TestStreamingManager::fileMembersComeInFixedOrder()
{
    TempStores stores;
    QVERIFY(stores.streamingManager().write(makeChannel(QStringLiteral("Main")), makeAccount(true)));
    const QByteArray text = readAll(stores.serverDir() + QStringLiteral("/Main.json"));

    QStringList keys;
    const QRegularExpression keyPattern(QStringLiteral("\"(\\w+)\":"));
    for (auto it = keyPattern.globalMatch(QString::fromUtf8(text)); it.hasNext();)
        keys << it.next().captured(1);
    QCOMPARE(keys, QStringLiteral("Title StreamUrl StreamKey Authrized UserId UserPw Mode Filter Port Latency "
                                  "KeyLength Passphrase StreamID").split(QLatin1Char(' ')));

    const QJsonObject object = QJsonDocument::fromJson(text).object();
    QCOMPARE(object.value(QStringLiteral("Authrized")), QJsonValue(true));
    QCOMPARE(object.value(QStringLiteral("Port")), QJsonValue(9000));
    QCOMPARE(object.value(QStringLiteral("UserPw")), QJsonValue(QStringLiteral("p\u00e4ss\"word")));
}

void TestStreamingManager::handWrittenAuthrizedIsKeptOnRewrite()
{
    TempStores stores;
    stores.writeServerFile(QStringLiteral("Studio.json"),
                           R"({"Title":"Studio","StreamUrl":"rtmp://a.test/live","StreamKey":"k",
                               "Authrized":true,"UserId":"me","UserPw":"pw"})");
    StreamingManager& manager = stores.streamingManager();
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);
    const ServerInfo info = manager.serverInfos().first();
    QVERIFY(info.oauth.authorized);
    QCOMPARE(info.oauth.username, QStringLiteral("me"));

    QVERIFY(manager.write(info.channel, info.oauth));
    const QJsonObject object = QJsonDocument::fromJson(readAll(stores.serverDir() + QStringLiteral("/Studio.json"))).object();
    QCOMPARE(object.value(QStringLiteral("Authrized")), QJsonValue(true));
    QVERIFY(!object.contains(QStringLiteral("Authorized")));
}

void TestStreamingManager::serverFilesAreOwnerOnly()
{
    TempStores stores;
    const QString path = stores.serverDir() + QStringLiteral("/Main.json");
    QVERIFY(stores.streamingManager().write(makeChannel(QStringLiteral("Main")), makeAccount(true)));
    QCOMPARE(modeBits(path), 0600);

    // An older, world-readable file is tightened when it is saved again.
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
    QCOMPARE(modeBits(path), 0644);
    QVERIFY(stores.streamingManager().write(makeChannel(QStringLiteral("Main")), makeAccount(false)));
    QCOMPARE(modeBits(path), 0600);
}

void TestStreamingManager::sameTitleReplacesTheFile()
{
    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    QVERIFY(manager.write(makeChannel(QStringLiteral("Main"), QStringLiteral("first")), makeAccount(false)));
    QVERIFY(manager.write(makeChannel(QStringLiteral("Main"), QStringLiteral("second")), makeAccount(false)));
    QCOMPARE(entries(stores.serverDir()), QStringList{QStringLiteral("Main.json")});
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);
    QCOMPARE(manager.serverInfos().first().channel.key, QStringLiteral("second"));
}

void TestStreamingManager::titlesNeverLeaveTheStore_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("parent path") << QStringLiteral("../escaped");
    QTest::newRow("deep parent path") << QStringLiteral("../../../escaped");
    QTest::newRow("absolute path") << QStringLiteral("/tmp/escaped");
    QTest::newRow("backslashes") << QStringLiteral("..\\escaped");
    QTest::newRow("nested") << QStringLiteral("a/b/c");
    QTest::newRow("dots only") << QStringLiteral("..");
    QTest::newRow("one dot") << QStringLiteral(".");
    QTest::newRow("leading dot") << QStringLiteral(".hidden");
    QTest::newRow("empty") << QString();
}

void TestStreamingManager::titlesNeverLeaveTheStore()
{
    QFETCH(QString, title);
    TempStores stores;
    StreamingManager& manager = stores.streamingManager();

    QVERIFY(manager.write(makeChannel(title), makeAccount(true)));
    QCOMPARE(entries(stores.root()), (QStringList{QStringLiteral("codecs"), QStringLiteral("servers")}));
    const QStringList files = entries(stores.serverDir());
    QCOMPARE(files.size(), 1);
    QVERIFY(QFileInfo(stores.serverDir() + QLatin1Char('/') + files.first()).isFile());
    QCOMPARE(modeBits(stores.serverDir() + QLatin1Char('/') + files.first()), 0600);

    // Written again under the same title it replaces, not adds.
    QVERIFY(manager.write(makeChannel(title, QStringLiteral("other")), makeAccount(true)));
    QCOMPARE(entries(stores.serverDir()), files);

    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().size(), 1);
    QCOMPARE(manager.serverInfos().first().channel.title, title);
    QCOMPARE(manager.serverInfos().first().channel.key, QStringLiteral("other"));

    QVERIFY(manager.remove(title));
    QVERIFY(entries(stores.serverDir()).isEmpty());
}

void TestStreamingManager::linksInTheStoreAreNotWrittenThrough()
{
    TempStores stores;
    const QString outside = stores.root() + QStringLiteral("/elsewhere.txt");
    QFile target(outside);
    QVERIFY(target.open(QIODevice::WriteOnly));
    target.write("not a server");
    target.close();
    QVERIFY(QFile::link(outside, stores.serverDir() + QStringLiteral("/Main.json")));

    QVERIFY(stores.streamingManager().write(makeChannel(QStringLiteral("Main")), makeAccount(true)));
    QCOMPARE(readAll(outside), QByteArray("not a server"));
    const QFileInfo written(stores.serverDir() + QStringLiteral("/Main.json"));
    QVERIFY(written.isFile() && !written.isSymLink());
    QCOMPARE(modeBits(written.filePath()), 0600);
    stores.streamingManager().reloadPresets();
    QCOMPARE(stores.streamingManager().serverInfos().size(), 1);

    // Removing goes no further than the store either.
    QVERIFY(QFile::remove(written.filePath()));
    QVERIFY(QFile::link(outside, written.filePath()));
    QVERIFY(stores.streamingManager().remove(QStringLiteral("Main")));
    QCOMPARE(readAll(outside), QByteArray("not a server"));
}

void TestStreamingManager::removeReturnsTrueAlways()
{
    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    QVERIFY(manager.write(makeChannel(QStringLiteral("Kept")), makeAccount(false)));
    QVERIFY(manager.write(makeChannel(QStringLiteral("Gone")), makeAccount(false)));
    manager.reloadPresets();

    QVERIFY(manager.remove(QStringLiteral("Gone")));
    QCOMPARE(entries(stores.serverDir()), QStringList{QStringLiteral("Kept.json")});
    QCOMPARE(manager.serverInfos().size(), 2); // until reloaded
    QVERIFY(manager.remove(QStringLiteral("Gone")));
    QVERIFY(manager.remove(QStringLiteral("Never saved")));
    QVERIFY(manager.remove(QStringLiteral("../servers/Kept")));
    QCOMPARE(entries(stores.serverDir()), QStringList{QStringLiteral("Kept.json")});
}

void TestStreamingManager::uncreatableDirectoryFailsWrite()
{
    TempStores stores;
    const QString blocker = stores.root() + QStringLiteral("/plain file");
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();

    StreamingManager blocked(ContentsSettings(QString(), blocker + QStringLiteral("/servers")), LicenseModel());
    QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
    QVERIFY(!blocked.write(makeChannel(QStringLiteral("Main")), makeAccount(true)));
    QVERIFY(QFileInfo(blocker).isFile());
}

void TestStreamingManager::failedWriteKeepsThePreviousFile()
{
    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    QVERIFY(manager.write(makeChannel(QStringLiteral("Main"), QStringLiteral("old key")), makeAccount(true)));
    const QString path = stores.serverDir() + QStringLiteral("/Main.json");
    const QByteArray before = readAll(path);

    bool written = true;
    {
        FileSizeLimit full(32);
        QVERIFY(full.isActive());
        QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
        written = manager.write(makeChannel(QStringLiteral("Main"), QString(4096, QLatin1Char('k'))), makeAccount(true));
    }
    QVERIFY(!written);
    QCOMPARE(readAll(path), before);
    QCOMPARE(entries(stores.serverDir()), QStringList{QStringLiteral("Main.json")});
    manager.reloadPresets();
    QCOMPARE(manager.serverInfos().first().channel.key, QStringLiteral("old key"));
}

void TestStreamingManager::chatBufferKeepsTheNewest_data()
{
    QTest::addColumn<int>("pushed");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("oldest");
    QTest::newRow("one") << 1 << 1 << 1;
    QTest::newRow("twenty") << 20 << 20 << 1;
    QTest::newRow("twenty-one pushes the first out") << 21 << 20 << 2;
    QTest::newRow("fifty") << 50 << 20 << 31;
}

void TestStreamingManager::chatBufferKeepsTheNewest()
{
    QFETCH(int, pushed);
    QFETCH(int, count);
    QFETCH(int, oldest);

    TempStores stores;
    StreamingManager& manager = stores.streamingManager();
    for (int n = 1; n <= pushed; ++n)
        manager.setChatBuffer(chatLine(n));
    QCOMPARE(manager.chatDescs().size(), count);
    QCOMPARE(manager.chatDescs().first().message, chatLine(oldest).message);
    QCOMPARE(manager.chatDescs().last().message, chatLine(pushed).message);
}

void TestStreamingManager::copiesLeaveTheInstanceAlone()
{
    QVERIFY(!StreamingManager::getInstancePtr());
    {
        TempStores stores;
        StreamingManager* const instance = &stores.streamingManager();
        QCOMPARE(StreamingManager::getInstancePtr(), instance);
        instance->setChatBuffer(chatLine(1));
        {
            StreamingManager copy(*instance);
            QCOMPARE(copy.chatDescs().size(), 1);
            QCOMPARE(copy.serverDirectory(), stores.serverDir());
            copy = *instance;
            QCOMPARE(StreamingManager::getInstancePtr(), instance);
        }
        QCOMPARE(StreamingManager::getInstancePtr(), instance);
        QCOMPARE(StreamingManager::getInstance().chatDescs().size(), 1);
    }
    QVERIFY(!StreamingManager::getInstancePtr());
}

QTEST_GUILESS_MAIN(TestStreamingManager)
#include "tst_streamingmanager.moc"
