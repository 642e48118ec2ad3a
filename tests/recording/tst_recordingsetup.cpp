#include "codecmanager.h"
#include "encoderitem.h"
#include "encoderlistwidget.h"
#include "filenamingdialog.h"
#include "licensemodel.h"
#include "memoryoutputinterface.h"
#include "messagebox.h"
#include "modaldriver.h"
#include "quillonengine.h"
#include "recordingsetup.h"
#include "tempstores.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <memory>

namespace {

using SourceMap = QMap<int, int>;

const char* const allCodecs[] = {"H.264", "H.264 NVENC", "H.264 QSV", "H.264 AMF", "HEVC",
                                 "HEVC NVENC", "HEVC AMF", "MPEG-2", "DV25", "WMV",
                                 "DNxHD", "MJPEG", "Apple ProRes", "XDCAM HD", "AV1"};

CodecPreset codecPreset(const QString& codec, int height = 1080, int bitRate = 6000)
{
    CodecPreset p;
    CodecModel::VideoCodec& v = p.videoCodec();
    v.codec = codec;
    v.width = height * 16 / 9;
    v.height = height;
    v.frameRate = 29.97;
    v.keyFrame = 2;
    v.bitRate = bitRate;
    CodecModel::AudioCodec& a = p.audioCodec();
    a.codec = QStringLiteral("AAC");
    a.channels = 2;
    a.sampleRate = 48000;
    a.bitRate = 128;
    a.bitPerSamples = 16;
    return p;
}

QJsonObject storedRow(const QString& name, double rate = 29.97, int field = 0)
{
    return QJsonObject{
        {"VideoCodec", "H.264"}, {"VideoWidth", 1920},        {"VideoHeight", 1080},   {"VideoFrameRate", rate},
        {"VideoField", field},   {"VideoKeyFrame", 2},        {"VideoBitRate", 6000},  {"AudioEnabled", true},
        {"AudioCodec", "AAC"},   {"AudioChannels", 2},        {"AudioSampleRate", 48000}, {"AudioBitRate", 128},
        {"PresetName", name},    {"VideoSourceType", 7},      {"VideoSourceIndex", -1}, {"AudioSourceType", 7},
        {"AudioSourceIndex", -1}, {"ContainerName", "mp4"},   {"Path", "/media/rec"}, {"FileTag", "%P"},
        {"SplitTime", 0},        {"MediaToBin", "None"},
    };
}

QStringList texts(const QComboBox* box)
{
    QStringList result;
    for (int i = 0; i < box->count(); ++i)
        result.append(box->itemText(i));
    return result;
}

} // namespace

class TestRecordingSetup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void formStartsAsDesigned();
    void audioSourcesFollowBusesAndLicence_data();
    void audioSourcesFollowBusesAndLicence();
    void presetsAreNamedInOnePass_data();
    void presetsAreNamedInOnePass();
    void recordingLimitRefusesAdd();
    void removeIsRefusedWhileRecording();
    void removeAsksFirst_data();
    void removeAsksFirst();
    void containerRestrictsCodecs_data();
    void containerRestrictsCodecs();
    void settingsRoundTrip();
    void olderVideoSourceKeyWins_data();
    void olderVideoSourceKeyWins();
    void multiSourceAudioComesBackAsItsFirstEntry();
    void splitTimeOnlyWhenSplitting_data();
    void splitTimeOnlyWhenSplitting();
    void storedRowsBeyondTheLimitAreDropped();
    void encodingStartsAndStopsEveryRow();
    void interlacedRowStartsAtHalfRate();
    void selectingRowAppliesItsSettings();
    void videoSourceDrivesAudio();
    void namingDialogKeepsTheTag_data();
    void namingDialogKeepsTheTag();
    void showRefreshesTheEncoderList();
    void browseTakesTheChosenFolder();
    void foreignItemDataReadsAsDefault();
    void badStoredSettingsNeverCrash();
    void worksWithoutHost();

private:
    void makeStores(const LicenseModel& license = LicenseModel());
    void open(const QJsonArray& stored = QJsonArray());
    void addPreset(const QString& name);
    void choose(const char* combo, const QString& text);
    QJsonArray stored() const { return m_host->settings().value(QStringLiteral("RECORDING")).toArray(); }
    QListWidget* rows() const { return control<QListWidget>("presetList"); }
    EncoderItem* row(int index) const
    {
        return qobject_cast<EncoderItem*>(rows()->itemWidget(rows()->item(index)));
    }
    QStringList listedCodecs() const;
    template <typename T>
    T* control(const char* name) const
    {
        T* found = m_setup ? m_setup->findChild<T*>(QLatin1String(name)) : nullptr;
        if (!found)
            qWarning("no control %s", name);
        return found;
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<RecordingSetup> m_setup;
};

