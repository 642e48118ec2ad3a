// ctest: media
#include "engine/quillonengine.h"
#include "interface/fileoutputinterface.h"
#include "quillon/activitylog.h"
#include "quillon/enginehost.h"
#include "quillon/hostsession.h"
#include "quillon/mainwindow.h"
#include "recording/encoderitem.h"
#include "support/mediaprobe.h"

#include <QtTest>
#include <QtWidgets>

// The console on the FFmpeg engine: a recording row's file carries the name the log shows,
// the running list follows the encoder, and a refusal is a warning in the log.
class tst_EngineConsole : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!MediaProbe::available())
            QSKIP("ffmpeg and ffprobe are not installed (Debian package ffmpeg)");
        QStandardPaths::setTestModeEnabled(true);
    }

    void recordingRowRunsAndIsListed()
    {
        QTemporaryDir data;
        ActivityLog log;
        HostSession session(data.path(), &log);
        MainWindow window(session);
        auto engine = std::make_unique<EngineHost>(&log);
        ProjectPreset project;
        project.videoOutput() = {320, 180, 25, false};
        QuillonEngine::setProjectPreset(project);

        CodecPreset p;
        p.setName("Program");
        p.setId("rec");
        p.videoCodec() = {true, "H.264", 1000, 0, 0, 320, 180, 0, 1, 1, 0, "ultrafast", QString()};
        p.audioCodec() = {true, "AAC", 48000, 128, 16, 2};
        p.container().name = "mov";
        p.local() = {true, data.filePath("takes"), "%P %C_%B_%R", 0, "None"};
        EncoderItem row(nullptr, &session.setup(), 1);
        row.setPreset(nullptr, &p);
        row.setChecked(true);

        const QString logged = log.lines().filter("Start recording \"Program\"").value(0);
        QVERIFY2(logged.endsWith("-> Program H.264_1000Kbps_320x180.mov"), qPrintable(logged));
        auto* running = window.findChild<QListWidget*>("runningList");
        QTRY_VERIFY_WITH_TIMEOUT(running->item(0)->text().contains(" running "), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(running->item(0)->text().contains(" 25.0 fps "), 5000);
        QVERIFY(running->item(0)->text().startsWith("Recording \"Program\"  00:00:0"));

        CodecPreset edited = p;
        edited.setId("edited");
        edited.videoCodec().codec = "H.266";
        EncoderItem bad(nullptr, &session.setup(), 1);
        bad.setPreset(nullptr, &edited);
        bad.setChecked(true);
        QCOMPARE(log.lastWarning(), QString("The video codec \"H.266\" is unknown to the engine."));
        QCOMPARE(running->count(), 1);

        // Quitting the host closes the file properly.
        engine.reset();
        const QJsonObject probed = MediaProbe::probe(data.filePath("takes/Program H.264_1000Kbps_320x180.mov"));
        QVERIFY(MediaProbe::duration(probed) > 0.5);
        QVERIFY(!QuillonEngine::backend());
    }
};

QTEST_MAIN(tst_EngineConsole)
#include "tst_engineconsole.moc"
