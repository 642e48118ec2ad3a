#include "messagebox.h"
#include "serverdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <tuple>

namespace {
const QString warningText = QStringLiteral("Encryption characters must be between 10 and 79 characters.");

// The form as the operator sees it.
struct Form {
    explicit Form(ServerDialog& d)
        : dialog(d)
    {
    }
    template <class T>
    T* get(const char* name) const
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QLineEdit* edit(const char* name) const { return get<QLineEdit>(name); }
    QComboBox* combo(const char* name) const { return get<QComboBox>(name); }
    QWidget* widget(const char* name) const { return get<QWidget>(name); }
    QPushButton* ok() const { return get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    bool shown(const char* name) const { return widget(name)->isVisibleTo(&dialog); }
    void type(const char* name, const QString& text) const
    {
        QLineEdit* line = edit(name);
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    // Which of the four groups are visible, in the order key, useAuth, auth, srt.
    QString groups() const
    {
        QString visible;
        for (const char* name : {"streamKeyContainer", "useAuthContainer", "authContainer", "srtModeContainer"})
            visible += shown(name) ? QLatin1Char('1') : QLatin1Char('0');
        return visible;
    }
    ServerDialog& dialog;
};

// The server part of a record on one line, in field order.
QString describe(const Channel& c)
{
    return QStringList{c.title, c.url, QStringLiteral("key=") + c.key, c.mode, QStringLiteral("filter=") + c.filter,
                       QString::number(c.port), QString::number(c.latency), QString::number(c.keyLength),
                       QStringLiteral("pass=") + c.passphrase, QStringLiteral("id=") + c.streamId}
        .join(QLatin1Char('|'));
}

class ShownDialog
{
public:
    ShownDialog()
        : form(dialog)
    {
        dialog.show();
    }
    ServerDialog dialog;
    Form form;
};
} // namespace

class TestServerDialog : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void freshForm();
    void labelsShareOneWidth();
    void completerIgnoresCase();
    void schemeDecidesOkAndGroups_data();
    void schemeDecidesOkAndGroups();
    void unknownSchemeLeavesTheFormAsItIs_data();
    void unknownSchemeLeavesTheFormAsItIs();
    void streamIdOnlyForCallerButKept_data();
    void streamIdOnlyForCallerButKept();
    void authenticationFields();
    void passphraseLength_data();
    void passphraseLength();
    void revealButtons_data();
    void revealButtons();
    void numbersAcceptDigitsOnly();
    void acceptedRecords_data();
    void acceptedRecords();
    void execFillsTheFormFromStoredRecords_data();
    void execFillsTheFormFromStoredRecords();
    void execWithoutRecordsKeepsTheForm();
};

void TestServerDialog::initTestCase()
{
    MessageBox::setScripted(true);
}

void TestServerDialog::init()
{
    MessageBox::clear();
}

void TestServerDialog::freshForm()
{
    ServerDialog dialog;
    Form form(dialog);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Custom Server"));
    QVERIFY(dialog.isModal());
    const QList<std::tuple<const char*, const char*, QVariant>> properties{
        {"title", "text", "Untitled"},
        {"typeLabel", "text", "type : rtmp, rtmps, rtsp, srt, tcp, udp"},
        {"streamUrlInput", "placeholderText", "rtmp://host/application"},
        {"streamKeyInput", "placeholderText", "streamKey"},
        {"streamKeyInput", "echoMode", int(QLineEdit::Password)},
        {"srtPassphrase", "echoMode", int(QLineEdit::Password)},
        {"password", "echoMode", int(QLineEdit::Password)},
        {"showStreamKey", "text", "..."},
        {"showPassword", "text", "..."},
        {"useAuth", "text", "Use authentication"},
        {"useAuth", "checked", false},
        {"srtMode", "currentText", "listener"},
        {"srtPort", "text", "5000"},
        {"srtLatency", "text", "200"},
        {"srtKeyLength", "currentText", "16"},
        {"srtFilter", "currentText", "none"}};
    for (const auto& [object, property, expected] : properties) {
        const QVariant actual = form.get<QObject>(object)->property(property);
        const bool same = expected.userType() == QMetaType::Int ? actual.toInt() == expected.toInt() : actual == expected;
        QVERIFY2(same, qPrintable(QStringLiteral("%1.%2 is %3").arg(object, property, actual.toString())));
    }
    const auto items = [&form](const char* name) {
        QStringList texts;
        QComboBox* combo = form.combo(name);
        for (int i = 0; i < combo->count(); ++i)
            texts << combo->itemText(i) + QLatin1Char('=') + combo->itemData(i).toString();
        return texts;
    };
    QCOMPARE(items("srtMode"), QStringList({"caller=", "listener=", "rendezvous="}));
    QCOMPARE(items("srtKeyLength"), QStringList({"16=", "24=", "32="}));
    QCOMPARE(items("srtFilter"), QStringList({"none=", "fec=fec,cols:20,rows:20"}));
    QVERIFY(!form.get<QToolButton>("showStreamKey")->icon().isNull());
    QVERIFY(!form.ok()->isEnabled());
    QCOMPARE(form.ok()->text(), QStringLiteral("OK"));
    QCOMPARE(form.groups(), QStringLiteral("0000"));
    // The records already hold the defaults.
    QCOMPARE(describe(dialog.channel()),
             QStringLiteral("Untitled||key=|listener|filter=|5000|200|16|pass=|id="));
}

void TestServerDialog::labelsShareOneWidth()
{
    ServerDialog dialog;
    Form form(dialog);
    int widest = 60;
    QList<QLabel*> left;
    for (const char* name : {"titleLabel", "streamUrlLabel", "streamKeyLabel", "srtModeLabel", "srtPortLabel",
                             "srtLatencyLabel", "srtPassphraseLabel", "srtKeyLengthLabel", "srtStreamIDLabel",
                             "srtFilterLabel", "usernameLabel", "passwordLabel"}) {
        auto* label = form.get<QLabel>(name);
        QVERIFY2(label, name);
        left << label;
        widest = qMax(widest, label->fontMetrics().horizontalAdvance(label->text()));
    }
    for (QLabel* label : left)
        QCOMPARE(label->minimumWidth(), widest);
}

void TestServerDialog::completerIgnoresCase()
{
    ServerDialog dialog;
    QCompleter* completer = Form(dialog).edit("streamUrlInput")->completer();
    QVERIFY(completer);
    QCOMPARE(completer->caseSensitivity(), Qt::CaseInsensitive);
    completer->setCompletionPrefix(QStringLiteral("RT"));
    QStringList found;
    for (int i = 0; completer->setCurrentRow(i); ++i)
        found << completer->currentCompletion();
    QCOMPARE(found, QStringList({"rtmp://", "rtmps://", "rtsp://"}));
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
    QTest::newRow("RTMPS") << "RTMPS://ingest.example/app" << "Main" << "k" << true << "1100";
    QTest::newRow("rtmp without key") << "rtmp://ingest.example/live" << "Main" << "" << false << "1100";
    QTest::newRow("rtmp without title") << "rtmp://ingest.example/live" << "" << "abc" << false << "1100";
    QTest::newRow("srt") << "srt://10.0.0.5:9000" << "Field" << "" << true << "0001";
    QTest::newRow("Srt mixed case") << "Srt://10.0.0.5:9000" << "Field" << "" << true << "0001";
    QTest::newRow("srt without title") << "srt://10.0.0.5:9000" << "" << "" << false << "0001";
    QTest::newRow("rtsp") << "rtsp://camera.local/stream" << "Cam" << "" << true << "0000";
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

    ShownDialog shown;
    const Form& form = shown.form;
    form.type("streamUrlInput", url);
    form.type("streamKeyInput", key);
    form.type("title", title);
    QCOMPARE(form.ok()->isEnabled(), ok);
    QCOMPARE(form.groups(), groups);
    QCOMPARE(shown.dialog.channel().url, url);
}

void TestServerDialog::unknownSchemeLeavesTheFormAsItIs_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("groups");
    QTest::newRow("after rtmp") << "rtmp://ingest.example/live" << "abc" << true << "1100";
    QTest::newRow("after rtmp without key") << "rtmp://ingest.example/live" << "" << false << "1100";
    QTest::newRow("after srt") << "srt://10.0.0.5:9000" << "" << true << "0001";
    QTest::newRow("after udp") << "udp://239.0.0.1:1234" << "" << true << "0000";
}

