#include "codecmanager.h"
#include "codecpresetdialog.h"
#include "codectables.h"
#include "licensemodel.h"
#include "tempstores.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QStackedWidget>
#include <QtTest>

#include <memory>

namespace {

const int allAudio = 0x1F;

QStringList texts(const QComboBox* box)
{
    QStringList result;
    for (int i = 0; i < box->count(); ++i)
        result.append(box->itemText(i));
    return result;
}

CodecPreset preset(const QString& codec, int width, int height, double rate, int field, int bitRate)
{
    CodecPreset p;
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = width;
    v.height = height;
    v.frameRate = rate;
    v.field = field;
    v.bitRate = bitRate;
    v.keyFrame = 2;
    CodecModel::AudioCodec& a = p.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = 128;
    a.bitPerSamples = 16;
    return p;
}

QString label(const CodecPreset& p)
{
    return CodecManager::namingFromPreset(&p);
}

} // namespace

class TestCodecPresetDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void offersCodecsSharingBitsWithBothMasks_data();
    void offersCodecsSharingBitsWithBothMasks();
    void audioMasksRestrictAudioCodecs_data();
    void audioMasksRestrictAudioCodecs();
    void codecDecidesPageAndRateControl_data();
    void codecDecidesPageAndRateControl();
    void frameRatesFollowCodecUsageAndSize_data();
    void frameRatesFollowCodecUsageAndSize();
    void sizesStopAtTheLicence();
    void newPresetStartsFromDefaults();
    void editKeepsEveryField_data();
    void editKeepsEveryField();
    void customSizeIsTakenFromTheSpinBoxes();
    void typedBitrateIsKeptAndEmptyBlocksOk();
    void chosenRateComesBackWithItsSize();
    void audioListsFollowTheAudioCodec();
    void uncheckedAudioDisablesTheTrack();
    void acceptRemembersTheLastState();
    void rejectLeavesTheStateAlone();
    void unreadableStateIsIgnored();
    void proResQualityStartsAtItsDefault();

private:
    std::unique_ptr<CodecPresetDialog> open(int usage, CodecPreset* edited = nullptr, int outputMask = ~0,
                                            int audioMask = allAudio);
    template <typename T>
    T* control(const char* name)
    {
        T* found = m_dialog ? m_dialog->findChild<T*>(QLatin1String(name)) : nullptr;
        if (!found)
            qWarning("no control %s", name);
        return found;
    }
    void clickOk();

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<CodecPresetDialog> m_dialog;
};

void TestCodecPresetDialog::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_codecpresetdialog"));
    QStandardPaths::setTestModeEnabled(true);
}

void TestCodecPresetDialog::init()
{
    QSettings().remove(QStringLiteral("ql.codec.state"));
    m_stores = std::make_unique<TempStores>();
}

void TestCodecPresetDialog::cleanup()
{
    m_dialog.reset();
    m_stores.reset();
    QSettings().remove(QStringLiteral("ql.codec.state"));
}

std::unique_ptr<CodecPresetDialog> TestCodecPresetDialog::open(int usage, CodecPreset* edited, int outputMask,
                                                               int audioMask)
{
    const int usageMask = usage == CodecTables::UsageStreaming ? LicenseModel::usageStreaming
                                                                : LicenseModel::usageRecording;
    return std::make_unique<CodecPresetDialog>(nullptr, usage, edited, usageMask, allAudio, outputMask, audioMask);
}

void TestCodecPresetDialog::clickOk()
{
    control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok)->click();
}

void TestCodecPresetDialog::offersCodecsSharingBitsWithBothMasks_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<int>("outputMask");
    QTest::addColumn<QStringList>("codecs");

    const QStringList delivery{"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF", "HEVC", "HEVC NVENC", "HEVC AMF"};
    QTest::newRow("recording, flv") << int(CodecTables::UsageRecording) << 0x407F << (delivery + QStringList{"AV1"});
    QTest::newRow("streaming, anything") << int(CodecTables::UsageStreaming) << ~0 << (delivery + QStringList{"AV1"});
    QTest::newRow("recording, avi") << int(CodecTables::UsageRecording) << 0x800 << QStringList{"MJPEG"};
    QTest::newRow("recording, anything")
        << int(CodecTables::UsageRecording) << ~0
        << (delivery + QStringList{"MPEG-2", "DV25", "WMV", "DNxHD", "MJPEG", "Apple ProRes", "XDCAM HD", "AV1"});
    QTest::newRow("streaming, mastering only") << int(CodecTables::UsageStreaming) << 0x1000 << QStringList();
}

