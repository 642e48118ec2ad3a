#include <QtTest>
#include <QtWidgets>

#ifdef QUILLON_CONSOLE
#include "chat/chatprovider.h"
#include "provider/savedaccount.h"
#include "provider/twitch.h"
#include "provider/youtube.h"
#include "quillon/activitylog.h"
#include "quillon/chatmessageview.h"
#include "quillon/chatpanel.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "stores/streamingmanager.h"
#include "support/ircserver.h"
#include "support/servicefixture.h"
#include "support/testkit.h"

// The console's chat panel as an operator uses it, against a local IRC server.
class tst_ChatPanel : public QObject
{
    Q_OBJECT

    struct Console {
        QTemporaryDir data;
        ServiceFixture services;
        IrcServer irc;
        ActivityLog log;
        std::unique_ptr<HostSession> session = std::make_unique<HostSession>(data.path(), &log);
        std::unique_ptr<MainWindow> window;
        ChatPanel* panel = nullptr;

        Console()
        {
            irc.pointChatHere();
            // Accounts as the streaming dialog keeps them once signed in.
            Twitch twitch(nullptr);
            twitch.setAccessToken("tok");
            twitch.setChannelName("kai");
            session->streamingManager().writeAccount(SavedAccount::toServerInfo(twitch));
            YouTube youTube(nullptr);
            youTube.setAccessToken("yt");
            LiveChannel broadcast;
            broadcast.id = "b1";
            broadcast.name = "Big Game";
            broadcast.chatId = "c1";
            youTube.setChannels({broadcast});
            session->streamingManager().writeAccount(SavedAccount::toServerInfo(youTube));
            window = std::make_unique<MainWindow>(*session);
            panel = window->findChild<ChatPanel*>("chatPanel");
        }
        template <typename T>
        T* control(const char* name) const { return TestKit::control<T>(panel, name); }
        QString shown() const { return control<ChatMessageView>("chatView")->toPlainText(); }
        bool connectTwitch()
        {
            control<QPushButton>("chatConnect")->click();
            return QTest::qWaitFor([this] { return irc.received().endsWith("JOIN #kai \r\n"); });
        }
    };

private slots:
    void initTestCase() { TestKit::initDialogTest("tst_chatpanel"); }

    void readsAndAnswersTheChat()
    {
        Console c;
        QVERIFY(c.panel);
        QCOMPARE(TestKit::comboTexts(c.control<QComboBox>("chatRooms")), QStringList({"Twitch: #kai", "YouTube: Big Game"}));
        QVERIFY(c.connectTwitch());
        c.irc.send(":kai!kai@kai.tmi.twitch.tv JOIN #kai\r\n"
                   "@color=#123456;display-name=Ann;emotes=25:0-4 :ann!a@a PRIVMSG #kai :Kappa <b>bold</b> &amp; <script>\r\n");
        QTRY_COMPARE(c.control<QLabel>("chatStatus")->text(), "Connected to Twitch: #kai.");
        // Markup in a message is text: the tags show as typed.
        QTRY_VERIFY(c.shown().endsWith(QString("Ann: %1 <b>bold</b> &amp; <script>").arg(QChar(QChar::ObjectReplacementCharacter))));

        QTest::keyClicks(c.control<QLineEdit>("chatInput"), "hello");
        QTest::keyClick(c.control<QLineEdit>("chatInput"), Qt::Key_Return);
        QTRY_VERIFY(c.irc.received().endsWith("PRIVMSG #kai :hello \r\n"));
        QTRY_VERIFY(c.shown().endsWith("kai: hello"));
        QVERIFY(c.control<QLineEdit>("chatInput")->text().isEmpty());

        // A reopened view starts with the store's newest messages.
        ChatPanel again(c.session->streamingManager(), &c.log);
        QVERIFY(again.messageView()->toPlainText().endsWith("kai: hello"));

        // A dropped connection is told, and Reconnect connects again.
        c.irc.drop();
        const QString failure =
            "The chat connection failed: the chat server closed the connection. Choose Reconnect to try again.";
        QTRY_COMPARE(c.control<QLabel>("chatStatus")->text(), failure);
        QVERIFY(c.shown().endsWith(failure) && c.log.lastWarning().endsWith(failure));
        QCOMPARE(c.control<QPushButton>("chatConnect")->text(), "Reconnect");
        QVERIFY(c.connectTwitch());
    }

    void showsSuperChats()
    {
        const QByteArray reply = R"({"items":[{"id":"s1","snippet":{"supporterDetails":{"displayName":"Ann"},)"
                                 R"("displayString":"€5.00","commentText":"<b>go</b> team"}}]})";
        Console c;
        c.services.serve({{"GET /youtube/v3/liveChat/messages", R"({"nextPageToken":"p","pollingIntervalMillis":60000,"items":[]})"},
                          {"GET /youtube/v3/superChatEvents", reply}});
        auto* superChats = c.control<QPushButton>("chatSuperChats");
        QVERIFY(!superChats->isEnabled());
        c.control<QComboBox>("chatRooms")->setCurrentIndex(1);
        c.control<QPushButton>("chatConnect")->click();
        QCOMPARE(c.control<QLabel>("chatStatus")->text(), "Connected to YouTube: Big Game.");
        superChats->click();
        QCOMPARE(c.services.requestLines().last(), "GET /youtube/v3/superChatEvents?part=id,snippet&access_token=yt");
        QCOMPARE(c.control<QLabel>("chatStatus")->text(), "1 Super Chat(s) shown.");
        QCOMPARE(c.shown().section('\n', -1), "Ann €5.00: <b>go</b> team");
    }

    // However long the show, the view keeps the newest lines only.
    void viewStaysBounded()
    {
        Console c;
        QVERIFY(c.connectTwitch());
        // More than the view keeps, at a pace it shows them all.
        const int lines = ChatMessageView::maxLines + 150;
        for (int i = 0; i < lines; ++i) {
            c.irc.send("@color=#123456 :ann!a@a PRIVMSG #kai :line " + QByteArray::number(i) + "\r\n");
            if (i % ChatPanel::maxShownPerBatch == 0)
                QTest::qWait(2 * ChatPanel::batchInterval);
        }
        QTRY_VERIFY(c.shown().endsWith(QString("ann: line %1").arg(lines - 1)));
        // The newest lines, no more than the view keeps.
        QCOMPARE(c.control<ChatMessageView>("chatView")->lineCount(), ChatMessageView::maxLines);
        QVERIFY(c.shown().startsWith(QString("ann: line %1\n").arg(lines - ChatMessageView::maxLines)));
        QCOMPARE(c.session->streamingManager().chatDescs().size(), StreamingManager::chatBufferSize);
    }
};

#else

class tst_ChatPanel : public QObject
{
    Q_OBJECT
private slots:
    void skipped() { QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)"); }
};

#endif

QTEST_MAIN(tst_ChatPanel)
#include "tst_chatpanel.moc"
