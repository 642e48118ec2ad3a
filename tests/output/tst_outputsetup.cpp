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
        QCOMPARE(e.dialog.windowTitle(), QString("External Output"));
        QCOMPARE(e.dialog.findChildren<QWidget*>("OutputWidget").size(), 2);
        QCOMPARE(control<QLabel>(e.dialog.findChildren<QWidget*>("OutputWidget")[1], "outputLabel")->text(),
                 QString("Output 2:"));
        QCOMPARE(control<QLabel>(&e.dialog, "maxResolution")->text(), QString("Max Resolution: 3840x2160"));
        QCOMPARE(control<QLabel>(&e.dialog, "maxOutput")->text(), QString("Max Output: 2"));
        QCOMPARE(control<QDialogButtonBox>(&e.dialog, "buttonBox")->button(QDialogButtonBox::Cancel)->text(),
                 QString("Cancel"));
        const QStringList devices = comboTexts(e.list(0, "deviceList"));
        QCOMPARE(devices.mid(0, 2), QStringList({"None", "SDI 4K Port 1"}));
        QVERIFY(devices.contains("NDI Output 2") && devices.contains("VirtualCam"));
        const QStringList sources = comboTexts(e.list(0, "videoSourceList"));
        QVERIFY(!sources.contains("NONE"));
        for (const char* text : {"PROGRAM", "PGM(Clean)", "PREVIEW", "MULTIVIEW", "Multiview 16", "SWITCHER",
                                 "SYSTEM", "AUDIO MIXER", "VIDEO HUB"})
            QVERIFY2(sources.contains(text), text);
    }

    void validCheckStoreAndReload()
    {
        TempStores stores;
        External e({{"PLAYOUT", QJsonObject{{"SDI 1", QJsonObject{{"DeviceName", "SDI HD Port 1"}}},
                                             {"EXTERNAL 1", "NDI Output 1"},
                                             {"EXTERNAL 2", QJsonObject{{"DeviceName", "NDI Output 9"},
                                                                        {"DisplayModeName", "1080p25"}}}}}});
        QCOMPARE(e.list(0, "deviceList")->currentText(), QString("None"));
        // A device that is gone is kept and shown, but there is nothing to drive.
        QCOMPARE(e.list(1, "deviceList")->currentText(), QString("NDI Output 9 (not found)"));
        QVERIFY(!e.dialog.validCheck());
        QVERIFY(e.dialog.outputInfos().isEmpty());
        // Sources alone do not make an output.
        QVERIFY(choose(e.list(0, "videoSourceList"), "PREVIEW"));
        QVERIFY(!e.dialog.validCheck());

        QVERIFY(choose(e.list(0, "deviceList"), e.list(0, "deviceList")->itemText(6)));
        QVERIFY(e.list(0, "deviceList")->currentText().startsWith("Display 1 ("));
        QVERIFY(choose(e.list(2, "deviceList"), "NDI Output 1"));
        QVERIFY(choose(e.list(2, "videoSourceList"), "Multiview 9"));
        QVERIFY(choose(e.list(3, "deviceList"), "SDI 4K Port 1"));
        QVERIFY(choose(e.list(3, "alphaList"), "InternalKeyer"));
        QVERIFY(e.dialog.validCheck());
        QVERIFY(e.dialog.validCheck());
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
        QCOMPARE(playout["EXTERNAL 4"].toObject()["ColorFormat"].toString(), QString("UYVA"));
        QCOMPARE(playout["EXTERNAL 2"].toObject()["DeviceName"].toString(), QString("NDI Output 9"));
        QCOMPARE(playout["SDI 1"].toObject()["DeviceName"].toString(), QString("SDI HD Port 1"));

        // exec() reads the setup object again before it shows.
        External reloaded;
        reloaded.host.replaceSettings(e.host.settings());
        ModalDriver<QDialog> cancel([](QDialog* dialog) { dialog->reject(); });
        QCOMPARE(reloaded.dialog.exec(), int(QDialog::Rejected));
        QVERIFY(cancel.found());
        QVERIFY(reloaded.dialog.validCheck());
        QCOMPARE(reloaded.kindsAndNumbers(), e.kindsAndNumbers());
        QCOMPARE(reloaded.list(3, "alphaList")->currentText(), QString("InternalKeyer"));
        QCOMPARE(reloaded.list(2, "videoSourceList")->currentText(), QString("Multiview 9"));
    }
};

QTEST_MAIN(TestOutputSetup)
#include "tst_outputsetup.moc"
