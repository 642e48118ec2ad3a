#include "engine/quillonengine.h"
#include "interface/memoryoutputinterface.h"
#include "records/licensemodel.h"
#include "setup/authorizedialog.h"
#include "setup/streamingpresetjson.h"
#include "setup/streamingsetup.h"
#include "support/httpserver.h"
#include "support/modaldriver.h"
#include "support/serviceenvironment.h"
#include "support/streamingsetupform.h"
#include "support/tempstores.h"
#include "widgets/messagebox.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QJsonDocument>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTest>

#include <memory>

namespace {

const QString streamsFull = QStringLiteral("Check the maximum number of streams.");
const QString sameUrl = QStringLiteral("Check the same streaming url!");

Channel server(const QString& title, const QString& url, const QString& key, int port = 0)
{
    Channel channel;
    channel.title = title;
    channel.provider = QStringLiteral("Custom");
    channel.url = url;
    channel.key = key;
    channel.port = port;
    return channel;
}

LicenseModel licenseWithStreams(int streams)
{
    LicenseModel license;
    license.setMaxStreaming(streams);
    return license;
}

// A full "STREAMING" element as an older session would have written it.
QJsonObject storedRow()
{
    return QJsonObject{
        {"VideoCodec", "H.264"}, {"VideoWidth", 1280}, {"VideoHeight", 720}, {"VideoFrameRate", 59.94},
        {"VideoField", 0}, {"VideoBitRate", 4500}, {"VideoKeyFrame", 2}, {"VideoPreset", "fast"},
        {"VideoTune", "zerolatency"}, {"VideoProfile", 2}, {"VideoBframes", 3},
        {"AudioEnabled", true}, {"AudioCodec", "AAC"}, {"AudioChannels", 2}, {"AudioSampleRate", 44100},
        {"AudioBitRate", 128}, {"AudioBitPerSamples", 16},
        {"VideoSourceType", QJsonArray{8}}, {"VideoSourceIndex", QJsonArray{-1}},
        {"AudioSourceType", QJsonArray{7, 17, 18}}, {"AudioSourceIndex", QJsonArray{-1, 2, -1}},
        {"PresetName", "Stage"}, {"Url", "srt://127.0.0.1:9000"}, {"Key", ""},
        {"Authrized", true}, {"Username", "op"}, {"Password", "secret"},
        {"Provider", "Custom"}, {"ServerName", "Stage SRT"}, {"PageName", ""}, {"ChannelName", ""},
        {"Mode", "caller"}, {"Port", 9000}, {"Latency", 250}, {"Passphrase", "0123456789ab"},
        {"KeyLength", 24}, {"StreamID", "stage"}, {"Filter", "fec,cols:20,rows:20"},
    };
}

} // namespace

class TestStreamingSetup : public QObject, private StreamingSetupFixture
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void formAtStart();
    void servicesInOrder();
    void emptyListEncoding();
    void rowsStartTheEngineAndTellTheHost();
    void untitledAndNamedRows_data();
    void untitledAndNamedRows();
    void duplicatesPerScheme_data();
    void duplicatesPerScheme();
    void keyDecidesForRtmpServices();
    void limitRefusesBeforeDuplicateCheck();
    void removeRefusedWhileStreaming();
    void removeAsksFirst();
    void storedRowsRoundTrip();
    void everyStoredKeyIsWritten();
    void badStoredEntriesAreSkipped();
    void rowSelectionShowsItsService();
    void providerErrorBox_data();
    void providerErrorBox();
    void webAuthorizePage();

private:
    void addCustomRow(const QString& server);
};

void TestStreamingSetup::initTestCase()
{
    startFixture("tst_streamingsetup");
}

void TestStreamingSetup::init()
{
    QuillonEngine::clearEncodingCalls();
    QVERIFY(resetFixture());
}

void TestStreamingSetup::cleanup()
{
    const QString shown = dropFixture();
    QVERIFY2(shown.isEmpty(), qPrintable(shown));
}

void TestStreamingSetup::cleanupTestCase()
{
    stopFixture();
}

void TestStreamingSetup::addCustomRow(const QString& serverTitle)
{
    QVERIFY(m_form->pickService(QStringLiteral("Custom")));
    QVERIFY(m_form->pick("customSelect", serverTitle));
    m_form->add();
}