void TestRecordingSetup::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("libstreaming-tests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_recordingsetup"));
    QStandardPaths::setTestModeEnabled(true);
    MessageBox::setScripted(true);
}

void TestRecordingSetup::init()
{
    MessageBox::clear();
    QuillonEngine::clearEncodingCalls();
    QuillonEngine::setProjectPreset(ProjectPreset());
    QSettings().remove(QStringLiteral("ql.recording.filetag"));
    makeStores();
    m_host = std::make_unique<MemoryOutputInterface>();
}

void TestRecordingSetup::cleanup()
{
    m_setup.reset();
    m_host.reset();
    m_stores.reset();
    QSettings().remove(QStringLiteral("ql.recording.filetag"));
    for (QWidget* widget : QApplication::topLevelWidgets())
        QVERIFY2(!widget->isVisible(), qPrintable(widget->objectName()));
}

void TestRecordingSetup::makeStores(const LicenseModel& license)
{
    m_setup.reset();
    m_stores.reset(); // one store instance at a time
    m_stores = std::make_unique<TempStores>(license);
    QVERIFY(m_stores->isValid());
    QVERIFY(m_stores->codecManager().write(codecPreset(QStringLiteral("H.264"))));
    QVERIFY(m_stores->codecManager().write(codecPreset(QStringLiteral("H.264"), 720, 3000)));
    QVERIFY(m_stores->codecManager().write(codecPreset(QStringLiteral("MJPEG"), 1080, 40000)));
}

void TestRecordingSetup::open(const QJsonArray& stored)
{
    m_setup.reset();
    if (!stored.isEmpty())
        m_host->setSettings(QStringLiteral("RECORDING"), stored);
    m_host->clearEvents();
    m_setup = std::make_unique<RecordingSetup>(nullptr, m_host.get());
    m_setup->reloadPresets();
}

void TestRecordingSetup::addPreset(const QString& name)
{
    auto* edit = control<QLineEdit>("presetName");
    edit->clear();
    QTest::keyClicks(edit, name);
    control<QToolButton>("addPreset")->click();
}

void TestRecordingSetup::choose(const char* combo, const QString& text)
{
    auto* box = control<QComboBox>(combo);
    QVERIFY(box);
    const int index = box->findText(text);
    QVERIFY2(index >= 0, qPrintable(text));
    box->setCurrentIndex(index);
}

QStringList TestRecordingSetup::listedCodecs() const
{
    auto* list = control<EncoderListWidget>("encoderList")->findChild<QComboBox*>(QStringLiteral("presetList"));
    QStringList codecs;
    for (int i = 0; i < list->count(); ++i) {
        const QString codec = list->itemData(i).value<CodecPreset>().videoCodec().codec;
        if (!codec.isEmpty() && !codecs.contains(codec))
            codecs.append(codec);
    }
    return codecs;
}

