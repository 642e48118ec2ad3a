#include "setup/serverdialog.h"
#include "widgets/messagebox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {
// The dialog as the operator sees it, on screen unless said otherwise.
struct Form {
    explicit Form(bool show = true)
    {
        if (show)
            dialog.show();
    }
    template <class T = QWidget>
    T* get(const char* name) const
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QComboBox* combo(const char* name) const { return get<QComboBox>(name); }
    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return get<QDialogButtonBox>("buttonBox")->button(which);
    }
    bool okEnabled() const { return button(QDialogButtonBox::Ok)->isEnabled(); }
    bool shown(const char* name) const { return get(name)->isVisibleTo(&dialog); }
    void type(const char* name, const QString& text) const
    {
        auto* line = get<QLineEdit>(name);
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    void click(const char* name) const
    {
        auto* box = get<QCheckBox>(name);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(4, box->height() / 2));
    }
    // Which groups are visible, one digit each: key, useAuth, auth, srt.
    QString groups() const
    {
        QString visible;
        for (const char* name : {"streamKeyContainer", "useAuthContainer", "authContainer", "srtModeContainer"})
            visible += shown(name) ? '1' : '0';
        return visible;
    }
    // The server record on one line, in field order.
    QString record() const
    {
        const Channel& c = dialog.channel();
        return QStringList{c.title, c.url, "key=" + c.key, c.mode, "filter=" + c.filter, QString::number(c.port),
                           QString::number(c.latency), QString::number(c.keyLength), "pass=" + c.passphrase,
                           "id=" + c.streamId}
            .join('|');
    }
    mutable ServerDialog dialog;
};
} // namespace

class TestServerDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { MessageBox::setScripted(true); }
    void init() { MessageBox::clear(); }
    void freshFormAndExecWithoutRecords();
    void schemeDecidesOkAndGroups_data();
    void schemeDecidesOkAndGroups();
    void streamIdOnlyForCallerButKept();
    void authenticationFields();
    void passphraseLength_data();
    void passphraseLength();
    void revealButtons();
    void acceptedRecords_data();
    void acceptedRecords();
    void execFillsTheFormFromStoredRecords_data();
    void execFillsTheFormFromStoredRecords();
};

void TestServerDialog::freshFormAndExecWithoutRecords()
{
    Form form(false);
    QVERIFY(!form.okEnabled());
    QCOMPARE(form.groups(), QStringLiteral("0000"));
    QCOMPARE(form.record(), QStringLiteral("Untitled||key=|listener|filter=|5000|200|16|pass=|id="));

    // Without credentials the stored server is not loaded.
    Channel stored;
    stored.title = "Ignored";
    stored.url = "srt://a:1";
    QTimer::singleShot(0, &form.dialog, [&] { form.button(QDialogButtonBox::Cancel)->click(); });
    QCOMPARE(form.dialog.exec(&stored, nullptr), int(QDialog::Rejected));
    QCOMPARE(form.record(), QStringLiteral("Untitled||key=|listener|filter=|5000|200|16|pass=|id="));
    QCOMPARE(form.groups(), QStringLiteral("0000"));
}

void TestServerDialog::schemeDecidesOkAndGroups_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("groups"); // key, useAuth, auth, srt

    QTest::newRow("rtmp") << "rtmp://ingest.example/live" << "Main" << "abc" << true << "1100";
    QTest::newRow("RTMP in capitals") << "RTMP://INGEST.EXAMPLE/LIVE" << "Main" << "abc" << true << "1100";
    QTest::newRow("rtmps") << "rtmps://ingest.example:443/app" << "Main" << "k" << true << "1100";
    QTest::newRow("rtmp without key") << "rtmp://ingest.example/live" << "Main" << "" << false << "1100";
    QTest::newRow("rtmp without title") << "rtmp://ingest.example/live" << "" << "abc" << false << "1100";
    QTest::newRow("srt") << "srt://10.0.0.5:9000" << "Field" << "" << true << "0001";
    QTest::newRow("Srt mixed case") << "Srt://10.0.0.5:9000" << "Field" << "" << true << "0001";
    QTest::newRow("srt without title") << "srt://10.0.0.5:9000" << "" << "" << false << "0001";
    QTest::newRow("Rtsp") << "Rtsp://camera.local/stream" << "Cam" << "" << true << "0000";
    QTest::newRow("tcp") << "tcp://192.168.1.20:7000" << "Tcp" << "" << true << "0000";
    QTest::newRow("UDP") << "UDP://239.0.0.1:1234" << "Multicast" << "" << true << "0000";
    QTest::newRow("udp without title") << "udp://239.0.0.1:1234" << "" << "" << false << "0000";
    QTest::newRow("rtmp wins over srt") << "srt://relay.example?target=rtmp://x" << "Relay" << "" << false << "1100";
    QTest::newRow("srt wins over udp") << "udp://a?srt://b" << "Relay" << "" << true << "0001";
}

