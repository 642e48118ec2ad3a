#include <QtTest>
#include <QtWidgets>

#ifdef QUILLON_CONSOLE
#include "capture/displayoutputwindow.h"
#include "engine/quillonengine.h"
#include "interface/fileoutputinterface.h"
#include "output/outputsetup.h"
#include "output/playoutsetup.h"
#include "quillon/activitylog.h"
#include "quillon/encodinglogformatter.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/playouthost.h"
#include "quillon/tonegenerator.h"
#include "quillon/toneoutput.h"
#include "setup/serverdialog.h"
#include "setup/streamingsetup.h"
#include "stores/codecmanager.h"
#include "support/modaldriver.h"
#include "support/streamingsetupform.h"
#include "support/testkit.h"
#include "widgets/messagebox.h"

#include <QAudioDeviceInfo>
#include <QtEndian>

using namespace TestKit;

// The console window in-process: its lists, its dialog buttons and its engine log. Playout and
// external outputs: what this machine has really runs (a display window, a tone), the rest goes
// to the capture stand-in.
class tst_Console : public QObject
{
    Q_OBJECT

    struct Console {
        // Without a path, in a scratch folder of its own.
        explicit Console(const QString& path = QString())
            : session(std::make_unique<HostSession>(path.isEmpty() ? scratch.path() : path, &log))
        {
        }
        QTemporaryDir scratch;
        ActivityLog log;
        // Destroyed in reverse order: the window before the session it shows.
        std::unique_ptr<HostSession> session;
        std::unique_ptr<MainWindow> window = std::make_unique<MainWindow>(*session);

        QStringList texts(const char* name) const
        {
            QStringList items;
            const auto* list = window->findChild<QListWidget*>(QLatin1String(name));
            for (int i = 0; i < list->count(); ++i)
                items.append(list->item(i)->text());
            return items;
        }
        bool logged(const QString& text) const { return log.lines().join('\n').contains(text); }
        QString lastLine() const { return log.lines().last(); }
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
    void initTestCase() { initDialogTest("tst_console"); }
    void init()
    {
        MessageBox::clear();
        QuillonEngine::clearEncodingCalls();
    }

    void showsAndReloadsTheStores()
    {
        QTemporaryDir data;
        Console c(data.path());
        const QStringList presets = c.texts("codecPresetList");
        QCOMPARE(presets.size(), 6);
        QVERIFY(presets.contains("H.264 1080 AUTO 8Mbps, AACStereo 48kHz 192kbps"));
        QCOMPARE(c.texts("serverList"), QStringList{"No saved servers"});
        QCOMPARE(c.texts("runningList"), QStringList{"Nothing running"});
        QVERIFY(MessageBox::shown().isEmpty());

        c.session->setup().setSettings("RECORDING", QJsonArray{QJsonObject{{"Name", "Program"}}});
        QVERIFY(c.logged("Setup saved (RECORDING)."));
        QVERIFY(QFile::exists(data.filePath("setup.json")));
        // Reload finds what changed on disk.
        QVERIFY(QFile::remove(QDir(c.session->codecManager().presetDirectory()).filePath(presets.first() + ".json")));
        c.window->findChild<QAction*>("actionReload")->trigger();
        QCOMPARE(c.texts("codecPresetList").size(), 5);
        QVERIFY(c.logged("Stores reloaded: 5 codec presets, 0 saved servers."));
    }

    void logsWhatTheEngineWasAskedToDo()
    {
        CodecPreset preset;
        preset.setName("Program");
        preset.videoCodec() = {true, "Apple ProRes", 0, 59.94, 1, 1920, 1080, 3, 0, 0, 0, {}, {}};
        preset.audioCodec().enabled = false;
        preset.container().name = "mov";
        preset.local().fileTag = "%P-%C_%R";
        QCOMPARE(EncodingLogFormatter::describe(1, preset, true),
                 "Start recording \"Program\": Apple ProRes 1080i59.94 HQ -> Program-Apple ProRes_1920x1080.mov");
        // A stream key shows its last characters only.
        preset.streaming().url = "rtmp://a.rtmp.youtube.com/live2";
        preset.streaming().key = "abcd-efgh-ijkl-mnop";
        QCOMPARE(EncodingLogFormatter::describe(0, preset, true),
                 QStringLiteral("Start streaming \"Program\": Apple ProRes 1080i59.94 HQ -> "
                                "rtmp://a.rtmp.youtube.com/live2 (key \u2022\u2022\u2022\u2022mnop)"));
    }

