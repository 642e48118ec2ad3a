#include "codec/codecpresetdialog.h"
#include "codec/codectables.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace TestKit;

namespace {

const int allAudio = 0x1F;
const int recording = CodecTables::UsageRecording;
const int streaming = CodecTables::UsageStreaming;

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

    void masksChooseTheCodecs()
    {
        open(recording, nullptr, 0x800, 0); // an AVI output carries MJPEG and, here, no audio
        QCOMPARE(comboTexts(control("videoCodecList")), QStringList{"MJPEG"});
        QVERIFY(comboTexts(control("audioCodecList")).isEmpty() && !control<QGroupBox>("audioGroup")->isEnabled());
        QVERIFY(!m_dialog->codecPreset().audioCodec().enabled);
        open(streaming, nullptr, 0x1000, 3); // mastering codecs never stream
        QVERIFY(comboTexts(control("videoCodecList")).isEmpty() && !button(QDialogButtonBox::Ok)->isEnabled());
        QCOMPARE(comboTexts(control("audioCodecList")), (QStringList{"AAC", "MP3"}));
    }

    void codecDecidesPageAndRateControl_data()
    {
        QTest::addColumn<QString>("codec");
        QTest::addColumn<QString>("controls"); // encoder page; rate list; key frames

        QTest::newRow("x264") << "H.264" << "x264Page; typed 6000; key frames";
        QTest::newRow("nvenc") << "H.264 NVENC" << "nvencPage; typed 6000; key frames";
        // The 0 quality of a bit-rate codec is no ProRes choice: it starts at its default.
        QTest::newRow("prores") << "Apple ProRes" << "-; HQ of PROXY LT STANDARD HQ 4444 XQ";
        QTest::newRow("dv25") << "DV25" << "-; fixed 28770 of 28770";
    }
    void codecDecidesPageAndRateControl()
    {
        QFETCH(QString, codec);
        QFETCH(QString, controls);

        CodecPreset edited = preset("H.264", 1080, 6000, 25);
        open(recording, &edited);
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
        const CodecModel::VideoCodec v = m_dialog->codecPreset().videoCodec();
        QCOMPARE(QString("%1 %2 %3").arg(v.keyFrame).arg(v.quality).arg(v.bitRate),
                 QString("%1 %2 %3").arg(controls.endsWith("key frames") ? 2 : 0).arg(proRes ? 3 : 0)
                     .arg(proRes ? 0 : rates->currentText().toInt()));
    }

    void interlacedRatesNeedTheirSizeAndNoStream()
    {
        // The last frame rate offered for each usage and size.
        for (auto [usage, size, last] : {std::make_tuple(recording, "FHD (1920x1080)", "60i"),
                                         std::make_tuple(recording, "HD (1280x720)", "60p"),
                                         std::make_tuple(streaming, "FHD (1920x1080)", "60p")}) {
            open(usage);
            QVERIFY(choose(control("videoSizeList"), size));
            QCOMPARE(comboTexts(control("frameRateList")).last(), QString(last));
        }
    }

    void sizesStopAtTheLicence()
    {
        LicenseModel license;
        license.setMaxResolution(3840, 1080); // UHD and QHD are too tall
        m_stores.reset();                     // one store instance at a time
        m_stores = std::make_unique<TempStores>(license);
        open(recording);
        QCOMPARE(comboTexts(control("videoSizeList")).first(), QStringLiteral("FHD (1920x1080)"));
        QCOMPARE(control<QSpinBox>("customWidth")->maximum(), 3840);
        QCOMPARE(control<QSpinBox>("customHeight")->maximum(), 1080);
    }

    void editKeepsEveryField_data()
    {
        QTest::addColumn<CodecPreset>("edited");
        QTest::addColumn<int>("usage");

        CodecPreset x264 = preset("H.264", 1080, 6000);
        x264.videoCodec() = {true, "H.264", 6000, 29.97, 0, 1920, 1080, 0, 2, 2, 0, "slow", "film"};
        x264.local().path = "/media/recordings"; // parts the dialog doesn't show stay
        x264.setName("Main");
        QTest::newRow("x264") << x264 << recording;
        CodecPreset prores = preset("Apple ProRes", 1080, 0, 59.94);
        prores.videoCodec() = {true, "Apple ProRes", 0, 59.94, 1, 1920, 1080, 4, 0, 0, 0, {}, {}};
        prores.audioCodec() = {true, "PCM", 48000, 0, 16, 2};
        QTest::newRow("prores interlaced") << prores << recording;
        CodecPreset nvenc = preset("HEVC NVENC", 2160, 20000, 50);
        nvenc.videoCodec() = {true, "HEVC NVENC", 20000, 50, 0, 3840, 2160, 0, 2, 1, 3, "lowLatencyHP", {}};
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
        button(QDialogButtonBox::Ok)->click();
        QVERIFY(m_dialog->codecPreset() == edited); // also what the dialog doesn't show: name, local part
        QVERIFY(copy == edited);                    // the caller's record is not touched
    }