void TestStreamingSetup::formAtStart()
{
    open();
    auto* tabs = m_form->get<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 1);
    QCOMPARE(tabs->widget(0)->objectName(), QStringLiteral("tabStreaming"));
    QCOMPARE(m_dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Close)->text(),
             QStringLiteral("Close"));
    QCOMPARE(m_form->get<QLabel>("maxResolution")->text(), QStringLiteral("3840 x 2160"));
    QCOMPARE(m_form->get<QLabel>("maxStreaming")->text(), QStringLiteral("4"));
    QVERIFY(!m_form->get<QGroupBox>("saveGroup")->isChecked());
    QCOMPARE(m_form->combo("splitTimeList")->currentText(), QStringLiteral("12 hours"));
    QCOMPARE(m_form->combo("splitTimeList")->currentData().toInt(), 43200);
    QVERIFY(!m_form->combo("splitTimeList")->isEnabled());
    QCOMPARE(m_form->edit("fileTag")->text(), QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R"));
    QCOMPARE(m_form->button("namingEdit")->toolTip(), QStringLiteral("Edit Naming"));
    QCOMPARE(m_form->button("addPreset")->text(), QStringLiteral("Add Presets"));
    QCOMPARE(m_form->button("removePreset")->text(), QStringLiteral("Remove Presets"));
    QVERIFY(m_form->button("addPreset")->isEnabled()); // the store holds a streaming codec
    const QStringList sources{"PGM", "PGM(Clean)", "PVW", "BUS A", "BUS B", "BUS A+B", "PGM+A", "PGM+B", "PGM+A+B"};
    QCOMPARE(m_form->items("videoSourceList"), sources);
    QCOMPARE(m_form->items("audioSourceList"), sources);
}

void TestStreamingSetup::servicesInOrder()
{
    open();
    const QStringList services{"Smashcast API", "Facebook", "YouTube", "Twitch", "Twitter",
                               "Mixer",         "Restream", "Custom",  ""};
    QCOMPARE(m_form->items("providerSelect"), services);
    QCOMPARE(m_form->combo("providerSelect")->currentText(), QStringLiteral("Custom"));
    for (int i = 0; i < 8; ++i)
        QVERIFY2(!m_form->combo("providerSelect")->itemIcon(i).isNull(), qPrintable(services.at(i)));
    QVERIFY(m_form->shown("customContainer"));
    QVERIFY(!m_form->shown("serverContainer"));
}

void TestStreamingSetup::emptyListEncoding()
{
    StreamingSetup& dialog = open();
    QVERIFY(!dialog.encoding(true));
    QVERIFY(!dialog.isEncoding());
    QVERIFY(dialog.encoding(false));
    QVERIFY(QuillonEngine::encodingCalls().isEmpty());
    QVERIFY(m_host->encodingEvents().isEmpty());
}

void TestStreamingSetup::rowsStartTheEngineAndTellTheHost()
{
    StreamingSetup& dialog = open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    m_form->type("streamKey", QStringLiteral("abcd-1234"));
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 1);

    // The engine is asked first, then the host is told.
    QStringList order;
    QObject context;
    connect(&QuillonEngine::instance(), &QuillonEngine::encodingRequested, &context,
            [&order](const CodecPreset&, bool on) { order.append(on ? "engine start" : "engine stop"); });
    connect(m_host.get(), &MemoryOutputInterface::encodingChangedNotified, &context,
            [&order](int, const CodecPreset&, bool on) { order.append(on ? "host start" : "host stop"); });
    QVERIFY(dialog.encoding(true));
    QVERIFY(dialog.isEncoding());
    QCOMPARE(order, (QStringList{"engine start", "host start"}));
    const QList<QuillonEngine::EncodingCall> calls = QuillonEngine::encodingCalls();
    QCOMPARE(calls.size(), 1);
    QVERIFY(calls.first().on);
    QCOMPARE(calls.first().preset.streaming().url, QStringLiteral("rtmp://a.rtmp.youtube.com/live2"));
    QCOMPARE(calls.first().preset.streaming().key, QStringLiteral("abcd-1234"));
    QCOMPARE(m_host->encodingEvents().size(), 1);
    QCOMPARE(m_host->encodingEvents().first().kind, 0);
    QVERIFY(m_host->encodingEvents().first().on);

    QVERIFY(dialog.encoding(false));
    QVERIFY(!dialog.isEncoding());
    QCOMPARE(QuillonEngine::encodingCalls().size(), 2);
    QVERIFY(!QuillonEngine::encodingCalls().last().on);
    QVERIFY(!m_host->encodingEvents().last().on);
}

