#include "capture/capturemanager.h"
#include "capture/displaymode.h"
#include "capture/ndioutput.h"

#include <QtTest>

namespace {

QStringList names(const QList<VideoDevice>& devices)
{
    QStringList list;
    for (const VideoDevice& d : devices)
        list.append(d.name());
    return list;
}

} // namespace

class tst_CaptureManager : public QObject
{
    Q_OBJECT

private slots:
    void init() { CaptureManager::instance().resetToDefaults(); }

    void defaultsForTwoScreens()
    {
        const QList<VideoDevice> devices = CaptureManager::defaultVideoDevices({QSize(1920, 1080), QSize(1280, 720)});
        QCOMPARE(names(devices), (QStringList{"SDI 4K Port 1", "SDI 4K Port 2", "SDI HD Port 1", "NDI Output 1",
                                              "NDI Output 2", "Display 1", "Display 2", "VirtualCam"}));
        QVERIFY(devices.at(0).supportsKeying() && !devices.at(1).supportsKeying());
        QVERIFY(devices.at(0).supportsMode("2160p59.94") && devices.at(0).supportsMode("1080i59.94"));
        QVERIFY(!devices.at(2).supportsMode("2160p29.97"));
        QCOMPARE(devices.at(3).displayModes(), NdiOutput::supportFormats());
        QVERIFY(!devices.at(3).canCapture());
        // A display offers the progressive modes its screen can show, the smallest at least.
        QCOMPARE(devices.at(5).displayModes().size(), 7);
        QCOMPARE(devices.at(5).displayModes().last(), QStringLiteral("1080p59.94"));
        QCOMPARE(devices.at(6).displayNumber(), 2);
        QCOMPARE(devices.at(6).displayModes(), (QStringList{"720p50", "720p59.94"}));
        QCOMPARE(CaptureManager::displayModesFor(QSize(1080, 1920)), QStringList{"720p50"});

        for (const VideoDevice& device : CaptureManager::defaultVideoDevices({QSize(3840, 2160)})) {
            QVERIFY2(!device.displayModes().isEmpty(), qPrintable(device.name()));
            for (const QString& mode : device.displayModes())
                QVERIFY2(DisplayMode::fromName(mode).name() == mode, qPrintable(device.name() + ' ' + mode));
        }
    }

    void outputDevicesAndLookup()
    {
        CaptureManager& manager = CaptureManager::instance();
        QCOMPARE(names(manager.outputDevices(VideoDevice::Sdi | VideoDevice::Ndi)),
                 (QStringList{"SDI 4K Port 1", "SDI 4K Port 2", "SDI HD Port 1", "NDI Output 1", "NDI Output 2"}));
        QVERIFY(manager.outputDevices(8).isEmpty()); // audio is no video device
        QCOMPARE(manager.outputDevices(VideoDevice::Display).size(), QGuiApplication::screens().size());
        QVERIFY(!manager.videoDevice("Unplugged").isValid());
        QVERIFY(manager.displayModes("Unplugged").isEmpty());
        QCOMPARE(manager.displayModes("NDI Output 2"), NdiOutput::supportFormats());
        QVERIFY(NdiOutput::supportsFormat("720p50") && !NdiOutput::supportsFormat("576i50"));

        VideoDevice capture("Capture 1", VideoDevice::Sdi, {"1080i50"});
        capture.setDirections(VideoDevice::Input);
        manager.setVideoDevices({capture});
        QVERIFY(manager.outputDevices(VideoDevice::Sdi).isEmpty());
        QCOMPARE(manager.displayModes("Capture 1"), QStringList{"1080i50"});
    }

    void refreshDisplaysKeepsOtherDevicesInPlace()
    {
        CaptureManager& manager = CaptureManager::instance();
        QList<VideoDevice> devices = manager.videoDevices();
        devices.append(VideoDevice("Extra SDI", VideoDevice::Sdi, {"720p50"}));
        devices.insert(0, VideoDevice("Display 9", VideoDevice::Display, {"720p50"})); // no longer there
        manager.setVideoDevices(devices);

        QSignalSpy changed(&manager, &CaptureManager::videoDevicesChanged);
        manager.refreshDisplays();
        QCOMPARE(changed.size(), 1);
        const QStringList now = names(manager.videoDevices());
        QVERIFY(!now.contains("Display 9"));
        QCOMPARE(now.first(), QStringLiteral("Display 1"));
        QCOMPARE(now.last(), QStringLiteral("Extra SDI"));
        QCOMPARE(manager.outputDevices(VideoDevice::Display).size(), QGuiApplication::screens().size());
    }

    void displayModeNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("read"); // width, height, i/p, rate; empty when invalid
        QTest::newRow("1080i59.94") << "1080i59.94" << "1920 1080 i 59.94";
        QTest::newRow("2160p29.97") << "2160p29.97" << "3840 2160 p 29.97";
        QTest::newRow("576i50 is standard definition") << "576i50" << "720 576 i 50";
        QTest::newRow("surrounding spaces") << " 720p59.94 " << "1280 720 p 59.94";
        for (const char* bad : {"", "1080x59.94", "1080p", "p50", "000p50", "1080p0", "1080P50"})
            QTest::addRow("invalid: '%s'", bad) << QString(bad) << QString();
    }
    void displayModeNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, read);
        const DisplayMode mode = DisplayMode::fromName(name);
        QCOMPARE(mode.isValid(), !read.isEmpty());
        QCOMPARE(mode.name(), read.isEmpty() ? QString() : name.trimmed());
        const QString shown = QString("%1 %2 %3 %4").arg(mode.width()).arg(mode.height());
        QCOMPARE(shown.arg(mode.isInterlaced() ? 'i' : 'p').arg(mode.frameRate()), read.isEmpty() ? "0 0 p 0" : read);
        QCOMPARE(mode.fitsWithin(1920, 1080), mode.isValid() && mode.height() <= 1080);
    }
};

QTEST_MAIN(tst_CaptureManager)
#include "tst_capturemanager.moc"
