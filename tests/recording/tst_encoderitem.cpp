#include "encoderitem.h"
#include "memoryoutputinterface.h"
#include "quillonengine.h"

#include <QLabel>
#include <QListWidgetItem>
#include <QToolButton>
#include <QtTest>

namespace {

CodecPreset preset(const QString& codec, int height, double rate, int field, int keyFrame, int bitRate)
{
    CodecPreset p;
    p.setName(QStringLiteral("Row"));
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = height * 16 / 9;
    v.height = height;
    v.frameRate = rate;
    v.field = field;
    v.keyFrame = keyFrame;
    v.bitRate = bitRate;
    CodecModel::AudioCodec& a = p.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = 128;
    return p;
}

ProjectPreset project(double rate, bool interlaced)
{
    ProjectPreset p;
    p.videoOutput().frameRate = rate;
    p.videoOutput().interlaced = interlaced;
    return p;
}

} // namespace

class TestEncoderItem : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();

    void summariesDescribeThePreset_data();
    void summariesDescribeThePreset();
    void nullPresetLeavesTheRow();
    void startResolvesTheFrameRate_data();
    void startResolvesTheFrameRate();
    void stopTellsEngineAndHost();
    void worksWithoutHost();
};

void TestEncoderItem::init()
{
    QuillonEngine::clearEncodingCalls();
    QuillonEngine::setProjectPreset(ProjectPreset());
}

void TestEncoderItem::cleanupTestCase()
{
    QuillonEngine::setProjectPreset(ProjectPreset());
}

void TestEncoderItem::summariesDescribeThePreset_data()
{
    QTest::addColumn<CodecPreset>("row");
    QTest::addColumn<QString>("video");
    QTest::addColumn<QString>("audio");

    QTest::newRow("progressive") << preset("H.264", 1080, 29.97, 0, 2, 6000) << "H.264 1080p29.97 2s 6000"
                                 << "AAC Stereo 48kHz 128kbps";
    QTest::newRow("interlaced") << preset("MPEG-2", 1080, 59.94, 1, 1, 25000) << "MPEG-2 1080i59.94 1s 25000"
                                << "AAC Stereo 48kHz 128kbps";
    CodecPreset automatic = preset("HEVC", 720, 0, 0, 0, 0);
    automatic.audioCodec().channels = 1;
    automatic.audioCodec().sampleRate = 44100;
    automatic.audioCodec().bitRate = 0;
    QTest::newRow("auto, mono") << automatic << "HEVC 720 AUTO" << "AAC Mono 44.1kHz";
    CodecPreset prores = preset("Apple ProRes", 2160, 25, 0, 0, 0);
    prores.videoCodec().quality = 9;
    prores.audioCodec().enabled = false;
    QTest::newRow("prores, no audio") << prores << "Apple ProRes 2160p25 XQ" << "";
    CodecPreset silent = preset("H.264", 1080, 25, 0, 0, 0);
    silent.videoCodec().enabled = false;
    silent.audioCodec().channels = 6;
    QTest::newRow("audio only") << silent << "" << "AAC Mono 48kHz 128kbps";
}

void TestEncoderItem::summariesDescribeThePreset()
{
    QFETCH(CodecPreset, row);
    QFETCH(QString, video);
    QFETCH(QString, audio);

    EncoderItem item(nullptr, nullptr, 1);
    QListWidgetItem listItem;
    item.setPreset(&listItem, &row);
    QCOMPARE(item.findChild<QLabel*>(QStringLiteral("presetName"))->text(), QStringLiteral("Row"));
    QCOMPARE(item.findChild<QLabel*>(QStringLiteral("videoCodec"))->text(), video);
    QCOMPARE(item.findChild<QLabel*>(QStringLiteral("audioCodec"))->text(), audio);
    QCOMPARE(item.item(), &listItem);
    QVERIFY(item.preset() == row);
}