    // The operator's round with a server of their own: added, streamed to, listed in the console,
    // and after a restart the row is back.
    void streamingRoundSurvivesARestart()
    {
        QTemporaryDir data;
        {
            Console c(data.path());
            c.window->findChild<QPushButton*>("streamingButton")->click();
            auto* dialog = c.window->findChild<StreamingSetup*>();
            QVERIFY(dialog && dialog->isVisible());
            StreamingSetupForm form(*dialog);
            QVERIFY(form.pickService("Custom"));
            ModalDriver<ServerDialog> server([](ServerDialog* d) {
                auto* title = d->findChild<QLineEdit*>("title");
                title->selectAll();
                QTest::keyClicks(title, "Venue SRT");
                QTest::keyClicks(d->findChild<QLineEdit*>("streamUrlInput"), "srt://127.0.0.1:7001");
                auto* latency = d->findChild<QLineEdit*>("srtLatency");
                latency->selectAll();
                QTest::keyClicks(latency, "120");
                d->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
            });
            form.button("customAdd")->click();
            QVERIFY(server.found());
            form.type("presetName", "Venue");
            form.add();
            form.rows()->itemWidget(form.rows()->item(0))->findChild<QAbstractButton*>("encodingBtn")->click();
            const CodecModel::Streaming started = QuillonEngine::encodingCalls().last().preset.streaming();
            QCOMPARE(started.url + ' ' + QString::number(started.latency), QStringLiteral("srt://127.0.0.1:7001 120"));
            const QString line = c.lastLine();
            QVERIFY(line.contains("Start streaming \"Venue\"") && line.endsWith("-> srt://127.0.0.1:7001"));
            QCOMPARE(c.texts("runningList").size(), 1);
            form.rows()->itemWidget(form.rows()->item(0))->findChild<QAbstractButton*>("encodingBtn")->click();
            QVERIFY(c.lastLine().contains("Stop streaming \"Venue\""));
            QCOMPARE(c.texts("runningList"), QStringList{"Nothing running"});

            // Closing the dialog shows the new server in the console's list.
            dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Close)->click();
            QCOMPARE(c.texts("serverList"), QStringList{"Venue SRT - srt://127.0.0.1:7001"});
        }
        Console c(data.path());
        c.window->findChild<QPushButton*>("streamingButton")->click();
        auto* dialog = c.window->findChild<StreamingSetup*>();
        QVERIFY(dialog);
        QCOMPARE(dialog->codecPresets().size(), 1);
        QCOMPARE(dialog->codecPresets().first().streaming().latency, 120);
    }

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
        QCOMPARE(c.texts("runningList"), QStringList{"DISPLAY 1 - Display 1 " + mode + " PROGRAM"});

        QWidget* sdi = row(dialog, "sdiContainer");
        QVERIFY(choose(control<QComboBox>(sdi, "deviceList"), "SDI 4K Port 1"));
        control<QToolButton>(sdi, "playBtn")->click();
        QVERIFY(c.logged("SDI 1 started: SDI 4K Port 1 (stand-in): this machine has no SDI card driver; 1080p29.97 is "
                         "accepted and nothing is sent."));
        QCOMPARE(c.texts("runningList").last(), QString("SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"));

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
        QCOMPARE(c.texts("runningList").size(), sound ? 3 : 2);
        control<QToolButton>(display, "playBtn")->click();
        QVERIFY(!c.session->playout().devices().window("DISPLAY 1"));
        QVERIFY(c.logged("DISPLAY 1 stopped."));
        QCOMPARE(c.texts("runningList").first(), QString("SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"));
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
        QVERIFY(c.texts("runningList").contains("EXTERNAL 1 - NDI Output 1 1080p29.97 PROGRAM (stand-in)"));
        accept({"None", "None"});
        QVERIFY(c.logged("No external output is configured."));
        QCOMPARE(c.texts("runningList"), QStringList{"SDI 1 - SDI 4K Port 1 1080p29.97 PROGRAM (stand-in)"});
    }

    void toneGenerator()
    {
        const int frequency = 440, rate = 44100;
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

class tst_Console : public QObject
{
    Q_OBJECT
private slots:
    void skipped() { QSKIP("the reference host is not built (STREAMING_BUILD_APP=OFF)"); }
};

#endif

QTEST_MAIN(tst_Console)
#include "tst_console.moc"
