#include "engine/quillonengine.h"
#include "provider/provider.h"
#include "setup/authorizedialog.h"
#include "setup/webdialog.h"
#include "support/modaldriver.h"
#include "support/streamingsetupform.h"

#include <QSignalMapper>
#include <QSignalSpy>

namespace {

const QStringList sources{"PGM", "PGM(Clean)", "PVW", "BUS A", "BUS B", "BUS A+B", "PGM+A", "PGM+B", "PGM+A+B"};
const QStringList services{"Smashcast API", "Facebook", "YouTube", "Twitch", "Twitter", "Mixer", "Restream", "Custom", "",
                           "YouTube (sign in)", "Facebook (sign in)", "Twitch (sign in)"};

Channel server(const QString& title, const QString& url, const QString& key, int port = 0)
{
    return Channel{{}, "Custom", title, {}, url, key, {}, {}, {}, {}, port, 0, 0, {}, {}};
}

// A full "STREAMING" element as an older session would have written it.
QJsonObject storedRow()
{
    return QJsonObject{{"VideoCodec", "H.264"}, {"VideoWidth", 1280}, {"VideoHeight", 720}, {"VideoFrameRate", 59.94},
        {"VideoField", 0}, {"VideoBitRate", 4500}, {"VideoKeyFrame", 2}, {"VideoPreset", "fast"}, {"VideoTune", "zerolatency"},
        {"VideoProfile", 2}, {"VideoBframes", 3}, {"AudioEnabled", true}, {"AudioCodec", "AAC"}, {"AudioChannels", 2},
        {"AudioSampleRate", 44100}, {"AudioBitRate", 128}, {"AudioBitPerSamples", 16}, {"VideoSourceType", QJsonArray{8}},
        {"VideoSourceIndex", QJsonArray{-1}}, {"AudioSourceType", QJsonArray{7, 17, 18}}, {"AudioSourceIndex", QJsonArray{-1, 2, -1}},
        {"PresetName", "Stage"}, {"Url", "srt://127.0.0.1:9000"}, {"Key", ""}, {"Authrized", true}, {"Username", "op"},
        {"Password", "secret"}, {"Provider", "Custom"}, {"ServerName", "Stage SRT"}, {"PageName", ""}, {"ChannelName", ""},
        {"Mode", "caller"}, {"Port", 9000}, {"Latency", 250}, {"Passphrase", "0123456789ab"}, {"KeyLength", 24},
        {"StreamID", "stage"}, {"Filter", "fec,cols:20,rows:20"}, {"Save", true}, {"Path", "/srv/rec"}, {"FileTag", "%P"},
        {"ContainerName", "mkv"}, {"SplitTime", 3600}};
}

QJsonObject row(const QString& provider, const QString& server, const QString& page = QString())
{
    return QJsonObject{{"VideoCodec", "H.264"}, {"PresetName", provider}, {"Provider", provider},
                       {"ServerName", server}, {"PageName", page}};
}

QString lastBox()
{
    return MessageBox::shown().isEmpty() ? QString() : MessageBox::lastShown().title + '|' + MessageBox::lastShown().text;
}

} // namespace

class TestStreamingSetup : public QObject, private StreamingSetupFixture
{
    Q_OBJECT
private slots:
    void initTestCase() { startFixture("tst_streamingsetup"); }
    void init()
    {
        QuillonEngine::clearEncodingCalls();
        QVERIFY(resetFixture());
    }
    void cleanup()
    {
        const QString shown = dropFixture();
        QVERIFY2(shown.isEmpty(), qPrintable(shown));
    }
    void cleanupTestCase() { stopFixture(); }

    void formAtStartAndInitializedAgain()
    {
        QVERIFY(m_stores->streamingManager().write(server("Studio", "rtmp://127.0.0.1/studio", "s"), OAuth()));
        StreamingSetup& dialog = open();
        QVERIFY(m_form->shown("customContainer") && !m_form->shown("serverContainer"));
        // Both public steps may run again: one of each thing remains, every list once.
        for (int again = 0; again < 2; ++again) {
            QCOMPARE(m_form->items("providerSelect"), services);
            QCOMPARE(m_form->combo("providerSelect")->currentText(), QStringLiteral("Custom"));
            QCOMPARE(m_form->items("videoSourceList"), sources);
            QCOMPARE(m_form->items("audioSourceList"), sources);
            QCOMPARE(m_form->items("customSelect"), QStringList{"Studio"});
            dialog.initializeUi();
            dialog.initializeProvider();
            dialog.initializeUi();
            dialog.initializeProvider();
        }
        int webDialogs = 0;
        for (QWidget* widget : QApplication::topLevelWidgets())
            webDialogs += widget->inherits("WebDialog");
        QCOMPARE(QStringLiteral("%1 web dialog, %2 mapper").arg(webDialogs).arg(dialog.findChildren<QSignalMapper*>().size()),
                 QStringLiteral("1 web dialog, 1 mapper"));
        // The list holds the providers that exist now, and one click is one action.
        QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
        m_form->type("streamKey", QStringLiteral("yt"));
        m_form->add();
        m_form->add();
        QCOMPARE(m_form->rows()->count() + MessageBox::shown().size(), 2);
        QCOMPARE(dialog.codecPresets().first().streaming().url, QStringLiteral("rtmp://a.rtmp.youtube.com/live2"));
    }