void TestEncoderItem::nullPresetLeavesTheRow()
{
    EncoderItem item(nullptr, nullptr, 0);
    const CodecPreset first = preset("H.264", 720, 30, 0, 2, 3000);
    item.setPreset(nullptr, &first);
    item.setPreset(nullptr, nullptr);
    QCOMPARE(item.findChild<QLabel*>(QStringLiteral("videoCodec"))->text(), QStringLiteral("H.264 720p30 2s 3000"));
    QVERIFY(item.preset() == first);
}

void TestEncoderItem::startResolvesTheFrameRate_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("field");
    QTest::addColumn<double>("projectRate");
    QTest::addColumn<bool>("projectInterlaced");
    QTest::addColumn<double>("started");

    QTest::newRow("29.97 interlaced") << 29.97 << 1 << 25.0 << false << 14.985;
    QTest::newRow("59.94 interlaced") << 59.94 << 1 << 25.0 << false << 29.97;
    QTest::newRow("progressive as is") << 50.0 << 0 << 25.0 << true << 50.0;
    QTest::newRow("auto, progressive project") << 0.0 << 0 << 25.0 << false << 25.0;
    QTest::newRow("auto, interlaced project") << 0.0 << 0 << 59.94 << true << 29.97;
    QTest::newRow("negative means auto") << -1.0 << 1 << 60.0 << false << 60.0;
}

void TestEncoderItem::startResolvesTheFrameRate()
{
    QFETCH(double, rate);
    QFETCH(int, field);
    QFETCH(double, projectRate);
    QFETCH(bool, projectInterlaced);
    QFETCH(double, started);

    QuillonEngine::setProjectPreset(project(projectRate, projectInterlaced));
    MemoryOutputInterface host;
    EncoderItem item(nullptr, &host, 1);
    const CodecPreset row = preset("H.264", 1080, rate, field, 2, 6000);
    item.setPreset(nullptr, &row);
    item.findChild<QToolButton*>(QStringLiteral("encodingBtn"))->click();

    QVERIFY(item.isChecked());
    QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
    const QuillonEngine::EncodingCall call = QuillonEngine::encodingCalls().first();
    QVERIFY(call.on);
    QVERIFY(qFuzzyCompare(call.preset.videoCodec().frameRate, started));
    QCOMPARE(host.encodingEvents().size(), 1);
    QCOMPARE(host.encodingEvents().first().kind, 1);
    QVERIFY(host.encodingEvents().first().on);
    // The host hears of the row's own preset, not the engine's copy.
    QVERIFY(host.encodingEvents().first().preset == row);
}

void TestEncoderItem::stopTellsEngineAndHost()
{
    MemoryOutputInterface host;
    EncoderItem item(nullptr, &host, 0);
    const CodecPreset row = preset("H.264", 720, 30, 0, 2, 3000);
    item.setPreset(nullptr, &row);
    item.setChecked(true);
    item.setChecked(true); // no toggle, no second start
    item.setChecked(false);

    const QList<QuillonEngine::EncodingCall> calls = QuillonEngine::encodingCalls();
    QCOMPARE(calls.size(), 2);
    QVERIFY(calls.at(0).on);
    QVERIFY(!calls.at(1).on);
    QCOMPARE(host.encodingEvents().size(), 2);
    QCOMPARE(host.encodingEvents().at(1).kind, 0);
    QVERIFY(!host.encodingEvents().at(1).on);
    QVERIFY(QuillonEngine::runningEncoders().isEmpty());
}

void TestEncoderItem::worksWithoutHost()
{
    EncoderItem item(nullptr, nullptr, 1);
    const CodecPreset row = preset("H.264", 720, 30, 0, 2, 3000);
    item.setPreset(nullptr, &row);
    item.setChecked(true);
    QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
    QCOMPARE(QuillonEngine::runningEncoders().size(), 1);
}

QTEST_MAIN(TestEncoderItem)
#include "tst_encoderitem.moc"
