#include "stores/privatesettings.h"
#include "support/filesizelimit.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QJsonDocument>
#include <QtTest>

#include <sys/stat.h>

using namespace TestKit;

namespace {

const QByteArray goodCodec = R"({"VideoCodec":{"Codec":"Good","Height":1080},"AudioCodec":{"Enabled":true}})";
const QByteArray goodServer = R"({"Title":"Good","StreamUrl":"rtmp://a.test/live"})";

// The two stores behind one face: a preset is a name (codec name or server title) and a value
// (the x264 tune or the stream key), neither of which changes the file name.
struct Store {
    TempStores& stores;
    bool server;

    QString dir() const { return server ? stores.serverDir() : stores.codecDir(); }
    static CodecPreset codec(const QString& name, const QString& value = QString())
    {
        CodecPreset p = preset(name, 1080, 6000);
        p.videoCodec().tune = value;
        return p;
    }
    bool write(const QString& name, const QString& value)
    {
        Channel channel;
        channel.title = name;
        channel.key = value;
        return server ? stores.streamingManager().write(channel, OAuth())
                      : stores.codecManager().write(codec(name, value));
    }
    bool remove(const QString& name)
    {
        return server ? stores.streamingManager().remove(name) : stores.codecManager().remove(codec(name));
    }
    // Each preset a reload finds, as "name=value".
    QStringList loaded()
    {
        QStringList list;
        if (server) {
            stores.streamingManager().reloadPresets();
            for (const ServerInfo& info : stores.streamingManager().serverInfos())
                list << info.channel.title + '=' + info.channel.key;
        } else {
            stores.codecManager().reloadPresets();
            for (const CodecPreset& p : stores.codecManager().codecPresets())
                list << p.videoCodec().codec + '=' + p.videoCodec().tune;
        }
        return list;
    }
};

int modeBits(const QString& path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

void bothStores()
{
    QTest::addColumn<bool>("server");
    QTest::newRow("codec store") << false;
    QTest::newRow("server store") << true;
}

} // namespace

// What the stores promise about their files: bad ones are skipped, names never leave the
// directory, a failed write loses nothing, server files keep their members and their secrets.
class TestStoreFile : public QObject
{
    Q_OBJECT

private slots:
    void badEntriesAreSkipped_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"truncated", "array", "directory", "link", "pipe"}) {
            QTest::addRow("codec store, %s", kind) << false << kind;
            QTest::addRow("server store, %s", kind) << true << kind;
        }
    }
    void badEntriesAreSkipped()
    {
        QFETCH(bool, server);
        QFETCH(QString, kind);
        TempStores stores;
        Store store{stores, server};
        const QByteArray good = server ? goodServer : goodCodec;
        QVERIFY(writeFile(store.dir() + "/good.json", good));
        const QString bad = store.dir() + "/x.json";
        if (kind == "directory")
            QVERIFY(QDir(store.dir()).mkdir("x.json") && writeFile(bad + "/inner.json", good));
        else if (kind == "link")
            QVERIFY(QFile::link(store.dir() + "/good.json", bad));
        else if (kind == "pipe") // opening a pipe for reading would block the host until a writer came
            QCOMPARE(::mkfifo(QFile::encodeName(bad).constData(), 0600), 0);
        else
            QVERIFY(writeFile(bad, kind == "array" ? QByteArray("[]") : good.left(30)));
        QCOMPARE(store.loaded(), QStringList{"Good="});
    }

    void namesStayInsideTheStore_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<QString>("name");
        for (const char* name : {"../escaped", "/tmp/escaped", "..\\escaped", "..", ".hidden"}) {
            QTest::addRow("codec store, %s", name) << false << QString::fromLatin1(name);
            QTest::addRow("server store, %s", name) << true << QString::fromLatin1(name);
        }
        QTest::newRow("server store, empty title") << true << QString();
    }
    void namesStayInsideTheStore()
    {
        QFETCH(bool, server);
        QFETCH(QString, name);
        TempStores stores;
        Store store{stores, server};
        QVERIFY(store.write(name, "first"));
        QCOMPARE(entries(stores.root()), (QStringList{"codecs", "servers"}));
        const QStringList files = entries(store.dir());
        QCOMPARE(files.size(), 1);

        // Written again under the same name it replaces, not adds, even a link put in its place.
        const QString outside = stores.root() + "/elsewhere.txt";
        QVERIFY(writeFile(outside, "not a preset") && QFile::remove(store.dir() + '/' + files.first()));
        QVERIFY(QFile::link(outside, store.dir() + '/' + files.first()));
        QVERIFY(store.write(name, "second"));
        QCOMPARE(readFile(outside), QByteArray("not a preset"));
        QVERIFY(!QFileInfo(store.dir() + '/' + files.first()).isSymLink());
        QCOMPARE(entries(store.dir()), files);
        QCOMPARE(store.loaded(), QStringList{name + "=second"});
        QVERIFY(store.remove(name));
        QVERIFY(entries(store.dir()).isEmpty());
    }

    void storeFailures_data() { bothStores(); }
    void storeFailures()
    {
        QFETCH(bool, server);
        TempStores stores;
        Store store{stores, server};
        QVERIFY(store.write("Main", "old"));
        QVERIFY(store.write("Kept", "kept"));
        const QStringList files = entries(store.dir());
        const QString mainFile = store.dir() + '/' + files.at(files.first().startsWith("Main") ? 0 : 1);
        const QByteArray before = readFile(mainFile);

        // A full disk half-way through the write: the old file stays whole.
        bool written = true;
        {
            FileSizeLimit full(32);
            QVERIFY(full.isActive());
            QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
            written = store.write("Main", QString(4096, 'n'));
        }
        QVERIFY(!written);
        QCOMPARE(readFile(mainFile), before);
        QCOMPARE(entries(store.dir()), files);

        // Removing is true whatever there is to remove, and never goes further than the store.
        QVERIFY(store.remove("Never saved") && store.remove("../servers/Kept") && store.remove("Main"));
        QCOMPARE(store.loaded(), QStringList{"Kept=kept"});
    }

    void serverFilesByNameAndSize()
    {
        TempStores stores;
        for (const char* name : {"lower.json", "UPPER.JSON", "json", "other.jsonx", ".hidden.json"})
            QVERIFY(writeFile(stores.serverDir() + '/' + name, goodServer));
        const QList<int> sizes{4095, 16384, 16385, 300000};
        for (int size : sizes)
            QVERIFY(writeFile(QString("%1/size %2.json").arg(stores.serverDir()).arg(size),
                              R"({"Title":")" + QByteArray(size, 't') + R"("})"));
        // Valid, but no preset is anywhere near this big: not loaded.
        QVERIFY(writeFile(stores.serverDir() + "/oversized.json", goodServer + QByteArray(17 * 1024 * 1024, ' ')));

        stores.streamingManager().reloadPresets();
        QList<int> loaded;
        for (const ServerInfo& info : stores.streamingManager().serverInfos())
            loaded << info.channel.title.size();
        std::sort(loaded.begin(), loaded.end());
        QCOMPARE(loaded, (QList<int>{4, 4} + sizes)); // lower.json and UPPER.JSON hold "Good"
    }

    void copiesLeaveTheInstanceAlone()
    {
        {
            TempStores stores;
            {
                CodecManager codecs = stores.codecManager();
                StreamingManager servers = stores.streamingManager();
                codecs = stores.codecManager();
                servers = stores.streamingManager();
            }
            QCOMPARE(CodecManager::getInstancePtr(), &stores.codecManager());
            QCOMPARE(StreamingManager::getInstancePtr(), &stores.streamingManager());
        }
        QVERIFY(!CodecManager::getInstancePtr() && !StreamingManager::getInstancePtr());
    }

    void roundTripKeepsTheStoredFields()
    {
        TempStores stores;
        StreamingManager& manager = stores.streamingManager();
        const Channel srt{"UC123", "Custom", "Main", {}, "srt://ingest.example.test:9000", "key-1", {}, {}, "caller",
                          "none", 9000, 120, 32, "secret phrase", "#!::r=live"};
        const OAuth account{"account", "Custom", "access", "refresh", "operator", "p\u00e4ss\"word", true};
        QVERIFY(manager.write(srt, account));
        const QString path = stores.serverDir() + "/Main.json";
        const QByteArray text = readFile(path);

        // The file's members, in this order and with the system's own spelling of "Authrized";
        // provider identities and tokens are not part of a saved server.
        QCOMPARE(jsonKeys(text), QStringLiteral("Title StreamUrl StreamKey Authrized UserId UserPw Mode Filter Port "
                                                "Latency KeyLength Passphrase StreamID"));
        const QJsonObject expected{{"Title", "Main"},         {"StreamUrl", "srt://ingest.example.test:9000"},
                                   {"StreamKey", "key-1"},    {"Authrized", true},
                                   {"UserId", "operator"},    {"UserPw", "p\u00e4ss\"word"},
                                   {"Mode", "caller"},        {"Filter", "none"},
                                   {"Port", 9000},            {"Latency", 120},
                                   {"KeyLength", 32},         {"Passphrase", "secret phrase"},
                                   {"StreamID", "#!::r=live"}};
        QCOMPARE(QJsonDocument::fromJson(text).object(), expected);

        // It holds secrets: owner-only, and an older world-readable file is tightened when saved again.
        QCOMPARE(modeBits(path), 0600);
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));

        // Read back and written again, the file comes out the same.
        manager.reloadPresets();
        QCOMPARE(manager.serverInfos().size(), 1);
        const ServerInfo info = manager.serverInfos().first();
        QVERIFY(info.channel.id.isEmpty() && info.oauth.accessToken.isEmpty());
        QVERIFY(manager.write(info.channel, info.oauth));
        QCOMPARE(readFile(path), text);
        QCOMPARE(modeBits(path), 0600);
    }

    // Server and account files and their folders, and the settings file that holds the stream
    // keys, are the owner's alone from their first write and after every rewrite.
    void secretsStayOwnerOnly()
    {
        const mode_t umaskBefore = ::umask(022);
        TempStores stores;
        QDir().mkpath(stores.serverDir());
        QVERIFY(QFile::setPermissions(stores.serverDir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                              | QFile::ReadOther | QFile::ExeOther));
        StreamingManager& manager = stores.streamingManager();
        ServerInfo account;
        account.oauth.provider = "YouTube";
        for (const char* title : {"Main", "Main", "Renamed"}) {
            Channel channel;
            channel.title = title;
            QVERIFY(manager.replace("Main", channel, OAuth()));
            account.oauth.accessToken = title;
            QVERIFY(manager.writeAccount(account));
        }
        QCOMPARE(modeBits(stores.serverDir()), 0700);
        QCOMPARE(modeBits(stores.serverDir() + "/Renamed.json"), 0600);
        QCOMPARE(modeBits(manager.accountDirectory()), 0700);
        QCOMPARE(modeBits(manager.accountDirectory() + "/YouTube.json"), 0600);

        // A settings file in a new folder, and one that was left readable by others.
        QTemporaryDir home;
        QCoreApplication::setOrganizationName("Quillon"); // QSettings writes nothing without one
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.filePath("new"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        const QString settingsFile = QSettings().fileName();
        for (int n = 0; n < 2; ++n) {
            for (int write = 0; write < 3; ++write) {
                PrivateSettings settings;
                settings.setValue("ql.stream.key", QVariantMap{{"Custom", QString::number(write)}});
                settings.sync();
                QCOMPARE(settings.status(), QSettings::NoError);
                QCOMPARE(modeBits(settingsFile), 0600);
            }
            QCOMPARE(modeBits(QFileInfo(settingsFile).absolutePath()), n == 0 ? 0700 : 0755);
            QVERIFY(QFile::setPermissions(settingsFile, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
            QVERIFY(QFile::setPermissions(QFileInfo(settingsFile).absolutePath(),
                                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther
                                              | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup));
        }
        QSettings::setDefaultFormat(QSettings::NativeFormat);
        ::umask(umaskBefore);
    }

    void chatBufferKeepsTheNewest()
    {
        TempStores stores;
        for (int n = 1; n <= 21; ++n) {
            ChatDesc desc;
            desc.message = QString::number(n);
            stores.streamingManager().setChatBuffer(desc);
        }
        const QList<ChatDesc>& kept = stores.streamingManager().chatDescs();
        QCOMPARE(kept.size(), 20);
        QCOMPARE(kept.first().message + '-' + kept.last().message, QStringLiteral("2-21"));
    }
};

QTEST_GUILESS_MAIN(TestStoreFile)
#include "tst_storefile.moc"