void TestServerDialog::unknownSchemeLeavesTheFormAsItIs()
{
    QFETCH(QString, url);
    QFETCH(QString, key);
    QFETCH(bool, ok);
    QFETCH(QString, groups);
    ShownDialog shown;
    const Form& form = shown.form;
    form.type("streamUrlInput", url);
    form.type("streamKeyInput", key);
    QCOMPARE(form.ok()->isEnabled(), ok);

    form.type("streamUrlInput", QStringLiteral("http://ingest.example/live"));
    form.type("title", QString());
    QCOMPARE(form.ok()->isEnabled(), ok);
    QCOMPARE(form.groups(), groups);
    // The records still follow the controls.
    QCOMPARE(shown.dialog.channel().url, QStringLiteral("http://ingest.example/live"));
    QCOMPARE(shown.dialog.channel().title, QString());
}

void TestServerDialog::streamIdOnlyForCallerButKept_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("shown");
    QTest::newRow("caller") << "caller" << true;
    QTest::newRow("listener") << "listener" << false;
    QTest::newRow("rendezvous") << "rendezvous" << false;
}

void TestServerDialog::streamIdOnlyForCallerButKept()
{
    QFETCH(QString, mode);
    QFETCH(bool, shown);
    ShownDialog dialog;
    const Form& form = dialog.form;
    form.type("streamUrlInput", QStringLiteral("srt://10.0.0.5:9000"));
    form.combo("srtMode")->setCurrentText(QStringLiteral("caller"));
    QVERIFY(form.shown("srtStreamID"));
    QVERIFY(form.shown("srtStreamIDLabel"));
    form.type("srtStreamID", QStringLiteral("#!::r=live/cam1,m=publish"));

    form.combo("srtMode")->setCurrentText(mode);
    QCOMPARE(form.shown("srtStreamID"), shown);
    QCOMPARE(form.shown("srtStreamIDLabel"), shown);
    QCOMPARE(dialog.dialog.channel().mode, mode);
    QCOMPARE(dialog.dialog.channel().streamId, QStringLiteral("#!::r=live/cam1,m=publish"));
    QCOMPARE(form.edit("srtStreamID")->text(), QStringLiteral("#!::r=live/cam1,m=publish"));
}