void TestServerDialog::schemeDecidesOkAndGroups()
{
    QFETCH(QString, url);
    QFETCH(QString, title);
    QFETCH(QString, key);
    QFETCH(bool, ok);
    QFETCH(QString, groups);

    Form form;
    form.type("streamUrlInput", url);
    form.type("streamKeyInput", key);
    form.type("title", title);
    QCOMPARE(form.okEnabled(), ok);
    QCOMPARE(form.groups(), groups);
    QCOMPARE(form.dialog.channel().url, url);

    // A URL of none of the six schemes changes neither OK nor the groups, though the record follows.
    form.type("streamUrlInput", "http://ingest.example/live");
    form.type("title", title.isEmpty() ? "Now titled" : "");
    QCOMPARE(form.okEnabled(), ok);
    QCOMPARE(form.groups(), groups);
    QCOMPARE(form.dialog.channel().url, QStringLiteral("http://ingest.example/live"));
}

void TestServerDialog::streamIdOnlyForCallerButKept()
{
    Form form;
    form.type("streamUrlInput", "srt://10.0.0.5:9000");
    form.combo("srtMode")->setCurrentText("caller");
    form.type("srtStreamID", "#!::r=live/cam1,m=publish");
    for (const QString mode : {"listener", "rendezvous", "caller"}) {
        form.combo("srtMode")->setCurrentText(mode);
        QCOMPARE(form.shown("srtStreamID"), mode == "caller");
        QCOMPARE(form.shown("srtStreamIDLabel"), mode == "caller");
        QCOMPARE(form.record(), "Untitled|srt://10.0.0.5:9000|key=|" + mode
                                    + "|filter=|5000|200|16|pass=|id=#!::r=live/cam1,m=publish");
    }
}

void TestServerDialog::authenticationFields()
{
    Form form;
    form.type("streamUrlInput", "rtmp://ingest.example/live");
    QCOMPARE(form.groups(), QStringLiteral("1100"));
    form.click("useAuth");
    QCOMPARE(form.groups(), QStringLiteral("1110"));
    QVERIFY(form.dialog.oauth().authorized);
    form.type("username", "encoder");
    form.type("password", "pa55");
    QCOMPARE(form.dialog.oauth().username + ':' + form.dialog.oauth().password, QStringLiteral("encoder:pa55"));

    // SRT has no authentication; back on RTMP the ticked box shows its fields again.
    form.type("streamUrlInput", "srt://10.0.0.5:9000");
    QCOMPARE(form.groups(), QStringLiteral("0001"));
    form.type("streamUrlInput", "rtmp://ingest.example/live");
    QCOMPARE(form.groups(), QStringLiteral("1110"));

    form.click("useAuth");
    QCOMPARE(form.groups(), QStringLiteral("1100"));
    QVERIFY(!form.dialog.oauth().authorized);
    QCOMPARE(form.dialog.oauth().username, QStringLiteral("encoder"));
}

void TestServerDialog::passphraseLength_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("empty") << 0 << true;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("9") << 9 << false;
    QTest::newRow("10") << 10 << true;
    QTest::newRow("79") << 79 << true;
    QTest::newRow("80, upper bound not checked") << 80 << true;
}

void TestServerDialog::passphraseLength()
{
    QFETCH(int, length);
    QFETCH(bool, accepted);
    Form form;
    form.type("streamUrlInput", "srt://10.0.0.5:9000");
    form.type("srtPassphrase", QString(length, 'p'));
    QTest::mouseClick(form.button(QDialogButtonBox::Ok), Qt::LeftButton);

    QCOMPARE(form.dialog.isVisible(), !accepted);
    QCOMPARE(form.dialog.result(), accepted ? int(QDialog::Accepted) : int(QDialog::Rejected));
    QCOMPARE(form.dialog.channel().passphrase.size(), length);
    QCOMPARE(MessageBox::shown().size(), accepted ? 0 : 1);
    if (!accepted) {
        QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Warning);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("warning"));
        QCOMPARE(MessageBox::lastShown().text,
                 QStringLiteral("Encryption characters must be between 10 and 79 characters."));
    }
}