    void typedSizeAndRateAreKept()
    {
        open(recording);
        QVERIFY(choose(control("videoSizeList"), "CUSTOM"));
        QVERIFY(!control<QWidget>("customSize")->isHidden());
        for (auto [name, typed] : {std::make_pair("customWidth", "1001"), std::make_pair("customHeight", "500")}) {
            control<QSpinBox>(name)->clear();
            QTest::keyClicks(control<QSpinBox>(name), typed);
        }
        QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1000); // 4:2:0 needs even sizes

        QComboBox* bitrates = control("videoBitrateList");
        bitrates->lineEdit()->clear();
        QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
        QTest::keyClicks(bitrates->lineEdit(), "7500");
        QVERIFY(button(QDialogButtonBox::Ok)->isEnabled());

        // Through a codec with fixed lists and back, the typed rate and the chosen frame rate stay.
        QVERIFY(choose(control("frameRateList"), "59.94i"));
        QVERIFY(choose(control("videoCodecList"), "DNxHD"));
        QCOMPARE(bitrates->currentText(), QStringLiteral("145000"));
        QVERIFY(choose(control("videoSizeList"), "HD (1280x720)"));
        QCOMPARE(control("frameRateList")->currentText(), QStringLiteral("AUTO"));
        QVERIFY(choose(control("videoCodecList"), "H.264"));
        QVERIFY(choose(control("videoSizeList"), "FHD (1920x1080)"));
        QCOMPARE(control("frameRateList")->currentText(), QStringLiteral("59.94i"));
        QCOMPARE(bitrates->currentText(), QStringLiteral("7500"));
        button(QDialogButtonBox::Ok)->click();
        const CodecModel::VideoCodec v = m_dialog->codecPreset().videoCodec();
        QCOMPARE(QString("%1 %2x%3 %4 %5").arg(v.bitRate).arg(v.width).arg(v.height).arg(v.frameRate).arg(v.field),
                 QStringLiteral("7500 1920x1080 59.94 1"));
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
        QVERIFY(choose(codecs, "PCM") && !bitrates->isEnabled());
        const CodecModel::AudioCodec audio = m_dialog->codecPreset().audioCodec();
        QCOMPARE(QString("%1 %2 %3").arg(audio.codec).arg(audio.bitRate).arg(audio.sampleRate),
                 QStringLiteral("PCM 0 48000"));

        control<QGroupBox>("audioGroup")->setChecked(false);
        button(QDialogButtonBox::Ok)->click();
        QVERIFY(!m_dialog->codecPreset().audioCodec().enabled);
    }

    void acceptRemembersTheLastState()
    {
        open(recording);
        QVERIFY(choose(control("videoCodecList"), "MJPEG"));
        button(QDialogButtonBox::Cancel)->click();
        QVERIFY(!QSettings().contains("ql.codec.state"));

        open(recording);
        const QStringList chosen{"HEVC", "CUSTOM", "25p", "MP3"};
        const char* const lists[] = {"videoCodecList", "videoSizeList", "frameRateList", "audioCodecList"};
        for (int i = 0; i < 4; ++i) {
            QVERIFY(choose(control(lists[i]), chosen.at(i)));
            control<QSpinBox>("customWidth")->setValue(1024);
        }
        button(QDialogButtonBox::Ok)->click();
        open(recording);
        for (int i = 0; i < 4; ++i)
            QCOMPARE(control(lists[i])->currentText(), chosen.at(i));
        QCOMPARE(m_dialog->codecPreset().videoCodec().width, 1024);

        // An edit opens on its own preset; only the custom size is carried over.
        CodecPreset edited = preset("H.264", 720, 5000, 50);
        open(recording, &edited);
        QCOMPARE(control("videoSizeList")->currentText(), QStringLiteral("HD (1280x720)"));
        QCOMPARE(control<QSpinBox>("customWidth")->value(), 1024);

        // Unreadable text, and a codec the masks don't allow, fall back to the defaults.
        for (auto [state, usage] :
             {std::make_pair("{not json", recording), std::make_pair("{\"VideoCodec\":\"DV25\"}", streaming)}) {
            QSettings().setValue("ql.codec.state", QString::fromLatin1(state));
            open(usage);
            QCOMPARE(control("videoCodecList")->currentText(), QStringLiteral("H.264"));
        }
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
