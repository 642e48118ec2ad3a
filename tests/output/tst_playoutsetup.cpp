#include "capture/capturemanager.h"
#include "engine/quillonengine.h"
#include "interface/memoryoutputinterface.h"
#include "output/playoutsetup.h"
#include "stores/nametables.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QLabel>
#include <QTabWidget>
#include <QToolButton>
#include <QtTest>

using namespace TestKit;

namespace {

QJsonObject entry(const QJsonObject& changes = {})
{
    QJsonObject e{{"DeviceName", "SDI 4K Port 1"}, {"AudioDeviceName", "None"}, {"DisplayModeName", "1080p50"},
                  {"ColorFormat", "V210"},         {"Keyer", 2},                {"VideoSource", "CAM 2"},
                  {"AudioSource", "BUS_A"}};
    for (auto it = changes.begin(); it != changes.end(); ++it)
        e.insert(it.key(), it.value());
    return e;
}

// Every field, so two infos compare in one go.
QStringList fields(const OutputInfo& i)
{
    return {QString::number(i.kind), QString::number(i.number), i.deviceName, i.audioDeviceName, i.displayModeName,
            NameTables::pixelFormats().value(i.colorFormat), QString::number(i.keyer),
            QStringLiteral("%1/%2").arg(i.videoSourceType).arg(i.videoSourceIndex),
            QStringLiteral("%1/%2").arg(i.audioSourceType).arg(i.audioSourceIndex)};
}

// The dialog on a host that records each playout() call and answers as told.
struct Playout {
    explicit Playout(const QJsonObject& settings = {}) : host(settings)
    {
        host.setPlayoutHandler([this](OutputInfo* info, bool on) {
            calls.append({*info, on});
            return answer;
        });
        dialog = std::make_unique<PlayoutSetup>(nullptr, &host);
    }
    QWidget* row(const char* container, int index = 0) const
    {
        return dialog->findChild<QWidget*>(container)->findChildren<QWidget*>("PlayoutItem").value(index);
    }
    MemoryOutputInterface host;
    QList<QPair<OutputInfo, bool>> calls;
    bool answer = true;
    std::unique_ptr<PlayoutSetup> dialog;
};

QJsonObject storedEntry(MemoryOutputInterface& host, const char* key)
{
    return host.settings().value("PLAYOUT").toObject().value(key).toObject();
}

OutputInfo output(int kind, int number)
{
    OutputInfo info;
    info.kind = kind;
    info.number = number;
    return info;
}

QComboBox* list(QWidget* row, const char* name) { return control<QComboBox>(row, name); }
QToolButton* play(QWidget* row) { return control<QToolButton>(row, "playBtn"); }

} // namespace

