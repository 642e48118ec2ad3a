// ctest: serial
// (one case binds the IRC port 6667 on a 127.x address; the others take a free port)
#include "chat/chatlistener.h"
#include "chat/chattwitch.h"
#include "support/ircserver.h"
#include "support/servicefixture.h"
#include "support/tempstores.h"

#include <QBuffer>
#include <QtTest>

// The Twitch chat against a local IRC server (and the HTTP fixture for badges and emotes).
namespace {

const QByteArray logIn = "PASS oauth:tok \r\nNICK kai \r\nUSER kai :kai \r\nCAP REQ :twitch.tv/membership \r\n"
                         "CAP REQ :twitch.tv/tags \r\nCAP REQ :twitch.tv/commands \r\nJOIN #kai \r\n";
const QByteArray from = " :ann!ann@ann.tmi.twitch.tv PRIVMSG #kai :";

struct Recorder : ChatListener {
    QList<QPair<QString, QVariant>> events;
    void chatEvent(const QString& tag, const QVariant& data) override { events.append({tag, data}); }

    QList<QVariant> all(const QString& tag) const
    {
        QList<QVariant> data;
        for (const auto& event : events)
            if (event.first == tag)
                data.append(event.second);
        return data;
    }
    // author|colour ("table" for one drawn from the table)|badges|text, "|own" for an echo.
    QStringList messages() const
    {
        QStringList lines;
        for (const QVariant& data : all(ChatProvider::messageTag)) {
            const ChatDesc d = data.value<ChatDesc>();
            const QString color = ChatProvider::colorTable().contains(d.color) ? "table" : d.color;
            lines << QStringList{d.author, color, d.badges.join(','), d.message}.join('|') + (d.type == ChatDesc::Own ? "|own" : "");
        }
        return lines;
    }
};

QByteArray png()
{
    QImage image(28, 28, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

struct Session {
    ServiceFixture f;
    TempStores stores;
    IrcServer irc;
    Recorder recorder;
    ChatTwitch chat{&f.view};

    explicit Session(const QHostAddress& address = QHostAddress(QHostAddress::LocalHost), quint16 port = 0)
        : irc(address, port)
    {
        irc.pointChatHere();
        chat.setAccessToken("tok");
        chat.addListener(&recorder);
    }
    bool connectAndLogIn()
    {
        return chat.chatConnect("kai", "#kai") && QTest::qWaitFor([this] { return irc.received() == logIn; });
    }
};

} // namespace

class TestChatTwitch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void logsInByteForByte_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("defaultPort");
        QTest::newRow("a free port") << "127.0.0.1" << false;
        QTest::newRow("the IRC port 6667") << "127.0.66.67" << true;
    }
    void logsInByteForByte()
    {
        QFETCH(QString, address);
        QFETCH(bool, defaultPort);
        Session s(QHostAddress(address), defaultPort ? 6667 : 0);
        if (!s.irc.isListening())
            QSKIP("127.0.66.67:6667 is taken on this machine");
        if (defaultPort)
            qunsetenv("QUILLON_TWITCH_IRCPORT");
        QVERIFY(s.connectAndLogIn());
        QTRY_COMPARE(requestLines(s.f.server), QStringList{"GET /kraken/chat/44322889/badges?client_id=test-client | "
                                                           "OAuth tok | application/vnd.twitchtv.v5+json"});
        QTRY_COMPARE(s.f.view.tags(), QStringList{"badgesObj"});
    }

