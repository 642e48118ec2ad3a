// ctest: serial
// (the best-server test binds the fixed ingest port 1935 on 127.0.0.1)
#include "interface/memoryoutputinterface.h"
#include "provider/simpleprovider.h"
#include "setup/authorizedialog.h"
#include "setup/basewidget.h"
#include "setup/panelupdater.h"
#include "setup/serverdialog.h"
#include "setup/servicetables.h"
#include "setup/streamingsetup.h"
#include "support/fakeview.h"
#include "support/httpserver.h"
#include "support/modaldriver.h"
#include "support/serviceenvironment.h"
#include "support/streamingsetupform.h"
#include "support/tempstores.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTest>

#include <memory>

namespace {

const char* const panelRows[] = {"serverContainer", "channelContainer", "sharingContainer", "pageContainer"};

struct ServerEntry {
    QString title;
    QString url;
    QString key;
};

// Fills the custom server dialog as an operator would and presses OK.
void fillServerDialog(ServerDialog* dialog, const ServerEntry& entry)
{
    auto* title = dialog->findChild<QLineEdit*>("title");
    title->selectAll();
    QTest::keyClicks(title, entry.title);
    QTest::keyClicks(dialog->findChild<QLineEdit*>("streamUrlInput"), entry.url);
    QTest::keyClicks(dialog->findChild<QLineEdit*>("streamKeyInput"), entry.key);
    dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
}

QJsonObject readJson(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

class TestBaseWidget : public QObject, private StreamingSetupFixture
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void panelForm();
    void serverTables_data();
    void serverTables();
    void facebookShowsItsSecureIngestOnly();
    void tableOverride_data();
    void tableOverride();
    void rowNeedsBitAndData_data();
    void rowNeedsBitAndData();
    void authorizeTextBeforeEachAction();
    void streamKeysRememberedPerService();
    void customTitlesMadeUnique_data();
    void customTitlesMadeUnique();
    void customSrtServerReachesTheRow();
    void customServerRemoveAsksFirst();
    void customServerSettingsRename();
    void bestServerIsSelected();

private:
    void addServer(const ServerEntry& entry);
};

void TestBaseWidget::initTestCase()
{
    startFixture("tst_basewidget");
}

void TestBaseWidget::init()
{
    QVERIFY(resetFixture());
}

void TestBaseWidget::cleanup()
{
    const QString shown = dropFixture();
    qunsetenv("QUILLON_YOUTUBE_SERVERS");
    QVERIFY2(shown.isEmpty(), qPrintable(shown));
}

void TestBaseWidget::cleanupTestCase()
{
    stopFixture();
}

void TestBaseWidget::addServer(const ServerEntry& entry)
{
    ModalDriver<ServerDialog> driver([entry](ServerDialog* dialog) { fillServerDialog(dialog, entry); });
    m_form->button("customAdd")->click();
    QVERIFY(driver.found());
}

void TestBaseWidget::panelForm()
{
    open();
    QCOMPARE(m_form->button("serverBandwidth")->toolTip(), QStringLiteral("Find the best server"));
    QCOMPARE(m_form->button("channelAdd")->toolTip(), QStringLiteral("Add Channel"));
    QCOMPARE(m_form->button("channelRemove")->toolTip(), QStringLiteral("Remove Channels"));
    QCOMPARE(m_form->button("channelEdit")->toolTip(), QStringLiteral("Edit Channel"));
    QCOMPARE(m_form->button("customAdd")->toolTip(), QStringLiteral("Add Server"));
    QCOMPARE(m_form->button("customRemove")->toolTip(), QStringLiteral("Remove Server"));
    QCOMPARE(m_form->button("customEdit")->toolTip(), QStringLiteral("Server Settings"));
    QCOMPARE(m_form->button("sharingUrlOpen")->text(), QStringLiteral("Open URL"));
    QCOMPARE(m_form->button("signUp")->text(), QStringLiteral("Sign Up"));
    QCOMPARE(m_form->button("pageReload")->toolTip(), QStringLiteral("Page Refresh"));
    QVERIFY(m_form->combo("providerSelect")->minimumHeight() >= 20);
    QCOMPARE(m_form->combo("providerSelect")->iconSize(), QSize(18, 18));

    // The key is hidden until the eye is pressed.
    QVERIFY(m_form->pickService(QStringLiteral("Twitch")));
    QCOMPARE(m_form->edit("streamKey")->echoMode(), QLineEdit::Password);
    m_form->button("showKey")->click();
    QCOMPARE(m_form->edit("streamKey")->echoMode(), QLineEdit::Normal);
    m_form->button("showKey")->click();
    QCOMPARE(m_form->edit("streamKey")->echoMode(), QLineEdit::Password);
}

void TestBaseWidget::serverTables_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("firstLabel");
    QTest::addColumn<QString>("firstUrl");
    QTest::addColumn<QString>("lastLabel");
    QTest::addColumn<QString>("lastUrl");
    QTest::newRow("YouTube") << "YouTube" << 2 << "Main Server" << "rtmp://a.rtmp.youtube.com/live2"
                             << "Backup Server" << "rtmp://b.rtmp.youtube.com/live2?backup=1";
    QTest::newRow("Twitch") << "Twitch" << 45 << "Asia: Hong Kong" << "rtmp://hkg06.contribute.live-video.net/app"
                            << "US West: Seattle, WA" << "rtmp://sea.contribute.live-video.net/app";
    QTest::newRow("Twitter") << "Twitter" << 9 << "US West: California" << "rtmp://ca.pscp.tv:80/x"
                             << "Asia/Pacific: Singapore" << "rtmp://sg.pscp.tv:80/x";
    QTest::newRow("Mixer") << "Mixer" << 19 << "US: Dallas, TX" << "rtmp://ingest-dal.mixer.com:1935/beam"
                           << "India: Chennai" << "rtmp://ingest-che.mixer.com:1935/beam";
    QTest::newRow("Restream") << "Restream" << 21 << "Autodetect" << "rtmp://live.restream.io/live"
                              << "Australia (Sydney)" << "rtmp://sydney.restream.io/live";
}