void TestRecordingSetup::formStartsAsDesigned()
{
    open();
    QCOMPARE(m_setup->windowTitle(), QStringLiteral("Recording"));
    auto* containers = control<QComboBox>("containerList");
    QCOMPARE(texts(containers), (QStringList{"FLV", "MP4", "MOV", "TS", "MXF", "MKV", "AVI"}));
    QCOMPARE(containers->itemData(5).toInt(), 64);
    auto* video = control<QComboBox>("videoSourceList");
    QCOMPARE(texts(video), (QStringList{"PGM", "PGM(Clean)", "PVW"}));
    QCOMPARE(video->itemData(2).value<SourceMap>(), (SourceMap{{10, -1}}));

    auto* split = control<QComboBox>("splitTimeList");
    QCOMPARE(texts(split), (QStringList{"5 minutes", "15 minutes", "30 minutes", "45 minutes", "1 hour", "2 hours",
                                        "4 hours", "8 hours", "12 hours", "24 hours"}));
    QCOMPARE(split->currentData().toInt(), 43200);
    QVERIFY(!split->isEnabled());
    control<QCheckBox>("splitFile")->setChecked(true);
    QVERIFY(split->isEnabled());

    QCOMPARE(texts(control<QComboBox>("mediaToBin")), (QStringList{"None", "CLIP 1", "CLIP 2"}));
    QCOMPARE(control<QComboBox>("mediaToBin")->currentIndex(), 0);
    QCOMPARE(control<QLineEdit>("fileTag")->text(), QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R"));
    QCOMPARE(control<QToolButton>("namingEdit")->toolTip(), QStringLiteral("Edit Naming"));
    QCOMPARE(control<QToolButton>("addPreset")->toolTip(), QStringLiteral("Add Presets"));
    QCOMPARE(control<QToolButton>("removePreset")->toolTip(), QStringLiteral("Remove Presets"));
    QVERIFY(!control<QToolButton>("removePreset")->isEnabled());
    QVERIFY(control<QToolButton>("addPreset")->isEnabled());
    QCOMPARE(control<QLabel>("maxRecording")->text(), QStringLiteral("Max Recording: 4"));
    QCOMPARE(control<QLabel>("maxResolution")->text(), QStringLiteral("Max Resolution: 3840x2160"));
    QPushButton* close = control<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close);
    QCOMPARE(close->text(), QStringLiteral("Close"));
    QCOMPARE(close->minimumWidth(), close->fontMetrics().horizontalAdvance(QStringLiteral("Close")) + 20);
    QCOMPARE(rows()->count(), 0);

    m_setup->show();
    QVERIFY(m_setup->isVisible());
    close->click();
    QVERIFY(!m_setup->isVisible());
}

void TestRecordingSetup::audioSourcesFollowBusesAndLicence_data()
{
    QTest::addColumn<bool>("licensed");
    QTest::addColumn<bool>("busA");
    QTest::addColumn<bool>("busB");
    QTest::addColumn<QStringList>("sources");

    const QStringList programme{"PGM", "PGM(Clean)", "PVW"};
    QTest::newRow("both buses") << true << true << true
                                << programme + QStringList{"BUS A", "BUS B", "BUS A+B", "PGM+A", "PGM+B", "PGM+A+B"};
    QTest::newRow("bus A only") << true << true << false << programme + QStringList{"BUS A", "PGM+A"};
    QTest::newRow("bus B only") << true << false << true << programme + QStringList{"BUS B", "PGM+B"};
    QTest::newRow("no bus") << true << false << false << programme;
    QTest::newRow("not licensed") << false << true << true << programme;
}

void TestRecordingSetup::audioSourcesFollowBusesAndLicence()
{
    QFETCH(bool, licensed);
    QFETCH(bool, busA);
    QFETCH(bool, busB);
    QFETCH(QStringList, sources);

    LicenseModel license;
    license.setAudioBusEnabled(licensed);
    makeStores(license);
    ProjectPreset project;
    project.processing().busAEnabled = busA;
    project.processing().busBEnabled = busB;
    QuillonEngine::setProjectPreset(project);
    open();
    auto* audio = control<QComboBox>("audioSourceList");
    QCOMPARE(texts(audio), sources);
    const int both = audio->findText(QStringLiteral("PGM+A+B"));
    if (both >= 0)
        QCOMPARE(audio->itemData(both).value<SourceMap>(), (SourceMap{{7, -1}, {17, -1}, {18, -1}}));
}

void TestRecordingSetup::presetsAreNamedInOnePass_data()
{
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("same name") << QStringList{"Cam", "Cam", "Cam"} << QStringList{"Cam", "Cam 2", "Cam 3"};
    QTest::newRow("no name") << QStringList{"", ""} << QStringList{"Untitled", "Untitled 2"};
    QTest::newRow("numbered first") << QStringList{"Cam", "Cam 2", "Cam"} << QStringList{"Cam", "Cam 2", "Cam 3"};
    // One pass only: a later row can still collide with an earlier one.
    QTest::newRow("one pass") << QStringList{"Cam 2", "Cam", "Cam"} << QStringList{"Cam 2", "Cam", "Cam 2"};
}

void TestRecordingSetup::presetsAreNamedInOnePass()
{
    QFETCH(QStringList, typed);
    QFETCH(QStringList, names);

    open();
    for (const QString& name : typed)
        addPreset(name);
    QStringList stored;
    for (const QJsonValue& value : this->stored())
        stored.append(value.toObject().value(QStringLiteral("PresetName")).toString());
    QCOMPARE(stored, names);
    QCOMPARE(rows()->currentRow(), names.size() - 1);
    QCOMPARE(row(names.size() - 1)->findChild<QLabel*>(QStringLiteral("presetName"))->text(), names.last());
    QVERIFY(MessageBox::shown().isEmpty());
}

