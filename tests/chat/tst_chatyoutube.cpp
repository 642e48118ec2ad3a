#include "chat/chatlistener.h"
#include "chat/chatyoutube.h"
#include "chat/youtubechatpage.h"
#include "support/servicefixture.h"
#include "support/tempstores.h"

#include <QtTest>

// The YouTube chat against the HTTP fixture: pages by token at the service's interval,
// author pictures, sending, and pages of the wrong shape.
namespace {

const QString messages = QStringLiteral("/youtube/v3/liveChat/messages");

struct Recorder : ChatListener {
    QStringList lines; // "tag: data"; a message as author|badges|text|picture
    void chatEvent(const QString& tag, const QVariant& data) override
    {
        if (tag == ChatProvider::messageTag) {
            const ChatDesc d = data.value<ChatDesc>();
            QVERIFY(ChatProvider::colorTable().contains(d.color));
            lines << "message: " + QStringList{d.author, d.badges.join(','), d.message, d.pictureUrl.path()}.join('|');
        } else if (tag != ChatProvider::imageTag) {
            lines << tag + ": " + data.toString();
        }
    }
};

QByteArray page(const QString& token, int interval, const QString& author, const QString& text)
{
    return QString(R"({"nextPageToken":"%1","pollingIntervalMillis":%2,"items":[{"id":"m-%1",)"
                   R"("snippet":{"type":"textMessageEvent","displayMessage":"%4","textMessageDetails":{"messageText":"%4"}},)"
                   R"("authorDetails":{"displayName":"%3","profileImageUrl":"%5/pic/%3.png","isChatModerator":true}}]})")
        .arg(token)
        .arg(interval)
        .arg(author, text, qEnvironmentVariable("QUILLON_YOUTUBE_API"))
        .toUtf8();
}

} // namespace

