#include "codec/codecpresetdialog.h"
#include "codec/codectables.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "support/tempstores.h"
#include "support/testkit.h"

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

using namespace TestKit;

namespace {

const int allAudio = 0x1F;
const int recording = CodecTables::UsageRecording;
const int streaming = CodecTables::UsageStreaming;

QString label(const CodecPreset& p)
{
    return CodecManager::namingFromPreset(&p);
}

} // namespace

class TestCodecPresetDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initDialogTest("tst_codecpresetdialog"); }
    void init()
    {
        QSettings().remove("ql.codec.state");
        m_stores = std::make_unique<TempStores>();
    }

    void cleanup()
    {
        m_dialog.reset();
        m_stores.reset();
        QSettings().remove("ql.codec.state");
    }

    void masksChooseTheCodecs_data()
    {
        QTest::addColumn<int>("usage");
        QTest::addColumn<int>("outputMask");
        QTest::addColumn<int>("audioMask");
        QTest::addColumn<QStringList>("video");
        QTest::addColumn<QStringList>("audio");

        const QStringList delivery{"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF", "HEVC", "HEVC NVENC", "HEVC AMF"};
        QTest::newRow("recording, flv") << recording << 0x407F << 1 << delivery + QStringList{"AV1"}
                                        << QStringList{"AAC"};
        QTest::newRow("streaming, anything") << streaming << ~0 << allAudio << delivery + QStringList{"AV1"}
                                             << QStringList{"AAC", "MP3", "Opus", "AC3", "PCM"};
        QTest::newRow("recording, avi") << recording << 0x800 << 16 << QStringList{"MJPEG"} << QStringList{"PCM"};
        QTest::newRow("recording, mp4") << recording << ~0 << 19
                                        << delivery + QStringList{"MPEG-2", "DV25", "WMV", "DNxHD", "MJPEG",
                                                                  "Apple ProRes", "XDCAM HD", "AV1"}
                                        << QStringList{"AAC", "MP3", "PCM"};
        QTest::newRow("recording, no audio") << recording << 0x800 << 0 << QStringList{"MJPEG"} << QStringList();
        QTest::newRow("streaming, mastering only") << streaming << 0x1000 << allAudio << QStringList()
                                                   << QStringList{"AAC", "MP3", "Opus", "AC3", "PCM"};
    }
    void masksChooseTheCodecs()
    {
        QFETCH(int, usage);
        QFETCH(int, outputMask);
        QFETCH(int, audioMask);
        QFETCH(QStringList, video);
        QFETCH(QStringList, audio);

        open(usage, nullptr, outputMask, audioMask);
        QCOMPARE(comboTexts(control("videoCodecList")), video);
        QCOMPARE(comboTexts(control("audioCodecList")), audio);
        QCOMPARE(button(QDialogButtonBox::Ok)->isEnabled(), !video.isEmpty());
        QCOMPARE(control<QGroupBox>("audioGroup")->isEnabled(), !audio.isEmpty());
        QCOMPARE(m_dialog->codecPreset().audioCodec().enabled, !audio.isEmpty());
    }

    void codecDecidesPageAndRateControl_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<QString>("controls"); // encoder page; rate list; key frames

        QTest::newRow("x264") << "H.264" << "x264Page; typed 4000; key frames";
        QTest::newRow("nvenc") << "H.264 NVENC" << "nvencPage; typed 4000; key frames";
        QTest::newRow("amf") << "HEVC AMF" << "amfPage; typed 4000; key frames";
        QTest::newRow("qsv") << "H.264 QSV" << "-; typed 4000; key frames";
        QTest::newRow("prores") << "Apple ProRes" << "-; HQ of PROXY LT STANDARD HQ 4444 XQ";
        QTest::newRow("dv25") << "DV25" << "-; fixed 28770 of 28770";
        QTest::newRow("xdcam") << "XDCAM HD" << "-; 50000 of 50000 35000";
        QTest::newRow("mjpeg") << "MJPEG" << "-; typed 40000";
    }
    void codecDecidesPageAndRateControl()
    {
        QFETCH(QString, codec);
        QFETCH(QString, controls);

        open(recording);
        QVERIFY(choose(control("videoCodecList"), codec));
        auto* stacked = control<QStackedWidget>("presetStacked");
        QComboBox* rates = control("videoBitrateList");
        QString shown = stacked->isHidden() ? "-" : stacked->currentWidget()->objectName();
        shown += QString("; ") + (rates->isEditable() ? "typed " : "") + (rates->isEnabled() ? "" : "fixed ")
                 + rates->currentText() + (rates->isEditable() ? "" : " of " + comboTexts(rates).join(' '))
                 + (control("keyFrameList")->isEnabled() ? "; key frames" : "");
        QCOMPARE(shown, controls);

        const bool proRes = codec == "Apple ProRes";
        QCOMPARE(control<QLabel>("videoBitrateLabel")->text(), QString(proRes ? "Quality:" : "Bitrate(kbps):"));
        const CodecModel::VideoCodec result = m_dialog->codecPreset().videoCodec();
        QCOMPARE(result.codec, codec);
        QCOMPARE(result.keyFrame, controls.endsWith("key frames") ? 2 : 0);
        QCOMPARE(result.quality, proRes ? 3 : 0);
        QCOMPARE(result.bitRate, proRes ? 0 : rates->currentText().toInt());
    }

    void frameRatesFollowCodecUsageAndSize_data()
    {
        QTest::addColumn<int>("usage");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QStringList>("rates");

        const QStringList progressive{"AUTO", "23.98p", "24p", "25p", "29.97p", "30p", "50p", "59.94p", "60p"};
        const QStringList fields = progressive + QStringList{"50i", "59.94i", "60i"};
        QTest::newRow("x264 FHD") << recording << "H.264" << "FHD (1920x1080)" << fields;
        QTest::newRow("x264 HD") << recording << "H.264" << "HD (1280x720)" << progressive;
        QTest::newRow("x264 custom") << recording << "H.264" << "CUSTOM" << fields;
        QTest::newRow("x264 streaming") << streaming << "H.264" << "FHD (1920x1080)" << progressive;
        QTest::newRow("nvenc FHD") << recording << "H.264 NVENC" << "FHD (1920x1080)" << progressive;
        QTest::newRow("dv25") << recording << "DV25" << "NTSC (720x480)" << QStringList{"29.97p", "59.94i"};
        QTest::newRow("xdcam") << recording << "XDCAM HD" << "HDV (1440x1080)"
                               << QStringList{"AUTO", "23.98p", "25p", "29.97p", "50p", "59.94p", "50i", "59.94i"};
        QTest::newRow("iso prores") << int(CodecTables::UsageIso) << "Apple ProRes" << "FHD (1920x1080)" << fields;
    }
    void frameRatesFollowCodecUsageAndSize()
    {
        QFETCH(int, usage);
        QFETCH(QString, codec);
        QFETCH(QString, size);
        QFETCH(QStringList, rates);

        open(usage);
        QVERIFY(choose(control("videoCodecList"), codec));
        QVERIFY(choose(control("videoSizeList"), size));
        QCOMPARE(comboTexts(control("frameRateList")), rates);
    }

    void sizesStopAtTheLicence()
    {
        LicenseModel license;
        license.setMaxResolution(1920, 1080);
        m_stores.reset(); // one store instance at a time
        m_stores = std::make_unique<TempStores>(license);
        open(recording);

        QCOMPARE(comboTexts(control("videoSizeList")),
                 (QStringList{"FHD (1920x1080)", "HDV (1440x1080)", "HD (1280x720)", "qHD (960x540)", "PAL (720x576)",
                              "NTSC (720x480)", "nHD (640x360)", "CUSTOM"}));
        QCOMPARE(control<QSpinBox>("customWidth")->maximum(), 1920);
        QCOMPARE(control<QSpinBox>("customHeight")->maximum(), 1080);
    }

    void editKeepsEveryField_data()
    {
        QTest::addColumn<CodecPreset>("edited");
        QTest::addColumn<int>("usage");

        CodecPreset x264 = preset("H.264", 1080, 6000);
        x264.videoCodec().preset = "slow";
        x264.videoCodec().profile = 2;
        x264.videoCodec().tune = "film";
        x264.local().path = "/media/recordings"; // parts the dialog doesn't show stay
        x264.setName("Main");
        QTest::newRow("x264") << x264 << recording;

        CodecPreset prores = preset("Apple ProRes", 1080, 0, 59.94);
        prores.videoCodec().field = 1;
        prores.videoCodec().keyFrame = 0;
        prores.videoCodec().quality = 4;
        prores.audioCodec().codec = "PCM";
        prores.audioCodec().bitRate = 0;
        QTest::newRow("prores interlaced") << prores << recording;

        CodecPreset nvenc = preset("HEVC NVENC", 2160, 20000, 50);
        nvenc.videoCodec().preset = "lowLatencyHP";
        nvenc.videoCodec().profile = 1;
        nvenc.videoCodec().bframes = 3;
        nvenc.audioCodec() = {true, "Opus", 48000, 96, 16, 1};
        QTest::newRow("hevc nvenc streaming") << nvenc << streaming;

        CodecPreset custom = preset("H.264 QSV", 562, 7321, 25);
        custom.videoCodec().width = 1000;
        custom.videoCodec().keyFrame = 10;
        custom.audioCodec().enabled = false;
        QTest::newRow("custom size, typed rate") << custom << recording;
    }
    void editKeepsEveryField()
    {
        QFETCH(CodecPreset, edited);
        QFETCH(int, usage);

        CodecPreset copy = edited;
        open(usage, &copy);
        QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Codec Settings"));
        button(QDialogButtonBox::Ok)->click();
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
        const CodecPreset result = m_dialog->codecPreset();
        QCOMPARE(label(result), label(edited));
        QVERIFY(result == edited); // also what the dialog doesn't show: name, local part
        QVERIFY(copy == edited);   // the caller's record is not touched
    }

    void customSizeIsTakenFromTheSpinBoxes()
    {
        open(recording);
        QVERIFY(choose(control("videoSizeList"), "CUSTOM"));
        QVERIFY(!control<QWidget>("customSize")->isHidden());
        for (auto [name, typed] : {std::make_pair("customWidth", "1001"), std::make_pair("customHeight", "500")}) {
            control<QSpinBox>(name)->clear();
            QTest::keyClicks(control<QSpinBox>(name), typed);
        }
        QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1000); // 4:2:0 needs even sizes
        QCOMPARE(m_dialog->codecPreset().videoCodec().height, 500);

        QVERIFY(choose(control("videoSizeList"), "HD (1280x720)"));
        QVERIFY(control<QWidget>("customSize")->isHidden());
        QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1280);
    }

    void typedBitrateIsKeptAndEmptyBlocksOk()
    {
        open(recording);
        QComboBox* bitrates = control("videoBitrateList");
        bitrates->lineEdit()->clear();
        QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
        QTest::keyClicks(bitrates->lineEdit(), "7500");
        QVERIFY(button(QDialogButtonBox::Ok)->isEnabled());

        // Through a codec with a fixed list and back, the typed rate stays.
        QVERIFY(choose(control("videoCodecList"), "DNxHD"));
        QCOMPARE(bitrates->currentText(), QStringLiteral("145000"));
        QVERIFY(choose(control("videoCodecList"), "HEVC"));
        QCOMPARE(bitrates->currentText(), QStringLiteral("7500"));
        button(QDialogButtonBox::Ok)->click();
        QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 7500);
    }

    void chosenRateComesBackWithItsSize()
    {
        open(recording);
        QComboBox* rates = control("frameRateList");
        QVERIFY(choose(rates, "59.94i"));
        QVERIFY(choose(control("videoSizeList"), "HD (1280x720)"));
        QCOMPARE(rates->currentText(), QStringLiteral("AUTO"));
        QVERIFY(choose(control("videoSizeList"), "FHD (1920x1080)"));
        QCOMPARE(rates->currentText(), QStringLiteral("59.94i"));
        QCOMPARE(m_dialog->codecPreset().videoCodec().frameRate, 59.94);
        QCOMPARE(m_dialog->codecPreset().videoCodec().field, 1);
    }

    void audioListsFollowTheAudioCodec()
    {
        open(recording);
        QComboBox* codecs = control("audioCodecList");
        QComboBox* rates = control("sampleRateList");
        QComboBox* bitrates = control("audioBitrateList");
        QVERIFY(choose(rates, "44.1 kHz"));
        QVERIFY(choose(bitrates, "320 kbps"));

        QVERIFY(choose(codecs, "Opus"));
        QCOMPARE(comboTexts(rates), QStringList{"48 kHz"});
        QCOMPARE(bitrates->currentText(), QStringLiteral("128 kbps")); // 320 is beyond Opus here
        QVERIFY(choose(codecs, "MP3"));
        QCOMPARE(rates->currentText(), QStringLiteral("48 kHz"));
        QCOMPARE(bitrates->currentText(), QStringLiteral("128 kbps"));

        QVERIFY(choose(codecs, "PCM"));
        QVERIFY(!bitrates->isEnabled());
        const CodecModel::AudioCodec audio = m_dialog->codecPreset().audioCodec();
        QCOMPARE(audio.codec, QStringLiteral("PCM"));
        QCOMPARE(audio.bitRate, 0);
        QCOMPARE(audio.sampleRate, 48000);

        control<QGroupBox>("audioGroup")->setChecked(false);
        button(QDialogButtonBox::Ok)->click();
        QVERIFY(!m_dialog->codecPreset().audioCodec().enabled);
    }

    void acceptRemembersTheLastState()
    {
        open(recording);
        QVERIFY(choose(control("videoCodecList"), "HEVC"));
        QVERIFY(choose(control("videoSizeList"), "CUSTOM"));
        control<QSpinBox>("customWidth")->setValue(1024);
        control<QSpinBox>("customHeight")->setValue(576);
        QVERIFY(choose(control("frameRateList"), "25p"));
        QVERIFY(choose(control("audioCodecList"), "MP3"));
        button(QDialogButtonBox::Ok)->click();

        open(recording);
        QCOMPARE(control("videoCodecList")->currentText(), QStringLiteral("HEVC"));
        QCOMPARE(control("videoSizeList")->currentText(), QStringLiteral("CUSTOM"));
        QCOMPARE(control("frameRateList")->currentText(), QStringLiteral("25p"));
        QCOMPARE(control("audioCodecList")->currentText(), QStringLiteral("MP3"));
        QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1024);
        QCOMPARE(m_dialog->codecPreset().videoCodec().height, 576);

        // An edit opens on its own preset; only the custom size is carried over.
        CodecPreset edited = preset("H.264", 720, 5000, 50);
        open(recording, &edited);
        QCOMPARE(control("videoSizeList")->currentText(), QStringLiteral("HD (1280x720)"));
        QCOMPARE(control<QSpinBox>("customWidth")->value(), 1024);
    }

    void otherStatesAreNotRemembered()
    {
        open(recording);
        QVERIFY(choose(control("videoCodecList"), "MJPEG"));
        button(QDialogButtonBox::Cancel)->click();
        QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
        QVERIFY(!QSettings().contains("ql.codec.state"));

        // Unreadable text, and a codec the masks don't allow, fall back to the defaults.
        for (auto [state, usage] :
             {std::make_pair("{not json", recording), std::make_pair("{\"VideoCodec\":\"DV25\"}", streaming)}) {
            QSettings().setValue("ql.codec.state", QString::fromLatin1(state));
            open(usage);
            QCOMPARE(control("videoCodecList")->currentText(), QStringLiteral("H.264"));
        }
    }

    void proResQualityStartsAtItsDefault()
    {
        // The 0 quality of a bit-rate codec is no ProRes choice.
        CodecPreset edited = preset("H.264", 1080, 6000, 25);
        open(recording, &edited);
        QVERIFY(choose(control("videoCodecList"), "Apple ProRes"));
        QCOMPARE(control("videoBitrateList")->currentText(), QStringLiteral("HQ"));
        QVERIFY(choose(control("videoBitrateList"), "LT"));
        QCOMPARE(m_dialog->codecPreset().videoCodec().quality, 1);
        QCOMPARE(m_dialog->codecPreset().videoCodec().bitRate, 0);
    }

private:
    void open(int usage, CodecPreset* edited = nullptr, int outputMask = ~0, int audioMask = allAudio)
    {
        const int usageMask = usage == streaming ? LicenseModel::usageStreaming : LicenseModel::usageRecording;
        m_dialog
            = std::make_unique<CodecPresetDialog>(nullptr, usage, edited, usageMask, allAudio, outputMask, audioMask);
    }
    template <typename T = QComboBox>
    T* control(const char* name) const
    {
        return TestKit::control<T>(m_dialog.get(), name);
    }
    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return control<QDialogButtonBox>("buttonBox")->button(which);
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<CodecPresetDialog> m_dialog;
};

QTEST_MAIN(TestCodecPresetDialog)
#include "tst_codecpresetdialog.moc"