void TestRecordingSetup::recordingLimitRefusesAdd()
{
    LicenseModel license;
    license.setMaxRecording(2);
    makeStores(license);
    open();
    addPreset(QStringLiteral("One"));
    addPreset(QStringLiteral("Two"));
    QVERIFY(MessageBox::shown().isEmpty());
    addPreset(QStringLiteral("Three"));
    QCOMPARE(MessageBox::shown().size(), 1);
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Warning);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Check the maximum number of recording."));
    QCOMPARE(rows()->count(), 2);
    QCOMPARE(stored().size(), 2);
    QCOMPARE(control<QLabel>("maxRecording")->text(), QStringLiteral("Max Recording: 2"));
}

void TestRecordingSetup::removeIsRefusedWhileRecording()
{
    open();
    addPreset(QStringLiteral("Live"));
    row(0)->findChild<QToolButton*>(QStringLiteral("encodingBtn"))->click();
    QVERIFY(m_setup->isEncoding());

    control<QToolButton>("removePreset")->click();
    QCOMPARE(MessageBox::shown().size(), 1);
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Warning);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Please try again after recording is finished."));
    QCOMPARE(rows()->count(), 1);
    QCOMPARE(stored().size(), 1);
    QVERIFY(m_setup->isEncoding());
}

void TestRecordingSetup::removeAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("left");

    QTest::newRow("yes") << int(QMessageBox::Yes) << QStringList{"A", "C"};
    QTest::newRow("no") << int(QMessageBox::No) << QStringList{"A", "B", "C"};
}

void TestRecordingSetup::removeAsksFirst()
{
    QFETCH(int, answer);
    QFETCH(QStringList, left);

    open();
    for (const char* name : {"A", "B", "C"})
        addPreset(QLatin1String(name));
    rows()->setCurrentRow(1);
    QVERIFY(control<QToolButton>("removePreset")->isEnabled());
    m_host->clearEvents();

    MessageBox::setNextAnswer(QMessageBox::StandardButton(answer));
    control<QToolButton>("removePreset")->click();
    QCOMPARE(MessageBox::lastShown().kind, MessageBox::Kind::Question);
    QCOMPARE(MessageBox::lastShown().title, QStringLiteral("Preset"));
    QCOMPARE(MessageBox::lastShown().text, QStringLiteral("Are you sure you want to remove this item?"));

    QStringList names;
    for (const CodecPreset& p : m_setup->codecPresets())
        names.append(p.name());
    QCOMPARE(names, left);
    QStringList storedNames;
    for (const QJsonValue& value : stored())
        storedNames.append(value.toObject().value(QStringLiteral("PresetName")).toString());
    QCOMPARE(storedNames, left);
}

void TestRecordingSetup::containerRestrictsCodecs_data()
{
    QTest::addColumn<int>("availableMask");
    QTest::addColumn<QStringList>("containers"); // chosen in this order
    QTest::addColumn<QStringList>("codecs");
    QTest::addColumn<int>("audioMask");

    const int all = 0x7FFF;
    const QStringList flv{"AV1", "H.264", "H.264 AMF", "H.264 NVENC", "H.264 QSV", "HEVC", "HEVC AMF", "HEVC NVENC"};
    const QStringList mp4{"AV1",        "Apple ProRes", "H.264",      "H.264 AMF", "H.264 NVENC", "H.264 QSV",
                          "HEVC",       "HEVC AMF",     "HEVC NVENC", "MJPEG",     "WMV"};
    const QStringList mkv{"AV1",       "DV25",       "H.264", "H.264 AMF", "H.264 NVENC", "H.264 QSV",
                          "HEVC",      "HEVC AMF",   "HEVC NVENC", "MJPEG", "MPEG-2"};
    QTest::newRow("flv at start") << all << QStringList() << flv << 1;
    QTest::newRow("mp4") << all << QStringList{"MP4"} << mp4 << 19;
    QTest::newRow("mkv") << all << QStringList{"MKV"} << mkv << 19;
    QTest::newRow("avi") << all << QStringList{"AVI"} << QStringList{"MJPEG"} << 16;
    QTest::newRow("mov keeps the last masks") << all << QStringList{"AVI", "MOV"} << QStringList{"MJPEG"} << 16;
    QTest::newRow("back to flv") << all << QStringList{"AVI", "FLV"} << flv << 1;
    // XOR, not AND-NOT: a codec missing from the available mask comes back.
    QStringList mp4WithMpeg2 = mp4;
    mp4WithMpeg2.insert(mp4.indexOf("MJPEG") + 1, QStringLiteral("MPEG-2"));
    QTest::newRow("mp4 xor") << (all & ~0x0080) << QStringList{"MP4"} << mp4WithMpeg2 << 19;
    QTest::newRow("mkv xor") << (all & ~0x0200) << QStringList{"MKV"} << mkv + QStringList{"WMV"} << 19;
}