void TestStreamingSetup::untitledAndNamedRows_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("empty name") << QString() << QStringLiteral("Untitled");
    QTest::newRow("typed name") << QStringLiteral("Main feed") << QStringLiteral("Main feed");
}

void TestStreamingSetup::untitledAndNamedRows()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Twitch")));
    if (!typed.isEmpty())
        m_form->type("presetName", typed);
    m_form->add();
    const QJsonArray rows = storedStreams(*m_host);
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.at(0).toObject().value("PresetName").toString(), stored);
    QCOMPARE(m_dialog->codecPresets().first().name(), stored);
    QCOMPARE(rows.at(0).toObject().value("Provider").toString(), QStringLiteral("Twitch"));
    QCOMPARE(rows.at(0).toObject().value("ServerName").toString(), QStringLiteral("Asia: Hong Kong"));
    QCOMPARE(rows.at(0).toObject().value("VideoCodec").toString(), QStringLiteral("H.264"));
}

void TestStreamingSetup::duplicatesPerScheme_data()
{
    QTest::addColumn<Channel>("first");
    QTest::addColumn<Channel>("second");
    QTest::addColumn<bool>("refused");

    const QString rtmp = QStringLiteral("rtmp://127.0.0.1/live");
    const QString srt = QStringLiteral("srt://127.0.0.1:9000");
    QTest::newRow("rtmp same url and key") << server("A", rtmp, "k1") << server("B", rtmp, "k1") << true;
    QTest::newRow("rtmp same url, other key") << server("A", rtmp, "k1") << server("B", rtmp, "k2") << false;
    QTest::newRow("rtmp other url, same key") << server("A", rtmp, "k1") << server("B", rtmp + "2", "k1") << false;
    QTest::newRow("rtmps same url and key")
        << server("A", "rtmps://127.0.0.1:443/app", "k") << server("B", "rtmps://127.0.0.1:443/app", "k") << true;
    QTest::newRow("srt same url and port") << server("A", srt, "", 9000) << server("B", srt, "", 9000) << true;
    QTest::newRow("srt same url, other port") << server("A", srt, "", 9000) << server("B", srt, "", 9001) << false;
    QTest::newRow("srt ignores the key") << server("A", srt, "x", 9000) << server("B", srt, "y", 9000) << true;
    QTest::newRow("udp by url alone")
        << server("A", "udp://127.0.0.1:5000", "x", 1) << server("B", "udp://127.0.0.1:5000", "y", 2) << true;
    QTest::newRow("rtsp by url alone")
        << server("A", "rtsp://127.0.0.1/a", "x") << server("B", "rtsp://127.0.0.1/a", "y") << true;
    QTest::newRow("tcp other url") << server("A", "tcp://127.0.0.1:6000", "") << server("B", "tcp://127.0.0.1:6001", "")
                                   << false;
}

void TestStreamingSetup::duplicatesPerScheme()
{
    QFETCH(Channel, first);
    QFETCH(Channel, second);
    QFETCH(bool, refused);
    QVERIFY(m_stores->streamingManager().write(first, OAuth()));
    QVERIFY(m_stores->streamingManager().write(second, OAuth()));
    open();
    addCustomRow(first.title);
    addCustomRow(second.title);

    QCOMPARE(m_form->rows()->count(), refused ? 1 : 2);
    QCOMPARE(storedStreams(*m_host).size(), refused ? 1 : 2);
    if (refused) {
        QCOMPARE(MessageBox::shown().size(), 1);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Streaming"));
        QCOMPARE(MessageBox::lastShown().text, sameUrl);
    } else {
        QVERIFY(MessageBox::shown().isEmpty());
        QCOMPARE(m_dialog->codecPresets().last().streaming().url, second.url);
    }
}

void TestStreamingSetup::keyDecidesForRtmpServices()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    m_form->type("streamKey", QStringLiteral("first"));
    m_form->add();
    m_form->type("streamKey", QStringLiteral("second"));
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 2);
    QVERIFY(MessageBox::shown().isEmpty());

    m_form->type("streamKey", QStringLiteral("first"));
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 2);
    QCOMPARE(MessageBox::lastShown().text, sameUrl);

    // The backup ingest is another URL: the same key may go there.
    QVERIFY(m_form->pick("serverSelect", QStringLiteral("Backup Server")));
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 3);
    QCOMPARE(m_dialog->codecPresets().last().streaming().url,
             QStringLiteral("rtmp://b.rtmp.youtube.com/live2?backup=1"));
    QCOMPARE(m_dialog->codecPresets().last().streaming().serverName, QStringLiteral("Backup Server"));
}

