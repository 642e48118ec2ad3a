#include "stores/codecmanager.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

using namespace TestKit;

namespace {

CodecPreset videoOnly(const QString& codec, int height, double frameRate, int field = 0, int quality = 0)
{
    CodecPreset p = preset(codec, height, 0, frameRate);
    p.videoCodec().keyFrame = 0;
    p.videoCodec().field = field;
    p.videoCodec().quality = quality;
    p.audioCodec().enabled = false;
    return p;
}

CodecPreset withAudio(CodecPreset p, const QString& codec, int channels, int sampleRate, int bitRate)
{
    p.audioCodec() = {true, codec, sampleRate, bitRate, 16, channels};
    return p;
}

} // namespace

class TestCodecManager : public QObject
{
    Q_OBJECT

private slots:
    void labelNamesTheFile_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("label");

        QTest::newRow("progressive, key frames, audio") << preset("H.264", 1080, 6000)
                                                        << "H.264 1080p29.97 2s 6Mbps, AACStereo 48kHz 128kbps";
        QTest::newRow("NTSC rate") << videoOnly("H.264", 1080, 30000.0 / 1001) << "H.264 1080p29.97";
        CodecPreset mpeg2 = videoOnly("MPEG-2", 1080, 25, 1);
        mpeg2.videoCodec().bitRate = 2500;
        QTest::newRow("interlaced") << mpeg2 << "MPEG-2 1080i25 2.5Mbps";
        QTest::newRow("automatic rate") << videoOnly("H.264", 1080, 0) << "H.264 1080 AUTO";
        QTest::newRow("negative rate") << videoOnly("HEVC", 720, -5, 1) << "HEVC 720 AUTO";
        QTest::newRow("ProRes above range") << videoOnly("Apple ProRes", 1080, 25, 0, 9) << "Apple ProRes 1080p25 XQ";
        QTest::newRow("ProRes below range")
            << videoOnly("Apple ProRes", 1080, 25, 0, -1) << "Apple ProRes 1080p25 PROXY";
        QTest::newRow("profile only for the exact name")
            << videoOnly("apple prores", 1080, 25, 0, 3) << "apple prores 1080p25";
        const CodecPreset base = videoOnly("H.264", 1080, 50);
        QTest::newRow("six channels are Mono")
            << withAudio(base, "AC3", 6, 48000, 384) << "H.264 1080p50, AC3Mono 48kHz 384kbps";
        QTest::newRow("no audio rate") << withAudio(base, "PCM", 1, 44100, 0) << "H.264 1080p50, PCMMono 44.1kHz";
        CodecPreset audioOnly = withAudio(base, "AAC", 2, 22050, 64);
        audioOnly.videoCodec().enabled = false;
        QTest::newRow("audio only") << audioOnly << ", AACStereo 22.05kHz 64kbps";
        // Placeholders inside a codec name must not be filled by later arguments.
        QTest::newRow("placeholder in name") << videoOnly("X%1%2", 480, 30) << "X%1%2 480p30";
        CodecPreset full = withAudio(preset("HEVC", 2160, 35000, 59.94), "Opus", 2, 48000, 160);
        full.videoCodec() = {true, "HEVC", 35000, 59.94, 0, 3840, 2160, 23, 1, 2, 3, "slow", "film \"grain\""};
        full.audioCodec().bitPerSamples = 24;
        QTest::newRow("every stored field") << full << "HEVC 2160p59.94 1s 35Mbps, OpusStereo 48kHz 160kbps";
    }
    void labelNamesTheFile()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, label);

        QCOMPARE(CodecManager::namingFromPreset(&preset), label);
        TempStores stores;
        QVERIFY(stores.codecManager().write(preset));
        QCOMPARE(entries(stores.codecDir()), QStringList{label + ".json"});
        QVERIFY(stores.codecManager().codecPresets().isEmpty()); // only a reload reads files

        // A new manager loads its directory at once; the video part's switch is not stored.
        const CodecManager other(stores.settings());
        CodecPreset expected = preset;
        expected.videoCodec().enabled = true;
        QCOMPARE(other.codecPresets().size(), 1);
        QVERIFY(other.codecPresets().first() == expected);
    }

    void unitTexts_data()
    {
        QTest::addColumn<bool>("kHz");
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QString>("text");
        const QList<QPair<qint64, QString>> rates{{1000, "1Mbps"},   {2500, "2.5Mbps"},     {999, "999kbps"},
                                                  {1234, "1.2Mbps"}, {5000000, "5Gbps"},    {1500000, "1.5Gbps"},
                                                  {0, "0kbps"},      {1000000000, "1000Gbps"}};
        for (const auto& row : rates)
            QTest::addRow("%lld kbps", row.first) << false << row.first << row.second;
        const QList<QPair<qint64, QString>> sampleRates{{44100, "44.1"}, {48000, "48"},   {22050, "22.05"},
                                                        {88200, "88.2"}, {11025, "11.0"}, {0, "0"}};
        for (const auto& row : sampleRates)
            QTest::addRow("%lld Hz", row.first) << true << row.first << row.second;
    }
    void unitTexts()
    {
        QFETCH(bool, kHz);
        QFETCH(qint64, value);
        QFETCH(QString, text);
        QCOMPARE(kHz ? CodecManager::sampleRateTokHz(int(value)) : CodecManager::humanReadableSize(value), text);
    }

    void collidingLabelsShareOneFile()
    {
        CodecPreset first = videoOnly("H.264", 720, 30);
        first.videoCodec().tune = "film";
        CodecPreset second = first;
        second.videoCodec().tune = "animation";
        second.videoCodec().bframes = 4;
        QCOMPARE(CodecManager::namingFromPreset(&first), CodecManager::namingFromPreset(&second));

        TempStores stores;
        QVERIFY(stores.codecManager().write(first));
        QVERIFY(stores.codecManager().write(second));
        QCOMPARE(entries(stores.codecDir()).size(), 1);
        stores.codecManager().reloadPresets();
        QCOMPARE(stores.codecManager().codecPresets().size(), 1);
        QVERIFY(stores.codecManager().codecPresets().first() == second);
    }

    void fileMembersComeInFixedOrder()
    {
        TempStores stores;
        QVERIFY(stores.codecManager().write(withAudio(videoOnly("H.264", 1080, 25), "AAC", 2, 48000, 128)));
        const QByteArray text = readFile(stores.codecDir() + "/H.264 1080p25, AACStereo 48kHz 128kbps.json");

        QStringList keys;
        for (auto it = QRegularExpression("\"(\\w+)\":").globalMatch(QString::fromUtf8(text)); it.hasNext();)
            keys << it.next().captured(1);
        QCOMPARE(keys.join(' '),
                 QStringLiteral("VideoCodec Codec Width Height FrameRate Field KeyFrame BitRate Quality "
                                "Preset Tune Profile Bframes AudioCodec Enabled Codec Channels SampleRate "
                                "BitRate BitPerSamples"));
        QVERIFY(text.contains("\n    \"VideoCodec\": {\n        \"Codec\": \"H.264\",\n"));
        const QJsonObject video = QJsonDocument::fromJson(text).object().value("VideoCodec").toObject();
        QVERIFY(video.value("FrameRate").isDouble());
        QVERIFY(video.value("Preset").isString());
    }

    void mistypedMembersReadAsDefaults_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("read"); // codec, width, frame rate, audio switch

        QTest::newRow("well typed") << QByteArray(R"({"VideoCodec":{"Codec":"HEVC","Width":1280,"FrameRate":50},)"
                                                  R"("AudioCodec":{"Enabled":true}})")
                                    << "HEVC 1280 50 on";
        QTest::newRow("strings for numbers and bool")
            << QByteArray(R"({"VideoCodec":{"Codec":"HEVC","Width":"1280",)"
                          R"("FrameRate":"50"},"AudioCodec":{"Enabled":"true"}})")
            << "HEVC 0 0 off";
        QTest::newRow("number for string, fraction for int")
            << QByteArray(R"({"VideoCodec":{"Codec":264,"Width":1280.5,"FrameRate":29.97},"AudioCodec":{"Enabled":1}})")
            << " 0 29.97 off";
        QTest::newRow("parts that are not objects")
            << QByteArray(R"({"VideoCodec":[1280],"AudioCodec":"AAC"})") << " 0 0 off";
    }
    void mistypedMembersReadAsDefaults()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, read);
        TempStores stores;
        stores.writeCodecFile("hand made.json", json);
        stores.codecManager().reloadPresets();
        QCOMPARE(stores.codecManager().codecPresets().size(), 1);
        const CodecPreset& p = stores.codecManager().codecPresets().first();
        QCOMPARE(QString("%1 %2 %3 %4")
                     .arg(p.videoCodec().codec)
                     .arg(p.videoCodec().width)
                     .arg(p.videoCodec().frameRate)
                     .arg(p.audioCodec().enabled ? "on" : "off"),
                 read);
    }

    void copiesLeaveTheInstanceAlone()
    {
        QVERIFY(!CodecManager::getInstancePtr());
        {
            TempStores stores;
            QVERIFY(stores.codecManager().write(videoOnly("H.264", 1080, 25)));
            stores.codecManager().reloadPresets();
            CodecManager* const instance = &stores.codecManager();
            QCOMPARE(&CodecManager::getInstance(), instance);
            {
                CodecManager copy(*instance);
                QCOMPARE(copy.codecPresets().size(), 1);
                copy = *instance;
            }
            QCOMPARE(CodecManager::getInstancePtr(), instance);
        }
        QVERIFY(!CodecManager::getInstancePtr());
    }
};

QTEST_GUILESS_MAIN(TestCodecManager)
#include "tst_codecmanager.moc"
