#include "chat/chathtml.h"
#include "chat/chatprovider.h"
#include "chat/irclinereader.h"
#include "chat/twitchmessage.h"
#include "stores/chatdesc.h"

#include <QtTest>

// What the chat makes of the bytes a server sends, without a network: lines cut from
// reads, Twitch messages read from lines (hostile ones too), and messages as rich text.
namespace {

QStringList feed(IrcLineReader& reader, const QList<QByteArray>& reads)
{
    QStringList lines;
    for (const QByteArray& bytes : reads)
        reader.feed(bytes.constData(), static_cast<std::size_t>(bytes.size()),
                    [&](std::string_view line) { lines << QString::fromLatin1(line.data(), int(line.size())); });
    return lines;
}

// display name|colour|badges|text|emotes as begin+length:id
QString describe(const QByteArray& line)
{
    TwitchMessage m;
    if (!TwitchMessage::parse(std::string_view(line.constData(), std::size_t(line.size())), &m))
        return QStringLiteral("not a message");
    QStringList emotes;
    for (const TwitchEmote& e : m.emotes)
        emotes << QStringLiteral("%1+%2:%3").arg(e.begin).arg(e.length).arg(e.id());
    return QStringList{m.displayName, TwitchMessage::colorName(m.color), TwitchMessage::badgeNames(m.badges).join(','), m.text, emotes.join(' ')}
        .join('|');
}

class Colors : public ChatProvider
{
public:
    Colors() : ChatProvider("test") {}
    bool chatConnect(const QString&, const QString&) override { return true; }
    void sendMessage(const QString&) override {}
    void chatDisconnect() override {}
    QPixmap chatIcon() const override { return {}; }
    QImage chatImage(const QString&) const override { return {}; }
};

} // namespace

class TestTwitchParsing : public QObject
{
    Q_OBJECT

private slots:
    void linesFromReads_data()
    {
        QTest::addColumn<QList<QByteArray>>("reads");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<int>("pending");
        QTest::addColumn<int>("dropped");
        QTest::newRow("CR LF, one line a read") << QList<QByteArray>{"PING :a\r\n", "PING :b\r\n"}
                                                << QStringList{"PING :a", "PING :b"} << 0 << 0;
        QTest::newRow("bare LF and empty lines") << QList<QByteArray>{"a\n\r\n\nb\n"} << QStringList{"a", "b"} << 0 << 0;
        QTest::newRow("several in one read, the last unfinished")
            << QList<QByteArray>{"one\r\ntwo\r\nthr"} << QStringList{"one", "two"} << 3 << 0;
        QTest::newRow("split inside a line and between CR and LF")
            << QList<QByteArray>{"PRIV", "MSG #c :hi\r", "\nnext\r\n"} << QStringList{"PRIVMSG #c :hi", "next"} << 0 << 0;
        QTest::newRow("bytes that are no UTF-8 pass as they are")
            << QList<QByteArray>{QByteArray("x \xff\xfe\x00y\r\n", 8)} << QStringList{QString::fromLatin1("x \xff\xfe\0y", 6)} << 0 << 0;
        const QByteArray longest(int(IrcLineReader::maxLineLength), 'a');
        QTest::newRow("the longest line IRC allows") << QList<QByteArray>{longest.left(100), longest.mid(100) + "\r\n"}
                                                     << QStringList{QString(longest)} << 0 << 0;
        // A line over the limit is left out however it arrives; the buffer never holds more.
        QTest::newRow("over-long, in one read") << QList<QByteArray>{longest + "b\r\nok\r\n"} << QStringList{"ok"} << 0 << 1;
        QTest::newRow("over-long, never ending") << QList<QByteArray>{longest, longest, longest + "\nok\n"}
                                                 << QStringList{"ok"} << 0 << 1;
    }
    void linesFromReads()
    {
        QFETCH(QList<QByteArray>, reads);
        QFETCH(QStringList, lines);
        IrcLineReader reader;
        QCOMPARE(feed(reader, reads), lines);
        QTEST(int(reader.pendingSize()), "pending");
        QTEST(int(reader.droppedLines()), "dropped");
    }