void TestRecordingSetup::containerRestrictsCodecs()
{
    QFETCH(int, availableMask);
    QFETCH(QStringList, containers);
    QFETCH(QStringList, codecs);
    QFETCH(int, audioMask);

    LicenseModel license;
    license.setAvailableVideoMask(availableMask);
    makeStores(license);
    for (const char* codec : allCodecs)
        QVERIFY(m_stores->codecManager().write(codecPreset(QLatin1String(codec), 1080, 50000)));
    open();
    for (const QString& container : containers)
        choose("containerList", container);
    QCOMPARE(listedCodecs(), codecs);
    QCOMPARE(control<EncoderListWidget>("encoderList")->outputAudioMask(), audioMask);
}

void TestRecordingSetup::settingsRoundTrip()
{
    open();
    control<QLineEdit>("folder")->setText(QStringLiteral("/media/recordings"));
    control<QLineEdit>("fileTag")->setText(QStringLiteral("%P %C"));
    choose("containerList", QStringLiteral("MP4"));
    control<QCheckBox>("splitFile")->setChecked(true);
    choose("splitTimeList", QStringLiteral("1 hour"));
    choose("mediaToBin", QStringLiteral("CLIP 2"));
    choose("videoSourceList", QStringLiteral("PVW"));
    choose("audioSourceList", QStringLiteral("BUS A"));
    control<EncoderListWidget>("encoderList")->selectPreset(codecPreset(QStringLiteral("H.264"), 720, 3000));
    addPreset(QStringLiteral("Main"));

    const QJsonObject expected{
        {"VideoCodec", "H.264"},   {"VideoWidth", 1280},      {"VideoHeight", 720},        {"VideoFrameRate", 29.97},
        {"VideoField", 0},         {"VideoKeyFrame", 2},      {"VideoBitRate", 3000},      {"VideoQuality", 0},
        {"VideoPreset", ""},       {"VideoTune", ""},         {"VideoProfile", 0},         {"VideoBframes", 0},
        {"AudioEnabled", true},    {"AudioCodec", "AAC"},     {"AudioChannels", 2},        {"AudioSampleRate", 48000},
        {"AudioBitRate", 128},     {"AudioBitPerSamples", 16}, {"PresetName", "Main"},     {"VideoSourceType", 10},
        {"VideoSourceIndex", -1},  {"AudioSourceType", 17},   {"AudioSourceIndex", -1},    {"ContainerName", "mp4"},
        {"Path", "/media/recordings"}, {"FileTag", "%P %C"},  {"SplitTime", 3600},         {"MediaToBin", "CLIP 2"},
    };
    QCOMPARE(stored(), QJsonArray{expected});

    const CodecPreset added = m_setup->codecPresets().first();
    QVERIFY(added.local().enabled);
    QVERIFY(!added.streaming().enabled);
    QVERIFY(!added.id().isEmpty());

    open(); // a fresh dialog over the stored object
    QCOMPARE(m_setup->codecPresets().size(), 1);
    CodecPreset reloaded = m_setup->codecPresets().first();
    QVERIFY(!reloaded.id().isEmpty());
    QVERIFY(reloaded.id() != added.id());
    reloaded.setId(added.id());
    QVERIFY(reloaded == added);
    QCOMPARE(control<QLineEdit>("presetName")->text(), QString());
}

void TestRecordingSetup::olderVideoSourceKeyWins_data()
{
    QTest::addColumn<int>("legacy");
    QTest::addColumn<int>("type");

    QTest::newRow("programme") << 0 << 7;
    QTest::newRow("clean programme") << 1 << 8;
    QTest::newRow("preview") << 2 << 10;
    QTest::newRow("other") << 5 << 5;
}