void TestBaseWidget::serverTables()
{
    QFETCH(QString, service);
    QFETCH(int, count);
    QFETCH(QString, firstLabel);
    QFETCH(QString, firstUrl);
    QFETCH(QString, lastLabel);
    QFETCH(QString, lastUrl);
    open();
    QVERIFY(m_form->pickService(service));
    QComboBox* servers = m_form->combo("serverSelect");
    QCOMPARE(servers->count(), count);
    QCOMPARE(servers->itemText(0), firstLabel);
    QCOMPARE(servers->itemData(0).toString(), firstUrl);
    QCOMPARE(servers->itemText(count - 1), lastLabel);
    QCOMPARE(servers->itemData(count - 1).toString(), lastUrl);
    QCOMPARE(servers->currentIndex(), 0);
    QVERIFY(m_form->shown("serverContainer"));
    QVERIFY(m_form->shown("streamKeyContainer"));
    QVERIFY(m_form->shown("serverBandwidth"));
    QVERIFY(m_form->shown("signUp"));
    QVERIFY(!m_form->shown("authorize"));
    for (const char* row : {"channelContainer", "sharingContainer", "pageContainer", "customContainer"})
        QVERIFY2(!m_form->shown(row), row);
    if (service == QLatin1String("Twitch")) {
        const QStringList labels = m_form->items("serverSelect");
        QCOMPARE(labels.at(8), QStringLiteral("Europe: Copenhagen, DK"));
        QCOMPARE(labels.at(21), QStringLiteral("NA: Mexico City"));
    }
}

void TestBaseWidget::facebookShowsItsSecureIngestOnly()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Facebook")));
    for (const char* row : panelRows)
        QVERIFY2(!m_form->shown(row), row);
    QVERIFY(m_form->shown("streamKeyContainer"));
    QVERIFY(m_form->shown("streamUrlContainer"));
    QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmps://live-api-s.facebook.com:443/rtmp/"));
    QVERIFY(m_form->shown("signUp"));
}