    void rowsStartTheEngineAndTellTheHost()
    {
        StreamingSetup& dialog = open();
        // Without rows there is nothing to start.
        QVERIFY(!dialog.encoding(true) && dialog.encoding(false));
        QVERIFY(QuillonEngine::encodingCalls().isEmpty() && m_host->encodingEvents().isEmpty());
        QVERIFY(m_form->pickService(QStringLiteral("YouTube")));
        m_form->type("streamKey", QStringLiteral("abcd-1234"));
        m_form->add();
        QCOMPARE(storedStreams(*m_host).first().toObject().value("PresetName").toString(), QStringLiteral("Untitled"));
        // The engine is asked first, then the host is told.
        QStringList order;
        QObject context;
        connect(&QuillonEngine::instance(), &QuillonEngine::encodingRequested, &context,
                [&order](const CodecPreset& preset, bool on) {
                    order << QStringLiteral("engine %1 %2 %3").arg(on).arg(preset.streaming().url, preset.streaming().key);
                });
        connect(m_host.get(), &MemoryOutputInterface::encodingChangedNotified, &context,
                [&order](int kind, const CodecPreset&, bool on) { order << QStringLiteral("host %1 %2").arg(kind).arg(on); });
        QVERIFY(dialog.encoding(true) && dialog.isEncoding() && dialog.encoding(false));
        QCOMPARE(order, (QStringList{"engine 1 rtmp://a.rtmp.youtube.com/live2 abcd-1234", "host 0 1",
                                     "engine 0 rtmp://a.rtmp.youtube.com/live2 abcd-1234", "host 0 0"}));
    }

    void addRefusals_data()
    {
        QTest::addColumn<Channel>("first");
        QTest::addColumn<Channel>("second");
        QTest::addColumn<int>("maxStreams");
        QTest::addColumn<QString>("box"); // empty: the second row is added
        const QString rtmp = QStringLiteral("rtmp://127.0.0.1/live");
        const QString srt = QStringLiteral("srt://127.0.0.1:9000");
        const QString same = QStringLiteral("Streaming|Check the same streaming url!");
        QTest::newRow("rtmp same url and key") << server("A", rtmp, "k1") << server("B", rtmp, "k1") << 4 << same;
        QTest::newRow("rtmp other key") << server("A", rtmp, "k1") << server("B", rtmp, "k2") << 4 << QString();
        QTest::newRow("srt same port") << server("A", srt, "x", 9000) << server("B", srt, "y", 9000) << 4 << same;
        QTest::newRow("srt other port") << server("A", srt, "", 9000) << server("B", srt, "", 9001) << 4 << QString();
        QTest::newRow("udp by url alone") << server("A", "udp://127.0.0.1:5000", "x", 1)
                                          << server("B", "udp://127.0.0.1:5000", "y", 2) << 4 << same;
        QTest::newRow("the limit speaks first") << server("A", rtmp, "k1") << server("B", rtmp, "k1") << 1
                                                << "Preset|Check the maximum number of streams.";
    }
    void addRefusals()
    {
        QFETCH(Channel, first);
        QFETCH(Channel, second);
        QFETCH(int, maxStreams);
        QFETCH(QString, box);
        LicenseModel license;
        license.setMaxStreaming(maxStreams);
        m_stores = std::make_unique<TempStores>(license);
        QVERIFY(m_stores->codecManager().write(streamingCodecPreset()));
        QVERIFY(m_stores->streamingManager().write(first, OAuth()));
        QVERIFY(m_stores->streamingManager().write(second, OAuth()));
        open();
        for (const QString& title : {first.title, second.title}) {
            QVERIFY(m_form->pick("customSelect", title));
            m_form->add();
        }
        QCOMPARE(storedStreams(*m_host).size(), box.isEmpty() ? 2 : 1);
        QCOMPARE(lastBox(), box);
    }