void TestRecordingSetup::olderVideoSourceKeyWins()
{
    QFETCH(int, legacy);
    QFETCH(int, type);

    QJsonObject old = storedRow(QStringLiteral("Old"));
    old.insert(QStringLiteral("VideoSource"), legacy);
    old.insert(QStringLiteral("VideoSourceIndex"), 3);
    open(QJsonArray{old});
    QCOMPARE(m_setup->codecPresets().first().videoSource(), (SourceMap{{type, -1}}));
}

void TestRecordingSetup::multiSourceAudioComesBackAsItsFirstEntry()
{
    open();
    choose("audioSourceList", QStringLiteral("PGM+B"));
    addPreset(QStringLiteral("Mix"));
    QCOMPARE(m_setup->codecPresets().first().audioSource(), (SourceMap{{7, -1}, {18, -1}}));
    QCOMPARE(stored().first().toObject().value(QLatin1String("AudioSourceType")).toInt(), 7);

    open();
    QCOMPARE(m_setup->codecPresets().first().audioSource(), (SourceMap{{7, -1}}));
    QCOMPARE(control<QComboBox>("audioSourceList")->currentText(), QStringLiteral("PGM"));
}

void TestRecordingSetup::splitTimeOnlyWhenSplitting_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<int>("seconds");

    QTest::newRow("off") << false << 0;
    QTest::newRow("on") << true << 3600;
}

void TestRecordingSetup::splitTimeOnlyWhenSplitting()
{
    QFETCH(bool, split);
    QFETCH(int, seconds);

    open();
    control<QCheckBox>("splitFile")->setChecked(true);
    choose("splitTimeList", QStringLiteral("1 hour"));
    control<QCheckBox>("splitFile")->setChecked(split);
    addPreset(QStringLiteral("Split"));
    QCOMPARE(stored().first().toObject().value(QLatin1String("SplitTime")).toInt(), seconds);
}

void TestRecordingSetup::storedRowsBeyondTheLimitAreDropped()
{
    QJsonArray many;
    for (int i = 1; i <= 6; ++i)
        many.append(storedRow(QStringLiteral("Row %1").arg(i)));
    open(many);
    QCOMPARE(rows()->count(), 4);
    QCOMPARE(rows()->currentRow(), 0);
    QCOMPARE(m_setup->codecPresets().last().name(), QStringLiteral("Row 4"));
    QCOMPARE(stored().size(), 6); // nothing is written by loading

    MessageBox::setNextAnswer(QMessageBox::Yes);
    control<QToolButton>("removePreset")->click();
    QCOMPARE(stored().size(), 3);
    QCOMPARE(stored().first().toObject().value(QLatin1String("PresetName")).toString(), QStringLiteral("Row 2"));
}

void TestRecordingSetup::encodingStartsAndStopsEveryRow()
{
    open();
    QVERIFY(!m_setup->encoding(true));
    QVERIFY(!m_setup->isEncoding());
    QVERIFY(m_setup->encoding(false));
    QVERIFY(QuillonEngine::encodingCalls().isEmpty());

    addPreset(QStringLiteral("A"));
    addPreset(QStringLiteral("B"));
    m_host->clearEvents();
    QVERIFY(m_setup->encoding(true));
    QVERIFY(m_setup->isEncoding());
    QVERIFY(row(0)->isChecked() && row(1)->isChecked());
    QCOMPARE(QuillonEngine::runningEncoders().size(), 2);
    QCOMPARE(m_host->encodingEvents().size(), 2);
    QCOMPARE(m_host->encodingEvents().at(0).kind, 1);
    QCOMPARE(m_host->encodingEvents().at(1).preset.name(), QStringLiteral("B"));
    QVERIFY(m_host->encodingEvents().at(1).on);

    QVERIFY(m_setup->encoding(false));
    QVERIFY(!m_setup->isEncoding());
    QVERIFY(QuillonEngine::runningEncoders().isEmpty());
    QCOMPARE(m_host->encodingEvents().size(), 4);
    QVERIFY(!m_host->encodingEvents().last().on);
}

void TestRecordingSetup::interlacedRowStartsAtHalfRate()
{
    open(QJsonArray{storedRow(QStringLiteral("Field"), 29.97, 1)});
    QVERIFY(m_setup->encoding(true));
    QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
    QVERIFY(qFuzzyCompare(QuillonEngine::encodingCalls().first().preset.videoCodec().frameRate, 14.985));
    QCOMPARE(m_host->encodingEvents().size(), 1);
    QCOMPARE(m_host->encodingEvents().first().kind, 1);
    QCOMPARE(m_host->encodingEvents().first().preset.videoCodec().frameRate, 29.97);
}

