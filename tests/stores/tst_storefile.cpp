#include "support/filesizelimit.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QRandomGenerator>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace TestKit;

namespace {

enum class BadEntry { Bytes, Unreadable, Directory, SymLinkToFile, DanglingSymLink, Fifo };

const QByteArray goodCodec = R"({"VideoCodec":{"Codec":"Good","Height":1080},"AudioCodec":{"Enabled":true}})";
const QByteArray goodServer = R"({"Title":"Good","StreamUrl":"rtmp://a.test/live"})";

QByteArray randomBytes(int size)
{
    QRandomGenerator generator(20240307);
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = char(generator.bounded(256));
    return bytes;
}

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
        if (!server)
            return stores.codecManager().write(codec(name, value));
        Channel channel;
        channel.title = name;
        channel.key = value;
        return stores.streamingManager().write(channel, OAuth());
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

} // namespace

Q_DECLARE_METATYPE(BadEntry)

// What both stores promise about their files: bad ones are skipped, names never leave the
// directory, a failed write loses nothing.
class TestStoreFile : public QObject
{
    Q_OBJECT

private slots:
    void badEntriesAreSkipped_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<BadEntry>("kind");
        QTest::addColumn<QByteArray>("contents");

        const struct {
            const char* name;
            BadEntry kind;
            QByteArray contents;
        } cases[] = {
            {"0-byte file", BadEntry::Bytes, QByteArray()},
            {"truncated JSON", BadEntry::Bytes, goodCodec.left(30)},
            {"array", BadEntry::Bytes, "[]"},
            {"random bytes", BadEntry::Bytes, randomBytes(4096)},
            {"deep nesting", BadEntry::Bytes, QByteArray(100000, '[')},
            {"unreadable file", BadEntry::Unreadable, goodCodec},
            {"directory named x.json", BadEntry::Directory, QByteArray()},
            {"symbolic link to a preset", BadEntry::SymLinkToFile, QByteArray()},
            {"dangling symbolic link", BadEntry::DanglingSymLink, QByteArray()},
            {"named pipe", BadEntry::Fifo, QByteArray()},
        };
        for (const auto& c : cases) {
            QTest::addRow("codec store, %s", c.name) << false << c.kind << c.contents;
            QTest::addRow("server store, %s", c.name) << true << c.kind << c.contents;
        }
    }
    void badEntriesAreSkipped()
    {
        QFETCH(bool, server);
        QFETCH(BadEntry, kind);
        QFETCH(QByteArray, contents);

        TempStores stores;
        Store store{stores, server};
        const QByteArray good = server ? goodServer : goodCodec;
        QVERIFY(writeFile(store.dir() + "/good.json", good));
        const QString bad = store.dir() + "/x.json";
        const QString outside = stores.root() + "/outside.json";
        switch (kind) {
        case BadEntry::Bytes:
        case BadEntry::Unreadable:
            QVERIFY(writeFile(bad, contents));
            if (kind == BadEntry::Unreadable)
                QVERIFY(QFile::setPermissions(bad, QFileDevice::Permissions()));
            break;
        case BadEntry::Directory:
            QVERIFY(QDir(store.dir()).mkdir("x.json"));
            QVERIFY(writeFile(bad + "/inner.json", good));
            break;
        case BadEntry::SymLinkToFile:
            QVERIFY(writeFile(outside, good));
            QVERIFY(QFile::link(outside, bad));
            break;
        case BadEntry::DanglingSymLink:
            QVERIFY(QFile::link(stores.root() + "/missing.json", bad));
            break;
        case BadEntry::Fifo:
            // Opening a pipe for reading would block the host until a writer came.
            QCOMPARE(::mkfifo(QFile::encodeName(bad).constData(), 0600), 0);
            break;
        }

        // Root reads files whatever their permission bits: read as nobody instead.
        const bool asNobody = kind == BadEntry::Unreadable && ::geteuid() == 0;
        const auto restore = qScopeGuard([asNobody] {
            if (asNobody && (::seteuid(0) != 0 || ::setegid(0) != 0))
                qFatal("cannot return to root");
        });
        if (asNobody) {
            for (const QString& path : {stores.root(), store.dir()})
                QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOther | QFile::ReadOther));
            QCOMPARE(::setegid(65534), 0);
            QCOMPARE(::seteuid(65534), 0);
        }
        QCOMPARE(store.loaded(), QStringList{"Good="});
    }

    void namesStayInsideTheStore_data()
    {
        QTest::addColumn<bool>("server");
        QTest::addColumn<QString>("name");
        const char* const names[] = {"../escaped", "../../../escaped", "/tmp/escaped", "..\\escaped", "a/b/c",
                                     "..",         ".",                ".hidden"};
        for (const char* name : names) {
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
        QVERIFY(QFileInfo(store.dir() + '/' + files.first()).isFile());

        // Written again under the same name it replaces, not adds.
        QVERIFY(store.write(name, "second"));
        QCOMPARE(entries(store.dir()), files);
        QCOMPARE(store.loaded(), QStringList{name + "=second"});
        QVERIFY(store.remove(name));
        QVERIFY(entries(store.dir()).isEmpty());
    }

    void storeFailures_data()
    {
        QTest::addColumn<bool>("server");
        QTest::newRow("codec store") << false;
        QTest::newRow("server store") << true;
    }
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
        QVERIFY(store.remove("Never saved"));
        QVERIFY(store.remove("../servers/Kept"));
        QVERIFY(store.remove("Main"));
        QVERIFY(store.remove("Main"));
        QCOMPARE(store.loaded(), QStringList{"Kept=kept"});

        // A store directory that cannot be made: write fails, the file in its way is left alone.
        const QString blocker = stores.root() + "/plain file";
        QVERIFY(writeFile(blocker, "mine"));
        const ContentsSettings blocked(blocker + "/codecs", blocker + "/servers");
        QTest::ignoreMessage(QtWarningMsg, "Couldn't open save file.");
        if (server) {
            Channel channel;
            channel.title = "Main";
            QVERIFY(!StreamingManager(blocked, LicenseModel()).write(channel, OAuth()));
        } else {
            QVERIFY(!CodecManager(blocked).write(Store::codec("Main")));
        }
        QCOMPARE(readFile(blocker), QByteArray("mine"));
        QCOMPARE(store.loaded(), QStringList{"Kept=kept"});

        // Over a directory that is not there: nothing is read, nothing made.
        const QString nowhere = stores.root() + "/nowhere";
        QVERIFY(server ? StreamingManager(ContentsSettings(nowhere, nowhere), LicenseModel()).serverInfos().isEmpty()
                       : CodecManager(ContentsSettings(nowhere, nowhere)).codecPresets().isEmpty());
        QVERIFY(!QFileInfo::exists(nowhere));
    }

    void serverFilesByNameAndSize()
    {
        TempStores stores;
        for (const char* name : {"lower.json", "UPPER.JSON", "json", "other.jsonx", "other.json~", ".hidden.json"})
            stores.writeServerFile(QLatin1String(name), goodServer);
        const QList<int> sizes{4095, 16384, 16385, 300000};
        for (int size : sizes)
            stores.writeServerFile(QString("size %1.json").arg(size),
                                   R"({"Title":")" + QByteArray(size, 't') + R"("})");
        // Valid, but no preset is anywhere near this big: not loaded.
        stores.writeServerFile("oversized.json", goodServer + QByteArray(17 * 1024 * 1024, ' '));

        stores.streamingManager().reloadPresets();
        QList<int> loaded;
        for (const ServerInfo& info : stores.streamingManager().serverInfos())
            loaded << info.channel.title.size();
        std::sort(loaded.begin(), loaded.end());
        QCOMPARE(loaded, (QList<int>{4, 4} + sizes)); // lower.json and UPPER.JSON hold "Good"
    }
};

QTEST_GUILESS_MAIN(TestStoreFile)
#include "tst_storefile.moc"