void TestServerDialog::authenticationFields()
{
    ShownDialog shown;
    const Form& form = shown.form;
    auto* useAuth = form.get<QCheckBox>("useAuth");
    form.type("streamUrlInput", QStringLiteral("rtmp://ingest.example/live"));
    QVERIFY(!form.shown("authContainer"));
    QTest::mouseClick(useAuth, Qt::LeftButton, Qt::NoModifier, QPoint(4, useAuth->height() / 2));
    QVERIFY(useAuth->isChecked());
    QVERIFY(form.shown("authContainer"));
    QVERIFY(shown.dialog.oauth().authorized);
    form.type("username", QStringLiteral("encoder"));
    form.type("password", QStringLiteral("pa55"));
    QCOMPARE(shown.dialog.oauth().username, QStringLiteral("encoder"));
    QCOMPARE(shown.dialog.oauth().password, QStringLiteral("pa55"));

    // SRT has no authentication; back on RTMP the ticked box shows its fields again.
    form.type("streamUrlInput", QStringLiteral("srt://10.0.0.5:9000"));
    QCOMPARE(form.groups(), QStringLiteral("0001"));
    form.type("streamUrlInput", QStringLiteral("rtmp://ingest.example/live"));
    QCOMPARE(form.groups(), QStringLiteral("1110"));

    QTest::mouseClick(useAuth, Qt::LeftButton, Qt::NoModifier, QPoint(4, useAuth->height() / 2));
    QVERIFY(!form.shown("authContainer"));
    QVERIFY(!shown.dialog.oauth().authorized);
    QCOMPARE(shown.dialog.oauth().username, QStringLiteral("encoder"));
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
    ShownDialog shown;
    const Form& form = shown.form;
    form.type("streamUrlInput", QStringLiteral("srt://10.0.0.5:9000"));
    form.type("srtPassphrase", QString(length, QLatin1Char('p')));
    QVERIFY(form.ok()->isEnabled());
    QTest::mouseClick(form.ok(), Qt::LeftButton);

    QCOMPARE(shown.dialog.isVisible(), !accepted);
    QCOMPARE(shown.dialog.result(), accepted ? int(QDialog::Accepted) : int(QDialog::Rejected));
    if (accepted) {
        QVERIFY(MessageBox::shown().isEmpty());
        QCOMPARE(shown.dialog.channel().passphrase.size(), length);
    } else {
        QCOMPARE(MessageBox::shown().size(), 1);
        QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Warning);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("warning"));
        QCOMPARE(MessageBox::lastShown().text, warningText);
    }
}

void TestServerDialog::revealButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("url");
    QTest::newRow("stream key") << "showStreamKey" << "streamKeyInput" << "rtmp://ingest.example/live";
    QTest::newRow("passphrase") << "showPassword" << "srtPassphrase" << "srt://10.0.0.5:9000";
}

void TestServerDialog::revealButtons()
{
    QFETCH(QString, button);
    QFETCH(QString, field);
    QFETCH(QString, url);
    ShownDialog shown;
    shown.form.type("streamUrlInput", url);
    auto* reveal = shown.dialog.findChild<QToolButton*>(button);
    auto* edit = shown.dialog.findChild<QLineEdit*>(field);
    QTest::mouseClick(reveal, Qt::LeftButton);
    QCOMPARE(edit->echoMode(), QLineEdit::Normal);
    QTest::mouseClick(reveal, Qt::LeftButton);
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
}

void TestServerDialog::numbersAcceptDigitsOnly()
{
    ShownDialog shown;
    const Form& form = shown.form;
    form.type("streamUrlInput", QStringLiteral("srt://10.0.0.5:9000"));
    form.type("srtPort", QStringLiteral("9a0-0.1"));
    QCOMPARE(form.edit("srtPort")->text(), QStringLiteral("9001"));
    QCOMPARE(shown.dialog.channel().port, 9001);
    form.type("srtLatency", QString());
    QCOMPARE(shown.dialog.channel().latency, 0);
}

