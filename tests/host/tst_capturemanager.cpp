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

    void displaysOfferWhatTheirScreenShows()
    {
        const QList<VideoDevice> devices = CaptureManager::defaultVideoDevices({QSize(1920, 1080), QSize(1280, 720)});
        const VideoDevice second = devices.at(devices.size() - 2);
        QCOMPARE(second.displayNumber(), 2);
        QCOMPARE(second.displayModes(), (QStringList{"720p50", "720p59.94"}));
        // A small screen still shows the smallest progressive format, scaled down.
        QCOMPARE(CaptureManager::displayModesFor(QSize(1080, 1920)), QStringList{"720p50"});
        // Every mode a device offers reads back as itself.
        for (const VideoDevice& device : CaptureManager::defaultVideoDevices({QSize(3840, 2160)})) {
            QVERIFY2(!device.displayModes().isEmpty(), qPrintable(device.name()));
            for (const QString& mode : device.displayModes())
                QVERIFY2(DisplayMode::fromName(mode).name() == mode, qPrintable(device.name() + ' ' + mode));
        }
    }

    void outputDevicesAndRefresh()
    {
        CaptureManager& manager = CaptureManager::instance();
        QCOMPARE(names(manager.outputDevices(VideoDevice::Ndi)), (QStringList{"NDI Output 1", "NDI Output 2"}));
        QCOMPARE(manager.displayModes("NDI Output 2"), NdiOutput::supportFormats());
        QVERIFY(!manager.videoDevice("Unplugged").isValid());

        // Displays are found again where the old ones were; the other devices keep their places.
        VideoDevice capture("Capture 1", VideoDevice::Sdi, {"1080i50"});
        capture.setDirections(VideoDevice::Input);
        manager.setVideoDevices({VideoDevice("Display 9", VideoDevice::Display, {"720p50"}), capture});
        QSignalSpy changed(&manager, &CaptureManager::videoDevicesChanged);
        manager.refreshDisplays();
        QCOMPARE(changed.size(), 1);
        const QStringList now = names(manager.videoDevices());
        QVERIFY(now.first() == "Display 1" && now.last() == "Capture 1" && !now.contains("Display 9"));
        QCOMPARE(manager.outputDevices(VideoDevice::Display).size(), QGuiApplication::screens().size());
        QVERIFY(manager.outputDevices(VideoDevice::Sdi).isEmpty()); // an input only is no output
        QCOMPARE(manager.displayModes("Capture 1"), QStringList{"1080i50"});
    }

    void displayModeNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("read"); // width x height, interlaced, rate, name; empty when invalid
        QTest::newRow("1080i59.94") << "1080i59.94" << "1920x1080 i 59.94 1080i59.94";
        QTest::newRow("576i50 is standard definition") << "576i50" << "720x576 i 50 576i50";
        QTest::newRow("surrounding spaces") << " 720p50 " << "1280x720 p 50 720p50";
        for (const char* bad : {"", "1080x59.94", "1080p", "1080p0", "1080P50"})
            QTest::addRow("invalid: '%s'", bad) << QString(bad) << QString();
    }
    void displayModeNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, read);
        const DisplayMode m = DisplayMode::fromName(name);
        const QString scan = m.isInterlaced() ? "i" : "p";
        const QString shown = QString("%1x%2 %3 %4 %5").arg(m.width()).arg(m.height()).arg(scan);
        QCOMPARE(m.isValid() ? shown.arg(m.frameRate()).arg(m.name()) : QString(), read);
    }
};

QTEST_MAIN(tst_CaptureManager)
#include "tst_capturemanager.moc"
