#include "tempstores.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

enum class BadEntry { Bytes, Unreadable, Directory, SymLinkToFile, DanglingSymLink, Fifo };

const QByteArray goodCodec = R"({"VideoCodec":{"Codec":"H.264","Height":1080},"AudioCodec":{"Enabled":true}})";
const QByteArray goodServer = R"({"Title":"Good","StreamUrl":"rtmp://a.test/live"})";

QByteArray randomBytes(int size)
{
    QRandomGenerator generator(20240307);
    QByteArray bytes(size, '\0');
    for (char& byte : bytes)
        byte = char(generator.bounded(256));
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(BadEntry)

// Whatever sits in a store directory, a reload keeps the good presets and nothing crashes.
class TestStoreFile : public QObject
{
    Q_OBJECT

private slots:
    void badEntriesAreSkipped_data();
    void badEntriesAreSkipped();
    void manyBadFilesAmongGoodOnes();
    void suffixMatchesInAnyCase();
    void largeFilesLoadWhole();
};

void TestStoreFile::badEntriesAreSkipped_data()
{
    QTest::addColumn<bool>("serverStore");
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
        {"array of objects", BadEntry::Bytes, "[" + goodCodec + "]"},
        {"empty object", BadEntry::Bytes, "{}"},
        {"scalar", BadEntry::Bytes, "42"},
        {"random bytes", BadEntry::Bytes, randomBytes(4096)},
        {"NUL bytes", BadEntry::Bytes, QByteArray(64, '\0')},
        {"deep nesting", BadEntry::Bytes, QByteArray(100000, '[')},
        {"unreadable file", BadEntry::Unreadable, goodCodec},
        {"directory named x.json", BadEntry::Directory, QByteArray()},
        {"symbolic link to a preset", BadEntry::SymLinkToFile, goodCodec},
        {"dangling symbolic link", BadEntry::DanglingSymLink, QByteArray()},
        {"named pipe", BadEntry::Fifo, QByteArray()},
    };
    for (const auto& c : cases) {
        QTest::addRow("codec store, %s", c.name) << false << c.kind << c.contents;
        QTest::addRow("server store, %s", c.name) << true << c.kind << c.contents;
    }
}

void TestStoreFile::badEntriesAreSkipped()
{
    QFETCH(bool, serverStore);
    QFETCH(BadEntry, kind);
    QFETCH(QByteArray, contents);

    TempStores stores;
    const QString dir = serverStore ? stores.serverDir() : stores.codecDir();
    const QByteArray good = serverStore ? goodServer : goodCodec;
    serverStore ? stores.writeServerFile(QStringLiteral("good.json"), good)
                : stores.writeCodecFile(QStringLiteral("good.json"), good);

    const QString bad = dir + QStringLiteral("/x.json");
    const QString outside = stores.root() + QStringLiteral("/outside.json");
    switch (kind) {
    case BadEntry::Bytes:
    case BadEntry::Unreadable: {
        QFile file(bad);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(contents), qint64(contents.size()));
        file.close();
        if (kind == BadEntry::Unreadable)
            QVERIFY(file.setPermissions(QFileDevice::Permissions()));
        break;
    }
    case BadEntry::Directory:
        QVERIFY(QDir(dir).mkdir(QStringLiteral("x.json")));
        QVERIFY(QFile(dir + QStringLiteral("/x.json/inner.json")).open(QIODevice::WriteOnly));
        break;
    case BadEntry::SymLinkToFile: {
        QFile target(outside);
        QVERIFY(target.open(QIODevice::WriteOnly));
        target.write(good);
        target.close();
        QVERIFY(QFile::link(outside, bad));
        break;
    }
    case BadEntry::DanglingSymLink:
        QVERIFY(QFile::link(stores.root() + QStringLiteral("/missing.json"), bad));
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
        for (const QString& path : {stores.root(), dir})
            QVERIFY(QFile::setPermissions(path, QFile::permissions(path) | QFile::ExeOther | QFile::ReadOther));
        QCOMPARE(::setegid(65534), 0);
        QCOMPARE(::seteuid(65534), 0);
    }

    if (serverStore) {
        stores.streamingManager().reloadPresets();
        QCOMPARE(stores.streamingManager().serverInfos().size(), 1);
        QCOMPARE(stores.streamingManager().serverInfos().first().channel.title, QStringLiteral("Good"));
    } else {
        stores.codecManager().reloadPresets();
        QCOMPARE(stores.codecManager().codecPresets().size(), 1);
        QCOMPARE(stores.codecManager().codecPresets().first().videoCodec().height, 1080);
    }
}

void TestStoreFile::manyBadFilesAmongGoodOnes()
{
    TempStores stores;
    for (int n = 0; n < 50; ++n) {
        stores.writeCodecFile(QStringLiteral("good %1.json").arg(n), goodCodec);
        stores.writeCodecFile(QStringLiteral("bad %1.json").arg(n), randomBytes(n * 7));
        stores.writeServerFile(QStringLiteral("good %1.json").arg(n), goodServer);
        stores.writeServerFile(QStringLiteral("bad %1.json").arg(n), goodServer.left(n % goodServer.size()));
    }
    stores.codecManager().reloadPresets();
    stores.streamingManager().reloadPresets();
    QCOMPARE(stores.codecManager().codecPresets().size(), 50);
    QCOMPARE(stores.streamingManager().serverInfos().size(), 50);
}

void TestStoreFile::suffixMatchesInAnyCase()
{
    TempStores stores;
    stores.writeServerFile(QStringLiteral("lower.json"), goodServer);
    stores.writeServerFile(QStringLiteral("UPPER.JSON"), goodServer);
    stores.writeServerFile(QStringLiteral("json"), goodServer);
    stores.writeServerFile(QStringLiteral("other.jsonx"), goodServer);
    stores.writeServerFile(QStringLiteral("other.json~"), goodServer);
    stores.writeServerFile(QStringLiteral(".hidden.json"), goodServer);
    stores.streamingManager().reloadPresets();
    QCOMPARE(stores.streamingManager().serverInfos().size(), 2);
}

void TestStoreFile::largeFilesLoadWhole()
{
    TempStores stores;
    for (int size : {4095, 16384, 16385, 300000}) {
        const QString title = QString(size, QLatin1Char('t'));
        stores.writeServerFile(QStringLiteral("size %1.json").arg(size),
                               R"({"Title":")" + title.toLatin1() + R"(","Port":1935})");
    }
    stores.writeServerFile(QStringLiteral("small.json"), goodServer);
    // Valid, but no preset is anywhere near this big: not loaded.
    stores.writeServerFile(QStringLiteral("oversized.json"), goodServer + QByteArray(17 * 1024 * 1024, ' '));
    stores.streamingManager().reloadPresets();
    QList<int> sizes;
    for (const ServerInfo& info : stores.streamingManager().serverInfos()) {
        if (info.channel.title != QLatin1String("Good")) {
            QCOMPARE(info.channel.port, 1935);
            sizes << info.channel.title.size();
        }
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, (QList<int>{4095, 16384, 16385, 300000}));
    QCOMPARE(stores.streamingManager().serverInfos().size(), 5);
}

QTEST_GUILESS_MAIN(TestStoreFile)
#include "tst_storefile.moc"
