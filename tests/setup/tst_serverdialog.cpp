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
    QPushButton* ok() const { return get<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    void type(const char* name, const QString& text) const
    {
        auto* line = get<QLineEdit>(name);
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }
    // Which groups are visible, one digit each: key, useAuth, auth, srt; then " ok" while OK is enabled.
    QString groups() const
    {
        QString visible;
        for (const char* name : {"streamKeyContainer", "useAuthContainer", "authContainer", "srtModeContainer"})
            visible += get(name)->isVisibleTo(&dialog) ? '1' : '0';
        return visible + (ok()->isEnabled() ? " ok" : "");
    }
    // The server record on one line, in field order, then the account.
    QString record() const
    {
        const Channel& c = dialog.channel();
        const OAuth& a = dialog.oauth();
        return QStringList{c.title, c.url, c.key, c.mode, c.filter, QString::number(c.port), QString::number(c.latency),
                           QString::number(c.keyLength), c.passphrase, c.streamId,
                           a.authorized ? a.username + ':' + a.password : "-"}
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

    void freshFormAndExecWithoutRecords()
    {
        Form form(false);
        const QString fresh = QStringLiteral("Untitled|||listener||5000|200|16|||-");
        QCOMPARE(form.groups() + ' ' + form.record(), "0000 " + fresh);
        // Without credentials the stored server is not loaded.
        Channel stored;
        stored.url = "srt://a:1";
        QTimer::singleShot(0, &form.dialog, [&] { form.dialog.reject(); });
        QCOMPARE(form.dialog.exec(&stored, nullptr), int(QDialog::Rejected));
        QCOMPARE(form.record(), fresh);
    }

    void schemeDecidesOkAndGroups_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("groups"); // key, useAuth, auth, srt, OK
        QTest::newRow("rtmp") << "rtmp://ingest.example/live" << "Main" << "abc" << "1100 ok";
        QTest::newRow("RTMP in capitals") << "RTMP://INGEST.EXAMPLE/LIVE" << "Main" << "abc" << "1100 ok";
        QTest::newRow("rtmp without key") << "rtmp://ingest.example/live" << "Main" << "" << "1100";
        QTest::newRow("srt") << "srt://10.0.0.5:9000" << "Field" << "" << "0001 ok";
        QTest::newRow("srt without title") << "srt://10.0.0.5:9000" << "" << "" << "0001";
        QTest::newRow("Rtsp") << "Rtsp://camera.local/stream" << "Cam" << "" << "0000 ok";
        QTest::newRow("UDP") << "UDP://239.0.0.1:1234" << "Multicast" << "" << "0000 ok";
        QTest::newRow("rtmp wins over srt") << "srt://relay.example?target=rtmp://x" << "Relay" << "" << "1100";
        QTest::newRow("srt wins over udp") << "udp://a?srt://b" << "Relay" << "" << "0001 ok";
    }
    void schemeDecidesOkAndGroups()
    {
        QFETCH(QString, title);
        QFETCH(QString, groups);
        Form form;
        QFETCH(QString, url);
        QFETCH(QString, key);
        form.type("streamUrlInput", url);
        form.type("streamKeyInput", key);
        form.type("title", title);
        QCOMPARE(form.groups(), groups);
        // A URL of none of the six schemes changes neither OK nor the groups, though the record follows.
        form.type("streamUrlInput", "http://ingest.example/live");
        form.type("title", title.isEmpty() ? "Now titled" : "");
        QCOMPARE(form.groups(), groups);
        QCOMPARE(form.dialog.channel().url, QStringLiteral("http://ingest.example/live"));
    }

    void srtAndAuthenticationFields()
    {
        Form form;
        form.type("streamUrlInput", "srt://10.0.0.5:9000");
        form.get<QComboBox>("srtMode")->setCurrentText("caller");
        form.type("srtStreamID", "cam1");
        form.get<QToolButton>("showPassword")->click(); // the passphrase shows until clicked again
        QCOMPARE(form.get<QLineEdit>("srtPassphrase")->echoMode(), QLineEdit::Normal);
        // The stream id is asked for a caller only, and kept for a listener.
        for (const QString mode : {"listener", "caller"}) {
            form.get<QComboBox>("srtMode")->setCurrentText(mode);
            QCOMPARE(form.get("srtStreamID")->isVisibleTo(&form.dialog), mode == "caller");
            QCOMPARE(form.get("srtStreamIDLabel")->isVisibleTo(&form.dialog), mode == "caller");
            QCOMPARE(form.record(), "Untitled|srt://10.0.0.5:9000||" + mode + "||5000|200|16||cam1|-");
        }

        form.type("streamUrlInput", "rtmp://ingest.example/live");
        form.get<QToolButton>("showStreamKey")->click();
        QCOMPARE(form.get<QLineEdit>("streamKeyInput")->echoMode(), QLineEdit::Normal);
        auto* useAuth = form.get<QCheckBox>("useAuth");
        QTest::mouseClick(useAuth, Qt::LeftButton, Qt::NoModifier, QPoint(4, useAuth->height() / 2));
        form.type("username", "encoder");
        form.type("password", "pa55");
        QCOMPARE(form.groups(), QStringLiteral("1110"));
        QVERIFY(form.record().endsWith("|encoder:pa55"));
        // SRT has no authentication; back on RTMP the ticked box shows its fields again.
        form.type("streamUrlInput", "srt://10.0.0.5:9000");
        QCOMPARE(form.groups(), QStringLiteral("0001 ok"));
        form.type("streamUrlInput", "rtmp://ingest.example/live");
        QCOMPARE(form.groups(), QStringLiteral("1110"));
    }

    void passphraseLength_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("empty") << 0 << true;
        QTest::newRow("9") << 9 << false;
        QTest::newRow("10") << 10 << true;
        QTest::newRow("80, upper bound not checked") << 80 << true;
    }
    void passphraseLength()
    {
        QFETCH(int, length);
        QFETCH(bool, accepted);
        Form form;
        form.type("streamUrlInput", "srt://10.0.0.5:9000");
        form.type("srtPassphrase", QString(length, 'p'));
        QTest::mouseClick(form.ok(), Qt::LeftButton);
        QCOMPARE(form.dialog.result(), accepted ? int(QDialog::Accepted) : int(QDialog::Rejected));
        QCOMPARE(form.dialog.isVisible(), !accepted);
        const QString box = MessageBox::shown().isEmpty() ? QString() : MessageBox::lastShown().title + '|' + MessageBox::lastShown().text;
        QCOMPARE(box, accepted ? QString() : QStringLiteral("warning|Encryption characters must be between 10 and 79 characters."));
    }

    void execEditsStoredRecords_data()
    {
        QTest::addColumn<QString>("storedFilter");
        QTest::addColumn<QString>("filter"); // after the dialog
        QTest::newRow("fec written differently") << "fec,cols:10" << "fec,cols:20,rows:20";
        QTest::newRow("no filter") << "" << "";
    }
    void execEditsStoredRecords()
    {
        QFETCH(QString, storedFilter);
        QFETCH(QString, filter);
        const Channel stored{{}, {}, "Backup", {}, "rtmp://backup.example/live", "live_123", {}, {}, "rendezvous",
                             storedFilter, 7001, 350, 24, "long enough phrase", "sid"};
        const OAuth account{{}, {}, {}, {}, "op", "pw", true};
        Form form(false);
        QString seen;
        QTimer::singleShot(0, &form.dialog, [&] {
            seen = form.groups();
            form.type("srtPort", "9a0-0.0"); // digits only
            form.type("srtLatency", "");
            QTest::mouseClick(form.ok(), Qt::LeftButton);
        });
        QCOMPARE(form.dialog.exec(&stored, &account), int(QDialog::Accepted));
        QCOMPARE(seen, QStringLiteral("1110 ok"));
        QCOMPARE(form.record(), "Backup|rtmp://backup.example/live|live_123|rendezvous|" + filter
                                    + "|9000|0|24|long enough phrase|sid|op:pw");
    }
};

QTEST_MAIN(TestServerDialog)
#include "tst_serverdialog.moc"