void TestCodecPresetDialog::offersCodecsSharingBitsWithBothMasks()
{
    QFETCH(int, usage);
    QFETCH(int, outputMask);
    QFETCH(QStringList, codecs);

    m_dialog = open(usage, nullptr, outputMask);
    QCOMPARE(texts(control<QComboBox>("videoCodecList")), codecs);
    QCOMPARE(control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok)->isEnabled(), !codecs.isEmpty());
}

void TestCodecPresetDialog::audioMasksRestrictAudioCodecs_data()
{
    QTest::addColumn<int>("audioMask");
    QTest::addColumn<QStringList>("codecs");

    QTest::newRow("mp4 and mkv") << 19 << QStringList{"AAC", "MP3", "PCM"};
    QTest::newRow("flv") << 1 << QStringList{"AAC"};
    QTest::newRow("avi") << 16 << QStringList{"PCM"};
    QTest::newRow("every codec") << allAudio << QStringList{"AAC", "MP3", "Opus", "AC3", "PCM"};
    QTest::newRow("nothing") << 0 << QStringList();
}

void TestCodecPresetDialog::audioMasksRestrictAudioCodecs()
{
    QFETCH(int, audioMask);
    QFETCH(QStringList, codecs);

    m_dialog = open(CodecTables::UsageRecording, nullptr, ~0, audioMask);
    QCOMPARE(texts(control<QComboBox>("audioCodecList")), codecs);
    QCOMPARE(control<QGroupBox>("audioGroup")->isEnabled(), !codecs.isEmpty());
    QCOMPARE(m_dialog->codecPreset().audioCodec().enabled, !codecs.isEmpty());
}

void TestCodecPresetDialog::codecDecidesPageAndRateControl_data()
{
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("page"); // empty: no encoder page
    QTest::addColumn<QString>("rateLabel");
    QTest::addColumn<QStringList>("rates");
    QTest::addColumn<QString>("shownRate");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("rateEnabled");
    QTest::addColumn<bool>("keyFrame");

    const QStringList profiles{"PROXY", "LT", "STANDARD", "HQ", "4444", "XQ"};
    QTest::newRow("x264") << "H.264" << "x264Page" << "Bitrate(kbps):" << QStringList() << "4000" << true << true
                          << true;
    QTest::newRow("nvenc") << "H.264 NVENC" << "nvencPage" << "Bitrate(kbps):" << QStringList() << "4000" << true
                           << true << true;
    QTest::newRow("amf") << "HEVC AMF" << "amfPage" << "Bitrate(kbps):" << QStringList() << "4000" << true << true
                         << true;
    QTest::newRow("qsv") << "H.264 QSV" << "" << "Bitrate(kbps):" << QStringList() << "4000" << true << true << true;
    QTest::newRow("prores") << "Apple ProRes" << "" << "Quality:" << profiles << "HQ" << false << true << false;
    QTest::newRow("dv25") << "DV25" << "" << "Bitrate(kbps):" << QStringList{"28770"} << "28770" << false << false
                          << false;
    QTest::newRow("xdcam") << "XDCAM HD" << "" << "Bitrate(kbps):" << QStringList{"50000", "35000"} << "50000"
                           << false << true << false;
    QTest::newRow("mjpeg") << "MJPEG" << "" << "Bitrate(kbps):" << QStringList() << "40000" << true << true << false;
    QTest::newRow("mpeg-2") << "MPEG-2" << "" << "Bitrate(kbps):" << QStringList() << "15000" << true << true << true;
}