void TestServerDialog::revealButtons()
{
    Form form;
    for (const auto& [button, field, url] : {std::make_tuple("showStreamKey", "streamKeyInput", "rtmp://a.test/live"),
                                             std::make_tuple("showPassword", "srtPassphrase", "srt://10.0.0.5:9000")}) {
        form.type("streamUrlInput", url);
        auto* edit = form.get<QLineEdit>(field);
        QCOMPARE(edit->echoMode(), QLineEdit::Password);
        QTest::mouseClick(form.get<QToolButton>(button), Qt::LeftButton);
        QCOMPARE(edit->echoMode(), QLineEdit::Normal);
        QTest::mouseClick(form.get<QToolButton>(button), Qt::LeftButton);
        QCOMPARE(edit->echoMode(), QLineEdit::Password);
    }
}

void TestServerDialog::acceptedRecords_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("filter");
    QTest::addColumn<QString>("latency"); // as typed
    QTest::addColumn<QString>("record");
    QTest::newRow("srt caller with fec") << "srt://10.0.0.5:9000" << "caller" << 1 << "1200"
                                         << "srt://10.0.0.5:9000|key=|caller|filter=fec,cols:20,rows:20|9000|1200";
    QTest::newRow("SRT rendezvous, no latency") << "SRT://10.0.0.5:9000" << "rendezvous" << 0 << ""
                                                << "SRT://10.0.0.5:9000|key=|rendezvous|filter=|9000|0";
}

void TestServerDialog::acceptedRecords()
{
    QFETCH(QString, url);
    QFETCH(QString, mode);
    QFETCH(int, filter);
    QFETCH(QString, latency);
    QFETCH(QString, record);
    Form form;
    form.type("title", "Venue uplink");
    form.type("streamUrlInput", url);
    form.combo("srtMode")->setCurrentText(mode);
    form.type("srtPort", "9a0-0.0"); // digits only
    QCOMPARE(form.get<QLineEdit>("srtPort")->text(), QStringLiteral("9000"));
    form.type("srtLatency", latency);
    form.type("srtPassphrase", "0123456789abc");
    form.combo("srtKeyLength")->setCurrentText("32");
    form.type("srtStreamID", "cam1");
    form.combo("srtFilter")->setCurrentIndex(filter);
    QTest::mouseClick(form.button(QDialogButtonBox::Ok), Qt::LeftButton);
    QCOMPARE(form.dialog.result(), int(QDialog::Accepted));
    QCOMPARE(form.record(), "Venue uplink|" + record + "|32|pass=0123456789abc|id=cam1");
    QVERIFY(!form.dialog.oauth().authorized);
}

void TestServerDialog::execFillsTheFormFromStoredRecords_data()
{
    QTest::addColumn<QString>("storedFilter");
    QTest::addColumn<QString>("filter"); // after the dialog
    QTest::newRow("fec filter") << "fec,cols:20,rows:20" << "fec,cols:20,rows:20";
    QTest::newRow("fec written differently") << "fec,cols:10" << "fec,cols:20,rows:20";
    QTest::newRow("no filter") << "" << "";
}

void TestServerDialog::execFillsTheFormFromStoredRecords()
{
    QFETCH(QString, storedFilter);
    QFETCH(QString, filter);
    Channel stored;
    stored.title = "Backup";
    stored.url = "rtmp://backup.example/live";
    stored.key = "live_123";
    stored.mode = "rendezvous";
    stored.filter = storedFilter;
    stored.port = 7001;
    stored.latency = 350;
    stored.keyLength = 24;
    stored.passphrase = "long enough phrase";
    stored.streamId = "sid";
    OAuth account;
    account.username = "op";
    account.password = "pw";
    account.authorized = true;

    Form form(false);
    QString seen;
    QTimer::singleShot(0, &form.dialog, [&] {
        seen = form.groups() + (form.okEnabled() ? " ok" : "");
        QTest::mouseClick(form.button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    QCOMPARE(form.dialog.exec(&stored, &account), int(QDialog::Accepted));
    QCOMPARE(seen, QStringLiteral("1110 ok"));
    QCOMPARE(form.record(), "Backup|rtmp://backup.example/live|key=live_123|rendezvous|filter=" + filter
                                + "|7001|350|24|pass=long enough phrase|id=sid");
    QCOMPARE(form.dialog.oauth().username + ':' + form.dialog.oauth().password, QStringLiteral("op:pw"));
    QVERIFY(form.dialog.oauth().authorized);
}

QTEST_MAIN(TestServerDialog)
#include "tst_serverdialog.moc"
