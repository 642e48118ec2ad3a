#include "capturemanager.h"
#include "displaymode.h"
#include "ndioutput.h"

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
        const QList<VideoDevice> devices =
            CaptureManager::defaultVideoDevices({QSize(1920, 1080), QSize(1280, 720)});
        QCOMPARE(names(devices), (QStringList{"SDI 4K Port 1", "SDI 4K Port 2", "SDI HD Port 1", "NDI Output 1",
                                              "NDI Output 2", "Display 1", "Display 2", "VirtualCam"}));

        const VideoDevice keyer = devices.at(0);
        QCOMPARE(keyer.kind(), VideoDevice::Sdi);
        QVERIFY(keyer.supportsKeying());
        QVERIFY(keyer.canOutput() && keyer.canCapture());
        QVERIFY(keyer.supportsMode(QStringLiteral("2160p59.94")));
        QVERIFY(keyer.supportsMode(QStringLiteral("1080i59.94")));
        QCOMPARE(devices.at(1).alias(), QStringLiteral("Stage Monitor"));
        QVERIFY(!devices.at(1).supportsKeying());
        QVERIFY(!devices.at(2).supportsMode(QStringLiteral("2160p29.97")));
        QVERIFY(devices.at(2).supportsMode(QStringLiteral("1080p59.94")));

        QCOMPARE(devices.at(3).kind(), VideoDevice::Ndi);
        QCOMPARE(devices.at(3).displayModes(), NdiOutput::supportFormats());
        QVERIFY(!devices.at(3).canCapture());

        QCOMPARE(devices.at(5).kind(), VideoDevice::Display);
        QCOMPARE(devices.at(5).displayNumber(), 1);
        QCOMPARE(devices.at(5).displaySize(), QSize(1920, 1080));
        QCOMPARE(devices.at(6).displayNumber(), 2);
        QCOMPARE(devices.at(6).displayModes(), (QStringList{"720p50", "720p59.94"}));

        QCOMPARE(devices.at(7).kind(), VideoDevice::VirtualCamera);
        QVERIFY(devices.at(7).supportsMode(QStringLiteral("1080p29.97")));
    }

    void everyDefaultModeIsAValidName()
    {
        for (const VideoDevice& device : CaptureManager::defaultVideoDevices({QSize(3840, 2160)})) {
            QVERIFY2(!device.displayModes().isEmpty(), qPrintable(device.name()));
            for (const QString& mode : device.displayModes())
                QVERIFY2(DisplayMode::fromName(mode).name() == mode, qPrintable(device.name() + QLatin1Char(' ') + mode));
        }
    }

    void displayModesForAScreen_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QString>("largest");
        QTest::addColumn<int>("count");
        QTest::newRow("full HD") << QSize(1920, 1080) << QStringLiteral("1080p59.94") << 7;
        QTest::newRow("UHD") << QSize(3840, 2160) << QStringLiteral("2160p59.94") << 11;
        QTest::newRow("HD ready") << QSize(1366, 768) << QStringLiteral("720p59.94") << 2;
        QTest::newRow("too small still shows the smallest") << QSize(800, 600) << QStringLiteral("720p50") << 1;
        QTest::newRow("portrait full HD") << QSize(1080, 1920) << QStringLiteral("720p50") << 1;
    }
    void displayModesForAScreen()
    {
        QFETCH(QSize, screen);
        QFETCH(QString, largest);
        QFETCH(int, count);
        const QStringList modes = CaptureManager::displayModesFor(screen);
        QCOMPARE(modes.size(), count);
        QCOMPARE(modes.last(), largest);
        for (const QString& mode : modes)
            QVERIFY2(!DisplayMode::fromName(mode).isInterlaced(), qPrintable(mode));
    }

    void outputDevicesByKind_data()
    {
        QTest::addColumn<int>("kinds");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("SDI") << int(VideoDevice::Sdi)
                             << QStringList{"SDI 4K Port 1", "SDI 4K Port 2", "SDI HD Port 1"};
        QTest::newRow("NDI") << int(VideoDevice::Ndi) << QStringList{"NDI Output 1", "NDI Output 2"};
        QTest::newRow("virtual camera") << int(VideoDevice::VirtualCamera) << QStringList{"VirtualCam"};
        QTest::newRow("SDI or NDI") << int(VideoDevice::Sdi | VideoDevice::Ndi)
                                    << QStringList{"SDI 4K Port 1", "SDI 4K Port 2", "SDI HD Port 1", "NDI Output 1",
                                                   "NDI Output 2"};
        QTest::newRow("audio is no video device") << 8 << QStringList();
    }
    void outputDevicesByKind()
    {
        QFETCH(int, kinds);
        QFETCH(QStringList, expected);
        QCOMPARE(names(CaptureManager::instance().outputDevices(kinds)), expected);
    }

    void instanceListsTheApplicationsScreens()
    {
        const QList<VideoDevice> displays = CaptureManager::instance().outputDevices(VideoDevice::Display);
        QCOMPARE(displays.size(), QGuiApplication::screens().size());
        QCOMPARE(CaptureManager::instance().videoDevices(),
                 CaptureManager::defaultVideoDevices(CaptureManager::currentScreens()));
    }

    void inputOnlyDeviceIsNoOutput()
    {
        VideoDevice capture(QStringLiteral("Capture 1"), VideoDevice::Sdi, {QStringLiteral("1080i50")});
        capture.setDirections(VideoDevice::Input);
        CaptureManager::instance().setVideoDevices({capture});
        QVERIFY(CaptureManager::instance().outputDevices(VideoDevice::Sdi).isEmpty());
        QCOMPARE(CaptureManager::instance().displayModes(QStringLiteral("Capture 1")),
                 QStringList{QStringLiteral("1080i50")});
    }

    void lookupByName()
    {
        const CaptureManager& manager = CaptureManager::instance();
        QVERIFY(manager.videoDevice(QStringLiteral("SDI HD Port 1")).isValid());
        QVERIFY(!manager.videoDevice(QStringLiteral("Unplugged")).isValid());
        QVERIFY(manager.displayModes(QStringLiteral("Unplugged")).isEmpty());
        QCOMPARE(manager.displayModes(QStringLiteral("NDI Output 2")), NdiOutput::supportFormats());
    }

    void refreshDisplaysKeepsOtherDevicesInPlace()
    {
        CaptureManager& manager = CaptureManager::instance();
        VideoDevice extra(QStringLiteral("Extra SDI"), VideoDevice::Sdi, {QStringLiteral("720p50")});
        QList<VideoDevice> devices = manager.videoDevices();
        devices.append(extra);
        // A display that is no longer there.
        VideoDevice gone(QStringLiteral("Display 9"), VideoDevice::Display, {QStringLiteral("720p50")});
        devices.insert(0, gone);
        manager.setVideoDevices(devices);

        QSignalSpy changed(&manager, &CaptureManager::videoDevicesChanged);
        manager.refreshDisplays();
        QCOMPARE(changed.size(), 1);
        const QStringList now = names(manager.videoDevices());
        QVERIFY(!now.contains(QStringLiteral("Display 9")));
        QCOMPARE(now.first(), QStringLiteral("Display 1"));
        QCOMPARE(now.last(), QStringLiteral("Extra SDI"));
        QCOMPARE(manager.outputDevices(VideoDevice::Display).size(), QGuiApplication::screens().size());
    }

    void displayModeNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<bool>("interlaced");
        QTest::addColumn<double>("rate");
        QTest::newRow("1080i59.94") << "1080i59.94" << true << 1920 << 1080 << true << 59.94;
        QTest::newRow("1080p29.97") << "1080p29.97" << true << 1920 << 1080 << false << 29.97;
        QTest::newRow("2160p29.97") << "2160p29.97" << true << 3840 << 2160 << false << 29.97;
        QTest::newRow("720p50") << "720p50" << true << 1280 << 720 << false << 50.0;
        QTest::newRow("576i50 is standard definition") << "576i50" << true << 720 << 576 << true << 50.0;
        QTest::newRow("1080p23.98") << "1080p23.98" << true << 1920 << 1080 << false << 23.98;
        QTest::newRow("surrounding spaces") << " 720p59.94 " << true << 1280 << 720 << false << 59.94;
        QTest::newRow("empty") << "" << false << 0 << 0 << false << 0.0;
        QTest::newRow("no scan letter") << "1080x59.94" << false << 0 << 0 << false << 0.0;
        QTest::newRow("no rate") << "1080p" << false << 0 << 0 << false << 0.0;
        QTest::newRow("no lines") << "p50" << false << 0 << 0 << false << 0.0;
        QTest::newRow("zero lines") << "000p50" << false << 0 << 0 << false << 0.0;
        QTest::newRow("zero rate") << "1080p0" << false << 0 << 0 << false << 0.0;
        QTest::newRow("upper case scan") << "1080P50" << false << 0 << 0 << false << 0.0;
    }
    void displayModeNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, valid);
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(bool, interlaced);
        QFETCH(double, rate);
        const DisplayMode mode = DisplayMode::fromName(name);
        QCOMPARE(mode.isValid(), valid);
        QCOMPARE(mode.width(), width);
        QCOMPARE(mode.height(), height);
        QCOMPARE(mode.isInterlaced(), interlaced);
        QCOMPARE(mode.frameRate(), rate);
        QCOMPARE(mode.name(), valid ? name.trimmed() : QString());
    }

    void fitsWithinALicence()
    {
        QVERIFY(DisplayMode::fromName(QStringLiteral("1080p59.94")).fitsWithin(1920, 1080));
        QVERIFY(!DisplayMode::fromName(QStringLiteral("2160p29.97")).fitsWithin(1920, 1080));
        QVERIFY(!DisplayMode().fitsWithin(1920, 1080));
    }

    void ndiFormats()
    {
        QStringList formats = NdiOutput::supportFormats();
        QVERIFY(formats.contains(QStringLiteral("1080p59.94")));
        QVERIFY(formats.contains(QStringLiteral("1080i59.94")));
        QVERIFY(formats.contains(QStringLiteral("2160p29.97")));
        QCOMPARE(formats.removeDuplicates(), 0);
        for (const QString& format : formats)
            QVERIFY2(DisplayMode::fromName(format).isValid(), qPrintable(format));
        QVERIFY(NdiOutput::supportsFormat(QStringLiteral("720p50")));
        QVERIFY(!NdiOutput::supportsFormat(QStringLiteral("576i50")));
    }
};

QTEST_MAIN(tst_CaptureManager)
#include "tst_capturemanager.moc"