void TestRecordingSetup::selectingRowAppliesItsSettings()
{
    QJsonObject first = storedRow(QStringLiteral("First"));
    QJsonObject second = storedRow(QStringLiteral("Second"));
    second.insert(QStringLiteral("ContainerName"), QStringLiteral("avi"));
    second.insert(QStringLiteral("VideoCodec"), QStringLiteral("MJPEG"));
    second.insert(QStringLiteral("VideoFrameRate"), 29.97);
    second.insert(QStringLiteral("VideoBitRate"), 40000);
    second.insert(QStringLiteral("Path"), QStringLiteral("/media/clips"));
    second.insert(QStringLiteral("FileTag"), QStringLiteral("%S"));
    second.insert(QStringLiteral("SplitTime"), 900);
    second.insert(QStringLiteral("MediaToBin"), QStringLiteral("CLIP 1"));
    second.insert(QStringLiteral("VideoSourceType"), 8);
    second.insert(QStringLiteral("AudioSourceType"), 10);
    QJsonObject third = storedRow(QStringLiteral("Third"));
    third.insert(QStringLiteral("Path"), QString());
    third.insert(QStringLiteral("MediaToBin"), QStringLiteral("Nowhere"));
    open(QJsonArray{first, second, third});
    QCOMPARE(control<QComboBox>("containerList")->currentText(), QStringLiteral("MP4"));

    rows()->setCurrentRow(1);
    QCOMPARE(control<QLineEdit>("folder")->text(), QStringLiteral("/media/clips"));
    QCOMPARE(control<QLineEdit>("fileTag")->text(), QStringLiteral("%S"));
    QCOMPARE(control<QComboBox>("containerList")->currentText(), QStringLiteral("AVI"));
    QVERIFY(control<QCheckBox>("splitFile")->isChecked());
    QCOMPARE(control<QComboBox>("splitTimeList")->currentText(), QStringLiteral("15 minutes"));
    QCOMPARE(control<QComboBox>("mediaToBin")->currentText(), QStringLiteral("CLIP 1"));
    QCOMPARE(control<QComboBox>("videoSourceList")->currentText(), QStringLiteral("PGM(Clean)"));
    QCOMPARE(control<QComboBox>("audioSourceList")->currentText(), QStringLiteral("PVW"));
    QCOMPARE(control<EncoderListWidget>("encoderList")->currentPreset().videoCodec().codec, QStringLiteral("MJPEG"));

    rows()->setCurrentRow(2); // an empty path keeps the folder; an unknown bin falls back to "None"
    QCOMPARE(control<QLineEdit>("folder")->text(), QStringLiteral("/media/clips"));
    QVERIFY(!control<QCheckBox>("splitFile")->isChecked());
    QCOMPARE(control<QComboBox>("mediaToBin")->currentIndex(), 0);
    QCOMPARE(control<EncoderListWidget>("encoderList")->currentPreset().videoCodec().codec, QStringLiteral("H.264"));
    QCOMPARE(control<EncoderListWidget>("encoderList")->currentPreset().videoCodec().height, 1080);
    QVERIFY(control<QToolButton>("removePreset")->isEnabled());
}

void TestRecordingSetup::videoSourceDrivesAudio()
{
    open();
    choose("videoSourceList", QStringLiteral("PVW"));
    QCOMPARE(control<QComboBox>("audioSourceList")->currentText(), QStringLiteral("PVW"));
    choose("audioSourceList", QStringLiteral("BUS B"));
    choose("videoSourceList", QStringLiteral("PGM(Clean)"));
    QCOMPARE(control<QComboBox>("audioSourceList")->currentText(), QStringLiteral("PGM(Clean)"));
}

void TestRecordingSetup::namingDialogKeepsTheTag_data()
{
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QString>("tag");

    QTest::newRow("accepted") << true << QStringLiteral("%P take %Y");
    QTest::newRow("cancelled") << false << QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R");
}