void TestCodecPresetDialog::codecDecidesPageAndRateControl()
{
    QFETCH(QString, codec);
    QFETCH(QString, page);
    QFETCH(QString, rateLabel);
    QFETCH(QStringList, rates);
    QFETCH(QString, shownRate);
    QFETCH(bool, editable);
    QFETCH(bool, rateEnabled);
    QFETCH(bool, keyFrame);

    m_dialog = open(CodecTables::UsageRecording);
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(codec));
    QCOMPARE(codecs->currentText(), codec);

    auto* stacked = control<QStackedWidget>("presetStacked");
    QCOMPARE(!stacked->isHidden(), !page.isEmpty());
    if (!page.isEmpty())
        QCOMPARE(stacked->currentWidget()->objectName(), page);
    QCOMPARE(control<QLabel>("videoBitrateLabel")->text(), rateLabel);
    auto* bitrates = control<QComboBox>("videoBitrateList");
    if (!rates.isEmpty())
        QCOMPARE(texts(bitrates), rates);
    QCOMPARE(bitrates->currentText(), shownRate);
    QCOMPARE(bitrates->isEditable(), editable);
    QCOMPARE(bitrates->isEnabled(), rateEnabled);
    QCOMPARE(control<QComboBox>("keyFrameList")->isEnabled(), keyFrame);

    const CodecPreset result = m_dialog->codecPreset();
    QCOMPARE(result.videoCodec().codec, codec);
    QCOMPARE(result.videoCodec().keyFrame, keyFrame ? 2 : 0);
    if (rateLabel == QLatin1String("Quality:")) {
        QCOMPARE(result.videoCodec().quality, 3);
        QCOMPARE(result.videoCodec().bitRate, 0);
    } else {
        QCOMPARE(result.videoCodec().bitRate, shownRate.toInt());
    }
}

void TestCodecPresetDialog::frameRatesFollowCodecUsageAndSize_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QStringList>("rates");

    const QStringList progressive{"AUTO", "23.98p", "24p", "25p", "29.97p", "30p", "50p", "59.94p", "60p"};
    const QStringList fields{"50i", "59.94i", "60i"};
    const int recording = CodecTables::UsageRecording;
    QTest::newRow("x264 FHD") << recording << "H.264" << "FHD (1920x1080)" << progressive + fields;
    QTest::newRow("x264 HD") << recording << "H.264" << "HD (1280x720)" << progressive;
    QTest::newRow("x264 custom") << recording << "H.264" << "CUSTOM" << progressive + fields;
    QTest::newRow("x264 streaming") << int(CodecTables::UsageStreaming) << "H.264" << "FHD (1920x1080)" << progressive;
    QTest::newRow("nvenc FHD") << recording << "H.264 NVENC" << "FHD (1920x1080)" << progressive;
    QTest::newRow("mpeg-2 PAL") << recording << "MPEG-2" << "PAL (720x576)" << progressive + fields;
    QTest::newRow("dv25") << recording << "DV25" << "NTSC (720x480)" << QStringList{"29.97p", "59.94i"};
    QTest::newRow("xdcam") << recording << "XDCAM HD" << "HDV (1440x1080)"
                           << QStringList{"AUTO", "23.98p", "25p", "29.97p", "50p", "59.94p", "50i", "59.94i"};
    QTest::newRow("iso prores") << int(CodecTables::UsageIso) << "Apple ProRes" << "FHD (1920x1080)"
                                << progressive + fields;
}

void TestCodecPresetDialog::frameRatesFollowCodecUsageAndSize()
{
    QFETCH(int, usage);
    QFETCH(QString, codec);
    QFETCH(QString, size);
    QFETCH(QStringList, rates);

    m_dialog = open(usage);
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(codec));
    auto* sizes = control<QComboBox>("videoSizeList");
    sizes->setCurrentIndex(sizes->findText(size));
    QCOMPARE(sizes->currentText(), size);
    QCOMPARE(texts(control<QComboBox>("frameRateList")), rates);
}

void TestCodecPresetDialog::sizesStopAtTheLicence()
{
    LicenseModel license;
    license.setMaxResolution(1920, 1080);
    m_stores.reset(); // one store instance at a time
    m_stores = std::make_unique<TempStores>(license);
    m_dialog = open(CodecTables::UsageRecording);

    auto* sizes = control<QComboBox>("videoSizeList");
    QCOMPARE(texts(sizes), (QStringList{"FHD (1920x1080)", "HDV (1440x1080)", "HD (1280x720)", "qHD (960x540)",
                                        "PAL (720x576)", "NTSC (720x480)", "nHD (640x360)", "CUSTOM"}));
    QCOMPARE(control<QSpinBox>("customWidth")->maximum(), 1920);
    QCOMPARE(control<QSpinBox>("customHeight")->maximum(), 1080);
    QCOMPARE(sizes->currentData().value<SizeDefinition>(), (SizeDefinition{1920, 1080}));
}

