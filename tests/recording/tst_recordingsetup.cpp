#include "codec/encoderlistwidget.h"
#include "engine/quillonengine.h"
#include "interface/memoryoutputinterface.h"
#include "recording/encoderitem.h"
#include "recording/recordingsetup.h"
#include "records/licensemodel.h"
#include "stores/codecmanager.h"
#include "stores/filenamingdialog.h"
#include "support/modaldriver.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QToolButton>
#include <QtTest>

#include <memory>

using namespace TestKit;

namespace {

using SourceMap = QMap<int, int>;
const QString defaultTag = "%P %Y-%M-%D %h-%m-%s %C_%B_%R";

QJsonObject storedRow(const QString& name, QJsonObject changes = QJsonObject())
{
    const QJsonObject row{
        {"VideoCodec", "H.264"},  {"VideoWidth", 1920},      {"VideoHeight", 1080},      {"VideoFrameRate", 29.97},
        {"VideoField", 0},        {"VideoKeyFrame", 2},      {"VideoBitRate", 6000},     {"AudioEnabled", true},
        {"AudioCodec", "AAC"},    {"AudioChannels", 2},      {"AudioSampleRate", 48000}, {"AudioBitRate", 128},
        {"PresetName", name},     {"VideoSourceType", 7},    {"VideoSourceIndex", -1},   {"AudioSourceType", 7},
        {"AudioSourceIndex", -1}, {"ContainerName", "mp4"},  {"Path", "/media/rec"},     {"FileTag", "%P"},
        {"SplitTime", 0},         {"MediaToBin", "None"},
    };
    for (auto it = row.begin(); it != row.end(); ++it)
        if (!changes.contains(it.key()))
            changes.insert(it.key(), it.value());
    return changes;
}

} // namespace