    void messages_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("expected");
        const QByteArray prefix = " :kai!kai@kai.tmi.twitch.tv PRIVMSG #show :";
        QTest::newRow("Twitch line")
            << QByteArray("@badge-info=subscriber/14;badges=moderator/1,subscriber/12;color=#1E90FF;display-name=Kai\\sK;"
                          "emotes=25:0-4,12-16/1902:6-10;id=b34c;user-id=1 :kai!kai@kai.tmi.twitch.tv PRIVMSG #show :Kappa "
                          "Keepo Kappa")
            << "Kai K|#1E90FF|mod,subscriber|Kappa Keepo Kappa|0+5:25 6+5:1902 12+5:25";
        QTest::newRow("no tags: the nick, no colour") << QByteArray(prefix.mid(1) + "hi") << "kai|||hi|";
        QTest::newRow("tag block without =") << "@badges;color;display-name;;=;emotes" + prefix + "hi" << "kai|||hi|";
        QTest::newRow("colour that is none") << "@color=red;display-name=K" + prefix + "hi" << "K|||hi|";
        QTest::newRow("colour with markup") << "@color=#000\"><b>" + prefix + "hi" << "kai|||hi|";
        QTest::newRow("global_mod is no mod, subscriber/0 no subscriber")
            << "@badges=global_mod/1,subscriber/0,turbo/1,staff/2" + prefix + "hi" << "kai||global_mod,turbo|hi|";
        QTest::newRow("badge list of thousands")
            << "@badges=" + QByteArray("x/1,").repeated(5000) + "admin/1" + prefix + "hi" << "kai||admin|hi|";
        QTest::newRow("emote ranges beyond, reversed, overlapping, junk")
            << "@emotes=1:0-1,3-9,2-1,-1-0,a-b,0-99999999/2:1-2/3:2-2" + prefix + "hi!" << "kai|||hi!|0+2:1 2+1:3";
        QTest::newRow("emote ids with .. or a path")
            << "@emotes=..:0-1/%2F..%2Fx:0-0/a.b:0-0/../x:2-2" + prefix + "hi!" << "kai|||hi!|2+1:x";
        QTest::newRow("ranges count characters, not UTF-16 units")
            << "@emotes=9:2-3" + prefix + "\xF0\x9F\x98\x80 \xC3\xA9\xC3\xA9" << QString::fromUtf8("kai|||😀 éé|3+2:9");
        QTest::newRow("bytes that are no UTF-8") << QByteArray(prefix.mid(1) + "a\xff\xc3(b\xed\xa0\x80" "c\xf4\x90\x80\x80\xe2\x82")
                                                 << "kai|||" + QString::fromUtf8("a\xff\xc3(b\xed\xa0\x80" "c\xf4\x90\x80\x80\xe2\x82") + "|";
        const QByteArray mixed = "Kappa caf\xc3\xa9 is the stream\xe2\x80\x99s best \xf0\x9f\x98\x80 moment of all, agreed? \xc3\xa9t\xc3\xa9";
        QTest::newRow("long text, ASCII and not") << QByteArray("@emotes=25:0-4" + prefix + mixed)
                                                  << "kai|||" + QString::fromUtf8(mixed) + "|0+5:25";
        QTest::newRow("/me") << QByteArray("@emotes=7:0-1" + prefix + "\001ACTION waves\001") << "kai|||waves|0+2:7";
        QTest::newRow("HTML in the text stays text") << QByteArray(prefix.mid(1) + "<img src=x>&amp;")
                                                     << "kai|||<img src=x>&amp;|";
        QTest::newRow("another command") << QByteArray(":tmi.twitch.tv NOTICE * :PRIVMSG") << "not a message";
    }
    void messages()
    {
        QFETCH(QByteArray, line);
        QTEST(describe(line), "expected");
    }

    void richText_data()
    {
        QTest::addColumn<QString>("color");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariantList>("emotes");
        QTest::addColumn<QString>("html");
        const QString img = "<img src=\"http://e/1\" width=\"28\" height=\"28\" align=\"middle\" title=\"%1\">";
        const QVariantMap k{{"begin", 0}, {"length", 5}, {"url", "http://e/1"}};
        QTest::newRow("markup is escaped") << "#FF0000" << "<b>hi</b> & \"x\"" << QVariantList()
                                           << "<span style=\"color:#FF0000\"><b>A&lt;i&gt;</b></span>: "
                                              "&lt;b&gt;hi&lt;/b&gt; &amp; &quot;x&quot;";
        QTest::newRow("emote in place of its text") << "#FF0000" << "Kappa <x>" << QVariantList{k}
                                                    << "<span style=\"color:#FF0000\"><b>A&lt;i&gt;</b></span>: "
                                                           + img.arg("Kappa") + " &lt;x&gt;";
        QTest::newRow("a colour that is no colour, emotes outside the text or not http")
            << "red;background:url(x)" << "hi"
            << QVariantList{k, QVariantMap{{"begin", 0}, {"length", 1}, {"url", "file:///etc/passwd"}}}
            << "<span style=\"color:#808080\"><b>A&lt;i&gt;</b></span>: hi";
        QTest::newRow("five digits are no colour") << "#12345" << "hi" << QVariantList()
                                                   << "<span style=\"color:#808080\"><b>A&lt;i&gt;</b></span>: hi";
    }
    void richText()
    {
        QFETCH(QString, color);
        QFETCH(QString, text);
        QFETCH(QVariantList, emotes);
        ChatDesc desc;
        desc.author = "A<i>";
        desc.color = color;
        desc.message = text;
        desc.attributes.insert("emotes", emotes);
        QTEST(ChatHtml::render(desc), "html");
    }

    // Seeded with the whole second at each draw: users first seen in the same second share
    // a colour, and a user keeps the first one.
    void userColours()
    {
        Colors chat;
        const qint64 second = 1700000000000;
        const QString first = chat.colorFor("ann", second);
        QVERIFY(ChatProvider::colorTable().contains(first));
        QCOMPARE(chat.colorFor("bob", second + 999), first);
        QSet<QString> later;
        for (int i = 1; i <= 20; ++i) {
            later << chat.colorFor(QString("user%1").arg(i), second + i * 1000);
            QCOMPARE(chat.colorFor("ann", second + i * 1000), first);
        }
        QVERIFY(later.size() > 1);
    }
};

QTEST_GUILESS_MAIN(TestTwitchParsing)
#include "tst_twitchparsing.moc"