void TestCodecPresetDialog::newPresetStartsFromDefaults()
{
    m_dialog = open(CodecTables::UsageRecording);
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Add Codec"));
    QVERIFY(control<QWidget>("customSize")->isHidden());
    QCOMPARE(texts(control<QComboBox>("keyFrameList")),
             (QStringList{"1 sec", "2 sec", "3 sec", "4 sec", "5 sec", "6 sec", "8 sec", "10 sec"}));
    QCOMPARE(texts(control<QComboBox>("channelList")), (QStringList{"Stereo", "Mono"}));
    QCOMPARE(texts(control<QComboBox>("sampleRateList")),
             (QStringList{"48 kHz", "44.1 kHz", "32 kHz", "24 kHz", "22.05 kHz", "16 kHz"}));
    QCOMPARE(control<QComboBox>("audioBitrateList")->count(), 14);
    QCOMPARE(texts(control<QComboBox>("nvencPreset")),
             (QStringList{"Default", "High Quality", "High Performance", "Low-Latency High Quality",
                          "Low-Latency High Performance"}));

    CodecPreset expected = preset(QStringLiteral("H.264"), 1920, 1080, 0, 0, 4000);
    expected.videoCodec().preset = QStringLiteral("veryfast");
    expected.videoCodec().profile = 1;
    expected.videoCodec().tune = QStringLiteral("none");
    const CodecPreset p = m_dialog->codecPreset();
    QCOMPARE(label(p), label(expected));
    QVERIFY(p == expected);
}

void TestCodecPresetDialog::editKeepsEveryField_data()
{
    QTest::addColumn<CodecPreset>("edited");
    QTest::addColumn<int>("usage");

    CodecPreset x264 = preset(QStringLiteral("H.264"), 1920, 1080, 29.97, 0, 6000);
    x264.videoCodec().preset = QStringLiteral("slow");
    x264.videoCodec().profile = 2;
    x264.videoCodec().tune = QStringLiteral("film");
    x264.local().path = QStringLiteral("/media/recordings"); // parts the dialog doesn't show stay
    x264.setName(QStringLiteral("Main"));
    QTest::newRow("x264") << x264 << int(CodecTables::UsageRecording);

    CodecPreset prores = preset(QStringLiteral("Apple ProRes"), 1920, 1080, 59.94, 1, 0);
    prores.videoCodec().keyFrame = 0;
    prores.videoCodec().quality = 4;
    prores.audioCodec().codec = QStringLiteral("PCM");
    prores.audioCodec().bitRate = 0;
    QTest::newRow("prores interlaced") << prores << int(CodecTables::UsageRecording);

    CodecPreset nvenc = preset(QStringLiteral("HEVC NVENC"), 3840, 2160, 50, 0, 20000);
    nvenc.videoCodec().preset = QStringLiteral("lowLatencyHP");
    nvenc.videoCodec().profile = 1;
    nvenc.videoCodec().bframes = 3;
    nvenc.audioCodec().codec = QStringLiteral("Opus");
    nvenc.audioCodec().channels = 1;
    nvenc.audioCodec().bitRate = 96;
    QTest::newRow("hevc nvenc streaming") << nvenc << int(CodecTables::UsageStreaming);

    CodecPreset custom = preset(QStringLiteral("H.264 QSV"), 1000, 562, 25, 0, 7321);
    custom.videoCodec().keyFrame = 10;
    custom.audioCodec().enabled = false;
    QTest::newRow("custom size, typed rate") << custom << int(CodecTables::UsageRecording);

    CodecPreset amf = preset(QStringLiteral("H.264 AMF"), 1280, 720, 0, 0, 3000);
    amf.videoCodec().preset = QStringLiteral("Quality");
    amf.videoCodec().profile = 0;
    amf.audioCodec().codec = QStringLiteral("AC3");
    amf.audioCodec().sampleRate = 44100;
    amf.audioCodec().bitRate = 224;
    QTest::newRow("amf auto rate") << amf << int(CodecTables::UsageRecording);

    CodecPreset dnxhd = preset(QStringLiteral("DNxHD"), 1280, 720, 59.94, 0, 90000);
    dnxhd.videoCodec().keyFrame = 0;
    QTest::newRow("dnxhd") << dnxhd << int(CodecTables::UsageIso);
}

void TestCodecPresetDialog::editKeepsEveryField()
{
    QFETCH(CodecPreset, edited);
    QFETCH(int, usage);

    CodecPreset copy = edited;
    m_dialog = open(usage, &copy);
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Codec Settings"));
    clickOk();
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    const CodecPreset result = m_dialog->codecPreset();
    QCOMPARE(label(result), label(edited));
    QVERIFY(result == edited); // also what the dialog doesn't show: name, local part
    QVERIFY(copy == edited); // the caller's record is not touched
}

