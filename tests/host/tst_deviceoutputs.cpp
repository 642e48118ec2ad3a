#include "capture/capturemanager.h"
#include "capture/deviceoutputs.h"
#include "capture/displayoutputwindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

// The capture library's outputs: a real window for a display, the stand-in for the rest.
class tst_DeviceOutputs : public QObject
{
    Q_OBJECT

    static QString displayMode() { return CaptureManager::instance().displayModes("Display 1").value(0); }

private slots:
    void init() { CaptureManager::instance().resetToDefaults(); }

    void startOne_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<bool>("started");
        QTest::addColumn<QString>("message");
        QTest::newRow("display") << "Display 1" << displayMode() << true << "Display 1 shows CAM 2 at " + displayMode() + ".";
        QTest::newRow("sdi") << "SDI 4K Port 1" << "2160p50" << true
                             << "SDI 4K Port 1 (stand-in): this machine has no SDI card driver; 2160p50 is accepted and nothing is sent.";
        QTest::newRow("ndi") << "NDI Output 1" << "720p60" << true
                             << "NDI Output 1 (stand-in): this machine has no NDI driver; 720p60 is accepted and nothing is sent.";
        QTest::newRow("virtual camera") << "VirtualCam" << "1080p29.97" << true
                                        << "VirtualCam (stand-in): this machine has no virtual camera driver; 1080p29.97 is accepted and nothing is sent.";
        QTest::newRow("unknown device") << "SDI 9" << "1080p50" << false << "SDI 9 is not connected.";
        QTest::newRow("format too large") << "SDI HD Port 1" << "2160p50" << false
                                          << "SDI HD Port 1 does not offer the format \"2160p50\".";
        QTest::newRow("no format") << "VirtualCam" << "" << false << "VirtualCam does not offer the format \"\".";
    }
    void startOne()
    {
        QFETCH(QString, device);
        QFETCH(QString, mode);
        QFETCH(bool, started);
        QFETCH(QString, message);
        DeviceOutputs outputs;
        QSignalSpy changed(&outputs, &DeviceOutputs::changed);
        QString said;
        QCOMPARE(outputs.start({"OUT 1", device, mode, "CAM 2", ProgrammePicture(ProgrammePicture::Bars, "CAM 2")}, &said),
                 started);
        QCOMPARE(said, message);
        QCOMPARE(outputs.isRunning("OUT 1"), started);
        QCOMPARE(changed.size(), started ? 1 : 0);
        DisplayOutputWindow* window = outputs.window("OUT 1");
        QCOMPARE(window != nullptr, started && device == "Display 1");
        QCOMPARE(outputs.isStandIn("OUT 1"), started && !window);
        if (window) {
            QVERIFY(window->isVisible());
            QVERIFY(window->windowFlags() & Qt::FramelessWindowHint);
            QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(window->geometry()));
            QVERIFY(qAbs(window->width() * 9 - window->height() * 16) < 16 * 2); // the format's shape
            QTRY_VERIFY(window->framesDrawn() >= 3);
        }
        QCOMPARE(outputs.stop("OUT 1"), started);
        QVERIFY(!outputs.window("OUT 1"));
    }

    void oneOutputPerDevice()
    {
        DeviceOutputs outputs;
        QString said;
        QVERIFY(outputs.start({"SDI 1", "SDI 4K Port 1", "1080p50", "PROGRAM", {}}, &said));
        QVERIFY(!outputs.start({"EXTERNAL 1", "SDI 4K Port 1", "1080p50", "PROGRAM", {}}, &said));
        QCOMPARE(said, QString("SDI 4K Port 1 is already in use by SDI 1."));
        // The same output may start again with other choices.
        QVERIFY(outputs.start({"SDI 1", "SDI 4K Port 1", "2160p50", "PREVIEW", {}}, &said));
        QCOMPARE(outputs.keys(), QStringList{"SDI 1"});
    }

    void pictureClock()
    {
        const ProgrammePicture picture(ProgrammePicture::Bars, "PGM");
        QCOMPARE(picture.clockText(QTime(9, 5, 7), 3), QString("PGM 09:05:07:03"));
    }
};

QTEST_MAIN(tst_DeviceOutputs)
#include "tst_deviceoutputs.moc"