class TestChatYouTube : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void readsPageAfterPage()
    {
        ServiceFixture f;
        TempStores stores;
        f.server.on("GET", messages, [](const HttpServer::Request& r) {
            return HttpServer::json(r.query.contains("pageToken=p1") ? page("p2", 0, "Bea", "second")
                                                                      : page("p1", 1500, "Al", "<i>first</i>"));
        });
        ChatYouTube chat(&f.view);
        chat.setAccessToken("tok");
        Recorder recorder;
        chat.addListener(&recorder);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(chat.chatConnect("Kai", "chat 1"));
        QCOMPARE(recorder.lines, QStringList({"message: Al|mod|<i>first</i>|/pic/Al.png", "Connected: chat 1"}));
        QCOMPARE(chat.pollingInterval(), 1500);
        QTRY_COMPARE_WITH_TIMEOUT(recorder.lines.size(), 3, 5000);
        QVERIFY(clock.elapsed() >= 1500);
        QCOMPARE(recorder.lines.last(), "message: Bea|mod|second|/pic/Bea.png");
        QCOMPARE(chat.pollingInterval(), 1000); // 0 asks no faster than once a second
        QCOMPARE(f.requestLines().mid(0, 1), QStringList{"GET " + messages + "?liveChatId=chat%201&maxResults=200&"
                                                           "part=id,snippet,authorDetails&access_token=tok"});
        QTRY_VERIFY(f.requestLines().contains("GET /pic/Al.png"));
        QVERIFY(f.requestLines().contains("GET " + messages + "?liveChatId=chat%201&pageToken=p1&"
                                                              "part=id,snippet,authorDetails&access_token=tok"));
        QCOMPARE(f.view.tags().filter("Obj").mid(0, 2), QStringList({"liveChatObj", "nextPageObj"}));
        QCOMPARE(stores.streamingManager().chatDescs().size(), 2);
        chat.chatDisconnect();
    }

    void sendsTextMessages()
    {
        ServiceFixture f;
        f.serve({{"GET " + messages, page("p1", 60000, "Al", "hi")}, {"POST " + messages, R"({"id":"sent"})"}});
        ChatYouTube chat(&f.view);
        chat.setAccessToken("tok");
        QVERIFY(chat.chatConnect(QString(), "c1"));
        f.server.clearRequests();
        chat.sendMessage("  hello\nthere  ");
 QCOMPARE(f.requestLines().filter("POST"),
                 QStringList{"POST " + messages + "?part=snippet&alt=json&access_token=tok | application/json "
                             R"({"snippet":{"liveChatId":"c1","textMessageDetails":{"messageText":"hello there"},)"
                             R"("type":"textMessageEvent"}})"});
        QCOMPARE(f.view.tags().last(), "chatSendObj");
    }

    void pagesOfTheWrongShape_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("failure");
        QTest::newRow("items not a list") << QByteArray(R"({"nextPageToken":"p","items":{}})")
                                          << "liveChatObj,The service sent a reply that could not be read.";
        QTest::newRow("service error") << QByteArray(R"({"error":{"code":403,"message":"The live chat is no longer live."}})")
                                       << "liveChatObj,The live chat is no longer live.";
    }
    void pagesOfTheWrongShape()
    {
        QFETCH(QByteArray, reply);
        ServiceFixture f;
        f.serve({{"GET " + messages, reply}});
        ChatYouTube chat(&f.view);
        Recorder recorder;
        chat.addListener(&recorder);
        QVERIFY(!chat.chatConnect(QString(), "c1"));
        QFETCH(QString, failure);
        QCOMPARE(recorder.lines, QStringList{"Connect Failed: " + failure});
    }

    void exchangesStreamlabsCode_data()
    {
        QTest::addColumn<QByteArray>("clientId");
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("token");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const char* client, const char* reply, const char* token, const char* error) {
            QTest::newRow(name) << QByteArray(client) << QByteArray(reply) << token << error;
        };
        row("token kept", "test-client", R"({"access_token":"sl-tok","token_type":"Bearer"})", "sl-tok", "");
        row("service error", "test-client", R"({"error":"invalid_grant","error_description":"Used code."})", "",
            "streamlabsTokenObj,invalid_grant\nUsed code.");
        row("no token", "test-client", R"({"token_type":"Bearer"})", "", "streamlabsTokenObj");
        row("not configured", "", "{}", "", "Streamlabs,Signing in to Streamlabs is not configured for this installation.");
    }
    void exchangesStreamlabsCode()
    {
        QFETCH(QByteArray, clientId);
        QFETCH(QByteArray, reply);
        QFETCH(QString, error);
        ServiceFixture f;
        qputenv("QUILLON_STREAMLABS_CLIENTID", clientId);
        f.serve({{"POST /api/v1.0/token", reply}});
        ChatYouTube chat(&f.view);
        QCOMPARE(chat.exchangeStreamlabsCode("c/1 2"), error.isEmpty());
        QTEST(chat.streamlabsToken(), "token");
        QCOMPARE(chat.lastError(), expectedError(error));
        QCOMPARE(f.requestLines(), clientId.isEmpty()
                                       ? QStringList()
                                       : QStringList{"POST /api/v1.0/token | form grant_type=authorization_code&"
                                                     "client_id=test-client&client_secret=test-secret&"
                                                     "redirect_uri=http%3A%2F%2Flocalhost%2Foauth2callback&code=c%2F1%202"});
    }

    void superChats_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QStringList>("events"); // author|amount|comment, or the error
        QTest::newRow("oldest first, unreadable items left out")
            << QByteArray(R"({"items":[{"snippet":{"supporterDetails":{"displayName":"Bo"},"displayString":"$2.00"}},7,)"
                          R"({"snippet":{"supporterDetails":{"displayName":"Cy"},"commentText":"no amount"}},)"
                          R"({"snippet":{"supporterDetails":{"displayName":"Al"},"displayString":"€1.00","commentText":"hi"}}]})")
            << QStringList{"Al|€1.00|hi", "Bo|$2.00|"};
        QTest::newRow("items not a list") << QByteArray(R"({"items":{}})") << QStringList{"superChatObj" + unreadableReply};
        QTest::newRow("service error") << QByteArray(R"({"error":{"code":403,"message":"Forbidden"}})")
                                       << QStringList{"superChatObj,Forbidden"};
    }
    void superChats()
    {
        QFETCH(QByteArray, reply);
        ServiceFixture f;
        f.serve({{"GET /youtube/v3/superChatEvents", reply}});
        ChatYouTube chat(&f.view);
        QList<ChatDesc> events;
        QString error;
        QStringList lines;
        if (chat.loadSuperChats(&events, &error))
            for (const ChatDesc& d : qAsConst(events))
                lines << QStringList{d.author, d.attributes.value("amount").toString(), d.message}.join('|');
        else
            lines << error;
        QTEST(lines, "events");
    }

    // Whatever a page says, the chat is asked no more than once a second, and at least once a minute.
    void pollingIntervals_data()
    {
        QTest::addColumn<QByteArray>("interval");
        QTest::addColumn<int>("expected");
        const QList<QPair<const char*, int>> rows{{"2500", 2500}, {"0", 1000}, {"-40", 1000}, {"\"5000\"", 1000}, {"1e12", 60000}};
        for (const auto& [interval, expected] : rows)
            QTest::newRow(interval) << QByteArray(interval) << expected;
    }
    void pollingIntervals()
    {
        QFETCH(QByteArray, interval);
        YouTubeChatPage page;
        const QJsonObject reply =
            QJsonDocument::fromJson(R"({"nextPageToken":"p","items":[1,{"snippet":{}}],"pollingIntervalMillis":)" + interval + "}")
                .object();
        QVERIFY(YouTubeChatPage::read(reply, &page));
        QTEST(page.pollingInterval, "expected");
        QVERIFY(page.messages.isEmpty()); // items of the wrong shape are left out
    }
};

QTEST_MAIN(TestChatYouTube)
#include "tst_chatyoutube.moc"