class TestRecordingSetup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initDialogTest("tst_recordingsetup"); }
    void init()
    {
        MessageBox::clear();
        QuillonEngine::clearEncodingCalls();
        QuillonEngine::setProjectPreset(ProjectPreset());
        QSettings().remove("ql.recording.filetag");
        makeStores();
        m_host = std::make_unique<MemoryOutputInterface>();
    }

    void cleanup()
    {
        m_setup.reset();
        m_host.reset();
        m_stores.reset();
        QSettings().remove("ql.recording.filetag");
        for (QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY2(!widget->isVisible(), qPrintable(widget->objectName()));
    }

    void audioSourcesFollowBusesAndLicence_data()
    {
        QTest::addColumn<bool>("licensed");
        QTest::addColumn<bool>("busA");
        QTest::addColumn<QStringList>("sources");

        const QStringList programme{"PGM", "PGM(Clean)", "PVW"};
        QTest::newRow("both buses") << true << true << programme + QStringList{"BUS A", "BUS B", "BUS A+B",
                                                                               "PGM+A", "PGM+B", "PGM+A+B"};
        QTest::newRow("bus B only") << true << false << programme + QStringList{"BUS B", "PGM+B"};
        QTest::newRow("not licensed") << false << true << programme;
    }
    void audioSourcesFollowBusesAndLicence()
    {
        QFETCH(bool, licensed);
        QFETCH(bool, busA);
        QFETCH(QStringList, sources);

        LicenseModel license;
        license.setAudioBusEnabled(licensed);
        makeStores(license);
        ProjectPreset project;
        project.processing().busAEnabled = busA;
        QuillonEngine::setProjectPreset(project);
        open();
        QCOMPARE(comboTexts(control("audioSourceList")), sources);
        const int both = control("audioSourceList")->findText("PGM+A+B");
        if (both >= 0)
            QCOMPARE(control("audioSourceList")->itemData(both).value<SourceMap>(),
                     (SourceMap{{7, -1}, {17, -1}, {18, -1}}));
    }

    void presetsAreNamedInOnePass_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<QStringList>("names");

        QTest::newRow("same name") << QStringList{"Cam", "Cam", "Cam"} << QStringList{"Cam", "Cam 2", "Cam 3"};
        QTest::newRow("no name") << QStringList{"", ""} << QStringList{"Untitled", "Untitled 2"};
        // One pass only: a later row can still collide with an earlier one.
        QTest::newRow("one pass") << QStringList{"Cam 2", "Cam", "Cam"} << QStringList{"Cam 2", "Cam", "Cam 2"};
    }
    void presetsAreNamedInOnePass()
    {
        QFETCH(QStringList, typed);
        QFETCH(QStringList, names);

        open();
        for (const QString& name : typed)
            addPreset(name);
        QCOMPARE(storedNames(), names);
        QCOMPARE(rows()->currentRow(), names.size() - 1);
        QCOMPARE(row(names.size() - 1)->findChild<QLabel*>("presetName")->text(), names.last());
        QVERIFY(MessageBox::shown().isEmpty());
    }

    void recordingLimit()
    {
        LicenseModel license;
        license.setMaxRecording(2);
        makeStores(license);
        open(QJsonArray{storedRow("Row 1"), storedRow("Row 2"), storedRow("Row 3")});
        QCOMPARE(control<QLabel>("maxRecording")->text(), QStringLiteral("Max Recording: 2"));
        // Stored rows beyond the limit are not shown, and loading writes nothing.
        QCOMPARE(rows()->count(), 2);
        QCOMPARE(rows()->currentRow(), 0);
        QCOMPARE(stored().size(), 3);

        addPreset("Three");
        QCOMPARE(MessageBox::shown().size(), 1);
        expectBox(MessageBox::Kind::Warning, "Check the maximum number of recording.");
        QCOMPARE(rows()->count(), 2);
        QCOMPARE(stored().size(), 3);

        MessageBox::setNextAnswer(QMessageBox::Yes);
        control<QToolButton>("removePreset")->click();
        QCOMPARE(storedNames(), QStringList{"Row 2"});
    }

    void removeAsksFirst_data()
    {
        QTest::addColumn<int>("answer"); // NoButton: the row is recording
        QTest::addColumn<QStringList>("left");
        QTest::newRow("yes") << int(QMessageBox::Yes) << QStringList{"A", "C"};
        QTest::newRow("no") << int(QMessageBox::No) << QStringList{"A", "B", "C"};
        QTest::newRow("while recording") << int(QMessageBox::NoButton) << QStringList{"A", "B", "C"};
    }
    void removeAsksFirst()
    {
        QFETCH(int, answer);
        QFETCH(QStringList, left);

        open();
        QVERIFY(!control<QToolButton>("removePreset")->isEnabled());
        for (const char* name : {"A", "B", "C"})
            addPreset(name);
        rows()->setCurrentRow(1);
        QVERIFY(control<QToolButton>("removePreset")->isEnabled());
        if (answer == QMessageBox::NoButton)
            row(1)->findChild<QToolButton*>("encodingBtn")->click();

        MessageBox::setNextAnswer(QMessageBox::StandardButton(answer));
        control<QToolButton>("removePreset")->click();
        QCOMPARE(MessageBox::shown().size(), 1);
        if (answer == QMessageBox::NoButton)
            expectBox(MessageBox::Kind::Warning, "Please try again after recording is finished.");
        else
            expectBox(MessageBox::Kind::Question, "Are you sure you want to remove this item?");
        QStringList names;
        for (const CodecPreset& p : m_setup->codecPresets())
            names.append(p.name());
        QCOMPARE(names, left);
        QCOMPARE(storedNames(), left);
        QCOMPARE(m_setup->isEncoding(), answer == QMessageBox::NoButton);
    }

    void containerRestrictsCodecs_data()
    {
        QTest::addColumn<int>("availableMask");
        QTest::addColumn<QStringList>("containers"); // chosen in this order
        QTest::addColumn<QStringList>("codecs");
        QTest::addColumn<int>("audioMask");

        const int all = 0x7FFF;
        const QStringList flv{"AV1",       "H.264", "H.264 AMF", "H.264 NVENC",
                              "H.264 QSV", "HEVC",  "HEVC AMF",  "HEVC NVENC"};
        const QStringList mp4 = flv + QStringList{"MJPEG", "WMV"};
        const QStringList mkv = flv + QStringList{"MJPEG", "MPEG-2"};
        QTest::newRow("flv at start") << all << QStringList() << flv << 1;
        QTest::newRow("mp4") << all << QStringList{"MP4"} << mp4 + QStringList{"Apple ProRes"} << 19;
        QTest::newRow("mkv") << all << QStringList{"MKV"} << mkv + QStringList{"DV25"} << 19;
        QTest::newRow("avi") << all << QStringList{"AVI"} << QStringList{"MJPEG"} << 16;
        QTest::newRow("mov keeps the last masks") << all << QStringList{"AVI", "MOV"} << QStringList{"MJPEG"} << 16;
        QTest::newRow("back to flv") << all << QStringList{"AVI", "FLV"} << flv << 1;
        // XOR, not AND-NOT: a codec missing from the available mask comes back.
        QTest::newRow("mp4 xor") << (all & ~0x0080) << QStringList{"MP4"} << mp4 + QStringList{"Apple ProRes", "MPEG-2"}
                                 << 19;
        QTest::newRow("mkv xor") << (all & ~0x0200) << QStringList{"MKV"} << mkv + QStringList{"DV25", "WMV"} << 19;
    }
    void containerRestrictsCodecs()
    {
        QFETCH(int, availableMask);
        QFETCH(QStringList, containers);
        QFETCH(QStringList, codecs);
        QFETCH(int, audioMask);

        LicenseModel license;
        license.setAvailableVideoMask(availableMask);
        makeStores(license);
        for (const char* codec : {"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF", "HEVC", "HEVC NVENC", "HEVC AMF",
                                  "MPEG-2", "DV25", "WMV", "DNxHD", "MJPEG", "Apple ProRes", "XDCAM HD", "AV1"})
            QVERIFY(m_stores->codecManager().write(preset(codec, 1080, 50000)));
        open();
        for (const QString& container : containers)
            choose("containerList", container);

        QStringList listed;
        QComboBox* list = encoderList()->findChild<QComboBox*>("presetList");
        for (int i = 0; i < list->count(); ++i) {
            const QString codec = list->itemData(i).value<CodecPreset>().videoCodec().codec;
            if (!codec.isEmpty() && !listed.contains(codec))
                listed.append(codec);
        }
        listed.sort();
        codecs.sort();
        QCOMPARE(listed, codecs);
        QCOMPARE(encoderList()->outputAudioMask(), audioMask);
    }

    void settingsRoundTrip()
    {
        open();
        control<QLineEdit>("folder")->setText("/media/recordings");
        control<QLineEdit>("fileTag")->setText("%P %C");
        choose("containerList", "MP4");
        control<QCheckBox>("splitFile")->setChecked(true);
        choose("splitTimeList", "1 hour");
        choose("mediaToBin", "CLIP 2");
        choose("videoSourceList", "PVW");
        choose("audioSourceList", "PGM+B");
        encoderList()->selectPreset(preset("H.264", 720, 3000));
        addPreset("Main");

        const QJsonObject expected = storedRow(
            "Main", {{"VideoWidth", 1280},       {"VideoHeight", 720},   {"VideoBitRate", 3000},  {"VideoQuality", 0},
                     {"VideoPreset", ""},        {"VideoTune", ""},      {"VideoProfile", 0},     {"VideoBframes", 0},
                     {"AudioBitPerSamples", 16}, {"VideoSourceType", 10}, {"Path", "/media/recordings"},
                     {"FileTag", "%P %C"},       {"SplitTime", 3600},    {"MediaToBin", "CLIP 2"}});
        QCOMPARE(stored(), QJsonArray{expected});
        const CodecPreset added = m_setup->codecPresets().first();
        QVERIFY(added.local().enabled && !added.streaming().enabled);
        QVERIFY(!added.id().isEmpty());
        QCOMPARE(added.audioSource(), (SourceMap{{7, -1}, {18, -1}}));

        open(); // a fresh dialog over the stored object
        QCOMPARE(m_setup->codecPresets().size(), 1);
        CodecPreset reloaded = m_setup->codecPresets().first();
        QVERIFY(!reloaded.id().isEmpty() && reloaded.id() != added.id());
        // Only the first entry of a mixed audio source is stored: "PGM+B" comes back as "PGM".
        QCOMPARE(reloaded.audioSource(), (SourceMap{{7, -1}}));
        QCOMPARE(control("audioSourceList")->currentText(), QStringLiteral("PGM"));
        reloaded.setId(added.id());
        reloaded.audioSource() = added.audioSource();
        QVERIFY(reloaded == added);
    }

    void olderVideoSourceKeyWins_data()
    {
        QTest::addColumn<int>("legacy");
        QTest::addColumn<int>("type");
        QTest::newRow("programme") << 0 << 7;
        QTest::newRow("preview") << 2 << 10;
        QTest::newRow("other") << 5 << 5;
    }
    void olderVideoSourceKeyWins()
    {
        QFETCH(int, legacy);
        QFETCH(int, type);
        open(QJsonArray{storedRow("Old", {{"VideoSource", legacy}, {"VideoSourceIndex", 3}})});
        QCOMPARE(m_setup->codecPresets().first().videoSource(), (SourceMap{{type, -1}}));
    }

    void splitTimeOnlyWhenSplitting()
    {
        open();
        QVERIFY(!control("splitTimeList")->isEnabled());
        control<QCheckBox>("splitFile")->setChecked(true);
        QVERIFY(control("splitTimeList")->isEnabled());
        choose("splitTimeList", "1 hour");
        control<QCheckBox>("splitFile")->setChecked(false);
        addPreset("Split");
        // Not the interval shown but the encoder list's split time.
        QCOMPARE(stored().first().toObject().value("SplitTime").toInt(), 0);
    }

    void encodingStartsAndStopsEveryRow()
    {
        open();
        QVERIFY(!m_setup->encoding(true));
        QVERIFY(m_setup->encoding(false));
        QVERIFY(QuillonEngine::encodingCalls().isEmpty());

        addPreset("A");
        addPreset("B");
        QVERIFY(m_setup->encoding(true));
        QVERIFY(m_setup->isEncoding());
        QVERIFY(row(0)->isChecked() && row(1)->isChecked());
        QCOMPARE(QuillonEngine::runningEncoders().size(), 2);
        QCOMPARE(m_host->encodingEvents().size(), 2);
        QCOMPARE(m_host->encodingEvents().at(1).kind, 1);

        QVERIFY(m_setup->encoding(false));
        QVERIFY(!m_setup->isEncoding());
        QVERIFY(QuillonEngine::runningEncoders().isEmpty());
        QCOMPARE(m_host->encodingEvents().size(), 4);
    }

    void selectingRowAppliesItsSettings()
    {
        const QJsonObject second = storedRow("Second", {{"ContainerName", "avi"}, {"VideoCodec", "MJPEG"},
                                                        {"SplitTime", 900}, {"Path", "/media/clips"}, {"FileTag", "%S"},
                                                        {"MediaToBin", "CLIP 1"}, {"VideoSourceType", 8},
                                                        {"AudioSourceType", 10}});
        const QJsonObject third = storedRow("Third", {{"Path", ""}, {"MediaToBin", "Nowhere"}});
        open(QJsonArray{storedRow("First"), second, third});
        QCOMPARE(shownSettings(), QStringLiteral("/media/rec | %P | MP4 | no split | None | PGM | PGM | H.264"));
        rows()->setCurrentRow(1);
        QCOMPARE(shownSettings(),
                 QStringLiteral("/media/clips | %S | AVI | 15 minutes | CLIP 1 | PGM(Clean) | PVW | MJPEG"));
        // An empty path keeps the folder; an unknown bin falls back to "None".
        rows()->setCurrentRow(2);
        QCOMPARE(shownSettings(), QStringLiteral("/media/clips | %P | MP4 | no split | None | PGM | PGM | H.264"));

        // The video source drives the audio source.
        choose("audioSourceList", "BUS B");
        choose("videoSourceList", "PVW");
        QCOMPARE(control("audioSourceList")->currentText(), QStringLiteral("PVW"));
    }

    void namingDialogKeepsTheTag_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("accepted") << true;
        QTest::newRow("cancelled") << false;
    }
    void namingDialogKeepsTheTag()
    {
        QFETCH(bool, accept);
        const QString tag = accept ? "%P take %Y" : defaultTag;

        open();
        ModalDriver<FileNamingDialog> driver([accept](FileNamingDialog* dialog) {
            auto* edit = dialog->findChild<QLineEdit*>("fileTag");
            QCOMPARE(edit->text(), defaultTag);
            edit->clear();
            QTest::keyClicks(edit, "%P take %Y");
            accept ? dialog->accept() : dialog->reject();
        });
        control<QToolButton>("namingEdit")->click();
        QVERIFY(driver.found());
        QCOMPARE(control<QLineEdit>("fileTag")->text(), tag);
        QCOMPARE(QSettings().value("ql.recording.filetag").toString(), accept ? tag : QString());

        open(); // a new dialog starts with the last chosen tag
        QCOMPARE(control<QLineEdit>("fileTag")->text(), tag);
    }

    void showRefreshesTheEncoderList()
    {
        open(QJsonArray{storedRow("Main")});
        const CodecPreset later = preset("H.264", 2160, 20000);
        QVERIFY(m_stores->codecManager().write(later));
        QComboBox* list = encoderList()->findChild<QComboBox*>("presetList");
        QCOMPARE(list->findText(CodecManager::namingFromPreset(&later)), -1);

        control<QLineEdit>("folder")->clear();
        encoderList()->selectPreset(preset("H.264", 720, 3000));
        m_setup->show();
        QVERIFY(list->findText(CodecManager::namingFromPreset(&later)) >= 0);
        // The current row is applied again: folder and codec come back.
        QCOMPARE(shownSettings(), QStringLiteral("/media/rec | %P | MP4 | no split | None | PGM | PGM | H.264"));
        QCOMPARE(encoderList()->currentPreset().videoCodec().height, 1080);
        m_setup->hide();
    }

    void badStoredSettingsNeverCrash()
    {
        m_host->replaceSettings(QJsonObject{{"RECORDING", "junk"}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("not an array"));
        open();
        QCOMPARE(rows()->count(), 0);

        m_host->replaceSettings(QJsonObject{{"RECORDING", QJsonArray{42, storedRow("Good")}}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("element 0 is not an object"));
        open();
        QCOMPARE(rows()->count(), 2);
        QCOMPARE(m_setup->codecPresets().at(1).name(), QStringLiteral("Good"));
        QVERIFY(m_setup->encoding(true)); // an empty row still starts and stops cleanly
        QVERIFY(m_setup->encoding(false));

        // Without a host the dialog still works on its own.
        m_setup = std::make_unique<RecordingSetup>(nullptr, nullptr);
        m_setup->reloadPresets();
        addPreset("Alone");
        QCOMPARE(rows()->count(), 1);
        QVERIFY(m_setup->encoding(true));
        QVERIFY(m_setup->encoding(false));
    }

private:
    void makeStores(const LicenseModel& license = LicenseModel());
    void open(const QJsonArray& stored = QJsonArray());
    void addPreset(const QString& name)
    {
        control<QLineEdit>("presetName")->clear();
        QTest::keyClicks(control<QLineEdit>("presetName"), name);
        control<QToolButton>("addPreset")->click();
    }

    void choose(const char* combo, const QString& text) { QVERIFY2(TestKit::choose(control(combo), text), combo); }
    template <typename T = QComboBox>
    T* control(const char* name) const
    {
        return TestKit::control<T>(m_setup.get(), name);
    }
    EncoderListWidget* encoderList() const { return control<EncoderListWidget>("encoderList"); }
    // Folder, name, format, split, bin, sources and codec as the form shows them.
    QString shownSettings() const
    {
        const QString split = control<QCheckBox>("splitFile")->isChecked() ? control("splitTimeList")->currentText()
                                                                            : "no split";
        return QStringList{control<QLineEdit>("folder")->text(), control<QLineEdit>("fileTag")->text(),
                           control("containerList")->currentText(), split, control("mediaToBin")->currentText(),
                           control("videoSourceList")->currentText(), control("audioSourceList")->currentText(),
                           encoderList()->currentPreset().videoCodec().codec}
            .join(" | ");
    }
    QJsonArray stored() const { return m_host->settings().value("RECORDING").toArray(); }
    QStringList storedNames() const
    {
        QStringList names;
        for (const QJsonValue& value : stored())
            names.append(value.toObject().value("PresetName").toString());
        return names;
    }
    QListWidget* rows() const { return control<QListWidget>("presetList"); }
    EncoderItem* row(int index) const { return qobject_cast<EncoderItem*>(rows()->itemWidget(rows()->item(index))); }
    void expectBox(MessageBox::Kind kind, const QString& text)
    {
        QCOMPARE(MessageBox::lastShown().kind, kind);
        QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
        QCOMPARE(MessageBox::lastShown().text, text);
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<RecordingSetup> m_setup;
};

void TestRecordingSetup::makeStores(const LicenseModel& license)
{
    m_setup.reset();
    m_stores.reset(); // one store instance at a time
    m_stores = std::make_unique<TempStores>(license);
    for (const CodecPreset& p : {preset("H.264", 1080, 6000), preset("H.264", 720, 3000), preset("MJPEG", 1080, 40000)})
        QVERIFY(m_stores->codecManager().write(p));
}

void TestRecordingSetup::open(const QJsonArray& stored)
{
    m_setup.reset();
    if (!stored.isEmpty())
        m_host->setSettings("RECORDING", stored);
    m_host->clearEvents();
    m_setup = std::make_unique<RecordingSetup>(nullptr, m_host.get());
    m_setup->reloadPresets();
}

QTEST_MAIN(TestRecordingSetup)
#include "tst_recordingsetup.moc"
