// ctest: serial
// (the best-server test binds the fixed ingest port 1935 on 127.0.0.1)
#include "provider/simpleprovider.h"
#include "provider/webview.h"
#include "setup/authorizedialog.h"
#include "setup/basewidget.h"
#include "setup/panelupdater.h"
#include "setup/serverdialog.h"
#include "support/fakecefmanager.h"
#include "support/fakeview.h"
#include "support/modaldriver.h"
#include "support/streamingsetupform.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QJsonDocument>
#include <QPushButton>
#include <QTcpServer>

#include <sys/stat.h>

namespace {

// Fills the custom server dialog as an operator would and presses OK.
void fillServerDialog(ServerDialog* dialog, const QString& title, const QString& url, const QString& key)
{
    auto* line = dialog->findChild<QLineEdit*>("title");
    line->selectAll();
    QTest::keyClicks(line, title);
    QTest::keyClicks(dialog->findChild<QLineEdit*>("streamUrlInput"), url);
    QTest::keyClicks(dialog->findChild<QLineEdit*>("streamKeyInput"), key);
    dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
}

QJsonObject readJson(const QString& path)
{
    return QJsonDocument::fromJson(TestKit::readFile(path)).object();
}

} // namespace

class TestBaseWidget : public QObject, private StreamingSetupFixture
{
    Q_OBJECT
private slots:
    void initTestCase() { startFixture("tst_basewidget"); }
    void init() { QVERIFY(resetFixture()); }
    void cleanup()
    {
        const QString shown = dropFixture();
        qunsetenv("QUILLON_YOUTUBE_SERVERS");
        QVERIFY2(shown.isEmpty(), qPrintable(shown));
    }
    void cleanupTestCase() { stopFixture(); }