void TestBaseWidget::tableOverride_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("a deployment's own table")
        << QByteArray("[[\"Studio A\",\"rtmp://127.0.0.1/live2\"],[\"Studio B\",\"rtmp://127.0.0.2/live2\"]]")
        << QStringList{"Studio A", "Studio B"};
    QTest::newRow("not JSON keeps the built-in table") << QByteArray("rtmp://127.0.0.1/live2")
                                                       << QStringList{"Main Server", "Backup Server"};
    QTest::newRow("a pair too short keeps the built-in table") << QByteArray("[[\"Studio A\"]]")
                                                               << QStringList{"Main Server", "Backup Server"};
}

void TestBaseWidget::tableOverride()
{
    QFETCH(QByteArray, value);
    QFETCH(QStringList, labels);
    qputenv("QUILLON_YOUTUBE_SERVERS", value);
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    QCOMPARE(m_form->items("serverSelect"), labels);
}

void TestBaseWidget::rowNeedsBitAndData_data()
{
    QTest::addColumn<quint32>("bit");
    QTest::addColumn<bool>("withData");
    QTest::addColumn<QString>("shown");
    const QList<QPair<quint32, QString>> rows = {
        {0x1, "serverContainer"}, {0x4, "channelContainer"}, {0x20, "sharingContainer"}, {0x40, "pageContainer"}};
    for (const auto& row : rows) {
        const QByteArray name = QByteArray::number(row.first, 16);
        QTest::newRow(("0x" + name + " with data").constData()) << row.first << true << row.second;
        QTest::newRow(("0x" + name + " without data").constData()) << row.first << false << QString();
        QTest::newRow(("data without 0x" + name).constData()) << quint32(0) << true << QString();
    }
}

void TestBaseWidget::rowNeedsBitAndData()
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
        LiveChannel channel;
        channel.name = QStringLiteral("Channel");
        provider.setChannels({channel});
    }
    BaseWidget panel;
    PanelUpdater(&panel).update(&provider, false);
    for (const char* row : panelRows)
        QCOMPARE(!panel.findChild<QWidget*>(row)->isHidden(), shown == QLatin1String(row));
}

void TestBaseWidget::authorizeTextBeforeEachAction()
{
    QString textDuringLogin;
    QString textDuringRevoke;
    m_service.onJson("POST", QStringLiteral("/auth/login"), "{\"authToken\":\"tok\"}");
    m_service.onJson("GET", QStringLiteral("/ingests/default_list"),
                     "{\"list\":[{\"ingest_location\":\"Local\",\"ingest_url\":\"rtmp://127.0.0.1/push\"}]}");
    m_service.onJson("GET", QStringLiteral("/mediakey/operator"), "{\"streamKey\":\"media-key\"}");
    open();
    QAbstractButton* authorize = m_form->button("authorize");
    m_service.on("DELETE", QStringLiteral("/oauthapps/masta/1"), [&](const HttpServer::Request&) {
        textDuringRevoke = authorize->text();
        return HttpServer::json("{}");
    });
    QVERIFY(m_form->pickService(QStringLiteral("Smashcast API")));
    QCOMPARE(authorize->text(), QStringLiteral("Authorize"));
    QVERIFY(!m_form->shown("sharingContainer"));

    ModalDriver<AuthorizeDialog> login([&](AuthorizeDialog* dialog) {
        textDuringLogin = authorize->text();
        QTest::keyClicks(dialog->findChild<QLineEdit*>("username"), QStringLiteral("operator"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>("password"), QStringLiteral("pw"));
        dialog->accept();
    });
    authorize->click();
    QVERIFY(login.found());
    QCOMPARE(textDuringLogin, QStringLiteral("Authorize"));
    QCOMPARE(authorize->text(), QStringLiteral("Authorize")); // this call saw the state before it
    QTRY_COMPARE(authorize->text(), QStringLiteral("Deauthorize"));
    QVERIFY(m_form->shown("serverContainer"));
    QVERIFY(m_form->shown("sharingContainer"));
    QCOMPARE(m_form->edit("sharingUrlInput")->text(), m_service.baseUrl() + QStringLiteral("/operator"));

    // The row takes the ingest and the key the service handed out.
    m_form->add();
    const CodecModel::Streaming stream = m_dialog->codecPresets().first().streaming();
    QCOMPARE(stream.url, QStringLiteral("rtmp://127.0.0.1/push"));
    QCOMPARE(stream.key, QStringLiteral("operator?key=media-key"));
    QVERIFY(stream.authorized);
    QCOMPARE(stream.serverName, QStringLiteral("Local"));

    authorize->click();
    QCOMPARE(textDuringRevoke, QStringLiteral("Deauthorize"));
    QTRY_COMPARE(authorize->text(), QStringLiteral("Authorize"));
    QVERIFY(!m_form->shown("sharingContainer"));
    QVERIFY(MessageBox::shown().isEmpty());
}

void TestBaseWidget::streamKeysRememberedPerService()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    m_form->type("streamKey", QStringLiteral("yt-key"));
    QVERIFY(m_form->pickService(QStringLiteral("Twitch")));
    m_form->type("streamKey", QStringLiteral("live_123"));

    const QVariantMap keys = QSettings().value(QStringLiteral("ql.stream.key")).toMap();
    QCOMPARE(keys, (QVariantMap{{"YouTube", "yt-key"}, {"Twitch", "live_123"}}));
    // Written through at once: the settings file already holds the map.
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("ql.stream.key"));

    // A dialog opened later starts with each service's own key.
    m_form.reset();
    m_dialog.reset();
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    QCOMPARE(m_form->edit("streamKey")->text(), QStringLiteral("yt-key"));
    m_form->add();
    QCOMPARE(m_dialog->codecPresets().first().streaming().key, QStringLiteral("yt-key"));
    QVERIFY(m_form->pickService(QStringLiteral("Mixer")));
    QVERIFY(m_form->edit("streamKey")->text().isEmpty());
}