void TestStreamingSetup::limitRefusesBeforeDuplicateCheck()
{
    m_stores = std::make_unique<TempStores>(licenseWithStreams(1));
    QVERIFY(m_stores->codecManager().write(streamingCodecPreset()));
    open();
    QCOMPARE(m_form->get<QLabel>("maxStreaming")->text(), QStringLiteral("1"));
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    m_form->type("streamKey", QStringLiteral("key"));
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 1);

    // The same target again: full, and the limit speaks first.
    m_form->add();
    QCOMPARE(m_form->rows()->count(), 1);
    QCOMPARE(MessageBox::shown().size(), 1);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, streamsFull);
}

void TestStreamingSetup::removeRefusedWhileStreaming()
{
    StreamingSetup& dialog = open();
    QVERIFY(m_form->pickService(QStringLiteral("Restream")));
    m_form->type("streamKey", QStringLiteral("re-key"));
    m_form->add();
    QVERIFY(dialog.encoding(true));

    m_form->rows()->setCurrentRow(0);
    m_form->button("removePreset")->click();
    QCOMPARE(m_form->rows()->count(), 1);
    QCOMPARE(MessageBox::shown().size(), 1);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Please try again after streaming is finished."));
    QCOMPARE(storedStreams(*m_host).size(), 1);
    dialog.encoding(false);
}

void TestStreamingSetup::removeAsksFirst()
{
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Mixer")));
    m_form->type("streamKey", QStringLiteral("mix"));
    m_form->add();

    MessageBox::setNextAnswer(QMessageBox::No);
    m_form->button("removePreset")->click();
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Question);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));
    QCOMPARE(m_form->rows()->count(), 1);

    MessageBox::setNextAnswer(QMessageBox::Yes);
    m_form->button("removePreset")->click();
    QCOMPARE(m_form->rows()->count(), 0);
    QCOMPARE(storedStreams(*m_host).size(), 0);
    QVERIFY(m_host->settings().contains(QStringLiteral("STREAMING")));
}

void TestStreamingSetup::storedRowsRoundTrip()
{
    m_host->replaceSettings(QJsonObject{{QStringLiteral("STREAMING"), QJsonArray{storedRow()}}});
    open();
    QCOMPARE(m_form->rows()->count(), 1);
    const CodecPreset loaded = m_dialog->codecPresets().first();
    QCOMPARE(loaded.videoSource(), (QMap<int, int>{{8, -1}}));
    QCOMPARE(loaded.audioSource(), (QMap<int, int>{{7, -1}, {17, 2}, {18, -1}}));
    QCOMPARE(loaded.streaming().passphrase, QStringLiteral("0123456789ab"));
    QCOMPARE(loaded.name(), QStringLiteral("Stage"));

    // Adding a second row writes the whole list back; the first row comes back as stored.
    QVERIFY(m_form->pickService(QStringLiteral("Twitter")));
    m_form->type("streamKey", QStringLiteral("tw"));
    m_form->add();
    const QJsonArray rows = storedStreams(*m_host);
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.at(0).toObject(), storedRow());
    const QJsonObject added = rows.at(1).toObject();
    QCOMPARE(added.value("Url").toString(), QStringLiteral("rtmp://ca.pscp.tv:80/x"));
    QCOMPARE(added.value("VideoSourceType").toArray(), QJsonArray{8});
    QCOMPARE(added.value("VideoSourceIndex").toArray(), QJsonArray{-1});

    // A second dialog over the same host reads the same two rows.
    StreamingSetup again(nullptr, m_host.get());
    again.reloadPresets();
    QCOMPARE(again.codecPresets().size(), 2);
    QCOMPARE(again.codecPresets().at(1).streaming().key, QStringLiteral("tw"));
}

void TestStreamingSetup::everyStoredKeyIsWritten()
{
    QStringList keys = storedRow().keys();
    QStringList written = StreamingPresetJson::toJson(CodecPreset()).keys();
    keys.sort();
    written.sort();
    QCOMPARE(written, keys);
}