    // Each row: what the server sends, one write an entry with a pause between; what the
    // listeners are given and what the chat answers.
    void readsWhatTheServerSends_data()
    {
        QTest::addColumn<QList<QByteArray>>("writes");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QByteArray>("answers");
        QTest::newRow("tags, badges, colour")
            << QList<QByteArray>{"@badges=moderator/1,subscriber/12;color=#123456;display-name=Ann" + from + "hi <b>x</b>\r\n"}
            << QStringList{"Ann|#123456|mod,subscriber|hi <b>x</b>"} << QByteArray();
        QTest::newRow("split across reads, bare LF, no colour")
            << QList<QByteArray>{"@color=;display-name=Ann" + from + "hel", "lo\n"} << QStringList{"Ann|table||hello"}
            << QByteArray();
        QTest::newRow("several lines in one read, a PING among them")
            << QList<QByteArray>{"@color=#123456" + from + "one\r\nPING :tmi.twitch.tv\r\n@color=#123456" + from + "two\r\n"}
            << QStringList{"ann|#123456||one", "ann|#123456||two"} << QByteArray("PONG :tmi.twitch.tv \r\n");
        QTest::newRow("the server's own name, from its welcome")
            << QList<QByteArray>{":irc.test 001 kai :Welcome\r\nPING :irc.test\r\n"} << QStringList()
            << QByteArray("PONG :irc.test \r\n");
    }
    void readsWhatTheServerSends()
    {
        QFETCH(QList<QByteArray>, writes);
        QFETCH(QStringList, messages);
        QFETCH(QByteArray, answers);
        Session s;
        QVERIFY(s.connectAndLogIn());
        for (const QByteArray& bytes : writes) {
            s.irc.send(bytes);
            QTest::qWait(50);
        }
        QTRY_COMPARE(s.recorder.messages(), messages);
        QTRY_COMPARE(s.irc.received().mid(logIn.size()), answers);
        QCOMPARE(s.recorder.all(ChatProvider::readLineTag).last().toString(), s.chat.readLine());
        QCOMPARE(s.stores.streamingManager().chatDescs().size(), messages.size());
    }

    // The operator's message goes out as one line and shows at once as the broadcaster's.
    void ownMessagesEcho()
    {
        Session s;
        QVERIFY(s.connectAndLogIn());
        s.chat.sendMessage("hi <b>\r\nJOIN #other");
        QTRY_COMPARE(s.irc.received().mid(logIn.size()), QByteArray("PRIVMSG #kai :hi <b>  JOIN #other \r\n"));
        QCOMPARE(s.recorder.messages(), QStringList{"kai|#008000|broadcaster|hi <b>  JOIN #other|own"});
    }

    void emotesAndBadgesArriveAsImages()
    {
        Session s;
        const QString base = s.f.server.baseUrl();
        s.f.serve({{"GET /kraken/chat/44322889/badges",
                    QString(R"({"mod":{"image":"%1/badge/mod.png"},"turbo":null,"admin":{"image":"javascript:x"}})")
                        .arg(base).toUtf8()}});
        s.f.server.on("GET", "/badge/mod.png", HttpServer::Reply{200, png(), "image/png", {}, false});
        s.f.server.on("GET", "/emoticons/v1/25/1.0", HttpServer::Reply{200, png(), "image/png", {}, false});
        QVERIFY(s.connectAndLogIn());
        QTRY_COMPARE(s.recorder.all(ChatProvider::imageTag).size(), 1); // the badge
        s.irc.send("@badges=moderator/1;emotes=25:0-4;color=#123456" + from + "Kappa\r\n");
        QTRY_COMPARE(s.recorder.all(ChatProvider::imageTag).size(), 2);
        const ChatDesc d = s.recorder.all(ChatProvider::messageTag).value(0).value<ChatDesc>();
        QCOMPARE(d.attributes.value("badgeUrls").toStringList(), QStringList{base + "/badge/mod.png"});
        const QString emote = base + "/emoticons/v1/25/1.0";
        QCOMPARE(d.attributes.value("emotes").toList().value(0).toMap().value("url").toString(), emote);
        QCOMPARE(s.chat.chatImage(emote).size(), QSize(28, 28));
        QCOMPARE(s.f.server.requests().size(), 3); // the badge list, one badge, one emote
    }

    void failuresReachEveryListener_data()
    {
        QTest::addColumn<bool>("listening");
        QTest::addColumn<int>("error");
        QTest::newRow("refused") << false << int(QAbstractSocket::ConnectionRefusedError);
        QTest::newRow("dropped") << true << int(QAbstractSocket::RemoteHostClosedError);
    }
    void failuresReachEveryListener()
    {
        QFETCH(bool, listening);
        Session s;
        Recorder second;
        s.chat.addListener(&second);
        if (!listening)
            s.irc.close();
        QVERIFY(s.chat.chatConnect("kai", "kai"));
        if (listening) {
            QTRY_COMPARE(s.irc.received(), logIn);
            s.irc.drop();
        }
        QTRY_COMPARE(second.all(ChatProvider::failedTag).size(), 1);
        QCOMPARE(s.recorder.all(ChatProvider::failedTag), second.all(ChatProvider::failedTag));
        QTEST(second.all(ChatProvider::failedTag).value(0).toInt(), "error");
        s.chat.sendMessage("anyone?");
        QCOMPARE(second.all(ChatProvider::sendFailedTag).size(), 1);
    }
};

QTEST_MAIN(TestChatTwitch)
#include "tst_chattwitch.moc"
