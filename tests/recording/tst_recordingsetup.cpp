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

#include <QtTest>
#include <QtWidgets>

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
        for (QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY2(!widget->isVisible(), qPrintable(widget->objectName()));
    }

    void rowsDescribeAndStartTheirPreset_data()
    {
        QTest::addColumn<QJsonObject>("changes");
        QTest::addColumn<bool>("projectInterlaced");
        QTest::addColumn<QString>("summary"); // video | audio
        QTest::addColumn<double>("started");  // the frame rate the engine gets

        QTest::newRow("interlaced is halved")
            << QJsonObject{{"VideoCodec", "MPEG-2"}, {"VideoField", 1}, {"VideoFrameRate", 59.94},
                           {"VideoKeyFrame", 1}, {"VideoBitRate", 25000}}
            << false << "MPEG-2 1080i59.94 1s 25000 | AAC Stereo 48kHz 128kbps" << 29.97;
        QTest::newRow("auto prores, progressive project")
            << QJsonObject{{"VideoCodec", "Apple ProRes"}, {"VideoHeight", 2160}, {"VideoFrameRate", 0},
                           {"VideoKeyFrame", 0}, {"VideoBitRate", 0}, {"VideoQuality", 9}, {"AudioCodec", "PCM"},
                           {"AudioChannels", 6}, {"AudioSampleRate", 44100}, {"AudioBitRate", 0}}
            << false << "Apple ProRes 2160 AUTO XQ | PCM Mono 44.1kHz" << 59.94;
        QTest::newRow("auto, interlaced project, no audio")
            << QJsonObject{{"VideoFrameRate", -1}, {"VideoField", 1}, {"AudioEnabled", false}} << true
            << "H.264 1080 AUTO 2s 6000 | " << 29.97;
    }
    void rowsDescribeAndStartTheirPreset()
    {
        QFETCH(QJsonObject, changes);
        QFETCH(bool, projectInterlaced);
        QFETCH(QString, summary);
        QFETCH(double, started);

        ProjectPreset project;
        project.videoOutput().frameRate = 59.94;
        project.videoOutput().interlaced = projectInterlaced;
        QuillonEngine::setProjectPreset(project);
        open(QJsonArray{storedRow("Row", changes)});
        QCOMPARE(row(0)->findChild<QLabel*>("videoCodec")->text() + " | " + row(0)->findChild<QLabel*>("audioCodec")->text(),
                 summary);

        row(0)->findChild<QToolButton*>("encodingBtn")->click();
        QCOMPARE(QuillonEngine::encodingCalls().size(), 1);
        QVERIFY(qFuzzyCompare(QuillonEngine::encodingCalls().first().preset.videoCodec().frameRate, started));
        // The host hears of the row's own preset, not the engine's copy.
        const auto event = m_host->encodingEvents().value(0);
        QVERIFY(m_host->encodingEvents().size() == 1 && event.kind == 1 && event.on);
        QVERIFY(event.preset == m_setup->codecPresets().first());
    }

    // Names are made unique in one pass (a later row can still collide with an earlier one), rows
    // stop at the licence's limit, and removing asks first and never takes a recording row.
    void namesLimitAndRemoval()
    {
        LicenseModel license;
        license.setMaxRecording(4);
        license.setAudioBusEnabled(false);
        makeStores(license);
        open();
        QCOMPARE(control<QLabel>("maxRecording")->text(), QStringLiteral("Max Recording: 4"));
        // Without the audio bus in the licence only the programme sources are offered.
        QCOMPARE(comboTexts(control("audioSourceList")), (QStringList{"PGM", "PGM(Clean)", "PVW"}));
        QVERIFY(!control<QToolButton>("removePreset")->isEnabled());
        for (const char* name : {"Cam 2", "Cam", "Cam", "", "Five"})
            addPreset(name);
        QCOMPARE(box(), QStringLiteral("2 Preset: Check the maximum number of recording.")); // a warning
        const QStringList names{"Cam 2", "Cam", "Cam 2", "Untitled"};
        QVERIFY(storedNames() == names && rows()->currentRow() == 3);

        // Stored rows beyond the limit are not shown, and loading writes nothing.
        m_host->setSettings("RECORDING", QJsonArray(stored()) << storedRow("Extra"));
        open();
        QVERIFY(rows()->count() == 4 && rows()->currentRow() == 0 && stored().size() == 5);

        rows()->setCurrentRow(1);
        for (int answer : {QMessageBox::No, QMessageBox::NoButton, QMessageBox::Yes}) {
            MessageBox::clear();
            MessageBox::setNextAnswer(QMessageBox::StandardButton(answer));
            const bool busy = answer == QMessageBox::NoButton; // the row is recording
            if (busy)
                row(1)->findChild<QToolButton*>("encodingBtn")->click();
            control<QToolButton>("removePreset")->click();
            QCOMPARE(box(), QString(busy ? "2 Preset: Please try again after recording is finished."
                                         : "1 Preset: Are you sure you want to remove this item?"));
            QCOMPARE(storedNames().size(), answer == QMessageBox::Yes ? 3 : 5);
            if (busy)
                row(1)->findChild<QToolButton*>("encodingBtn")->click();
        }
        QCOMPARE(storedNames(), (QStringList{"Cam 2", "Cam 2", "Untitled"}));
    }

    // XOR, not AND-NOT: a codec missing from the licence's mask comes back with MP4 (MPEG-2 here).
    void containerMaskIsExclusiveOr()
    {
        LicenseModel license;
        license.setAvailableVideoMask(0x7FFF & ~0x0080);
        makeStores(license);
        for (const char* codec : {"MPEG-2", "DV25", "WMV", "Apple ProRes"})
            QVERIFY(m_stores->codecManager().write(preset(codec, 1080, 50000)));
        open();
        choose("containerList", "MP4");
        QStringList listed;
        const QComboBox* list = encoderList()->findChild<QComboBox*>("presetList");
        for (int i = 0; i < list->count(); ++i)
            listed << list->itemData(i).value<CodecPreset>().videoCodec().codec;
        listed.removeDuplicates();
        listed.removeAll(QString()); // the separators
        QCOMPARE(listed, (QStringList{"Apple ProRes", "H.264", "MJPEG", "MPEG-2", "WMV"}));
        QCOMPARE(encoderList()->outputAudioMask(), 19);
    }

    void settingsRoundTrip()
    {
        ProjectPreset project; // bus A off: only its mixes go
        project.processing().busAEnabled = false;
        QuillonEngine::setProjectPreset(project);
        open();
        QCOMPARE(comboTexts(control("audioSourceList")), (QStringList{"PGM", "PGM(Clean)", "PVW", "BUS B", "PGM+B"}));
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
        QCOMPARE(added.audioSource(), (SourceMap{{7, -1}, {18, -1}}));

        // Split switched off: not the interval shown but the encoder list's split time is stored.
        control<QCheckBox>("splitFile")->setChecked(false);
        QVERIFY(!control("splitTimeList")->isEnabled());
        addPreset("Unsplit");
        QCOMPARE(stored().last().toObject().value("SplitTime").toInt(), 0);

        open(); // a fresh dialog over the stored object
        QCOMPARE(m_setup->codecPresets().size(), 2);
        CodecPreset reloaded = m_setup->codecPresets().first();
        QVERIFY(!reloaded.id().isEmpty() && reloaded.id() != added.id());
        // Only the first entry of a mixed audio source is stored: "PGM+B" comes back as "PGM".
        QCOMPARE(reloaded.audioSource(), (SourceMap{{7, -1}}));
        reloaded.setId(added.id());
        reloaded.audioSource() = added.audioSource();
        QVERIFY(reloaded == added);
    }

    void encodingStartsAndStopsEveryRow()
    {
        open();
        QVERIFY(!m_setup->encoding(true) && m_setup->encoding(false)); // nothing to start
        QVERIFY(QuillonEngine::encodingCalls().isEmpty());
        addPreset("A");
        addPreset("B");
        QVERIFY(m_setup->encoding(true) && m_setup->encoding(true)); // no toggle, no second start
        QVERIFY(m_setup->isEncoding() && row(0)->isChecked() && row(1)->isChecked());
        QCOMPARE(m_host->encodingEvents().size(), 2);
        QVERIFY(m_setup->encoding(false) && !m_setup->isEncoding());
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

        // Both buses give every mix; the video source drives the audio source.
        QCOMPARE(comboTexts(control("audioSourceList")).mid(3),
                 (QStringList{"BUS A", "BUS B", "BUS A+B", "PGM+A", "PGM+B", "PGM+A+B"}));
        choose("audioSourceList", "BUS B");
        choose("videoSourceList", "PVW");
        QCOMPARE(control("audioSourceList")->currentText(), QStringLiteral("PVW"));

        // Shown again, the encoder list is reread and the current row applied again.
        const CodecPreset later = preset("H.264", 2160, 20000);
        QVERIFY(m_stores->codecManager().write(later));
        rows()->setCurrentRow(0);
        control<QLineEdit>("folder")->clear();
        encoderList()->selectPreset(preset("H.264", 720, 3000));
        m_setup->show();
        const QComboBox* list = encoderList()->findChild<QComboBox*>("presetList");
        QVERIFY(list->findText(CodecManager::namingFromPreset(&later)) >= 0);
        QCOMPARE(shownSettings(), QStringLiteral("/media/rec | %P | MP4 | no split | None | PGM | PGM | H.264"));
        QCOMPARE(encoderList()->currentPreset().videoCodec().height, 1080);
        m_setup->hide();
    }

    void namingDialogKeepsTheTag()
    {
        open();
        for (bool accept : {false, true}) {
            ModalDriver<FileNamingDialog> driver([accept](FileNamingDialog* dialog) {
                auto* edit = dialog->findChild<QLineEdit*>("fileTag");
                QCOMPARE(edit->text(), defaultTag);
                edit->clear();
                QTest::keyClicks(edit, "%P take %Y");
                accept ? dialog->accept() : dialog->reject();
            });
            control<QToolButton>("namingEdit")->click();
            QVERIFY(driver.found());
            QCOMPARE(control<QLineEdit>("fileTag")->text(), accept ? "%P take %Y" : defaultTag);
        }
        open(); // a new dialog starts with the last chosen tag
        QCOMPARE(control<QLineEdit>("fileTag")->text(), QStringLiteral("%P take %Y"));
    }

    void oldAndBadStoredSettingsNeverCrash()
    {
        m_host->replaceSettings(QJsonObject{{"RECORDING", "junk"}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("not an array"));
        open();
        QCOMPARE(rows()->count(), 0);

        // The older single video source key counted programme, clean programme and preview from 0.
        QJsonArray old{42};
        for (int legacy : {0, 2, 5})
            old.append(storedRow("Old", {{"VideoSource", legacy}, {"VideoSourceIndex", 3}}));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("element 0 is not an object"));
        open(old);
        QList<SourceMap> sources;
        for (const CodecPreset& p : m_setup->codecPresets())
            sources << p.videoSource();
        QCOMPARE(sources,
                 (QList<SourceMap>{SourceMap{{0, 0}}, SourceMap{{7, -1}}, SourceMap{{10, -1}}, SourceMap{{5, -1}}}));
        QVERIFY(m_setup->encoding(true) && m_setup->encoding(false)); // an empty row starts and stops cleanly

        // Without a host the dialog still works on its own.
        m_setup = std::make_unique<RecordingSetup>(nullptr, nullptr);
        m_setup->reloadPresets();
        addPreset("Alone");
        QCOMPARE(rows()->count(), 1);
        QVERIFY(m_setup->encoding(true) && m_setup->encoding(false));
    }