void TestStreamingSetup::badStoredEntriesAreSkipped()
{
    QJsonObject uneven = storedRow();
    uneven.insert(QStringLiteral("AudioSourceIndex"), QJsonArray{-1});
    uneven.insert(QStringLiteral("VideoSourceType"), QJsonArray{QStringLiteral("eight")});
    m_host->replaceSettings(QJsonObject{
        {QStringLiteral("STREAMING"), QJsonArray{QStringLiteral("not a row"), 42, uneven}}});
    open();
    QCOMPARE(m_form->rows()->count(), 1);
    const CodecPreset loaded = m_dialog->codecPresets().first();
    QCOMPARE(loaded.audioSource(), (QMap<int, int>{{7, -1}}));
    QVERIFY(loaded.videoSource().isEmpty());
}

void TestStreamingSetup::rowSelectionShowsItsService()
{
    QVERIFY(m_stores->streamingManager().write(server("Studio", "rtmp://127.0.0.1/studio", "s"), OAuth()));
    open();
    QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
    QVERIFY(m_form->pick("serverSelect", QStringLiteral("Backup Server")));
    m_form->type("streamKey", QStringLiteral("yt"));
    m_form->add();
    addCustomRow(QStringLiteral("Studio"));
    QCOMPARE(m_form->rows()->count(), 2);

    m_form->rows()->setCurrentRow(0);
    QCOMPARE(m_form->combo("providerSelect")->currentText(), QStringLiteral("YouTube"));
    QCOMPARE(m_form->combo("serverSelect")->currentText(), QStringLiteral("Backup Server"));
    QCOMPARE(m_form->edit("streamUrl")->text(), QStringLiteral("rtmp://b.rtmp.youtube.com/live2?backup=1"));
    m_form->rows()->setCurrentRow(1);
    QCOMPARE(m_form->combo("providerSelect")->currentText(), QStringLiteral("Custom"));
    QCOMPARE(m_form->combo("customSelect")->currentText(), QStringLiteral("Studio"));
}

void TestStreamingSetup::providerErrorBox_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("boxShown");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("one comma") << QByteArray("{\"error\":\"denied\",\"error_description\":\"wrong password\"}") << true
                               << QStringLiteral("authorizeObj") << QStringLiteral("denied\nwrong password");
    QTest::newRow("unreadable reply") << QByteArray("{}") << true << QStringLiteral("authorizeObj")
                                      << QStringLiteral("The service sent a reply that could not be read.");
    QTest::newRow("comma in the detail")
        << QByteArray("{\"error\":\"denied\",\"error_description\":\"wrong user, or password\"}") << false << QString()
        << QString();
}

void TestStreamingSetup::providerErrorBox()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, boxShown);
    QFETCH(QString, title);
    QFETCH(QString, text);
    m_service.onJson("POST", QStringLiteral("/auth/login"), reply, 200);
    open();
    QVERIFY(m_form->pickService(QStringLiteral("Smashcast API")));
    ModalDriver<AuthorizeDialog> login([](AuthorizeDialog* dialog) {
        QTest::keyClicks(dialog->findChild<QLineEdit*>("username"), QStringLiteral("operator"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>("password"), QStringLiteral("pw"));
        dialog->accept();
    });
    m_form->button("authorize")->click();
    QVERIFY(login.found());
    QCOMPARE(m_service.requests("POST", QStringLiteral("/auth/login")).size(), 1);
    QCOMPARE(m_service.requests().first().formValue(QStringLiteral("login")), QStringLiteral("operator"));
    QCOMPARE(MessageBox::shown().size(), boxShown ? 1 : 0);
    if (boxShown) {
        QCOMPARE(MessageBox::lastShown().title, title);
        QCOMPARE(MessageBox::lastShown().text, text);
    }
    QVERIFY(m_form->widget("tabStreaming")->isEnabled());
}

void TestStreamingSetup::webAuthorizePage()
{
    StreamingSetup& dialog = open();
    const auto webDialogs = [] {
        QList<QDialog*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->inherits("WebDialog") && widget->isVisible())
                shown.append(qobject_cast<QDialog*>(widget));
        return shown;
    };
    QVERIFY(webDialogs().isEmpty());
    dialog.openWebAuthorize(QUrl(m_service.baseUrl() + QStringLiteral("/authorize")));
    QCOMPARE(webDialogs().size(), 1);
    QCOMPARE(webDialogs().first()->windowTitle(), QStringLiteral("Authorize"));
    QVERIFY(webDialogs().first()->isModal());
    dialog.closeWebAuthorize();
    QVERIFY(webDialogs().isEmpty());
}

QTEST_MAIN(TestStreamingSetup)
#include "tst_streamingsetup.moc"