    void removeAsksAndWaitsForTheStream()
    {
        StreamingSetup& dialog = open();
        QVERIFY(m_form->pickService(QStringLiteral("Mixer")));
        m_form->type("streamKey", QStringLiteral("mix"));
        m_form->add();
        QVERIFY(dialog.encoding(true));
        m_form->button("removePreset")->click();
        QCOMPARE(lastBox(), QStringLiteral("Preset|Please try again after streaming is finished."));
        dialog.encoding(false);
        MessageBox::setNextAnswer(QMessageBox::No);
        m_form->button("removePreset")->click();
        QCOMPARE(lastBox() + ' ' + QString::number(storedStreams(*m_host).size()),
                 QStringLiteral("Preset|Are you sure you want to remove this item? 1"));
        MessageBox::setNextAnswer(QMessageBox::Yes);
        m_form->button("removePreset")->click();
        QVERIFY(m_form->rows()->count() == 0 && m_host->settings().contains(QStringLiteral("STREAMING")));
        QCOMPARE(storedStreams(*m_host).size(), 0);
    }

    void storedRowsRoundTrip()
    {
        QJsonObject uneven = storedRow();
        uneven.insert(QStringLiteral("AudioSourceIndex"), QJsonArray{-1});
        uneven.insert(QStringLiteral("VideoSourceType"), QJsonArray{QStringLiteral("eight")});
        m_host->replaceSettings(
            QJsonObject{{QStringLiteral("STREAMING"), QJsonArray{storedRow(), QStringLiteral("not a row"), 42, uneven}}});
        open();
        QCOMPARE(m_form->rows()->count(), 2);
        QCOMPARE(m_dialog->codecPresets().at(0).audioSource(), (QMap<int, int>{{7, -1}, {17, 2}, {18, -1}}));
        // Uneven arrays give what pairs up; an entry that is no object is skipped.
        QCOMPARE(m_dialog->codecPresets().at(1).audioSource(), (QMap<int, int>{{7, -1}}));
        QVERIFY(m_dialog->codecPresets().at(1).videoSource().isEmpty());

        // Adding a row writes the whole list back; the first row comes back as stored.
        QVERIFY(m_form->pickService(QStringLiteral("Twitter")));
        m_form->type("streamKey", QStringLiteral("tw"));
        m_form->type("presetName", QStringLiteral("Main feed"));
        m_form->add();
        const QJsonArray rows = storedStreams(*m_host);
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows.at(0).toObject(), storedRow());
        const QJsonObject added = rows.at(2).toObject();
        QCOMPARE(added.value("PresetName").toString() + ' ' + added.value("Url").toString(),
                 QStringLiteral("Main feed rtmp://ca.pscp.tv:80/x"));
        QCOMPARE(added.value("VideoSourceType").toArray(), QJsonArray{8});
    }

    void rowSelectionRestoresThePanel()
    {
        // A custom server named like a built-in ingest, and a service with pages of its own.
        QVERIFY(m_stores->streamingManager().write(server("Backup Server", "rtmp://127.0.0.1/studio", "s"), OAuth()));
        m_host->replaceSettings(QJsonObject{{"STREAMING", QJsonArray{row("YouTube", "Backup Server"),
                                                                     row("Custom", "Backup Server"),
                                                                     row("Smashcast API", "", "Second")}}});
        open();
        QComboBox* list = m_form->combo("providerSelect");
        Provider* paged = list->itemData(list->findText("Smashcast API")).value<Provider*>();
        paged->setPages({{"t1", "1", "First"}, {"t2", "2", "Second"}});
        QCOMPARE(m_form->combo("serverSelect")->currentText(), QStringLiteral("Backup Server"));
        QVERIFY(m_form->pick("serverSelect", QStringLiteral("Main Server")));

        // Custom: the server is chosen in both lists, and the row's own address is shown.
        m_form->rows()->setCurrentRow(1);
        QCOMPARE(m_form->combo("customSelect")->currentText() + ' ' + m_form->combo("serverSelect")->currentText() + ' '
                     + m_form->edit("streamUrl")->text(),
                 QStringLiteral("Backup Server Backup Server rtmp://127.0.0.1/studio"));

        // The page comes back without a page change reaching the panel's actions (which reload).
        QSignalSpy pageChanges(m_form->combo("pageSelect"), qOverload<int>(&QComboBox::currentIndexChanged));
        m_form->rows()->setCurrentRow(2);
        QCOMPARE(m_form->combo("pageSelect")->currentText() + paged->pageId() + paged->pageToken(), QStringLiteral("Second2t2"));
        QCOMPARE(pageChanges.count(), 0);
    }

    void providerErrorBox_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QString>("box");
        QTest::newRow("one comma") << QByteArray(R"({"error":"denied","error_description":"wrong password"})")
                                   << "authorizeObj|denied\nwrong password";
        QTest::newRow("comma in the detail")
            << QByteArray(R"({"error":"denied","error_description":"wrong user, or password"})") << QString();
    }
    void providerErrorBox()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QString, box);
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
        QCOMPARE(lastBox(), box);
        QVERIFY(m_form->widget("tabStreaming")->isEnabled()); // the busy state ends
    }
};

QTEST_MAIN(TestStreamingSetup)
#include "tst_streamingsetup.moc"