private:
    void makeStores(const LicenseModel& license = LicenseModel())
    {
        m_setup.reset();
        m_stores.reset(); // one store instance at a time
        m_stores = std::make_unique<TempStores>(license);
        for (const CodecPreset& p :
             {preset("H.264", 1080, 6000), preset("H.264", 720, 3000), preset("MJPEG", 1080, 40000)})
            QVERIFY(m_stores->codecManager().write(p));
    }
    void open(const QJsonArray& stored = QJsonArray())
    {
        m_setup.reset();
        if (!stored.isEmpty())
            m_host->setSettings("RECORDING", stored);
        m_host->clearEvents();
        m_setup = std::make_unique<RecordingSetup>(nullptr, m_host.get());
        m_setup->reloadPresets();
    }
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
    // The one box shown, as "kind title: text".
    static QString box()
    {
        const MessageBox::Shown last = MessageBox::lastShown();
        const QString count = MessageBox::shown().size() == 1 ? QString() : QStringLiteral("not one box: ");
        return count + QString("%1 %2: %3").arg(int(last.kind)).arg(last.title, last.text);
    }

    std::unique_ptr<TempStores> m_stores;
    std::unique_ptr<MemoryOutputInterface> m_host;
    std::unique_ptr<RecordingSetup> m_setup;
};

QTEST_MAIN(TestRecordingSetup)
#include "tst_recordingsetup.moc"
