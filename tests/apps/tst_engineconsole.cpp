// ctest: media
#include "interface/fileoutputinterface.h"
#include "quillon/activitylog.h"
#include "quillon/enginehost.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "quillon/stillgrabber.h"
#include "recording/encoderitem.h"
#include "recording/isocordersetup.h"
#include "support/engineoutputs.h"
#include "support/mediaprobe.h"
#include "support/modaldriver.h"
#include "widgets/messagebox.h"

#include <QJsonArray>
#include <QtTest>
#include <QtWidgets>

// The console on the FFmpeg engine: a recording row's file carries the name the log shows and
// the running list follows the encoder; ISO recording gives a real file of each chosen camera
// with the shared codec, a grab a real image of the asked format and size; a refusal or a
// folder that cannot be written is a sentence in the log.
class tst_EngineConsole : public QObject
{
    Q_OBJECT

    QTemporaryDir m_data;
    std::unique_ptr<ActivityLog> m_log;
    std::unique_ptr<HostSession> m_session;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<EngineHost> m_engine;

    void click(const char* button) { m_window->findChild<QPushButton*>(button)->click(); }
    // Opens "ISO Recording…", chooses the rows, sets the folder and the codec, and presses OK.
    void recordIso(const QList<int>& rows, const QString& folder)
    {
        ModalDriver<IsoCorderSetup> driver([&](IsoCorderSetup* d) {
            d->findChild<QListWidget*>("presetList")->clearSelection();
            for (int row : rows)
                d->findChild<QListWidget*>("presetList")->item(row)->setSelected(true);
            d->findChild<QComboBox*>("containerList")->setCurrentText("MKV");
            d->findChild<QComboBox*>("videoBitrateList")->setCurrentText("1000");
            d->findChild<QLineEdit*>("folder")->setText(folder);
            d->findChild<QLineEdit*>("fileTag")->setText("%S %C_%B_%R");
            d->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
        });
        click("isoRecordingButton");
        QVERIFY(driver.found());
    }
    void setGrab(const QString& format, int source, const QString& folder)
    {
        m_session->setup().setSettings("GRAB", QJsonArray{QJsonObject{
            {"Source", source}, {"PresetName", "shot"}, {"ContainerName", format}, {"Path", folder},
            {"FileTag", "%P"}, {"MediaToBin", "None"}}});
    }

private slots:
    void initTestCase()
    {
        if (!MediaProbe::available())
            QSKIP("ffmpeg and ffprobe are not installed (Debian package ffmpeg)");
        QStandardPaths::setTestModeEnabled(true);
        MessageBox::setScripted(true);
        m_log = std::make_unique<ActivityLog>();
        m_session = std::make_unique<HostSession>(m_data.path(), m_log.get());
        m_window = std::make_unique<MainWindow>(*m_session);
        m_engine = std::make_unique<EngineHost>(m_log.get());
        ProjectPreset project;
        project.videoOutput() = {320, 180, 25, false};
        QuillonEngine::setProjectPreset(project);
    }