void TestCodecPresetDialog::customSizeIsTakenFromTheSpinBoxes()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* sizes = control<QComboBox>("videoSizeList");
    sizes->setCurrentIndex(sizes->findText(QStringLiteral("CUSTOM")));
    QVERIFY(!control<QWidget>("customSize")->isHidden());

    auto* width = control<QSpinBox>("customWidth");
    auto* height = control<QSpinBox>("customHeight");
    width->clear();
    QTest::keyClicks(width, QStringLiteral("1001"));
    height->clear();
    QTest::keyClicks(height, QStringLiteral("500"));
    QCOMPARE(width->value(), 1001);
    const CodecPreset p = m_dialog->codecPreset();
    QCOMPARE(p.videoCodec().width, 1000); // 4:2:0 needs even sizes
    QCOMPARE(p.videoCodec().height, 500);

    sizes->setCurrentIndex(sizes->findText(QStringLiteral("HD (1280x720)")));
    QVERIFY(control<QWidget>("customSize")->isHidden());
    QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1280);
}

void TestCodecPresetDialog::typedBitrateIsKeptAndEmptyBlocksOk()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* bitrates = control<QComboBox>("videoBitrateList");
    QPushButton* ok = control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok);
    bitrates->lineEdit()->clear();
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(bitrates->lineEdit(), QStringLiteral("7500"));
    QVERIFY(ok->isEnabled());
    QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 7500);

    // Through a codec with a fixed list and back, the typed rate stays.
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("DNxHD")));
    QCOMPARE(bitrates->currentText(), QStringLiteral("145000"));
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("HEVC")));
    QCOMPARE(bitrates->currentText(), QStringLiteral("7500"));
    clickOk();
    QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 7500);
}

void TestCodecPresetDialog::chosenRateComesBackWithItsSize()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* sizes = control<QComboBox>("videoSizeList");
    auto* rates = control<QComboBox>("frameRateList");
    rates->setCurrentIndex(rates->findText(QStringLiteral("59.94i")));
    sizes->setCurrentIndex(sizes->findText(QStringLiteral("HD (1280x720)")));
    QCOMPARE(rates->currentText(), QStringLiteral("AUTO"));
    sizes->setCurrentIndex(sizes->findText(QStringLiteral("FHD (1920x1080)")));
    QCOMPARE(rates->currentText(), QStringLiteral("59.94i"));

    const CodecPreset p = m_dialog->codecPreset();
    QCOMPARE(p.videoCodec().frameRate, 59.94);
    QCOMPARE(p.videoCodec().field, 1);
}

void TestCodecPresetDialog::audioListsFollowTheAudioCodec()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* codecs = control<QComboBox>("audioCodecList");
    auto* rates = control<QComboBox>("sampleRateList");
    auto* bitrates = control<QComboBox>("audioBitrateList");
    rates->setCurrentIndex(rates->findText(QStringLiteral("44.1 kHz")));
    bitrates->setCurrentIndex(bitrates->findText(QStringLiteral("320 kbps")));

    codecs->setCurrentIndex(codecs->findText(QStringLiteral("Opus")));
    QCOMPARE(texts(rates), QStringList{"48 kHz"});
    QCOMPARE(bitrates->currentText(), QStringLiteral("128 kbps")); // 320 is beyond Opus here

    codecs->setCurrentIndex(codecs->findText(QStringLiteral("MP3")));
    QCOMPARE(rates->currentText(), QStringLiteral("48 kHz"));
    QCOMPARE(bitrates->currentText(), QStringLiteral("128 kbps"));

    codecs->setCurrentIndex(codecs->findText(QStringLiteral("PCM")));
    QVERIFY(!bitrates->isEnabled());
    const CodecPreset p = m_dialog->codecPreset();
    QCOMPARE(p.audioCodec().codec, QStringLiteral("PCM"));
    QCOMPARE(p.audioCodec().bitRate, 0);
    QCOMPARE(p.audioCodec().sampleRate, 48000);
}

void TestCodecPresetDialog::uncheckedAudioDisablesTheTrack()
{
    m_dialog = open(CodecTables::UsageRecording);
    control<QGroupBox>("audioGroup")->setChecked(false);
    clickOk();
    QVERIFY(!m_dialog->codecPreset().audioCodec().enabled);
}

