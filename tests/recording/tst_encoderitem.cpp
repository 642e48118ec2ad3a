#include "engine/quillonengine.h"
#include "interface/memoryoutputinterface.h"
#include "recording/encoderitem.h"
#include "support/testkit.h"

#include <QLabel>
#include <QListWidgetItem>
#include <QToolButton>
#include <QtTest>

namespace {

CodecPreset row(const QString& codec, int height, double rate, int field = 0, int keyFrame = 2, int bitRate = 6000)
{
    CodecPreset p = TestKit::preset(codec, height, bitRate, rate);
    p.setName("Row");
    p.videoCodec().field = field;
    p.videoCodec().keyFrame = keyFrame;
    return p;
}

} // namespace

class TestEncoderItem : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QuillonEngine::clearEncodingCalls();
        QuillonEngine::setProjectPreset(ProjectPreset());
    }

    void cleanupTestCase() { QuillonEngine::setProjectPreset(ProjectPreset()); }

    void summariesDescribeThePreset_data()
    {
        QTest::addColumn<CodecPreset>("preset");
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("audio");

        QTest::newRow("interlaced") << row("MPEG-2", 1080, 59.94, 1, 1, 25000) << "MPEG-2 1080i59.94 1s 25000"
                                    << "AAC Stereo 48kHz 128kbps";
        CodecPreset automatic = row("HEVC", 720, 0, 0, 0, 0);
        automatic.audioCodec() = {true, "AAC", 44100, 0, 16, 1};
        QTest::newRow("auto, mono") << automatic << "HEVC 720 AUTO" << "AAC Mono 44.1kHz";
        CodecPreset prores = row("Apple ProRes", 2160, 25, 0, 0, 0);
        prores.videoCodec().quality = 9;
        prores.audioCodec().enabled = false;
        QTest::newRow("prores, no audio") << prores << "Apple ProRes 2160p25 XQ" << "";
        CodecPreset silent = row("H.264", 1080, 25);
        silent.videoCodec().enabled = false;
        silent.audioCodec().channels = 6;
        QTest::newRow("audio only, six channels") << silent << "" << "AAC Mono 48kHz 128kbps";
    }
    void summariesDescribeThePreset()
    {
        QFETCH(CodecPreset, preset);
        QFETCH(QString, video);
        QFETCH(QString, audio);

        EncoderItem item(nullptr, nullptr, 1);
        QListWidgetItem listItem;
        item.setPreset(&listItem, &preset);
        QCOMPARE(item.findChild<QLabel*>("presetName")->text(), QStringLiteral("Row"));
        QCOMPARE(item.findChild<QLabel*>("videoCodec")->text(), video);
        QCOMPARE(item.findChild<QLabel*>("audioCodec")->text(), audio);
        QCOMPARE(item.item(), &listItem);
        QVERIFY(item.preset() == preset);

        // A null preset leaves the row as it was.
        item.setPreset(nullptr, nullptr);
        QCOMPARE(item.findChild<QLabel*>("videoCodec")->text(), video);
        QVERIFY(item.preset() == preset);
    }

    void startResolvesTheFrameRate_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("field");
        QTest::addColumn<double>("projectRate");
        QTest::addColumn<bool>("projectInterlaced");
        QTest::addColumn<double>("started");

        QTest::newRow("29.97 interlaced") << 29.97 << 1 << 25.0 << false << 14.985;
        QTest::newRow("progressive as is") << 50.0 << 0 << 25.0 << true << 50.0;
        QTest::newRow("auto, progressive project") << 0.0 << 0 << 25.0 << false << 25.0;
        QTest::newRow("auto, interlaced project") << 0.0 << 0 << 59.94 << true << 29.97;
        QTest::newRow("negative means auto") << -1.0 << 1 << 60.0 << false << 60.0;
    }
    void startResolvesTheFrameRate()
    {
        QFETCH(double, rate);
        QFETCH(int, field);
        QFETCH(double, projectRate);
        QFETCH(bool, projectInterlaced);
        QFETCH(double, started);

        ProjectPreset project;
        project.videoOutput().frameRate = projectRate;
        project.videoOutput().interlaced = projectInterlaced;
        QuillonEngine::setProjectPreset(project);
        MemoryOutputInterface host;
        EncoderItem item(nullptr, &host, 1);
        const CodecPreset preset = row("H.264", 1080, rate, field);
        item.setPreset(nullptr, &preset);
        item.findChild<QToolButton*>("encodingBtn")->click();

        QVERIFY(item.isChecked());
        QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
        QVERIFY(QuillonEngine::encodingCalls().first().on);
        QVERIFY(qFuzzyCompare(QuillonEngine::encodingCalls().first().preset.videoCodec().frameRate, started));
        QCOMPARE(host.encodingEvents().size(), 1);
        QCOMPARE(host.encodingEvents().first().kind, 1);
        QVERIFY(host.encodingEvents().first().on);
        // The host hears of the row's own preset, not the engine's copy.
        QVERIFY(host.encodingEvents().first().preset == preset);
    }

    void stopTellsEngineAndHost()
    {
        MemoryOutputInterface host;
        EncoderItem item(nullptr, &host, 0);
        const CodecPreset preset = row("H.264", 720, 30);
        item.setPreset(nullptr, &preset);
        item.setChecked(true);
        item.setChecked(true); // no toggle, no second start
        item.setChecked(false);

        const QList<QuillonEngine::EncodingCall> calls = QuillonEngine::encodingCalls();
        QCOMPARE(calls.size(), 2);
        QVERIFY(calls.at(0).on && !calls.at(1).on);
        QCOMPARE(host.encodingEvents().size(), 2);
        QCOMPARE(host.encodingEvents().at(1).kind, 0);
        QVERIFY(!host.encodingEvents().at(1).on);
        QVERIFY(QuillonEngine::runningEncoders().isEmpty());

        // Without a host only the engine hears of it.
        EncoderItem alone(nullptr, nullptr, 1);
        alone.setPreset(nullptr, &preset);
        alone.setChecked(true);
        QCOMPARE(QuillonEngine::encodingCalls().size(), 3);
        QCOMPARE(QuillonEngine::runningEncoders().size(), 1);
    }
};

QTEST_MAIN(TestEncoderItem)
#include "tst_encoderitem.moc"
