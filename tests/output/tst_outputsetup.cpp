#include "capture/capturemanager.h"
#include "engine/quillonengine.h"
#include "interface/memoryoutputinterface.h"
#include "output/outputsetup.h"
#include "support/modaldriver.h"
#include "support/tempstores.h"
#include "support/testkit.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace TestKit;

namespace {

struct External {
    explicit External(const QJsonObject& settings = {}) : host(settings), dialog(nullptr, &host) { dialog.reloadPresets(); }
    QComboBox* list(int row, const char* name) const
    {
        return control<QComboBox>(dialog.findChildren<QWidget*>("OutputWidget").value(row), name);
    }
    QList<int> kindsAndNumbers()
    {
        QList<int> result;
        for (const OutputInfo& info : dialog.outputInfos())
            result << info.kind << info.number;
        return result;
    }
    MemoryOutputInterface host;
    OutputSetup dialog;
};

QJsonObject stored(MemoryOutputInterface& host)
{
    return host.settings().value("PLAYOUT").toObject();
}

} // namespace

class TestOutputSetup : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initDialogTest("tst_outputsetup"); }
    void init()
    {
        CaptureManager::instance().resetToDefaults();
        QuillonEngine::setProjectPreset(ProjectPreset());
    }

    void formFollowsTheLicence()
    {
        LicenseModel license;
        license.setMaxOutput(2);
        TempStores stores(license);
        External e;
        QCOMPARE(e.dialog.findChildren<QWidget*>("OutputWidget").size(), 2);
        QCOMPARE(control<QLabel>(e.dialog.findChildren<QWidget*>("OutputWidget")[1], "outputLabel")->text(),
                 QString("Output 2:"));
        QCOMPARE(control<QLabel>(&e.dialog, "maxOutput")->text(), QString("Max Output: 2"));
        // Every kind's devices in one list; an external output has a source, never none.
        const QStringList devices = comboTexts(e.list(0, "deviceList"));
        QVERIFY(devices.contains("SDI 4K Port 1") && devices.contains("NDI Output 2") && devices.contains("VirtualCam"));
        QVERIFY(!comboTexts(e.list(0, "videoSourceList")).contains("NONE"));
    }

    void validCheckStoreAndReload()
    {
        TempStores stores;
        External e({{"PLAYOUT", QJsonObject{{"SDI 1", QJsonObject{{"DeviceName", "SDI HD Port 1"}}},
                                             {"EXTERNAL 1", "NDI Output 1"},
                                             {"EXTERNAL 2", QJsonObject{{"DeviceName", "NDI Output 9"},
                                                                        {"DisplayModeName", "1080p25"}}}}}});
        QCOMPARE(e.list(0, "deviceList")->currentText(), QString("None"));
        // A device that is gone is kept and shown, but there is nothing to drive; sources alone make no output.
        QCOMPARE(e.list(1, "deviceList")->currentText(), QString("NDI Output 9 (not found)"));
        QVERIFY(choose(e.list(0, "videoSourceList"), "PREVIEW"));
        QVERIFY(!e.dialog.validCheck() && e.dialog.outputInfos().isEmpty());

        QVERIFY(choose(e.list(0, "deviceList"), e.list(0, "deviceList")->itemText(6)));
        QVERIFY(e.list(0, "deviceList")->currentText().startsWith("Display 1 ("));
        QVERIFY(choose(e.list(2, "deviceList"), "NDI Output 1"));
        QVERIFY(choose(e.list(2, "videoSourceList"), "Multiview 9"));
        QVERIFY(choose(e.list(3, "deviceList"), "SDI 4K Port 1"));
        QVERIFY(choose(e.list(3, "alphaList"), "InternalKeyer"));
        QVERIFY(e.dialog.validCheck() && e.dialog.validCheck());
        QCOMPARE(e.kindsAndNumbers(), QList<int>({OutputInfo::Display, 1, OutputInfo::Ndi, 3, OutputInfo::Sdi, 4}));
        QVERIFY(choose(e.list(0, "deviceList"), "None"));
        QVERIFY(e.dialog.validCheck());
        QCOMPARE(e.kindsAndNumbers(), QList<int>({OutputInfo::Ndi, 3, OutputInfo::Sdi, 4}));

        e.dialog.accept();
        const QJsonObject playout = stored(e.host);
        QCOMPARE(playout["EXTERNAL 1"].toObject(),
                 QJsonObject({{"DeviceName", "None"}, {"DisplayModeName", ""}, {"ColorFormat", "NONE"}, {"Keyer", 0},
                              {"TextureSource", "PREVIEW"}, {"AudioSource", "PROGRAM"}}));
        QCOMPARE(playout["EXTERNAL 3"].toObject(),
                 QJsonObject({{"DeviceName", "NDI Output 1"}, {"DisplayModeName", "1080p29.97"}, {"ColorFormat", "UYVY"},
                              {"Keyer", 0}, {"TextureSource", "MULTIVIEW 4"}, {"AudioSource", "PROGRAM"}}));
        QCOMPARE(QStringList({playout["EXTERNAL 4"].toObject()["ColorFormat"].toString(),
                              playout["EXTERNAL 2"].toObject()["DeviceName"].toString(),
                              playout["SDI 1"].toObject()["DeviceName"].toString()}),
                 QStringList({"UYVA", "NDI Output 9", "SDI HD Port 1"})); // another dialog's entry stays

        // exec() reads the setup object again before it shows.
        External reloaded;
        reloaded.host.replaceSettings(e.host.settings());
        ModalDriver<QDialog> cancel([](QDialog* dialog) { dialog->reject(); });
        QCOMPARE(reloaded.dialog.exec(), int(QDialog::Rejected));
        QVERIFY(cancel.found() && reloaded.dialog.validCheck());
        QCOMPARE(reloaded.kindsAndNumbers(), e.kindsAndNumbers());
        QCOMPARE(reloaded.list(3, "alphaList")->currentText(), QString("InternalKeyer"));
        QCOMPARE(reloaded.list(2, "videoSourceList")->currentText(), QString("Multiview 9"));
    }
};

QTEST_MAIN(TestOutputSetup)
#include "tst_outputsetup.moc"