void TestCodecPresetDialog::acceptRemembersTheLastState()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("HEVC")));
    auto* sizes = control<QComboBox>("videoSizeList");
    sizes->setCurrentIndex(sizes->findText(QStringLiteral("CUSTOM")));
    control<QSpinBox>("customWidth")->setValue(1024);
    control<QSpinBox>("customHeight")->setValue(576);
    auto* rates = control<QComboBox>("frameRateList");
    rates->setCurrentIndex(rates->findText(QStringLiteral("25p")));
    auto* audio = control<QComboBox>("audioCodecList");
    audio->setCurrentIndex(audio->findText(QStringLiteral("MP3")));
    clickOk();
    QVERIFY(QSettings().contains(QStringLiteral("ql.codec.state")));

    m_dialog = open(CodecTables::UsageRecording);
    QCOMPARE(control<QComboBox>("videoCodecList")->currentText(), QStringLiteral("HEVC"));
    QCOMPARE(control<QComboBox>("videoSizeList")->currentText(), QStringLiteral("CUSTOM"));
    QCOMPARE(control<QComboBox>("frameRateList")->currentText(), QStringLiteral("25p"));
    QCOMPARE(control<QComboBox>("audioCodecList")->currentText(), QStringLiteral("MP3"));
    const CodecPreset p = m_dialog->codecPreset();
    QCOMPARE(p.videoCodec().width, 1024);
    QCOMPARE(p.videoCodec().height, 576);

    // An edit opens on its own preset; only the custom size is carried over.
    CodecPreset edited = preset(QStringLiteral("H.264"), 1280, 720, 50, 0, 5000);
    m_dialog = open(CodecTables::UsageRecording, &edited);
    QCOMPARE(control<QComboBox>("videoSizeList")->currentText(), QStringLiteral("HD (1280x720)"));
    QCOMPARE(control<QSpinBox>("customWidth")->value(), 1024);
}

void TestCodecPresetDialog::rejectLeavesTheStateAlone()
{
    m_dialog = open(CodecTables::UsageRecording);
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("MJPEG")));
    control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QVERIFY(!QSettings().contains(QStringLiteral("ql.codec.state")));
    m_dialog = open(CodecTables::UsageRecording);
    QCOMPARE(control<QComboBox>("videoCodecList")->currentText(), QStringLiteral("H.264"));
}

void TestCodecPresetDialog::unreadableStateIsIgnored()
{
    QSettings().setValue(QStringLiteral("ql.codec.state"), QStringLiteral("{not json"));
    m_dialog = open(CodecTables::UsageRecording);
    QCOMPARE(control<QComboBox>("videoCodecList")->currentText(), QStringLiteral("H.264"));
    QCOMPARE(control<QComboBox>("videoSizeList")->currentText(), QStringLiteral("FHD (1920x1080)"));

    // A stored codec the masks don't allow falls back as well.
    QSettings().setValue(QStringLiteral("ql.codec.state"), QStringLiteral("{\"VideoCodec\":\"DV25\"}"));
    m_dialog = open(CodecTables::UsageStreaming);
    QCOMPARE(control<QComboBox>("videoCodecList")->currentText(), QStringLiteral("H.264"));
}

void TestCodecPresetDialog::proResQualityStartsAtItsDefault()
{
    // The 0 quality of a bit-rate codec is no ProRes choice, neither remembered nor edited.
    m_dialog = open(CodecTables::UsageRecording);
    clickOk();
    m_dialog = open(CodecTables::UsageRecording);
    auto* codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("Apple ProRes")));
    QCOMPARE(control<QComboBox>("videoBitrateList")->currentText(), QStringLiteral("HQ"));

    CodecPreset edited = preset(QStringLiteral("H.264"), 1920, 1080, 25, 0, 6000);
    m_dialog = open(CodecTables::UsageRecording, &edited);
    codecs = control<QComboBox>("videoCodecList");
    codecs->setCurrentIndex(codecs->findText(QStringLiteral("Apple ProRes")));
    QCOMPARE(control<QComboBox>("videoBitrateList")->currentText(), QStringLiteral("HQ"));
    auto* quality = control<QComboBox>("videoBitrateList");
    quality->setCurrentIndex(quality->findText(QStringLiteral("LT")));
    QCOMPARE(m_dialog->codecPreset().videoCodec().quality, 1);
    QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 0);
}

QTEST_MAIN(TestCodecPresetDialog)
#include "tst_codecpresetdialog.moc"
