#include "interface/fileoutputinterface.h"
#include "records/contentssettings.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/streamingmanager.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QtTest>

#include <csignal>

// A writer that adds, edits and removes codec presets, servers, accounts and setup groups
// without pause is killed (SIGKILL) at random moments. Before each change it logs the state
// it is about to reach ("intent"), after it the state reached ("done"); after each kill every
// store file must read back whole and the stores as the last state done or the one intended.
// STREAMING_KILLS sets the number of kills (default 50; scripts/kill-test.sh runs more).
namespace {

struct Stores {
    explicit Stores(const QString& dir)
        : contents(dir + "/codecs", dir + "/servers"), codecs(contents), servers(contents, LicenseModel()),
          setup(dir + "/setup.json")
    {
    }
    ContentsSettings contents;
    CodecManager codecs;
    StreamingManager servers;
    FileOutputInterface setup;
};

// What the operator would see: each store as name -> contents, and the setup object.
struct State {
    QMap<QString, QString> codecs, servers, accounts;
    QJsonObject setup;

    QByteArray hash() const
    {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (const auto* map : {&codecs, &servers, &accounts}) {
            for (auto it = map->begin(); it != map->end(); ++it)
                hash.addData((it.key() + '\x1f' + it.value() + '\x1e').toUtf8());
            hash.addData("\x1d", 1);
        }
        hash.addData(QJsonDocument(setup).toJson(QJsonDocument::Compact));
        return hash.result().toHex().left(16);
    }
};

QString codecText(CodecManager& store, const CodecPreset& preset)
{
    return QString::fromUtf8(QJsonDocument(store.jsonFromCodecPreset(preset)).toJson(QJsonDocument::Compact));
}
QString serverText(const ServerInfo& s)
{
    return QStringList{s.channel.url, s.channel.key, s.oauth.username, s.oauth.password, s.channel.passphrase,
                       s.oauth.accessToken, s.oauth.refreshToken}.join('|');
}

State read(Stores& stores)
{
    State state;
    for (const CodecPreset& preset : stores.codecs.codecPresets())
        state.codecs.insert(CodecManager::namingFromPreset(&preset), codecText(stores.codecs, preset));
    for (const ServerInfo& server : stores.servers.serverInfos())
        state.servers.insert(server.channel.title, serverText(server));
    for (const ServerInfo& account : stores.servers.accounts())
        state.accounts.insert(account.oauth.provider, serverText(account));
    state.setup = stores.setup.settings();
    return state;
}

template <class T>
T any(QRandomGenerator& random, const QList<T>& from)
{
    return from.at(random.bounded(from.size()));
}

CodecPreset randomPreset(QRandomGenerator& r)
{
    CodecPreset p;
    p.videoCodec().codec = any<QString>(r, {"H.264", "HEVC"});
    p.videoCodec().height = any(r, QList<int>{720, 1080});
    p.videoCodec().width = p.videoCodec().height * 16 / 9;
    p.videoCodec().frameRate = any(r, QList<double>{25, 50});
    p.videoCodec().bitRate = any(r, QList<int>{3000, 6000});
    // Not in the label: two presets of one label differ here.
    p.videoCodec().tune = any<QString>(r, {"film", "zerolatency", ""});
    p.videoCodec().bframes = int(r.bounded(4));
    p.audioCodec() = {true, "AAC", 48000, 128, 16, 2};
    return p;
}

// One change through the stores' own calls, applied to the model first. The worker never
// returns: it is killed.
int worker(const QString& dir, const QString& logPath)
{
    Stores stores(dir);
    State state = read(stores);
    QFile log(logPath);
    if (!log.open(QIODevice::Append | QIODevice::Unbuffered))
        return 3;
    log.write("start " + state.hash() + '\n');
    fputs("ready\n", stdout);
    fflush(stdout);
    QRandomGenerator random(QRandomGenerator::global()->generate());
    for (quint64 n = 0;; ++n) {
        State next = state;
        std::function<void()> change;
        const QStringList codecs = state.codecs.keys(), servers = state.servers.keys();
        const QString title = QStringLiteral("Server %1").arg(random.bounded(6));
        const QString provider = any<QString>(random, {"YouTube", "Twitch", "Facebook"});
        switch (random.bounded(9)) {
        case 1: // an edit that may rename the file
            if (!codecs.isEmpty()) {
                const QString label = any(random, codecs);
                const CodecPreset before = stores.codecs.codecPresetFromJson(QJsonDocument::fromJson(state.codecs.value(label).toUtf8()).object());
                const CodecPreset after = randomPreset(random);
                next.codecs.remove(label);
                next.codecs.insert(CodecManager::namingFromPreset(&after), codecText(stores.codecs, after));
                change = [&, before, after] { stores.codecs.replace(before, after); };
                break;
            }
            Q_FALLTHROUGH();
        case 0: {
            const CodecPreset preset = randomPreset(random);
            next.codecs.insert(CodecManager::namingFromPreset(&preset), codecText(stores.codecs, preset));
            change = [&, preset] { stores.codecs.write(preset); };
            break;
        }
        case 2:
            if (codecs.isEmpty())
                continue;
            {
                const QString label = any(random, codecs);
                const CodecPreset preset = stores.codecs.codecPresetFromJson(QJsonDocument::fromJson(state.codecs.value(label).toUtf8()).object());
                next.codecs.remove(label);
                change = [&, preset] { stores.codecs.remove(preset); };
            }
            break;
        case 3:
        case 4: { // a new server, or one renamed
            const QString old = random.bounded(2) && !servers.isEmpty() ? any(random, servers) : title;
            ServerInfo s;
            s.channel.title = title;
            s.channel.url = QStringLiteral("rtmp://127.0.0.1/live/%1").arg(n);
            s.channel.key = QStringLiteral("key-%1").arg(random.generate());
            s.oauth.username = "operator";
            s.oauth.password = QStringLiteral("pw-%1").arg(n);
            next.servers.remove(old);
            next.servers.insert(title, serverText(s));
            change = [&, old, s] { stores.servers.replace(old, s.channel, s.oauth); };
            break;
        }
        case 5: {
            if (servers.isEmpty())
                continue;
            const QString gone = any(random, servers);
            next.servers.remove(gone);
            change = [&, gone] { stores.servers.remove(gone); };
            break;
        }
        case 6: {
            ServerInfo a;
            a.channel.provider = a.oauth.provider = provider;
            a.channel.key = QStringLiteral("stream-%1").arg(n);
            a.oauth.accessToken = QStringLiteral("token-%1").arg(random.generate());
            a.oauth.refreshToken = QStringLiteral("refresh-%1").arg(n);
            next.accounts.insert(provider, serverText(a));
            change = [&, a] { stores.servers.writeAccount(a); };
            break;
        }
        case 7:
            next.accounts.remove(provider);
            change = [&, provider] { stores.servers.removeAccount(provider); };
            break;
        default: {
            const QJsonArray rows{QJsonObject{{"Name", QStringLiteral("Row %1").arg(n)}, {"StreamKey", "k"}}};
            next.setup.insert("STREAMING", rows);
            change = [&, rows] { stores.setup.setSettings("STREAMING", rows); };
        }
        }
        log.write("intent " + next.hash() + '\n');
        change();
        log.write("done " + next.hash() + '\n');
        state = next;
    }
}

// Every file a store would read is one whole JSON object; other files are counted.
QString brokenFile(const QString& dir, int* leftovers)
{
    *leftovers = 0;
    for (const QString& folder : {dir + "/codecs", dir + "/servers", dir + "/servers/accounts", dir}) {
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
            const bool store = file.fileName().endsWith(".json");
            if (!store) {
                *leftovers += !file.fileName().startsWith("log");
                continue;
            }
            QFile f(file.filePath());
            if (!f.open(QIODevice::ReadOnly) || !QJsonDocument::fromJson(f.readAll()).isObject())
                return file.filePath();
        }
    }
    return QString();
}

} // namespace

