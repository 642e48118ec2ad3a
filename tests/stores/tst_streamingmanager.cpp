#include "stores/streamingmanager.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <sys/stat.h>

using namespace TestKit;

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
    void roundTripKeepsTheStoredFields()
    {
        TempStores stores;
        StreamingManager& manager = stores.streamingManager();
        QVERIFY(manager.write(srtChannel("Main"), account(true)));
        const QString path = stores.serverDir() + "/Main.json";
        const QByteArray text = readFile(path);

        // The file's members, in this order and with the system's own spelling of "Authrized";
        // provider identities and tokens are not part of a saved server.
        QStringList keys;
        for (auto it = QRegularExpression("\"(\\w+)\":").globalMatch(QString::fromUtf8(text)); it.hasNext();)
            keys << it.next().captured(1);
        QCOMPARE(keys.join(' '), QStringLiteral("Title StreamUrl StreamKey Authrized UserId UserPw Mode Filter Port "
                                                "Latency KeyLength Passphrase StreamID"));
        const QJsonObject expected{{"Title", "Main"},         {"StreamUrl", "srt://ingest.example.test:9000"},
                                   {"StreamKey", "key-1"},    {"Authrized", true},
                                   {"UserId", "operator"},    {"UserPw", "p\u00e4ss\"word"},
                                   {"Mode", "caller"},        {"Filter", "none"},
                                   {"Port", 9000},            {"Latency", 120},
                                   {"KeyLength", 32},         {"Passphrase", "secret phrase"},
                                   {"StreamID", "#!::r=live"}};
        QCOMPARE(QJsonDocument::fromJson(text).object(), expected);

        // Read back and written again, the file comes out the same.
        manager.reloadPresets();
        QCOMPARE(manager.serverInfos().size(), 1);
        const ServerInfo info = manager.serverInfos().first();
        QVERIFY(info.channel.id.isEmpty() && info.oauth.accessToken.isEmpty());
        QVERIFY(QFile::remove(path));
        QVERIFY(manager.write(info.channel, info.oauth));
        QCOMPARE(readFile(path), text);
    }

    void serverFilesAreOwnerOnly()
    {
        TempStores stores;
        const QString path = stores.serverDir() + "/Main.json";
        QVERIFY(stores.streamingManager().write(srtChannel("Main"), account(true)));
        QCOMPARE(modeBits(path), 0600);

        // An older, world-readable file is tightened when it is saved again.
        QVERIFY(
            QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther));
        QCOMPARE(modeBits(path), 0644);
        QVERIFY(stores.streamingManager().write(srtChannel("Main"), account(false)));
        QCOMPARE(modeBits(path), 0600);

        // So is a title that has to be changed to make a file name.
        QVERIFY(stores.streamingManager().write(srtChannel("../a/b"), account(true)));
        for (const QString& file : entries(stores.serverDir()))
            QCOMPARE(modeBits(stores.serverDir() + '/' + file), 0600);
    }

    void linksInTheStoreAreNotWrittenThrough()
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

    void chatBufferKeepsTheNewest_data()
    {
        QTest::addColumn<int>("pushed");
        QTest::addColumn<int>("oldest");
        QTest::newRow("twenty") << 20 << 1;
        QTest::newRow("twenty-one pushes the first out") << 21 << 2;
        QTest::newRow("fifty") << 50 << 31;
    }
    void chatBufferKeepsTheNewest()
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

    void copiesLeaveTheInstanceAlone()
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
};

QTEST_GUILESS_MAIN(TestStreamingManager)
#include "tst_streamingmanager.moc"
