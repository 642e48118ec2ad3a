#include <QtTest>
#include <QtWidgets>

#ifdef QUILLON_CONSOLE
#include "capture/displayoutputwindow.h"
#include "output/outputsetup.h"
#include "output/playoutsetup.h"
#include "quillon/activitylog.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/playouthost.h"
#include "quillon/tonegenerator.h"
#include "quillon/toneoutput.h"
#include "support/testkit.h"

#include <QAudioDeviceInfo>
#include <QtEndian>

using namespace TestKit;

// The console's playout and external outputs, driven through its buttons: what this machine
// has really runs (a display window, a tone), the rest goes to the capture stand-in.
class tst_PlayoutConsole : public QObject
{
    Q_OBJECT

    struct Console {
        QTemporaryDir data;
        ActivityLog log;
        std::unique_ptr<HostSession> session = std::make_unique<HostSession>(data.path(), &log);
        std::unique_ptr<MainWindow> window = std::make_unique<MainWindow>(*session);

        QStringList running() const
        {
            QStringList items;
            for (const QListWidgetItem* item : window->findChild<QListWidget*>("runningList")->findItems("*", Qt::MatchWildcard))
                items << item->text();
            return items;
        }
        bool logged(const QString& text) const { return log.lines().join('\n').contains(text); }
        template <typename T>
        T* open(const char* button)
        {
            window->findChild<QPushButton*>(button)->click();
            for (T* dialog : window->findChildren<T*>())
                if (dialog->isVisible())
                    return dialog;
            return nullptr;
        }
    };

    static QWidget* row(QWidget* dialog, const char* container, int index = 0)
    {
        return dialog->findChild<QWidget*>(container)->findChildren<QWidget*>("PlayoutItem").value(index);
    }

private slots:
    void initTestCase() { initDialogTest("tst_playoutconsole"); }
    void init() { MessageBox::clear(); }

    void playoutDrivesTheMachine()
    {
        Console c;
        auto* dialog = c.open<PlayoutSetup>("playoutButton");
        QVERIFY(dialog && dialog->isVisible() && !dialog->isModal());

        QWidget* display = row(dialog, "displayContainer");
        auto* displays = control<QComboBox>(display, "deviceList");
        displays->setCurrentIndex(displays->findText("Display 1 (", Qt::MatchStartsWith));
        const QString mode = control<QComboBox>(display, "formatList")->currentText();
        control<QToolButton>(display, "playBtn")->click();
        QVERIFY(c.session->playout().devices().window("DISPLAY 1")->isVisible());
        QVERIFY(c.logged("DISPLAY 1 started: Display 1 shows PROGRAM at " + mode + "."));
        QCOMPARE(c.running(), QStringList{"DISPLAY 1 - Display 1 " + mode + " PROGRAM"});

        QWidget* sdi = row(dialog, "sdiContainer");
        QVERIFY(choose(control<QComboBox>(sdi, "deviceList"), "SDI 4K Port 1"));
        control<QToolButton>(sdi, "playBtn")->click();
        QVERIFY(c.logged("SDI 1 started: SDI 4K Port 1 (stand-in): this machine has no SDI card driver; 1080p29.97 is "
                         "accepted and nothing is sent."));
        QCOMPARE(c.running().last(), QString("SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"));

        // The machine's default audio device plays the tone; without one the row is refused.
        const QAudioDeviceInfo speaker = QAudioDeviceInfo::defaultOutputDevice();
        const bool sound = !speaker.isNull() && !speaker.deviceName().isEmpty();
        QWidget* audio = row(dialog, "audioContainer");
        QVERIFY(choose(control<QComboBox>(audio, "deviceList"), "Default Output"));
        control<QToolButton>(audio, "playBtn")->click();
        QCOMPARE(control<QToolButton>(audio, "playBtn")->isChecked(), sound);
        if (!sound) {
            QCOMPARE(MessageBox::lastShown().text, QString("Cannot start output."));
            QVERIFY(c.logged("AUDIO 1 does not start: This machine has no audio output device."));
        }

        // Outputs run on while the dialog is hidden; stopping closes the window.
        dialog->reject();
        QCOMPARE(c.running().size(), sound ? 3 : 2);
        control<QToolButton>(display, "playBtn")->click();
        QVERIFY(!c.session->playout().devices().window("DISPLAY 1"));
        QVERIFY(c.logged("DISPLAY 1 stopped."));
        QCOMPARE(c.running().first(), QString("SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"));
    }

    void externalOutputsAreListed()
    {
        Console c;
        auto* playout = c.open<PlayoutSetup>("playoutButton");
        QWidget* sdi = row(playout, "sdiContainer");
        QVERIFY(choose(control<QComboBox>(sdi, "deviceList"), "SDI 4K Port 1"));
        control<QToolButton>(sdi, "playBtn")->click();

        auto accept = [&](const QStringList& devices) {
            auto* dialog = c.open<OutputSetup>("externalOutputButton");
            const QList<QWidget*> rows = dialog->findChildren<QWidget*>("OutputWidget");
            for (int i = 0; i < devices.size(); ++i)
                QVERIFY(choose(control<QComboBox>(rows[i], "deviceList"), devices[i]));
            control<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
        };
        accept({"NDI Output 1", "SDI 4K Port 1"});
        QVERIFY(c.logged("EXTERNAL 2 does not start: SDI 4K Port 1 is already in use by SDI 1."));
        QVERIFY(c.logged("External outputs: 1 of 2 started."));
        QVERIFY(c.running().contains("EXTERNAL 1 - NDI Output 1 1080p29.97 PROGRAM (stand-in)"));
        accept({"None", "None"});
        QVERIFY(c.logged("No external output is configured."));
        QCOMPARE(c.running(), QStringList{"SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"});
    }

    void toneGenerator_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("rate");
        QTest::newRow("programme at 48 kHz") << 1000 << 48000;
        QTest::newRow("bus A at 44.1 kHz") << 440 << 44100;
    }
    void toneGenerator()
    {
        QFETCH(int, frequency);
        QFETCH(int, rate);
        QAudioFormat format = ToneOutput::pcmFormat(rate);
        ToneGenerator tone(format, frequency);
        QVERIFY(tone.open(QIODevice::ReadOnly));
        // Two seconds read in odd pieces: the wave goes on across reads.
        QByteArray pcm;
        while (pcm.size() < rate * 8)
            pcm += tone.read(qMin(999 * 4 + 2, rate * 8 - pcm.size()));
        int crossings = 0, peak = 0;
        qint16 previous = 0;
        for (int i = 0; i < pcm.size(); i += 4) {
            const auto* frame = reinterpret_cast<const uchar*>(pcm.constData() + i);
            const qint16 left = qFromLittleEndian<qint16>(frame);
            QCOMPARE(qFromLittleEndian<qint16>(frame + 2), left);
            crossings += (left >= 0) != (previous >= 0) ? 1 : 0;
            peak = qMax(peak, int(qAbs(left)));
            previous = left;
        }
        QVERIFY2(qAbs(crossings - 4 * frequency) <= 2, qPrintable(QString::number(crossings)));
        QVERIFY(peak > 4000 && peak <= 4096); // an eighth of full scale
        format.setSampleSize(8);
        QVERIFY(!ToneGenerator::canGenerate(format));
    }
};

#else

class tst_PlayoutConsole : public QObject
{
    Q_OBJECT
private slots:
    void skipped() { QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)"); }
};

#endif

QTEST_MAIN(tst_PlayoutConsole)
#include "tst_playoutconsole.moc"