class TestStoreKill : public QObject
{
    Q_OBJECT
private slots:
    void killedWritersLeaveWholeStores()
    {
        const int kills = qEnvironmentVariableIntValue("STREAMING_KILLS") > 0 ? qEnvironmentVariableIntValue("STREAMING_KILLS") : 50;
        QTemporaryDir dir;
        QByteArray verified = [&] { Stores s(dir.path()); return read(s).hash(); }();
        QSet<QByteArray> states{verified};
        int operations = 0, midChange = 0, readNew = 0, leftovers = 0, tidied = 0;
        QElapsedTimer clock;
        clock.start();
        QRandomGenerator random(QRandomGenerator::global()->generate());
        for (int kill = 0; kill < kills; ++kill) {
            const QString logPath = dir.filePath(QStringLiteral("log%1").arg(kill));
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), {"--worker", dir.path(), logPath});
            QVERIFY(process.waitForStarted());
            // Most kills land while changes run; some while the writer starts and finishes
            // what the previous one left.
            if (random.bounded(5) != 0) {
                QVERIFY2(process.waitForReadyRead(30000), "the writer never started");
                QThread::usleep(random.bounded(25000));
            } else {
                QThread::usleep(random.bounded(30000));
            }
            ::kill(pid_t(process.processId()), SIGKILL);
            process.waitForFinished();
            QCOMPARE(process.exitStatus(), QProcess::CrashExit);

            // No log: killed before it was opened.
            QFile log(logPath);
            if (log.exists())
                log.open(QIODevice::ReadOnly);
            QList<QByteArray> lines = log.readAll().split('\n');
            lines.removeAll(QByteArray());
            QSet<QByteArray> allowed{verified};
            QByteArray last = verified;
            for (const QByteArray& line : qAsConst(lines)) {
                const QByteArray hash = line.mid(line.indexOf(' ') + 1);
                if (line.startsWith("start"))
                    QVERIFY2(hash == verified, "the writer found another state than the one read after the kill");
                operations += line.startsWith("done");
                last = hash;
            }
            const bool killedMidChange = !lines.isEmpty() && lines.last().startsWith("intent");
            if (killedMidChange) {
                ++midChange;
                const QByteArray before = lines.size() > 1 ? lines.at(lines.size() - 2) : QByteArray();
                allowed = {before.mid(before.indexOf(' ') + 1), last};
            } else {
                allowed = {last};
            }
            const QString broken = brokenFile(dir.path(), &leftovers);
            tidied += leftovers;
            QVERIFY2(broken.isEmpty(), qPrintable("not whole after kill " + QString::number(kill) + ": " + broken));
            Stores after(dir.path());
            brokenFile(dir.path(), &leftovers); // what the restart did not tidy away
            QCOMPARE(leftovers, 0);
            verified = read(after).hash();
            QVERIFY2(allowed.contains(verified), qPrintable(QStringLiteral("kill %1: a state the writer never had").arg(kill)));
            readNew += killedMidChange && verified == last;
            states.insert(verified);
            log.remove();
        }
        qInfo("kills %d, operations %d, states %d, killed mid-change %d (read back changed %d), cut-short "
              "writes tidied %d, failures 0, %.1f s",
              kills, operations, int(states.size()), midChange, readNew, tidied, clock.elapsed() / 1000.0);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--worker") == 0)
        return worker(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    TestStoreKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_storekill.moc"