void TestRecordingSetup::namingDialogKeepsTheTag()
{
    QFETCH(bool, accept);
    QFETCH(QString, tag);

    open();
    ModalDriver<FileNamingDialog> driver([accept](FileNamingDialog* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileTag"));
        QVERIFY(edit);
        QCOMPARE(edit->text(), QStringLiteral("%P %Y-%M-%D %h-%m-%s %C_%B_%R"));
        edit->clear();
        QTest::keyClicks(edit, QStringLiteral("%P take %Y"));
        if (accept)
            dialog->accept();
        else
            dialog->reject();
    });
    control<QToolButton>("namingEdit")->click();
    QVERIFY(driver.found());
    QCOMPARE(control<QLineEdit>("fileTag")->text(), tag);
    QCOMPARE(QSettings().value(QStringLiteral("ql.recording.filetag")).toString(), accept ? tag : QString());

    open(); // a new dialog starts with the last chosen tag
    QCOMPARE(control<QLineEdit>("fileTag")->text(), tag);
}

void TestRecordingSetup::showRefreshesTheEncoderList()
{
    open(QJsonArray{storedRow(QStringLiteral("Main"))});
    const CodecPreset later = codecPreset(QStringLiteral("H.264"), 2160, 20000);
    QVERIFY(m_stores->codecManager().write(later));
    QVERIFY(!listedCodecs().isEmpty());
    auto* list = control<EncoderListWidget>("encoderList")->findChild<QComboBox*>(QStringLiteral("presetList"));
    QCOMPARE(list->findText(CodecManager::namingFromPreset(&later)), -1);

    control<QLineEdit>("folder")->clear();
    control<EncoderListWidget>("encoderList")->selectPreset(codecPreset(QStringLiteral("H.264"), 720, 3000));
    m_setup->show();
    QVERIFY(list->findText(CodecManager::namingFromPreset(&later)) >= 0);
    // The current row is applied again: folder and codec come back.
    QCOMPARE(control<QComboBox>("containerList")->currentText(), QStringLiteral("MP4"));
    QCOMPARE(control<QLineEdit>("folder")->text(), QStringLiteral("/media/rec"));
    QCOMPARE(control<EncoderListWidget>("encoderList")->currentPreset().videoCodec().height, 1080);
    m_setup->hide();
    QVERIFY(!m_setup->isVisible());
}

void TestRecordingSetup::browseTakesTheChosenFolder()
{
    QTemporaryDir target;
    QVERIFY(target.isValid());
    open();
    ModalDriver<QFileDialog> driver([&target](QFileDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Open Directory"));
        dialog->setDirectory(target.path());
        dialog->selectFile(target.path());
        static_cast<QDialog*>(dialog)->accept(); // QFileDialog hides its accept()
    });
    control<QToolButton>("browse")->click();
    QVERIFY(driver.found());
    QCOMPARE(QDir(control<QLineEdit>("folder")->text()), QDir(target.path()));
}

void TestRecordingSetup::foreignItemDataReadsAsDefault()
{
    open(QJsonArray{storedRow(QStringLiteral("Main"))});
    rows()->item(0)->setData(Qt::UserRole, QStringLiteral("not a preset"));
    QCOMPARE(m_setup->codecPresets().size(), 1);
    QVERIFY(m_setup->codecPresets().first() == CodecPreset());
}

void TestRecordingSetup::badStoredSettingsNeverCrash()
{
    m_host->replaceSettings(QJsonObject{{QStringLiteral("RECORDING"), QStringLiteral("junk")}});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not an array")));
    open();
    QCOMPARE(rows()->count(), 0);

    m_host->replaceSettings(QJsonObject{{QStringLiteral("RECORDING"), QJsonArray{42, storedRow(QStringLiteral("Good"))}}});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("element 0 is not an object")));
    open();
    QCOMPARE(rows()->count(), 2);
    QCOMPARE(m_setup->codecPresets().at(0).name(), QString());
    QCOMPARE(m_setup->codecPresets().at(1).name(), QStringLiteral("Good"));
    QVERIFY(m_setup->encoding(true)); // an empty row still starts and stops cleanly
    QVERIFY(m_setup->encoding(false));
}

void TestRecordingSetup::worksWithoutHost()
{
    m_setup = std::make_unique<RecordingSetup>(nullptr, nullptr);
    m_setup->reloadPresets();
    addPreset(QStringLiteral("Alone"));
    QCOMPARE(rows()->count(), 1);
    QVERIFY(m_setup->encoding(true));
    QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
    m_setup->encoding(false);
}

QTEST_MAIN(TestRecordingSetup)
#include "tst_recordingsetup.moc"