void TestBaseWidget::customTitlesMadeUnique_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("A three times") << QStringList{"A", "A", "A"} << QStringList{"A", "A 2", "A 3"}
                                   << QStringList{"A 2.json", "A 3.json", "A.json"};
    QTest::newRow("one pass: A 2 before A") << QStringList{"A 2", "A", "A"} << QStringList{"A 2", "A", "A 2"}
                                            << QStringList{"A 2.json", "A.json"};
}

void TestBaseWidget::customTitlesMadeUnique()
{
    QFETCH(QStringList, typed);
    QFETCH(QStringList, listed);
    QFETCH(QStringList, files);
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Custom")));
    for (int i = 0; i < typed.size(); ++i)
        addServer({typed.at(i), QStringLiteral("rtmp://127.0.0.1/live%1").arg(i), QStringLiteral("key")});
    QCOMPARE(m_form->items("customSelect"), listed);
    QCOMPARE(m_form->combo("customSelect")->currentIndex(), listed.size() - 1);
    QCOMPARE(QDir(m_stores->serverDir()).entryList(QDir::Files, QDir::Name), files);
    // The last one written under a title is the one stored under it.
    const QJsonObject last = readJson(m_stores->serverDir() + QLatin1Char('/') + listed.last() + ".json");
    QCOMPARE(last.value("StreamUrl").toString(), QStringLiteral("rtmp://127.0.0.1/live%1").arg(typed.size() - 1));
    QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmp://127.0.0.1/live%1").arg(typed.size() - 1));
}