    void recordingRowRunsAndIsListed()
    {
        CodecPreset p;
        p.setName("Program");
        p.setId("rec");
        p.videoCodec() = {true, "H.264", 1000, 0, 0, 320, 180, 0, 1, 1, 0, "ultrafast", QString()};
        p.audioCodec() = {true, "AAC", 48000, 128, 16, 2};
        p.container().name = "mov";
        p.local() = {true, m_data.filePath("takes"), "%P %C_%B_%R", 0, "None"};
        EncoderItem row(nullptr, &m_session->setup(), 1);
        row.setPreset(nullptr, &p);
        row.setChecked(true);

        const QString logged = m_log->lines().filter("Start recording \"Program\"").value(0);
        QVERIFY2(logged.endsWith("-> Program H.264_1000Kbps_320x180.mov"), qPrintable(logged));
        auto* running = m_window->findChild<QListWidget*>("runningList");
        QTRY_VERIFY_WITH_TIMEOUT(running->item(0)->text().contains(" running "), 10000);
        // The rate settles within a few seconds; a loaded machine needs more.
        QTRY_VERIFY_WITH_TIMEOUT(running->item(0)->text().contains(" 25.0 fps "), 20000);
        QVERIFY(running->item(0)->text().startsWith("Recording \"Program\"  00:00:"));

        CodecPreset edited = p;
        edited.setId("edited");
        edited.videoCodec().codec = "H.266";
        EncoderItem bad(nullptr, &m_session->setup(), 1);
        bad.setPreset(nullptr, &edited);
        bad.setChecked(true);
        QCOMPARE(m_log->lastWarning(), QString("The video codec \"H.266\" is unknown to the engine."));
        QCOMPARE(running->count(), 1);
        row.setChecked(false);
        QVERIFY(EngineOutputs::reaped(*m_engine->backend()));
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_data.filePath("takes/Program H.264_1000Kbps_320x180.mov"))) > 0.5);
    }

    void isoRecordsEachChosenCamera()
    {
        recordIso({0, 2}, m_data.filePath("iso"));
        const QStringList files{"CAM 1 H.264_1000Kbps_320x180.mkv", "CAM 3 H.264_1000Kbps_320x180.mkv"};
        for (const QString& file : files)
            QVERIFY2(m_log->lines().filter("Start ISO recording \"" + file.left(5) + "\" -> " + file).size() == 1,
                     qPrintable(m_log->lines().join('\n')));
        for (const char* key : {"iso:1", "iso:3"})
            QVERIFY2(EngineOutputs::waitFor(key, EngineOutput::State::Running), qPrintable(m_log->lastWarning()));
        QTest::qWait(1500);
        auto* stop = m_window->findChild<QPushButton*>("stopIsoButton");
        QVERIFY(stop->isEnabled());
        stop->click();
        QVERIFY(!stop->isEnabled());
        QVERIFY(EngineOutputs::reaped(*m_engine->backend()));

        QCOMPARE(QDir(m_data.filePath("iso")).entryList(QDir::Files), files);
        for (const QString& file : files) {
            const QJsonObject probed = MediaProbe::probe(m_data.filePath("iso/" + file));
            const QJsonObject video = MediaProbe::stream(probed, "video");
            QCOMPARE(QStringLiteral("%1 %2x%3 %4")
                         .arg(video.value("codec_name").toString())
                         .arg(video.value("width").toInt())
                         .arg(video.value("height").toInt())
                         .arg(MediaProbe::stream(probed, "audio").value("codec_name").toString()),
                     QStringLiteral("h264 320x180 aac"));
            QVERIFY(MediaProbe::duration(probed) > 0.5);
        }
    }

    void grabWritesTheAskedImage_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<int>("source");
        QTest::addColumn<QByteArray>("readAs");
        QTest::newRow("programme as png") << "png" << 0 << QByteArray("png");
        QTest::newRow("preview as jpg") << "jpg" << 2 << QByteArray("jpeg");
    }
    void grabWritesTheAskedImage()
    {
        QFETCH(QString, format);
        QFETCH(int, source);
        QFETCH(QByteArray, readAs);
        const QString folder = m_data.filePath("grabs-" + format);
        setGrab(format, source, folder);
        QSignalSpy grabbed(&m_session->stillGrabber(), &StillGrabber::grabbed);
        click("grabStillButton");
        click("grabStillButton");
        QTRY_COMPARE_WITH_TIMEOUT(grabbed.size(), 2, 15000);
        for (const char* name : {"shot", "shot 2"}) {
            const QString path = QDir(folder).filePath(name + ("." + format));
            QCOMPARE(m_log->lines().filter(QStringLiteral("Grabbed \"shot\": %1").arg(path)).size(), 1);
            QImageReader reader(path);
            QCOMPARE(reader.format(), readAs);
            QCOMPARE(reader.size(), QSize(320, 180));
        }
    }

    void unwritableFolderIsSaid()
    {
        setGrab("png", 0, "/proc/version/sub");
        QCOMPARE(m_session->stillGrabber().grab(), 0);
        QCOMPARE(m_log->lastWarning(),
                 QString("The folder /proc/version/sub cannot be written; choose another location for the grab \"shot\"."));

        recordIso({1}, "/proc/version/sub");
        QCOMPARE(m_log->lastWarning(), QString("ISO recording of \"CAM 2\" did not start."));
        QVERIFY(m_log->lines().filter("The folder /proc/version/sub cannot be written; choose another location for "
                                      "\"CAM 2\".").size() == 1);
        QVERIFY(!m_window->findChild<QPushButton*>("stopIsoButton")->isEnabled());
    }

    // Quitting the host closes a running recording's file properly.
    void quittingClosesTheFiles()
    {
        recordIso({0}, m_data.filePath("quit"));
        QVERIFY(EngineOutputs::waitFor("iso:1", EngineOutput::State::Running));
        QTest::qWait(1000);
        m_engine.reset();
        QVERIFY(!QuillonEngine::backend());
        QVERIFY(MediaProbe::duration(MediaProbe::probe(m_data.filePath("quit/CAM 1 H.264_1000Kbps_320x180.mkv"))) > 0.5);
        m_window.reset();
        m_session.reset();
    }
};

QTEST_MAIN(tst_EngineConsole)
#include "tst_engineconsole.moc"
