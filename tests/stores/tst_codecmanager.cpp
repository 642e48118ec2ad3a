#include "stores/codecmanager.h"
#include "support/tempstores.h"
#include "support/testkit.h"

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
        CodecPreset mpeg2 = videoOnly("MPEG-2", 1080, 25, 1);
        mpeg2.videoCodec().bitRate = 2500;
        QTest::newRow("interlaced") << mpeg2 << "MPEG-2 1080i25 2.5Mbps";
        QTest::newRow("automatic rate") << videoOnly("H.264", 1080, 0) << "H.264 1080 AUTO";
        QTest::newRow("ProRes above range") << videoOnly("Apple ProRes", 1080, 25, 0, 9) << "Apple ProRes 1080p25 XQ";
        QTest::newRow("six channels are Mono, no audio rate")
            << withAudio(videoOnly("H.264", 1080, 50), "PCM", 6, 44100, 0) << "H.264 1080p50, PCMMono 44.1kHz";
        CodecPreset audioOnly = withAudio(videoOnly("H.264", 1080, 50), "AAC", 2, 22050, 64);
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

    void unitTexts()
    {
        QStringList texts;
        for (int kbps : {999, 1000, 1234, 1000000000})
            texts << CodecManager::humanReadableSize(kbps);
        for (int hz : {11025, 88200})
            texts << CodecManager::sampleRateTokHz(hz);
        QCOMPARE(texts, (QStringList{"999kbps", "1Mbps", "1.2Mbps", "1000Gbps", "11.0", "88.2"}));
    }

    void mistypedMembersReadAsDefaults()
    {
        TempStores stores;
        QVERIFY(writeFile(stores.codecDir() + "/hand made.json",
                          R"({"VideoCodec":{"Codec":264,"Width":"1280","FrameRate":"50"},"AudioCodec":"AAC"})"));
        stores.codecManager().reloadPresets();
        QCOMPARE(stores.codecManager().codecPresets().size(), 1);
        const CodecPreset& p = stores.codecManager().codecPresets().first();
        QVERIFY(p.videoCodec().codec.isEmpty() && p.videoCodec().width == 0 && p.videoCodec().frameRate == 0);
        QVERIFY(!p.audioCodec().enabled);
    }
};

QTEST_GUILESS_MAIN(TestCodecManager)
#include "tst_codecmanager.moc"