void TestBaseWidget::customSrtServerReachesTheRow()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Custom")));
    ModalDriver<ServerDialog> driver([](ServerDialog* dialog) {
        auto* title = dialog->findChild<QLineEdit*>("title");
        title->selectAll();
        QTest::keyClicks(title, QStringLiteral("Venue"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>("streamUrlInput"), QStringLiteral("srt://127.0.0.1:7001"));
        auto* mode = dialog->findChild<QComboBox*>("srtMode");
        mode->setCurrentIndex(mode->findText(QStringLiteral("caller")));
        auto* port = dialog->findChild<QLineEdit*>("srtPort");
        port->selectAll();
        QTest::keyClicks(port, QStringLiteral("7001"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>("srtStreamID"), QStringLiteral("venue-feed"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>("srtPassphrase"), QStringLiteral("0123456789"));
        auto* filter = dialog->findChild<QComboBox*>("srtFilter");
        filter->setCurrentIndex(filter->findText(QStringLiteral("fec")));
        dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    m_form->button("customAdd")->click();
    QVERIFY(driver.found());

    const QJsonObject file = readJson(m_stores->serverDir() + QStringLiteral("/Venue.json"));
    QCOMPARE(file.value("Mode").toString(), QStringLiteral("caller"));
    QCOMPARE(file.value("Port").toInt(), 7001);

    m_form->add();
    const QJsonObject row = storedStreams(*m_host).first().toObject();
    QCOMPARE(row.value("Provider").toString(), QStringLiteral("Custom"));
    QCOMPARE(row.value("ServerName").toString(), QStringLiteral("Venue"));
    QCOMPARE(row.value("Url").toString(), QStringLiteral("srt://127.0.0.1:7001"));
    QCOMPARE(row.value("Mode").toString(), QStringLiteral("caller"));
    QCOMPARE(row.value("Port").toInt(), 7001);
    QCOMPARE(row.value("Latency").toInt(), 200);
    QCOMPARE(row.value("KeyLength").toInt(), 16);
    QCOMPARE(row.value("StreamID").toString(), QStringLiteral("venue-feed"));
    QCOMPARE(row.value("Passphrase").toString(), QStringLiteral("0123456789"));
    QCOMPARE(row.value("Filter").toString(), QStringLiteral("fec,cols:20,rows:20"));
}

void TestBaseWidget::customServerRemoveAsksFirst()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Custom")));
    addServer({QStringLiteral("Gone"), QStringLiteral("rtmp://127.0.0.1/gone"), QStringLiteral("k")});
    const QString path = m_stores->serverDir() + QStringLiteral("/Gone.json");
    QVERIFY(QFile::exists(path));

    MessageBox::setNextAnswer(QMessageBox::No);
    m_form->button("customRemove")->click();
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Question);
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
    QCOMPARE(m_form->items("customSelect"), QStringList{"Gone"});
    QVERIFY(QFile::exists(path));

    MessageBox::setNextAnswer(QMessageBox::Yes);
    m_form->button("customRemove")->click();
    QVERIFY(m_form->items("customSelect").isEmpty());
    QVERIFY(!QFile::exists(path));
    QVERIFY(m_form->edit("streamUrl")->text().isEmpty());
}

void TestBaseWidget::customServerSettingsRename()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Custom")));
    addServer({QStringLiteral("Old"), QStringLiteral("rtmp://127.0.0.1/old"), QStringLiteral("k")});
    QString shownTitle;
    ModalDriver<ServerDialog> driver([&shownTitle](ServerDialog* dialog) {
        auto* title = dialog->findChild<QLineEdit*>("title");
        shownTitle = title->text();
        title->selectAll();
        QTest::keyClicks(title, QStringLiteral("New"));
        dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    m_form->button("customEdit")->click();
    QVERIFY(driver.found());
    QCOMPARE(shownTitle, QStringLiteral("Old"));
    QCOMPARE(m_form->items("customSelect"), QStringList{"New"});
    QCOMPARE(QDir(m_stores->serverDir()).entryList(QDir::Files), QStringList{"New.json"});
    QCOMPARE(readJson(m_stores->serverDir() + QStringLiteral("/New.json")).value("StreamUrl").toString(),
             QStringLiteral("rtmp://127.0.0.1/old"));
}

void TestBaseWidget::bestServerIsSelected()
{
    QTcpServer ingest;
    if (!ingest.listen(QHostAddress::LocalHost, 1935))
        QSKIP("port 1935 on 127.0.0.1 is taken");
    // Nothing listens on 127.0.0.2: that connection is refused at once.
    qputenv("QUILLON_YOUTUBE_SERVERS",
             "[[\"Nowhere\",\"rtmp://127.0.0.2/live2\"],[\"Local\",\"rtmp://127.0.0.1:80/live2\"]]");
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    QCOMPARE(m_form->combo("serverSelect")->currentText(), QStringLiteral("Nowhere"));
    m_form->button("serverBandwidth")->click();
    QTRY_COMPARE_WITH_TIMEOUT(m_form->combo("serverSelect")->currentText(), QStringLiteral("Local"), 10000);
    QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmp://127.0.0.1:80/live2"));
}

QTEST_MAIN(TestBaseWidget)
#include "tst_basewidget.moc"