void TestServerDialog::acceptedRecords_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("filter");
    QTest::addColumn<QString>("filterData");
    QTest::newRow("srt caller with fec") << "srt://10.0.0.5:9000" << "caller" << 1 << "fec,cols:20,rows:20";
    QTest::newRow("SRT rendezvous") << "SRT://10.0.0.5:9000" << "rendezvous" << 0 << "";
}

void TestServerDialog::acceptedRecords()
{
    QFETCH(QString, url);
    QFETCH(QString, mode);
    QFETCH(int, filter);
    QFETCH(QString, filterData);
    ShownDialog shown;
    const Form& form = shown.form;
    form.type("title", QStringLiteral("Venue uplink"));
    form.type("streamUrlInput", url);
    form.combo("srtMode")->setCurrentText(mode);
    form.type("srtPort", QStringLiteral("9000"));
    form.type("srtLatency", QStringLiteral("1200"));
    form.type("srtPassphrase", QStringLiteral("0123456789abc"));
    form.combo("srtKeyLength")->setCurrentText(QStringLiteral("32"));
    form.type("srtStreamID", QStringLiteral("cam1"));
    form.combo("srtFilter")->setCurrentIndex(filter);
    QTest::mouseClick(form.ok(), Qt::LeftButton);
    QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));

    QCOMPARE(describe(shown.dialog.channel()),
             QStringLiteral("Venue uplink|%1|key=|%2|filter=%3|9000|1200|32|pass=0123456789abc|id=cam1")
                 .arg(url, mode, filterData));
    QVERIFY(!shown.dialog.oauth().authorized);
}

void TestServerDialog::execFillsTheFormFromStoredRecords_data()
{
    QTest::addColumn<QString>("storedFilter");
    QTest::addColumn<int>("filterIndex");
    QTest::newRow("fec filter") << "fec,cols:20,rows:20" << 1;
    QTest::newRow("fec written differently") << "fec,cols:10" << 1;
    QTest::newRow("no filter") << "" << 0;
}

void TestServerDialog::execFillsTheFormFromStoredRecords()
{
    QFETCH(QString, storedFilter);
    QFETCH(int, filterIndex);
    Channel stored;
    stored.title = QStringLiteral("Backup");
    stored.url = QStringLiteral("rtmp://backup.example/live");
    stored.key = QStringLiteral("live_123");
    stored.mode = QStringLiteral("rendezvous");
    stored.filter = storedFilter;
    stored.port = 7001;
    stored.latency = 350;
    stored.keyLength = 24;
    stored.passphrase = QStringLiteral("long enough phrase");
    stored.streamId = QStringLiteral("sid");
    OAuth account;
    account.username = QStringLiteral("op");
    account.password = QStringLiteral("pw");
    account.authorized = true;

    ServerDialog dialog;
    Form form(dialog);
    QString seenGroups;
    bool okEnabled = false;
    QTimer::singleShot(0, &dialog, [&] {
        seenGroups = form.groups();
        okEnabled = form.ok()->isEnabled();
        QTest::mouseClick(form.ok(), Qt::LeftButton);
    });
    QCOMPARE(dialog.exec(&stored, &account), int(QDialog::Accepted));
    QCOMPARE(seenGroups, QStringLiteral("1110"));
    QVERIFY(okEnabled);
    QCOMPARE(form.combo("srtFilter")->currentIndex(), filterIndex);

    Channel expected = stored;
    expected.filter = filterIndex ? QStringLiteral("fec,cols:20,rows:20") : QString();
    QCOMPARE(describe(dialog.channel()), describe(expected));
    QCOMPARE(dialog.oauth().username, QStringLiteral("op"));
    QCOMPARE(dialog.oauth().password, QStringLiteral("pw"));
    QVERIFY(dialog.oauth().authorized);
}

void TestServerDialog::execWithoutRecordsKeepsTheForm()
{
    Channel stored;
    stored.title = QStringLiteral("Ignored");
    stored.url = QStringLiteral("srt://a:1");
    ServerDialog dialog;
    Form form(dialog);
    QTimer::singleShot(0, &dialog, [&] { form.get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel)->click(); });
    QCOMPARE(dialog.exec(&stored, nullptr), int(QDialog::Rejected));
    QCOMPARE(form.edit("title")->text(), QStringLiteral("Untitled"));
    QCOMPARE(form.edit("streamUrlInput")->text(), QString());
    QCOMPARE(form.groups(), QStringLiteral("0000"));
}

QTEST_MAIN(TestServerDialog)
#include "tst_serverdialog.moc"