    void builtInServices_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("server"); // chosen, and the address it gives
        QTest::addColumn<QString>("url");
        QTest::newRow("YouTube") << "YouTube" << 2 << "Backup Server" << "rtmp://b.rtmp.youtube.com/live2?backup=1";
        QTest::newRow("Twitch") << "Twitch" << 45 << "Europe: Copenhagen, DK" << "rtmp://cph.contribute.live-video.net/app";
        QTest::newRow("Twitter") << "Twitter" << 9 << "EU West: Ireland" << "rtmp://ie.pscp.tv:80/x";
        // Facebook's fixed secure ingest, shown since it has no server row.
        QTest::newRow("Facebook") << "Facebook" << 0 << QString() << "rtmps://live-api-s.facebook.com:443/rtmp";
    }
    void builtInServices()
    {
        QFETCH(QString, service);
        QFETCH(int, count);
        QFETCH(QString, server);
        QFETCH(QString, url);
        open();
        QVERIFY(m_form->pickService(service));
        QCOMPARE(m_form->combo("serverSelect")->count(), count);
        QVERIFY(server.isEmpty() || m_form->pick("serverSelect", server));
        QCOMPARE(m_form->edit("streamUrl")->text(), url);
        QString rows; // server, bandwidth, URL, key, sign up, authorize, channel, sharing, page, custom
        for (const char* row : {"serverContainer", "serverBandwidth", "streamUrlContainer", "streamKeyContainer", "signUp",
                                "authorize", "channelContainer", "sharingContainer", "pageContainer", "customContainer"})
            rows += m_form->shown(row) ? '1' : '0';
        QCOMPARE(rows, count ? QStringLiteral("1101100000") : QStringLiteral("0011100000"));
    }

    void rowNeedsBitAndData_data()
    {
        QTest::addColumn<quint32>("bit");
        QTest::addColumn<bool>("withData");
        QTest::addColumn<QString>("shown");
        const QList<QPair<quint32, QString>> rows = {
            {0x1, "serverContainer"}, {0x4, "channelContainer"}, {0x20, "sharingContainer"}, {0x40, "pageContainer"}};
        for (const auto& row : rows) {
            QTest::addRow("0x%x with data", row.first) << row.first << true << row.second;
            QTest::addRow("0x%x without data", row.first) << row.first << false << QString();
        }
        QTest::newRow("data without a bit") << quint32(0) << true << QString();
    }
    void rowNeedsBitAndData()
    {
        QFETCH(quint32, bit);
        QFETCH(bool, withData);
        QFETCH(QString, shown);
        FakeView view;
        SimpleProvider provider(&view, bit, QStringLiteral("Probe"), QUrl(), QString(), {});
        if (withData) {
            provider.setServers({{QStringLiteral("Local"), QStringLiteral("rtmp://127.0.0.1/live")}});
            provider.setAccessToken(QStringLiteral("token"));
            provider.setPages({PageInfo{QStringLiteral("page-token"), QStringLiteral("7"), QStringLiteral("Page")}});
            provider.setChannels({LiveChannel()});
        }
        BaseWidget panel;
        PanelUpdater(&panel).update(&provider, false);
        for (const char* row : {"serverContainer", "channelContainer", "sharingContainer", "pageContainer"})
            QCOMPARE(!panel.findChild<QWidget*>(row)->isHidden(), shown == QLatin1String(row));
    }

    // A password service: signed in, streamed to, kept, deauthorised.
    void signedInAccount()
    {
        m_service.onJson("POST", "/auth/login", R"({"authToken":"auth-7"})");
        m_service.onJson("GET", "/ingests/default_list",
                         R"({"list":[{"ingest_location":"Local","ingest_url":"rtmp://127.0.0.1/push"},)"
                         R"({"ingest_location":"Bare","ingest_url":"127.0.0.2"}]})");
        m_service.onJson("GET", "/mediakey/kai", R"({"streamKey":"media-key"})");
        open();
        QAbstractButton* authorize = m_form->button("authorize");
        QVERIFY(m_form->pickService(QStringLiteral("Smashcast API")));
        QVERIFY(!m_form->shown("sharingContainer"));
        QString textWhileOpen;
        ModalDriver<AuthorizeDialog> login([&](AuthorizeDialog* dialog) {
            textWhileOpen = authorize->text();
            auto* ok = dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok);
            auto* password = dialog->findChild<QLineEdit*>("password");
            QTest::keyClicks(dialog->findChild<QLineEdit*>("username"), QStringLiteral("kai"));
            QVERIFY(!ok->isEnabled() && password->echoMode() == QLineEdit::Password);
            QTest::keyClicks(password, QStringLiteral("pa ss"));
            ok->click();
        });
        authorize->click();
        QVERIFY(login.found());
        QCOMPARE(textWhileOpen + ' ' + authorize->text(), QStringLiteral("Authorize Authorize")); // the state before
        QTRY_COMPARE(authorize->text(), QStringLiteral("Deauthorize"));
        QVERIFY(m_form->shown("serverContainer") && m_form->shown("sharingContainer"));

        // An ingest listed as a bare host takes the host's place in the address.
        QVERIFY(m_form->pick("serverSelect", QStringLiteral("Bare")));
        m_form->add();
        const CodecModel::Streaming stream = m_dialog->codecPresets().first().streaming();
        QCOMPARE(stream.url + ' ' + stream.key + ' ' + stream.serverName + ' ' + QString::number(stream.authorized),
                 QStringLiteral("rtmp://127.0.0.2/push kai?key=media-key Bare 1"));

        // A finished web sign-in rebuilds the panel from the first entries.
        FakeCefManager cef;
        m_dialog->openWebAuthorize(QUrl(m_service.baseUrl() + QStringLiteral("/authorize")));
        QWidget* web = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets())
            web = widget->inherits("WebDialog") && widget->isVisible() ? widget : web;
        QVERIFY(web && web->isModal() && web->windowTitle() == QStringLiteral("Authorize"));
        cef.navigate(web->findChild<WebView*>("webView"), "http://localhost/oauth2callback?code=1");
        QTRY_COMPARE(m_form->combo("serverSelect")->currentText(), QStringLiteral("Local"));
        m_dialog->closeWebAuthorize();
        QVERIFY(!web->isVisible());

        // Kept as a saved server of its own, owner-only, apart from the operator's servers.
        const QString account = m_stores->serverDir() + QStringLiteral("/accounts/Smashcast API.json");
        const QJsonObject file = readJson(account);
        QCOMPARE(file.value("AccessToken").toString() + ' ' + file.value("UserId").toString() + ' '
                     + file.value("UserPw").toString(),
                 QStringLiteral("auth-7 kai pa ss"));
        struct stat info {};
        QCOMPARE(::stat(QFile::encodeName(account).constData(), &info) == 0 ? int(info.st_mode & 0777) : -1, 0600);
        QVERIFY(m_form->items("customSelect").isEmpty() && m_stores->streamingManager().serverInfos().isEmpty());

        // Deauthorising revokes and forgets the account (a restart in between: tst_signedinservices).
        QString textDuringRevoke;
        m_service.on("DELETE", QStringLiteral("/oauthapps/masta/1"), [&](const HttpServer::Request&) {
            textDuringRevoke = authorize->text();
            return HttpServer::json("{}");
        });
        authorize->click();
        QCOMPARE(textDuringRevoke, QStringLiteral("Deauthorize"));
        QTRY_COMPARE(authorize->text(), QStringLiteral("Authorize"));
        QVERIFY(!m_form->shown("sharingContainer") && !QFile::exists(account) && MessageBox::shown().isEmpty());
    }

    void streamKeysRememberedPerService()
    {
        open();
        QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
        m_form->type("streamKey", QStringLiteral("yt-key"));
        QVERIFY(m_form->pickService(QStringLiteral("Twitch")));
        m_form->type("streamKey", QStringLiteral("live_123"));
        // Written through at once; the key is hidden until the eye is pressed.
        QCOMPARE(QSettings().value(QStringLiteral("ql.stream.key")).toMap(),
                 (QVariantMap{{"YouTube", "yt-key"}, {"Twitch", "live_123"}}));
        QCOMPARE(m_form->edit("streamKey")->echoMode(), QLineEdit::Password);
        m_form->button("showKey")->click();
        QCOMPARE(m_form->edit("streamKey")->echoMode(), QLineEdit::Normal);
        // A dialog opened later starts with each service's own key.
        m_form.reset();
        m_dialog.reset();
        open();
        QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
        QCOMPARE(m_form->edit("streamKey")->text(), QStringLiteral("yt-key"));
        QVERIFY(m_form->pickService(QStringLiteral("Mixer")));
        QVERIFY(m_form->edit("streamKey")->text().isEmpty());
    }

    void customTitlesMadeUnique_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("A three times") << QStringList{"A", "A", "A"} << QStringList{"A", "A 2", "A 3"};
        QTest::newRow("one pass: A 2 before A") << QStringList{"A 2", "A", "A"} << QStringList{"A 2", "A", "A 2"};
    }
    void customTitlesMadeUnique()
    {
        QFETCH(QStringList, typed);
        QFETCH(QStringList, listed);
        open();
        QVERIFY(m_form->pickService(QStringLiteral("Custom")));
        for (int i = 0; i < typed.size(); ++i) {
            ModalDriver<ServerDialog> driver([&](ServerDialog* dialog) {
                fillServerDialog(dialog, typed.at(i), QStringLiteral("rtmp://127.0.0.1/live%1").arg(i), "key");
            });
            m_form->button("customAdd")->click();
            QVERIFY(driver.found());
        }
        QCOMPARE(m_form->items("customSelect"), listed);
        // The last one written under a title is the one stored under it, and the one shown.
        const QString last = QStringLiteral("rtmp://127.0.0.1/live%1").arg(typed.size() - 1);
        QCOMPARE(readJson(m_stores->serverDir() + '/' + listed.last() + ".json").value("StreamUrl").toString(), last);
        QCOMPARE(m_form->edit("streamUrl")->text(), last);
    }

    void customServersInTheStoresOrder()
    {
        for (const char* title : {"Delta", "Charlie", "Bravo", "Alpha", "Echo"})
            QVERIFY(m_stores->streamingManager().write(
                Channel{{}, {}, title, {}, QStringLiteral("rtmp://127.0.0.1/") + title, "k", {}, {}, {}, {}, 0, 0, 0, {}, {}},
                OAuth()));
        open();
        m_stores->streamingManager().reloadPresets();
        QStringList stored;
        for (const ServerInfo& info : m_stores->streamingManager().serverInfos())
            stored << info.channel.title;
        QCOMPARE(m_form->items("customSelect"), stored);
    }

    void customServerLifecycle()
    {
        open();
        ModalDriver<ServerDialog> adding([](ServerDialog* dialog) {
            dialog->findChild<QComboBox*>("srtMode")->setCurrentText(QStringLiteral("caller"));
            QTest::keyClicks(dialog->findChild<QLineEdit*>("srtStreamID"), QStringLiteral("venue-feed"));
            QTest::keyClicks(dialog->findChild<QLineEdit*>("srtPassphrase"), QStringLiteral("0123456789"));
            dialog->findChild<QComboBox*>("srtFilter")->setCurrentIndex(1);
            fillServerDialog(dialog, QStringLiteral("Venue"), QStringLiteral("srt://127.0.0.1:7001"), QString());
        });
        m_form->button("customAdd")->click();
        QVERIFY(adding.found());
        // The row takes the server's SRT options.
        m_form->add();
        const QJsonObject row = storedStreams(*m_host).first().toObject();
        QStringList values;
        for (const char* key : {"Provider", "ServerName", "Url", "Mode", "Port", "Latency", "KeyLength", "StreamID",
                                "Passphrase", "Filter"})
            values << row.value(key).toVariant().toString();
        QCOMPARE(values.join('|'), QStringLiteral("Custom|Venue|srt://127.0.0.1:7001|caller|5000|200|16|venue-feed|"
                                                  "0123456789|fec,cols:20,rows:20"));
        // Renamed in the settings, it leaves no file under its old title.
        QString shownTitle;
        ModalDriver<ServerDialog> editing([&shownTitle](ServerDialog* dialog) {
            shownTitle = dialog->findChild<QLineEdit*>("title")->text();
            fillServerDialog(dialog, QStringLiteral("New"), QString(), QString());
        });
        m_form->button("customEdit")->click();
        QCOMPARE(shownTitle, QStringLiteral("Venue"));
        QCOMPARE(m_form->items("customSelect"), QStringList{"New"});
        QCOMPARE(QDir(m_stores->serverDir()).entryList(QDir::Files), QStringList{"New.json"});
        QCOMPARE(readJson(m_stores->serverDir() + QStringLiteral("/New.json")).value("Mode").toString(),
                 QStringLiteral("caller"));

        MessageBox::setNextAnswer(QMessageBox::No);
        m_form->button("customRemove")->click();
        QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
        QCOMPARE(m_form->items("customSelect"), QStringList{"New"});
        MessageBox::setNextAnswer(QMessageBox::Yes);
        m_form->button("customRemove")->click();
        QVERIFY(m_form->items("customSelect").isEmpty() && QDir(m_stores->serverDir()).entryList(QDir::Files).isEmpty());
        QVERIFY(m_form->edit("streamUrl")->text().isEmpty());
    }

    void bestServerIsSelected()
    {
        QTcpServer ingest;
        if (!ingest.listen(QHostAddress::LocalHost, 1935))
            QSKIP("port 1935 on 127.0.0.1 is taken");
        // Nothing listens on 127.0.0.2: that connection is refused at once. Bare hosts are tried too.
        qputenv("QUILLON_YOUTUBE_SERVERS", R"([["Nowhere","127.0.0.2"],["Local","127.0.0.1"]])");
        open();
        QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
        QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmp://127.0.0.2"));
        m_form->button("serverBandwidth")->click();
        QTRY_COMPARE_WITH_TIMEOUT(m_form->combo("serverSelect")->currentText(), QStringLiteral("Local"), 10000);
        QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmp://127.0.0.1"));
    }
};

QTEST_MAIN(TestBaseWidget)
#include "tst_basewidget.moc"