class TestPlayoutSetup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initDialogTest("tst_playoutsetup"); }
    void init()
    {
        MessageBox::clear();
        CaptureManager::instance().resetToDefaults();
        QuillonEngine::setAudioDevices({"Default Output", "Headphones"});
        QuillonEngine::setProjectPreset(ProjectPreset());
    }

    void tabsRowsAndLists()
    {
        TempStores stores;
        Playout p;
        QCOMPARE(p.dialog->windowTitle(), QString("Playout"));
        // Each tab holds one row per device of its kind.
        auto* tabs = control<QTabWidget>(p.dialog.get(), "tabWidget");
        QStringList seen;
        for (int i = 0; i < tabs->count(); ++i)
            seen << tabs->widget(i)->objectName() + "=" + tabs->tabText(i) + "="
                        + QString::number(tabs->widget(i)->findChildren<QWidget*>("PlayoutItem").size());
        QCOMPARE(seen, QStringList({"sdiTab=SDI=3", "ndiTab=NDI=2", "displayTab=Display=1", "audioTab=Audio=2",
                                    "vcamTab=VirtualCam=1"}));

        QWidget* sdi = p.row("sdiContainer");
        QCOMPARE(comboTexts(list(sdi, "deviceList")),
                 QStringList({"None", "SDI 4K Port 1", "(Stage Monitor) SDI 4K Port 2", "SDI HD Port 1"}));
        QVERIFY(choose(list(sdi, "deviceList"), "SDI 4K Port 1"));
        QCOMPARE(comboTexts(list(sdi, "alphaList")), QStringList({"Disable", "InternalKeyer", "ExternalKeyer"}));
        QCOMPARE(list(sdi, "formatList")->currentText(), QString("1080p29.97")); // the project's format
        QVERIFY(choose(list(sdi, "deviceList"), "SDI HD Port 1"));
        QCOMPARE(comboTexts(list(sdi, "alphaList")), QStringList({"Disable", "Enable"}));
        QVERIFY(!comboTexts(list(sdi, "formatList")).contains("2160p50"));
        QWidget* sound = p.row("audioContainer");
        QCOMPARE(comboTexts(list(sound, "deviceList")), QStringList({"None", "Default Output", "Headphones"}));
        QVERIFY(choose(list(sound, "deviceList"), "Headphones"));
        QCOMPARE(comboTexts(list(sound, "formatList")), QStringList({"48 kHz Stereo", "44.1 kHz Stereo"}));
    }

    void startAndStop_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("hostCalls");
        QTest::newRow("host starts") << "SDI 4K Port 1" << true << 1;
        QTest::newRow("host refuses") << "SDI 4K Port 1" << false << 1;
        QTest::newRow("no device") << "None" << true << 0;
    }
    void startAndStop()
    {
        QFETCH(QString, device);
        QFETCH(bool, answer);
        QFETCH(int, hostCalls);
        TempStores stores;
        Playout p;
        p.answer = answer;
        QWidget* sdi = p.row("sdiContainer");
        QVERIFY(choose(list(sdi, "deviceList"), device));
        play(sdi)->click();
        QCOMPARE(p.calls.size(), hostCalls);
        const bool started = answer && hostCalls;
        QVERIFY(play(sdi)->isChecked() == started && p.dialog->isEncoding() == started);
        QVERIFY(list(sdi, "deviceList")->isEnabled() != started && list(sdi, "alphaList")->isEnabled() != started);
        if (!started) {
            QCOMPARE(MessageBox::shown().size(), 1);
            QCOMPARE(MessageBox::lastShown().title + " " + MessageBox::lastShown().text, QString("warning Cannot start output."));
            return;
        }
        QVERIFY(p.calls[0].second && p.calls[0].first.displayModeName == "1080p29.97");
        // What runs is kept at once.
        QCOMPARE(storedEntry(p.host, "SDI 1")["DeviceName"].toString(), device);
        play(sdi)->click();
        QVERIFY(p.calls.size() == 2 && !p.calls[1].second && list(sdi, "deviceList")->isEnabled());
        QVERIFY(MessageBox::shown().isEmpty());
    }

    void hostStateAndClosing()
    {
        TempStores stores;
        Playout p;
        OutputInfo ndi2 = output(OutputInfo::Ndi, 2);
        p.dialog->encoding(&ndi2, true);
        QVERIFY(play(p.row("ndiContainer", 1))->isChecked() && !play(p.row("ndiContainer", 0))->isChecked());
        QVERIFY(!list(p.row("ndiContainer", 1), "formatList")->isEnabled() && p.dialog->isEncoding());
        p.dialog->encoding(false);
        QVERIFY(!p.dialog->isEncoding() && p.calls.isEmpty());

        p.dialog->open(true);
        QVERIFY(p.dialog->isVisible() && !p.dialog->isModal());
        p.dialog->reject();
        p.dialog->open(false);
        p.dialog->reject();
        QCOMPARE(p.host.playoutClosedEvents(), QList<bool>{false});
        QVERIFY(!p.dialog->isVisible());
    }

    void storeAndReloadEveryKey()
    {
        TempStores stores;
        Playout p(QJsonObject{{"PLAYOUT", QJsonObject{{"EXTERNAL 1", QJsonObject{{"DeviceName", "NDI Output 1"}}},
                                                       {"NDI 1", QJsonObject{{"DeviceName", "NDI Output 1"}}}}}});
        QWidget* sdi = p.row("sdiContainer");
        QVERIFY(choose(list(sdi, "deviceList"), "(Stage Monitor) SDI 4K Port 2"));
        QVERIFY(choose(list(sdi, "formatList"), "2160p50"));
        QVERIFY(choose(list(sdi, "videoSourceList"), "CAM 2 - Stage Monitor"));
        QVERIFY(choose(list(sdi, "audioSourceList"), "BUS B"));
        QVERIFY(choose(list(sdi, "alphaList"), "Enable"));
        QWidget* display = p.row("displayContainer");
        list(display, "deviceList")->setCurrentIndex(1);
        QVERIFY(choose(list(display, "videoSourceList"), "Multiview 8"));
        QVERIFY(choose(list(display, "audioDeviceList"), "Headphones"));
        QWidget* sound = p.row("audioContainer", 1);
        QVERIFY(choose(list(sound, "deviceList"), "Headphones"));
        QVERIFY(choose(list(sound, "formatList"), "44.1 kHz Stereo"));
        QWidget* ndi = p.row("ndiContainer");
        QVERIFY(choose(list(ndi, "deviceList"), "NDI Output 2"));
        QVERIFY(choose(list(ndi, "videoSourceList"), "Multiview 16"));
        QCOMPARE(control<QLabel>(ndi, "outputName")->text(), QString("MULTIVIEW 1"));
        p.dialog->accept();

        const QJsonObject stored = p.host.settings().value("PLAYOUT").toObject();
        QCOMPARE(stored["SDI 1"].toObject(),
                 QJsonObject({{"DeviceName", "SDI 4K Port 2"}, {"AudioDeviceName", "None"},
                              {"DisplayModeName", "2160p50"}, {"ColorFormat", "UYVA"}, {"Keyer", 1},
                              {"VideoSource", "CAM 2"}, {"AudioSource", "BUS_B"}}));
        QCOMPARE(QStringList({stored["DISPLAY 1"].toObject()["VideoSource"].toString(),
                              stored["DISPLAY 1"].toObject()["ColorFormat"].toString(),
                              stored["AUDIO 2"].toObject()["DisplayModeName"].toString(),
                              stored["MULTIVIEW 1"].toObject()["DeviceName"].toString()}),
                 QStringList({"MULTIVIEW 3", "BGRA", "44.1 kHz Stereo", "NDI Output 2"}));
        // The row's name changed with its source; another dialog's entry stays.
        QVERIFY(!stored.contains("NDI 1") && stored.contains("EXTERNAL 1"));

        QVERIFY(p.dialog->validCheck() && p.dialog->validCheck());
        QCOMPARE(p.dialog->outputInfos().size(), 4);
        Playout reloaded(p.host.settings());
        QVERIFY(reloaded.dialog->validCheck());
        for (int i = 0; i < 4; ++i)
            QCOMPARE(fields(reloaded.dialog->outputInfos()[i]), fields(p.dialog->outputInfos()[i]));
    }

    void reloadOneRow()
    {
        TempStores stores;
        Playout p;
        p.host.replaceSettings({{"PLAYOUT", QJsonObject{{"SDI 1", entry()}, {"SDI 2", entry({{"DeviceName", "SDI HD Port 1"}})}}}});
        OutputInfo sdi1 = output(OutputInfo::Sdi, 1);
        p.dialog->reloadPreset(&sdi1);
        QCOMPARE(list(p.row("sdiContainer", 0), "deviceList")->currentText(), QString("SDI 4K Port 1"));
        QCOMPARE(list(p.row("sdiContainer", 1), "deviceList")->currentText(), QString("None"));
    }

    void badInput_data()
    {
        QTest::addColumn<QJsonValue>("playout");
        QTest::addColumn<QStringList>("sdi1"); // device text, format, colour, keyer, video source
        QTest::addColumn<bool>("sdi2Loads");
        const QJsonObject good{{"SDI 2", entry({{"DeviceName", "SDI HD Port 1"}})}};
        auto with = [&](const QJsonValue& sdi1) {
            QJsonObject playout = good;
            playout.insert("SDI 1", sdi1);
            return playout;
        };
        const QStringList untouched{"None", "", "UYVY", "Disable", "PROGRAM"};
        QTest::newRow("good") << QJsonValue(with(entry())) << QStringList{"SDI 4K Port 1", "1080p50", "V210", "ExternalKeyer", "CAM 2 - Stage Monitor"} << true;
        QTest::newRow("PLAYOUT array") << QJsonValue(QJsonArray{entry()}) << untouched << false;
        QTest::newRow("entry a string") << QJsonValue(with("SDI 4K Port 1")) << untouched << true;
        QTest::newRow("unknown colour") << QJsonValue(with(entry({{"ColorFormat", "YUV9000"}})))
                                        << QStringList{"SDI 4K Port 1", "1080p50", "UYVA", "ExternalKeyer", "CAM 2 - Stage Monitor"} << true;
        for (const char* source : {"CAM x", "CAM -1", "CAM 99"})
            QTest::newRow(qPrintable(QString("source \"%1\"").arg(source)))
                << QJsonValue(with(entry({{"VideoSource", source}})))
                << QStringList{"SDI 4K Port 1", "1080p50", "V210", "ExternalKeyer", "PROGRAM"} << true;
        QTest::newRow("device gone") << QJsonValue(with(entry({{"DeviceName", "SDI 8K Port 9"}, {"DisplayModeName", "4320p50"}})))
                                     << QStringList{"SDI 8K Port 9 (not found)", "4320p50", "V210", "Disable", "CAM 2 - Stage Monitor"} << true;
        QTest::newRow("format not offered") << QJsonValue(with(entry({{"DisplayModeName", "4320p50"}, {"Keyer", 7}})))
                                            << QStringList{"SDI 4K Port 1", "1080p29.97", "V210", "Disable", "CAM 2 - Stage Monitor"} << true;
        QTest::newRow("wrong types") << QJsonValue(with(entry({{"DeviceName", 3}, {"Keyer", "2"}, {"VideoSource", 7}})))
                                     << QStringList{"None", "", "V210", "Disable", "PROGRAM"} << true;
    }
    void badInput()
    {
        QFETCH(QJsonValue, playout);
        QFETCH(QStringList, sdi1);
        QFETCH(bool, sdi2Loads);
        TempStores stores;
        Playout p({{"PLAYOUT", playout}});
        QWidget* row = p.row("sdiContainer");
        QCOMPARE(list(p.row("sdiContainer", 1), "deviceList")->currentText() == "SDI HD Port 1", sdi2Loads);
        p.dialog->accept();
        // The colour format shows only in what is stored.
        const QJsonObject stored = storedEntry(p.host, "SDI 1");
        QCOMPARE(QStringList({list(row, "deviceList")->currentText(), list(row, "formatList")->currentText(),
                              stored["ColorFormat"].toString(), list(row, "alphaList")->currentText(),
                              list(row, "videoSourceList")->currentText()}),
                 sdi1);
        QCOMPARE(stored["DeviceName"].toString(), sdi1[0].section(" (not found)", 0, 0));
    }
};

QTEST_MAIN(TestPlayoutSetup)
#include "tst_playoutsetup.moc"
